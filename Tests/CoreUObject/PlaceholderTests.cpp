#include "ObjectTestSupport.h"

#include "Serialization/DuplicatedObject.h"
#include "Templates/Casts.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UnrealType.h"

using namespace UE::CoreUObject;

using FPlaceholders = FObjectTest;

TEST_F(FPlaceholders, StandInHasTheClassAndPathThatWereAskedFor)
{
	const FString Path = TEXT("/Engine/Missing/StandardMacros.StandardMacros:ForEachLoop");
	UObject* const StandIn = FindOrCreatePlaceholder(UReflectedThing::StaticClass(), Path);
	ASSERT_NE(StandIn, nullptr);
	EXPECT_EQ(StandIn->GetPathName(), Path);
	EXPECT_EQ(StandIn->GetClass(), UReflectedThing::StaticClass());
	EXPECT_TRUE(IsPlaceholder(StandIn));
	EXPECT_TRUE(IsInPlaceholderPackage(StandIn));
	EXPECT_EQ(FindOrCreatePlaceholder(UReflectedThing::StaticClass(), Path), StandIn);
	EXPECT_FALSE(StandIn->MarkPackageDirty() && StandIn->GetOutermost()->IsDirty());
}

TEST_F(FPlaceholders, MissingClassIsAClassBelowObject)
{
	UObject* const Object = FindOrCreatePlaceholder(UClass::StaticClass(), TEXT("/Script/MissingModule.NavGrid"));
	UClass* const Class = Cast<UClass>(Object);
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class->GetSuperClass(), UObject::StaticClass());
	EXPECT_EQ(FindOrCreatePlaceholder(static_cast<UClass*>(nullptr), TEXT("/Script/MissingModule.Default__NavGrid")),
		Class->GetDefaultObject());
	EXPECT_EQ(
		FindOrCreatePlaceholderClass(FTopLevelAssetPath(TEXT("/Script/MissingModule"), TEXT("NavGrid")), UReflectedThing::StaticClass()),
		Class);
	EXPECT_TRUE(Class->IsChildOf<UReflectedThing>());
	EXPECT_TRUE(Class->GetDefaultObject()->IsA<UReflectedThing>());
}

TEST_F(FPlaceholders, OuterOfUnknownClassIsReplacedWhenItsClassIsKnown)
{
	UObject* const Child = FindOrCreatePlaceholder(UReflectedPart::StaticClass(), TEXT("/Game/Missing/A.A:Graph"));
	const TStrongObjectPtr<UObject> Keep(Child);
	const UObject* const Unknown = Child->GetOuter();
	UObject* const Known = FindOrCreatePlaceholder(UReflectedThing::StaticClass(), TEXT("/Game/Missing/A.A"));
	EXPECT_NE(Known, Unknown);
	EXPECT_EQ(Known->GetClass(), UReflectedThing::StaticClass());
	EXPECT_EQ(Child->GetOuter(), Known);
	EXPECT_EQ(Child->GetPathName(), TEXT("/Game/Missing/A.A:Graph"));
}

TEST_F(FPlaceholders, RealObjectTakesOverNameAndReferences)
{
	UReflectedThing* const Referencer = MakeThing();
	const TStrongObjectPtr<UObject> Keep(Referencer);
	UObject* const StandIn = FindOrCreatePlaceholder(UReflectedPart::StaticClass(), TEXT("/Game/Late/B.B"));
	Referencer->Single = StandIn;
	Referencer->List.Add(StandIn);
	UObject* const Real = NewObject<UReflectedThing>(StandIn->GetOutermost(), TEXT("B"));
	EXPECT_EQ(Real->GetPathName(), TEXT("/Game/Late/B.B"));
	EXPECT_EQ(Referencer->Single, Real);
	EXPECT_EQ(Referencer->List[0], Real);
	EXPECT_FALSE(IsPlaceholder(Real));
	EXPECT_FALSE(IsInPlaceholderPackage(Real));
}

TEST_F(FPlaceholders, MalformedPathsAreRefused)
{
	for (const TCHAR* const Path :
		{TEXT(""), TEXT("NoSlash.A"), TEXT("/Game/A."), TEXT("/Game/A.:B"), TEXT("/Game//A.A"), TEXT("/Game/A.None")})
	{
		EXPECT_EQ(FindOrCreatePlaceholder(UReflectedThing::StaticClass(), Path), nullptr) << TCHAR_TO_UTF8(Path);
	}
}

TEST_F(FPlaceholders, TypedReferenceMakesAnUnknownClassAChildOfItsOwn)
{
	UObject* Unknown = FindOrCreatePlaceholder(FTopLevelAssetPath(TEXT("/Script/MissingModule"), TEXT("Widget")), TEXT("/Game/Typed/W.W"));
	UObject* const Sibling =
		FindOrCreatePlaceholder(FTopLevelAssetPath(TEXT("/Script/MissingModule"), TEXT("Widget")), TEXT("/Game/Typed/W.Other"));
	const TStrongObjectPtr<UObject> Keep(Sibling);
	const TWeakObjectPtr<UObject> Weak = Unknown;
	ASSERT_FALSE(Unknown->IsA<UReflectedPart>());
	UReflectedThing* const Holder = MakeThing();
	const FObjectProperty* const Part = FindFProperty<FObjectProperty>(UReflectedThing::StaticClass(), TEXT("Part"));
	TArray<uint8> Bytes;
	FDuplicateDataWriter Writer(Bytes);
	Writer << Unknown;
	FDuplicateDataReader Reader(Bytes, 0, [](UObject* Object)
		{ return Object; });
	Part->SerializeItem(Reader, Part->ContainerPtrToValuePtr<void>(Holder));
	ASSERT_NE(Holder->Part, nullptr);
	EXPECT_EQ(Holder->Part->GetPathName(), TEXT("/Game/Typed/W.W"));
	EXPECT_EQ(Holder->Part->GetClass()->GetPathName(), TEXT("/Script/MissingModule.Widget"));
	EXPECT_EQ(Holder->Part->Strength, 3) << "it is not of the C++ type that the reference promises";
	EXPECT_EQ(Weak.Get(), Holder->Part.Get());
	EXPECT_TRUE(IsPlaceholder(Holder->Part));
	EXPECT_TRUE(Sibling->IsA<UReflectedPart>());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

TEST_F(FPlaceholders, TypedReferenceRefusesWhatIsKnownToBeSomethingElse)
{
	UReflectedThing* const Holder = MakeThing();
	const FObjectProperty* const Part = FindFProperty<FObjectProperty>(UReflectedThing::StaticClass(), TEXT("Part"));
	UObject* Wrong = MakeThing();
	TArray<uint8> Bytes;
	FDuplicateDataWriter Writer(Bytes);
	Writer << Wrong;
	FDuplicateDataReader Reader(Bytes, 0, [](UObject* Object)
		{ return Object; });
	Part->SerializeItem(Reader, Part->ContainerPtrToValuePtr<void>(Holder));
	EXPECT_EQ(Holder->Part, nullptr);
	// A stand-in class that took one parent does not take another.
	UObject* const Taken =
		FindOrCreatePlaceholder(FTopLevelAssetPath(TEXT("/Script/MissingModule"), TEXT("Taken")), TEXT("/Game/Typed/T.T"));
	const TStrongObjectPtr<UObject> Keep(Taken);
	EXPECT_EQ(FitPlaceholder(Taken, UReflectedThing::StaticClass()), Taken);
	EXPECT_EQ(FitPlaceholder(Taken, UReflectedPart::StaticClass()), nullptr);
	EXPECT_EQ(static_cast<UReflectedThing*>(Taken)->Number, 7);
}

TEST_F(FPlaceholders, StandInThatTurnsOutToBeAClassCanBeAskedAsOne)
{
	const FTopLevelAssetPath MetaClass(TEXT("/Script/MissingModule"), TEXT("WidgetGeneratedClass"));
	UObject* const Unknown = FindOrCreatePlaceholder(MetaClass, TEXT("/Game/Typed/Panel.Panel_C"));
	const TStrongObjectPtr<UObject> Keep(Unknown);
	UClass* const Class = Cast<UClass>(FitPlaceholder(Unknown, UClass::StaticClass()));
	ASSERT_NE(Class, nullptr);
	EXPECT_EQ(Class, Unknown);
	EXPECT_TRUE(Class->IsChildOf<UObject>());
	EXPECT_NE(Class->GetDefaultObject(), nullptr);
	EXPECT_EQ(Class->GetPathName(), TEXT("/Game/Typed/Panel.Panel_C"));
	EXPECT_EQ(Class->GetClass()->GetPathName(), MetaClass.ToString());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(IsPlaceholder(Class));
}

#include "ObjectTestSupport.h"

#include "Templates/Casts.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/StrongObjectPtr.h"

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
	EXPECT_EQ(FindOrCreatePlaceholder(static_cast<UClass*>(nullptr), TEXT("/Script/MissingModule.Default__NavGrid")), Class->GetDefaultObject());
	EXPECT_EQ(FindOrCreatePlaceholderClass(FTopLevelAssetPath(TEXT("/Script/MissingModule"), TEXT("NavGrid")), UReflectedThing::StaticClass()), Class);
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
	for (const TCHAR* const Path : {TEXT(""), TEXT("NoSlash.A"), TEXT("/Game/A."), TEXT("/Game/A.:B"), TEXT("/Game//A.A"), TEXT("/Game/A.None")})
	{
		EXPECT_EQ(FindOrCreatePlaceholder(UReflectedThing::StaticClass(), Path), nullptr) << TCHAR_TO_UTF8(Path);
	}
}

#include "ObjectTestSupport.h"
#include "PropertyTestTypes.h"

#include "UObject/ObjectRedirector.h"
#include "UObject/SoftObjectPtr.h"
#include "UObject/UnrealType.h"

#include <string>

namespace
{
using FLookups = FObjectTest;

std::string ToStd(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

template <typename FieldType>
std::string NamesOf(const UStruct* Struct, EFieldIterationFlags Flags = EFieldIterationFlags::Default)
{
	FString Names;
	for (TFieldIterator<FieldType> It(Struct, Flags); It; ++It)
	{
		Names += (Names.IsEmpty() ? TEXT("") : TEXT(" ")) + It->GetName();
	}
	return ToStd(Names);
}
}

TEST_F(FLookups, FieldsComeInTheirOrderAndThoseOfSupersBehind)
{
	FPropertyDescription Old = Describe(EPropertyGenKind::Int, TEXT("Old"));
	Old.PropertyFlags = CPF_Deprecated;
	UClass* const Base = MakeTestClass(Package, TEXT("LookupBase_C"), {Describe(EPropertyGenKind::Int, TEXT("B")), Old});
	UClass* const Child = NewObject<UClass>(Package, TEXT("LookupChild_C"), RF_Public);
	Child->SetSuperStruct(Base);
	Child->AddCppProperty(new FStrProperty(Child, TEXT("C"), RF_Public));
	Child->Interfaces.Add(FImplementedInterface(UReflectedSpeaker::StaticClass(), 0, true));
	Child->StaticLink(true);
	EXPECT_EQ(NamesOf<FProperty>(Child), "C B Old");
	EXPECT_EQ(NamesOf<FProperty>(Child, EFieldIterationFlags::None), "C");
	EXPECT_EQ(NamesOf<FProperty>(Child, EFieldIterationFlags::IncludeSuper), "C B");
	EXPECT_EQ(NamesOf<FStrProperty>(Child), "C");
	EXPECT_EQ(NamesOf<FStrProperty>(Base), "");
	EXPECT_EQ(NamesOf<FProperty>(nullptr), "");
	const TArray<const UStruct*> Expected = {Child, UReflectedSpeaker::StaticClass(), Base, UObject::StaticClass()};
	EXPECT_EQ(GatherFieldIterationStructs(Child, EFieldIterationFlags::IncludeAll), Expected);
	EXPECT_EQ(NamesOf<UFunction>(UReflectedThing::StaticClass(), EFieldIterationFlags::None), "Add");
}

TEST_F(FLookups, AFieldBehindEmptyStructsIsFound)
{
	UClass* const Base = MakeTestClass(Package, TEXT("LookupDeep_C"), {Describe(EPropertyGenKind::Int, TEXT("Deep"))});
	UClass* Class = Base;
	for (int32 Level = 0; Level < 3; ++Level)
	{
		UClass* const Child = NewObject<UClass>(Package, *FString::Printf(TEXT("LookupLevel%d_C"), Level), RF_Public);
		Child->SetSuperStruct(Class);
		Child->StaticLink(true);
		Class = Child;
	}
	TFieldIterator<FProperty> It(Class);
	ASSERT_TRUE(It);
	EXPECT_EQ(It->GetFName(), FName(TEXT("Deep")));
	EXPECT_EQ(It.GetStruct(), Base);
	EXPECT_FALSE(++It);
}

TEST_F(FLookups, TheFirstOfSeveralNamesakesIsTheOldestOrTheNativeOne)
{
	UObject* const Outer = MakeThing(TEXT("LookupOuter"));
	UObject* const Oldest = MakeThing(TEXT("LookupNamesake"));
	UObject* const Native = MakeThing(TEXT("LookupNamesake"), Outer);
	Native->SetInternalFlags(EInternalObjectFlags::Native);
	EXPECT_EQ(FindFirstObject<UReflectedThing>(TEXT("lookupNAMESAKE")), Oldest);
	EXPECT_EQ(FindFirstObject<UReflectedThing>(TEXT("LookupNamesake"), EFindFirstObjectOptions::NativeFirst), Native);
	EXPECT_EQ(FindFirstObject<UReflectedPart>(TEXT("LookupNamesake")), nullptr);
	EXPECT_EQ(FindFirstObject<UObject>(*Native->GetPathName()), Native) << "a whole path names one object alone";
	EXPECT_EQ(FindFirstObject<UObject>(TEXT("")), nullptr);
	Native->ClearInternalFlags(EInternalObjectFlags::Native);
}

TEST_F(FLookups, ARedirectorStandsForWhereItsObjectWent)
{
	UObject* const Moved = MakeThing(TEXT("LookupMoved"));
	UObjectRedirector* const Redirector = NewObject<UObjectRedirector>(Package, TEXT("LookupGone"));
	Redirector->DestinationObject = Moved;
	EXPECT_EQ(FindObject<UReflectedThing>(Package, TEXT("LookupGone")), Moved);
	EXPECT_EQ(FindObject<UObjectRedirector>(Package, TEXT("LookupGone")), Redirector);
	EXPECT_EQ(FindObject<UReflectedPart>(Package, TEXT("LookupGone")), nullptr);
}

TEST_F(FLookups, SoftReferencesFollowTheirPathToWhateverIsThere)
{
	const TSoftObjectPtr<UReflectedThing> Soft{FSoftObjectPath(Package->GetName() + TEXT(".Late"))};
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_EQ(Soft.Get(), nullptr);
	EXPECT_EQ(Soft.LoadSynchronous(), nullptr) << "there is nothing to load";
	UReflectedThing* const Late = MakeThing(TEXT("Late"));
	EXPECT_EQ(Soft.Get(), Late);
	EXPECT_FALSE(Soft.IsPending());
	MakeThing(TEXT("Late"));
	EXPECT_NE(Soft.Get(), nullptr) << "a successor of the same path is as good";
	const TSoftObjectPtr<UReflectedPart> OfAnotherClass{FSoftObjectPath(Late)};
	EXPECT_EQ(OfAnotherClass.Get(), nullptr);
	EXPECT_TRUE(TSoftObjectPtr<UObject>().IsNull());
}

TEST_F(FLookups, LoadingFindsWhatIsInMemoryAndRefusesAnotherClass)
{
	UObject* const Thing = MakeThing(TEXT("LookupLoaded"));
	const FString Path = Thing->GetPathName();
	EXPECT_EQ(LoadObject<UReflectedThing>(nullptr, *Path), Thing);
	EXPECT_EQ(LoadObject<UObject>(Package, TEXT("LookupLoaded")), Thing);
	EXPECT_EQ(StaticLoadObject(UObject::StaticClass(), nullptr, *(TEXT("ReflectedThing'") + Path + TEXT("'"))), Thing);
	EXPECT_EQ(LoadObject<UReflectedPart>(nullptr, *Path, nullptr, LOAD_Quiet), nullptr);
	EXPECT_EQ(LoadObject<UObject>(nullptr, TEXT("/Game/LookupNowhere.X"), nullptr, LOAD_Quiet), nullptr);
	EXPECT_EQ(LoadClass<UObject>(nullptr, TEXT("/Script/CoreUObject.Package")), UPackage::StaticClass());
	EXPECT_EQ(LoadClass<UReflectedThing>(nullptr, TEXT("/Script/CoreUObject.Package")), nullptr);
}

#include "ObjectTestSupport.h"

#include "Templates/Casts.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"
#include "UObject/UnrealType.h"

using FObjects = FObjectTest;

TEST_F(FObjects, PathHasAColonBelowTheAssetOnly)
{
	UReflectedThing* const Asset = MakeThing(TEXT("Asset"));
	UReflectedThing* const Inner = MakeThing(TEXT("Inner"), Asset);
	UReflectedThing* const Deep = MakeThing(TEXT("Deep"), Inner);
	EXPECT_EQ(Asset->GetPathName(), Package->GetName() + TEXT(".Asset"));
	EXPECT_EQ(Deep->GetPathName(), Package->GetName() + TEXT(".Asset:Inner.Deep"));
	EXPECT_EQ(Deep->GetPathName(Asset), TEXT("Inner.Deep"));
	EXPECT_EQ(Deep->GetFullName(), TEXT("ReflectedThing ") + Deep->GetPathName());
	EXPECT_EQ(StaticFindObject(nullptr, nullptr, *Deep->GetPathName()), Deep);
	EXPECT_EQ(StaticFindObject(nullptr, nullptr, *(TEXT("/Script/X.ReflectedThing'\"") + Deep->GetPathName() + TEXT("\"'"))), Deep);
	EXPECT_EQ(Deep->GetOutermost(), Package);
	EXPECT_EQ(Deep->GetTypedOuter<UReflectedThing>(), Inner);
}

TEST_F(FObjects, NamesOfUnnamedObjectsCountUpAndStayFree)
{
	const UObject* const First = MakeThing();
	const UObject* const Second = MakeThing();
	EXPECT_EQ(First->GetName(), TEXT("ReflectedThing_0"));
	EXPECT_EQ(Second->GetName(), TEXT("ReflectedThing_1"));
	MakeThing(TEXT("ReflectedThing_2"));
	EXPECT_EQ(MakeThing()->GetName(), TEXT("ReflectedThing_3"));
}

TEST_F(FObjects, FindIgnoresCaseAndChecksTheClass)
{
	UObject* const Thing = MakeThing(TEXT("Door"));
	EXPECT_EQ(FindObject<UReflectedThing>(Package, TEXT("dOOR")), Thing);
	EXPECT_EQ(FindObject<UReflectedPart>(Package, TEXT("Door")), nullptr);
	EXPECT_EQ(FindObject<UReflectedThing>(Package, TEXT("Window")), nullptr);
}

TEST_F(FObjects, RenameMovesTheObjectAndRefusesATakenName)
{
	UReflectedThing* const Thing = MakeThing(TEXT("A"));
	UReflectedThing* const Other = MakeThing(TEXT("B"));
	EXPECT_FALSE(Thing->Rename(TEXT("B"), nullptr, REN_Test));
	EXPECT_TRUE(Thing->Rename(TEXT("C"), Other));
	EXPECT_EQ(FindObject<UObject>(Package, TEXT("A")), nullptr);
	EXPECT_EQ(FindObject<UObject>(Other, TEXT("C")), Thing);
	EXPECT_FALSE(Other->Rename(nullptr, Thing));
}

TEST_F(FObjects, SameNameAgainReplacesTheObject)
{
	UReflectedThing* const First = MakeThing(TEXT("A"));
	First->Number = 1;
	const TWeakObjectPtr<UReflectedThing> Weak = First;
	const UReflectedThing* const Second = MakeThing(TEXT("A"));
	EXPECT_EQ(Second->Number, 7);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FObjects, DefaultObjectCarriesTheClassName)
{
	const UObject* const Defaults = UReflectedThing::StaticClass()->GetDefaultObject();
	EXPECT_EQ(Defaults->GetPathName(), TEXT("/Script/ReflectedTestTypes.Default__ReflectedThing"));
	EXPECT_TRUE(Defaults->HasAllFlags(static_cast<EObjectFlags>(RF_ClassDefaultObject | RF_ArchetypeObject)));
	EXPECT_EQ(GetDefault<UReflectedDerivedThing>()->Number, 8);
	EXPECT_EQ(GetDefault<UReflectedDerivedThing>()->GetArchetype(), Defaults);
}

TEST_F(FObjects, DefaultSubobjectsBelongToTheirInstance)
{
	const UReflectedThing* const Thing = MakeThing();
	ASSERT_NE(Thing->Part, nullptr);
	EXPECT_EQ(Thing->Part->GetOuter(), Thing);
	EXPECT_TRUE(Thing->Part->IsDefaultSubobject());
	EXPECT_NE(Thing->Part, GetDefault<UReflectedThing>()->Part);
	EXPECT_EQ(Thing->Part->GetArchetype(), GetDefault<UReflectedThing>()->Part);
	const UReflectedThing* const Derived = NewObject<UReflectedDerivedThing>(Package);
	EXPECT_TRUE(Derived->Part->IsA<UReflectedStrongPart>());
	EXPECT_EQ(Derived->Part->Strength, 9);
}

TEST_F(FObjects, TemplateGivesValuesAndItsPartsAreCopied)
{
	UReflectedThing* const Template = MakeThing();
	Template->Number = 42;
	Template->Part->Strength = 5;
	Template->Single = Template->Part;
	const UReflectedThing* const Copy = NewObject<UReflectedThing>(Package, TEXT("Copy"), RF_NoFlags, Template);
	EXPECT_EQ(Copy->Number, 42);
	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
	EXPECT_EQ(Copy->Part->Strength, 5);
	EXPECT_EQ(Copy->Single, Copy->Part);
}

TEST_F(FObjects, DuplicatePointsAtItsOwnParts)
{
	UReflectedThing* const Source = MakeThing(TEXT("Source"));
	UReflectedThing* const Child = MakeThing(TEXT("Child"), Source);
	UReflectedThing* const Outside = MakeThing(TEXT("Outside"));
	Child->Number = 11;
	Source->List = {Child, Outside};
	Source->ByName.Add(TEXT("Self"), Source);
	Source->Part->Strength = 6;
	UReflectedThing* const Copy = DuplicateObject(Source, Package, TEXT("Copy"));
	ASSERT_NE(Copy, nullptr);
	UReflectedThing* const ChildCopy = FindObject<UReflectedThing>(Copy, TEXT("Child"));
	ASSERT_NE(ChildCopy, nullptr);
	EXPECT_EQ(ChildCopy->Number, 11);
	ASSERT_EQ(Copy->List.Num(), 2);
	EXPECT_EQ(Copy->List[0], ChildCopy);
	EXPECT_EQ(Copy->List[1], Outside);
	EXPECT_EQ(Copy->ByName.FindRef(TEXT("Self")), Copy);
	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
	EXPECT_EQ(Copy->Part->Strength, 6);
}

TEST_F(FObjects, RunTimeClassInheritsDefaultsAndHasMembersOfItsOwn)
{
	UClass* const Class = NewObject<UClass>(Package, TEXT("Made_C"), RF_Public);
	Class->SetSuperStruct(UReflectedThing::StaticClass());
	Class->ClassFlags |= CLASS_CompiledFromBlueprint;
	Class->Bind();
	FProperty* const Label = new FStrProperty(Class, TEXT("Label"), RF_Public);
	Class->AddCppProperty(Label);
	Class->StaticLink(true);
	ASSERT_GE(Label->GetOffset_ForInternal(), static_cast<int32>(sizeof(UReflectedThing)));

	UReflectedThing* const Defaults = static_cast<UReflectedThing*>(Class->GetDefaultObject());
	EXPECT_EQ(Defaults->GetName(), TEXT("Default__Made_C"));
	Defaults->Number = 70;
	Defaults->Part->Strength = 30;
	*Label->ContainerPtrToValuePtr<FString>(Defaults) = TEXT("from the class");
	UReflectedThing* const Instance = NewObject<UReflectedThing>(Package, Class);
	EXPECT_EQ(Instance->Number, 70);
	EXPECT_EQ(Instance->Part->GetOuter(), Instance);
	EXPECT_EQ(Instance->Part->Strength, 30);
	EXPECT_EQ(*Label->ContainerPtrToValuePtr<FString>(Instance), TEXT("from the class"));
}

TEST_F(FObjects, InterfaceCastFindsTheCppBase)
{
	UObject* const Thing = MakeThing();
	IReflectedSpeaker* const Speaker = Cast<IReflectedSpeaker>(Thing);
	ASSERT_NE(Speaker, nullptr);
	EXPECT_EQ(Speaker->Speak(), 7);
	EXPECT_EQ(Cast<UReflectedThing>(Speaker), Thing);
	EXPECT_TRUE(Thing->GetClass()->ImplementsInterface(UReflectedSpeaker::StaticClass()));
	EXPECT_EQ(Cast<IReflectedSpeaker>(static_cast<UObject*>(Package)), nullptr);
}

TEST_F(FObjects, FunctionsAndEnumsAreReflected)
{
	const UFunction* const Add = UReflectedDerivedThing::StaticClass()->FindFunctionByName(TEXT("Add"));
	ASSERT_NE(Add, nullptr);
	EXPECT_EQ(Add->NumParms, 3);
	ASSERT_NE(Add->GetReturnProperty(), nullptr);
	EXPECT_EQ(Add->GetReturnProperty()->GetOffset_ForUFunction(), Add->ReturnValueOffset);
	const UEnum* const Mood = StaticEnum<EReflectedMood>();
	EXPECT_EQ(Mood->GetNameByValue(1), FName(TEXT("EReflectedMood::Angry")));
	EXPECT_EQ(Mood->GetValueByNameString(TEXT("Angry")), 1);
	EXPECT_EQ(Mood->GetDisplayNameTextByIndex(1).ToString(), TEXT("Very Angry"));
	EXPECT_TRUE(Mood->ContainsExistingMax());
	EXPECT_EQ(Mood->NumEnums(), 3);
}

TEST_F(FObjects, ListsByClassAndOuterKeepTheOrderOfMaking)
{
	UReflectedThing* const Outer = MakeThing(TEXT("Outer"));
	TArray<UObject*> Made;
	for (int32 Index = 0; Index < 5; ++Index)
	{
		Made.Add(NewObject<UReflectedPart>(Outer));
	}
	Made[2]->Rename(nullptr, Package);
	TArray<UObject*> Found;
	GetObjectsWithOuter(Outer, Found, false);
	EXPECT_EQ(Found, (TArray<UObject*>{Outer->Part, Made[0], Made[1], Made[3], Made[4]}));
	int32 NumIterated = 0;
	for (const UReflectedPart* const Part : TObjectRange<UReflectedPart>())
	{
		NumIterated += Made.Contains(const_cast<UReflectedPart*>(Part));
	}
	EXPECT_EQ(NumIterated, 5);
	TArray<UClass*> Derived;
	GetDerivedClasses(UReflectedPart::StaticClass(), Derived);
	EXPECT_EQ(Derived, TArray<UClass*>{UReflectedStrongPart::StaticClass()});
}

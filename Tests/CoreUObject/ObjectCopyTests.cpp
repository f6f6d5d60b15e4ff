#include "ObjectTestSupport.h"

#include "UObject/ScriptInterface.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/UnrealType.h"

using FObjectCopies = FObjectTest;

TEST_F(FObjectCopies, EveryShapeOfReferenceInsideTheCopiedPartPointsAtTheCopy)
{
	UReflectedThing* const Source = MakeThing(TEXT("Source"));
	UReflectedThing* const Child = MakeThing(TEXT("Child"), Source);
	UReflectedThing* const Grandchild = MakeThing(TEXT("Grandchild"), Child);
	UReflectedThing* const Outside = MakeThing(TEXT("Outside"));
	Source->Single = Grandchild;
	Source->Links.AddDefaulted_GetRef().Target = Child;
	Source->Links.AddDefaulted_GetRef().Target = Outside;
	Source->Links[1].Weight = 5;
	Source->Weak = Child;
	Grandchild->Single = Source;
	Grandchild->Weak = Outside;
	UReflectedThing* const Copy = DuplicateObject(Source, Package, TEXT("Copy"));
	ASSERT_NE(Copy, nullptr);
	UReflectedThing* const ChildCopy = FindObject<UReflectedThing>(Copy, TEXT("Child"));
	ASSERT_NE(ChildCopy, nullptr);
	UReflectedThing* const GrandchildCopy = FindObject<UReflectedThing>(ChildCopy, TEXT("Grandchild"));
	ASSERT_NE(GrandchildCopy, nullptr);
	EXPECT_EQ(Copy->Single, GrandchildCopy);
	EXPECT_EQ(Copy->Links[0].Target, ChildCopy);
	EXPECT_EQ(Copy->Links[1].Target, Outside);
	EXPECT_EQ(Copy->Links[1].Weight, 5);
	EXPECT_EQ(Copy->Weak.Get(), ChildCopy);
	EXPECT_EQ(GrandchildCopy->Single, Copy);
	EXPECT_EQ(GrandchildCopy->Weak.Get(), Outside);
	EXPECT_EQ(Source->Single, Grandchild);
	EXPECT_EQ(Grandchild->Single, Source);
}

TEST_F(FObjectCopies, ValuesThatEqualTheClassDefaultAreCopiedOverAnInstanceOfAnotherDefault)
{
	UReflectedThing* const Source = MakeThing(TEXT("Source"));
	Source->Part->Strength = 0;
	Source->Number = 0;
	UReflectedThing* const Copy = DuplicateObject(Source, Package, TEXT("Copy"));
	EXPECT_EQ(Copy->Number, 0);
	EXPECT_EQ(Copy->Part->Strength, 0);
	EXPECT_EQ(Copy->Part->GetOuter(), Copy);
}

TEST_F(FObjectCopies, SeedsAreReferredToAndCopiesAreListed)
{
	UReflectedThing* const Source = MakeThing(TEXT("Source"));
	UReflectedThing* const Child = MakeThing(TEXT("Child"), Source);
	UReflectedThing* const Outside = MakeThing(TEXT("Outside"));
	UReflectedThing* const Stand = MakeThing(TEXT("Stand"));
	Source->List = {Child, Outside};
	FObjectDuplicationParameters Parameters = InitStaticDuplicateObjectParams(Source, Package, TEXT("Copy"));
	Parameters.DuplicationSeed.Add(Outside, Stand);
	TMap<UObject*, UObject*> Created;
	Parameters.CreatedObjects = &Created;
	const UReflectedThing* const Copy = static_cast<UReflectedThing*>(StaticDuplicateObjectEx(Parameters));
	ASSERT_NE(Copy, nullptr);
	EXPECT_EQ(Copy->List[1], Stand);
	EXPECT_EQ(Created.FindRef(Source), Copy);
	EXPECT_EQ(Created.FindRef(Child), Copy->List[0]);
	EXPECT_FALSE(Created.Contains(Outside));
}

TEST_F(FObjectCopies, NullSourceGivesNull)
{
	EXPECT_EQ(DuplicateObject<UReflectedThing>(static_cast<UReflectedThing*>(nullptr), Package), nullptr);
}

TEST_F(FObjectCopies, RenameAcrossPackagesTakesWhatIsBelowAndLeavesReferencesWhole)
{
	UPackage* const Other = CreatePackage(*(Package->GetName() + TEXT("Other")));
	UReflectedThing* const Thing = MakeThing(TEXT("Moved"));
	UReflectedThing* const Child = MakeThing(TEXT("Child"), Thing);
	UReflectedThing* const Referencer = MakeThing(TEXT("Referencer"));
	Referencer->Single = Child;
	const FSoftObjectPath OldPath(Child);
	Package->SetDirtyFlag(false);
	Other->SetDirtyFlag(false);
	ASSERT_TRUE(Thing->Rename(TEXT("Renamed"), Other));
	EXPECT_EQ(Child->GetPathName(), Other->GetName() + TEXT(".Renamed:Child"));
	EXPECT_EQ(Child->GetOutermost(), Other);
	EXPECT_EQ(Referencer->Single, Child);
	EXPECT_EQ(OldPath.ResolveObject(), nullptr);
	EXPECT_EQ(FSoftObjectPath(Child).ResolveObject(), Child);
	EXPECT_TRUE(Package->IsDirty());
	EXPECT_TRUE(Other->IsDirty());
	// The old name is free again.
	EXPECT_EQ(MakeThing(TEXT("Moved"))->GetPathName(), Package->GetName() + TEXT(".Moved"));
}

TEST_F(FObjectCopies, ATestOrQuietRenameDoesNotDirty)
{
	UReflectedThing* const Thing = MakeThing(TEXT("A"));
	Package->SetDirtyFlag(false);
	EXPECT_TRUE(Thing->Rename(TEXT("B"), nullptr, REN_Test));
	EXPECT_EQ(Thing->GetName(), TEXT("A"));
	EXPECT_TRUE(Thing->Rename(TEXT("B"), nullptr, REN_DoNotDirty));
	EXPECT_FALSE(Package->IsDirty());
	EXPECT_FALSE(Thing->Rename(TEXT("C"), Thing));
	EXPECT_EQ(Thing->GetName(), TEXT("B"));
}

TEST_F(FObjectCopies, InterfaceOfAClassThatHasItHoldsItsAddress)
{
	UReflectedThing* const Thing = MakeThing();
	TScriptInterface<IReflectedSpeaker> Speaker = Thing;
	ASSERT_TRUE(Speaker);
	EXPECT_EQ(Speaker->Speak(), 7);
	Speaker = Thing->Part.Get();
	EXPECT_FALSE(Speaker);
	EXPECT_EQ(Speaker.GetObject(), Thing->Part);
	Speaker = nullptr;
	EXPECT_EQ(Speaker.GetObject(), nullptr);
}

TEST_F(FObjectCopies, MetadataIsInheritedFromTheNearestSuperThatHasIt)
{
	UClass* const Base = UReflectedThing::StaticClass();
	UClass* const Derived = UReflectedDerivedThing::StaticClass();
	const FName Key(TEXT("TestKey"));
	Base->SetMetaData(Key, TEXT("base"));
	EXPECT_FALSE(Derived->HasMetaData(Key));
	ASSERT_NE(Derived->FindMetaDataHierarchical(Key), nullptr);
	EXPECT_EQ(*Derived->FindMetaDataHierarchical(Key), TEXT("base"));
	EXPECT_EQ(Derived->HasMetaDataHierarchical(Key), Base);
	Derived->SetMetaData(Key, TEXT("false"));
	EXPECT_EQ(*Derived->FindMetaDataHierarchical(Key), TEXT("false"));
	EXPECT_FALSE(Derived->GetBoolMetaDataHierarchical(Key));
	Derived->RemoveMetaData(Key);
	EXPECT_EQ(*Derived->FindMetaDataHierarchical(Key), TEXT("base"));
	Base->RemoveMetaData(Key);
	EXPECT_EQ(Derived->FindMetaDataHierarchical(Key), nullptr);
}

#include "ObjectTestSupport.h"

#include "UObject/GCObject.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/WeakObjectPtr.h"

using FGarbageCollection = FObjectTest;

TEST_F(FGarbageCollection, EveryShapeOfReflectedReferenceKeepsItsObject)
{
	UReflectedThing* const Root = MakeThing();
	Root->AddToRoot();
	TArray<TWeakObjectPtr<UObject>> Kept;
	const auto Make = [&]()
	{ return Kept.Add_GetRef(MakeThing()).Get(); };
	Root->Single = Make();
	Root->List.Add(Make());
	Root->ByName.Add(TEXT("Key"), Make());
	Root->Links.AddDefaulted_GetRef().Target = Make();
	const TWeakObjectPtr<UObject> Weak = MakeThing();
	Root->Weak = Weak.Get();
	const TWeakObjectPtr<UObject> Unreflected = MakeThing();
	Root->Unreflected = Unreflected.Get();

	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	for (const TWeakObjectPtr<UObject>& Object : Kept)
	{
		EXPECT_TRUE(Object.IsValid());
	}
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(Root->Weak.Get(), nullptr);
	EXPECT_FALSE(Unreflected.IsValid());
	Root->RemoveFromRoot();
}

TEST_F(FGarbageCollection, CyclesAreCollected)
{
	UReflectedThing* const First = MakeThing();
	UReflectedThing* const Second = MakeThing();
	First->Single = Second;
	Second->Single = First;
	const TWeakObjectPtr<UObject> Weak = First;
	const int32 NumBefore = UReflectedThing::NumDestroyed;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(Weak.IsValid());
	EXPECT_EQ(UReflectedThing::NumDestroyed, NumBefore + 2);
}

TEST_F(FGarbageCollection, InnerObjectKeepsItsOuterButNotTheReverse)
{
	UReflectedThing* const Outer = MakeThing();
	UReflectedThing* const Inner = MakeThing(nullptr, Outer);
	const TWeakObjectPtr<UObject> WeakOuter = Outer;
	const TWeakObjectPtr<UObject> WeakInner = Inner;
	{
		const TStrongObjectPtr<UReflectedThing> Strong(Inner);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_TRUE(WeakOuter.IsValid());
		EXPECT_TRUE(WeakInner.IsValid());
	}
	const TStrongObjectPtr<UReflectedThing> Strong(Outer);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(WeakOuter.IsValid());
	EXPECT_FALSE(WeakInner.IsValid());
}

TEST_F(FGarbageCollection, HoldersAndFlagsAreRoots)
{
	struct FHolder : public FGCObject
	{
		TObjectPtr<UObject> Held;
		void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Held); }
		FString GetReferencerName() const override { return TEXT("FHolder"); }
	};
	FHolder Holder;
	Holder.Held = MakeThing();
	const TWeakObjectPtr<UObject> Held = Holder.Held.Get();
	const TWeakObjectPtr<UObject> Standalone = NewObject<UReflectedThing>(Package, NAME_None, RF_Standalone);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Held.IsValid());
	EXPECT_TRUE(Standalone.IsValid());
	Standalone->ClearFlags(RF_Standalone);
}

TEST_F(FGarbageCollection, ReferencesToObjectsGivenUpAreCleared)
{
	UReflectedThing* const Root = MakeThing();
	const TStrongObjectPtr<UReflectedThing> Strong(Root);
	UReflectedThing* const Given = MakeThing();
	Root->Single = Given;
	Root->List.Add(Given);
	Given->MarkAsGarbage();
	EXPECT_FALSE(IsValid(Given));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Root->Single, nullptr);
	EXPECT_EQ(Root->List[0], nullptr);
}

TEST_F(FGarbageCollection, ReusedPlaceIsNotTheOldObject)
{
	const TWeakObjectPtr<UObject> Old = MakeThing();
	const int32 Index = static_cast<int32>(Old->GetUniqueID());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	for (int32 Count = 0; Count < 100; ++Count)
	{
		MakeThing();
	}
	EXPECT_NE(GUObjectArray.IndexToObject(Index)->Object, nullptr);
	EXPECT_EQ(Old.Get(), nullptr);
}

TEST_F(FGarbageCollection, RunTimeClassGoesAfterItsInstances)
{
	UClass* const Class = NewObject<UClass>(Package, TEXT("Made_C"), RF_Public);
	Class->SetSuperStruct(UReflectedThing::StaticClass());
	Class->Bind();
	Class->StaticLink(true);
	const TWeakObjectPtr<UClass> WeakClass = Class;
	{
		const TStrongObjectPtr<UObject> Instance(NewObject<UObject>(Package, Class));
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_TRUE(WeakClass.IsValid());
	}
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(WeakClass.IsValid());
}

TEST_F(FGarbageCollection, OfAHundredThousandObjectsJustThoseThatAreHeldStay)
{
	constexpr int32 NumObjects = 100000;
	UReflectedThing* const Root = MakeThing();
	const TStrongObjectPtr<UReflectedThing> Strong(Root);
	TArray<TWeakObjectPtr<UReflectedPart>> All;
	for (int32 Index = 0; Index < NumObjects; ++Index)
	{
		All.Add(NewObject<UReflectedPart>(Package));
		if (Index % 3 == 0)
		{
			Root->List.Add(All.Last().Get());
		}
	}
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	int32 NumWrong = 0;
	for (int32 Index = 0; Index < NumObjects; ++Index)
	{
		NumWrong += All[Index].IsValid() == (Index % 3 == 0) ? 0 : 1;
	}
	EXPECT_EQ(NumWrong, 0);
}

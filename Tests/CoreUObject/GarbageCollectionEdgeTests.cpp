#include "ObjectTestSupport.h"
#include "PropertyTestTypes.h"

#include "UObject/GCObject.h"
#include "UObject/PlaceholderObject.h"
#include "UObject/StrongObjectPtr.h"
#include "UObject/UObjectHash.h"
#include "UObject/UObjectIterator.h"
#include "UObject/WeakObjectPtr.h"

using FGarbageCollectionEdges = FObjectTest;

TEST_F(FGarbageCollectionEdges, LongChainsAndWideCyclesTakeNoStack)
{
	constexpr int32 Length = 50000;
	UReflectedThing* const First = MakeThing();
	UReflectedThing* Last = First;
	for (int32 Index = 1; Index < Length; ++Index)
	{
		UReflectedThing* const Next = MakeThing();
		Last->Single = Next;
		Next->List.Add(First);
		Last = Next;
	}
	Last->Single = First;
	const TWeakObjectPtr<UObject> Weak = Last;
	{
		const TStrongObjectPtr<UReflectedThing> Strong(First);
		CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
		EXPECT_TRUE(Weak.IsValid());
	}
	const int32 NumBefore = UReflectedThing::NumDestroyed;
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(UReflectedThing::NumDestroyed, NumBefore + Length);
	EXPECT_FALSE(Weak.IsValid());
}

TEST_F(FGarbageCollectionEdges, EveryObjectBeginsToDieBeforeAnyIsGone)
{
	TArray<UReflectedMortal*> Mortals;
	for (int32 Index = 0; Index < 3; ++Index)
	{
		Mortals.Add(NewObject<UReflectedMortal>(Package));
		Mortals.Last()->Watched = Index > 0 ? Mortals[Index - 1] : nullptr;
	}
	UReflectedMortal::Log.Reset();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(UReflectedMortal::Log, TEXT("BBBFFF"));
}

TEST_F(FGarbageCollectionEdges, AnObjectThatIsDyingCannotBeHeldAnyMore)
{
	UReflectedMortal* const Mortal = NewObject<UReflectedMortal>(Package);
	const TWeakObjectPtr<UObject> Weak = Mortal;
	TStrongObjectPtr<UObject> Strong;
	bool bSawWeak = true;
	UReflectedMortal::OnBeginDestroy = [&](UReflectedMortal* Dying)
	{
		Strong.Reset(Dying);
		Dying->AddToRoot();
		bSawWeak = Weak.IsValid();
	};
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	UReflectedMortal::OnBeginDestroy = nullptr;
	EXPECT_FALSE(bSawWeak);
	EXPECT_FALSE(Weak.IsValid());
	// The strong pointer is left over; that must not harm the next collection.
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	Strong.Reset();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
}

TEST_F(FGarbageCollectionEdges, HolderThatIsGoneHoldsNothing)
{
	struct FHolder : public FGCObject
	{
		TObjectPtr<UObject> Held;
		void AddReferencedObjects(FReferenceCollector& Collector) override { Collector.AddReferencedObject(Held); }
		FString GetReferencerName() const override { return TEXT("FHolder"); }
	};
	TUniquePtr<FHolder> Original = MakeUnique<FHolder>();
	Original->Held = MakeThing();
	const TWeakObjectPtr<UObject> Held = Original->Held.Get();
	// A copy is a holder of its own.
	TUniquePtr<FHolder> Copy = MakeUnique<FHolder>(*Original);
	Original.Reset();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_TRUE(Held.IsValid());
	// What was given up is taken from the holder.
	Held->MarkAsGarbage();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Copy->Held, nullptr);
	Copy->Held = MakeThing();
	const TWeakObjectPtr<UObject> Next = Copy->Held.Get();
	Copy.Reset();
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(Next.IsValid());
}

TEST_F(FGarbageCollectionEdges, WeakPointersOfEveryKindForgetACollectedObject)
{
	UReflectedThing* const Thing = MakeThing(TEXT("Gone"));
	const TWeakObjectPtr<UReflectedThing> Weak = Thing;
	const TSoftObjectPtr<UReflectedThing> Soft = Thing;
	const FSoftObjectPath Path(Thing);
	TSet<TWeakObjectPtr<UReflectedThing>> Set = {Weak};
	EXPECT_EQ(Soft.Get(), Thing);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_TRUE(Weak.IsStale());
	EXPECT_FALSE(Weak.IsExplicitlyNull());
	EXPECT_EQ(Soft.Get(), nullptr);
	EXPECT_TRUE(Soft.IsPending());
	EXPECT_TRUE(Set.Contains(Weak));
	// Another object of the name is found by path, but is not what the weak pointer meant.
	UReflectedThing* const Successor = MakeThing(TEXT("Gone"));
	EXPECT_EQ(Path.ResolveObject(), Successor);
	EXPECT_EQ(Soft.Get(), Successor);
	EXPECT_EQ(Weak.Get(), nullptr);
	EXPECT_NE(Weak, TWeakObjectPtr<UReflectedThing>(Successor));
}

TEST_F(FGarbageCollectionEdges, ReferencesInSetsOptionalsAndNestedStructsKeepTheirObjects)
{
	FPropertyDescription Object = Describe(EPropertyGenKind::Object, TEXT("Object"), UObject::StaticClass());
	UScriptStruct* const Inner = MakeTestStruct(Package, TEXT("Inner"), {Object});
	const FPropertyDescription InnerValue = Describe(EPropertyGenKind::Struct, TEXT("Inner"), Inner);
	FPropertyDescription Slots = Object;
	Slots.Name = TEXT("Slots");
	Slots.ArrayDim = 3;
	UScriptStruct* const Outer = MakeTestStruct(Package, TEXT("Outer"),
		{DescribeContainer(EPropertyGenKind::Set, Object, TEXT("Set")),
			DescribeContainer(EPropertyGenKind::Optional, InnerValue, TEXT("Optional")),
			DescribeMap(Describe(EPropertyGenKind::Name), InnerValue, TEXT("Map")), Slots});
	UClass* const Class = MakeTestClass(Package, TEXT("Keeper_C"),
		{DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Struct, TEXT("Outers"), Outer), TEXT("Outers"))});
	const TStrongObjectPtr<UObject> Instance(NewObject<UObject>(Package, Class));
	TArray<TWeakObjectPtr<UObject>> Kept;
	FString Text = TEXT("((Set=(%s),Optional=((Object=%s)),Map=((\"k\", (Object=%s))),Slots[2]=%s))");
	for (const TCHAR* const Name : {TEXT("InSet"), TEXT("InOptional"), TEXT("InMap"), TEXT("InSlots")})
	{
		UObject* const Thing = MakeThing(Name);
		Kept.Add(Thing);
		int32 At = INDEX_NONE;
		ASSERT_TRUE(Text.FindChar(TEXT('%'), At));
		Text = Text.Left(At) + FObjectPropertyBase::GetExportPath(Thing) + Text.RightChop(At + 2);
	}
	const FProperty* const Outers = FindFProperty<FProperty>(Class, TEXT("Outers"));
	ASSERT_NE(Outers->ImportText_InContainer(*Text, Instance.Get(), nullptr, PPF_None), nullptr);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	for (const TWeakObjectPtr<UObject>& Weak : Kept)
	{
		EXPECT_TRUE(Weak.IsValid());
	}
	Outers->ClearValue(Outers->ContainerPtrToValuePtr<void>(Instance.Get()));
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	for (const TWeakObjectPtr<UObject>& Weak : Kept)
	{
		EXPECT_FALSE(Weak.IsValid());
	}
}

TEST_F(FGarbageCollectionEdges, IteratorsAndListsSkipWhatWasCollectedAndWhatWasGivenUp)
{
	UReflectedDerivedThing* const Alive = NewObject<UReflectedDerivedThing>(Package);
	const TStrongObjectPtr<UObject> Keep(Alive);
	NewObject<UReflectedDerivedThing>(Package);
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	UReflectedDerivedThing* const Given = NewObject<UReflectedDerivedThing>(Package);
	Given->MarkAsGarbage();
	TArray<UObject*> Iterated;
	for (TObjectIterator<UReflectedDerivedThing> It; It; ++It)
	{
		Iterated.Add(*It);
	}
	EXPECT_EQ(Iterated, TArray<UObject*>({Alive}));
	TArray<UObject*> Listed;
	GetObjectsOfClass(UReflectedDerivedThing::StaticClass(), Listed, true, RF_ClassDefaultObject, EInternalObjectFlags::Garbage);
	EXPECT_EQ(Listed, TArray<UObject*>({Alive}));
	int32 NumInner = 0;
	ForEachObjectWithOuter(Alive, [&NumInner](UObject*)
		{ ++NumInner; });
	EXPECT_EQ(NumInner, 1);
}

TEST_F(FGarbageCollectionEdges, StandInsThatNobodyRefersToAreCollectedAndMadeAgain)
{
	const FString Path = TEXT("/Game/Unheld/C.C");
	const TWeakObjectPtr<UObject> First = UE::CoreUObject::FindOrCreatePlaceholder(UReflectedPart::StaticClass(), Path);
	ASSERT_TRUE(First.IsValid());
	CollectGarbage(GARBAGE_COLLECTION_KEEPFLAGS);
	EXPECT_FALSE(First.IsValid());
	UObject* const Second = UE::CoreUObject::FindOrCreatePlaceholder(UReflectedPart::StaticClass(), Path);
	EXPECT_TRUE(UE::CoreUObject::IsPlaceholder(Second));
	EXPECT_NE(First, TWeakObjectPtr<UObject>(Second));
}

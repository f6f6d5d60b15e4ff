#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/Map.h"
#include "Containers/Queue.h"
#include "Containers/Set.h"
#include "Containers/SortedMap.h"
#include "Containers/UnrealString.h"
#include "Misc/Optional.h"
#include "Misc/TVariant.h"
#include "Templates/UniquePtr.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <set>
#include <vector>

namespace
{
/** Counts how many of its kind live, and knows whether it was destructed twice. */
struct FCounted
{
	static inline int32 NumAlive = 0;

	explicit FCounted(int32 InValue = 0)
		: Value(new int32(InValue))
	{
		++NumAlive;
	}
	FCounted(const FCounted& Other)
		: Value(new int32(*Other.Value))
	{
		++NumAlive;
	}
	FCounted(FCounted&& Other)
		: Value(Other.Value)
	{
		Other.Value = new int32(-1);
		++NumAlive;
	}
	FCounted& operator=(const FCounted& Other)
	{
		*Value = *Other.Value;
		return *this;
	}
	~FCounted()
	{
		delete Value;
		--NumAlive;
	}
	bool operator==(const FCounted& Other) const { return *Value == *Other.Value; }
	friend uint32 GetTypeHash(const FCounted& Counted) { return static_cast<uint32>(*Counted.Value % 3); }

	int32* Value;
};

template <typename ContainerType>
std::vector<int32> ToVector(const ContainerType& Container)
{
	std::vector<int32> Result;
	for (const int32 Value : Container)
	{
		Result.push_back(Value);
	}
	return Result;
}

using FInts = std::vector<int32>;
}

TEST(Array, AddingAnOwnElementSurvivesGrowth)
{
	TArray<FCounted> Array;
	Array.Emplace(7);
	for (int32 Count = 0; Count < 100; ++Count)
	{
		Array.Add(Array[0]);
		Array.Insert(Array.Last(), 0);
	}
	Array.Append(Array.GetData(), Array.Num());
	EXPECT_EQ(Array.Num(), 402);
	EXPECT_TRUE(Array.ContainsByPredicate([](const FCounted& Element)
		{ return *Element.Value == 7; }));
	EXPECT_FALSE(Array.ContainsByPredicate([](const FCounted& Element)
		{ return *Element.Value != 7; }));
}

TEST(Array, EveryElementIsDestructedOnce)
{
	FCounted::NumAlive = 0;
	{
		TArray<FCounted> Array;
		for (int32 Value = 0; Value < 50; ++Value)
		{
			Array.Emplace(Value);
		}
		Array.RemoveAll([](const FCounted& Element)
			{ return *Element.Value % 3 == 0; });
		Array.RemoveAtSwap(1, 4);
		Array.SetNum(10);
		Array.Insert(FCounted(99), 5);
		TArray<FCounted> Moved = MoveTemp(Array);
		TArray<FCounted, TInlineAllocator<4>> Inline(Moved);
		Inline.SetNum(2);
		Inline.Shrink();
		TArray<FCounted, TInlineAllocator<4>> MovedInline = MoveTemp(Inline);
		EXPECT_EQ(*MovedInline[1].Value, *Moved[1].Value);
		EXPECT_TRUE(Array.IsEmpty());
		EXPECT_TRUE(Inline.IsEmpty());
		EXPECT_EQ(FCounted::NumAlive, 11 + 2);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Array, RemovingKeepsOrderAndSwappingFillsFromTheEnd)
{
	TArray<int32> Array = {0, 1, 2, 3, 4, 5, 6, 7};
	Array.RemoveAt(1, 2);
	EXPECT_EQ(ToVector(Array), (FInts{0, 3, 4, 5, 6, 7}));
	Array.RemoveAtSwap(0);
	EXPECT_EQ(ToVector(Array), (FInts{7, 3, 4, 5, 6}));
	Array.RemoveAtSwap(3, 2);
	EXPECT_EQ(ToVector(Array), (FInts{7, 3, 4}));
	EXPECT_EQ(Array.Remove(Array[1]), 1);
	EXPECT_EQ(ToVector(Array), (FInts{7, 4}));
}

TEST(Array, IteratorRemovesCurrentAndMeetsEveryOther)
{
	TArray<int32> Array = {1, 2, 2, 3, 4, 4};
	for (auto It = Array.CreateIterator(); It; ++It)
	{
		if (*It % 2 == 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(ToVector(Array), (FInts{1, 3}));
}

TEST(Array, PointersAreSortedByWhatTheyPointAt)
{
	int32 Values[] = {3, 1, 2};
	TArray<int32*> Array = {&Values[0], &Values[1], &Values[2]};
	Array.Sort();
	EXPECT_EQ(*Array[0], 1);
	Array.Sort([](const int32& A, const int32& B)
		{ return A > B; });
	EXPECT_EQ(*Array[0], 3);
}

TEST(Array, HeapGivesTheLeastFirst)
{
	TArray<int32> Array = {5, 3, 9, 1, 7};
	Array.Heapify();
	Array.HeapPush(4);
	Array.HeapRemoveAt(2);
	FInts Popped;
	while (!Array.IsEmpty())
	{
		int32 Item = 0;
		Array.HeapPop(Item);
		Popped.push_back(Item);
	}
	EXPECT_TRUE(std::is_sorted(Popped.begin(), Popped.end()));
	EXPECT_EQ(Popped.size(), 5u);
}

TEST(ArrayDeathTest, IndexOutOfRangeEndsTheProgram)
{
	TArray<int32> Array = {1};
	EXPECT_DEATH(Array[1] = 2, "out of bounds");
	EXPECT_DEATH(Array.RemoveAt(0, 2), "");
}

TEST(ArrayView, AssigningAPartOfAnArrayToItself)
{
	TArray<int32> Array = {1, 2, 3, 4};
	Array = MakeArrayView(Array).Mid(1, 2);
	EXPECT_EQ(ToVector(Array), (FInts{2, 3}));
	EXPECT_EQ(MakeArrayView(Array).Right(9).Num(), 2);
}

TEST(BitArray, AgreesWithABitByBitModel)
{
	std::mt19937 Random(5);
	TBitArray<> Bits;
	std::vector<bool> Model;
	for (int32 Step = 0; Step < 2000; ++Step)
	{
		const int32 Index = Model.empty() ? 0 : static_cast<int32>(Random() % Model.size());
		switch (Random() % 5)
		{
			case 0:
				Bits.Add(true, 3);
				Model.insert(Model.end(), 3, true);
				break;
			case 1:
				Bits.Add(false);
				Model.push_back(false);
				break;
			case 2:
				Bits.Insert(true, Index);
				Model.insert(Model.begin() + Index, true);
				break;
			case 3:
				if (!Model.empty())
				{
					Bits.RemoveAt(Index);
					Model.erase(Model.begin() + Index);
				}
				break;
			default:
				Bits.SetRange(Index, static_cast<int32>(Model.size()) - Index, Step % 2 == 0);
				std::fill(Model.begin() + Index, Model.end(), Step % 2 == 0);
		}
	}
	ASSERT_EQ(Bits.Num(), static_cast<int32>(Model.size()));
	FInts SetBits;
	for (TConstSetBitIterator<> It(Bits); It; ++It)
	{
		SetBits.push_back(*It);
	}
	FInts Expected;
	for (int32 Index = 0; Index < Bits.Num(); ++Index)
	{
		if (Model[Index])
		{
			Expected.push_back(Index);
		}
	}
	EXPECT_EQ(SetBits, Expected);
	EXPECT_EQ(Bits.CountSetBits(), static_cast<int32>(Expected.size()));
}

TEST(Set, KeepsInsertionOrderAndFillsTheYoungestHoleFirst)
{
	TSet<int32> Set;
	for (int32 Value = 0; Value < 20; ++Value)
	{
		Set.Add(Value * 1024);
	}
	FInts Expected;
	for (int32 Value = 0; Value < 20; ++Value)
	{
		Expected.push_back(Value * 1024);
	}
	EXPECT_EQ(ToVector(Set), Expected);

	Set.Remove(3 * 1024);
	Set.Remove(5 * 1024);
	Set.Add(-1);
	Set.Add(-2);
	Expected[5] = -1;
	Expected[3] = -2;
	EXPECT_EQ(ToVector(Set), Expected);

	Set.Remove(0);
	Set.CompactStable();
	Expected.erase(Expected.begin());
	EXPECT_EQ(ToVector(Set), Expected);
	EXPECT_TRUE(Set.Contains(-2));
	EXPECT_EQ(Set.FindId(-2).AsInteger(), 2);
}

TEST(Set, AddReplacesAndFindOrAddKeeps)
{
	TSet<FString> Set;
	Set.Add(TEXT("Door"));
	bool bIsAlreadyInSet = false;
	Set.FindOrAdd(TEXT("DOOR"), &bIsAlreadyInSet);
	EXPECT_TRUE(bIsAlreadyInSet);
	EXPECT_TRUE(Set.Find(TEXT("door"))->Equals(TEXT("Door"), ESearchCase::CaseSensitive));
	Set.Add(TEXT("DOOR"));
	EXPECT_EQ(Set.Num(), 1);
	EXPECT_TRUE(Set.Find(TEXT("door"))->Equals(TEXT("DOOR"), ESearchCase::CaseSensitive));
}

TEST(Set, RemovingByAReferenceToItsOwnElement)
{
	TSet<FString> Set = {TEXT("A"), TEXT("B")};
	EXPECT_EQ(Set.Remove(*Set.Find(TEXT("A"))), 1);
	EXPECT_FALSE(Set.Contains(TEXT("A")));
	EXPECT_TRUE(Set.Contains(TEXT("B")));
}

TEST(Set, AgreesWithAModelUnderRandomChanges)
{
	FCounted::NumAlive = 0;
	{
		std::mt19937 Random(11);
		TSet<FCounted> Set;
		std::set<int32> Model;
		for (int32 Step = 0; Step < 5000; ++Step)
		{
			const int32 Value = static_cast<int32>(Random() % 60);
			if (Random() % 3 != 0)
			{
				Set.Add(FCounted(Value));
				Model.insert(Value);
			}
			else
			{
				EXPECT_EQ(Set.Remove(FCounted(Value)), static_cast<int32>(Model.erase(Value)));
			}
			if (Step % 500 == 499)
			{
				Step % 1000 == 999 ? Set.Compact() : Set.Sort([](const FCounted& A, const FCounted& B)
														 { return *A.Value < *B.Value; });
				Set.Shrink();
			}
		}
		ASSERT_EQ(Set.Num(), static_cast<int32>(Model.size()));
		for (const int32 Value : Model)
		{
			EXPECT_TRUE(Set.Contains(FCounted(Value)));
		}
		TSet<FCounted> Copy(Set);
		TSet<FCounted> Moved(MoveTemp(Copy));
		EXPECT_TRUE(Copy.IsEmpty());
		EXPECT_TRUE(Moved.Includes(Set));
		EXPECT_EQ(Moved.Difference(Set).Num(), 0);
		EXPECT_EQ(FCounted::NumAlive, 2 * Set.Num());
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Map, IteratorRemovesCurrentAndMeetsEveryOther)
{
	TMap<int32, FString> Map;
	for (int32 Key = 0; Key < 100; ++Key)
	{
		Map.Add(Key, FString::Printf(TEXT("%d"), Key));
	}
	for (auto It = Map.CreateIterator(); It; ++It)
	{
		if (It.Key() % 3 != 0)
		{
			It.RemoveCurrent();
		}
	}
	EXPECT_EQ(Map.Num(), 34);
	int32 Expected = 0;
	for (const auto& [Key, Value] : Map)
	{
		EXPECT_EQ(Key, Expected);
		EXPECT_EQ(Value, FString::Printf(TEXT("%d"), Key));
		Expected += 3;
	}
	EXPECT_EQ(Map.Find(4), nullptr);
}

TEST(Map, AddingAnOwnValueSurvivesGrowth)
{
	TMap<int32, FString> Map;
	Map.Add(0, TEXT("a value that is longer than a pointer"));
	for (int32 Key = 1; Key < 200; ++Key)
	{
		Map.Add(Key, Map[Key - 1]);
	}
	EXPECT_EQ(Map[199], TEXT("a value that is longer than a pointer"));
	Map.Add(0, Map[0]);
	EXPECT_EQ(Map[0], Map[199]);
}

TEST(Map, RehashFindsKeysThatWereChangedInPlace)
{
	TMap<int32, int32> Map = {{1, 10}, {2, 20}, {3, 30}, {4, 40}, {5, 50}, {6, 60}};
	for (TPair<int32, int32>& Pair : Map)
	{
		Pair.Key += 1000;
	}
	Map.Rehash();
	EXPECT_EQ(Map.FindRef(1004), 40);
	EXPECT_EQ(Map.FindRef(4), 0);
}

TEST(Map, ValuesThatOnlyMove)
{
	TMap<FString, TUniquePtr<int32>> Map;
	Map.Add(TEXT("a"), MakeUnique<int32>(1));
	Map.FindOrAdd(TEXT("b")) = MakeUnique<int32>(2);
	TUniquePtr<int32> Taken;
	EXPECT_TRUE(Map.RemoveAndCopyValue(TEXT("A"), Taken));
	EXPECT_EQ(*Taken, 1);
	TMap<FString, TUniquePtr<int32>> Moved = MoveTemp(Map);
	EXPECT_EQ(*Moved[TEXT("b")], 2);
}

TEST(MultiMap, KeepsEveryValueOfAKey)
{
	TMultiMap<FName, int32> Map;
	Map.Add(TEXT("A"), 1);
	Map.Add(TEXT("B"), 2);
	Map.Add(TEXT("A"), 3);
	Map.Add(TEXT("A"), 3);
	TArray<int32> Values;
	Map.MultiFind(TEXT("A"), Values, true);
	EXPECT_EQ(ToVector(Values), (FInts{1, 3, 3}));
	EXPECT_EQ(Map.RemoveSingle(TEXT("A"), 3), 1);
	EXPECT_EQ(Map.Num(TEXT("A")), 2);
	EXPECT_EQ(Map.Remove(TEXT("A")), 2);
	EXPECT_EQ(Map.Num(), 1);
}

TEST(SortedMap, StaysInTheOrderOfItsKeys)
{
	TSortedMap<int32, int32> Map = {{3, 30}, {1, 10}, {2, 20}};
	Map.Add(1, 11);
	Map.Remove(2);
	TArray<int32> Keys;
	Map.GetKeys(Keys);
	EXPECT_EQ(ToVector(Keys), (FInts{1, 3}));
	EXPECT_EQ(Map[1], 11);
}

TEST(Optional, DestructsWhatItHeld)
{
	FCounted::NumAlive = 0;
	{
		TOptional<FCounted> Optional(FCounted(1));
		TOptional<FCounted> Other = Optional;
		Other = FCounted(2);
		Optional = MoveTemp(Other);
		Other.Reset();
		EXPECT_EQ(*Optional->Value, 2);
		EXPECT_EQ(FCounted::NumAlive, 1);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

TEST(Variant, VisitsTheValueThatItHolds)
{
	TVariant<int32, FString> Variant;
	Variant.Set<FString>(TEXT("text"));
	EXPECT_EQ(Visit(TOverloaded{[](int32)
						{ return 1; },
						[](const FString& Text)
						{ return Text.Len(); }},
				  Variant),
		4);
	EXPECT_EQ(Variant.TryGet<int32>(), nullptr);
	EXPECT_EQ((TVariant<int32, FString>::IndexOfType<FString>()), Variant.GetIndex());
}

TEST(Queue, GivesItemsInOrderAndDestructsTheRest)
{
	FCounted::NumAlive = 0;
	{
		TQueue<FCounted, EQueueMode::Mpsc> Queue;
		Queue.Enqueue(FCounted(1));
		Queue.Enqueue(FCounted(2));
		Queue.Enqueue(FCounted(3));
		FCounted Item;
		EXPECT_TRUE(Queue.Dequeue(Item));
		EXPECT_EQ(*Item.Value, 1);
		EXPECT_EQ(*Queue.Peek()->Value, 2);
	}
	EXPECT_EQ(FCounted::NumAlive, 0);
}

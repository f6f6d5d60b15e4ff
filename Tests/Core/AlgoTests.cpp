#include "Algo/Accumulate.h"
#include "Algo/AllOf.h"
#include "Algo/AnyOf.h"
#include "Algo/BinarySearch.h"
#include "Algo/Compare.h"
#include "Algo/Contains.h"
#include "Algo/Copy.h"
#include "Algo/Count.h"
#include "Algo/Find.h"
#include "Algo/ForEach.h"
#include "Algo/IndexOf.h"
#include "Algo/IsSorted.h"
#include "Algo/MaxElement.h"
#include "Algo/MinElement.h"
#include "Algo/NoneOf.h"
#include "Algo/RemoveIf.h"
#include "Algo/Reverse.h"
#include "Algo/Sort.h"
#include "Algo/StableSort.h"
#include "Algo/Transform.h"
#include "Algo/Unique.h"
#include "Containers/Array.h"
#include "Containers/ArrayView.h"
#include "Containers/Map.h"
#include "Containers/RingBuffer.h"
#include "Containers/UnrealString.h"
#include "Templates/Greater.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <memory>
#include <random>
#include <vector>

namespace
{
struct FItem
{
	int32 Key = 0;
	int32 Order = 0;

	int32 GetKey() const { return Key; }
};

TArray<int32> MakeRandom(std::mt19937& Random, int32 Largest)
{
	TArray<int32> Result;
	for (uint32 Count = Random() % 40; Count > 0; --Count)
	{
		Result.Add(static_cast<int32>(Random() % static_cast<uint32>(Largest)));
	}
	return Result;
}

std::vector<int32> ToVector(const TArray<int32>& Array)
{
	return std::vector<int32>(Array.begin(), Array.end());
}
}

TEST(Algo, SearchesInSortedRangesAgreeWithTheStandardLibrary)
{
	std::mt19937 Random(1);
	for (int32 Round = 0; Round < 500; ++Round)
	{
		TArray<int32> Array = MakeRandom(Random, 12);
		Algo::Sort(Array);
		ASSERT_TRUE(Algo::IsSorted(Array));
		const std::vector<int32> Model = ToVector(Array);
		for (int32 Value = -1; Value <= 12; ++Value)
		{
			const auto Lower = std::lower_bound(Model.begin(), Model.end(), Value);
			const auto Upper = std::upper_bound(Model.begin(), Model.end(), Value);
			ASSERT_EQ(Algo::LowerBound(Array, Value), Lower - Model.begin());
			ASSERT_EQ(Algo::UpperBound(Array, Value), Upper - Model.begin());
			ASSERT_EQ(Algo::BinarySearch(Array, Value), Lower == Upper ? INDEX_NONE : static_cast<int32>(Lower - Model.begin()));
		}
	}
}

TEST(Algo, SortedByAKeyInTheOtherDirectionIsSearchedTheSameWay)
{
	TArray<FItem> Items = {{1, 0}, {5, 1}, {3, 2}, {5, 3}};
	Algo::StableSortBy(Items, &FItem::Key, TGreater<>());
	EXPECT_TRUE(Algo::IsSortedBy(Items, &FItem::GetKey, TGreater<>()));
	EXPECT_FALSE(Algo::IsSortedBy(Items, &FItem::Key));
	EXPECT_EQ(Items[0].Order, 1);
	EXPECT_EQ(Items[1].Order, 3);
	EXPECT_EQ(Algo::BinarySearchBy(Items, 3, &FItem::Key, TGreater<>()), 2);
	EXPECT_EQ(Algo::BinarySearchBy(Items, 4, &FItem::Key, TGreater<>()), INDEX_NONE);
	EXPECT_EQ(Algo::UpperBoundBy(Items, 5, &FItem::Key, TGreater<>()), 2);
}

TEST(Algo, PointersAreSortedThemselvesUnlikeInAnArraysOwnSort)
{
	int32 Values[] = {3, 2, 1};
	TArray<int32*> Pointers = {&Values[2], &Values[0], &Values[1]};
	Algo::Sort(Pointers);
	EXPECT_EQ(Pointers[0], &Values[0]);
	Pointers.Sort();
	EXPECT_EQ(Pointers[0], &Values[2]);
}

TEST(Algo, FindsInEveryKindOfRange)
{
	TArray<FItem> Items = {{1, 0}, {2, 1}, {1, 2}};
	FItem* const First = Algo::FindBy(Items, 1, &FItem::Key);
	ASSERT_EQ(First, &Items[0]);
	First->Order = 7;
	EXPECT_EQ(Algo::FindLastBy(Items, 1, &FItem::Key), &Items[2]);
	EXPECT_EQ(Algo::IndexOfBy(Items, 2, &FItem::Key), 1);
	EXPECT_EQ(Algo::IndexOfByPredicate(Items, [](const FItem& Item)
				  { return Item.Order > 100; }),
		INDEX_NONE);
	const TMap<FString, int32> Map = {{TEXT("a"), 1}, {TEXT("b"), 2}};
	const TPair<FString, int32>* const Pair = Algo::FindBy(Map, 2, &TPair<FString, int32>::Value);
	ASSERT_NE(Pair, nullptr);
	EXPECT_TRUE(Pair->Key.Equals(TEXT("b")));
	const int32 Numbers[] = {4, 5, 6, 5};
	EXPECT_EQ(Algo::FindLast(Numbers, 5), &Numbers[3]);
	EXPECT_EQ(Algo::Find(MakeArrayView(Numbers), 7), nullptr);
	EXPECT_TRUE(Algo::Contains(Numbers, 6));
	EXPECT_FALSE(Algo::ContainsBy(Items, 3, &FItem::Key));
}

TEST(Algo, QuantifiersStopAtTheFirstAnswer)
{
	int32 NumCalls = 0;
	const auto IsOdd = [&NumCalls](int32 Value)
	{
		++NumCalls;
		return Value % 2 != 0;
	};
	const TArray<int32> Numbers = {1, 2, 3};
	EXPECT_FALSE(Algo::AllOf(Numbers, IsOdd));
	EXPECT_EQ(NumCalls, 2);
	EXPECT_TRUE(Algo::AnyOf(Numbers, IsOdd));
	EXPECT_EQ(NumCalls, 3);
	EXPECT_FALSE(Algo::NoneOf(Numbers, IsOdd));
	EXPECT_TRUE(Algo::AllOf(TArray<bool>()));
	EXPECT_FALSE(Algo::AnyOf(TArray<bool>{false}));
	EXPECT_TRUE(Algo::NoneOf(TArray<bool>()));
}

TEST(Algo, ChangesAgreeWithTheStandardLibrary)
{
	std::mt19937 Random(2);
	for (int32 Round = 0; Round < 500; ++Round)
	{
		TArray<int32> Array = MakeRandom(Random, 5);
		std::vector<int32> Model = ToVector(Array);
		Array.SetNum(Algo::Unique(Array));
		Model.erase(std::unique(Model.begin(), Model.end()), Model.end());
		ASSERT_EQ(ToVector(Array), Model);
		Algo::Reverse(Array);
		std::reverse(Model.begin(), Model.end());
		ASSERT_EQ(ToVector(Array), Model);
		const auto IsTwo = [](int32 Value)
		{ return Value == 2; };
		ASSERT_EQ(Algo::CountIf(Array, IsTwo), static_cast<SIZE_T>(std::count(Model.begin(), Model.end(), 2)));
		Array.SetNum(Algo::StableRemoveIf(Array, IsTwo));
		std::erase(Model, 2);
		ASSERT_EQ(ToVector(Array), Model);
		const int32* const Least = Algo::MinElement(Array);
		const int32* const Largest = Algo::MaxElement(Array);
		ASSERT_EQ(Least == nullptr, Model.empty());
		if (Least != nullptr)
		{
			ASSERT_EQ(Least - Array.GetData(), std::min_element(Model.begin(), Model.end()) - Model.begin());
			ASSERT_EQ(Largest - Array.GetData(), std::max_element(Model.begin(), Model.end()) - Model.begin());
		}
	}
}

TEST(Algo, TransformsAddToTheOutput)
{
	const TArray<FItem> Items = {{1, 0}, {2, 1}, {3, 2}};
	TArray<int32> Keys = {0};
	Algo::Transform(Items, Keys, &FItem::GetKey);
	EXPECT_TRUE((Keys == TArray<int32>{0, 1, 2, 3}));
	TSet<FString> Texts;
	Algo::TransformIf(
		Items, Texts, [](const FItem& Item)
		{ return Item.Key != 2; },
		[](const FItem& Item)
		{ return LexToString(Item.Key); });
	EXPECT_TRUE(Texts.Num() == 2 && Texts.Contains(TEXT("3")));
	TArray<int32> Odd;
	Algo::CopyIf(Keys, Odd, [](int32 Key)
		{ return Key % 2 != 0; });
	EXPECT_TRUE(Algo::Compare(Odd, TArray<int32>{1, 3}));
	EXPECT_FALSE(Algo::Compare(Odd, Keys));
	Algo::ForEachIf(
		Odd, [](int32 Value)
		{ return Value > 1; },
		[](int32& Value)
		{ Value *= 10; });
	EXPECT_EQ(Algo::Accumulate(Odd, 0), 31);
	EXPECT_EQ(Algo::TransformAccumulate(Items, &FItem::Key, 1, [](int32 A, int32 B)
				  { return A * B; }),
		6);
	EXPECT_TRUE(Algo::Accumulate(TArray<FString>{TEXT("a"), TEXT("b")}, FString(TEXT(">"))).Equals(TEXT(">ab")));
}

TEST(RingBuffer, AgreesWithADeque)
{
	std::mt19937 Random(3);
	for (int32 Round = 0; Round < 50; ++Round)
	{
		TRingBuffer<std::shared_ptr<int32>> Ring;
		std::deque<std::shared_ptr<int32>> Model;
		for (int32 Step = 0; Step < 300; ++Step)
		{
			const std::shared_ptr<int32> Item = std::make_shared<int32>(Step);
			switch (Random() % 8)
			{
				case 0:
				case 1:
				case 2:
					ASSERT_EQ(Ring.Add(Item), static_cast<int32>(Model.size()));
					Model.push_back(Item);
					break;
				case 3:
					Ring.AddFront(Item);
					Model.push_front(Item);
					break;
				case 4:
					if (!Model.empty())
					{
						ASSERT_EQ(Ring.PopFrontValue(), Model.front());
						Model.pop_front();
					}
					break;
				case 5:
					if (!Model.empty())
					{
						ASSERT_EQ(Ring.PopValue(), Model.back());
						Model.pop_back();
					}
					break;
				case 6:
					if (!Model.empty())
					{
						const int32 Index = static_cast<int32>(Random() % Model.size());
						Ring.RemoveAt(Index);
						Model.erase(Model.begin() + Index);
					}
					break;
				default:
					if (!Model.empty())
					{
						Ring.Add(Ring.First());
						Model.push_back(Model.front());
					}
					break;
			}
			ASSERT_EQ(Ring.Num(), static_cast<int32>(Model.size()));
		}
		const TRingBuffer<std::shared_ptr<int32>> Copy = Ring;
		ASSERT_TRUE(std::equal(Model.begin(), Model.end(), Copy.begin()));
		ASSERT_TRUE(Copy == Ring);
		std::vector<std::weak_ptr<int32>> Watched(Model.begin(), Model.end());
		Model.clear();
		const_cast<TRingBuffer<std::shared_ptr<int32>>&>(Copy).Empty();
		Ring.Reset();
		for (const std::weak_ptr<int32>& Item : Watched)
		{
			ASSERT_TRUE(Item.expired());
		}
	}
}

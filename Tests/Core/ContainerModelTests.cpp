#include "Containers/Array.h"
#include "Containers/BitArray.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/SortedMap.h"
#include "Containers/SparseArray.h"
#include "Containers/UnrealString.h"
#include "Templates/UniquePtr.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <random>
#include <set>
#include <vector>

namespace
{
/** Owns memory, so that a lost, doubled or forgotten element is a leak or a double free, and counts how many live. */
struct FOwned
{
	static inline int32 NumAlive = 0;

	FOwned()
		: FOwned(0)
	{
	}
	explicit FOwned(int32 InValue, int32 InOrder = 0)
		: Value(new int32(InValue))
		, Order(InOrder)
	{
		++NumAlive;
	}
	FOwned(FOwned&& Other)
		: Value(Other.Value)
		, Order(Other.Order)
	{
		Other.Value = nullptr;
		++NumAlive;
	}
	FOwned& operator=(FOwned&& Other)
	{
		std::swap(Value, Other.Value);
		Order = Other.Order;
		return *this;
	}
	~FOwned()
	{
		delete Value;
		--NumAlive;
	}
	bool operator==(const FOwned& Other) const { return *Value == *Other.Value; }
	bool operator<(const FOwned& Other) const { return *Value < *Other.Value; }
	/** Collides often. */
	friend uint32 GetTypeHash(const FOwned& Owned) { return static_cast<uint32>(*Owned.Value % 5); }

	int32* Value;
	int32 Order;
};

class FContainerModelTest : public testing::Test
{
protected:
	void SetUp() override { FOwned::NumAlive = 0; }
	void TearDown() override { EXPECT_EQ(FOwned::NumAlive, 0); }

	int32 Below(int32 Limit) { return static_cast<int32>(Random() % static_cast<uint32>(Limit)); }

	std::mt19937 Random{42};
};

template <typename ArrayType>
std::vector<int32> Values(const ArrayType& Array)
{
	std::vector<int32> Result;
	for (const FOwned& Element : Array)
	{
		Result.push_back(*Element.Value);
	}
	return Result;
}

/** Random changes of an array of elements that only move, against a vector of their numbers. */
template <typename ArrayType>
void RunArrayModel(std::mt19937& Random)
{
	ArrayType Array;
	std::vector<int32> Model;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Num = static_cast<int32>(Model.size());
		const int32 Index = static_cast<int32>(Random() % static_cast<uint32>(Num + 1));
		const int32 Count = std::min(static_cast<int32>(Random() % 4), Num - Index);
		const int32 Value = static_cast<int32>(Random() % 20);
		switch (Random() % 14)
		{
			case 0:
			case 1:
				Array.Add(FOwned(Value));
				Model.push_back(Value);
				break;
			case 2:
			case 3:
				Array.EmplaceAt(Index, Value);
				Model.insert(Model.begin() + Index, Value);
				break;
			case 4:
				Array.RemoveAt(Index, Count);
				Model.erase(Model.begin() + Index, Model.begin() + Index + Count);
				break;
			case 5:
				Array.RemoveAtSwap(Index, Count);
				for (int32 Moved = 0, ToMove = std::min(Count, Num - Index - Count); Moved < ToMove; ++Moved)
				{
					Model[static_cast<size_t>(Index + Moved)] = Model[static_cast<size_t>(Num - ToMove + Moved)];
				}
				Model.resize(static_cast<size_t>(Num - Count));
				break;
			case 6:
			{
				const auto IsValue = [Value](const FOwned& Element)
				{ return *Element.Value == Value; };
				ASSERT_EQ(Array.RemoveAll(IsValue), static_cast<int32>(std::erase(Model, Value)));
				break;
			}
			case 7:
				Array.Sort();
				std::sort(Model.begin(), Model.end());
				break;
			case 8:
				Array.SetNum(Index);
				Model.resize(static_cast<size_t>(Index));
				break;
			case 9:
			{
				ArrayType Moved = MoveTemp(Array);
				ASSERT_TRUE(Array.IsEmpty());
				Array = MoveTemp(Moved);
				break;
			}
			case 10:
				Array.Shrink();
				break;
			case 11:
				ASSERT_EQ(Array.RemoveSingle(FOwned(Value)), std::find(Model.begin(), Model.end(), Value) != Model.end() ? 1 : 0);
				if (const auto Found = std::find(Model.begin(), Model.end(), Value); Found != Model.end())
				{
					Model.erase(Found);
				}
				break;
			case 12:
				for (auto It = Array.CreateIterator(); It; ++It)
				{
					if (*It->Value == Value)
					{
						It.RemoveCurrent();
					}
				}
				std::erase(Model, Value);
				break;
			default:
				if (Num > 0)
				{
					Array.Swap(Index % Num, 0);
					std::swap(Model[static_cast<size_t>(Index % Num)], Model[0]);
				}
				break;
		}
		ASSERT_EQ(Values(Array), Model) << Step;
		ASSERT_EQ(FOwned::NumAlive, Array.Num()) << Step;
		const auto Found = std::find(Model.begin(), Model.end(), Value);
		ASSERT_EQ(
			Array.Find(FOwned(Value)), Found == Model.end() ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found - Model.begin()));
	}
}
}

TEST_F(FContainerModelTest, ArrayAgreesWithAVector)
{
	RunArrayModel<TArray<FOwned>>(Random);
}

TEST_F(FContainerModelTest, InlineArrayAgreesWithAVectorOnBothSidesOfItsBuffer)
{
	RunArrayModel<TArray<FOwned, TInlineAllocator<6>>>(Random);
}

TEST_F(FContainerModelTest, StableSortKeepsTheOrderOfEquals)
{
	for (const int32 Num : {0, 1, 2, 31, 32, 33, 1000})
	{
		TArray<FOwned> Array;
		for (int32 Order = 0; Order < Num; ++Order)
		{
			Array.Emplace(Below(7), Order);
		}
		Array.StableSort();
		for (int32 Index = 1; Index < Num; ++Index)
		{
			ASSERT_FALSE(Array[Index] < Array[Index - 1]);
			if (Array[Index] == Array[Index - 1])
			{
				ASSERT_LT(Array[Index - 1].Order, Array[Index].Order);
			}
		}
	}
}

TEST_F(FContainerModelTest, HeapStaysAHeapWhileItsInsideIsRemoved)
{
	TArray<int32> Heap;
	std::multiset<int32> Model;
	for (int32 Step = 0; Step < 5000; ++Step)
	{
		if (Heap.IsEmpty() || Below(5) < 3)
		{
			const int32 Value = Below(100);
			Heap.HeapPush(Value);
			Model.insert(Value);
		}
		else if (Below(2) == 0)
		{
			const int32 Index = Below(Heap.Num());
			Model.erase(Model.find(Heap[Index]));
			Heap.HeapRemoveAt(Index);
		}
		else
		{
			int32 Top = -1;
			Heap.HeapPop(Top);
			ASSERT_EQ(Top, *Model.begin());
			Model.erase(Model.begin());
		}
		ASSERT_EQ(Heap.Num(), static_cast<int32>(Model.size()));
		if (!Model.empty())
		{
			ASSERT_EQ(Heap.HeapTop(), *Model.begin()) << Step;
		}
	}
}

TEST_F(FContainerModelTest, SparseArrayKeepsIndicesAndFillsHoles)
{
	TSparseArray<FOwned> Array;
	std::map<int32, int32> Model;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Value = Below(1000);
		const int32 Index = Below(Array.GetMaxIndex() + 3);
		switch (Below(12))
		{
			case 0:
			case 1:
			case 2:
			{
				const bool bHadHoles = !Array.IsCompact();
				const int32 OldMax = Array.GetMaxIndex();
				const int32 Added = Array.Add(FOwned(Value));
				ASSERT_FALSE(Model.contains(Added));
				ASSERT_EQ(Added < OldMax, bHadHoles);
				Model[Added] = Value;
				break;
			}
			case 3:
				if (!Array.IsValidIndex(Index))
				{
					::new (Array.InsertUninitialized(Index).Pointer) FOwned(Value);
					Model[Index] = Value;
				}
				break;
			case 4:
			case 5:
			case 6:
			case 7:
				if (Array.IsValidIndex(Index))
				{
					Array.RemoveAt(Index);
					Model.erase(Index);
				}
				break;
			case 8:
				Array.Shrink();
				ASSERT_EQ(Array.GetMaxIndex(), Model.empty() ? 0 : Model.rbegin()->first + 1);
				break;
			case 9:
				if (Step % 10 == 0)
				{
					Array.CompactStable();
					std::map<int32, int32> Compacted;
					for (const auto& [Old, Kept] : Model)
					{
						Compacted[static_cast<int32>(Compacted.size())] = Kept;
					}
					Model = std::move(Compacted);
				}
				break;
			case 10:
			{
				TSparseArray<FOwned> Moved(MoveTemp(Array));
				ASSERT_EQ(Array.GetMaxIndex(), 0);
				Array = MoveTemp(Moved);
				break;
			}
			default:
				Array.SortFreeList();
				break;
		}
		ASSERT_EQ(Array.Num(), static_cast<int32>(Model.size())) << Step;
		auto Expected = Model.begin();
		for (auto It = Array.CreateConstIterator(); It; ++It, ++Expected)
		{
			ASSERT_EQ(It.GetIndex(), Expected->first) << Step;
			ASSERT_EQ(*It->Value, Expected->second) << Step;
		}
		ASSERT_EQ(FOwned::NumAlive, Array.Num());
	}
}

TEST_F(FContainerModelTest, CopiedSparseArrayHasTheSameHoles)
{
	TSparseArray<FString> Array;
	for (int32 Index = 0; Index < 40; ++Index)
	{
		Array.Add(FString::FromInt(Index));
	}
	for (int32 Count = 0; Count < 15; ++Count)
	{
		const int32 Index = Below(40);
		if (Array.IsValidIndex(Index))
		{
			Array.RemoveAt(Index);
		}
	}
	TSparseArray<FString> Copy = {TEXT("old"), TEXT("older")};
	Copy = Array;
	EXPECT_TRUE(Copy == Array);
	for (int32 Count = 0; Count < 20; ++Count)
	{
		EXPECT_EQ(Copy.Add(TEXT("new")), Array.Add(TEXT("new"))) << "additions take the same places in both";
	}
	EXPECT_TRUE(Copy == Array);
	Copy.Sort();
	EXPECT_TRUE(Copy.IsCompact());
	for (int32 Index = 1; Index < Copy.Num(); ++Index)
	{
		EXPECT_FALSE(Copy[Index] < Copy[Index - 1]);
	}
}

TEST_F(FContainerModelTest, MapAgreesWithAStandardMap)
{
	TMap<FOwned, TUniquePtr<FOwned>> Map;
	std::map<int32, int32> Model;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Key = Below(70);
		const int32 Value = Below(1000);
		switch (Below(10))
		{
			case 0:
			case 1:
				Map.Add(FOwned(Key), MakeUnique<FOwned>(Value));
				Model[Key] = Value;
				break;
			case 2:
				ASSERT_EQ(*Map.FindOrAdd(FOwned(Key), MakeUnique<FOwned>(Value))->Value, Model.try_emplace(Key, Value).first->second);
				break;
			case 3:
			case 4:
				ASSERT_EQ(Map.Remove(FOwned(Key)), static_cast<int32>(Model.erase(Key)));
				break;
			case 5:
			{
				TUniquePtr<FOwned> Taken;
				ASSERT_EQ(Map.RemoveAndCopyValue(FOwned(Key), Taken), Model.contains(Key));
				ASSERT_TRUE(!Model.contains(Key) || *Taken->Value == Model[Key]);
				Model.erase(Key);
				break;
			}
			case 6:
				for (auto It = Map.CreateIterator(); It; ++It)
				{
					if (*It.Key().Value % 7 == Key % 7)
					{
						It.RemoveCurrent();
					}
				}
				std::erase_if(Model, [Key](const auto& Pair)
					{ return Pair.first % 7 == Key % 7; });
				break;
			case 7:
				Map.KeySort([](const FOwned& A, const FOwned& B)
					{ return A < B; });
				ASSERT_TRUE(std::equal(Map.begin(), Map.end(), Model.begin(), [](const auto& Pair, const auto& Expected)
					{ return *Pair.Key.Value == Expected.first && *Pair.Value->Value == Expected.second; }));
				break;
			case 8:
				Step % 2 == 0 ? Map.Compact() : Map.Shrink();
				break;
			default:
			{
				TMap<FOwned, TUniquePtr<FOwned>> Moved(MoveTemp(Map));
				ASSERT_TRUE(Map.IsEmpty() && Map.Find(FOwned(Key)) == nullptr);
				Map = MoveTemp(Moved);
				break;
			}
		}
		ASSERT_EQ(Map.Num(), static_cast<int32>(Model.size())) << Step;
		ASSERT_EQ(Map.Contains(FOwned(Key)), Model.contains(Key)) << Step;
		ASSERT_EQ(FOwned::NumAlive, 2 * Map.Num()) << Step;
	}
	for (const auto& [Key, Value] : Model)
	{
		ASSERT_EQ(*(*Map.Find(FOwned(Key)))->Value, Value);
	}
}

TEST_F(FContainerModelTest, MultiMapAgreesWithAStandardMultiMap)
{
	TMultiMap<int32, int32> Map;
	std::multimap<int32, int32> Model;
	for (int32 Step = 0; Step < 10000; ++Step)
	{
		const int32 Key = Below(12);
		const int32 Value = Below(6);
		const auto [Begin, End] = Model.equal_range(Key);
		const int32 NumPairs = static_cast<int32>(std::count_if(Begin, End, [Value](const auto& Pair)
			{ return Pair.second == Value; }));
		switch (Below(6))
		{
			case 0:
			case 1:
				Map.Add(Key, Value);
				Model.emplace(Key, Value);
				break;
			case 2:
				Map.AddUnique(Key, Value);
				if (NumPairs == 0)
				{
					Model.emplace(Key, Value);
				}
				break;
			case 3:
				ASSERT_EQ(Map.Remove(Key, Value), NumPairs);
				std::erase_if(Model, [Key, Value](const auto& Pair)
					{ return Pair.first == Key && Pair.second == Value; });
				break;
			case 4:
				ASSERT_EQ(Map.RemoveSingle(Key, Value), NumPairs > 0 ? 1 : 0);
				if (const auto Found = std::find(Begin, End, std::pair<const int32, int32>(Key, Value)); Found != End)
				{
					Model.erase(Found);
				}
				break;
			default:
				if (Below(10) == 0)
				{
					ASSERT_EQ(Map.Remove(Key), static_cast<int32>(Model.erase(Key)));
				}
				break;
		}
		TArray<int32> Found;
		Map.MultiFind(Key, Found);
		std::vector<int32> Expected;
		for (auto [It, Last] = Model.equal_range(Key); It != Last; ++It)
		{
			Expected.push_back(It->second);
		}
		std::sort(Expected.begin(), Expected.end());
		Found.Sort();
		ASSERT_TRUE(std::equal(Found.begin(), Found.end(), Expected.begin(), Expected.end())) << Step;
		ASSERT_EQ(Map.Num(), static_cast<int32>(Model.size()));
	}
}

TEST_F(FContainerModelTest, SortedMapAgreesWithAStandardMap)
{
	TSortedMap<int32, FString> Map;
	std::map<int32, FString> Model;
	for (int32 Step = 0; Step < 5000; ++Step)
	{
		const int32 Key = Below(40) - 20;
		if (Below(3) != 0)
		{
			const FString Value = FString::FromInt(Step);
			Map.Add(Key, Value);
			Model[Key] = Value;
		}
		else
		{
			ASSERT_EQ(Map.Remove(Key), static_cast<int32>(Model.erase(Key)));
		}
		ASSERT_TRUE(std::equal(Map.begin(), Map.end(), Model.begin(), Model.end(), [](const auto& Pair, const auto& Expected)
			{ return Pair.Key == Expected.first && Pair.Value == Expected.second; }))
			<< Step;
	}
}

TEST_F(FContainerModelTest, BitArrayRunsAgreeWithAVector)
{
	TBitArray<> Bits;
	std::vector<bool> Model;
	for (int32 Step = 0; Step < 5000; ++Step)
	{
		const int32 Num = static_cast<int32>(Model.size());
		const int32 Index = Below(Num + 1);
		const int32 Count = std::min(Below(70), Num - Index);
		const bool bValue = Below(2) == 0;
		switch (Below(6))
		{
			case 0:
				Bits.Add(bValue, Count + 1);
				Model.insert(Model.end(), static_cast<size_t>(Count + 1), bValue);
				break;
			case 1:
				Bits.RemoveAt(Index, Count);
				Model.erase(Model.begin() + Index, Model.begin() + Index + Count);
				break;
			case 2:
			{
				Bits.RemoveAtSwap(Index, Count);
				const int32 NumMoved = std::min(Count, Num - Index - Count);
				std::copy(Model.end() - NumMoved, Model.end(), Model.begin() + Index);
				Model.resize(static_cast<size_t>(Num - Count));
				break;
			}
			case 3:
				Bits.SetRange(Index, Count, bValue);
				std::fill(Model.begin() + Index, Model.begin() + Index + Count, bValue);
				break;
			case 4:
				Bits.SetNum(Index + Below(40), bValue);
				Model.resize(static_cast<size_t>(Bits.Num()), bValue);
				break;
			default:
			{
				const TBitArray<> Copy = Bits;
				ASSERT_TRUE(Copy == Bits);
				ASSERT_EQ(GetTypeHash(Copy), GetTypeHash(Bits));
				break;
			}
		}
		ASSERT_EQ(Bits.Num(), static_cast<int32>(Model.size()));
		const auto Found = std::find(Model.begin() + std::min(Index, Bits.Num()), Model.end(), bValue);
		ASSERT_EQ(Bits.FindFrom(bValue, std::min(Index, Bits.Num())),
			Found == Model.end() ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found - Model.begin()))
			<< Step;
		ASSERT_EQ(Bits.CountSetBits(), static_cast<int32>(std::count(Model.begin(), Model.end(), true))) << Step;
	}
}

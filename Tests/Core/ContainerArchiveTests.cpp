#include "Containers/BitArray.h"
#include "Containers/Map.h"
#include "Containers/Set.h"
#include "Containers/SortedMap.h"
#include "Containers/SparseArray.h"
#include "Containers/UnrealString.h"
#include "Math/NumericLimits.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

namespace
{
template <typename ContainerType>
void ExpectHostileBytesAreErrors(ContainerType Container)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Container;
	for (int32 Length = 0; Length < Bytes.Num(); ++Length)
	{
		const TArray<uint8> Cut(Bytes.GetData(), Length);
		FMemoryReader Reader(Cut);
		ContainerType Loaded;
		Reader << Loaded;
		EXPECT_TRUE(Reader.IsError()) << Length << " of " << Bytes.Num();
	}
	for (const int32 Count : {-1, MIN_int32, MAX_int32, 1000000})
	{
		TArray<uint8> Lying = Bytes;
		FMemory::Memcpy(Lying.GetData(), &Count, sizeof(Count));
		FMemoryReader Reader(Lying);
		ContainerType Loaded;
		Reader << Loaded;
		EXPECT_TRUE(Reader.IsError()) << Count;
		EXPECT_LE(Loaded.Num(), Bytes.Num()) << Count;
	}
	FMemoryReader Reader(Bytes);
	ContainerType Loaded;
	Reader << Loaded;
	EXPECT_FALSE(Reader.IsError());
	EXPECT_EQ(Loaded.Num(), Container.Num());
}
}

TEST(ContainerArchives, CutsAndLyingCountsAreErrorsForEveryContainer)
{
	ExpectHostileBytesAreErrors(TArray<FString>{TEXT("a"), TEXT("\u00E4")});
	ExpectHostileBytesAreErrors(TArray<uint8>{1, 2, 3});
	ExpectHostileBytesAreErrors(TArray<double>{1, 2});
	ExpectHostileBytesAreErrors(TSet<int32>{1, 2, 3});
	ExpectHostileBytesAreErrors(TMap<FString, TArray<int32>>{{TEXT("k"), {1, 2}}, {TEXT("l"), {}}});
	ExpectHostileBytesAreErrors(TMultiMap<int32, FString>{{1, TEXT("a")}, {1, TEXT("b")}});
	ExpectHostileBytesAreErrors(TSortedMap<int32, FString>{{2, TEXT("a")}, {1, TEXT("b")}});
	ExpectHostileBytesAreErrors(TSparseArray<FString>{TEXT("a"), TEXT("b")});
	ExpectHostileBytesAreErrors(TBitArray<>(true, 77));
}

TEST(ContainerArchives, DuplicatesAndDisorderInAFileAreSetRight)
{
	TArray<TPair<int32, int32>> Pairs = {{3, 1}, {1, 2}, {3, 3}, {2, 4}};
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Pairs;
	TSortedMap<int32, int32> Sorted;
	FMemoryReader SortedReader(Bytes);
	SortedReader << Sorted;
	EXPECT_EQ(Sorted.Num(), 3);
	EXPECT_TRUE(Sorted.Contains(1) && Sorted.Contains(2) && Sorted.Contains(3));
	TMap<int32, int32> Map;
	FMemoryReader MapReader(Bytes);
	MapReader << Map;
	EXPECT_EQ(Map.Num(), 3);
	EXPECT_EQ(Map.FindRef(3), 3) << "the last one counts";
}

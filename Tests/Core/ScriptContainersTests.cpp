#include "Containers/ScriptArray.h"
#include "Containers/ScriptMap.h"
#include "Containers/UnrealString.h"

#include <gtest/gtest.h>

namespace
{
uint32 HashString(const void* String)
{
	return GetTypeHash(*static_cast<const FString*>(String));
}

bool StringsAreEqual(const void* A, const void* B)
{
	return *static_cast<const FString*>(A) == *static_cast<const FString*>(B);
}

uint32 HashByte(const void* Byte)
{
	return GetTypeHash(*static_cast<const uint8*>(Byte));
}

bool BytesAreEqual(const void* A, const void* B)
{
	return *static_cast<const uint8*>(A) == *static_cast<const uint8*>(B);
}

template <typename KeyType, typename ValueType>
FScriptMapLayout LayoutOf()
{
	return FScriptMap::GetScriptLayout(sizeof(KeyType), alignof(KeyType), sizeof(ValueType), alignof(ValueType));
}
}

TEST(ScriptArray, ChangesTheTypedArray)
{
	TArray<int64> Array = {1, 2, 3};
	FScriptArray& Script = reinterpret_cast<FScriptArray&>(Array);
	Script.InsertZeroed(1, 10, sizeof(int64), alignof(int64));
	Script.Remove(0, 1, sizeof(int64), alignof(int64));
	EXPECT_EQ(Array.Num(), 12);
	EXPECT_EQ(Array[9], 0);
	EXPECT_EQ(Array[10], 2);
	Array.Add(4);
	EXPECT_EQ(Script.Num(), 13);
}

TEST(ScriptSet, FindsAndAddsInTheTypedSet)
{
	TSet<FString> Set = {TEXT("A"), TEXT("B"), TEXT("C")};
	FScriptSet& Script = reinterpret_cast<FScriptSet&>(Set);
	const FScriptSetLayout Layout = FScriptSet::GetScriptLayout(sizeof(FString), alignof(FString));

	const FString Key = TEXT("b");
	EXPECT_EQ(Script.FindIndex(&Key, Layout, HashString, StringsAreEqual), 1);
	for (int32 Number = 0; Number < 50; ++Number)
	{
		const FString Added = FString::Printf(TEXT("Added %d"), Number);
		Script.Add(
			&Added, Layout, HashString, StringsAreEqual, [&Added](void* Element)
			{ new (Element) FString(Added); },
			[](void* Element)
			{ static_cast<FString*>(Element)->~FString(); });
	}
	EXPECT_EQ(Set.Num(), 53);
	EXPECT_TRUE(Set.Contains(TEXT("added 49")));
	EXPECT_TRUE(Set.Contains(TEXT("C")));

	static_cast<FString*>(Script.GetData(1, Layout))->~FString();
	Script.RemoveAt(1, Layout);
	EXPECT_FALSE(Set.Contains(TEXT("B")));
	EXPECT_EQ(Set.Add(TEXT("D")).AsInteger(), 1);
}

TEST(ScriptSet, UninitializedElementsAreFoundAfterRehash)
{
	TSet<FString> Set;
	FScriptSet& Script = reinterpret_cast<FScriptSet&>(Set);
	const FScriptSetLayout Layout = FScriptSet::GetScriptLayout(sizeof(FString), alignof(FString));
	for (int32 Number = 0; Number < 9; ++Number)
	{
		new (Script.GetData(Script.AddUninitialized(Layout), Layout)) FString(FString::Printf(TEXT("%d"), Number));
	}
	Script.Rehash(Layout, HashString);
	for (int32 Number = 0; Number < 9; ++Number)
	{
		EXPECT_TRUE(Set.Contains(FString::Printf(TEXT("%d"), Number)));
	}
	EXPECT_EQ(Set.Remove(TEXT("8")), 1);
}

TEST(ScriptMap, LaysPairsWhereTheTypedMapHasThem)
{
	// A narrow key before a wide value leaves a gap, and a wide key before a narrow value leaves one behind.
	TMap<uint8, int64> Narrow;
	for (int32 Key = 0; Key < 40; ++Key)
	{
		Narrow.Add(static_cast<uint8>(Key), Key * 1000ll);
	}
	const FScriptMapLayout NarrowLayout = LayoutOf<uint8, int64>();
	FScriptMap& NarrowScript = reinterpret_cast<FScriptMap&>(Narrow);
	for (uint8 Key = 0; Key < 40; ++Key)
	{
		EXPECT_EQ(*reinterpret_cast<int64*>(NarrowScript.FindValue(&Key, NarrowLayout, HashByte, BytesAreEqual)), Key * 1000ll);
	}

	TMap<FString, uint8> Wide = {{TEXT("A"), 1}, {TEXT("B"), 2}};
	const FScriptMapLayout WideLayout = LayoutOf<FString, uint8>();
	FScriptMap& WideScript = reinterpret_cast<FScriptMap&>(Wide);
	const FString NewKey = TEXT("C");
	uint8* const NewValue = static_cast<uint8*>(WideScript.FindOrAdd(&NewKey, WideLayout, HashString, StringsAreEqual,
		[&NewKey](void* Key, void* Value)
		{
			new (Key) FString(NewKey);
			*static_cast<uint8*>(Value) = 0;
		}));
	*NewValue = 3;
	EXPECT_EQ(Wide.FindRef(TEXT("c")), 3);
	EXPECT_EQ(Wide.FindRef(TEXT("b")), 2);
}

#include "PropertyTestTypes.h"

#include <gtest/gtest.h>

namespace
{
FPropertyDescription Items()
{
	return DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Struct, TEXT("Items"), GetItemStruct()));
}

/** Long enough not to sit in any small buffer, so that a wrong copy or a missed destruction shows in a checked build. */
FString LongText(int32 Index)
{
	return FString::Printf(TEXT("element number %d with a text that needs memory of its own"), Index);
}

class FScriptStrings : public testing::Test
{
protected:
	FScriptStrings()
		: Value(DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Str)))
		, Helper(CastFieldChecked<FArrayProperty>(Value.Property.Get()), Value.Memory)
	{
	}

	FString& At(int32 Index) { return *reinterpret_cast<FString*>(Helper.GetRawPtr(Index)); }
	void Fill(int32 Count)
	{
		Helper.AddValues(Count);
		for (int32 Index = 0; Index < Count; ++Index)
		{
			At(Index) = LongText(Index);
		}
	}
	std::vector<int32> Numbers()
	{
		std::vector<int32> Result;
		for (int32 Index = 0; Index < Helper.Num(); ++Index)
		{
			Result.push_back(At(Index).IsEmpty() ? -1 : FCString::Atoi(*At(Index).RightChop(15)));
		}
		return Result;
	}

	FTestValue Value;
	FScriptArrayHelper Helper;
};
}

TEST_F(FScriptStrings, InsertedElementsAreDefaultsAndTheRestMoves)
{
	Fill(4);
	Helper.InsertValues(1, 2);
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, -1, -1, 1, 2, 3}));
	Helper.InsertValues(6);
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, -1, -1, 1, 2, 3, -1}));
	Helper.InsertValues(0, 0);
	EXPECT_EQ(Helper.Num(), 7);
}

TEST_F(FScriptStrings, RemovedElementsCloseTheGap)
{
	Fill(6);
	Helper.RemoveValues(1, 3);
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, 4, 5}));
	Helper.RemoveValues(0, 3);
	EXPECT_EQ(Helper.Num(), 0);
	EXPECT_EQ(Helper.GetRawPtr(0), nullptr);
}

TEST_F(FScriptStrings, SwapAndResizeKeepTheOtherElements)
{
	Fill(3);
	Helper.SwapValues(0, 2);
	Helper.SwapValues(1, 1);
	EXPECT_EQ(Numbers(), (std::vector<int32>{2, 1, 0}));
	Helper.Resize(5);
	EXPECT_EQ(Numbers(), (std::vector<int32>{2, 1, 0, -1, -1}));
	Helper.Resize(1);
	EXPECT_EQ(Numbers(), (std::vector<int32>{2}));
	EXPECT_FALSE(Helper.ExpandForIndex(0));
	EXPECT_TRUE(Helper.ExpandForIndex(3));
	EXPECT_EQ(Helper.Num(), 4);
	Helper.EmptyAndAddValues(2);
	EXPECT_EQ(Numbers(), (std::vector<int32>{-1, -1}));
}

TEST_F(FScriptStrings, MoveAssignTakesTheElementsAndLeavesNone)
{
	Fill(2);
	FTestValue Other(DescribeContainer(EPropertyGenKind::Array, Describe(EPropertyGenKind::Str)));
	ASSERT_TRUE(Other.Import(TEXT("(\"a\",\"b\",\"c\")")));
	Helper.MoveAssign(Other.Memory);
	EXPECT_EQ(Value.Export(), TEXT("(\"a\",\"b\",\"c\")"));
	EXPECT_EQ(Other.Export(), FString());
	Helper.MoveAssign(Value.Memory);
	EXPECT_EQ(Helper.Num(), 3);
}

TEST_F(FScriptStrings, AreTheNativeArray)
{
	TArray<FString>& Native = *static_cast<TArray<FString>*>(Value.Memory);
	Native.Add(LongText(1));
	Helper.InsertValues(0);
	At(0) = LongText(0);
	Native.Add(LongText(2));
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, 1, 2}));
	EXPECT_EQ(Native.Num(), 3);
	EXPECT_EQ(Native[0], LongText(0));
}

TEST_F(FScriptStrings, CopyOntoItselfKeepsTheElements)
{
	Fill(3);
	Value.Property->CopySingleValue(Value.Memory, Value.Memory);
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, 1, 2}));
	Value.Property->CopyCompleteValue(Value.Memory, Value.Memory);
	EXPECT_EQ(Numbers(), (std::vector<int32>{0, 1, 2}));
}

TEST(ScriptContainers, CopyOntoItselfKeepsSetsAndMapsToo)
{
	FTestValue Set(DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Str)));
	ASSERT_TRUE(Set.Import(TEXT("(\"a\",\"b\")")));
	Set.Property->CopyCompleteValue(Set.Memory, Set.Memory);
	EXPECT_EQ(Set.Export(), TEXT("(\"a\",\"b\")"));
	FTestValue Map(DescribeMap(Describe(EPropertyGenKind::Str), Describe(EPropertyGenKind::Str)));
	ASSERT_TRUE(Map.Import(TEXT("((\"a\",\"b\"))")));
	Map.Property->CopyCompleteValue(Map.Memory, Map.Memory);
	EXPECT_EQ(Map.Export(), TEXT("((\"a\", \"b\"))"));
}

TEST(ScriptContainers, ElementsOfAnArrayOfStructsHaveTheStructsDefaults)
{
	FTestValue Value(Items());
	FScriptArrayHelper Helper(CastFieldChecked<FArrayProperty>(Value.Property.Get()), Value.Memory);
	Helper.AddValues(100);
	Helper.RemoveValues(0, 99);
	EXPECT_EQ(Value.Export(), TEXT("(())"));
}

namespace
{
class FScriptMapTest : public testing::Test
{
protected:
	FScriptMapTest()
		: Value(DescribeMap(Describe(EPropertyGenKind::Str), Describe(EPropertyGenKind::Str)))
		, Helper(CastFieldChecked<FMapProperty>(Value.Property.Get()), Value.Memory)
	{
	}

	void Add(int32 Key, int32 Number)
	{
		const FString KeyText = LongText(Key);
		const FString ValueText = LongText(Number);
		Helper.AddPair(&KeyText, &ValueText);
	}
	FString Find(int32 Key) const
	{
		const FString KeyText = LongText(Key);
		const uint8* const Found = Helper.FindValueFromHash(&KeyText);
		return Found ? *reinterpret_cast<const FString*>(Found) : FString();
	}

	FTestValue Value;
	FScriptMapHelper Helper;
};
}

TEST_F(FScriptMapTest, FindsEveryKeyAfterManyAdditionsAndRemovals)
{
	for (int32 Index = 0; Index < 500; ++Index)
	{
		Add(Index, Index * 2);
	}
	for (int32 Index = 0; Index < 500; Index += 3)
	{
		const FString Key = LongText(Index);
		EXPECT_TRUE(Helper.RemovePair(&Key));
		EXPECT_FALSE(Helper.RemovePair(&Key));
	}
	for (int32 Index = 0; Index < 500; ++Index)
	{
		EXPECT_EQ(Find(Index), Index % 3 == 0 ? FString() : LongText(Index * 2)) << Index;
	}
	for (int32 Index = 0; Index < 500; Index += 3)
	{
		Add(Index, Index);
	}
	EXPECT_EQ(Helper.Num(), 500);
	EXPECT_EQ(Find(3), LongText(3));
}

TEST_F(FScriptMapTest, AddPairReplacesTheValueOfAKey)
{
	Add(1, 10);
	Add(1, 11);
	EXPECT_EQ(Helper.Num(), 1);
	EXPECT_EQ(Find(1), LongText(11));
}

TEST_F(FScriptMapTest, ADefaultPairIsFoundOnlyAfterRehash)
{
	Add(1, 10);
	const int32 Index = Helper.AddDefaultValue_Invalid_NeedsRehash();
	*reinterpret_cast<FString*>(Helper.GetKeyPtr(Index)) = LongText(2);
	*reinterpret_cast<FString*>(Helper.GetValuePtr(Index)) = LongText(20);
	Helper.Rehash();
	EXPECT_EQ(Find(2), LongText(20));
	EXPECT_EQ(Find(1), LongText(10));
}

TEST_F(FScriptMapTest, LogicalIndicesSkipHoles)
{
	for (int32 Index = 0; Index < 4; ++Index)
	{
		Add(Index, Index);
	}
	const FString Second = LongText(1);
	Helper.RemovePair(&Second);
	EXPECT_EQ(Helper.Num(), 3);
	EXPECT_EQ(Helper.GetMaxIndex(), 4);
	EXPECT_FALSE(Helper.IsValidIndex(1));
	EXPECT_EQ(Helper.FindInternalIndex(0), 0);
	EXPECT_EQ(Helper.FindInternalIndex(1), 2);
	EXPECT_EQ(Helper.FindInternalIndex(3), INDEX_NONE);
	EXPECT_EQ(Helper.FindInternalIndex(-1), INDEX_NONE);
	EXPECT_EQ(Helper.FindLogicalIndex(3), 2);
	EXPECT_EQ(Helper.FindLogicalIndex(1), INDEX_NONE);
}

TEST_F(FScriptMapTest, IsTheNativeMap)
{
	TMap<FString, FString>& Native = *static_cast<TMap<FString, FString>*>(Value.Memory);
	for (int32 Index = 0; Index < 40; ++Index)
	{
		Native.Add(LongText(Index), LongText(Index + 1));
	}
	for (int32 Index = 0; Index < 40; ++Index)
	{
		EXPECT_EQ(Find(Index), LongText(Index + 1));
	}
	Add(100, 5);
	EXPECT_EQ(Native.FindRef(LongText(100)), LongText(5));
	Native.Remove(LongText(7));
	EXPECT_EQ(Find(7), FString());
	Helper.Rehash();
	EXPECT_EQ(Native.FindRef(LongText(100)), LongText(5));
	Helper.EmptyValues();
	EXPECT_EQ(Native.Num(), 0);
	Native.Add(LongText(1), LongText(2));
	EXPECT_EQ(Find(1), LongText(2));
}

TEST(ScriptSet, HoldsAnEqualElementOnceAndFindsTheRestAfterRemoval)
{
	FTestValue Value(DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Str)));
	FScriptSetHelper Helper(CastFieldChecked<FSetProperty>(Value.Property.Get()), Value.Memory);
	for (int32 Index = 0; Index < 300; ++Index)
	{
		const FString Element = LongText(Index % 150);
		Helper.AddElement(&Element);
	}
	EXPECT_EQ(Helper.Num(), 150);
	for (int32 Index = 0; Index < 150; Index += 2)
	{
		const FString Element = LongText(Index);
		EXPECT_TRUE(Helper.RemoveElement(&Element));
	}
	const TSet<FString>& Native = *static_cast<const TSet<FString>*>(Value.Memory);
	for (int32 Index = 0; Index < 150; ++Index)
	{
		const FString Element = LongText(Index);
		EXPECT_EQ(Helper.FindElementIndex(&Element) != INDEX_NONE, Index % 2 == 1);
		EXPECT_EQ(Native.Contains(Element), Index % 2 == 1);
	}
	Helper.EmptyElements();
	EXPECT_EQ(Native.Num(), 0);
}

TEST(ScriptSet, StructElementsAreFoundByTheirMembers)
{
	UScriptStruct* const Key = MakeTestStruct(MakeTestPackage(TEXT("/Script/PropertyTests")), TEXT("SetKey"),
		{Describe(EPropertyGenKind::Str, TEXT("Name")), Describe(EPropertyGenKind::Int, TEXT("Count")),
			Describe(EPropertyGenKind::Bool, TEXT("bFlag"))});
	FTestValue Value(DescribeContainer(EPropertyGenKind::Set, Describe(EPropertyGenKind::Struct, TEXT("Key"), Key)));
	EXPECT_TRUE(CastFieldChecked<FSetProperty>(Value.Property.Get())->ElementProp->HasAnyPropertyFlags(CPF_HasGetValueTypeHash));
	ASSERT_TRUE(Value.Import(TEXT("((Name=\"a\",Count=1),(Name=\"a\",Count=2),(Count=1,Name=\"a\"),(Name=\"a\",Count=1,bFlag=True))")));
	EXPECT_EQ(FScriptSetHelper(CastFieldChecked<FSetProperty>(Value.Property.Get()), Value.Memory).Num(), 3);
}

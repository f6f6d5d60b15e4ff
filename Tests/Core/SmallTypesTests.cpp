#include "Containers/IndirectArray.h"
#include "Containers/StaticArray.h"
#include "CoreMinimal.h"
#include "HAL/ThreadSafeCounter.h"
#include "Misc/ScopeExit.h"
#include "Misc/ScopedSlowTask.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <type_traits>

namespace
{
struct FWatched
{
	explicit FWatched(int32& InNumAlive, int32 InValue = 0)
		: NumAlive(&InNumAlive)
		, Value(InValue)
	{
		++*NumAlive;
	}
	FWatched(const FWatched& Other)
		: NumAlive(Other.NumAlive)
		, Value(Other.Value)
	{
		++*NumAlive;
	}
	~FWatched() { --*NumAlive; }

	int32* NumAlive;
	int32 Value;
};

class FCounted final : public FRefCountBase
{
public:
	explicit FCounted(int32& InNumAlive)
		: NumAlive(InNumAlive)
	{
		++NumAlive;
	}
	virtual ~FCounted() override { --NumAlive; }

private:
	int32& NumAlive;
};
}

TEST(PimplPtr, CopiesTheObjectOnlyWhereItIsTold)
{
	static_assert(!std::is_copy_constructible_v<TPimplPtr<FWatched>>);
	static_assert(std::is_copy_constructible_v<TPimplPtr<FWatched, EPimplPtrMode::DeepCopy>>);
	int32 NumAlive = 0;
	{
		TPimplPtr<FWatched, EPimplPtrMode::DeepCopy> First = MakePimpl<FWatched, EPimplPtrMode::DeepCopy>(NumAlive, 1);
		TPimplPtr<FWatched, EPimplPtrMode::DeepCopy> Second = First;
		EXPECT_EQ(NumAlive, 2);
		Second->Value = 2;
		EXPECT_EQ(First->Value, 1);
		First = Second;
		EXPECT_EQ(First->Value, 2);
		EXPECT_NE(First.Get(), Second.Get());
		EXPECT_EQ(NumAlive, 2);
		Second = MoveTemp(First);
		EXPECT_FALSE(First.IsValid());
		const TPimplPtr<FWatched, EPimplPtrMode::DeepCopy> Empty = First;
		EXPECT_FALSE(Empty.IsValid());
		EXPECT_EQ(NumAlive, 1);
	}
	EXPECT_EQ(NumAlive, 0);
}

TEST(RefCountPtr, LastReferenceEndsTheObject)
{
	int32 NumAlive = 0;
	TRefCountPtr<FCounted> First(new FCounted(NumAlive));
	{
		const TRefCountPtr<FCounted> Second = First;
		EXPECT_EQ(First.GetRefCount(), 2u);
		const TRefCountPtr<FCounted>& Itself = First;
		First = Itself;
		EXPECT_EQ(First.GetRefCount(), 2u);
		First.SafeRelease();
		EXPECT_EQ(NumAlive, 1);
		First = Second;
	}
	EXPECT_EQ(NumAlive, 1);
	TRefCountPtr<FCounted> Moved = MoveTemp(First);
	EXPECT_FALSE(First.IsValid());
	Moved = nullptr;
	EXPECT_EQ(NumAlive, 0);
}

TEST(IndirectArray, ElementsStayWhereTheyAre)
{
	int32 NumAlive = 0;
	{
		TIndirectArray<FWatched> Array;
		Array.Add(new FWatched(NumAlive, 0));
		const FWatched* const First = &Array[0];
		for (int32 Index = 1; Index < 100; ++Index)
		{
			Array.Add(new FWatched(NumAlive, Index));
		}
		EXPECT_EQ(&Array[0], First);
		Array.RemoveAt(1);
		EXPECT_EQ(NumAlive, 99);
		int32 Sum = 0;
		for (const FWatched& Element : Array)
		{
			Sum += Element.Value;
		}
		EXPECT_EQ(Sum, 4949);
	}
	EXPECT_EQ(NumAlive, 0);
}

TEST(StaticArray, ComparesHashesAndSaves)
{
	TStaticArray<int32, 3> Array(1, 2, 3);
	EXPECT_TRUE((TStaticArray<int32, 3>() == TStaticArray<int32, 3>(0, 0, 0)));
	EXPECT_FALSE((Array == TStaticArray<int32, 3>(1, 2, 4)));
	EXPECT_NE(GetTypeHash(Array), GetTypeHash(TStaticArray<int32, 3>(3, 2, 1))) << "the order counts";
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Array;
	EXPECT_EQ(Bytes.Num(), 12) << "there is no count";
	FMemoryReader Reader(Bytes);
	TStaticArray<int32, 3> Read;
	Reader << Read;
	EXPECT_TRUE(Read == Array);
	EXPECT_DEATH(Array[3] = 1, "Array index out of bounds: 3 into an array of size 3");
}

TEST(Array, FixedRoomEndsTheProgramWhenItIsFull)
{
	TArray<int32, TFixedAllocator<2>> Array;
	Array.Add(1);
	Array.Add(2);
	EXPECT_EQ(Array.GetSlack(), 0);
	EXPECT_DEATH(Array.Add(3), "A fixed container of 2 elements is full");
	const TArray<int32, TFixedAllocator<2>> Copy = Array;
	EXPECT_EQ(Copy.Last(), 2);
	EXPECT_EQ(sizeof(TArray<int32>), 16u) << "reflection lays arrays out without knowing their type";
}

TEST(Tuple, HandsItsElementsToACall)
{
	const TTuple<int32, FString, double> Tuple = MakeTuple(1, FString(TEXT("two")), 3.0);
	EXPECT_EQ(Tuple.Get<0>(), 1);
	const auto [Number, Text, Real] = Tuple;
	EXPECT_TRUE(Text.Equals(TEXT("two")));
	const auto Concatenate = [](const TCHAR* Prefix, int32 A, const FString& B, double C)
	{ return FString::Printf(TEXT("%s%d%s%.0f"), Prefix, A, *B, C); };
	EXPECT_TRUE(Tuple.ApplyAfter(Concatenate, TEXT(">")).Equals(TEXT(">1two3")));
	EXPECT_TRUE((MakeTuple(1, 2) == MakeTuple(1, 2)));
	EXPECT_TRUE((MakeTuple(1, 2) < MakeTuple(1, 3)));
	int32 A = 0;
	int32 B = 0;
	Tie(A, B) = MakeTuple(4, 5);
	EXPECT_EQ(A * 10 + B, 45);
}

TEST(Scopes, LeaveInTheOppositeOrder)
{
	std::string Order;
	int32 Value = 1;
	{
		ON_SCOPE_EXIT
		{
			Order += "last";
		};
		const TGuardValue<int32> Guard(Value, 2);
		EXPECT_EQ(Value, 2);
		EXPECT_EQ(Guard.GetOriginalValue(), 1);
		ON_SCOPE_EXIT
		{
			Order += std::to_string(Value);
		};
	}
	EXPECT_EQ(Order, "2last");
	EXPECT_EQ(Value, 1);
}

TEST(ThreadSafeCounter, AnswersTheValueThatTheEngineDoes)
{
	FThreadSafeCounter Counter(5);
	EXPECT_EQ(Counter.Increment(), 6);
	EXPECT_EQ(Counter.Decrement(), 5);
	EXPECT_EQ(Counter.Add(10), 5);
	EXPECT_EQ(Counter.Subtract(1), 15);
	EXPECT_EQ(Counter.Set(3), 14);
	EXPECT_EQ(Counter.Reset(), 3);
	EXPECT_EQ(Counter.GetValue(), 0);
}

TEST(AssertionsDeathTest, EveryKindStopsWithItsPlace)
{
	EXPECT_DEATH(unimplemented(), "Unimplemented function called.*SmallTypesTests.cpp.*Line: [0-9]+");
	EXPECT_DEATH(checkNoEntry(), "Enclosing block should never be called");
	EXPECT_DEATH(verifyf(false, TEXT("because %d"), 7), "Assertion failed: false .*because 7");
	const auto EnterTwice = []
	{
		for (int32 Round = 0; Round < 2; ++Round)
		{
			checkNoReentry();
		}
	};
	EXPECT_DEATH(EnterTwice(), "Enclosing block was called more than once");
	int32 NumEvaluated = 0;
	verify(++NumEvaluated == 1);
	EXPECT_EQ(NumEvaluated, 1);
}

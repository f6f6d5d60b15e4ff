#include "CoreMinimal.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace
{
struct FCounted
{
	explicit FCounted(int32& InNumAlive)
		: NumAlive(InNumAlive)
	{
		++NumAlive;
	}
	FCounted(const FCounted& Other)
		: NumAlive(Other.NumAlive)
	{
		++NumAlive;
	}
	virtual ~FCounted() { --NumAlive; }

	int32& NumAlive;
};

struct FPadding
{
	virtual ~FPadding() = default;
	int64 Bytes[3] = {};
};

/** The shareable base does not stand at the object's address. */
struct FSelfAware : FPadding, TSharedFromThis<FSelfAware>
{
	TSharedRef<FSelfAware> GetSelf() { return SharedThis(this); }
};

struct FDerived : FSelfAware
{
	TSharedRef<FDerived> GetDerivedSelf() { return SharedThis(this); }
};
}

TEST(SharedPointer, WeakPointerTurnsNullWithTheLastOwnerWhicheverThreadThatIs)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		int32 NumAlive = 0;
		TSharedPtr<FCounted> Owner = MakeShared<FCounted>(NumAlive);
		const TWeakPtr<FCounted> Weak = Owner;
		std::atomic<bool> bSawDead = false;
		std::thread Reader(
			[&]
			{
				while (const TSharedPtr<FCounted> Pinned = Weak.Pin())
				{
					// What was pinned must be alive for as long as it is held.
					EXPECT_EQ(Pinned->NumAlive, 1);
				}
				bSawDead = true;
			});
		Owner.Reset();
		Reader.join();
		EXPECT_TRUE(bSawDead);
		EXPECT_EQ(NumAlive, 0);
		EXPECT_FALSE(Weak.IsValid());
	}
}

TEST(SharedPointer, SharedFromThisCountsWithTheOwnersHoweverTheObjectWasMade)
{
	const TSharedRef<FDerived> Made = MakeShared<FDerived>();
	EXPECT_EQ(&Made->GetDerivedSelf().Get(), &Made.Get());
	EXPECT_EQ(Made->GetSelf().GetSharedReferenceCount(), 2);

	const TSharedPtr<FPadding> Wrapped = MakeShareable(new FDerived);
	EXPECT_EQ(Wrapped.GetSharedReferenceCount(), 1);
	const TSharedRef<FSelfAware> Self = static_cast<FDerived*>(Wrapped.Get())->AsShared();
	EXPECT_EQ(Wrapped.GetSharedReferenceCount(), 2);
	EXPECT_EQ(static_cast<FPadding*>(&Self.Get()), Wrapped.Get());

	FDerived Unshared;
	EXPECT_FALSE(Unshared.DoesSharedInstanceExist());
	EXPECT_FALSE(Unshared.AsWeak().IsValid());
}

TEST(SharedPointer, CopiedObjectIsNotSharedWithItsOriginal)
{
	const TSharedRef<FDerived> Original = MakeShared<FDerived>();
	const TSharedRef<FDerived> Copy = MakeShared<FDerived>(*Original);
	EXPECT_EQ(&Copy->GetDerivedSelf().Get(), &Copy.Get());
}

TEST(SharedPointer, BaseDeletesDerivedThroughCustomDeleterAndVoid)
{
	int32 NumAlive = 0;
	int32 NumDeleted = 0;
	{
		const TSharedPtr<FCounted> Object = MakeShareable(new FCounted(NumAlive),
			[&](FCounted* ToDelete)
			{
				++NumDeleted;
				delete ToDelete;
			});
		const TSharedPtr<void> Untyped = Object;
		EXPECT_EQ(NumAlive, 1);
	}
	EXPECT_EQ(NumAlive, 0);
	EXPECT_EQ(NumDeleted, 1);
}

TEST(SharedPointer, MovedFromReferenceStillRefers)
{
	TSharedRef<int32> First = MakeShared<int32>(7);
	const TSharedRef<int32> Second = MoveTemp(First);
	EXPECT_EQ(*First, 7);
	EXPECT_TRUE(First == Second);
}

TEST(SharedPointer, ExpiredWeakKeyKeepsItsHash)
{
	TSharedPtr<int32> Owner = MakeShared<int32>(1);
	const TWeakPtr<int32> Key = Owner;
	const uint32 HashWhileAlive = GetTypeHash(Key);
	EXPECT_EQ(HashWhileAlive, GetTypeHash(Owner));
	Owner.Reset();
	EXPECT_EQ(GetTypeHash(Key), HashWhileAlive);
}

TEST(UniquePtr, ResetDeletesAfterThePointerHoldsTheNewObject)
{
	struct FLooker
	{
		TUniquePtr<FLooker>* Owner = nullptr;
		FLooker* Seen = nullptr;
		FLooker** Report = nullptr;
		~FLooker()
		{
			if (Report != nullptr)
			{
				*Report = Owner->Get();
			}
		}
	};
	FLooker* Seen = nullptr;
	TUniquePtr<FLooker> Pointer = MakeUnique<FLooker>();
	Pointer->Owner = &Pointer;
	Pointer->Report = &Seen;
	FLooker* const Next = new FLooker;
	Pointer.Reset(Next);
	EXPECT_EQ(Seen, Next);
}

TEST(Function, CopiesHaveTheirOwnState)
{
	struct FLarge
	{
		int64 Bytes[16] = {};
		int32 Count = 0;
		int32 operator()() { return ++Count; }
	};
	const TFunction<int32()> First = FLarge();
	EXPECT_EQ(First(), 1);
	const TFunction<int32()> Second = First;
	EXPECT_EQ(First(), 2);
	EXPECT_EQ(Second(), 2);
	EXPECT_EQ(Second(), 3);
	EXPECT_EQ(First(), 3);
}

TEST(Function, OwnedFunctorsEndExactlyOnce)
{
	int32 NumAlive = 0;
	{
		TFunction<int32()> Small = [Counted = FCounted(NumAlive)]
		{ return Counted.NumAlive; };
		TFunction<int32()> Copy = Small;
		TFunction<int32()> Moved = MoveTemp(Copy);
		EXPECT_FALSE(Copy);
		Copy = Small;
		Copy = MoveTemp(Moved);
		EXPECT_EQ(NumAlive, 2);
		Small = nullptr;
		EXPECT_EQ(NumAlive, 1);
	}
	EXPECT_EQ(NumAlive, 0);
}

TEST(Function, FunctionMadeOfAnEmptyFunctionIsEmpty)
{
	const TFunction<int32(int32)> Empty;
	const TFunction<int64(int32)> Converted = Empty;
	int32 (*const NoFunction)(int32) = nullptr;
	const TFunction<int32(int32)> OfNull = NoFunction;
	EXPECT_FALSE(Converted);
	EXPECT_FALSE(OfNull);
	EXPECT_DEATH(Empty(1), "unbound");
}

TEST(Function, UniqueFunctionTakesWhatOnlyMoves)
{
	TUniqueFunction<int32()> Function = [Value = MakeUnique<int32>(5)]
	{ return *Value; };
	const TUniqueFunction<int32()> Moved = MoveTemp(Function);
	EXPECT_EQ(Moved(), 5);
	EXPECT_FALSE(Function);
}

TEST(Function, ReferenceCallsTheCallersObject)
{
	int32 Sum = 0;
	auto Add = [Sum](int32 Value) mutable
	{ return Sum += Value; };
	const TFunctionRef<int32(int32)> Reference = Add;
	Reference(2);
	Reference(3);
	EXPECT_EQ(Add(0), 5);
}

TEST(SharedPointer, BothThreadModesCountAndDoNotMix)
{
	struct FOfOneThread : TSharedFromThis<FOfOneThread, ESPMode::NotThreadSafe>
	{
	};
	using FPointer = TSharedPtr<FOfOneThread, ESPMode::NotThreadSafe>;
	static_assert(!std::is_convertible_v<FPointer, TSharedPtr<FOfOneThread, ESPMode::ThreadSafe>>);
	static_assert(!std::is_constructible_v<TWeakPtr<FOfOneThread, ESPMode::ThreadSafe>, FPointer>);
	FPointer Owner = MakeShared<FOfOneThread, ESPMode::NotThreadSafe>();
	const TWeakPtr<FOfOneThread, ESPMode::NotThreadSafe> Weak = Owner->AsWeak();
	FPointer Second = Owner->AsShared();
	EXPECT_EQ(Owner.GetSharedReferenceCount(), 2);
	Owner.Reset();
	EXPECT_TRUE(Second.IsUnique());
	EXPECT_EQ(Weak.Pin(), Second);
	Second.Reset();
	EXPECT_FALSE(Weak.IsValid());
}

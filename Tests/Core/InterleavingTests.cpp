#include "Containers/Queue.h"
#include "Containers/Ticker.h"
#include "Containers/UnrealString.h"
#include "Delegates/Delegate.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "UObject/NameTypes.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <thread>
#include <vector>

TEST(Interleavings, QueueKeepsEachProducersOrder)
{
	constexpr int32 NumProducers = 4;
	constexpr int32 NumItems = 20000;
	TQueue<TSharedPtr<int32>, EQueueMode::Mpsc> Queue;
	std::vector<std::thread> Producers;
	for (int32 Producer = 0; Producer < NumProducers; ++Producer)
	{
		Producers.emplace_back([&Queue, Producer]
			{
			for (int32 Item = 0; Item < NumItems; ++Item)
			{
				Queue.Enqueue(MakeShared<int32>(Item * NumProducers + Producer));
			} });
	}
	std::vector<TSharedPtr<int32>> Taken;
	while (Taken.size() < NumProducers * NumItems)
	{
		TSharedPtr<int32> Item;
		if (Queue.Dequeue(Item))
		{
			Taken.push_back(MoveTemp(Item));
		}
		else
		{
			std::this_thread::yield();
		}
	}
	for (std::thread& Producer : Producers)
	{
		Producer.join();
	}
	int32 Next[NumProducers] = {};
	for (const TSharedPtr<int32>& Item : Taken)
	{
		ASSERT_EQ(*Item / NumProducers, Next[*Item % NumProducers]++);
		ASSERT_EQ(Item.GetSharedReferenceCount(), 1) << "the queue keeps nothing of what it gave";
	}
	EXPECT_TRUE(Queue.IsEmpty());
}

TEST(Interleavings, ThreadsThatRaceForNewNamesGetTheSameOnes)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumNames = 3000;
	std::vector<std::vector<FName>> Made(NumThreads);
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < NumThreads; ++Thread)
	{
		Threads.emplace_back([&Made, Thread]
			{
			for (int32 Index = 0; Index < NumNames; ++Index)
			{
				// Each thread spells them in a case of its own.
				FString Text = FString::Printf(TEXT("RaceForName%dX"), Index);
				Made[static_cast<size_t>(Thread)].push_back(FName(Thread % 2 == 0 ? Text.ToUpper() : Text));
			} });
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (size_t Index = 0; Index < NumNames; ++Index)
	{
		for (size_t Thread = 1; Thread < NumThreads; ++Thread)
		{
			ASSERT_EQ(Made[Thread][Index], Made[0][Index]);
			ASSERT_EQ(GetTypeHash(Made[Thread][Index]), GetTypeHash(Made[0][Index]));
		}
		ASSERT_TRUE(Made[1][Index].ToString().Equals(FString::Printf(TEXT("RaceForName%dX"), static_cast<int32>(Index))));
	}
}

TEST(Interleavings, NamesPrintBackWhateverTheirNumberLooksLike)
{
	for (const TCHAR* const Text : {TEXT("N_0"), TEXT("N_00"), TEXT("N_01"), TEXT("N_1"), TEXT("N_"), TEXT("_1"), TEXT("__1"), TEXT("1"),
			 TEXT("N_-1"), TEXT("N_1_2"), TEXT("N_2147483645"), TEXT("N_2147483646"), TEXT("N_2147483647"), TEXT("N_2147483648"),
			 TEXT("N_4294967295"), TEXT("N_99999999999"), TEXT("N_\u0661"), TEXT("\u00C4_7"), TEXT("N 1"), TEXT(" ")})
	{
		EXPECT_EQ(std::string(TCHAR_TO_UTF8(*FName(Text).ToString())), std::string(TCHAR_TO_UTF8(Text)));
		EXPECT_EQ(FName(Text), FName(*FString(Text).ToUpper()));
	}
	EXPECT_NE(FName(TEXT("N_1")), FName(TEXT("N_01")));
	EXPECT_EQ(FName(TEXT("N"), NAME_EXTERNAL_TO_INTERNAL(5)), FName(TEXT("N_5")));
	const FString Longest = FString::ChrN(NAME_SIZE - 1, 'L');
	EXPECT_TRUE(FName(Longest).ToString().Equals(Longest));
	EXPECT_TRUE(FName(Longest + TEXT("_12")).ToString().Equals(Longest + TEXT("_12"))) << "the number takes no room";
}

TEST(Interleavings, TickerThatTicksIsNotCalledInsideItsOwnCall)
{
	FTSTicker Ticker;
	int32 NumOuter = 0;
	int32 NumOther = 0;
	int32 Depth = 0;
	Ticker.AddTicker(TEXT("Waits"), 0.0f, [&](float)
		{
		EXPECT_EQ(++Depth, 1);
		if (++NumOuter < 5)
		{
			Ticker.Tick(0.1f);
		}
		--Depth;
		return true; });
	Ticker.AddTicker(TEXT("Other"), 0.0f, [&](float)
		{
		++NumOther;
		return true; });
	Ticker.Tick(0.1f);
	EXPECT_EQ(NumOuter, 1);
	EXPECT_EQ(NumOther, 2) << "once for each of the two ticks";
	Ticker.Tick(0.1f);
	EXPECT_EQ(NumOuter, 2) << "it is due again afterwards";
}

TEST(Interleavings, TickerMayResetAndEndItselfInsideACall)
{
	FTSTicker Ticker;
	int32 NumCalls = 0;
	FTSTicker::FDelegateHandle Handle = Ticker.AddTicker(TEXT("Self"), 0.0f, [&](float)
		{
		++NumCalls;
		FTSTicker::RemoveTicker(Handle);
		return true; });
	Ticker.AddTicker(TEXT("Resets"), 0.0f, [&](float)
		{
		++NumCalls;
		Ticker.Reset();
		return true; });
	Ticker.AddTicker(TEXT("Never"), 0.0f, [&](float)
		{
		ADD_FAILURE() << "removed before its turn in the same tick";
		return true; });
	Ticker.Tick(1.0f);
	Ticker.Tick(1.0f);
	EXPECT_EQ(NumCalls, 2);
	EXPECT_FALSE(Handle.IsValid());
}

TEST(Interleavings, BroadcastInsideABroadcastReachesAllWhoAreLeft)
{
	FSimpleMulticastDelegate Delegate;
	TSharedPtr<int32> Owner = MakeShared<int32>(0);
	struct FListener
	{
		int32 NumCalls = 0;
		void Hear() { ++NumCalls; }
	};
	TSharedPtr<FListener> Weak = MakeShared<FListener>();
	const TSharedPtr<FListener> Strong = MakeShared<FListener>();
	int32 Depth = 0;
	Delegate.AddSP(Strong.ToSharedRef(), &FListener::Hear);
	Delegate.AddSP(Weak.ToSharedRef(), &FListener::Hear);
	Delegate.AddLambda([&]
		{
		if (Depth++ == 0)
		{
			Weak.Reset();
			Delegate.Broadcast();
		} });
	Delegate.Broadcast();
	EXPECT_EQ(Strong->NumCalls, 2);
	EXPECT_EQ(Depth, 2);
	Delegate.Broadcast();
	EXPECT_EQ(Strong->NumCalls, 3);
}

TEST(Interleavings, FunctionMayReplaceItselfWhileItRuns)
{
	TSharedPtr<int32> Alive = MakeShared<int32>(1);
	const TWeakPtr<int32> Watch = Alive;
	TFunction<int32()> Function;
	std::array<int64, 32> Large{};
	Large[31] = 5;
	Function = [Alive = MoveTemp(Alive), Large]
	{ return *Alive + static_cast<int32>(Large[31]); };
	TFunction<int32()> Copy = Function;
	EXPECT_EQ(Copy(), 6);
	Copy = Copy;
	TFunction<int32()> Moved = MoveTemp(Copy);
	EXPECT_FALSE(static_cast<bool>(Copy));
	EXPECT_EQ(Moved(), 6);
	Function = nullptr;
	EXPECT_TRUE(Watch.IsValid());
	Moved = []
	{ return 1; };
	EXPECT_FALSE(Watch.IsValid()) << "the last capture went with the last function";
}

TEST(Interleavings, WeakSidesLetACycleEnd)
{
	struct FNode
	{
		TSharedPtr<FNode> Child;
		TWeakPtr<FNode> Parent;
		int32* NumEnded;
		~FNode()
		{
			EXPECT_FALSE(Child.IsValid() && Child->Parent.IsValid()) << "a parent that ends cannot be pinned any more";
			++*NumEnded;
		}
	};
	int32 NumEnded = 0;
	{
		TSharedPtr<FNode> Root = MakeShared<FNode>();
		Root->NumEnded = &NumEnded;
		TSharedPtr<FNode> At = Root;
		for (int32 Depth = 0; Depth < 100; ++Depth)
		{
			At->Child = MakeShared<FNode>();
			At->Child->NumEnded = &NumEnded;
			At->Child->Parent = At;
			At = At->Child;
		}
		Root.Reset();
		EXPECT_EQ(NumEnded, 100) << "all but the one that is held";
		EXPECT_FALSE(At->Parent.IsValid());
	}
	EXPECT_EQ(NumEnded, 101);
}

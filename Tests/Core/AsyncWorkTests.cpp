#include "Async/Async.h"
#include "Async/AsyncWork.h"
#include "Async/ParallelFor.h"
#include "CoreMinimal.h"
#include "HAL/Event.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>
#include <set>
#include <thread>
#include <vector>

namespace
{
class FAsyncWorkTest : public testing::Test
{
protected:
	FAsyncWorkTest() { FTaskGraphInterface::Startup(); }
	~FAsyncWorkTest() override { FTaskGraphInterface::Shutdown(); }
};

struct FSum : FNonAbandonableTask
{
	explicit FSum(int32 InUpTo)
		: UpTo(InUpTo)
	{
	}
	void DoWork()
	{
		for (int32 Number = 1; Number <= UpTo; ++Number)
		{
			Result += Number;
		}
	}

	int32 UpTo;
	int64 Result = 0;
};

struct FFate
{
	std::atomic<int32> NumDone{0};
	std::atomic<int32> NumAbandoned{0};
	std::atomic<int32> NumEnded{0};
};

struct FWatchedTask
{
	explicit FWatchedTask(FFate& InFate)
		: Fate(InFate)
	{
	}
	~FWatchedTask() { ++Fate.NumEnded; }
	void DoWork() { ++Fate.NumDone; }
	bool CanAbandon() const { return true; }
	void Abandon() { ++Fate.NumAbandoned; }

	FFate& Fate;
};

/** A pool whose one thread is busy until the test says otherwise. */
class FBlockedPool
{
public:
	FBlockedPool()
		: Pool(FQueuedThreadPool::Allocate())
	{
		Pool->Create(1);
		Blocker = AsyncPool(*Pool, [this]
			{
				Began->Trigger();
				MayGoOn->Wait(); });
		Began->Wait();
	}
	~FBlockedPool()
	{
		Release();
		Pool->Destroy();
	}
	FQueuedThreadPool& Get() { return *Pool; }
	void Release() { MayGoOn->Trigger(); }

private:
	const std::unique_ptr<FQueuedThreadPool> Pool;
	FEventRef Began{EEventMode::ManualReset};
	FEventRef MayGoOn{EEventMode::ManualReset};
	TFuture<void> Blocker;
};
}

TEST_F(FAsyncWorkTest, ParallelForVisitsEveryIndexOnce)
{
	for (const int32 Num : {0, 1, 2, 7, 64, 1000, 10007})
	{
		for (const EParallelForFlags Flags : {EParallelForFlags::None, EParallelForFlags::Unbalanced, EParallelForFlags::ForceSingleThread})
		{
			std::vector<std::atomic<int32>> Visits(static_cast<size_t>(Num));
			ParallelFor(
				Num, [&Visits](int32 Index)
				{ ++Visits[static_cast<size_t>(Index)]; },
				Flags);
			for (const std::atomic<int32>& Count : Visits)
			{
				ASSERT_EQ(Count.load(), 1);
			}
		}
	}
}

TEST_F(FAsyncWorkTest, ParallelForEndsInsideItselfAndBesideABusyPool)
{
	std::atomic<int32> Total{0};
	ParallelFor(16, [&Total](int32)
		{ ParallelFor(16, [&Total](int32)
			  { ++Total; }); });
	EXPECT_EQ(Total.load(), 256);
}

TEST(ParallelForAlone, WorksWithoutAPoolInOrder)
{
	ASSERT_EQ(GThreadPool, nullptr);
	std::vector<int32> Order;
	ParallelFor(5, [&Order](int32 Index)
		{ Order.push_back(Index); });
	EXPECT_EQ(Order, (std::vector<int32>{0, 1, 2, 3, 4}));
}

TEST_F(FAsyncWorkTest, OwnedTaskGivesItsResultAndStartsAgain)
{
	FAsyncTask<FSum> Task(1000);
	Task.StartBackgroundTask();
	Task.EnsureCompletion();
	EXPECT_EQ(Task.GetTask().Result, 500500);
	Task.GetTask().UpTo = 1;
	Task.StartBackgroundTask();
	Task.EnsureCompletion(false);
	EXPECT_EQ(Task.GetTask().Result, 500501);
	Task.StartSynchronousTask();
	EXPECT_EQ(Task.GetTask().Result, 500502);
}

TEST_F(FAsyncWorkTest, WaitingDoesTheWorkHereWhenThePoolHasNotBegun)
{
	FBlockedPool Pool;
	FAsyncTask<FSum> Task(10);
	Task.StartBackgroundTask(&Pool.Get());
	EXPECT_FALSE(Task.IsDone());
	Task.EnsureCompletion();
	EXPECT_EQ(Task.GetTask().Result, 55);

	FFate Fate;
	FAsyncTask<FWatchedTask> Cancelled(Fate);
	Cancelled.StartBackgroundTask(&Pool.Get());
	EXPECT_TRUE(Cancelled.Cancel());
	EXPECT_TRUE(Cancelled.IsDone());
	EXPECT_FALSE(Cancelled.Cancel());
	EXPECT_EQ(Fate.NumDone.load(), 0);
}

TEST_F(FAsyncWorkTest, TasksThatThePoolNeverBeganAreAbandonedOrRunAnyway)
{
	FFate Fate;
	FAsyncTask<FSum> MustRun(4);
	{
		FBlockedPool Pool;
		(new FAutoDeleteAsyncTask<FWatchedTask>(Fate))->StartBackgroundTask(&Pool.Get());
		MustRun.StartBackgroundTask(&Pool.Get(), EQueuedWorkPriority::Low);
		(new FAutoDeleteAsyncTask<FWatchedTask>(Fate))->StartSynchronousTask();
		EXPECT_EQ(Fate.NumEnded.load(), 1);
	}
	MustRun.EnsureCompletion();
	EXPECT_EQ(MustRun.GetTask().Result, 10);
	EXPECT_EQ(Fate.NumDone.load() + Fate.NumAbandoned.load(), 2);
	EXPECT_EQ(Fate.NumEnded.load(), 2);
}

TEST_F(FAsyncWorkTest, ScopedEventWaitsForItsTrigger)
{
	std::atomic<bool> bWorked{false};
	{
		FScopedEvent Finished;
		EXPECT_FALSE(Finished.IsReady());
		AsyncTask(ENamedThreads::AnyThread, [&bWorked, &Finished]
			{
				bWorked = true;
				Finished.Trigger(); });
	}
	EXPECT_TRUE(bWorked.load());
	FScopedEvent Triggered;
	Triggered.Trigger();
	EXPECT_TRUE(Triggered.IsReady());
}

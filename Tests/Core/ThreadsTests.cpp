#include "Async/Async.h"
#include "Containers/Ticker.h"
#include "CoreMinimal.h"
#include "HAL/Event.h"
#include "HAL/PlatformTLS.h"
#include "HAL/Runnable.h"
#include "HAL/RunnableThread.h"
#include "Misc/QueuedThreadPool.h"
#include "Misc/ScopeLock.h"
#include "Misc/ScopeRWLock.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace
{
class FTaskGraphTest : public testing::Test
{
protected:
	FTaskGraphTest() { FTaskGraphInterface::Startup(); }
	~FTaskGraphTest() override { FTaskGraphInterface::Shutdown(); }

	static void Pump() { FTaskGraphInterface::Get().ProcessThreadUntilIdle(ENamedThreads::GameThread); }
};

/** Counts what became of it; kept by the test, not by itself. */
struct FCountedWork final : IQueuedWork
{
	std::atomic<int32>* NumDone = nullptr;
	std::atomic<int32>* NumAbandoned = nullptr;
	FEvent* Begun = nullptr;
	FEvent* MayEnd = nullptr;

	void DoThreadedWork() override
	{
		if (Begun != nullptr)
		{
			Begun->Trigger();
			MayEnd->Wait();
		}
		++*NumDone;
	}
	void Abandon() override { ++*NumAbandoned; }
};
}

TEST_F(FTaskGraphTest, GameThreadTasksRunInTheOrderOfTheirComing)
{
	std::vector<int32> Order;
	AsyncTask(ENamedThreads::GameThread,
		[&Order]
		{
			Order.push_back(0);
			AsyncTask(ENamedThreads::GameThread, [&Order]
				{ Order.push_back(100); });
		});
	for (int32 Index = 1; Index < 50; ++Index)
	{
		AsyncTask(ENamedThreads::GameThread, [&Order, Index]
			{ Order.push_back(Index); });
	}
	EXPECT_TRUE(Order.empty());
	Pump();
	std::vector<int32> Expected;
	for (int32 Index = 0; Index < 50; ++Index)
	{
		Expected.push_back(Index);
	}
	Expected.push_back(100);
	EXPECT_EQ(Order, Expected);
}

TEST_F(FTaskGraphTest, EachThreadsTasksKeepTheirOrderAmongThoseOfOthers)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumTasks = 500;
	std::vector<int32> Next(NumThreads, 0);
	bool bInOrder = true;
	std::vector<std::thread> Threads;
	for (int32 Thread = 0; Thread < NumThreads; ++Thread)
	{
		Threads.emplace_back(
			[&, Thread]
			{
				for (int32 Index = 0; Index < NumTasks; ++Index)
				{
					AsyncTask(ENamedThreads::GameThread, [&, Thread, Index]
						{ bInOrder = bInOrder && Next[static_cast<size_t>(Thread)]++ == Index; });
				}
			});
	}
	while (Next != std::vector<int32>(NumThreads, NumTasks) && bInOrder)
	{
		FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(1.0));
		Pump();
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	EXPECT_TRUE(bInOrder);
}

TEST_F(FTaskGraphTest, WaitEndsWithWorkOrWithAWakeUp)
{
	EXPECT_FALSE(FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::Zero()));
	AsyncTask(ENamedThreads::AnyThread, []
		{ AsyncTask(ENamedThreads::GameThread, [] {}); });
	EXPECT_TRUE(FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(60.0)));
	Pump();
	AsyncTask(ENamedThreads::AnyThread, []
		{ FTaskGraphInterface::Get().WakeGameThread(); });
	EXPECT_FALSE(FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(60.0)));
}

TEST_F(FTaskGraphTest, TasksThatNeverRanAreDestroyedWithTheGraph)
{
	const TSharedRef<int32> Held = MakeShared<int32>(0);
	AsyncTask(ENamedThreads::GameThread, [Held]
		{ ++*Held; });
	FTaskGraphInterface::Shutdown();
	AsyncTask(ENamedThreads::GameThread, [Held]
		{ ++*Held; });
	EXPECT_EQ(Held.GetSharedReferenceCount(), 1);
	EXPECT_EQ(*Held, 0);
}

TEST_F(FTaskGraphTest, FuturesBringResultsAndContinuations)
{
	const uint32 GameThread = FPlatformTLS::GetCurrentThreadId();
	TFuture<uint32> OfThread = Async(EAsyncExecution::Thread, []
		{ return FPlatformTLS::GetCurrentThreadId(); });
	EXPECT_NE(OfThread.Get(), GameThread);

	TFuture<TUniquePtr<int32>> OfPool = Async(EAsyncExecution::ThreadPool, []
		{ return MakeUnique<int32>(20); });
	TFuture<int32> Doubled = OfPool.Next([](TUniquePtr<int32> Value)
		{ return *Value * 2; });
	EXPECT_FALSE(OfPool.IsValid());
	EXPECT_EQ(Doubled.Consume(), 40);

	TFuture<uint32> OfGameThread = Async(EAsyncExecution::TaskGraphMainThread, []
		{ return FPlatformTLS::GetCurrentThreadId(); });
	EXPECT_FALSE(OfGameThread.WaitFor(FTimespan::Zero()));
	Pump();
	EXPECT_EQ(OfGameThread.Get(), GameThread);

	bool bCalled = false;
	TPromise<void> Promise([&bCalled]
		{ bCalled = true; });
	TFuture<void> Done = Promise.GetFuture();
	EXPECT_FALSE(Done.IsReady());
	Promise.SetValue();
	EXPECT_TRUE(Done.IsReady());
	EXPECT_TRUE(bCalled);
	EXPECT_EQ(Done.Then([](TFuture<void> Self)
					  { return Self.IsReady() ? 3 : 0; })
				  .Get(),
		3);
}

TEST(QueuedThreadPool, DestroyFinishesWhatRunsAndAbandonsWhatWaits)
{
	std::atomic<int32> NumDone = 0;
	std::atomic<int32> NumAbandoned = 0;
	const FEventRef Begun;
	const FEventRef MayEnd(EEventMode::ManualReset);
	const TUniquePtr<FQueuedThreadPool> Pool(FQueuedThreadPool::Allocate());
	ASSERT_TRUE(Pool->Create(1));
	std::vector<FCountedWork> Works(10);
	for (FCountedWork& Work : Works)
	{
		Work.NumDone = &NumDone;
		Work.NumAbandoned = &NumAbandoned;
	}
	Works[0].Begun = Begun.Get();
	Works[0].MayEnd = MayEnd.Get();
	Pool->AddQueuedWork(&Works[0]);
	Begun->Wait();
	for (size_t Index = 1; Index < Works.size(); ++Index)
	{
		Pool->AddQueuedWork(&Works[Index]);
	}
	EXPECT_TRUE(Pool->RetractQueuedWork(&Works[5]));
	EXPECT_FALSE(Pool->RetractQueuedWork(&Works[0]));

	std::thread Opener(
		[&]
		{
			while (NumAbandoned < 8)
			{
				std::this_thread::yield();
			}
			MayEnd->Trigger();
		});
	Pool->Destroy();
	Opener.join();
	EXPECT_EQ(NumDone, 1);
	EXPECT_EQ(NumAbandoned, 8);
	Pool->AddQueuedWork(&Works[5]);
	EXPECT_EQ(NumAbandoned, 9);
}

TEST(RunnableThread, StopsItsRunnableAndTellsItsId)
{
	struct FLoop final : FRunnable
	{
		std::atomic<bool> bStop = false;
		uint32 ThreadId = 0;
		bool bExited = false;

		bool Init() override
		{
			ThreadId = FPlatformTLS::GetCurrentThreadId();
			return true;
		}
		uint32 Run() override
		{
			while (!bStop)
			{
				FPlatformProcess::Sleep(0.0f);
			}
			return 0;
		}
		void Stop() override { bStop = true; }
		void Exit() override { bExited = true; }
	};
	FLoop Loop;
	const TUniquePtr<FRunnableThread> Thread(FRunnableThread::Create(&Loop, TEXT("A name longer than the system keeps")));
	ASSERT_TRUE(Thread.IsValid());
	EXPECT_EQ(Thread->GetThreadID(), Loop.ThreadId);
	EXPECT_EQ(Thread->GetThreadName(), FString(TEXT("A name longer than the system keeps")));
	Thread->Kill(true);
	EXPECT_TRUE(Loop.bExited);
}

TEST(Event, AutoResetLetsOneWaiterGo)
{
	const FEventRef Event;
	Event->Trigger();
	EXPECT_TRUE(Event->Wait(0u));
	EXPECT_FALSE(Event->Wait(0u));
	const FEventRef Manual(EEventMode::ManualReset);
	Manual->Trigger();
	EXPECT_TRUE(Manual->Wait(0u));
	EXPECT_TRUE(Manual->Wait(0u));
	Manual->Reset();
	EXPECT_FALSE(Manual->Wait(FTimespan::FromMilliseconds(1.0)));
}

TEST(Ticker, FiresAtExactlyItsDelay)
{
	FTSTicker Ticker;
	std::vector<float> Fired;
	Ticker.AddTicker(FTickerDelegate::CreateLambda(
						 [&](float DeltaTime)
						 {
							 Fired.push_back(DeltaTime);
							 return Fired.size() < 2;
						 }),
		0.5f);
	Ticker.Tick(0.25f);
	EXPECT_TRUE(Fired.empty());
	Ticker.Tick(0.25f);
	EXPECT_EQ(Fired, std::vector<float>{0.25f});
	Ticker.Tick(0.375f);
	EXPECT_EQ(Fired.size(), 1u);
	Ticker.Tick(0.125f);
	EXPECT_EQ(Fired.size(), 2u);
	Ticker.Tick(10.0f);
	EXPECT_EQ(Fired.size(), 2u);
}

TEST(Ticker, MayRemoveAndAddInsideATick)
{
	FTSTicker Ticker;
	std::vector<std::string> Calls;
	FTSTicker::FDelegateHandle Later;
	FTSTicker::FDelegateHandle Self;
	Self = Ticker.AddTicker(TEXT("Self"), 0.0f,
		[&](float)
		{
			Calls.push_back("self");
			FTSTicker::RemoveTicker(Later);
			FTSTicker::RemoveTicker(Self);
			Ticker.AddTicker(TEXT("Added"), 0.0f,
				[&](float)
				{
					Calls.push_back("added");
					return true;
				});
			return true;
		});
	Later = Ticker.AddTicker(TEXT("Later"), 0.0f,
		[&](float)
		{
			Calls.push_back("later");
			return true;
		});
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, std::vector<std::string>{"self"});
	EXPECT_FALSE(Self.IsValid());
	Ticker.Tick(1.0f);
	EXPECT_EQ(Calls, (std::vector<std::string>{"self", "added"}));
}

TEST(Ticker, RemovalOnAnotherThreadWaitsForTheCallUnderWay)
{
	FTSTicker Ticker;
	const FEventRef InCall;
	std::atomic<bool> bCallOver = false;
	std::atomic<bool> bOverAtRemoval = false;
	const FTSTicker::FDelegateHandle Handle = Ticker.AddTicker(TEXT("Slow"), 0.0f,
		[&](float)
		{
			InCall->Trigger();
			FPlatformProcess::Sleep(0.02f);
			bCallOver = true;
			return true;
		});
	std::thread Remover(
		[&]
		{
			InCall->Wait();
			FTSTicker::RemoveTicker(Handle);
			bOverAtRemoval = bCallOver.load();
		});
	Ticker.Tick(1.0f);
	Remover.join();
	EXPECT_TRUE(bOverAtRemoval);
}

namespace
{
/** Whether another thread can take the lock now. */
template <typename LockType>
bool CanOtherTake(LockType& Lock, bool (LockType::*TryLock)(), void (LockType::*Unlock)())
{
	bool bTaken = false;
	std::thread(
		[&]
		{
			bTaken = (Lock.*TryLock)();
			if (bTaken)
			{
				(Lock.*Unlock)();
			}
		})
		.join();
	return bTaken;
}

bool CanOtherRead(FRWLock& Lock)
{
	return CanOtherTake(Lock, &FRWLock::TryReadLock, &FRWLock::ReadUnlock);
}

bool CanOtherWrite(FRWLock& Lock)
{
	return CanOtherTake(Lock, &FRWLock::TryWriteLock, &FRWLock::WriteUnlock);
}

bool CanOtherEnter(FCriticalSection& Section)
{
	return CanOtherTake(Section, &FCriticalSection::TryLock, &FCriticalSection::Unlock);
}
}

TEST(Locks, ReadersShareAndAWriterIsAlone)
{
	FRWLock Lock;
	{
		const FReadScopeLock Reading(Lock);
		EXPECT_TRUE(CanOtherRead(Lock));
		EXPECT_FALSE(CanOtherWrite(Lock));
	}
	{
		const FWriteScopeLock Writing(Lock);
		EXPECT_FALSE(CanOtherRead(Lock));
		EXPECT_FALSE(CanOtherWrite(Lock));
	}
	EXPECT_TRUE(CanOtherWrite(Lock));
}

TEST(Locks, ACriticalSectionIsItsOwnThreadsAsOftenAsItTookIt)
{
	FCriticalSection Section;
	Section.Lock();
	{
		const FScopeLock Again(&Section);
		EXPECT_FALSE(CanOtherEnter(Section));
	}
	EXPECT_FALSE(CanOtherEnter(Section));
	Section.Unlock();
	EXPECT_TRUE(CanOtherEnter(Section));
}

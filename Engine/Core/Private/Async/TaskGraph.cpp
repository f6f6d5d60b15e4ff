#include "Async/Async.h"
#include "Async/TaskGraphInterfaces.h"
#include "CoreGlobals.h"
#include "HAL/PlatformMisc.h"
#include "HAL/PlatformTLS.h"
#include "Misc/AssertionMacros.h"
#include "Misc/QueuedThreadPool.h"
#include "Templates/SharedPointer.h"
#include "Templates/UniquePtr.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <utility>

namespace
{
/** A background task in the pool. */
class FFunctionWork final : public IQueuedWork
{
public:
	explicit FFunctionWork(TUniqueFunction<void()> InFunction)
		: Function(MoveTemp(InFunction))
	{
	}

	void DoThreadedWork() override
	{
		Function();
		delete this;
	}
	void Abandon() override { delete this; }

private:
	TUniqueFunction<void()> Function;
};

class FGameThreadQueue
{
public:
	void Add(TUniqueFunction<void()> Function)
	{
		const std::lock_guard Lock(Mutex);
		Tasks.push_back(MoveTemp(Function));
		Woken.notify_all();
	}

	/** Runs the oldest task, if there is one. */
	bool RunOne()
	{
		TUniqueFunction<void()> Task;
		{
			const std::lock_guard Lock(Mutex);
			if (Tasks.empty())
			{
				return false;
			}
			Task = MoveTemp(Tasks.front());
			Tasks.pop_front();
		}
		++Depth;
		Task();
		--Depth;
		return true;
	}

	bool Wait(const FTimespan& Timeout)
	{
		std::unique_lock Lock(Mutex);
		// A wait that the clock could not add up is one without an end.
		const std::chrono::microseconds Length(Timeout < FTimespan::FromDays(365.0)
				? Timeout.GetTicks() / ETimespan::TicksPerMicrosecond
				: FTimespan::FromDays(365.0).GetTicks() / ETimespan::TicksPerMicrosecond);
		Woken.wait_for(Lock, Length, [this]
			{ return bWakeRequested || !Tasks.empty(); });
		bWakeRequested = false;
		return !Tasks.empty();
	}

	void Wake()
	{
		const std::lock_guard Lock(Mutex);
		bWakeRequested = true;
		Woken.notify_all();
	}

	void Discard()
	{
		// Destroying a task may add another.
		for (std::deque<TUniqueFunction<void()>> Discarded = TakeAll(); !Discarded.empty(); Discarded = TakeAll())
		{
			Discarded.clear();
		}
	}

	bool IsRunningTask() const { return Depth > 0; }

private:
	std::deque<TUniqueFunction<void()>> TakeAll()
	{
		const std::lock_guard Lock(Mutex);
		return std::exchange(Tasks, {});
	}

	std::mutex Mutex;
	std::condition_variable Woken;
	std::deque<TUniqueFunction<void()>> Tasks;
	bool bWakeRequested = false;
	std::atomic<int32> Depth = 0;
};

class FTaskGraph final : public FTaskGraphInterface
{
public:
	explicit FTaskGraph(int32 NumThreads)
		: Pool(FQueuedThreadPool::Allocate())
	{
		const int32 NumWanted = NumThreads > 0 ? NumThreads : FPlatformMisc::NumberOfWorkerThreadsToSpawn();
		const bool bCreated = Pool->Create(static_cast<uint32>(NumWanted < 2 ? 2 : NumWanted), 0, TPri_Normal, TEXT("Worker"));
		checkf(bCreated, TEXT("The background threads could not be made"));
	}

	void ProcessThreadUntilIdle(ENamedThreads::Type CurrentThread) override
	{
		CheckGameThread(CurrentThread);
		while (GameThreadQueue.RunOne())
		{
		}
	}

	void ProcessThreadUntilRequestReturn(ENamedThreads::Type CurrentThread) override
	{
		CheckGameThread(CurrentThread);
		while (!bReturnRequested.exchange(false))
		{
			if (!GameThreadQueue.RunOne())
			{
				GameThreadQueue.Wait(FTimespan::MaxValue());
			}
		}
	}

	void RequestReturn(ENamedThreads::Type CurrentThread) override
	{
		bReturnRequested = true;
		GameThreadQueue.Wake();
	}

	bool IsThreadProcessingTasks(ENamedThreads::Type ThreadToCheck) override
	{
		return ThreadToCheck == ENamedThreads::GameThread && GameThreadQueue.IsRunningTask();
	}

	int32 GetNumWorkerThreads() override { return Pool->GetNumThreads(); }

	bool WaitForGameThreadWork(const FTimespan& Timeout) override
	{
		CheckGameThread(ENamedThreads::GameThread);
		return GameThreadQueue.Wait(Timeout);
	}

	void WakeGameThread() override { GameThreadQueue.Wake(); }

	void QueueTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function) override
	{
		if (Thread == ENamedThreads::GameThread)
		{
			GameThreadQueue.Add(MoveTemp(Function));
		}
		else
		{
			Pool->AddQueuedWork(new FFunctionWork(MoveTemp(Function)));
		}
	}

	void Stop()
	{
		Pool->Destroy();
		GameThreadQueue.Discard();
	}

	FQueuedThreadPool* GetPool() const { return Pool.Get(); }

private:
	static void CheckGameThread(ENamedThreads::Type CurrentThread)
	{
		checkf(CurrentThread == ENamedThreads::GameThread && IsInGameThread(), TEXT("Only the game thread has a queue to process"));
	}

	FGameThreadQueue GameThreadQueue;
	TUniquePtr<FQueuedThreadPool> Pool;
	std::atomic<bool> bReturnRequested = false;
};

/** The lock is for the pointer alone: nobody holds it while tasks are queued, run or destroyed. */
std::mutex TaskGraphLock;
TSharedPtr<FTaskGraph> TaskGraph;

TSharedPtr<FTaskGraph> GetTaskGraph()
{
	const std::lock_guard Lock(TaskGraphLock);
	return TaskGraph;
}

TSharedPtr<FTaskGraph> ExchangeTaskGraph(TSharedPtr<FTaskGraph> NewGraph)
{
	const std::lock_guard Lock(TaskGraphLock);
	GThreadPool = NewGraph.IsValid() ? NewGraph->GetPool() : nullptr;
	return std::exchange(TaskGraph, MoveTemp(NewGraph));
}
}

void FTaskGraphInterface::Startup(int32 NumThreads)
{
	checkf(!IsRunning(), TEXT("The task graph was started twice"));
	GGameThreadId = FPlatformTLS::GetCurrentThreadId();
	GIsGameThreadIdInitialized = true;
	ExchangeTaskGraph(MakeShared<FTaskGraph>(NumThreads));
}

void FTaskGraphInterface::Shutdown()
{
	const TSharedPtr<FTaskGraph> Graph = GetTaskGraph();
	if (!Graph.IsValid())
	{
		return;
	}
	check(IsInGameThread());
	// While it stops, running tasks may still queue others, which are abandoned with the rest.
	Graph->Stop();
	ExchangeTaskGraph(nullptr);
	Graph->Stop();
}

bool FTaskGraphInterface::IsRunning()
{
	return GetTaskGraph().IsValid();
}

FTaskGraphInterface& FTaskGraphInterface::Get()
{
	const TSharedPtr<FTaskGraph> Graph = GetTaskGraph();
	checkf(Graph.IsValid(), TEXT("The task graph is not running"));
	return *Graph;
}

void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function)
{
	if (const TSharedPtr<FTaskGraph> Graph = GetTaskGraph())
	{
		Graph->QueueTask(Thread, MoveTemp(Function));
	}
}

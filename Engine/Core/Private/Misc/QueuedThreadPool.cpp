#include "Misc/QueuedThreadPool.h"

#include "Containers/UnrealString.h"
#include "HAL/Runnable.h"
#include "HAL/RunnableThread.h"
#include "Misc/AssertionMacros.h"
#include "Templates/UniquePtr.h"

#include <algorithm>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <vector>

FQueuedThreadPool* GThreadPool = nullptr;

namespace
{
class FQueuedThreadPoolImpl final : public FQueuedThreadPool, private FRunnable
{
public:
	~FQueuedThreadPoolImpl() override { Destroy(); }

	bool Create(uint32 NumQueuedThreads, uint32 StackSize, EThreadPriority ThreadPriority, const TCHAR* Name) override
	{
		check(Threads.empty());
		{
			const std::lock_guard Lock(Mutex);
			bRunning = true;
		}
		// Stacks are this system's default: the engine's callers ask for ones too small for its C library.
		for (uint32 Index = 0; Index < NumQueuedThreads; ++Index)
		{
			TUniquePtr<FRunnableThread> Thread(
				FRunnableThread::Create(this, *FString::Printf(TEXT("%s #%u"), Name, Index), 0, ThreadPriority));
			if (!Thread)
			{
				Destroy();
				return false;
			}
			Threads.push_back(MoveTemp(Thread));
		}
		return true;
	}

	void Destroy() override
	{
		std::deque<IQueuedWork*> Abandoned;
		{
			const std::lock_guard Lock(Mutex);
			bRunning = false;
			for (std::deque<IQueuedWork*>& Queue : Queues)
			{
				Abandoned.insert(Abandoned.end(), Queue.begin(), Queue.end());
				Queue.clear();
			}
			WorkArrived.notify_all();
		}
		for (IQueuedWork* const Work : Abandoned)
		{
			Work->Abandon();
		}
		Threads.clear();
	}

	void AddQueuedWork(IQueuedWork* Work, EQueuedWorkPriority Priority) override
	{
		check(Work != nullptr && Priority < EQueuedWorkPriority::Count);
		{
			const std::lock_guard Lock(Mutex);
			if (bRunning)
			{
				Queues[static_cast<SIZE_T>(Priority)].push_back(Work);
				WorkArrived.notify_one();
				return;
			}
		}
		Work->Abandon();
	}

	bool RetractQueuedWork(IQueuedWork* Work) override
	{
		const std::lock_guard Lock(Mutex);
		for (std::deque<IQueuedWork*>& Queue : Queues)
		{
			const auto Found = std::find(Queue.begin(), Queue.end(), Work);
			if (Found != Queue.end())
			{
				Queue.erase(Found);
				return true;
			}
		}
		return false;
	}

	int32 GetNumThreads() const override { return static_cast<int32>(Threads.size()); }

private:
	uint32 Run() override
	{
		while (IQueuedWork* const Work = WaitForWork())
		{
			Work->DoThreadedWork();
		}
		return 0;
	}

	/** Null once the pool ends. */
	IQueuedWork* WaitForWork()
	{
		std::unique_lock Lock(Mutex);
		while (bRunning)
		{
			for (std::deque<IQueuedWork*>& Queue : Queues)
			{
				if (!Queue.empty())
				{
					IQueuedWork* const Work = Queue.front();
					Queue.pop_front();
					return Work;
				}
			}
			WorkArrived.wait(Lock);
		}
		return nullptr;
	}

	std::mutex Mutex;
	std::condition_variable WorkArrived;
	std::deque<IQueuedWork*> Queues[static_cast<SIZE_T>(EQueuedWorkPriority::Count)];
	std::vector<TUniquePtr<FRunnableThread>> Threads;
	bool bRunning = false;
};
}

FQueuedThreadPool* FQueuedThreadPool::Allocate()
{
	return new FQueuedThreadPoolImpl;
}

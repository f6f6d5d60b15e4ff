#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Misc/QueuedThreadPool.h"
#include "Templates/UnrealTemplate.h"

#include <condition_variable>
#include <mutex>

/** The base of tasks that must run even when the pool ends before they began. */
class FNonAbandonableTask
{
public:
	bool CanAbandon() const { return false; }
	void Abandon() {}
};

/**
 * A task that runs on the pool and then deletes itself: (new FAutoDeleteAsyncTask<FMyTask>(Arguments))->StartBackgroundTask().
 * The task has DoWork, CanAbandon and Abandon.
 */
template <typename TaskType>
class FAutoDeleteAsyncTask final : public IQueuedWork
{
public:
	template <typename... ArgTypes>
	explicit FAutoDeleteAsyncTask(ArgTypes&&... Args)
		: Task(Forward<ArgTypes>(Args)...)
	{
	}

	void StartSynchronousTask() { DoThreadedWork(); }
	void StartBackgroundTask(FQueuedThreadPool* InQueuedPool = GThreadPool, EQueuedWorkPriority Priority = EQueuedWorkPriority::Normal)
	{
		checkf(InQueuedPool != nullptr, TEXT("A background task needs a pool"));
		InQueuedPool->AddQueuedWork(this, Priority);
	}

	virtual void DoThreadedWork() override
	{
		Task.DoWork();
		delete this;
	}
	virtual void Abandon() override
	{
		if (!Task.CanAbandon())
		{
			DoThreadedWork();
			return;
		}
		Task.Abandon();
		delete this;
	}

private:
	TaskType Task;
};

/** A task that its owner starts, waits for and reads. It may be started again when it is done; it must be done before it is destroyed. */
template <typename TaskType>
class FAsyncTask final : public IQueuedWork
{
public:
	template <typename... ArgTypes>
	explicit FAsyncTask(ArgTypes&&... Args)
		: Task(Forward<ArgTypes>(Args)...)
	{
	}
	virtual ~FAsyncTask() override { checkf(IsDone(), TEXT("A task was destroyed before it was done")); }

	TaskType& GetTask()
	{
		checkf(IsDone(), TEXT("A task's result was read before it was done"));
		return Task;
	}
	void StartSynchronousTask()
	{
		Begin(nullptr);
		DoThreadedWork();
	}
	void StartBackgroundTask(FQueuedThreadPool* InQueuedPool = GThreadPool, EQueuedWorkPriority Priority = EQueuedWorkPriority::Normal)
	{
		checkf(InQueuedPool != nullptr, TEXT("A background task needs a pool"));
		Begin(InQueuedPool);
		InQueuedPool->AddQueuedWork(this, Priority);
	}
	/** With bDoWorkOnThisThreadIfNotStarted, work that still waits in the pool is done here. */
	void EnsureCompletion(bool bDoWorkOnThisThreadIfNotStarted = true)
	{
		if (bDoWorkOnThisThreadIfNotStarted && TakeBack())
		{
			DoThreadedWork();
			return;
		}
		std::unique_lock Lock(Mutex);
		Done.wait(Lock, [this]
			{ return !bIsUnderWay; });
	}
	/** Takes work back that has not begun. It then counts as done without having run; false when it was too late. */
	bool Cancel()
	{
		const bool bCancelled = TakeBack();
		if (bCancelled)
		{
			Finish();
		}
		return bCancelled;
	}
	bool IsDone() const
	{
		const std::lock_guard Lock(Mutex);
		return !bIsUnderWay;
	}
	bool IsIdle() const { return IsDone(); }

	virtual void DoThreadedWork() override
	{
		Task.DoWork();
		Finish();
	}
	virtual void Abandon() override
	{
		if (!Task.CanAbandon())
		{
			DoThreadedWork();
			return;
		}
		Task.Abandon();
		Finish();
	}

private:
	void Begin(FQueuedThreadPool* InPool)
	{
		const std::lock_guard Lock(Mutex);
		checkf(!bIsUnderWay, TEXT("A task was started twice"));
		bIsUnderWay = true;
		Pool = InPool;
	}
	bool TakeBack()
	{
		FQueuedThreadPool* QueuedIn;
		{
			const std::lock_guard Lock(Mutex);
			QueuedIn = bIsUnderWay ? Pool : nullptr;
		}
		return QueuedIn != nullptr && QueuedIn->RetractQueuedWork(this);
	}
	/** Who waits may destroy the task at once, so that nothing of it is touched after the lock. */
	void Finish()
	{
		const std::lock_guard Lock(Mutex);
		bIsUnderWay = false;
		Pool = nullptr;
		Done.notify_all();
	}

	TaskType Task;
	mutable std::mutex Mutex;
	std::condition_variable Done;
	FQueuedThreadPool* Pool = nullptr;
	bool bIsUnderWay = false;
};

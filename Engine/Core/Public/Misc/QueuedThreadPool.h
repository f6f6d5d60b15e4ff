#pragma once

#include "CoreTypes.h"
#include "HAL/PlatformAffinity.h"

enum class EQueuedWorkPriority : uint8
{
	Blocking,
	Highest,
	High,
	Normal,
	Low,
	Lowest,
	Count
};

/** A piece of work for a pool. Exactly one of its functions is called, once; the work then owns itself. */
class IQueuedWork
{
public:
	virtual ~IQueuedWork() = default;
	/** On a thread of the pool. */
	virtual void DoThreadedWork() = 0;
	/** The pool ends before the work began. Called on the thread that destroys the pool. */
	virtual void Abandon() = 0;
};

/** Threads that take work from one queue: by priority, then in the order of adding. */
class FQueuedThreadPool
{
public:
	CORE_API static FQueuedThreadPool* Allocate();
	virtual ~FQueuedThreadPool() = default;

	virtual bool Create(uint32 NumQueuedThreads, uint32 StackSize = 32 * 1024, EThreadPriority ThreadPriority = TPri_Normal,
		const TCHAR* Name = TEXT("UnknownThreadPool")) = 0;
	/** Abandons what waits and joins the threads, which finish what they do. Work added later is abandoned at once. */
	virtual void Destroy() = 0;
	virtual void AddQueuedWork(IQueuedWork* Work, EQueuedWorkPriority Priority = EQueuedWorkPriority::Normal) = 0;
	/** Takes work back that has not begun; neither of its functions is then called. */
	virtual bool RetractQueuedWork(IQueuedWork* Work) = 0;
	virtual int32 GetNumThreads() const = 0;
};

/** The background pool; made by FTaskGraphInterface::Startup, null outside its life. */
extern CORE_API FQueuedThreadPool* GThreadPool;

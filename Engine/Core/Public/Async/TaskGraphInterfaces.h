#pragma once

#include "CoreTypes.h"
#include "Misc/Timespan.h"
#include "Templates/Function.h"

namespace ENamedThreads
{
/** Where a task runs: on the game thread, or on any background thread. The kinds of background are one here. */
enum Type : int32
{
	GameThread = 2,
	GameThread_Local = GameThread,
	ActualRenderingThread = GameThread,
	AnyThread = 0xff,
	AnyNormalThreadNormalTask = AnyThread,
	AnyNormalThreadHiPriTask = AnyThread,
	AnyHiPriThreadNormalTask = AnyThread,
	AnyHiPriThreadHiPriTask = AnyThread,
	AnyBackgroundThreadNormalTask = AnyThread,
	AnyBackgroundHiPriTask = AnyThread
};
}

/** The game thread's queue and the background threads. One exists between Startup and Shutdown. */
class FTaskGraphInterface
{
public:
	/** Makes the calling thread the game thread, and the background threads: at least two, 0 for one a core. Makes GThreadPool too. */
	CORE_API static void Startup(int32 NumThreads = 0);
	/** On the game thread. Tasks that have not begun are destroyed without running; those that run are waited for. */
	CORE_API static void Shutdown();
	CORE_API static bool IsRunning();
	CORE_API static FTaskGraphInterface& Get();

	/** Runs the tasks of the game thread in the order of their coming, until none is left; those that they add too. */
	virtual void ProcessThreadUntilIdle(ENamedThreads::Type CurrentThread) = 0;
	/** Runs tasks of the game thread and waits for more, until RequestReturn is called. */
	virtual void ProcessThreadUntilRequestReturn(ENamedThreads::Type CurrentThread) = 0;
	virtual void RequestReturn(ENamedThreads::Type CurrentThread) = 0;
	/** Whether that thread is inside one of its tasks. */
	virtual bool IsThreadProcessingTasks(ENamedThreads::Type ThreadToCheck) = 0;
	virtual int32 GetNumWorkerThreads() = 0;

	/**
	 * Sleeps until a task for the game thread is there, somebody calls WakeGameThread, or the time is over; answers whether there
	 * is a task. For the main loop, so that it neither spins nor lets work wait. Ours, not the engine's.
	 */
	virtual bool WaitForGameThreadWork(const FTimespan& Timeout) = 0;
	/** Ends a wait of the game thread, from any thread. Ours, not the engine's. */
	virtual void WakeGameThread() = 0;

	/** Callers use AsyncTask. */
	virtual void QueueTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function) = 0;

protected:
	virtual ~FTaskGraphInterface() = default;
};

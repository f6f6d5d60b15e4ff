#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

/** Threads that tasks and continuations can be told to run on. */
enum class EVexelTaskThread : uint8
{
	/** The editor's main thread, at its next tick, in the order of scheduling. */
	GameThread,
	/** One of the engine's worker threads. */
	BackgroundThread
};

class VEXELCORE_API FVexelTaskManager
{
public:
	/** Runs a function on a thread, never before this call returns. Any thread. */
	static void ScheduleFunc(EVexelTaskThread Thread, TUniqueFunction<void()> Function);
};

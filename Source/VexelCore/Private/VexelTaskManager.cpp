#include "VexelTaskManager.h"

#include "Async/Async.h"

void FVexelTaskManager::ScheduleFunc(EVexelTaskThread Thread, TUniqueFunction<void()> Function)
{
	const ENamedThreads::Type EngineThread =
		Thread == EVexelTaskThread::GameThread ? ENamedThreads::GameThread : ENamedThreads::AnyBackgroundThreadNormalTask;
	AsyncTask(EngineThread, MoveTemp(Function));
}

#pragma once

#include "Async/Future.h"
#include "Async/TaskGraphInterfaces.h"
#include "CoreTypes.h"
#include "Misc/QueuedThreadPool.h"
#include "Templates/Function.h"

#include <type_traits>

enum class EAsyncExecution
{
	TaskGraph,
	/** The game thread, at its next pump. */
	TaskGraphMainThread,
	/** A thread of its own, for what waits long. */
	Thread,
	ThreadIfForkSafe,
	ThreadPool
};

/** Runs the function later: on the game thread at its next pump, or on a background thread. Destroyed unrun when there is no task graph. */
CORE_API void AsyncTask(ENamedThreads::Type Thread, TUniqueFunction<void()> Function);

namespace UE::Core::Private
{
/** Runs Function on a new thread that ends with it. */
CORE_API void RunOnNewThread(TUniqueFunction<void()> Function);
/** Runs Function on the pool; at once, on the thread that ends the pool, if it does not come to that. */
CORE_API void RunOnPool(FQueuedThreadPool& Pool, TUniqueFunction<void()> Function);
}

/**
 * Runs a function elsewhere and answers the future of its result. Work that the pool abandons at its end runs at once, so that its
 * result comes; a game-thread function that the end of the task graph drops leaves its future without one.
 */
template <class CallableType>
auto Async(EAsyncExecution Execution, CallableType&& Callable, TUniqueFunction<void()> CompletionCallback = nullptr)
{
	using FResult = std::invoke_result_t<std::decay_t<CallableType>&>;
	TPromise<FResult> Promise(MoveTemp(CompletionCallback));
	TFuture<FResult> Future = Promise.GetFuture();
	TUniqueFunction<void()> Work =
		[Promise = MoveTemp(Promise), Callable = std::decay_t<CallableType>(Forward<CallableType>(Callable))]() mutable
	{ Promise.SetFromCall(Callable); };
	switch (Execution)
	{
		case EAsyncExecution::TaskGraphMainThread:
			AsyncTask(ENamedThreads::GameThread, MoveTemp(Work));
			break;
		case EAsyncExecution::Thread:
		case EAsyncExecution::ThreadIfForkSafe:
			UE::Core::Private::RunOnNewThread(MoveTemp(Work));
			break;
		default:
			checkf(GThreadPool != nullptr, TEXT("Async needs the task graph to run"));
			UE::Core::Private::RunOnPool(*GThreadPool, MoveTemp(Work));
			break;
	}
	return Future;
}

template <class CallableType>
auto AsyncThread(CallableType&& Callable, uint32 StackSize = 0, EThreadPriority ThreadPriority = TPri_Normal,
	TUniqueFunction<void()> CompletionCallback = nullptr)
{
	return Async(EAsyncExecution::Thread, Forward<CallableType>(Callable), MoveTemp(CompletionCallback));
}

template <class CallableType>
auto AsyncPool(FQueuedThreadPool& ThreadPool, CallableType&& Callable, TUniqueFunction<void()> CompletionCallback = nullptr,
	EQueuedWorkPriority InQueuedWorkPriority = EQueuedWorkPriority::Normal)
{
	using FResult = std::invoke_result_t<std::decay_t<CallableType>&>;
	TPromise<FResult> Promise(MoveTemp(CompletionCallback));
	TFuture<FResult> Future = Promise.GetFuture();
	UE::Core::Private::RunOnPool(ThreadPool,
		[Promise = MoveTemp(Promise), Callable = std::decay_t<CallableType>(Forward<CallableType>(Callable))]() mutable
		{ Promise.SetFromCall(Callable); });
	return Future;
}

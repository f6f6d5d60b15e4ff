#include "Async/ParallelFor.h"

#include "Async/Async.h"
#include "Misc/QueuedThreadPool.h"

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>

namespace
{
/** Outlives the call, because a helper may begin when all indices are taken and the caller has gone on. */
struct FLoop
{
	std::atomic<int64> Next{0};
	int32 Num = 0;
	int32 Portion = 1;
	std::mutex Mutex;
	std::condition_variable AllDone;
	int32 NumDone = 0;
};

/** Body is only touched while an index is held, which the caller waits for. */
void RunPortions(FLoop& Loop, const TFunctionRef<void(int32)>& Body)
{
	for (;;)
	{
		const int64 Begin = Loop.Next.fetch_add(Loop.Portion);
		if (Begin >= Loop.Num)
		{
			return;
		}
		const int32 First = static_cast<int32>(Begin);
		const int32 Count = std::min(Loop.Portion, Loop.Num - First);
		for (int32 Index = First; Index < First + Count; ++Index)
		{
			Body(Index);
		}
		const std::lock_guard Lock(Loop.Mutex);
		Loop.NumDone += Count;
		if (Loop.NumDone == Loop.Num)
		{
			Loop.AllDone.notify_all();
		}
	}
}
}

void ParallelFor(int32 Num, TFunctionRef<void(int32)> Body, EParallelForFlags Flags)
{
	const int32 NumHelpers = GThreadPool != nullptr && Flags != EParallelForFlags::ForceSingleThread
		? std::min(GThreadPool->GetNumThreads(), Num - 1)
		: 0;
	if (NumHelpers <= 0)
	{
		for (int32 Index = 0; Index < Num; ++Index)
		{
			Body(Index);
		}
		return;
	}
	const std::shared_ptr<FLoop> Loop = std::make_shared<FLoop>();
	Loop->Num = Num;
	// Several portions for each thread, so that none waits long for the last one.
	Loop->Portion = Flags == EParallelForFlags::Unbalanced ? 1 : std::max(1, Num / ((NumHelpers + 1) * 8));
	for (int32 Helper = 0; Helper < NumHelpers; ++Helper)
	{
		UE::Core::Private::RunOnPool(*GThreadPool, [Loop, Body]
			{ RunPortions(*Loop, Body); });
	}
	RunPortions(*Loop, Body);
	std::unique_lock Lock(Loop->Mutex);
	Loop->AllDone.wait(Lock, [&Loop]
		{ return Loop->NumDone == Loop->Num; });
}

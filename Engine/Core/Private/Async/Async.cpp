#include "Async/Async.h"

#include <thread>

namespace
{
class FCertainWork final : public IQueuedWork
{
public:
	explicit FCertainWork(TUniqueFunction<void()> InFunction)
		: Function(MoveTemp(InFunction))
	{
	}

	void DoThreadedWork() override
	{
		Function();
		delete this;
	}
	/** Somebody may wait for the result, so that it must come all the same. */
	void Abandon() override { DoThreadedWork(); }

private:
	TUniqueFunction<void()> Function;
};
}

void UE::Core::Private::RunOnNewThread(TUniqueFunction<void()> Function)
{
	std::thread([Function = MoveTemp(Function)]
		{ Function(); })
		.detach();
}

void UE::Core::Private::RunOnPool(FQueuedThreadPool& Pool, TUniqueFunction<void()> Function)
{
	Pool.AddQueuedWork(new FCertainWork(MoveTemp(Function)));
}

#include "HAL/Event.h"

#include "HAL/PlatformProcess.h"
#include "Templates/UniquePtr.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <vector>

namespace
{
class FConditionEvent final : public FEvent
{
public:
	explicit FConditionEvent(bool bInManualReset)
		: bManualReset(bInManualReset)
	{
	}

	void Trigger() override
	{
		// Notified under the lock: a waiter may give the event back to the pool as soon as it wakes.
		const std::lock_guard Lock(Mutex);
		bTriggered = true;
		bManualReset ? Condition.notify_all() : Condition.notify_one();
	}

	void Reset() override
	{
		const std::lock_guard Lock(Mutex);
		bTriggered = false;
	}

	bool Wait(uint32 Milliseconds) override
	{
		std::unique_lock Lock(Mutex);
		const auto IsTriggered = [this]
		{ return bTriggered; };
		if (Milliseconds == MAX_uint32)
		{
			Condition.wait(Lock, IsTriggered);
		}
		else if (!Condition.wait_for(Lock, std::chrono::milliseconds(Milliseconds), IsTriggered))
		{
			return false;
		}
		bTriggered = bManualReset;
		return true;
	}

	bool IsManualReset() const override { return bManualReset; }

private:
	std::mutex Mutex;
	std::condition_variable Condition;
	bool bTriggered = false;
	const bool bManualReset;
};

struct FEventPool
{
	std::mutex Mutex;
	std::vector<TUniquePtr<FEvent>> Events[2];
};

FEventPool& GetEventPool()
{
	// Never destroyed: threads that outlive main's statics still return events.
	static FEventPool* const Pool = new FEventPool;
	return *Pool;
}
}

FEvent* FPlatformProcess::GetSynchEventFromPool(bool bIsManualReset)
{
	FEventPool& Pool = GetEventPool();
	const std::lock_guard Lock(Pool.Mutex);
	std::vector<TUniquePtr<FEvent>>& Events = Pool.Events[bIsManualReset];
	if (Events.empty())
	{
		return new FConditionEvent(bIsManualReset);
	}
	FEvent* const Event = Events.back().Release();
	Events.pop_back();
	return Event;
}

void FPlatformProcess::ReturnSynchEventToPool(FEvent* Event)
{
	if (Event == nullptr)
	{
		return;
	}
	Event->Reset();
	FEventPool& Pool = GetEventPool();
	const std::lock_guard Lock(Pool.Mutex);
	Pool.Events[Event->IsManualReset()].push_back(TUniquePtr<FEvent>(Event));
}

FEventRef::FEventRef(EEventMode Mode)
	: Event(FPlatformProcess::GetSynchEventFromPool(Mode == EEventMode::ManualReset))
{
}

FEventRef::~FEventRef()
{
	FPlatformProcess::ReturnSynchEventToPool(Event);
}

FScopedEvent::FScopedEvent()
	: Event(FPlatformProcess::GetSynchEventFromPool())
{
}

FScopedEvent::~FScopedEvent()
{
	if (!bWasReady)
	{
		Event->Wait();
	}
	FPlatformProcess::ReturnSynchEventToPool(Event);
}

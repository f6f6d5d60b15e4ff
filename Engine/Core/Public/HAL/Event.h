#pragma once

#include "CoreTypes.h"
#include "Math/NumericLimits.h"
#include "Misc/Timespan.h"

enum class EEventMode
{
	/** A trigger lets one waiting thread go, or the next that comes. */
	AutoReset,
	/** A trigger lets every thread go until Reset(). */
	ManualReset
};

/** Lets threads wait for each other. Made by FPlatformProcess::GetSynchEventFromPool, or held by an FEventRef. */
class FEvent
{
public:
	virtual ~FEvent() = default;
	virtual void Trigger() = 0;
	virtual void Reset() = 0;
	/** Whether the event was triggered within the time; MAX_uint32 waits for ever. */
	virtual bool Wait(uint32 Milliseconds) = 0;
	virtual bool IsManualReset() const = 0;

	bool Wait() { return Wait(MAX_uint32); }
	bool Wait(const FTimespan& Time)
	{
		const double Milliseconds = Time.GetTotalMilliseconds();
		return Wait(Milliseconds <= 0.0 ? 0u : (Milliseconds >= MAX_uint32 ? MAX_uint32 : static_cast<uint32>(Milliseconds)));
	}
};

/** An event whose end of scope waits for its trigger. */
class FScopedEvent
{
public:
	CORE_API FScopedEvent();
	/** Waits. */
	CORE_API ~FScopedEvent();
	FScopedEvent(const FScopedEvent&) = delete;
	FScopedEvent& operator=(const FScopedEvent&) = delete;

	void Trigger() { Event->Trigger(); }
	FEvent* Get() { return Event; }
	/** Whether it was triggered already. */
	bool IsReady() { return bWasReady || (bWasReady = Event->Wait(0)); }

private:
	FEvent* Event;
	bool bWasReady = false;
};

/** An event for the life of a variable. */
class FEventRef final
{
public:
	CORE_API explicit FEventRef(EEventMode Mode = EEventMode::AutoReset);
	CORE_API ~FEventRef();
	FEventRef(const FEventRef&) = delete;
	FEventRef& operator=(const FEventRef&) = delete;

	FEvent* Get() const { return Event; }
	FEvent* operator->() const { return Event; }

private:
	FEvent* Event;
};

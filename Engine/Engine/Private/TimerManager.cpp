#include "TimerManager.h"

uint64 FTimerManager::AddTimer(const FTimerDelegate& Delegate, double Due, double Rate, bool bLoop)
{
	const uint64 Handle = ++LastHandle;
	FTimer& Timer = Timers.Add(Handle);
	Timer.Delegate = Delegate;
	Timer.Due = Due;
	Timer.Rate = Rate;
	Timer.bLoop = bLoop;
	return Handle;
}

void FTimerManager::SetTimer(FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool bInLoop, float InFirstDelay)
{
	ClearTimer(InOutHandle);
	if (InRate > 0.0f)
	{
		const double FirstDelay = InFirstDelay >= 0.0f ? InFirstDelay : InRate;
		InOutHandle.Handle = AddTimer(InDelegate, Now + FirstDelay, InRate, bInLoop);
	}
}

FTimerHandle FTimerManager::SetTimerForNextTick(const FTimerDelegate& InDelegate)
{
	FTimerHandle Handle;
	Handle.Handle = AddTimer(InDelegate, Now, 0.0, false);
	return Handle;
}

void FTimerManager::ClearTimer(FTimerHandle& InHandle)
{
	Timers.Remove(InHandle.Handle);
	InHandle.Invalidate();
}

void FTimerManager::ClearAllTimersForObject(const void* Object)
{
	TArray<uint64> Cleared;
	for (const TPair<uint64, FTimer>& Pair : Timers)
	{
		if (Pair.Value.Delegate.IsBoundToObject(Object))
		{
			Cleared.Add(Pair.Key);
		}
	}
	for (const uint64 Handle : Cleared)
	{
		Timers.Remove(Handle);
	}
}

float FTimerManager::GetTimerRemaining(FTimerHandle InHandle) const
{
	const FTimer* const Timer = Timers.Find(InHandle.Handle);
	return Timer ? static_cast<float>(Timer->Due - Now) : -1.0f;
}

float FTimerManager::GetTimerRate(FTimerHandle InHandle) const
{
	const FTimer* const Timer = Timers.Find(InHandle.Handle);
	return Timer ? static_cast<float>(Timer->Rate) : -1.0f;
}

uint64 FTimerManager::FindNextDue(uint64 NewestHandle) const
{
	uint64 Next = 0;
	double NextDue = Now;
	for (const TPair<uint64, FTimer>& Pair : Timers)
	{
		const bool bEarlier = Next == 0 ? Pair.Value.Due <= NextDue
										: Pair.Value.Due < NextDue || (Pair.Value.Due == NextDue && Pair.Key < Next);
		if (Pair.Key <= NewestHandle && bEarlier)
		{
			Next = Pair.Key;
			NextDue = Pair.Value.Due;
		}
	}
	return Next;
}

void FTimerManager::Tick(float DeltaTime)
{
	Now += DeltaTime;
	// A timer that is set by a call waits for the next tick, or one that sets itself again would never let this tick end.
	const uint64 NewestHandle = LastHandle;
	while (const uint64 Handle = FindNextDue(NewestHandle))
	{
		FTimer& Timer = Timers.FindChecked(Handle);
		const FTimerDelegate Delegate = Timer.Delegate;
		const bool bObjectIsGone = !Delegate.IsBound();
		if (Timer.bLoop && !bObjectIsGone)
		{
			Timer.Due += Timer.Rate;
		}
		else
		{
			Timers.Remove(Handle);
		}
		Delegate.ExecuteIfBound();
	}
}

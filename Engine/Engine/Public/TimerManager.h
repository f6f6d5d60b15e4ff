#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"

DECLARE_DELEGATE(FTimerDelegate);

/** Calls delegates after an amount of the tick's own time. Game thread only. */
class ENGINE_API FTimerManager
{
public:
	/** InRate in seconds; a rate of 0 or less only clears the handle's timer. InFirstDelay below 0 stands for InRate. */
	void SetTimer(
		FTimerHandle& InOutHandle, const FTimerDelegate& InDelegate, float InRate, bool bInLoop = false, float InFirstDelay = -1.0f);

	template <class UserClass>
	void SetTimer(FTimerHandle& InOutHandle, UserClass* InObj, void (UserClass::*InTimerMethod)(), float InRate, bool bInLoop = false,
		float InFirstDelay = -1.0f)
	{
		SetTimer(InOutHandle, FTimerDelegate::CreateUObject(InObj, InTimerMethod), InRate, bInLoop, InFirstDelay);
	}

	void SetTimer(FTimerHandle& InOutHandle, TFunction<void()>&& Callback, float InRate, bool bInLoop = false, float InFirstDelay = -1.0f)
	{
		SetTimer(InOutHandle, FTimerDelegate::CreateLambda(MoveTemp(Callback)), InRate, bInLoop, InFirstDelay);
	}

	FTimerHandle SetTimerForNextTick(const FTimerDelegate& InDelegate);
	FTimerHandle SetTimerForNextTick(TFunction<void()>&& Callback)
	{
		return SetTimerForNextTick(FTimerDelegate::CreateLambda(MoveTemp(Callback)));
	}

	/** Ends the timer and invalidates the handle. Safe from within the timer's own call. */
	void ClearTimer(FTimerHandle& InHandle);
	void ClearAllTimersForObject(const void* Object);
	bool IsTimerActive(FTimerHandle InHandle) const { return Timers.Contains(InHandle.Handle); }
	bool TimerExists(FTimerHandle InHandle) const { return Timers.Contains(InHandle.Handle); }
	/** Seconds, or -1 without such a timer. */
	float GetTimerRemaining(FTimerHandle InHandle) const;
	float GetTimerRate(FTimerHandle InHandle) const;

	/** Moves time on and calls what is due, in the order of due times; a looping timer once for each period that has passed. */
	void Tick(float DeltaTime);

private:
	struct FTimer
	{
		FTimerDelegate Delegate;
		double Due = 0.0;
		double Rate = 0.0;
		bool bLoop = false;
	};

	uint64 AddTimer(const FTimerDelegate& Delegate, double Due, double Rate, bool bLoop);
	uint64 FindNextDue(uint64 LastHandle) const;

	TMap<uint64, FTimer> Timers;
	double Now = 0.0;
	uint64 LastHandle = 0;
};

#pragma once

#include "Containers/UnrealString.h"
#include "CoreTypes.h"
#include "HAL/PlatformAffinity.h"

class FRunnable;

/** A thread that runs one FRunnable, which must outlive it. Deleting the thread stops the runnable and waits for its end. */
class FRunnableThread
{
public:
	/** Answers once Init has run; null when the thread cannot be made. The priority is a wish that this host ignores. */
	CORE_API static FRunnableThread* Create(FRunnable* Runnable, const TCHAR* ThreadName, uint32 StackSize = 0,
		EThreadPriority Priority = TPri_Normal, uint64 AffinityMask = FPlatformAffinity::GetNoAffinityMask());
	virtual ~FRunnableThread() = default;

	/** Stops the runnable. Without waiting, the thread object must be kept until the thread has ended. */
	virtual bool Kill(bool bShouldWait = true) = 0;
	virtual void WaitForCompletion() = 0;

	uint32 GetThreadID() const { return ThreadID; }
	const FString& GetThreadName() const { return ThreadName; }
	EThreadPriority GetThreadPriority() const { return ThreadPriority; }

protected:
	FString ThreadName;
	uint32 ThreadID = 0;
	EThreadPriority ThreadPriority = TPri_Normal;
};

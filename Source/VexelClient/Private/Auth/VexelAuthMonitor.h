#pragma once

#include "CoreMinimal.h"
#include "HAL/Event.h"
#include "HAL/Runnable.h"
#include "HAL/RunnableThread.h"

#include <atomic>

/** The thread that gets a new access token a little before the old one expires. It ends when this is destroyed. */
class FVexelAuthMonitor final : public FRunnable
{
public:
	FVexelAuthMonitor();
	virtual ~FVexelAuthMonitor() override;
	UE_NONCOPYABLE(FVexelAuthMonitor)

	/** The time at which the token is to be replaced has changed. Any thread. */
	void Wake();

	virtual uint32 Run() override;
	virtual void Stop() override;

private:
	/** Until the token is to be replaced, or until woken; true when it is time. */
	bool WaitUntilDue();

	FEventRef Woken{EEventMode::AutoReset};
	std::atomic<bool> bStopping = false;
	TUniquePtr<FRunnableThread> Thread;
};

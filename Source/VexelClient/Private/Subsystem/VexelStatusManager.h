#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"
#include "HAL/CriticalSection.h"
#include "Subsystem/VexelStatusInfo.h"
#include "VexelTaskResult.h"

/** Asks the service's public status page, the setting "StatusUrl", how the service is. Game thread. */
class FVexelStatusManager
{
public:
	static FVexelStatusManager& Get();

	/** Checks at once and then each five minutes of the editor's time. Nothing while it does so already. */
	void InternalStartStatusCheck();
	/** One check; it is complete, on the game thread, when the status was broadcast. A check that fails changes nothing and is reported. */
	TVexelTaskResult<void> InternalRunStatusCheck();
	/** From here on nothing is broadcast or reported of the checks so far, however they end. */
	void InternalStopStatusCheck();

	const FVexelStatusInfo& GetCurrent() const { return Current; }
	FVexelStatusInfo::FOnStatusChanged& GetOnStatusChanged() { return OnStatusChanged; }

private:
	void Take(const FVexelStatusInfo& Info, int32 NumStopsThen);
	/** On any thread. */
	void ReportFailure(const FVexelError& Cause, int32 NumStopsThen);

	FVexelStatusInfo Current;
	FVexelStatusInfo::FOnStatusChanged OnStatusChanged;
	FTimerHandle Timer;
	FCriticalSection Lock;
	/** How often checking has ended; changed under the lock, so that a report is over when it has. */
	int32 NumStops = 0;
};

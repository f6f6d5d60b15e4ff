#pragma once

#include "CoreMinimal.h"
#include "Engine/TimerHandle.h"
#include "Subsystem/VexelStatusInfo.h"
#include "VexelTaskResult.h"

/** Asks the service's public status page, the setting "StatusUrl", how the service is. Game thread. */
class FVexelStatusManager
{
public:
	static FVexelStatusManager& Get();

	/** Checks at once and then each five minutes of the editor's time. Nothing while it does so already. */
	void InternalStartStatusCheck();
	/** One check; it is complete, on the game thread, when the status was broadcast. A check that fails changes nothing. */
	TVexelTaskResult<void> InternalRunStatusCheck();
	void InternalStopStatusCheck();

	const FVexelStatusInfo& GetCurrent() const { return Current; }
	FVexelStatusInfo::FOnStatusChanged& GetOnStatusChanged() { return OnStatusChanged; }

private:
	FVexelStatusInfo Current;
	FVexelStatusInfo::FOnStatusChanged OnStatusChanged;
	FTimerHandle Timer;
};

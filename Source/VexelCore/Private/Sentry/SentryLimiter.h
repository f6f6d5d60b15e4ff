#pragma once

#include "CoreMinimal.h"

/** Decides which reports are made: a few a minute, and one of a kind. Times are seconds of any clock that only goes forward. */
class FSentryLimiter
{
public:
	static constexpr int32 MaxPerMinute = 10;

	/** Whether a report of that fingerprint may be made now; counts it when it may. */
	bool Allow(const FString& Fingerprint, double Now);

private:
	struct FMade
	{
		FString Fingerprint;
		double Time;
	};

	/** Those of the last minute. */
	TArray<FMade> Made;
};

#pragma once

#include "CoreTypes.h"

/** The machine's monotonic clock. */
struct CORE_API FPlatformTime
{
	/** Only differences mean something. */
	static double Seconds();
	static uint64 Cycles64();
	static uint32 Cycles() { return static_cast<uint32>(Cycles64()); }
	static double GetSecondsPerCycle64();
	static double ToSeconds64(uint64 Cycles) { return static_cast<double>(Cycles) * GetSecondsPerCycle64(); }
	static double ToMilliseconds64(uint64 Cycles) { return ToSeconds64(Cycles) * 1000.0; }
};

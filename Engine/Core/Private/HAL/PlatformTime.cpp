#include "HAL/PlatformTime.h"

#include <ctime>

uint64 FPlatformTime::Cycles64()
{
	timespec Time{};
	clock_gettime(CLOCK_MONOTONIC, &Time);
	return static_cast<uint64>(Time.tv_sec) * 1000000000ull + static_cast<uint64>(Time.tv_nsec);
}

double FPlatformTime::GetSecondsPerCycle64()
{
	return 1e-9;
}

double FPlatformTime::Seconds()
{
	return ToSeconds64(Cycles64());
}

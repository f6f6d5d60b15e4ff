#include "Sentry/SentryLimiter.h"

namespace
{
constexpr double PeriodSeconds = 60.0;
}

bool FSentryLimiter::Allow(const FString& Fingerprint, double Now)
{
	Made.RemoveAll([&](const FMade& Report)
		{ return Now - Report.Time >= PeriodSeconds; });
	const bool bSeen = Made.ContainsByPredicate([&](const FMade& Report)
		{ return Report.Fingerprint.Equals(Fingerprint); });
	if (bSeen || Made.Num() >= MaxPerMinute)
	{
		return false;
	}
	Made.Add(FMade{Fingerprint, Now});
	return true;
}

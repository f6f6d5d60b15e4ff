#pragma once

#include "CoreTypes.h"
#include "Math/NumericLimits.h"
#include "Templates/TypeHash.h"

#include <compare>

class FArchive;
class FString;
class FOutputDevice;
class UObject;

namespace ETimespan
{
/** A tick is 100 nanoseconds. */
inline constexpr int64 NanosecondsPerTick = 100;
inline constexpr int64 TicksPerMicrosecond = 10;
inline constexpr int64 TicksPerMillisecond = 10000;
inline constexpr int64 TicksPerSecond = 10000000;
inline constexpr int64 TicksPerMinute = 600000000;
inline constexpr int64 TicksPerHour = 36000000000;
inline constexpr int64 TicksPerDay = 864000000000;
inline constexpr int64 TicksPerWeek = 6048000000000;
inline constexpr int64 MinTicks = MIN_int64;
inline constexpr int64 MaxTicks = MAX_int64;
}

/** A length of time, negative too, in ticks of 100 nanoseconds. */
struct FTimespan
{
	constexpr FTimespan() = default;
	constexpr explicit FTimespan(int64 InTicks)
		: Ticks(InTicks)
	{
	}
	constexpr FTimespan(int32 Hours, int32 Minutes, int32 Seconds)
		: FTimespan(0, Hours, Minutes, Seconds, 0)
	{
	}
	constexpr FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds)
		: FTimespan(Days, Hours, Minutes, Seconds, 0)
	{
	}
	constexpr FTimespan(int32 Days, int32 Hours, int32 Minutes, int32 Seconds, int32 FractionNano)
		: Ticks(Days * ETimespan::TicksPerDay + Hours * ETimespan::TicksPerHour + Minutes * ETimespan::TicksPerMinute +
			  Seconds * ETimespan::TicksPerSecond + FractionNano / ETimespan::NanosecondsPerTick)
	{
	}

	constexpr FTimespan operator+(FTimespan Other) const { return FTimespan(Ticks + Other.Ticks); }
	constexpr FTimespan operator-(FTimespan Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FTimespan operator-() const { return FTimespan(-Ticks); }
	constexpr FTimespan operator*(double Scalar) const { return FTimespan(static_cast<int64>(static_cast<double>(Ticks) * Scalar)); }
	constexpr FTimespan operator/(double Scalar) const { return FTimespan(static_cast<int64>(static_cast<double>(Ticks) / Scalar)); }
	constexpr FTimespan& operator+=(FTimespan Other) { return *this = *this + Other; }
	constexpr FTimespan& operator-=(FTimespan Other) { return *this = *this - Other; }
	constexpr auto operator<=>(const FTimespan&) const = default;

	constexpr int64 GetTicks() const { return Ticks; }
	constexpr int32 GetDays() const { return static_cast<int32>(Ticks / ETimespan::TicksPerDay); }
	constexpr int32 GetHours() const { return static_cast<int32>(Ticks / ETimespan::TicksPerHour % 24); }
	constexpr int32 GetMinutes() const { return static_cast<int32>(Ticks / ETimespan::TicksPerMinute % 60); }
	constexpr int32 GetSeconds() const { return static_cast<int32>(Ticks / ETimespan::TicksPerSecond % 60); }
	constexpr int32 GetFractionMilli() const
	{
		return static_cast<int32>(Ticks % ETimespan::TicksPerSecond / ETimespan::TicksPerMillisecond);
	}
	constexpr int32 GetFractionMicro() const
	{
		return static_cast<int32>(Ticks % ETimespan::TicksPerSecond / ETimespan::TicksPerMicrosecond);
	}
	constexpr int32 GetFractionNano() const
	{
		return static_cast<int32>(Ticks % ETimespan::TicksPerSecond * ETimespan::NanosecondsPerTick);
	}
	constexpr FTimespan GetDuration() const { return FTimespan(Ticks < 0 ? -Ticks : Ticks); }
	constexpr double GetTotalDays() const { return static_cast<double>(Ticks) / ETimespan::TicksPerDay; }
	constexpr double GetTotalHours() const { return static_cast<double>(Ticks) / ETimespan::TicksPerHour; }
	constexpr double GetTotalMinutes() const { return static_cast<double>(Ticks) / ETimespan::TicksPerMinute; }
	constexpr double GetTotalSeconds() const { return static_cast<double>(Ticks) / ETimespan::TicksPerSecond; }
	constexpr double GetTotalMilliseconds() const { return static_cast<double>(Ticks) / ETimespan::TicksPerMillisecond; }
	constexpr double GetTotalMicroseconds() const { return static_cast<double>(Ticks) / ETimespan::TicksPerMicrosecond; }
	constexpr bool IsZero() const { return Ticks == 0; }

	/** A value out of range becomes the nearest limit, and a value that is no number becomes zero. */
	CORE_API static FTimespan FromDays(double Days);
	CORE_API static FTimespan FromHours(double Hours);
	CORE_API static FTimespan FromMinutes(double Minutes);
	CORE_API static FTimespan FromSeconds(double Seconds);
	CORE_API static FTimespan FromMilliseconds(double Milliseconds);
	CORE_API static FTimespan FromMicroseconds(double Microseconds);
	static constexpr FTimespan MinValue() { return FTimespan(ETimespan::MinTicks); }
	static constexpr FTimespan MaxValue() { return FTimespan(ETimespan::MaxTicks); }
	static constexpr FTimespan Zero() { return FTimespan(0); }

	/** "+01:02:03.004", with days in front ("+5.01:02:03.004") when there are any. */
	CORE_API FString ToString() const;
	/** The sign, then the format with %d days, %h, %m, %s, %f milliseconds, %u microseconds, %t ticks, %n nanoseconds replaced. */
	CORE_API FString ToString(const TCHAR* Format) const;
	/** Reads [sign][days.]hours:minutes:seconds[.fraction]. */
	CORE_API static bool Parse(const FString& TimespanString, FTimespan& OutTimespan);

	CORE_API bool ExportTextItem(
		FString& ValueStr, const FTimespan& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	CORE_API bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	CORE_API bool Serialize(FArchive& Ar);
	CORE_API friend FArchive& operator<<(FArchive& Ar, FTimespan& Timespan);
	friend uint32 GetTypeHash(const FTimespan& Timespan) { return ::GetTypeHash(Timespan.Ticks); }

private:
	int64 Ticks = 0;
};

constexpr FTimespan operator*(double Scalar, FTimespan Timespan)
{
	return Timespan * Scalar;
}

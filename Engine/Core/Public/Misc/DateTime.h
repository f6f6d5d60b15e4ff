#pragma once

#include "CoreTypes.h"
#include "Misc/Timespan.h"

enum class EDayOfWeek
{
	Monday = 0,
	Tuesday,
	Wednesday,
	Thursday,
	Friday,
	Saturday,
	Sunday
};

enum class EMonthOfYear
{
	January = 1,
	February,
	March,
	April,
	May,
	June,
	July,
	August,
	September,
	October,
	November,
	December
};

/** A point in the calendar from the year 1 to the year 9999, in ticks of 100 nanoseconds since 0001-01-01, without a time zone. */
struct FDateTime
{
	constexpr FDateTime() = default;
	constexpr explicit FDateTime(int64 InTicks)
		: Ticks(InTicks)
	{
	}
	/** The date must exist (see Validate). */
	CORE_API FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour = 0, int32 Minute = 0, int32 Second = 0, int32 Millisecond = 0);

	constexpr FDateTime operator+(FTimespan Span) const { return FDateTime(Ticks + Span.GetTicks()); }
	constexpr FDateTime operator-(FTimespan Span) const { return FDateTime(Ticks - Span.GetTicks()); }
	constexpr FTimespan operator-(FDateTime Other) const { return FTimespan(Ticks - Other.Ticks); }
	constexpr FDateTime& operator+=(FTimespan Span) { return *this = *this + Span; }
	constexpr FDateTime& operator-=(FTimespan Span) { return *this = *this - Span; }
	constexpr auto operator<=>(const FDateTime&) const = default;

	constexpr int64 GetTicks() const { return Ticks; }
	CORE_API void GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const;
	constexpr FDateTime GetDate() const { return FDateTime(Ticks - Ticks % ETimespan::TicksPerDay); }
	CORE_API int32 GetYear() const;
	CORE_API int32 GetMonth() const;
	CORE_API int32 GetDay() const;
	EMonthOfYear GetMonthOfYear() const { return static_cast<EMonthOfYear>(GetMonth()); }
	constexpr EDayOfWeek GetDayOfWeek() const { return static_cast<EDayOfWeek>(Ticks / ETimespan::TicksPerDay % 7); }
	CORE_API int32 GetDayOfYear() const;
	constexpr FTimespan GetTimeOfDay() const { return FTimespan(Ticks % ETimespan::TicksPerDay); }
	constexpr int32 GetHour() const { return GetTimeOfDay().GetHours(); }
	constexpr int32 GetHour12() const { return GetHour() % 12 == 0 ? 12 : GetHour() % 12; }
	constexpr int32 GetMinute() const { return GetTimeOfDay().GetMinutes(); }
	constexpr int32 GetSecond() const { return GetTimeOfDay().GetSeconds(); }
	constexpr int32 GetMillisecond() const { return GetTimeOfDay().GetFractionMilli(); }
	constexpr bool IsMorning() const { return GetHour() < 12; }
	constexpr bool IsAfternoon() const { return GetHour() >= 12; }

	static FDateTime MinValue() { return FDateTime(0); }
	static FDateTime MaxValue() { return FDateTime(3652059 * ETimespan::TicksPerDay - 1); }
	CORE_API static FDateTime UtcNow();
	/** The wall clock of this machine's time zone. */
	CORE_API static FDateTime Now();
	static FDateTime Today() { return Now().GetDate(); }
	CORE_API static bool IsLeapYear(int32 Year);
	/** Month from 1 to 12. */
	CORE_API static int32 DaysInMonth(int32 Year, int32 Month);
	static int32 DaysInYear(int32 Year) { return IsLeapYear(Year) ? 366 : 365; }
	CORE_API static bool Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond);

	/** Seconds since 1970. */
	CORE_API int64 ToUnixTimestamp() const;
	CORE_API double ToUnixTimestampDecimal() const;
	CORE_API static FDateTime FromUnixTimestamp(int64 Seconds);
	CORE_API static FDateTime FromUnixTimestampDecimal(double Seconds);

	/** "2024.02.29-13.05.09". */
	CORE_API FString ToString() const;
	/** Replaces %a am/pm, %A AM/PM, %d, %D day of the year, %m, %y, %Y, %h (12), %H (24), %M, %S, %s milliseconds. */
	CORE_API FString ToString(const TCHAR* Format) const;
	/** "2024-02-29T13:05:09.250Z". */
	CORE_API FString ToIso8601() const;
	/** "Thu, 29 Feb 2024 13:05:09 GMT". */
	CORE_API FString ToHttpDate() const;
	/** Reads the form of ToString(), with milliseconds after another '.' or ':' perhaps. */
	CORE_API static bool Parse(const FString& DateTimeString, FDateTime& OutDateTime);
	/** A date, or a date and a time with a fraction and "Z" or an offset; the result is in UTC. */
	CORE_API static bool ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime);
	CORE_API static bool ParseHttpDate(const FString& HttpDate, FDateTime& OutDateTime);

	CORE_API bool ExportTextItem(
		FString& ValueStr, const FDateTime& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	CORE_API bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);
	CORE_API bool Serialize(FArchive& Ar);
	CORE_API friend FArchive& operator<<(FArchive& Ar, FDateTime& DateTime);
	friend uint32 GetTypeHash(const FDateTime& DateTime) { return ::GetTypeHash(DateTime.Ticks); }

private:
	int64 Ticks = 0;
};

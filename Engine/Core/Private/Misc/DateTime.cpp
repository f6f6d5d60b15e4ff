#include "Misc/DateTime.h"

#include "Containers/UnrealString.h"
#include "Misc/AssertionMacros.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Serialization/Archive.h"

#include <chrono>
#include <cmath>
#include <ctime>

namespace
{
constexpr int64 UnixEpochTicks = 621355968000000000;

const TCHAR* const DayNames[] = {TEXT("Mon"), TEXT("Tue"), TEXT("Wed"), TEXT("Thu"), TEXT("Fri"), TEXT("Sat"), TEXT("Sun")};
const TCHAR* const MonthNames[] = {TEXT("Jan"), TEXT("Feb"), TEXT("Mar"), TEXT("Apr"), TEXT("May"), TEXT("Jun"),
	TEXT("Jul"), TEXT("Aug"), TEXT("Sep"), TEXT("Oct"), TEXT("Nov"), TEXT("Dec")};

std::chrono::year_month_day GetCalendarDate(const FDateTime& DateTime)
{
	// Both terms are whole days since the year 1, so that dates before 1970 round down too.
	const int64 DaysSince1970 = DateTime.GetTicks() / ETimespan::TicksPerDay - UnixEpochTicks / ETimespan::TicksPerDay;
	return std::chrono::sys_days(std::chrono::days(DaysSince1970));
}

/** Walks over a text of fixed fields; once a field is missing, every later answer is false. */
class FFieldReader
{
public:
	explicit FFieldReader(const TCHAR* InText)
		: Text(InText)
	{
	}

	bool Digits(int32 Count, int32& OutValue)
	{
		OutValue = 0;
		for (int32 Index = 0; bOk && Index < Count; ++Index)
		{
			bOk = FChar::IsDigit(*Text);
			OutValue = bOk ? OutValue * 10 + (*Text++ - TEXT('0')) : 0;
		}
		return bOk;
	}
	bool Expect(TCHAR Char)
	{
		bOk = bOk && Accept(Char);
		return bOk;
	}
	bool Accept(TCHAR Char)
	{
		if (!bOk || *Text != Char)
		{
			return false;
		}
		++Text;
		return true;
	}
	bool IsAtDigit() const { return bOk && FChar::IsDigit(*Text); }
	bool IsAtEnd() const { return bOk && *Text == 0; }
	bool IsOk() const { return bOk; }
	const TCHAR* GetText() const { return Text; }

	/** A name of the table, by its place. */
	template <SIZE_T Num>
	bool Name(const TCHAR* const (&Names)[Num], int32& OutIndex)
	{
		for (OutIndex = 0; bOk && OutIndex < static_cast<int32>(Num); ++OutIndex)
		{
			if (FCString::Strnicmp(Text, Names[OutIndex], 3) == 0)
			{
				Text += 3;
				return true;
			}
		}
		bOk = false;
		return false;
	}

private:
	const TCHAR* Text;
	bool bOk = true;
};

struct FFields
{
	int32 Year = 1;
	int32 Month = 1;
	int32 Day = 1;
	int32 Hour = 0;
	int32 Minute = 0;
	int32 Second = 0;

	bool ToDateTime(FDateTime& OutDateTime) const
	{
		if (!FDateTime::Validate(Year, Month, Day, Hour, Minute, Second, 0))
		{
			return false;
		}
		OutDateTime = FDateTime(Year, Month, Day, Hour, Minute, Second);
		return true;
	}
};

/** Digits of a second's fraction, as many as there are, as ticks. */
int64 ReadFractionTicks(FFieldReader& Reader)
{
	int64 Ticks = 0;
	int64 Unit = ETimespan::TicksPerSecond;
	int32 Digit = 0;
	while (Reader.IsAtDigit() && Reader.Digits(1, Digit))
	{
		Unit /= 10;
		Ticks += Digit * Unit;
	}
	return Ticks;
}

/** "yyyy.mm.dd-hh.mm.ss", with milliseconds perhaps; goes past what it read. */
bool ReadDotted(const TCHAR*& Text, FDateTime& OutDateTime)
{
	FFieldReader Reader(Text);
	FFields Fields;
	Reader.Digits(4, Fields.Year);
	Reader.Expect(TEXT('.'));
	Reader.Digits(2, Fields.Month);
	Reader.Expect(TEXT('.'));
	Reader.Digits(2, Fields.Day);
	Reader.Expect(TEXT('-'));
	Reader.Digits(2, Fields.Hour);
	Reader.Expect(TEXT('.'));
	Reader.Digits(2, Fields.Minute);
	Reader.Expect(TEXT('.'));
	Reader.Digits(2, Fields.Second);
	FDateTime Result;
	if (!Reader.IsOk() || !Fields.ToDateTime(Result))
	{
		return false;
	}
	if (Reader.Accept(TEXT('.')) || Reader.Accept(TEXT(':')))
	{
		Result += FTimespan(ReadFractionTicks(Reader));
	}
	OutDateTime = Result;
	Text = Reader.GetText();
	return true;
}
}

FDateTime::FDateTime(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	checkf(Validate(Year, Month, Day, Hour, Minute, Second, Millisecond), TEXT("No such date: %d-%d-%d %d:%d:%d.%d"),
		Year, Month, Day, Hour, Minute, Second, Millisecond);
	const std::chrono::year_month_day Date{std::chrono::year(Year), std::chrono::month(Month), std::chrono::day(Day)};
	const int64 DaysSince1970 = std::chrono::sys_days(Date).time_since_epoch().count();
	Ticks = UnixEpochTicks + DaysSince1970 * ETimespan::TicksPerDay + Hour * ETimespan::TicksPerHour +
		Minute * ETimespan::TicksPerMinute + Second * ETimespan::TicksPerSecond + Millisecond * ETimespan::TicksPerMillisecond;
}

void FDateTime::GetDate(int32& OutYear, int32& OutMonth, int32& OutDay) const
{
	const std::chrono::year_month_day Date = GetCalendarDate(*this);
	OutYear = static_cast<int32>(Date.year());
	OutMonth = static_cast<int32>(static_cast<unsigned>(Date.month()));
	OutDay = static_cast<int32>(static_cast<unsigned>(Date.day()));
}

int32 FDateTime::GetYear() const
{
	return static_cast<int32>(GetCalendarDate(*this).year());
}

int32 FDateTime::GetMonth() const
{
	return static_cast<int32>(static_cast<unsigned>(GetCalendarDate(*this).month()));
}

int32 FDateTime::GetDay() const
{
	return static_cast<int32>(static_cast<unsigned>(GetCalendarDate(*this).day()));
}

int32 FDateTime::GetDayOfYear() const
{
	return (GetDate() - FDateTime(GetYear(), 1, 1)).GetDays() + 1;
}

FDateTime FDateTime::UtcNow()
{
	timespec Time{};
	clock_gettime(CLOCK_REALTIME, &Time);
	return FDateTime(UnixEpochTicks + Time.tv_sec * ETimespan::TicksPerSecond + Time.tv_nsec / ETimespan::NanosecondsPerTick);
}

FDateTime FDateTime::Now()
{
	timespec Time{};
	clock_gettime(CLOCK_REALTIME, &Time);
	tm Local{};
	localtime_r(&Time.tv_sec, &Local);
	return FDateTime(
		UnixEpochTicks + (Time.tv_sec + Local.tm_gmtoff) * ETimespan::TicksPerSecond + Time.tv_nsec / ETimespan::NanosecondsPerTick);
}

bool FDateTime::IsLeapYear(int32 Year)
{
	return std::chrono::year(Year).is_leap();
}

int32 FDateTime::DaysInMonth(int32 Year, int32 Month)
{
	check(Month >= 1 && Month <= 12);
	const std::chrono::year_month_day_last Last{std::chrono::year(Year), std::chrono::month_day_last(std::chrono::month(Month))};
	return static_cast<int32>(static_cast<unsigned>(Last.day()));
}

bool FDateTime::Validate(int32 Year, int32 Month, int32 Day, int32 Hour, int32 Minute, int32 Second, int32 Millisecond)
{
	return Year >= 1 && Year <= 9999 && Month >= 1 && Month <= 12 && Day >= 1 && Day <= DaysInMonth(Year, Month) &&
		Hour >= 0 && Hour <= 23 && Minute >= 0 && Minute <= 59 && Second >= 0 && Second <= 59 && Millisecond >= 0 && Millisecond <= 999;
}

int64 FDateTime::ToUnixTimestamp() const
{
	return (Ticks - UnixEpochTicks) / ETimespan::TicksPerSecond;
}

double FDateTime::ToUnixTimestampDecimal() const
{
	return static_cast<double>(Ticks - UnixEpochTicks) / ETimespan::TicksPerSecond;
}

FDateTime FDateTime::FromUnixTimestamp(int64 Seconds)
{
	constexpr int64 MaxSeconds = 253402300799;
	constexpr int64 MinSeconds = -62135596800;
	const int64 Clamped = Seconds < MinSeconds ? MinSeconds : (Seconds > MaxSeconds ? MaxSeconds : Seconds);
	return FDateTime(UnixEpochTicks + Clamped * ETimespan::TicksPerSecond);
}

FDateTime FDateTime::FromUnixTimestampDecimal(double Seconds)
{
	const double Whole = std::floor(Seconds);
	const bool bInRange = Whole > -62135596800.0 && Whole < 253402300799.0;
	return bInRange ? FromUnixTimestamp(static_cast<int64>(Whole)) + FTimespan::FromSeconds(Seconds - Whole)
					: FromUnixTimestamp(Whole >= 253402300799.0 ? MAX_int64 : MIN_int64);
}

FString FDateTime::ToString() const
{
	return ToString(TEXT("%Y.%m.%d-%H.%M.%S"));
}

FString FDateTime::ToString(const TCHAR* Format) const
{
	int32 Year = 0;
	int32 Month = 0;
	int32 Day = 0;
	GetDate(Year, Month, Day);
	FString Result;
	for (; *Format != 0; ++Format)
	{
		if (*Format != TEXT('%') || Format[1] == 0)
		{
			Result += *Format;
			continue;
		}
		switch (*++Format)
		{
			case TEXT('a'):
				Result += IsMorning() ? TEXT("am") : TEXT("pm");
				break;
			case TEXT('A'):
				Result += IsMorning() ? TEXT("AM") : TEXT("PM");
				break;
			case TEXT('d'):
				Result += FString::Printf(TEXT("%02d"), Day);
				break;
			case TEXT('D'):
				Result += FString::Printf(TEXT("%03d"), GetDayOfYear());
				break;
			case TEXT('m'):
				Result += FString::Printf(TEXT("%02d"), Month);
				break;
			case TEXT('y'):
				Result += FString::Printf(TEXT("%02d"), Year % 100);
				break;
			case TEXT('Y'):
				Result += FString::Printf(TEXT("%04d"), Year);
				break;
			case TEXT('h'):
				Result += FString::Printf(TEXT("%02d"), GetHour12());
				break;
			case TEXT('H'):
				Result += FString::Printf(TEXT("%02d"), GetHour());
				break;
			case TEXT('M'):
				Result += FString::Printf(TEXT("%02d"), GetMinute());
				break;
			case TEXT('S'):
				Result += FString::Printf(TEXT("%02d"), GetSecond());
				break;
			case TEXT('s'):
				Result += FString::Printf(TEXT("%03d"), GetMillisecond());
				break;
			default:
				Result += *Format;
				break;
		}
	}
	return Result;
}

FString FDateTime::ToIso8601() const
{
	return ToString(TEXT("%Y-%m-%dT%H:%M:%S.%sZ"));
}

FString FDateTime::ToHttpDate() const
{
	return FString::Printf(TEXT("%s, %02d %s %04d %02d:%02d:%02d GMT"), DayNames[static_cast<int32>(GetDayOfWeek())], GetDay(),
		MonthNames[GetMonth() - 1], GetYear(), GetHour(), GetMinute(), GetSecond());
}

bool FDateTime::Parse(const FString& DateTimeString, FDateTime& OutDateTime)
{
	const TCHAR* Text = *DateTimeString;
	FDateTime Result;
	if (!ReadDotted(Text, Result) || *Text != 0)
	{
		return false;
	}
	OutDateTime = Result;
	return true;
}

bool FDateTime::ParseIso8601(const TCHAR* DateTimeString, FDateTime& OutDateTime)
{
	FFieldReader Reader(DateTimeString);
	FFields Fields;
	Reader.Digits(4, Fields.Year);
	Reader.Expect(TEXT('-'));
	Reader.Digits(2, Fields.Month);
	Reader.Expect(TEXT('-'));
	Reader.Digits(2, Fields.Day);
	int64 Fraction = 0;
	int32 OffsetHours = 0;
	int32 OffsetMinutes = 0;
	int32 OffsetSign = 0;
	if (Reader.Accept(TEXT('T')) || Reader.Accept(TEXT(' ')))
	{
		Reader.Digits(2, Fields.Hour);
		Reader.Expect(TEXT(':'));
		Reader.Digits(2, Fields.Minute);
		if (Reader.Accept(TEXT(':')))
		{
			Reader.Digits(2, Fields.Second);
			if (Reader.Accept(TEXT('.')) || Reader.Accept(TEXT(',')))
			{
				if (!Reader.IsAtDigit())
				{
					return false;
				}
				Fraction = ReadFractionTicks(Reader);
			}
		}
		OffsetSign = Reader.Accept(TEXT('+')) ? 1 : (Reader.Accept(TEXT('-')) ? -1 : 0);
		if (OffsetSign != 0)
		{
			Reader.Digits(2, OffsetHours);
			Reader.Accept(TEXT(':'));
			if (Reader.IsAtDigit())
			{
				Reader.Digits(2, OffsetMinutes);
			}
		}
		else
		{
			Reader.Accept(TEXT('Z'));
		}
	}
	FDateTime Result;
	if (!Reader.IsAtEnd() || OffsetHours > 23 || OffsetMinutes > 59 || !Fields.ToDateTime(Result))
	{
		return false;
	}
	Result = Result + FTimespan(Fraction) - FTimespan(OffsetHours, OffsetMinutes, 0) * OffsetSign;
	if (Result < MinValue() || Result > MaxValue())
	{
		return false;
	}
	OutDateTime = Result;
	return true;
}

bool FDateTime::ParseHttpDate(const FString& HttpDate, FDateTime& OutDateTime)
{
	FFieldReader Reader(*HttpDate);
	FFields Fields;
	int32 DayIndex = 0;
	int32 MonthIndex = 0;
	Reader.Name(DayNames, DayIndex);
	Reader.Expect(TEXT(','));
	Reader.Expect(TEXT(' '));
	Reader.Digits(2, Fields.Day);
	Reader.Expect(TEXT(' '));
	Reader.Name(MonthNames, MonthIndex);
	Reader.Expect(TEXT(' '));
	Reader.Digits(4, Fields.Year);
	Reader.Expect(TEXT(' '));
	Reader.Digits(2, Fields.Hour);
	Reader.Expect(TEXT(':'));
	Reader.Digits(2, Fields.Minute);
	Reader.Expect(TEXT(':'));
	Reader.Digits(2, Fields.Second);
	for (const TCHAR Char : {TEXT(' '), TEXT('G'), TEXT('M'), TEXT('T')})
	{
		Reader.Expect(Char);
	}
	Fields.Month = MonthIndex + 1;
	return Reader.IsAtEnd() && Fields.ToDateTime(OutDateTime);
}

bool FDateTime::ExportTextItem(
	FString& ValueStr, const FDateTime& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += ToString();
	return true;
}

bool FDateTime::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	return ReadDotted(Buffer, *this);
}

bool FDateTime::Serialize(FArchive& Ar)
{
	Ar << *this;
	return true;
}

FArchive& operator<<(FArchive& Ar, FDateTime& DateTime)
{
	return Ar << DateTime.Ticks;
}

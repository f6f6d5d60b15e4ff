#include "Containers/UnrealString.h"
#include "Misc/DateTime.h"
#include "Misc/Timespan.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ctime>
#include <random>
#include <string>

namespace
{
std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}
}

TEST(Calendar, LeapYearsFollowTheGregorianRule)
{
	struct FCase
	{
		int32 Year;
		int32 DaysInFebruary;
	};
	for (const FCase& Case : {FCase{1, 28}, FCase{4, 29}, FCase{100, 28}, FCase{400, 29}, FCase{1900, 28}, FCase{2000, 29},
			 FCase{2023, 28}, FCase{2100, 28}, FCase{9996, 29}})
	{
		EXPECT_EQ(FDateTime::DaysInMonth(Case.Year, 2), Case.DaysInFebruary) << Case.Year;
		EXPECT_EQ(FDateTime::DaysInYear(Case.Year), 337 + Case.DaysInFebruary) << Case.Year;
		EXPECT_EQ(FDateTime::Validate(Case.Year, 2, 29, 0, 0, 0, 0), Case.DaysInFebruary == 29) << Case.Year;
	}
}

TEST(Calendar, EveryDayOfFourCenturiesFollowsTheDayBefore)
{
	FDateTime Date(1599, 12, 31);
	int32 Year = 1600;
	int32 Month = 1;
	int32 Day = 0;
	int32 DayOfYear = 0;
	EDayOfWeek Weekday = EDayOfWeek::Friday;
	while (Year < 2001)
	{
		if (++Day > FDateTime::DaysInMonth(Year, Month))
		{
			Day = 1;
			Month = Month % 12 + 1;
			Year += Month == 1 ? 1 : 0;
		}
		DayOfYear = Month == 1 && Day == 1 ? 1 : DayOfYear + 1;
		Date += FTimespan(1, 0, 0, 0);
		Weekday = static_cast<EDayOfWeek>((static_cast<int32>(Weekday) + 1) % 7);
		int32 ActualYear = 0;
		int32 ActualMonth = 0;
		int32 ActualDay = 0;
		Date.GetDate(ActualYear, ActualMonth, ActualDay);
		ASSERT_TRUE(ActualYear == Year && ActualMonth == Month && ActualDay == Day) << Utf8(Date.ToString());
		ASSERT_EQ(Date, FDateTime(Year, Month, Day));
		ASSERT_EQ(Date.GetDayOfWeek(), Weekday) << Utf8(Date.ToString());
		ASSERT_EQ(Date.GetDayOfYear(), DayOfYear) << Utf8(Date.ToString());
	}
}

TEST(Calendar, AgreesWithTheSystemsCalendar)
{
	std::mt19937_64 Random(1);
	for (int32 Round = 0; Round < 5000; ++Round)
	{
		const int64 Seconds = std::uniform_int_distribution<int64>(-62135596800, 253402300799)(Random);
		const time_t Time = static_cast<time_t>(Seconds);
		tm Expected{};
		gmtime_r(&Time, &Expected);
		const FDateTime Date = FDateTime::FromUnixTimestamp(Seconds);
		ASSERT_EQ(Date.ToUnixTimestamp(), Seconds);
		ASSERT_EQ(Date.GetYear(), Expected.tm_year + 1900) << Seconds;
		ASSERT_EQ(Date.GetMonth(), Expected.tm_mon + 1) << Seconds;
		ASSERT_EQ(Date.GetDay(), Expected.tm_mday) << Seconds;
		ASSERT_EQ(Date.GetHour(), Expected.tm_hour) << Seconds;
		ASSERT_EQ(Date.GetMinute(), Expected.tm_min) << Seconds;
		ASSERT_EQ(Date.GetSecond(), Expected.tm_sec) << Seconds;
		ASSERT_EQ((static_cast<int32>(Date.GetDayOfWeek()) + 1) % 7, Expected.tm_wday) << Seconds;

		FDateTime Parsed;
		ASSERT_TRUE(FDateTime::ParseIso8601(*Date.ToIso8601(), Parsed)) << Utf8(Date.ToIso8601());
		ASSERT_EQ(Parsed, Date);
		ASSERT_TRUE(FDateTime::Parse(Date.ToString(), Parsed)) << Utf8(Date.ToString());
		ASSERT_EQ(Parsed, Date);
		ASSERT_TRUE(FDateTime::ParseHttpDate(Date.ToHttpDate(), Parsed)) << Utf8(Date.ToHttpDate());
		ASSERT_EQ(Parsed, Date);
	}
}

TEST(Calendar, TheLimitsAreTheFirstAndTheLastTick)
{
	EXPECT_EQ(Utf8(FDateTime::MinValue().ToIso8601()), "0001-01-01T00:00:00.000Z");
	EXPECT_EQ(Utf8(FDateTime::MaxValue().ToIso8601()), "9999-12-31T23:59:59.999Z");
	EXPECT_EQ(FDateTime(9999, 12, 31, 23, 59, 59, 999) + FTimespan(9999), FDateTime::MaxValue());
	EXPECT_EQ(FDateTime::FromUnixTimestamp(MIN_int64), FDateTime::MinValue());
	EXPECT_EQ(FDateTime::FromUnixTimestamp(MAX_int64), FDateTime(9999, 12, 31, 23, 59, 59));
	EXPECT_EQ(FDateTime::FromUnixTimestampDecimal(-0.5), FDateTime(1969, 12, 31, 23, 59, 59, 500));
	EXPECT_EQ(FDateTime(2024, 1, 1, 0, 30).GetHour12(), 12);
	EXPECT_EQ(Utf8(FDateTime(2004, 1, 2, 12, 3).ToString(TEXT("%h:%M %a|%A %y %D %% %q %"))), "12:03 pm|PM 04 002 % q %");
}

TEST(Calendar, BrokenDatesAreRefusedAndChangeNothing)
{
	const FDateTime Old(2000, 1, 1);
	FDateTime Parsed = Old;
	for (const TCHAR* const Text :
		{TEXT(""), TEXT("2024"), TEXT("2024-02-30"), TEXT("2024-00-10"), TEXT("0000-01-01"), TEXT("10000-01-01"), TEXT("2024-02-29T"),
			TEXT("2024-02-29T1:00"), TEXT("2024-02-29T10:60"), TEXT("2024-02-29T10:00:60Z"), TEXT("2024-02-29T10:00:00+"),
			TEXT("2024-02-29T10:00:00+24:00"), TEXT("2024-02-29T10:00:00+01:60"), TEXT("2024-02-29T10:00:00Z "), TEXT("-024-02-29"),
			TEXT("2024-02-29X10:00"), TEXT("9999-12-31T23:59:59-01:00"), TEXT("\u0662\u0660\u0662\u0664-01-01")})
	{
		EXPECT_FALSE(FDateTime::ParseIso8601(Text, Parsed)) << Utf8(Text);
	}
	for (const TCHAR* const Text :
		{TEXT("2024.02.30-00.00.00"), TEXT("2024.02.29-00.00"), TEXT("2024.02.29 00.00.00"), TEXT("2024.02.29-00.00.00x"), TEXT("")})
	{
		EXPECT_FALSE(FDateTime::Parse(Text, Parsed)) << Utf8(Text);
	}
	for (const TCHAR* const Text : {TEXT("Thu, 30 Feb 2024 13:05:09 GMT"), TEXT("Xyz, 29 Feb 2024 13:05:09 GMT"),
			 TEXT("Thu, 29 Feb 2024 13:05:09"), TEXT("Thu, 29 Feb 2024 13:05:09 GMT "), TEXT("Thu, 29 Fe"), TEXT("")})
	{
		EXPECT_FALSE(FDateTime::ParseHttpDate(Text, Parsed)) << Utf8(Text);
	}
	EXPECT_EQ(Parsed, Old);
	EXPECT_TRUE(FDateTime::ParseIso8601(TEXT("2024-02-29T10:00:00.123456789123456789Z"), Parsed));
	EXPECT_EQ(Parsed.GetTicks() % ETimespan::TicksPerSecond, 1234567);
	EXPECT_TRUE(FDateTime::ParseIso8601(TEXT("2024-03-01T00:30+0100"), Parsed));
	EXPECT_EQ(Parsed, FDateTime(2024, 2, 29, 23, 30));
}

TEST(Spans, TextRoundTripsAtTheTick)
{
	std::mt19937_64 Random(2);
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		const int64 Limit = int64(1) << (Random() % 62);
		const FTimespan Span(std::uniform_int_distribution<int64>(-Limit, Limit)(Random));
		const FString Text = Span.ToString(TEXT("%d.%h:%m:%s.%n"));
		FTimespan Parsed;
		ASSERT_TRUE(FTimespan::Parse(Text, Parsed)) << Utf8(Text);
		ASSERT_EQ(Parsed, Span) << Utf8(Text);
		ASSERT_EQ(FTimespan(Span.GetDays(), Span.GetHours(), Span.GetMinutes(), Span.GetSeconds(), Span.GetFractionNano()), Span)
			<< Utf8(Text);
	}
}

TEST(Spans, BrokenTextsAreRefusedAndChangeNothing)
{
	FTimespan Parsed(7);
	for (const TCHAR* const Text : {TEXT(""), TEXT("+"), TEXT("1"), TEXT("1:2"), TEXT("24:00:00"), TEXT("1.24:00:00"), TEXT("00:60:00"),
			 TEXT("00:00:60"), TEXT("00:00:00."), TEXT("--00:00:01"), TEXT("00:00:01 "), TEXT("1.2.3:00:00"), TEXT("99999999.00:00:00"),
			 TEXT("999999999.00:00:00"), TEXT("00:-1:00"), TEXT("00:00:00.1234567891")})
	{
		EXPECT_FALSE(FTimespan::Parse(Text, Parsed)) << Utf8(Text);
	}
	EXPECT_EQ(Parsed, FTimespan(7));
	EXPECT_EQ(FTimespan::FromDays(-1e300), FTimespan::MinValue());
	EXPECT_EQ(FTimespan::FromSeconds(std::nan("")), FTimespan::Zero());
	EXPECT_EQ(FTimespan::FromMilliseconds(0.00005), FTimespan(1));
}

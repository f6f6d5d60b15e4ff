#include "Misc/Timespan.h"

#include "Containers/UnrealString.h"
#include "Misc/CString.h"
#include "Misc/Char.h"
#include "Serialization/Archive.h"

#include <cmath>

namespace
{
FTimespan FromUnits(double Value, int64 TicksPerUnit)
{
	const double Ticks = Value * static_cast<double>(TicksPerUnit);
	if (std::isnan(Ticks))
	{
		return FTimespan::Zero();
	}
	// 2^63 is the first value that int64 cannot hold.
	if (Ticks >= 9223372036854775808.0)
	{
		return FTimespan::MaxValue();
	}
	return Ticks <= -9223372036854775808.0 ? FTimespan::MinValue() : FTimespan(static_cast<int64>(std::round(Ticks)));
}

/** Reads digits, at most MaxDigits of them, and goes past them. */
bool ReadNumber(const TCHAR*& Text, int32 MaxDigits, int64& OutValue, int32* OutNumDigits = nullptr)
{
	int32 NumDigits = 0;
	OutValue = 0;
	while (FChar::IsDigit(*Text) && NumDigits < MaxDigits)
	{
		OutValue = OutValue * 10 + (*Text - TEXT('0'));
		++Text;
		++NumDigits;
	}
	if (OutNumDigits != nullptr)
	{
		*OutNumDigits = NumDigits;
	}
	return NumDigits > 0;
}

/** Reads a timespan's text and goes past it. */
bool ReadTimespan(const TCHAR*& Text, FTimespan& OutTimespan)
{
	const TCHAR* At = Text;
	const bool bNegative = *At == TEXT('-');
	At += bNegative || *At == TEXT('+') ? 1 : 0;

	int64 Days = 0;
	int64 Hours = 0;
	int64 Minutes = 0;
	int64 Seconds = 0;
	if (!ReadNumber(At, 8, Hours))
	{
		return false;
	}
	if (*At == TEXT('.'))
	{
		Days = Hours;
		++At;
		if (!ReadNumber(At, 2, Hours))
		{
			return false;
		}
	}
	if (*At++ != TEXT(':') || !ReadNumber(At, 2, Minutes) || *At++ != TEXT(':') || !ReadNumber(At, 2, Seconds))
	{
		return false;
	}
	if (Hours > 23 || Minutes > 59 || Seconds > 59 || Days > FTimespan::MaxValue().GetDays() - 1)
	{
		return false;
	}
	int64 Fraction = 0;
	if (*At == TEXT('.'))
	{
		++At;
		int32 NumDigits = 0;
		if (!ReadNumber(At, 9, Fraction, &NumDigits))
		{
			return false;
		}
		for (; NumDigits < 9; ++NumDigits)
		{
			Fraction *= 10;
		}
	}
	const FTimespan Span(static_cast<int32>(Days), static_cast<int32>(Hours), static_cast<int32>(Minutes), static_cast<int32>(Seconds),
		static_cast<int32>(Fraction));
	OutTimespan = bNegative ? -Span : Span;
	Text = At;
	return true;
}
}

FTimespan FTimespan::FromDays(double Days)
{
	return FromUnits(Days, ETimespan::TicksPerDay);
}

FTimespan FTimespan::FromHours(double Hours)
{
	return FromUnits(Hours, ETimespan::TicksPerHour);
}

FTimespan FTimespan::FromMinutes(double Minutes)
{
	return FromUnits(Minutes, ETimespan::TicksPerMinute);
}

FTimespan FTimespan::FromSeconds(double Seconds)
{
	return FromUnits(Seconds, ETimespan::TicksPerSecond);
}

FTimespan FTimespan::FromMilliseconds(double Milliseconds)
{
	return FromUnits(Milliseconds, ETimespan::TicksPerMillisecond);
}

FTimespan FTimespan::FromMicroseconds(double Microseconds)
{
	return FromUnits(Microseconds, ETimespan::TicksPerMicrosecond);
}

FString FTimespan::ToString() const
{
	return ToString(GetDays() == 0 ? TEXT("%h:%m:%s.%f") : TEXT("%d.%h:%m:%s.%f"));
}

FString FTimespan::ToString(const TCHAR* Format) const
{
	FString Result;
	Result += Ticks < 0 ? TEXT('-') : TEXT('+');
	for (; *Format != 0; ++Format)
	{
		if (*Format != TEXT('%') || Format[1] == 0)
		{
			Result += *Format;
			continue;
		}
		switch (*++Format)
		{
			case TEXT('d'):
				Result += FString::Printf(TEXT("%d"), std::abs(GetDays()));
				break;
			case TEXT('D'):
				Result += FString::Printf(TEXT("%08d"), std::abs(GetDays()));
				break;
			case TEXT('h'):
				Result += FString::Printf(TEXT("%02d"), std::abs(GetHours()));
				break;
			case TEXT('m'):
				Result += FString::Printf(TEXT("%02d"), std::abs(GetMinutes()));
				break;
			case TEXT('s'):
				Result += FString::Printf(TEXT("%02d"), std::abs(GetSeconds()));
				break;
			case TEXT('f'):
				Result += FString::Printf(TEXT("%03d"), std::abs(GetFractionMilli()));
				break;
			case TEXT('u'):
				Result += FString::Printf(TEXT("%06d"), std::abs(GetFractionMicro()));
				break;
			case TEXT('t'):
				Result += FString::Printf(TEXT("%07d"), std::abs(GetFractionNano() / static_cast<int32>(ETimespan::NanosecondsPerTick)));
				break;
			case TEXT('n'):
				Result += FString::Printf(TEXT("%09d"), std::abs(GetFractionNano()));
				break;
			default:
				Result += *Format;
				break;
		}
	}
	return Result;
}

bool FTimespan::Parse(const FString& TimespanString, FTimespan& OutTimespan)
{
	const TCHAR* Text = *TimespanString;
	FTimespan Span;
	if (!ReadTimespan(Text, Span) || *Text != 0)
	{
		return false;
	}
	OutTimespan = Span;
	return true;
}

bool FTimespan::ExportTextItem(
	FString& ValueStr, const FTimespan& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += ToString(TEXT("%D.%h:%m:%s.%n"));
	return true;
}

bool FTimespan::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	return ReadTimespan(Buffer, *this);
}

bool FTimespan::Serialize(FArchive& Ar)
{
	Ar << *this;
	return true;
}

FArchive& operator<<(FArchive& Ar, FTimespan& Timespan)
{
	return Ar << Timespan.Ticks;
}

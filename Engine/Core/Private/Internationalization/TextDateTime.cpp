#include "Internationalization/TextData.h"

#include <algorithm>

using UE::Core::Private::FDateTimeHistory;
using UE::Core::Private::FTextData;

namespace
{
constexpr const TCHAR* MonthNames[] = {TEXT("January"), TEXT("February"), TEXT("March"), TEXT("April"), TEXT("May"), TEXT("June"),
	TEXT("July"), TEXT("August"), TEXT("September"), TEXT("October"), TEXT("November"), TEXT("December")};
constexpr const TCHAR* DayNames[] = {
	TEXT("Monday"), TEXT("Tuesday"), TEXT("Wednesday"), TEXT("Thursday"), TEXT("Friday"), TEXT("Saturday"), TEXT("Sunday")};

FString FormatDate(const FDateTime& Date, EDateTimeStyle::Type Style)
{
	int32 Year;
	int32 Month;
	int32 Day;
	Date.GetDate(Year, Month, Day);
	const FString MonthName = MonthNames[Month - 1];
	switch (Style)
	{
		case EDateTimeStyle::Short:
			return FString::Printf(TEXT("%d/%d/%02d"), Month, Day, Year % 100);
		case EDateTimeStyle::Long:
			return FString::Printf(TEXT("%s %d, %d"), *MonthName, Day, Year);
		case EDateTimeStyle::Full:
			return FString::Printf(TEXT("%s, %s %d, %d"), DayNames[static_cast<int32>(Date.GetDayOfWeek())], *MonthName, Day, Year);
		default:
			return FString::Printf(TEXT("%s %d, %d"), *MonthName.Left(3), Day, Year);
	}
}

FString FormatTime(const FDateTime& Time, EDateTimeStyle::Type Style)
{
	FString Result = FString::Printf(TEXT("%d:%02d"), Time.GetHour12(), Time.GetMinute());
	if (Style != EDateTimeStyle::Short)
	{
		Result.Appendf(TEXT(":%02d"), Time.GetSecond());
	}
	Result += Time.IsMorning() ? TEXT(" AM") : TEXT(" PM");
	if (Style == EDateTimeStyle::Long || Style == EDateTimeStyle::Full)
	{
		Result += TEXT(" GMT");
	}
	return Result;
}

FText MakeDateTime(ETextHistoryType Type, const FDateTime& Value, EDateTimeStyle::Type DateStyle, EDateTimeStyle::Type TimeStyle)
{
	FDateTimeHistory History;
	History.Value = Value;
	History.DateStyle = DateStyle;
	History.TimeStyle = TimeStyle;
	FTextData Parts;
	Parts.Type = Type;
	Parts.History.Set<FDateTimeHistory>(MoveTemp(History));
	return UE::Core::Private::MakeTextOfParts(MoveTemp(Parts));
}
}

namespace UE::Core::Private
{
const TCHAR* GetDateTimeStyleName(EDateTimeStyle::Type Style)
{
	constexpr const TCHAR* Names[] = {TEXT("Default"), TEXT("Short"), TEXT("Medium"), TEXT("Long"), TEXT("Full")};
	const uint32 Index = static_cast<uint32>(Style);
	return Index < UE_ARRAY_COUNT(Names) ? Names[Index] : nullptr;
}

FString FormatDateTimeOfKind(ETextHistoryType Type, const FDateTimeHistory& History)
{
	// A file may hold any number of ticks; those outside the calendar have no date.
	const FDateTime Value = std::clamp(History.Value, FDateTime::MinValue(), FDateTime::MaxValue());
	switch (Type)
	{
		case ETextHistoryType::AsDate:
			return FormatDate(Value, History.DateStyle);
		case ETextHistoryType::AsTime:
			return FormatTime(Value, History.TimeStyle);
		default:
		{
			const bool bIsLong = History.DateStyle == EDateTimeStyle::Long || History.DateStyle == EDateTimeStyle::Full;
			return FormatDate(Value, History.DateStyle) + (bIsLong ? TEXT(" at ") : TEXT(", ")) + FormatTime(Value, History.TimeStyle);
		}
	}
}
}

FText FText::AsDate(const FDateTime& DateTime, EDateTimeStyle::Type DateStyle)
{
	return MakeDateTime(ETextHistoryType::AsDate, DateTime, DateStyle, EDateTimeStyle::Default);
}

FText FText::AsTime(const FDateTime& DateTime, EDateTimeStyle::Type TimeStyle)
{
	return MakeDateTime(ETextHistoryType::AsTime, DateTime, EDateTimeStyle::Default, TimeStyle);
}

FText FText::AsDateTime(const FDateTime& DateTime, EDateTimeStyle::Type DateStyle, EDateTimeStyle::Type TimeStyle)
{
	return MakeDateTime(ETextHistoryType::AsDateTime, DateTime, DateStyle, TimeStyle);
}

FText FText::AsTimespan(const FTimespan& Timespan)
{
	const int64 Seconds = Timespan.GetTicks() / ETimespan::TicksPerSecond;
	const uint64 Magnitude = Seconds < 0 ? 0 - static_cast<uint64>(Seconds) : static_cast<uint64>(Seconds);
	const TCHAR* const Sign = Seconds < 0 ? TEXT("-") : TEXT("");
	return AsCultureInvariant(
		FString::Printf(TEXT("%s%02llu:%02llu:%02llu"), Sign, Magnitude / 3600, Magnitude / 60 % 60, Magnitude % 60));
}

FText FText::AsMemory(uint64 NumBytes, const FNumberFormattingOptions* Options, EMemoryUnitStandard UnitStandard)
{
	const bool bIsBinary = UnitStandard == EMemoryUnitStandard::IEC;
	const double Step = bIsBinary ? 1024.0 : 1000.0;
	double Number = static_cast<double>(NumBytes);
	int32 Prefix = -1;
	for (; Number >= Step; Number /= Step)
	{
		++Prefix;
	}
	FString Unit = TEXT("B");
	if (Prefix >= 0)
	{
		const FString Letter = FString::Chr((bIsBinary ? TEXT("KMGTPE") : TEXT("kMGTPE"))[Prefix]);
		Unit = Letter + (bIsBinary ? TEXT("iB") : TEXT("B"));
	}
	return AsCultureInvariant(AsNumber(Number, Options).ToString() + TEXT(" ") + Unit);
}

void FTextBuilder::AppendLine(const FText& Text)
{
	const FString Spaces = FString::ChrN(4 * IndentCount, TEXT(' '));
	Lines.Add(Spaces.IsEmpty() ? Text : FText::FromString(Spaces + Text.ToString()));
}

FText FTextBuilder::ToText() const
{
	return FText::Join(FText::FromString(LINE_TERMINATOR), Lines);
}

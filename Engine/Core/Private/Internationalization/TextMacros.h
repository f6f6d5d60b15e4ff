#pragma once

#include "Internationalization/TextData.h"

namespace UE::Core::Private
{
/** Which of a history's macros: how a number is shown, or to whom a time belongs. */
enum class ETextMacroForm : uint8
{
	Plain,
	Grouped,
	Ungrouped,
	Custom,
	Utc,
	Local,
	Lower,
	Upper
};

/** A macro of the text forms that stands for a text that was made of another value. */
struct FTextMacro
{
	ETextHistoryType Type;
	ETextMacroForm Form;
	FStringView Name;
};

inline constexpr FTextMacro GeneratedTextMacros[] = {
	{ETextHistoryType::AsNumber, ETextMacroForm::Grouped, TEXTVIEW("LOCGEN_NUMBER_GROUPED")},
	{ETextHistoryType::AsNumber, ETextMacroForm::Ungrouped, TEXTVIEW("LOCGEN_NUMBER_UNGROUPED")},
	{ETextHistoryType::AsNumber, ETextMacroForm::Custom, TEXTVIEW("LOCGEN_NUMBER_CUSTOM")},
	{ETextHistoryType::AsPercent, ETextMacroForm::Grouped, TEXTVIEW("LOCGEN_PERCENT_GROUPED")},
	{ETextHistoryType::AsPercent, ETextMacroForm::Ungrouped, TEXTVIEW("LOCGEN_PERCENT_UNGROUPED")},
	{ETextHistoryType::AsPercent, ETextMacroForm::Custom, TEXTVIEW("LOCGEN_PERCENT_CUSTOM")},
	{ETextHistoryType::AsCurrency, ETextMacroForm::Plain, TEXTVIEW("LOCGEN_CURRENCY")},
	{ETextHistoryType::AsDate, ETextMacroForm::Utc, TEXTVIEW("LOCGEN_DATE_UTC")},
	{ETextHistoryType::AsDate, ETextMacroForm::Local, TEXTVIEW("LOCGEN_DATE_LOCAL")},
	{ETextHistoryType::AsTime, ETextMacroForm::Utc, TEXTVIEW("LOCGEN_TIME_UTC")},
	{ETextHistoryType::AsTime, ETextMacroForm::Local, TEXTVIEW("LOCGEN_TIME_LOCAL")},
	{ETextHistoryType::AsDateTime, ETextMacroForm::Utc, TEXTVIEW("LOCGEN_DATETIME_UTC")},
	{ETextHistoryType::AsDateTime, ETextMacroForm::Local, TEXTVIEW("LOCGEN_DATETIME_LOCAL")},
	{ETextHistoryType::Transform, ETextMacroForm::Lower, TEXTVIEW("LOCGEN_TOLOWER")},
	{ETextHistoryType::Transform, ETextMacroForm::Upper, TEXTVIEW("LOCGEN_TOUPPER")},
};

/** The options of a CUSTOM number, each written as a call on the one before it. */
template <typename ValueType>
struct TNumberOptionName
{
	FStringView Setter;
	ValueType FNumberFormattingOptions::*Member;
};

inline constexpr TNumberOptionName<bool> SwitchOptions[] = {
	{TEXTVIEW("SetAlwaysSign"), &FNumberFormattingOptions::AlwaysSign},
	{TEXTVIEW("SetUseGrouping"), &FNumberFormattingOptions::UseGrouping},
};

inline constexpr TNumberOptionName<int32> DigitOptions[] = {
	{TEXTVIEW("SetMinimumIntegralDigits"), &FNumberFormattingOptions::MinimumIntegralDigits},
	{TEXTVIEW("SetMaximumIntegralDigits"), &FNumberFormattingOptions::MaximumIntegralDigits},
	{TEXTVIEW("SetMinimumFractionalDigits"), &FNumberFormattingOptions::MinimumFractionalDigits},
	{TEXTVIEW("SetMaximumFractionalDigits"), &FNumberFormattingOptions::MaximumFractionalDigits},
};

inline constexpr FStringView RoundingModeOption = TEXTVIEW("SetRoundingMode");
inline constexpr FStringView RoundingModeEnum = TEXTVIEW("ERoundingMode");
inline constexpr FStringView DateTimeStyleEnum = TEXTVIEW("EDateTimeStyle");
}

#include "Internationalization/TextMacros.h"
#include "Internationalization/TextReader.h"

#include <algorithm>
#include <cmath>

using UE::Core::Private::ETextMacroForm;
using UE::Core::Private::FArgumentList;
using UE::Core::Private::FDateTimeHistory;
using UE::Core::Private::FNumberHistory;
using UE::Core::Private::FNumberOptions;
using UE::Core::Private::FTextData;
using UE::Core::Private::FTextMacro;
using UE::Core::Private::FTextReader;

namespace
{
void AppendQuoted(FString& Buffer, const FString& Text)
{
	Buffer += TEXT('"');
	Buffer += Text.ReplaceCharWithEscapedChar();
	Buffer += TEXT('"');
}

FString StripPackageNamespaceOf(const FString& Namespace)
{
	int32 Bracket;
	const bool bHasOne = Namespace.EndsWith(TEXT("]")) && Namespace.FindLastChar('[', Bracket);
	return bHasOne ? Namespace.Left(Bracket).TrimEnd() : Namespace;
}

void WriteArgument(FString& Buffer, const FFormatArgumentValue& Value, bool bStripPackageNamespace)
{
	Buffer += TEXT(", ");
	if (Value.GetType() == EFormatArgumentType::Text)
	{
		FTextStringHelper::WriteToBuffer(Buffer, Value.GetTextValue(), true, bStripPackageNamespace);
		return;
	}
	Buffer += Value.ToExportedString();
}

/** Of a map or a list of pairs. */
template <typename ArgumentsType>
void WriteNamedArguments(FString& Buffer, const ArgumentsType& Arguments, bool bStripPackageNamespace)
{
	for (const TPair<FString, FFormatArgumentValue>& Argument : Arguments)
	{
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Argument.Key);
		WriteArgument(Buffer, Argument.Value, bStripPackageNamespace);
	}
}

void WriteFormat(FString& Buffer, const FTextData& Data, bool bStripPackageNamespace)
{
	const bool bOrdered = Data.Type == ETextHistoryType::OrderedFormat;
	Buffer += bOrdered ? TEXT("LOCGEN_FORMAT_ORDERED(") : TEXT("LOCGEN_FORMAT_NAMED(");
	FTextStringHelper::WriteToBuffer(Buffer, Data.Source, true, bStripPackageNamespace);
	if (const FFormatOrderedArguments* const Ordered = Data.History.TryGet<FFormatOrderedArguments>())
	{
		for (const FFormatArgumentValue& Value : *Ordered)
		{
			WriteArgument(Buffer, Value, bStripPackageNamespace);
		}
	}
	else if (const FFormatNamedArguments* const Named = Data.History.TryGet<FFormatNamedArguments>())
	{
		WriteNamedArguments(Buffer, *Named, bStripPackageNamespace);
	}
	else
	{
		WriteNamedArguments(Buffer, Data.History.Get<FArgumentList>(), bStripPackageNamespace);
	}
	Buffer += TEXT(')');
}

void BeginMacro(FString& Buffer, ETextHistoryType Type, ETextMacroForm Form)
{
	const FTextMacro* const Macro = std::find_if(std::begin(UE::Core::Private::GeneratedTextMacros),
		std::end(UE::Core::Private::GeneratedTextMacros), [Type, Form](const FTextMacro& Known)
		{ return Known.Type == Type && Known.Form == Form; });
	check(Macro != std::end(UE::Core::Private::GeneratedTextMacros));
	Buffer += Macro->Name;
	Buffer += TEXT('(');
}

void EndMacro(FString& Buffer, const FString& CultureName)
{
	Buffer += TEXT(", ");
	AppendQuoted(Buffer, CultureName);
	Buffer += TEXT(')');
}

/** The options that are not the usual ones, or one that is: the form cannot name none. */
FString MakeOptionsText(const FNumberOptions& Options)
{
	const FNumberOptions Usual;
	FString Result;
	const auto Append = [&Result](FStringView Setter, FStringView Value)
	{
		Result += Result.IsEmpty() ? TEXT("") : TEXT(".");
		Result += Setter;
		Result += TEXT('(');
		Result += Value;
		Result += TEXT(')');
	};
	for (const UE::Core::Private::TNumberOptionName<bool>& Option : UE::Core::Private::SwitchOptions)
	{
		if (Options.*Option.Member != Usual.*Option.Member)
		{
			Append(Option.Setter, Options.*Option.Member ? TEXTVIEW("true") : TEXTVIEW("false"));
		}
	}
	if (Options.RoundingMode != Usual.RoundingMode)
	{
		const TCHAR* const Name = UE::Core::Private::GetRoundingModeName(Options.RoundingMode);
		Append(UE::Core::Private::RoundingModeOption, FString(UE::Core::Private::RoundingModeEnum) + TEXT("::") + Name);
	}
	for (const UE::Core::Private::TNumberOptionName<int32>& Option : UE::Core::Private::DigitOptions)
	{
		if (Options.*Option.Member != Usual.*Option.Member)
		{
			Append(Option.Setter, LexToString(Options.*Option.Member));
		}
	}
	if (Result.IsEmpty())
	{
		Append(UE::Core::Private::SwitchOptions[1].Setter, TEXTVIEW("true"));
	}
	return Result;
}

/** Which form shows the same: GROUPED is read as no options, which for a number are the usual ones, but not for a percentage. */
ETextMacroForm FindNumberForm(ETextHistoryType Type, const TOptional<FNumberOptions>& Options)
{
	if (!Options.IsSet() || (Type == ETextHistoryType::AsNumber && *Options == FNumberOptions()))
	{
		return ETextMacroForm::Grouped;
	}
	const bool bIsUngrouped = *Options == FNumberOptions(FNumberFormattingOptions::DefaultNoGrouping());
	return bIsUngrouped ? ETextMacroForm::Ungrouped : ETextMacroForm::Custom;
}

void WriteNumber(FString& Buffer, ETextHistoryType Type, const FNumberHistory& History)
{
	const ETextMacroForm Form = FindNumberForm(Type, History.Options);
	BeginMacro(Buffer, Type, Form);
	Buffer += History.Value.ToExportedString();
	if (Form == ETextMacroForm::Custom)
	{
		Buffer += TEXT(", ");
		Buffer += MakeOptionsText(*History.Options);
	}
	EndMacro(Buffer, History.CultureName);
}

/** An amount in the currency's smallest coin; the form has no place for options. */
void WriteCurrency(FString& Buffer, const FNumberHistory& History)
{
	constexpr double Limit = 9.0e18;
	const double Amount = History.Value.GetNumber() * std::pow(10.0, UE::Core::Private::GetCurrencyDigits(History.CurrencyCode));
	const double Fitting = std::isnan(Amount) ? 0 : std::clamp(Amount, -Limit, Limit);
	BeginMacro(Buffer, ETextHistoryType::AsCurrency, ETextMacroForm::Plain);
	Buffer += LexToString(static_cast<int64>(std::llround(Fitting)));
	Buffer += TEXT(", ");
	AppendQuoted(Buffer, History.CurrencyCode);
	EndMacro(Buffer, History.CultureName);
}

void WriteDateTime(FString& Buffer, ETextHistoryType Type, const FDateTimeHistory& History)
{
	const bool bIsLocal = History.TimeZone.Equals(UE::Core::Private::LocalTimeZone);
	const auto AppendStyle = [&Buffer](EDateTimeStyle::Type Style)
	{
		const TCHAR* const Name = UE::Core::Private::GetDateTimeStyleName(Style);
		Buffer += TEXT(", ");
		Buffer += UE::Core::Private::DateTimeStyleEnum;
		Buffer += TEXT("::");
		Buffer += Name != nullptr ? Name : UE::Core::Private::GetDateTimeStyleName(EDateTimeStyle::Default);
	};
	BeginMacro(Buffer, Type, bIsLocal ? ETextMacroForm::Local : ETextMacroForm::Utc);
	Buffer += LexToString(std::clamp(History.Value, FDateTime::MinValue(), FDateTime::MaxValue()).ToUnixTimestamp());
	if (Type != ETextHistoryType::AsTime)
	{
		AppendStyle(History.DateStyle);
	}
	if (Type != ETextHistoryType::AsDate)
	{
		AppendStyle(History.TimeStyle);
	}
	if (!bIsLocal)
	{
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, History.TimeZone);
	}
	EndMacro(Buffer, History.CultureName);
}

/** A text that was made of other values, not of a string; false for the others. */
bool WriteMadeOfParts(FString& Buffer, const FTextData& Data, bool bStripPackageNamespace)
{
	switch (Data.Type)
	{
		case ETextHistoryType::NamedFormat:
		case ETextHistoryType::OrderedFormat:
		case ETextHistoryType::ArgumentFormat:
			WriteFormat(Buffer, Data, bStripPackageNamespace);
			return true;
		case ETextHistoryType::AsNumber:
		case ETextHistoryType::AsPercent:
			WriteNumber(Buffer, Data.Type, Data.History.Get<FNumberHistory>());
			return true;
		case ETextHistoryType::AsCurrency:
			WriteCurrency(Buffer, Data.History.Get<FNumberHistory>());
			return true;
		case ETextHistoryType::AsDate:
		case ETextHistoryType::AsTime:
		case ETextHistoryType::AsDateTime:
			WriteDateTime(Buffer, Data.Type, Data.History.Get<FDateTimeHistory>());
			return true;
		case ETextHistoryType::Transform:
		{
			const bool bIsLower = Data.History.Get<ETextTransform>() == ETextTransform::ToLower;
			BeginMacro(Buffer, Data.Type, bIsLower ? ETextMacroForm::Lower : ETextMacroForm::Upper);
			FTextStringHelper::WriteToBuffer(Buffer, Data.Source, true, bStripPackageNamespace);
			Buffer += TEXT(')');
			return true;
		}
		default:
			return false;
	}
}
}

const TCHAR* FTextStringHelper::ReadFromBuffer(
	const TCHAR* Buffer, FText& OutValue, const TCHAR* TextNamespace, const TCHAR* PackageNamespace, bool bRequiresQuotes)
{
	FTextReader Reader(Buffer, TextNamespace, PackageNamespace);
	if (Reader.ReadMacro(OutValue))
	{
		return Reader.GetPosition();
	}
	if (!bRequiresQuotes)
	{
		const int32 Len = FCString::Strlen(Buffer);
		OutValue = Len > 0 ? FText::FromString(FString(FStringView(Buffer, Len))) : FText::GetEmpty();
		return Buffer + Len;
	}
	FString Plain;
	if (!Reader.ReadQuoted(Plain))
	{
		return nullptr;
	}
	OutValue = Plain.IsEmpty() ? FText::GetEmpty() : FText::FromString(MoveTemp(Plain));
	return Reader.GetPosition();
}

FText FTextStringHelper::CreateFromBuffer(
	const TCHAR* Buffer, const TCHAR* TextNamespace, const TCHAR* PackageNamespace, bool bRequiresQuotes)
{
	FText Result;
	if (ReadFromBuffer(Buffer, Result, TextNamespace, PackageNamespace, bRequiresQuotes) == nullptr)
	{
		Result = FText::FromString(FString(Buffer));
	}
	return Result;
}

void FTextStringHelper::WriteToBuffer(FString& Buffer, const FText& Value, bool bRequiresQuotes, bool bStripPackageNamespace)
{
	const FTextData& Data = *Value.Data;
	const bool bHasIdentity = !Data.Key.IsEmpty() || !Data.Namespace.IsEmpty();
	if (WriteMadeOfParts(Buffer, Data, bStripPackageNamespace))
	{
		return;
	}
	if (Data.Type == ETextHistoryType::StringTableEntry)
	{
		Buffer += TEXT("LOCTABLE(");
		AppendQuoted(Buffer, Data.TableId.ToString());
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Data.Key);
		Buffer += TEXT(')');
		return;
	}
	if (Value.IsCultureInvariant() && !Data.Display.IsEmpty())
	{
		Buffer += TEXT("INVTEXT(");
		AppendQuoted(Buffer, Data.Display);
		Buffer += TEXT(')');
		return;
	}
	if (Data.Type == ETextHistoryType::Base && bHasIdentity)
	{
		Buffer += TEXT("NSLOCTEXT(");
		AppendQuoted(Buffer, bStripPackageNamespace ? StripPackageNamespaceOf(Data.Namespace) : Data.Namespace);
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Data.Key);
		Buffer += TEXT(", ");
		AppendQuoted(Buffer, Data.Display);
		Buffer += TEXT(')');
		return;
	}
	if (bRequiresQuotes)
	{
		AppendQuoted(Buffer, Data.Display);
		return;
	}
	Buffer += Data.Display;
}

bool FTextStringHelper::IsComplexText(const TCHAR* Buffer)
{
	for (const FStringView Macro :
		{TEXTVIEW("NSLOCTEXT("), TEXTVIEW("LOCTEXT("), TEXTVIEW("LOCTABLE("), TEXTVIEW("INVTEXT("), TEXTVIEW("LOCGEN_")})
	{
		if (FCString::Strncmp(Buffer, Macro.GetData(), static_cast<SIZE_T>(Macro.Len())) == 0)
		{
			return true;
		}
	}
	return false;
}

#include "Internationalization/TextReader.h"

#include "Internationalization/TextMacros.h"
#include "Math/NumericLimits.h"
#include "Misc/Parse.h"

#include <cmath>
#include <limits>

namespace
{
/** Texts inside texts: no text that people write comes near it. */
constexpr int32 MaxDepth = 16;
}

namespace UE::Core::Private
{
bool FTextReader::ReadMacro(FText& OutText, int32 Depth)
{
	const TCHAR* const Begin = At;
	const auto ReadOrGoBack = [this, Begin](bool bRead)
	{
		At = bRead ? At : Begin;
		return bRead;
	};
	return ReadOrGoBack(ReadLocalized(OutText)) || ReadOrGoBack(ReadTable(OutText)) || ReadOrGoBack(ReadInvariant(OutText)) ||
		(Depth < MaxDepth && (ReadOrGoBack(ReadFormat(OutText, Depth)) || ReadOrGoBack(ReadGenerated(OutText, Depth))));
}

bool FTextReader::ReadQuoted(FString& OutString)
{
	const bool bHasMacro = Word(TEXT("TEXT")) && Char('(');
	SkipBlanks();
	int32 NumRead = 0;
	if (!FParse::QuotedString(At, OutString, &NumRead))
	{
		return false;
	}
	At += NumRead;
	return !bHasMacro || Char(')');
}

void FTextReader::SkipBlanks()
{
	while (FChar::IsWhitespace(*At))
	{
		++At;
	}
}

bool FTextReader::Char(TCHAR Wanted)
{
	SkipBlanks();
	const bool bFound = *At == Wanted;
	At += bFound ? 1 : 0;
	return bFound;
}

bool FTextReader::Word(FStringView Wanted)
{
	SkipBlanks();
	const bool bFound = FCString::Strncmp(At, Wanted.GetData(), static_cast<SIZE_T>(Wanted.Len())) == 0 &&
		!FChar::IsIdentifier(At[Wanted.Len()]);
	At += bFound ? Wanted.Len() : 0;
	return bFound;
}

bool FTextReader::Macro(FStringView Name)
{
	const TCHAR* const Begin = At;
	const bool bFound = Word(Name) && Char('(');
	At = bFound ? At : Begin;
	return bFound;
}

bool FTextReader::ReadLocalized(FText& OutText)
{
	FString Namespace(TextNamespace);
	const bool bNamesNamespace = Macro(TEXTVIEW("NSLOCTEXT"));
	if (!bNamesNamespace && !Macro(TEXTVIEW("LOCTEXT")))
	{
		return false;
	}
	if (bNamesNamespace && !(ReadQuoted(Namespace) && Char(',')))
	{
		return false;
	}
	FString Key;
	FString Source;
	if (!ReadQuoted(Key) || !Char(',') || !ReadQuoted(Source) || !Char(')'))
	{
		return false;
	}
	OutText = MakeBaseText(PutPackageNamespace(Namespace), Key, MoveTemp(Source));
	return true;
}

/** A package's own texts keep "[its namespace]" at the end of theirs; text that comes to another package gets that package's. */
FString FTextReader::PutPackageNamespace(const FString& Namespace) const
{
	int32 Bracket;
	const bool bHasOne = Namespace.EndsWith(TEXT("]")) && Namespace.FindLastChar('[', Bracket);
	if (!bHasOne || PackageNamespace == nullptr || *PackageNamespace == 0)
	{
		return Namespace;
	}
	return FString::Printf(TEXT("%s[%s]"), *Namespace.Left(Bracket), PackageNamespace);
}

bool FTextReader::ReadTable(FText& OutText)
{
	FString Table;
	FString Key;
	if (!Macro(TEXTVIEW("LOCTABLE")) || !ReadQuoted(Table) || !Char(',') || !ReadQuoted(Key) || !Char(')'))
	{
		return false;
	}
	OutText = FText::FromStringTable(FName(Table), Key);
	return true;
}

bool FTextReader::ReadInvariant(FText& OutText)
{
	FString Source;
	if (!Macro(TEXTVIEW("INVTEXT")) || !ReadQuoted(Source) || !Char(')'))
	{
		return false;
	}
	OutText = FText::AsCultureInvariant(MoveTemp(Source));
	return true;
}

bool FTextReader::ReadFormat(FText& OutText, int32 Depth)
{
	const bool bNamed = Macro(TEXTVIEW("LOCGEN_FORMAT_NAMED"));
	FText Pattern;
	if ((!bNamed && !Macro(TEXTVIEW("LOCGEN_FORMAT_ORDERED"))) || !ReadMacroOrQuoted(Pattern, Depth))
	{
		return false;
	}
	FFormatNamedArguments Named;
	FFormatOrderedArguments Ordered;
	while (Char(','))
	{
		FString Name;
		FFormatArgumentValue Value;
		if ((bNamed && !(ReadQuoted(Name) && Char(','))) || !ReadArgument(Value, Depth))
		{
			return false;
		}
		if (bNamed)
		{
			Named.Add(MoveTemp(Name), MoveTemp(Value));
		}
		else
		{
			Ordered.Add(MoveTemp(Value));
		}
	}
	if (!Char(')'))
	{
		return false;
	}
	OutText = bNamed ? FText::Format(MoveTemp(Pattern), MoveTemp(Named)) : FText::Format(MoveTemp(Pattern), MoveTemp(Ordered));
	return true;
}

bool FTextReader::ReadMacroOrQuoted(FText& OutText, int32 Depth)
{
	FString Plain;
	if (ReadMacro(OutText, Depth + 1))
	{
		return true;
	}
	if (!ReadQuoted(Plain))
	{
		return false;
	}
	OutText = FText::FromString(MoveTemp(Plain));
	return true;
}

bool FTextReader::ReadArgument(FFormatArgumentValue& OutValue, int32 Depth)
{
	SkipBlanks();
	if (*At == 'E')
	{
		ETextGender Gender;
		const bool bRead = ReadEnumerator(TEXTVIEW("ETextGender"), 3, &GetGenderName, Gender);
		OutValue = bRead ? FFormatArgumentValue(Gender) : FFormatArgumentValue();
		return bRead;
	}
	const TCHAR* const Begin = At;
	if (ReadNumber(OutValue))
	{
		return true;
	}
	At = Begin;
	FText Text;
	const bool bRead = ReadMacroOrQuoted(Text, Depth);
	OutValue = FFormatArgumentValue(MoveTemp(Text));
	return bRead;
}

bool FTextReader::ReadNotFinite(FFormatArgumentValue& OutValue)
{
	const bool bNegative = *At == '-';
	const TCHAR* const Name = At + (bNegative ? 1 : 0);
	const bool bIsInfinity = FCString::Strncmp(Name, TEXT("inf"), 3) == 0;
	if (!bIsInfinity && FCString::Strncmp(Name, TEXT("nan"), 3) != 0)
	{
		return false;
	}
	using FLimits = std::numeric_limits<double>;
	const double Value = std::copysign(bIsInfinity ? FLimits::infinity() : FLimits::quiet_NaN(), bNegative ? -1.0 : 1.0);
	const bool bIsFloat = Name[3] == 'f';
	At = Name + (bIsFloat ? 4 : 3);
	OutValue = bIsFloat ? FFormatArgumentValue(static_cast<float>(Value)) : FFormatArgumentValue(Value);
	return !FChar::IsIdentifier(*At);
}

bool FTextReader::ReadNumber(FFormatArgumentValue& OutValue)
{
	SkipBlanks();
	if (ReadNotFinite(OutValue))
	{
		return true;
	}
	const TCHAR* End = At;
	while (FChar::IsDigit(*End) || *End == '.' || *End == '-' || *End == '+')
	{
		++End;
	}
	const FString Number(FStringView(At, static_cast<int32>(End - At)));
	const bool bHasPoint = Number.Contains(TEXT("."));
	const bool bHasSuffix = *End == 'f' || *End == 'u';
	At = End + (bHasSuffix ? 1 : 0);
	if (*End == 'f')
	{
		OutValue = FFormatArgumentValue(FCString::Atof(*Number));
	}
	else if (*End == 'u')
	{
		OutValue = FFormatArgumentValue(FCString::Strtoui64(*Number, nullptr, 10));
	}
	else
	{
		OutValue = bHasPoint ? FFormatArgumentValue(FCString::Atod(*Number)) : FFormatArgumentValue(FCString::Atoi64(*Number));
	}
	return Number.IsNumeric();
}

template <typename EnumType>
bool FTextReader::ReadEnumerator(FStringView EnumName, int32 NumValues, const TCHAR* (*GetName)(EnumType), EnumType& OutValue)
{
	if (!Word(EnumName) || !Char(':') || !Char(':'))
	{
		return false;
	}
	for (int32 Index = 0; Index < NumValues; ++Index)
	{
		OutValue = static_cast<EnumType>(Index);
		if (Word(GetName(OutValue)))
		{
			return true;
		}
	}
	return false;
}

bool FTextReader::ReadSwitch(bool& bOutValue)
{
	bOutValue = Word(TEXTVIEW("true"));
	return bOutValue || Word(TEXTVIEW("false"));
}

bool FTextReader::ReadInteger(int64 Min, int64 Max, int64& OutValue)
{
	FFormatArgumentValue Value;
	if (!ReadNumber(Value) || Value.GetType() != EFormatArgumentType::Int)
	{
		return false;
	}
	OutValue = Value.GetIntValue();
	return OutValue >= Min && OutValue <= Max;
}

bool FTextReader::ReadGenerated(FText& OutText, int32 Depth)
{
	for (const FTextMacro& Kind : GeneratedTextMacros)
	{
		if (Macro(Kind.Name))
		{
			FTextData Parts;
			Parts.Type = Kind.Type;
			const bool bRead = ReadHistory(Kind, Parts, Depth);
			OutText = bRead ? MakeTextOfParts(MoveTemp(Parts)) : OutText;
			return bRead;
		}
	}
	return false;
}

bool FTextReader::ReadHistory(const FTextMacro& Kind, FTextData& OutParts, int32 Depth)
{
	switch (Kind.Type)
	{
		case ETextHistoryType::AsNumber:
		case ETextHistoryType::AsPercent:
			OutParts.History.Emplace<FNumberHistory>();
			return ReadNumberHistory(Kind, OutParts.History.Get<FNumberHistory>());
		case ETextHistoryType::AsCurrency:
			OutParts.History.Emplace<FNumberHistory>();
			return ReadCurrencyHistory(OutParts.History.Get<FNumberHistory>());
		case ETextHistoryType::Transform:
			OutParts.History.Set<ETextTransform>(
				Kind.Form == ETextMacroForm::Lower ? ETextTransform::ToLower : ETextTransform::ToUpper);
			return ReadMacroOrQuoted(OutParts.Source, Depth) && Char(')');
		default:
			OutParts.History.Emplace<FDateTimeHistory>();
			return ReadDateTimeHistory(Kind, OutParts.History.Get<FDateTimeHistory>());
	}
}

bool FTextReader::ReadNumberHistory(const FTextMacro& Kind, FNumberHistory& OutHistory)
{
	if (!ReadNumber(OutHistory.Value) || !Char(','))
	{
		return false;
	}
	if (Kind.Form == ETextMacroForm::Ungrouped)
	{
		OutHistory.Options = FNumberOptions(FNumberFormattingOptions::DefaultNoGrouping());
	}
	if (Kind.Form == ETextMacroForm::Custom)
	{
		FNumberOptions Options;
		if (!ReadNumberOptions(Options) || !Char(','))
		{
			return false;
		}
		OutHistory.Options = Options;
	}
	return ReadCulture(OutHistory.CultureName);
}

bool FTextReader::ReadNumberOptions(FNumberOptions& OutOptions)
{
	do
	{
		if (!ReadNumberOption(OutOptions) || !Char(')'))
		{
			return false;
		}
	} while (Char('.'));
	return true;
}

bool FTextReader::ReadNumberOption(FNumberOptions& OutOptions)
{
	for (const TNumberOptionName<bool>& Option : SwitchOptions)
	{
		if (Macro(Option.Setter))
		{
			return ReadSwitch(OutOptions.*Option.Member);
		}
	}
	for (const TNumberOptionName<int32>& Option : DigitOptions)
	{
		if (Macro(Option.Setter))
		{
			int64 Value = 0;
			const bool bRead = ReadInteger(MIN_int32, MAX_int32, Value);
			OutOptions.*Option.Member = static_cast<int32>(Value);
			return bRead;
		}
	}
	return Macro(RoundingModeOption) &&
		ReadEnumerator(RoundingModeEnum, static_cast<int32>(ERoundingMode::ToPositiveInfinity) + 1, &GetRoundingModeName,
			OutOptions.RoundingMode);
}

bool FTextReader::ReadCurrencyHistory(FNumberHistory& OutHistory)
{
	int64 BaseValue;
	if (!ReadInteger(MIN_int64, MAX_int64, BaseValue) || !Char(',') || !ReadQuoted(OutHistory.CurrencyCode) || !Char(','))
	{
		return false;
	}
	OutHistory.Value = static_cast<double>(BaseValue) / std::pow(10.0, GetCurrencyDigits(OutHistory.CurrencyCode));
	return ReadCulture(OutHistory.CultureName);
}

bool FTextReader::ReadDateTimeHistory(const FTextMacro& Kind, FDateTimeHistory& OutHistory)
{
	const auto ReadStyle = [this](EDateTimeStyle::Type& OutStyle)
	{ return ReadEnumerator(DateTimeStyleEnum, EDateTimeStyle::Full + 1, &GetDateTimeStyleName, OutStyle) && Char(','); };
	int64 Seconds;
	if (!ReadInteger(FDateTime::MinValue().ToUnixTimestamp(), FDateTime::MaxValue().ToUnixTimestamp(), Seconds) || !Char(','))
	{
		return false;
	}
	OutHistory.Value = FDateTime::FromUnixTimestamp(Seconds);
	if ((Kind.Type != ETextHistoryType::AsTime && !ReadStyle(OutHistory.DateStyle)) ||
		(Kind.Type != ETextHistoryType::AsDate && !ReadStyle(OutHistory.TimeStyle)))
	{
		return false;
	}
	OutHistory.TimeZone = LocalTimeZone;
	if (Kind.Form == ETextMacroForm::Utc && !(ReadQuoted(OutHistory.TimeZone) && Char(',')))
	{
		return false;
	}
	return ReadCulture(OutHistory.CultureName);
}

bool FTextReader::ReadCulture(FString& OutCultureName)
{
	return ReadQuoted(OutCultureName) && Char(')');
}
}

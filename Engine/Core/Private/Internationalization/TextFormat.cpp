#include "Internationalization/TextData.h"

#include "Misc/StringBuilder.h"

#include <algorithm>
#include <cmath>

using UE::Core::Private::FTextData;

namespace
{
/** In characters. Formats that repeat formats multiply their lengths, so a few lines of a file could ask for more than there is memory. */
constexpr int32 MaxFormattedLen = 1 << 20;

const FFormatArgumentValue* FindArgument(FStringView Name, const FFormatNamedArguments& Named, const FFormatOrderedArguments& Ordered)
{
	const FString NameString(Name);
	if (const FFormatArgumentValue* const Value = Named.Find(NameString))
	{
		return Value;
	}
	const bool bIsIndex = !Name.IsEmpty() && Name.Len() < 6 && std::all_of(Name.begin(), Name.end(), [](TCHAR Char)
																   { return FChar::IsDigit(Char); });
	const int32 Index = bIsIndex ? FCString::Atoi(*NameString) : INDEX_NONE;
	return Index >= 0 && Index < Ordered.Num() ? &Ordered[Index] : nullptr;
}

void GroupDigits(FString& Number, int32 NumSigns, int32 NumIntegral)
{
	for (int32 Index = NumSigns + NumIntegral - 3; Index > NumSigns; Index -= 3)
	{
		Number.InsertAt(Index, TEXT(','));
	}
}

FText FinishNumber(bool bNegative, FString Integral, FString Fraction, const FNumberFormattingOptions& Options)
{
	const int32 NumMissing = Options.MinimumIntegralDigits - Integral.Len();
	Integral = FString::ChrN(NumMissing, TEXT('0')) + Integral;
	if (Integral.Len() > Options.MaximumIntegralDigits)
	{
		Integral.RightInline(Options.MaximumIntegralDigits);
	}
	while (Fraction.Len() > Options.MinimumFractionalDigits && Fraction.EndsWith(TEXT("0")))
	{
		Fraction.LeftChopInline(1);
	}
	Fraction += FString::ChrN(Options.MinimumFractionalDigits - Fraction.Len(), TEXT('0'));
	const FString Sign = bNegative ? TEXT("-") : (Options.AlwaysSign ? TEXT("+") : TEXT(""));
	FString Result = Sign + Integral;
	if (Options.UseGrouping)
	{
		GroupDigits(Result, Sign.Len(), Integral.Len());
	}
	if (!Fraction.IsEmpty())
	{
		Result += TEXT('.');
		Result += Fraction;
	}
	return FText::AsCultureInvariant(MoveTemp(Result));
}

const FNumberFormattingOptions& OptionsOrDefault(const FNumberFormattingOptions* Options)
{
	return Options != nullptr ? *Options : FNumberFormattingOptions::DefaultWithGrouping();
}

template <typename ArgumentsType>
FText MakeFormatted(ETextHistoryType Type, FText Pattern, ArgumentsType&& Arguments, ArgumentsType FTextData::*Member)
{
	std::shared_ptr<FTextData> Data = std::make_shared<FTextData>();
	Data->Type = Type;
	Data->Pattern = MoveTemp(Pattern);
	(*Data).*Member = MoveTemp(Arguments);
	Data->Display = UE::Core::Private::FormatPattern(Data->Pattern.ToString(), Data->Named, Data->Ordered);
	return UE::Core::Private::MakeTextOfData(std::move(Data), 0);
}
}

FString UE::Core::Private::FormatPattern(const FString& Pattern, const FFormatNamedArguments& Named, const FFormatOrderedArguments& Ordered)
{
	TStringBuilder<512> Result;
	FStringView Rest(Pattern);
	// Known beforehand, so that a text of opening braces alone is not searched anew for each of them.
	int32 LastBrace;
	Rest.FindLastChar('}', LastBrace);
	const TCHAR* const LastEnd = Rest.GetData() + LastBrace;
	while (!Rest.IsEmpty())
	{
		const TCHAR Char = Rest[0];
		if (Char == '`' && Rest.Len() > 1 && (Rest[1] == '{' || Rest[1] == '}' || Rest[1] == '`'))
		{
			Result.AppendChar(Rest[1]);
			Rest.RemovePrefix(2);
			continue;
		}
		int32 End;
		if (Char == '{' && Rest.GetData() < LastEnd && Rest.FindChar('}', End))
		{
			const FFormatArgumentValue* const Value = FindArgument(Rest.Mid(1, End - 1).TrimStartAndEnd(), Named, Ordered);
			const FString Replacement = Value != nullptr ? Value->ToFormattedString() : FString();
			if (Value != nullptr && Replacement.Len() <= MaxFormattedLen - Result.Len())
			{
				Result.Append(Replacement);
			}
			else
			{
				Result.Append(Rest.Left(End + 1));
			}
			Rest.RemovePrefix(End + 1);
			continue;
		}
		Result.AppendChar(Char);
		Rest.RemovePrefix(1);
	}
	return FString(Result.ToView());
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultWithGrouping()
{
	static const FNumberFormattingOptions Options;
	return Options;
}

const FNumberFormattingOptions& FNumberFormattingOptions::DefaultNoGrouping()
{
	static const FNumberFormattingOptions Options = FNumberFormattingOptions().SetUseGrouping(false);
	return Options;
}

FText FText::AsNumber(int32 Value, const FNumberFormattingOptions* Options)
{
	return AsNumber(static_cast<int64>(Value), Options);
}

FText FText::AsNumber(uint32 Value, const FNumberFormattingOptions* Options)
{
	return AsNumber(static_cast<uint64>(Value), Options);
}

FText FText::AsNumber(int64 Value, const FNumberFormattingOptions* Options)
{
	const uint64 Magnitude = Value < 0 ? 0 - static_cast<uint64>(Value) : static_cast<uint64>(Value);
	return FinishNumber(Value < 0, LexToString(Magnitude), FString(), OptionsOrDefault(Options));
}

FText FText::AsNumber(uint64 Value, const FNumberFormattingOptions* Options)
{
	return FinishNumber(false, LexToString(Value), FString(), OptionsOrDefault(Options));
}

FText FText::AsNumber(float Value, const FNumberFormattingOptions* Options)
{
	return AsNumber(static_cast<double>(Value), Options);
}

FText FText::AsNumber(double Value, const FNumberFormattingOptions* Options)
{
	if (!std::isfinite(Value))
	{
		return AsCultureInvariant(FString(std::isnan(Value) ? TEXT("NaN") : (Value < 0 ? TEXT("-\u221E") : TEXT("\u221E"))));
	}
	const FNumberFormattingOptions& Used = OptionsOrDefault(Options);
	const FString Digits = FString::Printf(TEXT("%.*f"), std::max(Used.MaximumFractionalDigits, 0), std::abs(Value));
	FString Integral = Digits;
	FString Fraction;
	Digits.Split(TEXT("."), &Integral, &Fraction);
	return FinishNumber(Value < 0, MoveTemp(Integral), MoveTemp(Fraction), Used);
}

FText FText::AsPercent(double Value, const FNumberFormattingOptions* Options)
{
	static const FNumberFormattingOptions WholePercent = FNumberFormattingOptions().SetMaximumFractionalDigits(0);
	return AsCultureInvariant(AsNumber(Value * 100, Options != nullptr ? Options : &WholePercent).ToString() + TEXT("%"));
}

FText FText::Format(FText Fmt, const FFormatNamedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatNamedArguments(InArguments));
}

FText FText::Format(FText Fmt, FFormatNamedArguments&& InArguments)
{
	return MakeFormatted(ETextHistoryType::NamedFormat, MoveTemp(Fmt), MoveTemp(InArguments), &FTextData::Named);
}

FText FText::Format(FText Fmt, const FFormatOrderedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatOrderedArguments(InArguments));
}

FText FText::Format(FText Fmt, FFormatOrderedArguments&& InArguments)
{
	return MakeFormatted(ETextHistoryType::OrderedFormat, MoveTemp(Fmt), MoveTemp(InArguments), &FTextData::Ordered);
}

FFormatArgumentValue::FFormatArgumentValue() = default;

FFormatArgumentValue::FFormatArgumentValue(int32 Value)
	: FFormatArgumentValue(static_cast<int64>(Value))
{
}

FFormatArgumentValue::FFormatArgumentValue(uint32 Value)
	: FFormatArgumentValue(static_cast<uint64>(Value))
{
}

FFormatArgumentValue::FFormatArgumentValue(int64 Value)
	: Type(EFormatArgumentType::Int)
	, IntValue(Value)
{
}

FFormatArgumentValue::FFormatArgumentValue(uint64 Value)
	: Type(EFormatArgumentType::UInt)
	, IntValue(static_cast<int64>(Value))
{
}

FFormatArgumentValue::FFormatArgumentValue(float Value)
	: Type(EFormatArgumentType::Float)
	, DoubleValue(static_cast<double>(Value))
{
}

FFormatArgumentValue::FFormatArgumentValue(double Value)
	: Type(EFormatArgumentType::Double)
	, DoubleValue(Value)
{
}

FFormatArgumentValue::FFormatArgumentValue(FText Value)
	: Type(EFormatArgumentType::Text)
	, TextValue(MoveTemp(Value))
{
}

FString FFormatArgumentValue::ToFormattedString() const
{
	switch (Type)
	{
		case EFormatArgumentType::Int:
			return FText::AsNumber(IntValue).ToString();
		case EFormatArgumentType::UInt:
			return FText::AsNumber(GetUIntValue()).ToString();
		case EFormatArgumentType::Float:
		case EFormatArgumentType::Double:
			return FText::AsNumber(DoubleValue).ToString();
		case EFormatArgumentType::Text:
			return TextValue.ToString();
		default:
			return FString();
	}
}

FString FFormatArgumentValue::ToExportedString() const
{
	switch (Type)
	{
		case EFormatArgumentType::Int:
			return LexToString(IntValue);
		case EFormatArgumentType::UInt:
			return LexToString(GetUIntValue()) + TEXT("u");
		case EFormatArgumentType::Float:
			return LexToSanitizedString(DoubleValue) + TEXT("f");
		case EFormatArgumentType::Double:
			return LexToSanitizedString(DoubleValue);
		case EFormatArgumentType::Text:
		{
			FString Result;
			FTextStringHelper::WriteToBuffer(Result, TextValue, true);
			return Result;
		}
		default:
			return FString();
	}
}

bool FFormatArgumentValue::IdenticalTo(const FFormatArgumentValue& Other, ETextIdenticalModeFlags Flags) const
{
	return Type == Other.Type && IntValue == Other.IntValue && DoubleValue == Other.DoubleValue && TextValue.IdenticalTo(Other.TextValue, Flags);
}

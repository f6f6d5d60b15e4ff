#include "Internationalization/TextData.h"

#include <algorithm>
#include <cmath>

using UE::Core::Private::FTextData;

namespace
{
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

const TCHAR* UE::Core::Private::GetGenderName(ETextGender Gender)
{
	constexpr const TCHAR* Names[] = {TEXT("Masculine"), TEXT("Feminine"), TEXT("Neuter")};
	const uint8 Index = static_cast<uint8>(Gender);
	return Names[Index < UE_ARRAY_COUNT(Names) ? Index : UE_ARRAY_COUNT(Names) - 1];
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

FFormatArgumentValue::FFormatArgumentValue(ETextGender Value)
	: Type(EFormatArgumentType::Gender)
	, IntValue(static_cast<int64>(Value))
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

double FFormatArgumentValue::GetNumber() const
{
	switch (Type)
	{
		case EFormatArgumentType::Int:
			return static_cast<double>(IntValue);
		case EFormatArgumentType::UInt:
			return static_cast<double>(GetUIntValue());
		default:
			return DoubleValue;
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
		case EFormatArgumentType::Gender:
			return FString(TEXT("ETextGender::")) + UE::Core::Private::GetGenderName(GetGenderValue());
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
	return Type == Other.Type && IntValue == Other.IntValue && DoubleValue == Other.DoubleValue &&
		TextValue.IdenticalTo(Other.TextValue, Flags);
}

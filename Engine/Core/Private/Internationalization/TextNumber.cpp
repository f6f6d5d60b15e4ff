#include "Internationalization/TextData.h"

#include <algorithm>
#include <cmath>
#include <tuple>

using UE::Core::Private::FNumberHistory;
using UE::Core::Private::FNumberOptions;
using UE::Core::Private::FTextData;

namespace
{
/** No number has more digits before its point; a file that asks for more, on either side, gets as many. */
constexpr int32 MaxDigits = 324;
/** Behind the point, at most, of a double that is written in full. */
constexpr int32 MaxExactFractionalDigits = 1074;
constexpr int32 DefaultCurrencyDigits = 2;

struct FCurrency
{
	const TCHAR* Code;
	/** As English shows it; null where that is the code. */
	const TCHAR* Symbol;
	int32 NumDigits = DefaultCurrencyDigits;
};

constexpr FCurrency Currencies[] = {
	{TEXT("AUD"), TEXT("A$")},
	{TEXT("BHD"), nullptr, 3},
	{TEXT("BRL"), TEXT("R$")},
	{TEXT("CAD"), TEXT("CA$")},
	{TEXT("CLP"), nullptr, 0},
	{TEXT("CNY"), TEXT("CN\u00A5")},
	{TEXT("EUR"), TEXT("\u20AC")},
	{TEXT("GBP"), TEXT("\u00A3")},
	{TEXT("HKD"), TEXT("HK$")},
	{TEXT("ILS"), TEXT("\u20AA")},
	{TEXT("INR"), TEXT("\u20B9")},
	{TEXT("ISK"), nullptr, 0},
	{TEXT("JOD"), nullptr, 3},
	{TEXT("JPY"), TEXT("\u00A5"), 0},
	{TEXT("KRW"), TEXT("\u20A9"), 0},
	{TEXT("KWD"), nullptr, 3},
	{TEXT("MXN"), TEXT("MX$")},
	{TEXT("NZD"), TEXT("NZ$")},
	{TEXT("OMR"), nullptr, 3},
	{TEXT("PHP"), TEXT("\u20B1")},
	{TEXT("PYG"), nullptr, 0},
	{TEXT("TND"), nullptr, 3},
	{TEXT("TWD"), TEXT("NT$")},
	{TEXT("UGX"), nullptr, 0},
	{TEXT("USD"), TEXT("$")},
	{TEXT("VND"), TEXT("\u20AB"), 0},
};

const FCurrency* FindCurrency(const FString& Code)
{
	const FCurrency* const Found = std::find_if(std::begin(Currencies), std::end(Currencies), [&Code](const FCurrency& Currency)
		{ return Code.Equals(Currency.Code, ESearchCase::IgnoreCase); });
	return Found != std::end(Currencies) ? Found : nullptr;
}

void GroupDigits(FString& Number, int32 NumSigns, int32 NumIntegral)
{
	for (int32 Index = NumSigns + NumIntegral - 3; Index > NumSigns; Index -= 3)
	{
		Number.InsertAt(Index, TEXT(','));
	}
}

int32 ClampDigits(int32 NumDigits)
{
	return std::clamp(NumDigits, 0, MaxDigits);
}

FString FinishNumber(bool bNegative, FString Integral, FString Fraction, const FNumberOptions& Options)
{
	Integral = FString::ChrN(std::max(ClampDigits(Options.MinimumIntegralDigits) - Integral.Len(), 0), TEXT('0')) + Integral;
	if (Integral.Len() > std::max(Options.MaximumIntegralDigits, 0))
	{
		Integral.RightInline(std::max(Options.MaximumIntegralDigits, 0));
	}
	const int32 MinimumFraction = ClampDigits(Options.MinimumFractionalDigits);
	while (Fraction.Len() > MinimumFraction && Fraction.EndsWith(TEXT("0")))
	{
		Fraction.LeftChopInline(1);
	}
	Fraction += FString::ChrN(std::max(MinimumFraction - Fraction.Len(), 0), TEXT('0'));
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
	return Result;
}

/** Whether the digits before those cut off become greater by one. These do not end in a zero, and there is one. */
bool RoundsAway(FStringView CutOff, bool bNegative, ERoundingMode Mode)
{
	const bool bIsAtLeastHalf = CutOff[0] >= '5';
	switch (Mode)
	{
		case ERoundingMode::HalfToZero:
			return bIsAtLeastHalf && !CutOff.Equals(TEXTVIEW("5"));
		case ERoundingMode::FromZero:
			return true;
		case ERoundingMode::ToZero:
			return false;
		case ERoundingMode::ToNegativeInfinity:
			return bNegative;
		case ERoundingMode::ToPositiveInfinity:
			return !bNegative;
		default:
			return bIsAtLeastHalf;
	}
}

/** Adds one to the last digit of a number, which may have a point. */
void IncrementDigits(FString& Digits)
{
	for (int32 Index = Digits.Len() - 1; Index >= 0; --Index)
	{
		if (Digits[Index] == '.')
		{
			continue;
		}
		if (Digits[Index] != '9')
		{
			++Digits[Index];
			return;
		}
		Digits[Index] = '0';
	}
	Digits.InsertAt(0, TEXT('1'));
}

/** The decimal digits of a magnitude, with so many behind the point. */
FString RoundMagnitude(double Magnitude, bool bNegative, int32 NumFractional, ERoundingMode Mode)
{
	if (Mode == ERoundingMode::HalfToEven)
	{
		return FString::Printf(TEXT("%.*f"), NumFractional, Magnitude);
	}
	FString Digits = FString::Printf(TEXT("%.*f"), MaxExactFractionalDigits, Magnitude);
	while (Digits.EndsWith(TEXT("0")))
	{
		Digits.LeftChopInline(1);
	}
	int32 Point = Digits.Len();
	Digits.FindChar('.', Point);
	const FString CutOff = Digits.Mid(Point + 1 + NumFractional);
	Digits.LeftInline(NumFractional > 0 ? Point + 1 + NumFractional : Point);
	if (!CutOff.IsEmpty() && RoundsAway(CutOff, bNegative, Mode))
	{
		IncrementDigits(Digits);
	}
	return Digits;
}

FString FormatReal(double Value, const FNumberOptions& Options)
{
	if (!std::isfinite(Value))
	{
		return std::isnan(Value) ? TEXT("NaN") : (Value < 0 ? TEXT("-\u221E") : TEXT("\u221E"));
	}
	const FString Digits = RoundMagnitude(std::abs(Value), Value < 0, ClampDigits(Options.MaximumFractionalDigits), Options.RoundingMode);
	FString Integral = Digits;
	FString Fraction;
	Digits.Split(TEXT("."), &Integral, &Fraction);
	return FinishNumber(Value < 0, MoveTemp(Integral), MoveTemp(Fraction), Options);
}

FString FormatCurrency(const FNumberHistory& History)
{
	FNumberOptions Usual;
	Usual.MinimumFractionalDigits = Usual.MaximumFractionalDigits = UE::Core::Private::GetCurrencyDigits(History.CurrencyCode);
	FString Number = UE::Core::Private::FormatNumber(History.Value, History.Options.Get(Usual));
	const FCurrency* const Currency = FindCurrency(History.CurrencyCode);
	const bool bHasSymbol = Currency != nullptr && Currency->Symbol != nullptr;
	const FString Symbol = bHasSymbol ? FString(Currency->Symbol) : History.CurrencyCode + TEXT("\u00A0");
	Number.InsertAt(Number.StartsWith(TEXT("-")) || Number.StartsWith(TEXT("+")) ? 1 : 0, Symbol);
	return Number;
}

FText MakeNumber(ETextHistoryType Type, FFormatArgumentValue Value, const FNumberFormattingOptions* Options)
{
	FNumberHistory History;
	History.Value = MoveTemp(Value);
	if (Options != nullptr)
	{
		History.Options = FNumberOptions(*Options);
	}
	FTextData Parts;
	Parts.Type = Type;
	Parts.History.Set<FNumberHistory>(MoveTemp(History));
	return UE::Core::Private::MakeTextOfParts(MoveTemp(Parts));
}
}

namespace UE::Core::Private
{
bool FNumberOptions::operator==(const FNumberOptions& Other) const
{
	const auto GetAll = [](const FNumberOptions& Options)
	{
		return std::tie(Options.AlwaysSign, Options.UseGrouping, Options.RoundingMode, Options.MinimumIntegralDigits,
			Options.MaximumIntegralDigits, Options.MinimumFractionalDigits, Options.MaximumFractionalDigits);
	};
	return GetAll(*this) == GetAll(Other);
}

const TCHAR* GetRoundingModeName(ERoundingMode Mode)
{
	constexpr const TCHAR* Names[] = {TEXT("HalfToEven"), TEXT("HalfFromZero"), TEXT("HalfToZero"), TEXT("FromZero"), TEXT("ToZero"),
		TEXT("ToNegativeInfinity"), TEXT("ToPositiveInfinity")};
	const uint8 Index = static_cast<uint8>(Mode);
	return Index < UE_ARRAY_COUNT(Names) ? Names[Index] : nullptr;
}

bool IsNumber(const FFormatArgumentValue& Value)
{
	const EFormatArgumentType::Type Type = Value.GetType();
	return Type == EFormatArgumentType::Int || Type == EFormatArgumentType::UInt || Type == EFormatArgumentType::Float ||
		Type == EFormatArgumentType::Double;
}

int32 GetCurrencyDigits(const FString& CurrencyCode)
{
	const FCurrency* const Currency = FindCurrency(CurrencyCode);
	return Currency != nullptr ? Currency->NumDigits : DefaultCurrencyDigits;
}

FString FormatNumber(const FFormatArgumentValue& Value, const FNumberOptions& Options)
{
	switch (Value.GetType())
	{
		case EFormatArgumentType::Int:
		{
			const int64 Int = Value.GetIntValue();
			const uint64 Magnitude = Int < 0 ? 0 - static_cast<uint64>(Int) : static_cast<uint64>(Int);
			return FinishNumber(Int < 0, LexToString(Magnitude), FString(), Options);
		}
		case EFormatArgumentType::UInt:
			return FinishNumber(false, LexToString(Value.GetUIntValue()), FString(), Options);
		default:
			return FormatReal(Value.GetNumber(), Options);
	}
}

FString FormatNumberOfKind(ETextHistoryType Type, const FNumberHistory& History)
{
	switch (Type)
	{
		case ETextHistoryType::AsPercent:
		{
			FNumberOptions WholePercent;
			WholePercent.MaximumFractionalDigits = 0;
			return FormatReal(History.Value.GetNumber() * 100, History.Options.Get(WholePercent)) + TEXT("%");
		}
		case ETextHistoryType::AsCurrency:
			return FormatCurrency(History);
		default:
			return FormatNumber(History.Value, History.Options.Get(FNumberOptions()));
	}
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
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsNumber(uint32 Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsNumber(int64 Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsNumber(uint64 Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsNumber(float Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsNumber(double Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsNumber, Value, Options);
}

FText FText::AsPercent(double Value, const FNumberFormattingOptions* Options)
{
	return MakeNumber(ETextHistoryType::AsPercent, Value, Options);
}

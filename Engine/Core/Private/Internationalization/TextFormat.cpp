#include "Internationalization/TextData.h"

using UE::Core::Private::FTextData;

namespace
{
template <typename ArgumentsType>
FText MakeFormatted(ETextHistoryType Type, FText Pattern, ArgumentsType&& Arguments)
{
	FTextData Parts;
	Parts.Type = Type;
	Parts.Source = MoveTemp(Pattern);
	Parts.History.Set<ArgumentsType>(MoveTemp(Arguments));
	return UE::Core::Private::MakeTextOfParts(MoveTemp(Parts));
}
}

FText FText::Format(FText Fmt, const FFormatNamedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatNamedArguments(InArguments));
}

FText FText::Format(FText Fmt, FFormatNamedArguments&& InArguments)
{
	return MakeFormatted(ETextHistoryType::NamedFormat, MoveTemp(Fmt), MoveTemp(InArguments));
}

FText FText::Format(FText Fmt, const FFormatOrderedArguments& InArguments)
{
	return Format(MoveTemp(Fmt), FFormatOrderedArguments(InArguments));
}

FText FText::Format(FText Fmt, FFormatOrderedArguments&& InArguments)
{
	return MakeFormatted(ETextHistoryType::OrderedFormat, MoveTemp(Fmt), MoveTemp(InArguments));
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
		case EFormatArgumentType::UInt:
		case EFormatArgumentType::Float:
		case EFormatArgumentType::Double:
			return UE::Core::Private::FormatNumber(*this, UE::Core::Private::FNumberOptions());
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

#include "Parser/DefaultValue.h"

#include "Parser/Lexer.h"

#include <array>
#include <charconv>
#include <cstdio>

namespace HeaderParser
{
namespace
{
using FTokens = std::vector<FToken>;

std::optional<double> ParseDouble(const std::string_view Text)
{
	double Value = 0.0;
	const std::from_chars_result Result = std::from_chars(Text.data(), Text.data() + Text.size(), Value);
	const std::string_view Suffix = Text.substr(static_cast<size_t>(Result.ptr - Text.data()));
	const bool bKnownSuffix = Suffix.empty() || Suffix == "f" || Suffix == "F" || Suffix == "l" || Suffix == "L";
	return Result.ec == std::errc() && bKnownSuffix ? std::optional(Value) : std::nullopt;
}

/** The decimal digits of a literal such as `0x1F`, `1'000` or `7u`. */
std::optional<std::string> ReadInteger(const std::string_view Literal)
{
	std::string Digits(Literal);
	std::erase(Digits, '\'');
	while (!Digits.empty() && std::string_view("uUlL").find(Digits.back()) != std::string_view::npos)
	{
		Digits.pop_back();
	}
	const bool bHexadecimal = Digits.size() > 2 && Digits[0] == '0' && (Digits[1] == 'x' || Digits[1] == 'X');
	const char* const First = Digits.data() + (bHexadecimal ? 2 : 0);
	const char* const End = Digits.data() + Digits.size();
	uint64_t Value = 0;
	const std::from_chars_result Result = std::from_chars(First, End, Value, bHexadecimal ? 16 : 10);
	return Result.ec == std::errc() && Result.ptr == End ? std::optional(std::to_string(Value)) : std::nullopt;
}

/** Reads `-1.5f`; null when the tokens from First are not one number that ends at End. */
std::optional<double> ReadNumber(const FTokens& Tokens, size_t First, const size_t End)
{
	double Sign = 1.0;
	while (First < End && (Tokens[First].Is("-") || Tokens[First].Is("+")))
	{
		Sign = Tokens[First].Is("-") ? -Sign : Sign;
		++First;
	}
	if (First + 1 != End || Tokens[First].Kind != ETokenKind::Number)
	{
		return std::nullopt;
	}
	const std::optional<double> Value = ParseDouble(Tokens[First].Text);
	return Value ? std::optional(Sign * *Value) : std::nullopt;
}

/** Numbers of `FVector(1, 2, 3)`; null when the tokens are not that call. */
std::optional<std::vector<double>> ReadCall(const FTokens& Tokens, const std::string_view Function)
{
	if (Tokens.size() < 4 || !Tokens[0].Is(Function) || !Tokens[1].Is("(") || !Tokens[Tokens.size() - 2].Is(")"))
	{
		return std::nullopt;
	}
	std::vector<double> Numbers;
	const size_t Close = Tokens.size() - 2;
	size_t First = 2;
	for (size_t Index = 2; Index <= Close; ++Index)
	{
		if (Index == Close || Tokens[Index].Is(","))
		{
			const std::optional<double> Number = ReadNumber(Tokens, First, Index);
			if (!Number)
			{
				return std::nullopt;
			}
			Numbers.push_back(*Number);
			First = Index + 1;
		}
	}
	return Numbers;
}

template <typename... TArguments>
std::string Print(const char* const Format, const TArguments... Arguments)
{
	// Four components of a double's full range, each with its digits behind the point.
	std::array<char, 2048> Buffer{};
	std::snprintf(Buffer.data(), Buffer.size(), Format, Arguments...);
	return Buffer.data();
}

std::string WithoutBlanks(const std::string_view Text)
{
	std::string Result;
	for (const char Character : Text)
	{
		if (Character != ' ' && Character != '\t' && Character != '\n' && Character != '\r')
		{
			Result += Character;
		}
	}
	return Result;
}

/** Default construction in any of its spellings: `FFoo()`, `FFoo(ForceInit)`, `FFoo{}`, `{}`. */
bool IsDefaultConstruction(const std::string& Text, const std::string& Type)
{
	return Text == Type + "()" || Text == Type + "{}" || Text == "{}" || Text == Type + "(ForceInit)" ||
		Text == Type + "(EForceInit::ForceInit)";
}

struct FNamedValue
{
	std::string_view Cpp;
	std::string_view Import;
};

constexpr FNamedValue NamedValues[] = {
	{"FVector::ZeroVector", ""},
	{"FVector::OneVector", "1.000000,1.000000,1.000000"},
	{"FVector::UpVector", "0.000000,0.000000,1.000000"},
	{"FVector::DownVector", "0.000000,0.000000,-1.000000"},
	{"FVector::ForwardVector", "1.000000,0.000000,0.000000"},
	{"FVector::RightVector", "0.000000,1.000000,0.000000"},
	{"FRotator::ZeroRotator", ""},
	{"FVector2D::ZeroVector", ""},
	{"FVector2D::UnitVector", "(X=1.000,Y=1.000)"},
	{"FTransform::Identity", ""},
	{"FQuat::Identity", ""},
	{"FLinearColor::White", "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)"},
	{"FLinearColor::Gray", "(R=0.500000,G=0.500000,B=0.500000,A=1.000000)"},
	{"FLinearColor::Black", "(R=0.000000,G=0.000000,B=0.000000,A=1.000000)"},
	{"FLinearColor::Transparent", "(R=0.000000,G=0.000000,B=0.000000,A=0.000000)"},
	{"FLinearColor::Red", "(R=1.000000,G=0.000000,B=0.000000,A=1.000000)"},
	{"FLinearColor::Green", "(R=0.000000,G=1.000000,B=0.000000,A=1.000000)"},
	{"FLinearColor::Blue", "(R=0.000000,G=0.000000,B=1.000000,A=1.000000)"},
	{"FLinearColor::Yellow", "(R=1.000000,G=1.000000,B=0.000000,A=1.000000)"},
	{"FColor::White", "(R=255,G=255,B=255,A=255)"},
	{"FColor::Black", "(R=0,G=0,B=0,A=255)"},
	{"FColor::Transparent", "(R=0,G=0,B=0,A=0)"},
	{"FColor::Red", "(R=255,G=0,B=0,A=255)"},
	{"FColor::Green", "(R=0,G=255,B=0,A=255)"},
	{"FColor::Blue", "(R=0,G=0,B=255,A=255)"},
	{"FColor::Yellow", "(R=255,G=255,B=0,A=255)"},
};

std::optional<std::string> ConvertComponents(const std::string& Type, const std::vector<double>& Numbers)
{
	const size_t Count = Numbers.size();
	const double First = Count > 0 ? Numbers[0] : 0.0;
	if (Type == "FVector" && (Count == 3 || Count == 1))
	{
		return Count == 3 ? Print("%f,%f,%f", First, Numbers[1], Numbers[2]) : Print("%f,%f,%f", First, First, First);
	}
	if (Type == "FRotator" && (Count == 3 || Count == 1))
	{
		return Count == 3 ? Print("%f,%f,%f", First, Numbers[1], Numbers[2]) : Print("%f,%f,%f", First, First, First);
	}
	if (Type == "FVector2D" && Count == 2)
	{
		return Print("(X=%3.3f,Y=%3.3f)", First, Numbers[1]);
	}
	if ((Type == "FIntPoint") && Count == 2)
	{
		return Print("(X=%.0f,Y=%.0f)", First, Numbers[1]);
	}
	if (Type == "FIntVector" && Count == 3)
	{
		return Print("(X=%.0f,Y=%.0f,Z=%.0f)", First, Numbers[1], Numbers[2]);
	}
	if (Type == "FLinearColor" && (Count == 3 || Count == 4))
	{
		return Print("(R=%f,G=%f,B=%f,A=%f)", First, Numbers[1], Numbers[2], Count == 4 ? Numbers[3] : 1.0);
	}
	if (Type == "FColor" && (Count == 3 || Count == 4))
	{
		return Print("(R=%.0f,G=%.0f,B=%.0f,A=%.0f)", First, Numbers[1], Numbers[2], Count == 4 ? Numbers[3] : 255.0);
	}
	return std::nullopt;
}

/** Last name of `EFoo::Bar` or `TEnumAsByte<EFoo::Type>(EFoo::Bar)`'s plain forms; null for anything but a qualified name. */
std::optional<std::string> LastName(const FTokens& Tokens)
{
	for (size_t Index = 0; Index + 1 < Tokens.size(); ++Index)
	{
		const bool bNamePlace = Index % 2 == 0;
		if (bNamePlace ? !Tokens[Index].IsIdentifier() : !Tokens[Index].Is("::"))
		{
			return std::nullopt;
		}
	}
	return Tokens.size() % 2 == 0 ? std::optional(std::string(Tokens[Tokens.size() - 2].Text)) : std::nullopt;
}

std::optional<std::string> ConvertNamed(const FTypeReference& Type, const FTokens& Tokens, const std::string& Text)
{
	for (const FNamedValue& Row : NamedValues)
	{
		if (Row.Cpp == Text)
		{
			return std::string(Row.Import);
		}
	}
	if (IsDefaultConstruction(Text, Type.Name))
	{
		const bool bKnownZero = Type.Name == "FVector" || Type.Name == "FRotator" || Type.Name == "FVector2D" ||
			Type.Name == "FTransform" || Type.Name == "FQuat";
		return bKnownZero || Type.Name[0] == 'E' ? std::string() : std::string("()");
	}
	if (const std::optional<std::vector<double>> Numbers = ReadCall(Tokens, Type.Name))
	{
		return ConvertComponents(Type.Name, *Numbers);
	}
	return LastName(Tokens);
}

/** `TEXT("x")`, `"x"`, or either as the only argument of a constructor call of Type. */
std::optional<std::string> ReadString(const FTokens& Tokens)
{
	std::optional<std::string> Value;
	for (size_t Index = 0; Index + 1 < Tokens.size(); ++Index)
	{
		const FToken& Token = Tokens[Index];
		if (Token.Kind == ETokenKind::String)
		{
			Value = Value.value_or("") + Token.StringValue();
		}
		else if (!Token.Is("TEXT") && !Token.Is("FString") && !Token.Is("FName") && !Token.Is("(") && !Token.Is(")"))
		{
			return std::nullopt;
		}
	}
	return Value;
}

std::optional<std::string> ConvertInteger(const FTokens& Tokens, const std::string& Text)
{
	if (Text == "INDEX_NONE")
	{
		return "-1";
	}
	const bool bNegative = Tokens[0].Is("-");
	const size_t NumberAt = bNegative || Tokens[0].Is("+") ? 1 : 0;
	if (NumberAt + 2 != Tokens.size() || Tokens[NumberAt].Kind != ETokenKind::Number)
	{
		return LastName(Tokens);
	}
	const std::optional<std::string> Digits = ReadInteger(Tokens[NumberAt].Text);
	return Digits && bNegative ? "-" + *Digits : Digits;
}

std::optional<std::string> ConvertText(const FTokens& Tokens, const std::string& Text, const std::string_view CppText)
{
	if (Text == "FText::GetEmpty()" || Text == "FText()" || Text == "{}")
	{
		return "INVTEXT(\"\")";
	}
	const bool bMacro = Tokens[0].Is("INVTEXT") || Tokens[0].Is("NSLOCTEXT") || Tokens[0].Is("LOCTEXT");
	return bMacro ? std::optional(std::string(CppText)) : std::nullopt;
}
}

std::optional<std::string> ConvertDefault(const FTypeReference& Type, const std::string_view CppText)
{
	const FTokenizedHeader Lexed = Tokenize(CppText);
	if (!Lexed.Errors.empty() || Lexed.Tokens.size() < 2)
	{
		return std::nullopt;
	}
	const FTokens& Tokens = Lexed.Tokens;
	const std::string Text = WithoutBlanks(CppText);
	if (Text == "nullptr" || Text == "NULL")
	{
		return "None";
	}
	switch (Type.Kind)
	{
		case ETypeKind::Bool:
			return Text == "true" || Text == "false" ? std::optional(Text) : std::nullopt;
		case ETypeKind::Byte:
		case ETypeKind::Int8:
		case ETypeKind::Int16:
		case ETypeKind::Int:
		case ETypeKind::Int64:
		case ETypeKind::UInt16:
		case ETypeKind::UInt32:
		case ETypeKind::UInt64:
			return ConvertInteger(Tokens, Text);
		case ETypeKind::Float:
		case ETypeKind::Double:
		{
			const std::optional<double> Number = ReadNumber(Tokens, 0, Tokens.size() - 1);
			return Number ? std::optional(Print("%f", *Number)) : std::nullopt;
		}
		case ETypeKind::Name:
			return Text == "NAME_None" || Text == "FName()" ? std::optional<std::string>("None") : ReadString(Tokens);
		case ETypeKind::String:
			return Text == "FString()" || Text == "{}" ? std::optional<std::string>("") : ReadString(Tokens);
		case ETypeKind::Text:
			return ConvertText(Tokens, Text, CppText);
		case ETypeKind::EnumAsByte:
			return LastName(Tokens);
		case ETypeKind::Named:
			return ConvertNamed(Type, Tokens, Text);
		case ETypeKind::Array:
		case ETypeKind::Set:
		case ETypeKind::Map:
			return IsDefaultConstruction(Text, WithoutBlanks(Type.CppText)) ? std::optional<std::string>("()") : std::nullopt;
		default:
			return IsDefaultConstruction(Text, WithoutBlanks(Type.CppText)) ? std::optional<std::string>("None") : std::nullopt;
	}
}
}

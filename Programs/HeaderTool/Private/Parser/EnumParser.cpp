#include "Parser/EnumParser.h"

#include "Parser/SpecifierTables.h"
#include "Parser/Specifiers.h"

#include <charconv>

namespace HeaderParser
{
namespace
{
std::optional<int64_t> ReadLiteral(std::string_view Text)
{
	while (!Text.empty() && (Text.back() == 'u' || Text.back() == 'U' || Text.back() == 'l' || Text.back() == 'L'))
	{
		Text.remove_suffix(1);
	}
	int32_t Base = 10;
	if (Text.substr(0, 2) == "0x" || Text.substr(0, 2) == "0X")
	{
		Base = 16;
		Text.remove_prefix(2);
	}
	else if (Text.substr(0, 2) == "0b" || Text.substr(0, 2) == "0B")
	{
		Base = 2;
		Text.remove_prefix(2);
	}
	else if (Text.size() > 1 && Text[0] == '0')
	{
		Base = 8;
	}
	uint64_t Value = 0;
	const std::from_chars_result Result = std::from_chars(Text.data(), Text.data() + Text.size(), Value, Base);
	return Result.ec == std::errc() && Result.ptr == Text.data() + Text.size() ? std::optional(static_cast<int64_t>(Value)) : std::nullopt;
}

/** Computes an enumerator's value from numbers, earlier enumerators and operators. Null for anything more. */
class FValueEvaluator
{
public:
	FValueEvaluator(const FEnumDeclaration& InEnum, const std::vector<FToken>& InTokens, const size_t First, const size_t InEnd)
		: Enum(InEnum)
		, Tokens(InTokens)
		, Index(First)
		, End(InEnd)
	{
	}

	std::optional<int64_t> Run()
	{
		const std::optional<int64_t> Value = Binary(0);
		return Index == End ? Value : std::nullopt;
	}

private:
	struct FOperator
	{
		std::string_view Text;
		int32_t Precedence;
	};

	[[nodiscard]] bool At(const std::string_view Text, const size_t Ahead = 0) const
	{
		return Index + Ahead < End && Tokens[Index + Ahead].Is(Text);
	}

	std::optional<FOperator> TakeOperator(const int32_t MinPrecedence)
	{
		static constexpr FOperator Operators[] = {{"|", 0}, {"^", 1}, {"&", 2}, {"<<", 3}, {">>", 3}, {"+", 4}, {"-", 4}, {"*", 5},
			{"/", 5}, {"%", 5}};
		for (const FOperator& Operator : Operators)
		{
			const bool bDouble = Operator.Text.size() == 2;
			const std::string_view Sign = Operator.Text.substr(0, 1);
			if (Operator.Precedence >= MinPrecedence && At(Sign) && (!bDouble || At(Sign, 1)))
			{
				Index += Operator.Text.size();
				return Operator;
			}
		}
		return std::nullopt;
	}

	static std::optional<int64_t> Apply(const std::string_view Operator, const int64_t Left, const int64_t Right)
	{
		const uint64_t A = static_cast<uint64_t>(Left);
		const uint64_t B = static_cast<uint64_t>(Right);
		switch (Operator[0])
		{
			case '|':
				return Left | Right;
			case '^':
				return Left ^ Right;
			case '&':
				return Left & Right;
			case '<':
				return B < 64 ? std::optional(static_cast<int64_t>(A << B)) : std::nullopt;
			case '>':
				return B < 64 ? std::optional(Left >> B) : std::nullopt;
			case '+':
				return static_cast<int64_t>(A + B);
			case '-':
				return static_cast<int64_t>(A - B);
			case '*':
				return static_cast<int64_t>(A * B);
			default:
				break;
		}
		// The one division that overflows is left out with division by zero.
		if (Right == 0 || Right == -1)
		{
			return std::nullopt;
		}
		return Operator[0] == '/' ? Left / Right : Left % Right;
	}

	std::optional<int64_t> Binary(const int32_t MinPrecedence)
	{
		std::optional<int64_t> Left = Unary();
		while (Left)
		{
			const std::optional<FOperator> Operator = TakeOperator(MinPrecedence);
			if (!Operator)
			{
				break;
			}
			const std::optional<int64_t> Right = Binary(Operator->Precedence + 1);
			Left = Right ? Apply(Operator->Text, *Left, *Right) : std::nullopt;
		}
		return Left;
	}

	std::optional<int64_t> Unary()
	{
		if (++Depth > 64)
		{
			return std::nullopt;
		}
		std::optional<int64_t> Value;
		if (At("-") || At("~") || At("+"))
		{
			const std::string_view Sign = Tokens[Index++].Text;
			Value = Unary();
			if (Value && Sign != "+")
			{
				Value = Sign == "-" ? static_cast<int64_t>(0 - static_cast<uint64_t>(*Value)) : ~*Value;
			}
		}
		else if (At("("))
		{
			++Index;
			Value = Binary(0);
			Value = At(")") ? Value : std::nullopt;
			++Index;
		}
		else
		{
			Value = Primary();
		}
		--Depth;
		return Value;
	}

	std::optional<int64_t> Primary()
	{
		if (Index >= End)
		{
			return std::nullopt;
		}
		const FToken& Token = Tokens[Index++];
		if (Token.Kind == ETokenKind::Number)
		{
			return ReadLiteral(Token.Text);
		}
		if (Token.Kind == ETokenKind::Character && Token.Text.size() == 3)
		{
			return Token.Text[1];
		}
		std::string_view Name = Token.Text;
		while (At("::") && Index + 1 < End)
		{
			Name = Tokens[Index + 1].Text;
			Index += 2;
		}
		for (const FEnumeratorDeclaration& Enumerator : Enum.Enumerators)
		{
			if (Enumerator.Name == Name)
			{
				return Enumerator.Value;
			}
		}
		return std::nullopt;
	}

	const FEnumDeclaration& Enum;
	const std::vector<FToken>& Tokens;
	size_t Index;
	size_t End;
	int32_t Depth = 0;
};

bool ParseEnumerator(FTokenCursor& Cursor, FEnumDeclaration& Enum)
{
	FEnumeratorDeclaration Enumerator;
	const FToken& Token = Cursor.Peek();
	Enumerator.Position = Token.Position;
	if (!Cursor.ExpectIdentifier(Enumerator.Name, "an enumerator or '}'"))
	{
		return false;
	}
	FSpecifierList Meta;
	while (Cursor.Peek().Is("UE_DEPRECATED") || Cursor.Peek().Is("UMETA") || Cursor.Peek().Is("["))
	{
		const bool bMeta = Cursor.TakeIf("UMETA");
		if (!bMeta && !Cursor.Peek().Is("["))
		{
			Cursor.Take();
		}
		if (bMeta ? !ParseSpecifiers(Cursor, Meta) : !Cursor.SkipBalanced())
		{
			return false;
		}
	}
	const std::vector<FEnumeratorDeclaration>& Before = Enum.Enumerators;
	Enumerator.Value = Before.empty() ? std::optional<int64_t>(0) : Before.back().Value;
	if (!Before.empty() && Enumerator.Value)
	{
		Enumerator.Value = static_cast<int64_t>(static_cast<uint64_t>(*Enumerator.Value) + 1);
	}
	if (Cursor.TakeIf("="))
	{
		const size_t First = Cursor.Mark();
		while (!Cursor.AtEnd() && !Cursor.Peek().Is(",") && !Cursor.Peek().Is("}") && !Cursor.Peek().Is("UMETA"))
		{
			if (Cursor.Peek().Is("(") ? !Cursor.SkipBalanced() : (Cursor.Take(), false))
			{
				return false;
			}
		}
		if (Cursor.Mark() == First)
		{
			return Cursor.FailExpected("the value of '" + Enumerator.Name + "'");
		}
		Enumerator.Value = FValueEvaluator(Enum, Cursor.GetHeader().Tokens, First, Cursor.Mark()).Run();
		if (Cursor.TakeIf("UMETA") && !ParseSpecifiers(Cursor, Meta))
		{
			return false;
		}
	}
	// UMETA holds metadata alone, so `Hidden` and `DisplayName = "X"` stand in it without `meta`.
	for (const FSpecifier& Specifier : Meta.Specifiers)
	{
		Enumerator.MetaData.Set(Specifier.Name, Specifier.Values.empty() ? std::string() : Specifier.Values[0]);
	}
	for (const auto& [Key, Value] : Meta.MetaData.Pairs())
	{
		Enumerator.MetaData.Set(Key, Value);
	}
	AddToolTip(Cursor, Token, Enumerator.MetaData);
	Enum.Enumerators.push_back(std::move(Enumerator));
	return true;
}

bool ParseUnderlyingType(FTokenCursor& Cursor, FEnumDeclaration& Enum)
{
	if (!Cursor.TakeIf(":"))
	{
		return true;
	}
	const FPosition Position = Cursor.Peek().Position;
	if (!Cursor.ExpectIdentifier(Enum.UnderlyingType, "an integer type"))
	{
		return false;
	}
	static constexpr std::string_view Known[] = {"uint8", "int8", "uint16", "int16", "uint32", "int32", "uint64", "int64", "int"};
	const bool bKnown = std::find(std::begin(Known), std::end(Known), Enum.UnderlyingType) != std::end(Known);
	return bKnown || Cursor.Fail(Position, "expected an integer type, found '" + Enum.UnderlyingType + "'");
}

bool ParseEnumBody(FTokenCursor& Cursor, FEnumDeclaration& Enum)
{
	if (!ParseUnderlyingType(Cursor, Enum) || !Cursor.Expect("{"))
	{
		return false;
	}
	while (!Cursor.TakeIf("}"))
	{
		if (!ParseEnumerator(Cursor, Enum))
		{
			return false;
		}
		if (!Cursor.TakeIf(",") && !Cursor.Peek().Is("}"))
		{
			return Cursor.FailExpected("',' or '}'");
		}
	}
	return Cursor.Expect(";");
}
}

bool ParseEnum(FTokenCursor& Cursor, FEnumDeclaration& Out)
{
	const FToken& Macro = Cursor.Take();
	if (!ParseSpecifiers(Cursor, Out.Specifiers) || !ApplyEnumSpecifiers(Cursor, Out))
	{
		return false;
	}
	AddToolTip(Cursor, Macro, Out.MetaData);
	const bool bNamespaced = Cursor.TakeIf("namespace");
	if (bNamespaced)
	{
		Out.Form = EEnumForm::Namespaced;
		Out.Position = Cursor.Peek().Position;
		if (!Cursor.ExpectIdentifier(Out.Name, "the enum's namespace") || !Cursor.Expect("{") || !Cursor.Expect("enum") ||
			!Cursor.ExpectIdentifier(Out.InnerName, "the enum's name"))
		{
			return false;
		}
		return ParseEnumBody(Cursor, Out) && Cursor.Expect("}");
	}
	if (!Cursor.Expect("enum"))
	{
		return false;
	}
	Out.Form = Cursor.TakeIf("class") || Cursor.TakeIf("struct") ? EEnumForm::EnumClass : EEnumForm::Plain;
	if (Cursor.Peek().Is("UE_DEPRECATED") || Cursor.Peek().Is("alignas"))
	{
		Cursor.Take();
		if (!Cursor.SkipBalanced())
		{
			return false;
		}
	}
	Out.Position = Cursor.Peek().Position;
	return Cursor.ExpectIdentifier(Out.Name, "the enum's name") && ParseEnumBody(Cursor, Out);
}
}

#include "Parser/TokenCursor.h"

namespace HeaderParser
{
namespace
{
bool BeginsMember(const FToken& Token, const FToken& Next)
{
	const bool bSection = (Token.Is("public") || Token.Is("protected") || Token.Is("private")) && Next.Is(":");
	const bool bMacro = Token.Is("UPROPERTY") || Token.Is("UFUNCTION") || Token.Is("UDELEGATE") || Token.Is("GENERATED_BODY");
	return bSection || bMacro || Token.Text.substr(0, 16) == "DECLARE_DYNAMIC_";
}

bool IsWord(const FToken& Token) { return Token.Kind == ETokenKind::Identifier || Token.Kind == ETokenKind::Number; }

bool IsOpening(const FToken& Token) { return Token.Is("(") || Token.Is("{") || Token.Is("["); }

bool IsClosing(const FToken& Token) { return Token.Is(")") || Token.Is("}") || Token.Is("]"); }

char PartnerOf(const FToken& Opening)
{
	const char Character = Opening.Text.front();
	return Character == '(' ? ')' : Character == '{' ? '}'
													 : ']';
}

/** `<` after one of these begins template arguments, whose commas do not end an expression. */
bool BeginsTemplate(const FToken& Token)
{
	return Token.IsIdentifier() && Token.Text.size() > 2 && Token.Text[0] == 'T' && Token.Text[1] >= 'A' && Token.Text[1] <= 'Z';
}

char ToLower(const char Character) { return Character >= 'A' && Character <= 'Z' ? static_cast<char>(Character + ('a' - 'A')) : Character; }
}

bool BeginsDeclaration(const FToken& Token)
{
	return Token.Is("UCLASS") || Token.Is("USTRUCT") || Token.Is("UENUM") || Token.Is("UINTERFACE");
}

bool EqualsIgnoringCase(const std::string_view Left, const std::string_view Right)
{
	return std::equal(Left.begin(), Left.end(), Right.begin(), Right.end(), [](const char A, const char B)
		{ return ToLower(A) == ToLower(B); });
}

bool FTokenCursor::TakeIf(const std::string_view Text)
{
	if (!Peek().Is(Text))
	{
		return false;
	}
	Take();
	return true;
}

bool FTokenCursor::Expect(const std::string_view Text) { return TakeIf(Text) || FailExpected("'" + std::string(Text) + "'"); }

bool FTokenCursor::ExpectIdentifier(std::string& Out, const std::string_view What)
{
	if (!Peek().IsIdentifier())
	{
		return FailExpected(What);
	}
	Out = Take().Text;
	return true;
}

bool FTokenCursor::FailExpected(const std::string_view What)
{
	static constexpr size_t MaxShown = 60;
	const FToken& Token = Peek();
	const std::string Found = AtEnd() ? "the end of the file" : "'" + std::string(Token.Text.substr(0, MaxShown)) + "'";
	return Fail(Token.Position, "expected " + std::string(What) + ", found " + Found);
}

bool FTokenCursor::Fail(const FPosition& Position, std::string Message)
{
	if (!bFailed && !HasTooManyErrors())
	{
		Errors.push_back({Position, std::move(Message)});
	}
	bFailed = true;
	return false;
}

void FTokenCursor::Recover(const size_t Mark)
{
	bFailed = false;
	Depth = 0;
	Index = Mark;
	Take();
}

void FTokenCursor::RecoverDeclaration(const size_t Mark)
{
	Recover(Mark);
	int32_t Braces = 0;
	while (!AtEnd() && !BeginsDeclaration(Peek()))
	{
		const FToken& Token = Take();
		Braces += Token.Is("{") ? 1 : Token.Is("}") ? -1
													: 0;
		if (Braces <= 0 && (Token.Is(";") || Token.Is("}")))
		{
			TakeIf(";");
			return;
		}
	}
}

bool FTokenCursor::RecoverMember(const size_t Mark)
{
	Recover(Mark);
	int32_t Braces = 0;
	while (!AtEnd() && !BeginsDeclaration(Peek()))
	{
		if (Braces == 0 && (Peek().Is("}") || BeginsMember(Peek(), Peek(1))))
		{
			return !Peek().Is("}");
		}
		const FToken& Token = Take();
		Braces += Token.Is("{") ? 1 : Token.Is("}") ? -1
													: 0;
	}
	return false;
}

bool FTokenCursor::SkipBalanced()
{
	std::string Partners;
	do
	{
		if (AtEnd())
		{
			return FailExpected(Partners.empty() ? "an opening bracket" : std::string("'") + Partners.back() + "'");
		}
		if (IsOpening(Peek()))
		{
			if (static_cast<int32_t>(Partners.size()) >= Limits.MaxNesting)
			{
				return Fail(Peek().Position, "expected less nesting, found brackets too deep");
			}
			Partners += PartnerOf(Peek());
		}
		else if (IsClosing(Peek()))
		{
			if (Partners.empty() || Peek().Text.front() != Partners.back())
			{
				return FailExpected(Partners.empty() ? "an opening bracket" : std::string("'") + Partners.back() + "'");
			}
			Partners.pop_back();
		}
		Take();
	} while (!Partners.empty());
	return true;
}

bool FTokenCursor::TakeExpression(std::string& Out)
{
	const size_t First = Index;
	int32_t Angles = 0;
	while (!IsClosing(Peek()) && !Peek().Is(";") && (Angles > 0 || !Peek().Is(",")))
	{
		if (AtEnd())
		{
			return FailExpected("the end of the expression");
		}
		if (IsOpening(Peek()))
		{
			if (!SkipBalanced())
			{
				return false;
			}
			continue;
		}
		if (Peek().Is("<") && (Angles > 0 || (Index > First && BeginsTemplate(Previous()))))
		{
			++Angles;
		}
		else if (Peek().Is(">") && Angles > 0)
		{
			--Angles;
		}
		Take();
	}
	Out = Join(First, Index);
	return Index > First || FailExpected("an expression");
}

std::string FTokenCursor::Join(const size_t First, const size_t End) const
{
	std::string Text;
	for (size_t Position = First; Position < End; ++Position)
	{
		const FToken& Token = Header.Tokens[Position];
		if (Position > First)
		{
			const FToken& Before = Header.Tokens[Position - 1];
			const bool bTouching = Before.Text.data() + Before.Text.size() == Token.Text.data();
			const bool bOperator =
				Token.Is("|") || Token.Is("+") || Token.Is("=") || Before.Is("|") || Before.Is("+") || Before.Is("=") || Before.Is(",");
			if (!bTouching && ((IsWord(Before) && IsWord(Token)) || bOperator))
			{
				Text += ' ';
			}
		}
		Text += Token.Text;
	}
	return Text;
}

bool FTokenCursor::Enter()
{
	if (Depth >= Limits.MaxNesting)
	{
		return Fail(Peek().Position, "expected less nesting, found brackets too deep");
	}
	++Depth;
	return true;
}
}

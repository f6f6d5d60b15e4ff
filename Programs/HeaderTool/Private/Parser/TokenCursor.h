#pragma once

#include "Parser/Lexer.h"

#include <algorithm>

namespace HeaderParser
{
/**
 * A place in the tokens, and the errors. Functions that answer bool fail with the error already recorded, so callers only pass the
 * false on; whoever goes on after a failure calls Recover first, and until then no other error is recorded.
 */
class FTokenCursor
{
public:
	FTokenCursor(const FTokenizedHeader& InHeader, const FParseLimits& InLimits)
		: Header(InHeader)
		, Limits(InLimits)
	{
	}

	[[nodiscard]] const FToken& Peek(const size_t Ahead = 0) const
	{
		return Header.Tokens[std::min(Index + Ahead, Header.Tokens.size() - 1)];
	}
	[[nodiscard]] const FToken& Previous() const { return Header.Tokens[Index == 0 ? 0 : Index - 1]; }
	[[nodiscard]] bool AtEnd() const { return Peek().Kind == ETokenKind::End; }

	const FToken& Take()
	{
		const FToken& Token = Peek();
		Index += AtEnd() ? 0 : 1;
		return Token;
	}
	/** Takes the token if it reads so. */
	bool TakeIf(std::string_view Text);
	[[nodiscard]] bool Expect(std::string_view Text);
	/** `What` completes "expected ", as "a property name". */
	[[nodiscard]] bool ExpectIdentifier(std::string& Out, std::string_view What);
	/** Records "expected `What`, found 'token'". Always false. */
	bool FailExpected(std::string_view What);
	bool Fail(const FPosition& Position, std::string Message);

	/** Takes from an opening brace, parenthesis or bracket to its partner. */
	[[nodiscard]] bool SkipBalanced();
	/**
	 * Takes an expression up to, not with, a `,` `;` or closing bracket that stands outside all brackets of its own.
	 * Answers its text with single spaces between words.
	 */
	[[nodiscard]] bool TakeExpression(std::string& Out);

	/** Text of the source between two tokens, with white space and comments made single spaces where words would join. */
	[[nodiscard]] std::string Join(size_t First, size_t End) const;

	/** Takes what is left of a declaration of a file that began at the mark: to its end, or to the next macro that begins one. */
	void RecoverDeclaration(size_t Mark);
	/** The same of a member. False when no member follows in this body: at its end, and where another declaration begins. */
	[[nodiscard]] bool RecoverMember(size_t Mark);
	/** Whether there are so many errors that more would help nobody. */
	[[nodiscard]] bool HasTooManyErrors() const { return Errors.size() >= MaxErrors; }

	[[nodiscard]] size_t Mark() const { return Index; }
	void Rewind(const size_t Mark) { Index = Mark; }

	/** False, with an error, when nested too deep. Each success must be answered by Leave(). */
	[[nodiscard]] bool Enter();
	void Leave() { --Depth; }

	[[nodiscard]] const FTokenizedHeader& GetHeader() const { return Header; }
	[[nodiscard]] const std::vector<FDiagnostic>& GetErrors() const { return Errors; }

private:
	static constexpr size_t MaxErrors = 100;

	/** Goes back to the token behind the mark, with the failure behind it. */
	void Recover(size_t Mark);

	const FTokenizedHeader& Header;
	const FParseLimits& Limits;
	size_t Index = 0;
	int32_t Depth = 0;
	bool bFailed = false;
	std::vector<FDiagnostic> Errors;
};

/** UCLASS and its like, which stand in no other declaration. */
[[nodiscard]] bool BeginsDeclaration(const FToken& Token);

[[nodiscard]] bool EqualsIgnoringCase(std::string_view Left, std::string_view Right);
}

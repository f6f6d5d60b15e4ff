#pragma once

#include "CoreMinimal.h"

/** A word, a number, a literal or a sign of a C++ file. */
struct FVexelSourceToken
{
	FStringView Text;
	int32 Line = 0;
	/** Where the comment directly above begins; Line without one. */
	int32 CommentLine = 0;
	bool bIdentifier = false;

	bool Is(FStringView Other) const { return Text.Equals(Other, ESearchCase::CaseSensitive); }
};

/** Cuts a C++ file into tokens, without comments and preprocessor lines. The text must outlive the tokens. */
class FVexelSourceLexer
{
public:
	explicit FVexelSourceLexer(FStringView InText)
		: Text(InText)
	{
	}

	/** False at the end. */
	bool Next(FVexelSourceToken& Out);

private:
	TCHAR Peek(int32 Ahead = 0) const { return Position + Ahead < Text.Len() ? Text[Position + Ahead] : TCHAR(0); }
	void Advance();
	/** White space, comments and preprocessor lines. */
	void SkipBetween();
	void SkipComment();
	/** To the end of the line, and of the next after a backslash. */
	void SkipLine();
	void SkipQuoted(TCHAR Quote);
	void SkipRawString();
	void SkipWord();
	void SkipToken();

	FStringView Text;
	int32 Position = 0;
	int32 Line = 1;
	/** The last comment's lines; 0 while there is none before the next token. */
	int32 CommentBegin = 0;
	int32 CommentEnd = 0;
	bool bLineBegins = true;
};

#include "Tools/VexelSourceLexer.h"

#include "Misc/Char.h"

namespace
{
bool IsWordBegin(TCHAR Character)
{
	return FChar::IsAlpha(Character) || Character == TEXT('_');
}

bool IsWordPart(TCHAR Character)
{
	return FChar::IsAlnum(Character) || Character == TEXT('_');
}
}

bool FVexelSourceLexer::Next(FVexelSourceToken& Out)
{
	SkipBetween();
	if (Position >= Text.Len())
	{
		return false;
	}
	const int32 Begin = Position;
	Out.Line = Line;
	Out.CommentLine = CommentBegin > 0 && CommentEnd + 1 >= Line ? CommentBegin : Line;
	Out.bIdentifier = IsWordBegin(Peek());
	CommentBegin = 0;
	bLineBegins = false;
	SkipToken();
	Out.Text = Text.Mid(Begin, Position - Begin);
	return true;
}

void FVexelSourceLexer::Advance()
{
	if (Peek() == TEXT('\n'))
	{
		++Line;
		bLineBegins = true;
	}
	++Position;
}

void FVexelSourceLexer::SkipBetween()
{
	while (Position < Text.Len())
	{
		if (FChar::IsWhitespace(Peek()) || Peek() == 0)
		{
			Advance();
		}
		else if (Peek() == TEXT('/') && (Peek(1) == TEXT('/') || Peek(1) == TEXT('*')))
		{
			SkipComment();
		}
		else if (Peek() == TEXT('#') && bLineBegins)
		{
			SkipLine();
			CommentBegin = 0;
		}
		else
		{
			return;
		}
	}
}

void FVexelSourceLexer::SkipComment()
{
	const bool bFollows = CommentBegin > 0 && CommentEnd + 1 >= Line;
	// A comment behind code on its line belongs to that code.
	CommentBegin = bFollows ? CommentBegin : bLineBegins ? Line
														 : 0;
	if (Peek(1) == TEXT('/'))
	{
		CommentEnd = Line;
		SkipLine();
		return;
	}
	const bool bLineBegan = bLineBegins;
	Position += 2;
	while (Position < Text.Len() && !(Peek() == TEXT('*') && Peek(1) == TEXT('/')))
	{
		Advance();
	}
	Position = FMath::Min(Position + 2, Text.Len());
	CommentEnd = Line;
	bLineBegins = bLineBegan;
}

void FVexelSourceLexer::SkipLine()
{
	while (Position < Text.Len() && Peek() != TEXT('\n'))
	{
		const bool bGoesOn = Peek() == TEXT('\\') && (Peek(1) == TEXT('\n') || (Peek(1) == TEXT('\r') && Peek(2) == TEXT('\n')));
		Position += bGoesOn ? (Peek(1) == TEXT('\n') ? 1 : 2) : 0;
		if (bGoesOn)
		{
			++Line;
		}
		++Position;
	}
}

void FVexelSourceLexer::SkipQuoted(TCHAR Quote)
{
	Advance();
	while (Position < Text.Len() && Peek() != Quote && Peek() != TEXT('\n'))
	{
		Position += Peek() == TEXT('\\') && Peek(1) != TEXT('\n') ? 1 : 0;
		Advance();
	}
	Position = FMath::Min(Position + (Peek() == Quote ? 1 : 0), Text.Len());
}

void FVexelSourceLexer::SkipRawString()
{
	constexpr int32 MaxDelimiter = 16;
	const int32 Begin = ++Position;
	while (Peek() != TEXT('(') && Position - Begin <= MaxDelimiter && Position < Text.Len())
	{
		++Position;
	}
	const FString End = TEXT(")") + FString(Text.Mid(Begin, Position - Begin)) + TEXT("\"");
	while (Position < Text.Len() && !Text.Mid(Position, End.Len()).Equals(End, ESearchCase::CaseSensitive))
	{
		Advance();
	}
	Position = FMath::Min(Position + End.Len(), Text.Len());
}

void FVexelSourceLexer::SkipWord()
{
	const int32 Begin = Position;
	while (IsWordPart(Peek()))
	{
		++Position;
	}
	if (Peek() == TEXT('"') && Text.Mid(Begin, Position - Begin).EndsWith(TEXT("R"), ESearchCase::CaseSensitive))
	{
		SkipRawString();
	}
}

void FVexelSourceLexer::SkipToken()
{
	const TCHAR First = Peek();
	if (IsWordBegin(First))
	{
		SkipWord();
	}
	else if (FChar::IsDigit(First))
	{
		while (IsWordPart(Peek()) || Peek() == TEXT('.') || (Peek() == TEXT('\'') && IsWordPart(Peek(1))))
		{
			++Position;
		}
	}
	else if (First == TEXT('"') || First == TEXT('\''))
	{
		SkipQuoted(First);
	}
	else
	{
		Position += First == TEXT(':') && Peek(1) == TEXT(':') ? 2 : 1;
	}
}

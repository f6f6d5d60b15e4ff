#include "MarkdownStream.h"

#include "MarkdownLines.h"

namespace
{
/** A block or a line that grows beyond this ends there: it would be rendered anew with every piece. */
constexpr int32 MaxBlockLength = 32 * 1024;

bool IsBlankLine(FStringView Line)
{
	return Line.TrimStartAndEnd().IsEmpty();
}

/** The run of fence characters that a line begins with; empty unless it begins a code block at the outermost level. */
FString GetFence(FStringView Line)
{
	const TCHAR Mark = Line.IsEmpty() ? TEXT('\0') : Line[0];
	if (Mark != TEXT('`') && Mark != TEXT('~'))
	{
		return FString();
	}
	int32 Length = 1;
	while (Length < Line.Len() && Line[Length] == Mark)
	{
		++Length;
	}
	int32 Ignored = 0;
	const bool bInlineCode = Mark == TEXT('`') && Line.RightChop(Length).FindChar(TEXT('`'), Ignored);
	return Length >= 3 && !bInlineCode ? FString::ChrN(Length, Mark) : FString();
}

bool ClosesFence(FStringView Line, const FString& Fence)
{
	const FStringView Trimmed = Line.TrimStartAndEnd();
	const FString Run = GetFence(Trimmed);
	return Run.Len() == Trimmed.Len() && Run.Len() >= Fence.Len() && Run[0] == Fence[0];
}

bool IsHeading(FStringView Line)
{
	int32 Level = 0;
	while (Level < Line.Len() && Line[Level] == TEXT('#'))
	{
		++Level;
	}
	return Level >= 1 && Level <= 6 && (Level == Line.Len() || Line[Level] == TEXT(' '));
}

/** A list item at the outermost level: it ends what stands above it, be it another item or a paragraph. */
bool IsBullet(FStringView Line)
{
	return Line.Len() > 2 && (Line[0] == TEXT('-') || Line[0] == TEXT('*') || Line[0] == TEXT('+')) && Line[1] == TEXT(' ');
}

/** Whether a block is a list: a bullet or a number begins it. */
bool BeginsList(FStringView Block)
{
	int32 NumDigits = 0;
	while (NumDigits < Block.Len() && FChar::IsDigit(Block[NumDigits]))
	{
		++NumDigits;
	}
	const bool bNumber = NumDigits > 0 && NumDigits < Block.Len() && (Block[NumDigits] == TEXT('.') || Block[NumDigits] == TEXT(')'));
	return bNumber || IsBullet(Block);
}
}

void FMarkdownStream::Append(FStringView Piece, int32 Width, TArray<FStyledLine>& OutLines)
{
	for (FStringView Rest = Piece; !Rest.IsEmpty();)
	{
		int32 LineEnd = INDEX_NONE;
		if (!Rest.FindChar(TEXT('\n'), LineEnd))
		{
			OpenLine += Rest;
			break;
		}
		OpenLine += Rest.Left(LineEnd);
		const FString Line = MoveTemp(OpenLine);
		OpenLine.Reset();
		TakeLine(Line, Width, OutLines);
		Rest = Rest.RightChop(LineEnd + 1);
	}
	if (OpenLine.Len() > MaxBlockLength)
	{
		const FString Line = MoveTemp(OpenLine);
		OpenLine.Reset();
		TakeLine(Line, Width, OutLines);
	}
}

TArray<FStyledLine> FMarkdownStream::GetUnfinishedLines(int32 Width) const
{
	TArray<FStyledLine> Lines;
	FMarkdownStream Copy = *this;
	Copy.Finish(Width, Lines);
	return Lines;
}

void FMarkdownStream::Finish(int32 Width, TArray<FStyledLine>& OutLines)
{
	if (!OpenLine.IsEmpty())
	{
		const FString Line = MoveTemp(OpenLine);
		TakeLine(Line, Width, OutLines);
	}
	FlushBlock(Width, OutLines);
	*this = FMarkdownStream();
}

void FMarkdownStream::TakeLine(FStringView RawLine, int32 Width, TArray<FStyledLine>& OutLines)
{
	const FStringView Line = RawLine.EndsWith(TEXT('\r')) ? RawLine.LeftChop(1) : RawLine;
	if (!Fence.IsEmpty())
	{
		if (ClosesFence(Line, Fence))
		{
			Fence.Reset();
			bGapWanted = true;
			return;
		}
		AddGap(OutLines);
		OutLines.Append(RenderCodeLine(Line, Width));
		return;
	}
	if (IsBlankLine(Line))
	{
		// A list may go on behind an empty line; nothing else does.
		if (!BeginsList(Block))
		{
			FlushBlock(Width, OutLines);
		}
		bBlankLineSeen = true;
		Block += Block.IsEmpty() ? TEXT("") : TEXT("\n");
		return;
	}
	const bool bOutermost = Line[0] != TEXT(' ') && Line[0] != TEXT('\t');
	const FString NewFence = GetFence(Line);
	const bool bHeading = IsHeading(Line);
	if (!NewFence.IsEmpty() || bHeading || IsBullet(Line) || (bBlankLineSeen && bOutermost))
	{
		FlushBlock(Width, OutLines);
	}
	bGapWanted |= bBlankLineSeen && Block.IsEmpty();
	bBlankLineSeen = false;
	if (!NewFence.IsEmpty())
	{
		Fence = NewFence;
		bGapWanted = true;
		return;
	}
	Block += Line;
	Block += TEXT("\n");
	if (bHeading || Block.Len() > MaxBlockLength)
	{
		FlushBlock(Width, OutLines);
	}
}

void FMarkdownStream::FlushBlock(int32 Width, TArray<FStyledLine>& OutLines)
{
	const FString Text = MoveTemp(Block);
	Block.Reset();
	const TArray<FStyledLine> Lines = RenderMarkdown(Text, Width);
	if (!Lines.IsEmpty())
	{
		AddGap(OutLines);
		OutLines.Append(Lines);
	}
}

void FMarkdownStream::AddGap(TArray<FStyledLine>& OutLines)
{
	if (bGapWanted && bAnythingWritten)
	{
		OutLines.AddDefaulted();
	}
	bGapWanted = false;
	bAnythingWritten = true;
}

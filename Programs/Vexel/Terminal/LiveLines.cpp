#include "LiveLines.h"

namespace
{
constexpr int32 MinColumns = 4;
constexpr int32 MinRows = 2;

const TCHAR* const EraseToLineEnd = TEXT("\x1b[K");
const TCHAR* const EraseBelow = TEXT("\x1b[J");

int32 CountSameCells(const FStyledLine& Left, const FStyledLine& Right)
{
	const TArray<FTextCell>& A = Left.GetCells();
	const TArray<FTextCell>& B = Right.GetCells();
	int32 Same = 0;
	while (Same < A.Num() && Same < B.Num() && A[Same] == B[Same])
	{
		++Same;
	}
	return Same;
}
}

FLiveLines::FLiveLines(FWrite InWrite)
	: Write(MoveTemp(InWrite))
{
	ForgetShown();
}

int32 FLiveLines::GetTextWidth() const
{
	// The last column stays free: a terminal that has written it may or may not be in the next line.
	return Columns - 1;
}

void FLiveLines::SetSize(int32 InColumns, int32 InRows)
{
	InColumns = FMath::Max(InColumns, MinColumns);
	InRows = FMath::Max(InRows, MinRows);
	const bool bNewWidth = InColumns != Columns;
	Columns = InColumns;
	Rows = InRows;
	if (!bNewWidth || (Shown.Num() == 1 && Shown[0].IsEmpty()))
	{
		return;
	}
	// A terminal that became narrower has broken the lines that no longer fit, the cursor's too.
	int32 RowsAbove = CursorColumn / Columns;
	for (int32 Line = 0; Line < CursorLine; ++Line)
	{
		RowsAbove += FMath::Max(1, FMath::DivideAndRoundUp(Shown[Line].GetWidth(), Columns));
	}
	RowsAbove = FMath::Min(RowsAbove, Rows - 1);
	Write(TEXT("\r") + (RowsAbove > 0 ? FString::Printf(TEXT("\x1b[%dA"), RowsAbove) : FString()) + EraseBelow);
	const TArray<FStyledLine> Lines = MoveTemp(Shown);
	ForgetShown();
	Rewrite(Lines);
}

void FLiveLines::Update(const TArray<FStyledLine>& FinalLines, const TArray<FStyledLine>& ChangingLines)
{
	TArray<FStyledLine> Lines = FinalLines;
	Lines.Append(ChangingLines);
	if (ChangingLines.IsEmpty())
	{
		Lines.AddDefaulted();
	}
	Rewrite(Lines);
	Shown.RemoveAt(0, FinalLines.Num());
	CursorLine -= FinalLines.Num();
}

void FLiveLines::Rewrite(const TArray<FStyledLine>& NewLines)
{
	TArray<FStyledLine> Lines;
	for (const FStyledLine& Line : NewLines)
	{
		Lines.Add(Line.CutTo(GetTextWidth()));
	}
	const int32 LowestLine = Shown.Num() - 1;
	FString Text;
	for (int32 Line = 0; Line < Lines.Num(); ++Line)
	{
		const FStyledLine Before = Line <= LowestLine ? Shown[Line] : FStyledLine();
		const int32 Same = CountSameCells(Before, Lines[Line]);
		const bool bUnchanged = Same == Lines[Line].GetCells().Num() && Same == Before.GetCells().Num();
		// A line that has scrolled out of the window cannot be changed any more.
		if (bUnchanged || LowestLine - Line >= Rows)
		{
			continue;
		}
		Text += MoveTo(Line, Lines[Line].Slice(0, Same).GetWidth());
		Text += WriteFrom(Lines[Line], Same);
		Text += Same < Before.GetCells().Num() ? EraseToLineEnd : TEXT("");
	}
	if (Lines.Num() < Shown.Num())
	{
		Text += MoveTo(Lines.Num(), 0) + EraseBelow;
	}
	Text += MoveTo(Lines.Num() - 1, Lines.Last().GetWidth());
	Shown = MoveTemp(Lines);
	if (!Text.IsEmpty())
	{
		Write(Text);
	}
}

FString FLiveLines::MoveTo(int32 Line, int32 Column)
{
	FString Text;
	if (Line > CursorLine)
	{
		// Line ends rather than a move, because they also make room at the bottom of the window.
		Text = TEXT("\r") + FString::ChrN(Line - CursorLine, TEXT('\n'));
		CursorColumn = 0;
	}
	else if (Line < CursorLine)
	{
		Text = FString::Printf(TEXT("\x1b[%dA"), CursorLine - Line);
	}
	if (Column != CursorColumn)
	{
		Text += Column == 0 ? FString(TEXT("\r")) : FString::Printf(TEXT("\x1b[%dG"), Column + 1);
	}
	CursorLine = Line;
	CursorColumn = Column;
	return Text;
}

FString FLiveLines::WriteFrom(const FStyledLine& Line, int32 FirstCell)
{
	CursorColumn = Line.GetWidth();
	return bStyled ? Line.ToTerminalText(FirstCell) : Line.Slice(FirstCell, Line.GetCells().Num()).ToPlainText();
}

void FLiveLines::ForgetShown()
{
	Shown = {FStyledLine()};
	CursorLine = 0;
	CursorColumn = 0;
}

#include "TableLines.h"

namespace
{
constexpr int32 MinColumnWidth = 6;
/** " │ " between two columns. */
constexpr int32 RuleWidth = 3;

TArray<int32> MeasureColumns(const FTextTable& Table)
{
	TArray<int32> Widths;
	for (const TArray<FStyledLine>& Row : Table.Rows)
	{
		for (int32 Column = 0; Column < Row.Num(); ++Column)
		{
			if (Column == Widths.Num())
			{
				Widths.Add(1);
			}
			Widths[Column] = FMath::Max(Widths[Column], Row[Column].GetWidth());
		}
	}
	return Widths;
}

void ShrinkColumns(TArray<int32>& Widths, int32 Width)
{
	int32 Excess = RuleWidth * (Widths.Num() - 1) - Width;
	for (const int32 Column : Widths)
	{
		Excess += Column;
	}
	while (Excess > 0)
	{
		int32 Widest = 0;
		for (int32 Column = 1; Column < Widths.Num(); ++Column)
		{
			Widest = Widths[Column] > Widths[Widest] ? Column : Widest;
		}
		if (Widths[Widest] <= MinColumnWidth)
		{
			return;
		}
		--Widths[Widest];
		--Excess;
	}
}

FStyledLine Align(const FStyledLine& Text, int32 Width, ETextAlignment Alignment)
{
	const int32 Free = FMath::Max(0, Width - Text.GetWidth());
	const int32 Before = Alignment == ETextAlignment::Right ? Free : Alignment == ETextAlignment::Center ? Free / 2
																										 : 0;
	return FStyledLine(FString::ChrN(Before, TEXT(' '))).Append(Text).PadTo(Width);
}

void RenderRow(const FTextTable& Table, const TArray<FStyledLine>& Row, const TArray<int32>& Widths, TArray<FStyledLine>& Lines)
{
	TArray<TArray<FStyledLine>> Cells;
	int32 Height = 1;
	for (int32 Column = 0; Column < Widths.Num(); ++Column)
	{
		Cells.Add(Column < Row.Num() ? WrapText(Row[Column], Widths[Column]) : TArray<FStyledLine>{FStyledLine()});
		Height = FMath::Max(Height, Cells.Last().Num());
	}
	for (int32 LineOfRow = 0; LineOfRow < Height; ++LineOfRow)
	{
		FStyledLine& Line = Lines.AddDefaulted_GetRef();
		for (int32 Column = 0; Column < Widths.Num(); ++Column)
		{
			const FStyledLine Text = LineOfRow < Cells[Column].Num() ? Cells[Column][LineOfRow] : FStyledLine();
			const ETextAlignment Alignment = Table.Alignments.IsValidIndex(Column) ? Table.Alignments[Column] : ETextAlignment::Left;
			Line.Add(Column == 0 ? TEXT("") : TEXT(" │ "), TextStyle::Faint).Append(Align(Text, Widths[Column], Alignment));
		}
	}
}
}

TArray<FStyledLine> RenderTable(const FTextTable& Table, int32 Width)
{
	TArray<int32> Widths = MeasureColumns(Table);
	ShrinkColumns(Widths, Width);
	TArray<FStyledLine> Lines;
	for (int32 Row = 0; Row < Table.Rows.Num(); ++Row)
	{
		RenderRow(Table, Table.Rows[Row], Widths, Lines);
		if (Row == 0)
		{
			FStyledLine& Rule = Lines.AddDefaulted_GetRef();
			for (int32 Column = 0; Column < Widths.Num(); ++Column)
			{
				const FString Dashes = FString::ChrN(Widths[Column], TCHAR(0x2500));
				Rule.Add((Column == 0 ? TEXT("") : TEXT("─┼─")) + Dashes, TextStyle::Faint);
			}
		}
	}
	// Columns that cannot shrink any more are cut with the line: a table that broke would be no table.
	for (FStyledLine& Line : Lines)
	{
		Line = Line.CutTo(Width);
	}
	return Lines;
}

#include "TestScreen.h"

#include "Containers/StringConv.h"
#include "StyledText.h"

FTestScreen::FTestScreen(int32 InColumns, int32 InRows)
	: Columns(InColumns)
	, Rows(InRows)
	, Lines(size_t(InRows))
{
}

void FTestScreen::Write(FStringView Text)
{
	while (!Text.IsEmpty())
	{
		int32 Length = 1;
		if (Text[0] == TEXT('\x1b'))
		{
			Length = RunCode(Text);
		}
		else if (Text[0] == TEXT('\r'))
		{
			Column = 0;
		}
		else if (Text[0] == TEXT('\b'))
		{
			Column = std::max(0, Column - 1);
		}
		else if (Text[0] == TEXT('\n'))
		{
			BeginLine();
			// As the terminal's driver writes a line end.
			Column = 0;
		}
		else
		{
			Length = Text[0] >= 0xD800 && Text[0] <= 0xDBFF ? 2 : 1;
			Put(Text.Left(Length));
		}
		Text = Text.RightChop(Length);
	}
}

void FTestScreen::BeginLine()
{
	if (Row + 1 < Rows)
	{
		++Row;
		return;
	}
	++ScrolledAway;
	Lines.emplace_back();
}

void FTestScreen::Put(FStringView Character)
{
	const FTCHARToUTF8 Utf8(Character.GetData(), Character.Len());
	const std::string Bytes(Utf8.Get(), size_t(Utf8.Length()));
	const bool bMark = FStyledLine(FString(TEXT("x")) + Character).GetCells().Num() == 1;
	if (bMark && Column > 0)
	{
		CurrentLine()[size_t(Column) - 1] += Bytes;
		return;
	}
	const int32 Width = GetTextWidth(Character);
	if (Column + Width > Columns)
	{
		BeginLine();
		Column = 0;
	}
	FCells& Line = CurrentLine();
	Line.resize(std::max(Line.size(), size_t(Column + Width)), " ");
	Line[size_t(Column)] = Bytes;
	if (Width == 2)
	{
		Line[size_t(Column) + 1] = "";
	}
	Column += Width;
	++NumWritten;
}

int32 FTestScreen::RunCode(FStringView Text)
{
	int32 End = 2;
	int32 Number = 0;
	while (End < Text.Len() && (FChar::IsDigit(Text[End]) || Text[End] == TEXT(';')))
	{
		Number = FChar::IsDigit(Text[End]) ? Number * 10 + int32(Text[End] - TEXT('0')) : 0;
		++End;
	}
	switch (End < Text.Len() && Text[1] == TEXT('[') ? char(Text[End]) : '\0')
	{
		case 'A':
			Row = std::max(0, Row - std::max(Number, 1));
			break;
		case 'C':
			Column += std::max(Number, 1);
			break;
		case 'D':
			Column = std::max(0, Column - std::max(Number, 1));
			break;
		case 'P':
			RemoveCells(size_t(std::max(Number, 1)));
			break;
		case '@':
			CurrentLine().resize(std::max(CurrentLine().size(), size_t(Column)), " ");
			CurrentLine().insert(CurrentLine().begin() + Column, size_t(std::max(Number, 1)), " ");
			break;
		case 'G':
			Column = std::max(Number, 1) - 1;
			break;
		case 'K':
			CurrentLine().resize(std::min(CurrentLine().size(), size_t(Column)));
			break;
		case 'J':
			CurrentLine().resize(std::min(CurrentLine().size(), size_t(Column)));
			for (size_t Below = ScrolledAway + size_t(Row) + 1; Below < Lines.size(); ++Below)
			{
				Lines[Below].clear();
			}
			break;
		case 'm':
			break;
		default:
			++NumUnknownCodes;
			break;
	}
	return std::min(End + 1, Text.Len());
}

void FTestScreen::RemoveCells(size_t Count)
{
	FCells& Line = CurrentLine();
	const size_t Begin = std::min(Line.size(), size_t(Column));
	Line.erase(Line.begin() + ptrdiff_t(Begin), Line.begin() + ptrdiff_t(std::min(Line.size(), Begin + Count)));
}

void FTestScreen::Resize(int32 NewColumns, int32 NewRows)
{
	Columns = NewColumns;
	// Rows come and go at the top, where lines that have scrolled away come back from.
	const int32 Cursor = GetCursorLine();
	Rows = NewRows;
	ScrolledAway = size_t(std::max(0, Cursor + 1 - Rows));
	Row = Cursor - int32(ScrolledAway);
	Lines.resize(std::max(Lines.size(), ScrolledAway + size_t(Rows)));
}

std::vector<std::string> FTestScreen::GetLines() const
{
	std::vector<std::string> Texts;
	for (const FCells& Cells : Lines)
	{
		std::string& Text = Texts.emplace_back();
		for (const std::string& Cell : Cells)
		{
			Text += Cell;
		}
		Text.erase(Text.find_last_not_of(' ') + 1);
	}
	while (!Texts.empty() && Texts.back().empty())
	{
		Texts.pop_back();
	}
	return Texts;
}

#include "StyledText.h"

#include "VexelStringUtil.h"

#include <clocale>
#include <cstring>
#include <cwchar>
#include <langinfo.h>

namespace
{
constexpr int32 TabWidth = 4;
/** Marks beyond this are left out: no script stacks as many, and a terminal would have to draw them. */
constexpr int32 MaxCellLength = 32;
constexpr TCHAR Ellipsis = TCHAR(0x2026);

/** The code point that begins at Index; moves Index behind it. Half a surrogate pair is a replacement character. */
char32_t TakeCodePoint(FStringView Text, int32& Index)
{
	const char32_t First = Text[Index++];
	if (First < 0xD800 || First > 0xDFFF)
	{
		return First;
	}
	if (First > 0xDBFF || Index == Text.Len() || Text[Index] < 0xDC00 || Text[Index] > 0xDFFF)
	{
		return 0xFFFD;
	}
	return 0x10000 + ((First - 0xD800) << 10) + (char32_t(Text[Index++]) - 0xDC00);
}

/** Marks that turn the direction of the text behind them: on a terminal they make words read as what they are not. */
bool TurnsDirection(char32_t Character)
{
	return (Character >= 0x202A && Character <= 0x202E) || (Character >= 0x2066 && Character <= 0x2069);
}

int32 GetWidth(char32_t Character)
{
	// What the C library does not know yet is as wide as most characters.
	const int32 Width = wcwidth(wchar_t(Character));
	return Width < 0 ? 1 : Width;
}

/** The codes that switch a style on; empty for plain text. */
FString GetStyleCodes(const FTextStyle& Style)
{
	static constexpr const TCHAR* ColorCodes[] = {
		nullptr, TEXT("31"), TEXT("32"), TEXT("33"), TEXT("34"), TEXT("35"), TEXT("36"), TEXT("90")};
	FString Codes;
	const auto Add = [&Codes](bool bWanted, const TCHAR* Code)
	{
		if (bWanted)
		{
			Codes += Codes.IsEmpty() ? FString(Code) : FString(TEXT(";")) + Code;
		}
	};
	Add(Style.bBold, TEXT("1"));
	Add(Style.bDim, TEXT("2"));
	Add(Style.bItalic, TEXT("3"));
	Add(Style.bUnderlined, TEXT("4"));
	Add(Style.bStruck, TEXT("9"));
	Add(Style.Color != ETextColor::Default, ColorCodes[int32(Style.Color)]);
	return Codes;
}

bool IsBlank(const FTextCell& Cell)
{
	return Cell.Text == TEXT(" ");
}

/** Whether a line may end between two cells that are no blanks: scripts of wide characters have no blanks between words. */
bool MayBreakBetween(const FTextCell& Left, const FTextCell& Right)
{
	return Left.Width == 2 || Right.Width == 2;
}

/** The end of the word that begins at a cell that is no blank. */
int32 FindWordEnd(const TArray<FTextCell>& Cells, int32 Begin)
{
	int32 End = Begin + 1;
	while (End < Cells.Num() && !IsBlank(Cells[End]) && !MayBreakBetween(Cells[End - 1], Cells[End]))
	{
		++End;
	}
	return End;
}

int32 SumWidths(const TArray<FTextCell>& Cells, int32 Begin, int32 End)
{
	int32 Width = 0;
	for (int32 Index = Begin; Index < End; ++Index)
	{
		Width += Cells[Index].Width;
	}
	return Width;
}
}

FStyledLine& FStyledLine::Add(FStringView Text, const FTextStyle& Style)
{
	const FString Printable = FVexelStringUtil::ToPrintable(Text);
	const FStringView View(Printable);
	for (int32 Index = 0; Index < View.Len();)
	{
		char32_t Character = TakeCodePoint(View, Index);
		if (Character == U'\t')
		{
			Add(FStringView(TEXT("    "), TabWidth), Style);
			continue;
		}
		if (Character == U'\n')
		{
			Character = U' ';
		}
		if (TurnsDirection(Character))
		{
			Character = 0xFFFD;
		}
		const int32 Width = ::GetWidth(Character);
		if (Width == 0 && !Cells.IsEmpty() && Cells.Last().Text.Len() >= MaxCellLength)
		{
			continue;
		}
		if (Width == 0 && !Cells.IsEmpty())
		{
			AppendCodePoint(Cells.Last().Text, Character);
			continue;
		}
		FTextCell& Cell = Cells.AddDefaulted_GetRef();
		// A mark that has nothing to stand on gets a blank.
		Cell.Text = Width == 0 ? TEXT(" ") : TEXT("");
		AppendCodePoint(Cell.Text, Character);
		Cell.Style = Style;
		Cell.Width = FMath::Max(Width, 1);
	}
	return *this;
}

FStyledLine& FStyledLine::Append(const FStyledLine& Line)
{
	Cells.Append(Line.Cells);
	return *this;
}

int32 FStyledLine::GetWidth() const
{
	return SumWidths(Cells, 0, Cells.Num());
}

FString FStyledLine::ToPlainText() const
{
	FString Text;
	for (const FTextCell& Cell : Cells)
	{
		Text += Cell.Text;
	}
	return Text;
}

FString FStyledLine::ToTerminalText(int32 FirstCell) const
{
	FString Text;
	FTextStyle Current;
	for (int32 Index = FirstCell; Index < Cells.Num(); ++Index)
	{
		const FTextCell& Cell = Cells[Index];
		if (!(Cell.Style == Current))
		{
			const FString Codes = GetStyleCodes(Cell.Style);
			Text += TEXT("\x1b[0") + (Codes.IsEmpty() ? FString() : TEXT(";") + Codes) + TEXT("m");
			Current = Cell.Style;
		}
		Text += Cell.Text;
	}
	return Current == FTextStyle() ? Text : Text + TEXT("\x1b[0m");
}

FStyledLine FStyledLine::Slice(int32 Begin, int32 End) const
{
	FStyledLine Line;
	Line.Cells.Append(Cells.GetData() + Begin, End - Begin);
	return Line;
}

FStyledLine FStyledLine::CutTo(int32 MaxWidth) const
{
	if (GetWidth() <= MaxWidth)
	{
		return *this;
	}
	int32 End = 0;
	int32 Width = 1;
	while (End < Cells.Num() && Width + Cells[End].Width <= MaxWidth)
	{
		Width += Cells[End++].Width;
	}
	FStyledLine Line = Slice(0, End);
	return MaxWidth > 0 ? Line.Add(FStringView(&Ellipsis, 1), End > 0 ? Cells[End - 1].Style : TextStyle::Plain) : Line;
}

FStyledLine FStyledLine::PadTo(int32 Width) const
{
	FStyledLine Line = *this;
	return Line.Add(FString::ChrN(FMath::Max(0, Width - GetWidth()), TEXT(' ')));
}

TArray<FStyledLine> WrapText(const FStyledLine& Text, int32 Width, const FStyledLine& FirstPrefix, const FStyledLine& OtherPrefix)
{
	TArray<FStyledLine> Lines = {FirstPrefix};
	int32 Used = FirstPrefix.GetWidth();
	bool bLineHasWords = false;
	const auto BeginLine = [&]
	{
		Lines.Add(OtherPrefix);
		Used = OtherPrefix.GetWidth();
		bLineHasWords = false;
	};
	const TArray<FTextCell>& Cells = Text.GetCells();
	int32 NumBlanks = 0;
	for (int32 Begin = 0; Begin < Cells.Num();)
	{
		if (IsBlank(Cells[Begin]))
		{
			++NumBlanks;
			++Begin;
			continue;
		}
		const int32 End = FindWordEnd(Cells, Begin);
		const int32 WordWidth = SumWidths(Cells, Begin, End);
		if (bLineHasWords && Used + NumBlanks + WordWidth > Width)
		{
			BeginLine();
			NumBlanks = 0;
		}
		Lines.Last().Append(Text.Slice(Begin - NumBlanks, Begin));
		Used += NumBlanks;
		NumBlanks = 0;
		for (int32 Index = Begin; Index < End; ++Index)
		{
			if (bLineHasWords && Used + Cells[Index].Width > Width)
			{
				BeginLine();
			}
			Lines.Last().Append(Text.Slice(Index, Index + 1));
			Used += Cells[Index].Width;
			bLineHasWords = true;
		}
		Begin = End;
	}
	return Lines;
}

void AppendCodePoint(FString& Text, char32_t Character)
{
	if (Character > 0xFFFF)
	{
		Text.AppendChar(TCHAR(0xD800 + ((Character - 0x10000) >> 10)));
		Text.AppendChar(TCHAR(0xDC00 + ((Character - 0x10000) & 0x3FF)));
		return;
	}
	const bool bHalf = Character >= 0xD800 && Character <= 0xDFFF;
	Text.AppendChar(bHalf ? TCHAR(0xFFFD) : TCHAR(Character));
}

int32 GetTextWidth(FStringView Text)
{
	return FStyledLine(Text).GetWidth();
}

void UseUtf8Locale()
{
	if (!setlocale(LC_CTYPE, "") || strcmp(nl_langinfo(CODESET), "UTF-8") != 0)
	{
		setlocale(LC_CTYPE, "C.UTF-8");
	}
}

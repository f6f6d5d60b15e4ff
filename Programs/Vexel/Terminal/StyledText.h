#pragma once

#include "CoreMinimal.h"

enum class ETextColor : uint8
{
	Default,
	Red,
	Green,
	Yellow,
	Blue,
	Magenta,
	Cyan,
	Gray,
};

/** How a piece of text looks on a terminal. */
struct FTextStyle
{
	ETextColor Color = ETextColor::Default;
	bool bBold = false;
	bool bDim = false;
	bool bItalic = false;
	bool bUnderlined = false;
	bool bStruck = false;

	bool operator==(const FTextStyle&) const = default;
};

/** The styles by what they say, so that every part of the program says it alike. */
namespace TextStyle
{
inline constexpr FTextStyle Plain = {};
inline constexpr FTextStyle Strong = {.bBold = true};
inline constexpr FTextStyle Faint = {.bDim = true};
inline constexpr FTextStyle Title = {.Color = ETextColor::Cyan, .bBold = true};
inline constexpr FTextStyle Code = {.Color = ETextColor::Cyan};
inline constexpr FTextStyle Good = {.Color = ETextColor::Green};
inline constexpr FTextStyle Bad = {.Color = ETextColor::Red};
inline constexpr FTextStyle Accent = {.Color = ETextColor::Yellow};
}

/** One character as a reader sees it, with its combining marks: what a terminal keeps in a cell, or in two. */
struct FTextCell
{
	FString Text;
	FTextStyle Style;
	/** Columns: 1, or 2 for a wide character. */
	int32 Width = 1;

	bool operator==(const FTextCell& Other) const { return Style == Other.Style && Text.Equals(Other.Text); }
};

/**
 * A line of text in styles. Whatever is added, nothing in it can act on a terminal: control characters become replacement
 * characters, and a tab becomes blanks.
 */
class FStyledLine
{
public:
	FStyledLine() = default;
	FStyledLine(FStringView Text, const FTextStyle& Style = TextStyle::Plain) { Add(Text, Style); }
	FStyledLine(const FString& Text, const FTextStyle& Style = TextStyle::Plain) { Add(Text, Style); }
	FStyledLine(const TCHAR* Text, const FTextStyle& Style = TextStyle::Plain) { Add(Text, Style); }

	FStyledLine& Add(FStringView Text, const FTextStyle& Style = TextStyle::Plain);
	FStyledLine& Append(const FStyledLine& Line);

	bool IsEmpty() const { return Cells.IsEmpty(); }
	const TArray<FTextCell>& GetCells() const { return Cells; }
	/** In columns. */
	int32 GetWidth() const;
	FString ToPlainText() const;
	/** With the terminal's codes for the styles, which are all taken back at the end; from a cell on. */
	FString ToTerminalText(int32 FirstCell = 0) const;

	/** The line, or as much of it as fits with an ellipsis behind it. */
	FStyledLine CutTo(int32 MaxWidth) const;
	/** The line with blanks behind it. */
	FStyledLine PadTo(int32 Width) const;

	/** Cells Begin to End, without End. */
	FStyledLine Slice(int32 Begin, int32 End) const;

private:
	TArray<FTextCell> Cells;
};

/**
 * Breaks a text at blanks into lines of at most Width columns, the prefixes included; a word that is wider than a line is cut.
 * Never empty.
 */
TArray<FStyledLine> WrapText(
	const FStyledLine& Text, int32 Width, const FStyledLine& FirstPrefix = {}, const FStyledLine& OtherPrefix = {});

/** Adds a character of any plane of Unicode; half a surrogate pair becomes a replacement character. */
void AppendCodePoint(FString& Text, char32_t Character);

/** Columns of a text that has no control characters. */
int32 GetTextWidth(FStringView Text);

/**
 * Makes the process's character type locale one of UTF-8, the user's where it is one: the width of characters and the line editor
 * depend on it.
 */
void UseUtf8Locale();

#include "StyledText.h"

#include "TextLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;

class StyledText : public testing::Test
{
protected:
	StyledText() { UseUtf8Locale(); }
};
}

TEST_F(StyledText, WidthCountsColumns)
{
	const struct
	{
		const TCHAR* Text;
		int32 Width;
		int32 NumCells;
	} Cases[] = {
		{TEXT("door"), 4, 4},
		{TEXT("扉を開く"), 8, 4},
		{TEXT("e\x0301te\x0301"), 3, 3},
		{TEXT("a\x200D\x0301"), 1, 1},
		{TEXT("😀!"), 3, 2},
		{TEXT("\x0301"), 1, 1},
		{TEXT("a\tb"), 6, 6},
		{TEXT(""), 0, 0},
	};
	for (const auto& Case : Cases)
	{
		const FStyledLine Line(Case.Text);
		EXPECT_EQ(Line.GetWidth(), Case.Width) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_EQ(Line.GetCells().Num(), Case.NumCells) << TCHAR_TO_UTF8(Case.Text);
	}
}

TEST_F(StyledText, NothingInATextActsOnATerminal)
{
	const FStyledLine Line(TEXT("a\x1b[2Jb\x9b"
								"31mc\r\x07\x7f\x202e"
								"d"),
		TextStyle::Bad);
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Line.ToTerminalText())), "\x1b[0;31ma�[2Jb�31mc����d\x1b[0m");
}

TEST_F(StyledText, AMillionMarksStandOnOneCell)
{
	const FStyledLine Line(TEXT("a") + FString::ChrN(1'000'000, TCHAR(0x0301)) + TEXT("b"));
	EXPECT_EQ(Line.GetWidth(), 2);
	EXPECT_LT(Line.GetCells()[0].Text.Len(), 64);
}

TEST_F(StyledText, StylesGoOutWhereTheyChange)
{
	FStyledLine Line;
	Line.Add(TEXT("a")).Add(TEXT("bc"), TextStyle::Strong).Add(TEXT("d"), {.Color = ETextColor::Green, .bItalic = true}).Add(TEXT("e"));
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Line.ToTerminalText())), "a\x1b[0;1mbc\x1b[0;3;32md\x1b[0me");
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Line.ToTerminalText(2))), "\x1b[0;1mc\x1b[0;3;32md\x1b[0me");
}

TEST_F(StyledText, WrapsAtBlanksAndCutsWordsThatNeverFit)
{
	const FStyledLine First(TEXT("- "));
	const FStyledLine Rest(TEXT("  "));
	EXPECT_THAT(ToTexts(WrapText(TEXT("one two three"), 9, First, Rest)), ElementsAre("- one two", "  three"));
	EXPECT_THAT(ToTexts(WrapText(TEXT("one  two three"), 9, First, Rest)), ElementsAre("- one", "  two", "  three"));
	EXPECT_THAT(ToTexts(WrapText(TEXT("abcdefghij k"), 6, First, Rest)), ElementsAre("- abcd", "  efgh", "  ij k"));
	EXPECT_THAT(ToTexts(WrapText(TEXT("  if (x)"), 20)), ElementsAre("  if (x)"));
	EXPECT_THAT(ToTexts(WrapText(TEXT(""), 20, First)), ElementsAre("-"));
}

TEST_F(StyledText, WideCharactersBreakBetweenEachOtherAndNeverInTheMiddle)
{
	for (const FStyledLine& Line : WrapText(TEXT("扉が開いたらプレイヤーに知らせる"), 7))
	{
		EXPECT_LE(Line.GetWidth(), 7);
	}
	EXPECT_THAT(ToTexts(WrapText(TEXT("扉が開"), 5)), ElementsAre("扉が", "開"));
}

TEST_F(StyledText, CutsWithAnEllipsisBetweenCharacters)
{
	EXPECT_EQ(FStyledLine(TEXT("lighthouse")).CutTo(6).ToPlainText(), TEXT("light…"));
	EXPECT_EQ(FStyledLine(TEXT("扉が開く")).CutTo(6).ToPlainText(), TEXT("扉が…"));
	EXPECT_EQ(FStyledLine(TEXT("door")).CutTo(4).ToPlainText(), TEXT("door"));
	EXPECT_EQ(FStyledLine(TEXT("door")).CutTo(0).ToPlainText(), TEXT(""));
}

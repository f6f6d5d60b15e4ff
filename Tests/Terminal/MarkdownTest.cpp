#include "MarkdownLines.h"
#include "MarkdownStream.h"
#include "TextLines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;

class Markdown : public testing::Test
{
protected:
	Markdown() { UseUtf8Locale(); }

	static std::vector<std::string> Render(const TCHAR* Text, int32 Width = 40) { return ToTexts(RenderMarkdown(Text, Width)); }

	/** A text given to a stream in pieces of one length; every line that came out. */
	static std::vector<std::string> Stream(const FString& Text, int32 PieceLength, int32 Width = 40)
	{
		FMarkdownStream Stream;
		TArray<FStyledLine> Lines;
		for (int32 Begin = 0; Begin < Text.Len(); Begin += PieceLength)
		{
			Stream.Append(FStringView(Text).Mid(Begin, PieceLength), Width, Lines);
		}
		Stream.Finish(Width, Lines);
		return ToTexts(Lines);
	}

	static const FTextStyle& StyleOf(const FStyledLine& Line, const TCHAR* Text)
	{
		const int32 At = Line.ToPlainText().Find(Text);
		EXPECT_NE(At, INDEX_NONE);
		return Line.GetCells()[FMath::Max(At, 0)].Style;
	}
};

const TCHAR* const Everything = TEXT("# The door\n"
									 "Opens *slowly*.\n\n"
									 "Then:\n"
									 "- One **bold** thing\n"
									 "  - deeper\n"
									 "- Two\n\n"
									 "1. first\n"
									 "2. second\n\n"
									 "> quoted words\n\n"
									 "```cpp\n"
									 "if (x)\n"
									 "\n"
									 "\treturn;\n"
									 "```\n"
									 "| Name | Value |\n"
									 "| --- | ---: |\n"
									 "| Angle | 90 |\n\n"
									 "---\n"
									 "The end.\n");
}

TEST_F(Markdown, EachKindOfBlockHasItsForm)
{
	EXPECT_THAT(Stream(Everything, 1000, 20),
		ElementsAre("The door", "Opens slowly.", "", "Then:", "• One bold thing", "  ◦ deeper", "• Two", "", "1. first", "2. second", "",
			"▌ quoted words", "", "    if (x)", "", "        return;", "", "Name  │ Value", "──────┼──────", "Angle │    90", "",
			"────────────────────", "", "The end."));
}

TEST_F(Markdown, PiecesOfAnyLengthGiveTheSameLines)
{
	const std::vector<std::string> Whole = Stream(Everything, 1000);
	for (int32 PieceLength = 1; PieceLength < 40; ++PieceLength)
	{
		EXPECT_EQ(Stream(Everything, PieceLength), Whole) << PieceLength;
	}
}

TEST_F(Markdown, FinalLinesNeverChangeAndTheRestShowsHowItStands)
{
	FMarkdownStream Stream;
	TArray<FStyledLine> Final;
	Stream.Append(TEXT("A paragraph.\n\nAnd **another"), 40, Final);
	EXPECT_THAT(ToTexts(Final), ElementsAre("A paragraph."));
	EXPECT_THAT(ToTexts(Stream.GetUnfinishedLines(40)), ElementsAre("", "And **another"));
	Stream.Append(TEXT("** one"), 40, Final);
	EXPECT_THAT(ToTexts(Final), ElementsAre("A paragraph."));
	EXPECT_THAT(ToTexts(Stream.GetUnfinishedLines(40)), ElementsAre("", "And another one"));
	Stream.Append(TEXT("\n```\ncode\nmo"), 40, Final);
	EXPECT_THAT(ToTexts(Final), ElementsAre("A paragraph.", "", "And another one", "", "    code"));
	EXPECT_THAT(ToTexts(Stream.GetUnfinishedLines(40)), ElementsAre("    mo"));
}

TEST_F(Markdown, SpansHaveTheirStyles)
{
	const TArray<FStyledLine> Lines = RenderMarkdown(TEXT("a **bold** *slanted* `code` ~~gone~~ [text](https://example.org)"), 80);
	ASSERT_EQ(Lines.Num(), 1);
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Lines[0].ToPlainText())), "a bold slanted code gone text (https://example.org)");
	EXPECT_TRUE(StyleOf(Lines[0], TEXT("bold")).bBold);
	EXPECT_TRUE(StyleOf(Lines[0], TEXT("slanted")).bItalic);
	EXPECT_EQ(StyleOf(Lines[0], TEXT("code")), TextStyle::Code);
	EXPECT_TRUE(StyleOf(Lines[0], TEXT("gone")).bStruck);
	EXPECT_TRUE(StyleOf(Lines[0], TEXT("text")).bUnderlined);
	EXPECT_EQ(StyleOf(Lines[0], TEXT("a ")), TextStyle::Plain);
}

TEST_F(Markdown, LongItemsHangUnderTheirText)
{
	EXPECT_THAT(Render(TEXT("- a long item that wraps\n  1. inner words that wrap too"), 16),
		ElementsAre("• a long item", "  that wraps", "  1. inner words", "     that wrap", "     too"));
	EXPECT_THAT(Render(TEXT("> - [x] done\n> - [ ] open"), 30), ElementsAre("▌ ☑ done", "▌ ☐ open"));
}

TEST_F(Markdown, TablesThatAreTooWideWrapTheirWidestColumns)
{
	EXPECT_THAT(Render(TEXT("| Name | What it is for |\n|---|---|\n| Angle | how far the door opens |\n| 扉 | wide |"), 24),
		ElementsAre("Name  │ What it is for", "──────┼─────────────────", "Angle │ how far the door", "      │ opens", "扉    │ wide"));
	for (const std::string& Line : Render(TEXT("|a|b|c|d|e|f|\n|-|-|-|-|-|-|\n|aaaaaaaaaa|bbbbbbbbbb|cccccccccc|dddddddddd|eeeeeeeeee|f|"), 20))
	{
		EXPECT_LE(GetTextWidth(FString(UTF8_TO_TCHAR(Line.c_str()))), 20);
	}
}

TEST_F(Markdown, EntitiesAreReadAndNeverBecomeCodes)
{
	EXPECT_THAT(Render(TEXT("&lt;ToolCall&gt; &amp; &#65;&#x42; &rarr; &unknown; &#27;[2J &#0; &#x1F600;")),
		ElementsAre("<ToolCall> & AB → &unknown; �[2J � 😀"));
	EXPECT_THAT(Render(TEXT("<script>x</script> <b>y</b>")), ElementsAre("<script>x</script> <b>y</b>"));
}

TEST_F(Markdown, HostileTextIsBounded)
{
	const FString Deep = FString(TEXT("> ")).Replace(TEXT("> "), *FString::ChrN(2000, TEXT('>'))) + TEXT(" x\n");
	EXPECT_FALSE(Stream(Deep, 100).empty());
	EXPECT_FALSE(Stream(FString::ChrN(20'000, TEXT('[')), 1000).empty());
	EXPECT_FALSE(Stream(FString::ChrN(20'000, TEXT('*')), 1000).empty());
	FString LongLine;
	for (int32 Word = 0; Word < 30'000; ++Word)
	{
		LongLine += TEXT("word ");
	}
	FMarkdownStream Stream;
	TArray<FStyledLine> Final;
	Stream.Append(LongLine, 40, Final);
	EXPECT_GT(Final.Num(), 1000) << "a line without end is not kept and rendered anew for ever";
}

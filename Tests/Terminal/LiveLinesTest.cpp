#include "LiveLines.h"

#include "Containers/StringConv.h"
#include "TestScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

namespace
{
using testing::ElementsAre;

class LiveLines : public testing::Test
{
protected:
	LiveLines() { UseUtf8Locale(); }

	struct FView
	{
		FView(int32 Columns, int32 Rows)
			: Screen(Columns, Rows)
			, Lines([this](FStringView Text)
				  { Screen.Write(Text); })
		{
			Lines.SetSize(Columns, Rows);
		}

		FTestScreen Screen;
		FLiveLines Lines;
	};
};
}

TEST_F(LiveLines, FinalLinesStayAndChangingLinesGiveWay)
{
	FView View(20, 10);
	View.Lines.Update({TEXT("one")}, {TEXT("working")});
	EXPECT_THAT(View.Screen.GetLines(), ElementsAre("one", "working"));
	View.Lines.Update({TEXT("two"), TEXT("three")}, {TEXT("still")});
	EXPECT_THAT(View.Screen.GetLines(), ElementsAre("one", "two", "three", "still"));
	View.Lines.Clear();
	EXPECT_THAT(View.Screen.GetLines(), ElementsAre("one", "two", "three"));
	EXPECT_EQ(View.Screen.GetCursorLine(), 3);
	EXPECT_EQ(View.Screen.GetCursorColumn(), 0);
}

TEST_F(LiveLines, OnlyWhatChangesIsWritten)
{
	FView View(40, 10);
	View.Lines.Update({}, {TEXT("a first line"), TEXT("a second line"), TEXT("tail")});
	const int32 Before = View.Screen.GetNumWritten();
	View.Lines.Update({}, {TEXT("a first line"), TEXT("a second line"), TEXT("tail and more")});
	EXPECT_EQ(View.Screen.GetNumWritten() - Before, 9);
	View.Lines.Update({}, {TEXT("a first line"), TEXT("a second lamp"), TEXT("tail and more")});
	EXPECT_EQ(View.Screen.GetNumWritten() - Before, 12);
	View.Lines.Update({TEXT("a first line"), TEXT("a second lamp"), TEXT("tail and more")}, {});
	EXPECT_EQ(View.Screen.GetNumWritten() - Before, 12) << "becoming final writes nothing anew";
}

TEST_F(LiveLines, ManyChangesLeaveWhatTheyShouldOnAnyTerminal)
{
	std::mt19937 Random(7);
	const auto Pick = [&Random](int32 Limit)
	{ return int32(Random() % uint32(Limit)); };
	const TCHAR* const Words[] = {TEXT("door"), TEXT("扉"), TEXT("e\x0301te\x0301"), TEXT("a longer text that is cut"), TEXT("")};
	for (int32 Run = 0; Run < 200; ++Run)
	{
		FView View(6 + Pick(20), 6 + Pick(4));
		std::vector<std::string> Expected;
		const auto Cut = [&View](const FString& Text)
		{ return std::string(TCHAR_TO_UTF8(*FStyledLine(Text).CutTo(View.Lines.GetTextWidth()).ToPlainText())); };
		std::vector<std::string> Changing;
		for (int32 Step = 0; Step < 30; ++Step)
		{
			TArray<FStyledLine> Final;
			TArray<FStyledLine> Open;
			Changing.clear();
			for (int32 Num = Pick(4); Num > 0; --Num)
			{
				const FString Text = FString::FromInt(Pick(3)) + Words[Pick(5)];
				Final.Add(FStyledLine(Text, Pick(2) ? TextStyle::Strong : TextStyle::Plain));
				Expected.push_back(Cut(Text));
			}
			for (int32 Num = Pick(4); Num > 0; --Num)
			{
				const FString Text = FString::FromInt(Pick(3)) + Words[Pick(5)];
				Open.Add(Text);
				Changing.push_back(Cut(Text));
			}
			View.Lines.Update(Final, Open);
			std::vector<std::string> All = Expected;
			All.insert(All.end(), Changing.begin(), Changing.end());
			ASSERT_EQ(View.Screen.GetLines(), All) << "run " << Run << ", step " << Step;
		}
		EXPECT_EQ(View.Screen.GetNumUnknownCodes(), 0);
	}
}

TEST_F(LiveLines, WhatIsTallerThanTheWindowKeepsItsVisibleEndRight)
{
	FView View(20, 4);
	TArray<FStyledLine> Lines;
	for (int32 Line = 0; Line < 10; ++Line)
	{
		Lines.Add(FString::Printf(TEXT("line %d"), Line));
	}
	View.Lines.Update({}, Lines);
	Lines[0] = TEXT("changed out of sight");
	Lines[8] = TEXT("changed");
	View.Lines.Update({}, Lines);
	const std::vector<std::string> Shown = View.Screen.GetLines();
	ASSERT_EQ(Shown.size(), 10u);
	EXPECT_EQ(Shown[0], "line 0");
	EXPECT_EQ(Shown[8], "changed");
	EXPECT_EQ(Shown[9], "line 9");
}

TEST_F(LiveLines, WithoutStylesNoStyleGoesOut)
{
	FString Written;
	FLiveLines Lines([&Written](FStringView Text)
		{ Written += Text; });
	Lines.SetStyled(false);
	Lines.Update({FStyledLine(TEXT("bad"), TextStyle::Bad)}, {FStyledLine(TEXT("title"), TextStyle::Title)});
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Written)), "bad\r\ntitle");
}

TEST_F(LiveLines, ANarrowerTerminalGetsTheChangingLinesAnew)
{
	FString Written;
	FLiveLines Lines([&Written](FStringView Text)
		{ Written += Text; });
	Lines.SetSize(40, 10);
	Lines.Update({TEXT("final")}, {TEXT("twenty columns wide!"), TEXT("short")});
	Written.Reset();
	Lines.SetSize(10, 10);
	// The first changing line stands in two rows now, so that the cursor is two rows below its beginning.
	EXPECT_EQ(std::string(TCHAR_TO_UTF8(*Written)), "\r\x1b[2A\x1b[Jtwenty c…\r\nshort");
	Written.Reset();
	Lines.SetSize(10, 20);
	EXPECT_TRUE(Written.IsEmpty());
}

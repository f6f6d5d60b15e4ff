#include "DiffPicture.h"

#include "BlueprintDiff.h"
#include "Containers/StringConv.h"
#include "EdGraphNode_Comment.h"
#include "GraphFixture.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"
#include "K2Node_VariableGet.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class DiffPicture : public FGraphTest
{
protected:
	void Remember() { Before = MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Blueprint)); }

	TArray<FStyledLine> DrawStyled(int32 Width = 80, int32 MaxLines = MAX_int32) const
	{
		const TSharedRef<const FBlueprintSnapshot> After = MakeShared<FBlueprintSnapshot>(FBlueprintSnapshot::Take(*Blueprint));
		return DrawDiff(FBlueprintDiff::Compare(Before.ToSharedRef(), After), Width, MaxLines);
	}

	/** What changed since Remember(), without its heading. */
	std::vector<std::string> Draw(int32 Width = 80, int32 MaxLines = MAX_int32) const
	{
		std::vector<std::string> Texts;
		for (const FStyledLine& Line : DrawStyled(Width, MaxLines))
		{
			EXPECT_LE(Line.GetWidth(), Width);
			Texts.emplace_back(TCHAR_TO_UTF8(*Line.ToPlainText().TrimEnd()));
		}
		if (!Texts.empty())
		{
			Texts.erase(Texts.begin());
		}
		return Texts;
	}

	TSharedPtr<const FBlueprintSnapshot> Before;
};
}

TEST_F(DiffPicture, ANodeThatIsPutBetweenTwoStandsBetweenThem)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Last = AddPrint(TEXT("last"));
	Link(Event, Last);
	Remember();
	UEdGraphNode* const New = AddPrint(TEXT("new"));
	Unlink(Event);
	Link(Event, New);
	Link(New, Last);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "+ │ Print String  In String: \"new\"", "  └ Print String  In String: \"last\""));
}

TEST_F(DiffPicture, ANodeThatIsTakenOutStandsWhereItWas)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Middle = AddPrint(TEXT("middle"));
	UEdGraphNode* const Last = AddPrint(TEXT("last"));
	Link(Event, Middle);
	Link(Middle, Last);
	Remember();
	Remove(Middle);
	Link(Event, Last);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "- │ Print String  In String: \"middle\"", "  └ Print String  In String: \"last\""));
}

TEST_F(DiffPicture, AWireThatIsCutSaysWhereItLed)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	Link(Event, Print);
	Remember();
	Unlink(Event);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "- └ ↪ Print String"));
}

TEST_F(DiffPicture, AWireThatIsLedElsewhereSaysFromWhereToWhere)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const First = AddPrint(TEXT("a"));
	UEdGraphNode* const Second = AddPrint(TEXT("b"));
	Link(Event, First);
	Link(First, Second);
	Remember();
	Unlink(Event);
	Link(Event, Second);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "- │ ↪ Print String  In String: \"a\"", "+ │ ↪ #1 Print String  In String: \"b\"", "  └ #1 Print String  In String: \"b\""));
}

TEST_F(DiffPicture, AValueThatChangedIsShownWithWhatItWas)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT("old"));
	Link(Event, Print);
	Remember();
	Print->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("new");
	Print->NodeComment = TEXT("why");
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "~ └ Print String  In String: \"old\" → \"new\"  #: none → why"));
}

TEST_F(DiffPicture, LongValuesAreShownFromWhereTheyDiffer)
{
	UEdGraphNode* const Print = AddPrint(TEXT("x"));
	const FString Long = FString::ChrN(300, TEXT('x'));
	Print->FindPinChecked(TEXT("InString"))->DefaultValue = Long + TEXT("old");
	Remember();
	Print->FindPinChecked(TEXT("InString"))->DefaultValue = Long + TEXT("new");
	const std::vector<std::string> Lines = Draw();
	EXPECT_THAT(Lines, Contains(testing::HasSubstr("…xxxxxxxxxxxxxxxxxxxxold → …xxxxxxxxxxxxxxxxxxxxnew")));
}

TEST_F(DiffPicture, AChangeDeepInAnExpressionIsShownWhereTheValueGoes)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT(""));
	UEdGraphNode* const Convert = AddCall(TEXT("KismetStringLibrary"), TEXT("Conv_IntToString"));
	UEdGraphNode* const Random = AddCall(TEXT("KismetMathLibrary"), TEXT("RandomInteger"));
	Link(Event, Print);
	Link(Convert, TEXT("ReturnValue"), Print, TEXT("InString"));
	Link(Random, TEXT("ReturnValue"), Convert, TEXT("InInt"));
	Remember();
	Random->FindPinChecked(TEXT("Max"))->DefaultValue = TEXT("6");
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "~ └ Print String  In String: Random Integer(Max: 0) → Random Integer(Max: 6)"));
}

TEST_F(DiffPicture, ValuesThatNothingShowsStandByThemselves)
{
	Remember();
	UEdGraphNode* const Random = AddCall(TEXT("KismetMathLibrary"), TEXT("RandomInteger"));
	EXPECT_THAT(Draw(), ElementsAre("+ Random Integer"));
	Remember();
	Random->FindPinChecked(TEXT("Max"))->DefaultValue = TEXT("6");
	EXPECT_THAT(Draw(), ElementsAre("~ Random Integer  Max: 0 → 6"));
	Remember();
	Remove(Random);
	EXPECT_THAT(Draw(), ElementsAre("- Random Integer  Max: 6"));
}

TEST_F(DiffPicture, WaysThatComeAndGoAreMarkedWithWhatIsBehindThem)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Branch = Add<UK2Node_IfThenElse>();
	UEdGraphNode* const Yes = AddPrint(TEXT("yes"));
	Link(Event, Branch);
	Link(Branch, UEdGraphSchema_K2::PN_Then, Yes);
	Link(Yes, AddPrint(TEXT("after yes")));
	Remember();
	Link(Branch, UEdGraphSchema_K2::PN_Else, AddPrint(TEXT("no")));
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "  │ Branch", "  …", "+ └▸ false", "+    └ Print String  In String: \"no\""));
	Remember();
	Remove(Yes);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "  │ Branch", "- ├▸ true", "- │  │ Print String  In String: \"yes\"", "- │  └ ↪ Print String  In String: \"after yes\""));
}

TEST_F(DiffPicture, ANewBranchBeforeWhatRanHidesNoneOfIt)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT("last"));
	Link(Event, Print);
	Remember();
	UEdGraphNode* const Branch = Add<UK2Node_IfThenElse>();
	Unlink(Event);
	Link(Event, Branch);
	Link(Branch, UEdGraphSchema_K2::PN_Else, Print);
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "+ │ Branch  ▸ false", "  └ Print String  In String: \"last\""));
}

TEST_F(DiffPicture, EventsThatComeAndGoBringTheirFlow)
{
	UEdGraphNode* const Old = AddEvent(TEXT("Old"));
	UEdGraphNode* const Print = AddPrint(TEXT("shared"));
	Link(Old, Print);
	AddEvent(TEXT("Untouched"), 50);
	Remember();
	Remove(Old);
	Link(AddEvent(TEXT("New"), 100), Print);
	EXPECT_THAT(Draw(), ElementsAre("- ● Old", "- └ ↪ Print String", "+ ● New", "+ │ ↪ Print String", "  └ Print String  In String: \"shared\""));
}

TEST_F(DiffPicture, WhatStaysAsItWasIsLeftOut)
{
	UEdGraphNode* Last = AddEvent(TEXT("Go"));
	UEdGraphNode* Changed = nullptr;
	for (int32 Index = 0; Index < 20; ++Index)
	{
		UEdGraphNode* const Next = AddPrint(*FString::FromInt(Index));
		Link(Last, Next);
		Last = Next;
		Changed = Index == 10 ? Next : Changed;
	}
	Remember();
	Changed->FindPinChecked(TEXT("InString"))->DefaultValue = TEXT("ten");
	EXPECT_THAT(Draw(), ElementsAre("  ● Go", "  …", "  │ Print String  In String: \"9\"", "~ │ Print String  In String: \"10\" → \"ten\"", "  │ Print String  In String: \"11\""));
}

TEST_F(DiffPicture, CommentsAndReroutesAreTold)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT("a"));
	Link(Event, Print);
	Remember();
	UEdGraphNode_Comment* const Box = Add<UEdGraphNode_Comment>([](UEdGraphNode_Comment& Node)
		{ Node.NodeComment = TEXT("The way in"); });
	UK2Node_Knot* const Knot = Add<UK2Node_Knot>();
	Unlink(Event);
	Event->FindPinChecked(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Knot->GetInputPin());
	Knot->PropagatePinType();
	Knot->GetOutputPin()->MakeLinkTo(Print->FindPinChecked(UEdGraphSchema_K2::PN_Execute));
	EXPECT_THAT(Draw(), ElementsAre("+ # The way in", "+ 1 reroute node"));
	Remember();
	Box->NodeComment = TEXT("The way out");
	EXPECT_THAT(Draw(), ElementsAre("~ Comment  #: The way in → The way out"));
}

TEST_F(DiffPicture, VariablesAndWhatFollowsTheirNames)
{
	const FEdGraphPinType Real(
		UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Double, nullptr, EPinContainerType::None, false, FEdGraphTerminalType());
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), Real, TEXT("100.0"));
	FKismetEditorUtilities::CompileBlueprint(Blueprint);
	Add<UK2Node_VariableGet>([](UK2Node_VariableGet& Node)
		{ Node.VariableReference.SetSelfMember(TEXT("Health")); });
	Remember();
	FBlueprintEditorUtils::RenameMemberVariable(Blueprint, TEXT("Health"), TEXT("Life"));
	FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Speed"), Real);
	const std::vector<std::string> Lines = Draw();
	ASSERT_EQ(Lines.size(), 4u);
	EXPECT_EQ(Lines[0], "~ variable Health → Life");
	EXPECT_THAT(Lines[1], testing::StartsWith("+ variable Speed  type: Float"));
	EXPECT_THAT(Lines[2], testing::StartsWith("~ BP_Picture · Drawn"));
	EXPECT_EQ(Lines[3], "  1 node goes by the new name");
	Remember();
	FBlueprintEditorUtils::SetBlueprintPropertyReadOnlyFlag(Blueprint, TEXT("Speed"), true);
	EXPECT_THAT(Draw(), Contains("~ variable Speed  read only: no → yes"));
}

TEST_F(DiffPicture, NothingToTellIsNoPicture)
{
	AddPrint(TEXT("a"))->NodePosX = 100;
	Remember();
	Graph->Nodes[0]->NodePosX = 900;
	Graph->Nodes[0]->Rename(TEXT("AnotherName"));
	EXPECT_TRUE(DrawStyled().IsEmpty());
}

TEST_F(DiffPicture, AHugeEditIsCutAndCounted)
{
	Remember();
	UEdGraphNode* Last = AddEvent(TEXT("Go"));
	for (int32 Index = 0; Index < 500; ++Index)
	{
		UEdGraphNode* const Next = AddPrint(TEXT("a text that is long enough to be broken at the edge of a narrow terminal"));
		Link(Last, Next);
		Last = Next;
	}
	const std::vector<std::string> Lines = Draw(60, 10);
	ASSERT_LE(Lines.size(), 12u);
	EXPECT_EQ(Lines.back().rfind("  … and 49", 0), 0u) << Lines.back();
}

TEST_F(DiffPicture, TheHeadingCountsAndStylesTellWhatIsWhat)
{
	UEdGraphNode* const Gone = AddEvent(TEXT("Gone"));
	Link(Gone, AddPrint(TEXT("a")));
	Remember();
	Remove(Gone);
	AddEvent(TEXT("Come"));
	AddEvent(TEXT("Come2"));
	const TArray<FStyledLine> Lines = DrawStyled();
	EXPECT_EQ(Lines[0].ToPlainText(), TEXT("~ BP_Picture · Drawn  +2 -1 nodes  -1 wire"));
	for (const FStyledLine& Line : Lines)
	{
		const FString Text = Line.ToPlainText();
		const ETextColor Expected = Text.StartsWith(TEXT("+")) ? ETextColor::Green : Text.StartsWith(TEXT("-")) ? ETextColor::Red
			: Text.StartsWith(TEXT("~"))                                                                        ? ETextColor::Yellow
																												: ETextColor::Default;
		EXPECT_EQ(Line.GetCells()[0].Style.Color, Expected) << TCHAR_TO_UTF8(*Text);
	}
}

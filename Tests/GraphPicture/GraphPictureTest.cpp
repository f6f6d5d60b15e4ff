#include "GraphPicture.h"

#include "BlueprintSnapshot.h"
#include "Containers/StringConv.h"
#include "EdGraphNode_Comment.h"
#include "GraphFixture.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_Knot.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace
{
using testing::ElementsAre;

class GraphPicture : public FGraphTest
{
protected:
	/** The picture without its heading and the empty lines. */
	std::vector<std::string> Draw(int32 Width = 80) const
	{
		std::vector<std::string> Texts;
		for (const FStyledLine& Line : DrawGraph(FGraphSnapshot::Take(*Graph), Width))
		{
			EXPECT_LE(Line.GetWidth(), Width);
			if (!Line.IsEmpty())
			{
				Texts.emplace_back(TCHAR_TO_UTF8(*Line.ToPlainText().TrimEnd()));
			}
		}
		Texts.erase(Texts.begin());
		return Texts;
	}
};
}

TEST_F(GraphPicture, WaysStandBelowTheNodeInTheirOrder)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Branch = Add<UK2Node_IfThenElse>();
	Link(Event, Branch);
	Link(Branch, UEdGraphSchema_K2::PN_Then, AddPrint(TEXT("yes")));
	Link(Branch, UEdGraphSchema_K2::PN_Else, AddPrint(TEXT("no")));
	EXPECT_THAT(Draw(), ElementsAre("● Go", "│ Branch", "├▸ true", "│  └ Print String  In String: \"yes\"", "└▸ false", "   └ Print String  In String: \"no\""));
}

TEST_F(GraphPicture, ANodeOfSeveralWaysIsDrawnOnceAndPointedTo)
{
	UEdGraphNode* const Shared = AddPrint(TEXT("shared"));
	Link(AddEvent(TEXT("First"), 0), Shared);
	Link(AddEvent(TEXT("Second"), 100), Shared);
	EXPECT_THAT(Draw(), ElementsAre("● First", "└ #1 Print String  In String: \"shared\"", "● Second", "└ ↪ #1 Print String"));
}

TEST_F(GraphPicture, ALoopComesToAnEnd)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const First = AddPrint(TEXT("a"));
	UEdGraphNode* const Second = AddPrint(TEXT("b"));
	Link(Event, First);
	Link(First, Second);
	Link(Second, First);
	EXPECT_THAT(Draw(), ElementsAre("● Go", "│ #1 Print String  In String: \"a\"", "│ Print String  In String: \"b\"", "└ ↪ #1 Print String"));
}

TEST_F(GraphPicture, WiresThroughReroutesLeadOn)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UK2Node_Knot* const Knot = Add<UK2Node_Knot>();
	UEdGraphNode* const Print = AddPrint(TEXT("behind"));
	Event->FindPinChecked(UEdGraphSchema_K2::PN_Then)->MakeLinkTo(Knot->GetInputPin());
	Knot->PropagatePinType();
	Knot->GetOutputPin()->MakeLinkTo(Print->FindPinChecked(UEdGraphSchema_K2::PN_Execute));
	EXPECT_THAT(Draw(), ElementsAre("● Go", "└ Print String  In String: \"behind\""));
}

TEST_F(GraphPicture, ATimerShowsTheEventThatItRuns)
{
	UEdGraphNode* const Timer = AddCall(TEXT("KismetSystemLibrary"), TEXT("K2_SetTimerDelegate"));
	Link(AddEvent(TEXT("Go"), 0), Timer);
	Link(AddEvent(TEXT("SpawnEnemy"), 100), UK2Node_Event::DelegateOutputName, Timer, TEXT("Delegate"));
	EXPECT_THAT(Draw(), ElementsAre("● Go", "└ Set Timer by Event  Event: SpawnEnemy", "● SpawnEnemy"));
}

TEST_F(GraphPicture, WhatNeverRunsIsInThePictureToo)
{
	AddEvent(TEXT("Go"));
	UEdGraphNode* const Lost = AddPrint(TEXT("lost"));
	Link(Lost, AddPrint(TEXT("after it")));
	UEdGraphNode* const Circle = AddPrint(TEXT("circle"));
	Link(Circle, Circle);
	EXPECT_THAT(Draw(), ElementsAre("● Go", "Never runs: nothing leads here", "│ Print String  In String: \"lost\"", "└ Print String  In String: \"after it\"", "│ Print String  In String: \"circle\"", "└ ↪ Print String"));
}

TEST_F(GraphPicture, CommentsStandWithWhatTheyAreAbout)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"), 50);
	Event->NodeComment = TEXT("on the\nnode");
	UEdGraphNode_Comment* const Box = Add<UEdGraphNode_Comment>([](UEdGraphNode_Comment& Node)
		{
			Node.NodeComment = TEXT("The way in");
			Node.NodeWidth = 400;
			Node.NodeHeight = 300; });
	ASSERT_NE(Box, nullptr);
	EXPECT_THAT(Draw(), ElementsAre("# The way in", "● Go  # on the node"));
}

TEST_F(GraphPicture, ALongChainAndADeepTreeFitTheWidth)
{
	UEdGraphNode* Last = AddEvent(TEXT("Chain"));
	for (int32 Index = 0; Index < 500; ++Index)
	{
		UEdGraphNode* const Next = AddPrint(*FString::FromInt(Index));
		Link(Last, Next);
		Last = Next;
	}
	Last = AddEvent(TEXT("Tree"), 100);
	FName Output = UEdGraphSchema_K2::PN_Then;
	for (int32 Depth = 0; Depth < 60; ++Depth)
	{
		UEdGraphNode* const Branch = Add<UK2Node_IfThenElse>();
		Link(Last, Output, Branch);
		Link(Branch, UEdGraphSchema_K2::PN_Then, AddPrint(TEXT("a text that is long enough to be broken at the edge")));
		Last = Branch;
		Output = UEdGraphSchema_K2::PN_Else;
	}
	const std::vector<std::string> Lines = Draw();
	size_t NumPrints = 0;
	for (const std::string& Line : Lines)
	{
		NumPrints += Line.find("In String:") != std::string::npos;
	}
	EXPECT_EQ(NumPrints, 560u) << "every node is drawn once";
}

TEST_F(GraphPicture, ManyPathsThroughAFewNodesComeToAnEnd)
{
	UEdGraphNode* const Event = AddEvent(TEXT("Go"));
	UEdGraphNode* const Print = AddPrint(TEXT(""));
	Link(Event, Print);
	UEdGraphNode* const Convert = AddCall(TEXT("KismetStringLibrary"), TEXT("Conv_IntToString"));
	Link(Convert, TEXT("ReturnValue"), Print, TEXT("InString"));
	FName Input = TEXT("InInt");
	UEdGraphNode* Last = Convert;
	for (int32 Index = 0; Index < 40; ++Index)
	{
		UEdGraphNode* const Sum = AddCall(TEXT("KismetMathLibrary"), TEXT("Max"));
		Link(Sum, TEXT("ReturnValue"), Last, Input);
		if (Last != Convert)
		{
			Link(Sum, TEXT("ReturnValue"), Last, TEXT("B"));
		}
		Last = Sum;
		Input = TEXT("A");
	}
	const std::vector<std::string> Lines = Draw();
	ASSERT_GE(Lines.size(), 3u);
	EXPECT_EQ(Lines[0], "● Go");
	size_t NumLeftOut = 0;
	for (const std::string& Line : Lines)
	{
		for (size_t At = Line.find("Max (Integer)"); At != std::string::npos; At = Line.find("Max (Integer)", At + 1))
		{
			++NumLeftOut;
		}
	}
	EXPECT_GE(NumLeftOut, 35u) << "what lies too deep is named below";
}

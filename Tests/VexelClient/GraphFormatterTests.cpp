#include "GraphFormatter/CommentFrames.h"
#include "GraphFormatter/GraphFormatter.h"

#include "EdGraphNode_Comment.h"
#include "EdGraphSchema_K2.h"
#include "EdGraphUtilities.h"
#include "K2Node_CallFunction.h"
#include "K2Node_ExecutionSequence.h"
#include "K2Node_IfThenElse.h"
#include "K2Node_CustomEvent.h"
#include "LumTestBlueprint.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"

#include <filesystem>
#include <gmock/gmock.h>

namespace
{
class FGraphFormatterTest : public FLumTest
{
protected:
	virtual void SetUp() override
	{
		FLumTest::SetUp();
		// Without the events that every Actor Blueprint starts with.
		const TArray<TObjectPtr<UEdGraphNode>> Nodes = EventGraph->Nodes;
		for (UEdGraphNode* const Node : Nodes)
		{
			EventGraph->RemoveNode(Node);
		}
	}

	UEdGraphNode& Call(const char* Function)
	{
		FString Class;
		FString Name;
		FString(UTF8_TO_TCHAR(Function)).Split(TEXT("."), &Class, &Name);
		UClass* const Owner = FindFirstObject<UClass>(*Class, EFindFirstObjectOptions::NativeFirst);
		check(Owner);
		return Place<UK2Node_CallFunction>([Owner, &Name](UK2Node_CallFunction& Node)
			{ Node.FunctionReference.SetExternalMember(FName(*Name), Owner); });
	}

	static void Link(UEdGraphNode& From, const TCHAR* FromPin, UEdGraphNode& To, const TCHAR* ToPin)
	{
		From.FindPinChecked(FromPin)->MakeLinkTo(To.FindPinChecked(ToPin));
	}

	void Format(const TArray<UEdGraphNode*>& Nodes) { GraphFormatter::FormatSelectedNodes(*EventGraph, Nodes, 200.0, 200.0); }

	void FormatAll()
	{
		TArray<UEdGraphNode*> Nodes;
		for (UEdGraphNode* const Node : EventGraph->Nodes)
		{
			Nodes.Add(Node);
		}
		Format(Nodes);
	}

	/** Pairs of nodes, comments apart, that cover each other. */
	static int32 CountOverlaps(const UEdGraph& Graph)
	{
		TArray<FBox2D> Bounds;
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (!Node->IsA<UEdGraphNode_Comment>())
			{
				Bounds.Add(FCommentFrames::GetBounds(*Node));
			}
		}
		int32 NumOverlaps = 0;
		for (int32 A = 0; A < Bounds.Num(); ++A)
		{
			for (int32 B = A + 1; B < Bounds.Num(); ++B)
			{
				const bool bApart = Bounds[A].Max.X <= Bounds[B].Min.X || Bounds[B].Max.X <= Bounds[A].Min.X ||
					Bounds[A].Max.Y <= Bounds[B].Min.Y || Bounds[B].Max.Y <= Bounds[A].Min.Y;
				NumOverlaps += bApart ? 0 : 1;
			}
		}
		return NumOverlaps;
	}

	TArray<FIntPoint> GetPositions() const
	{
		TArray<FIntPoint> Positions;
		for (const UEdGraphNode* const Node : EventGraph->Nodes)
		{
			Positions.Add(FIntPoint(Node->NodePosX, Node->NodePosY));
		}
		return Positions;
	}
};

TEST_F(FGraphFormatterTest, ExecutionRunsStraightToTheRightAndValuesStandBeforeTheirUse)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Branch = Place<UK2Node_IfThenElse>();
	UEdGraphNode& Yes = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& No = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& After = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Compare = Call("KismetMathLibrary.Greater_IntInt");
	UEdGraphNode& Sum = Call("KismetMathLibrary.Add_IntInt");
	Link(Event, TEXT("then"), Branch, TEXT("execute"));
	Link(Branch, TEXT("then"), Yes, TEXT("execute"));
	Link(Branch, TEXT("else"), No, TEXT("execute"));
	Link(Yes, TEXT("then"), After, TEXT("execute"));
	Link(Compare, TEXT("ReturnValue"), Branch, TEXT("Condition"));
	Link(Sum, TEXT("ReturnValue"), Compare, TEXT("A"));
	Event.NodePosX = 320;
	Event.NodePosY = -48;
	FormatAll();

	EXPECT_EQ(FIntPoint(320, -48), FIntPoint(Event.NodePosX, Event.NodePosY)) << "where execution begins stays";
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	EXPECT_LT(Event.NodePosX, Branch.NodePosX);
	EXPECT_LT(Branch.NodePosX, Yes.NodePosX);
	EXPECT_LT(Yes.NodePosX, After.NodePosX);
	EXPECT_EQ(Branch.NodePosY, Yes.NodePosY);
	EXPECT_EQ(Yes.NodePosY, After.NodePosY);
	EXPECT_EQ(Yes.NodePosX, No.NodePosX);
	EXPECT_GT(No.NodePosY, Yes.NodePosY);
	EXPECT_LT(Compare.NodePosX, Branch.NodePosX);
	EXPECT_GT(Compare.NodePosY, Event.NodePosY);
	EXPECT_LT(Sum.NodePosX, Compare.NodePosX);
}

TEST_F(FGraphFormatterTest, TheRestOfTheGraphStaysAndIsNotCovered)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Kept = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Added = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& InTheWay = Call("KismetSystemLibrary.Delay");
	Link(Event, TEXT("then"), Kept, TEXT("execute"));
	Link(Kept, TEXT("then"), Added, TEXT("execute"));
	Kept.NodePosX = 400;
	InTheWay.NodePosX = 400 + FMath::CeilToInt32(FCommentFrames::GetBounds(Kept).GetSize().X) + 50;
	Added.NodePosX = -5000;
	Format({&Kept, &Added});

	EXPECT_EQ(FIntPoint(400, 0), FIntPoint(Kept.NodePosX, Kept.NodePosY)) << "linked to what was not selected";
	EXPECT_EQ(0, InTheWay.NodePosY);
	EXPECT_EQ(FIntPoint(0, 0), FIntPoint(Event.NodePosX, Event.NodePosY));
	EXPECT_GT(Added.NodePosX, Kept.NodePosX);
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
}

TEST_F(FGraphFormatterTest, LoopsAndValuesOfThemselvesAreLaidOutToo)
{
	UEdGraphNode& First = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Second = Call("KismetSystemLibrary.PrintString");
	Link(First, TEXT("then"), Second, TEXT("execute"));
	Link(Second, TEXT("then"), First, TEXT("execute"));
	UEdGraphNode& A = Call("KismetMathLibrary.Add_IntInt");
	UEdGraphNode& B = Call("KismetMathLibrary.Add_IntInt");
	Link(A, TEXT("ReturnValue"), B, TEXT("A"));
	Link(B, TEXT("ReturnValue"), A, TEXT("A"));
	FormatAll();
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	EXPECT_NE(First.NodePosX, Second.NodePosX);
}

TEST_F(FGraphFormatterTest, ACommentGoesWithTheNodesThatLieOnIt)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Print = Call("KismetSystemLibrary.PrintString");
	Link(Event, TEXT("then"), Print, TEXT("execute"));
	Print.NodePosX = 3000;
	Print.NodePosY = 900;
	UEdGraphNode_Comment& Comment = Place<UEdGraphNode_Comment>();
	Comment.NodePosX = 2900;
	Comment.NodePosY = 800;
	Comment.NodeWidth = 600;
	Comment.NodeHeight = 600;
	UEdGraphNode_Comment& Elsewhere = Place<UEdGraphNode_Comment>();
	Elsewhere.NodePosY = 9000;
	Elsewhere.NodeWidth = 500;
	FormatAll();
	EXPECT_LT(Print.NodePosX, 1000);
	const FBox2D Bounds = FCommentFrames::GetBounds(Comment);
	EXPECT_TRUE(Bounds.IsInside(FCommentFrames::GetBounds(Print).Min) && Bounds.IsInside(FCommentFrames::GetBounds(Print).Max));
	EXPECT_FALSE(Bounds.IsInside(FCommentFrames::GetBounds(Event).Min));
	EXPECT_EQ(9000, Elsewhere.NodePosY);
	EXPECT_EQ(500, Elsewhere.NodeWidth);
}

TEST_F(FGraphFormatterTest, AnEventThatIsHandedToANodeStandsNearItWithALaneOfItsOwn)
{
	UEdGraphNode& Begin = Place<UK2Node_CustomEvent>();
	UEdGraphNode* Last = &Begin;
	for (int32 Index = 0; Index < 6; ++Index)
	{
		UEdGraphNode& Print = Call("KismetSystemLibrary.PrintString");
		Link(*Last, TEXT("then"), Print, TEXT("execute"));
		Last = &Print;
	}
	UEdGraphNode& Timer = Call("KismetSystemLibrary.K2_SetTimerDelegate");
	Link(*Last, TEXT("then"), Timer, TEXT("execute"));
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Delay = Call("KismetSystemLibrary.Delay");
	Link(Event, TEXT("then"), Delay, TEXT("execute"));
	Link(Event, TEXT("OutputDelegate"), Timer, TEXT("Delegate"));
	Event.NodePosY = 5000;
	TArray<UEdGraphNode*> All;
	for (UEdGraphNode* const Node : EventGraph->Nodes)
	{
		All.Add(Node);
	}
	GraphFormatter::FormatSelectedNodes(*EventGraph, All, 200.0, 200.0, TSet<UEdGraphNode*>{&Event, &Delay});

	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	EXPECT_EQ(FIntPoint(0, 0), FIntPoint(Begin.NodePosX, Begin.NodePosY));
	EXPECT_EQ(Last->NodePosY, Timer.NodePosY) << "the lane is straight to its end";
	EXPECT_GT(Delay.NodePosX, Event.NodePosX);
	const FBox2D Bounds = FCommentFrames::GetBounds(Event);
	EXPECT_LT(Bounds.Max.X, Timer.NodePosX) << "its wire goes on to the right";
	EXPECT_LT(Timer.NodePosX - Bounds.Max.X, 400);
	EXPECT_LT(FMath::Abs(Event.NodePosY - Timer.NodePosY), 600);
}

TEST_F(FGraphFormatterTest, WhatIsNewGoesIntoTheFirstRoomThatIsLargeEnough)
{
	const auto PlaceRow = [this](int32 Y)
	{
		UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
		UEdGraphNode& Print = Call("KismetSystemLibrary.PrintString");
		Link(Event, TEXT("then"), Print, TEXT("execute"));
		Print.NodePosX = 300;
		Event.NodePosY = Print.NodePosY = Y;
		return TArray<UEdGraphNode*>{&Event, &Print};
	};
	PlaceRow(0);
	PlaceRow(250);
	PlaceRow(1000);
	const TArray<UEdGraphNode*> New = PlaceRow(1256);
	const auto FormatNew = [&]
	{ GraphFormatter::FormatSelectedNodes(*EventGraph, New, 200.0, 200.0, TSet<UEdGraphNode*>(New)); };
	FormatNew();
	EXPECT_GT(New[0]->NodePosY, 250);
	EXPECT_LT(New[0]->NodePosY, 1000);
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	const TArray<FIntPoint> Once = GetPositions();
	FormatNew();
	EXPECT_TRUE(Once == GetPositions()) << "its own place is as free as before";

	// Somebody's comment takes the room.
	UEdGraphNode_Comment& Comment = Place<UEdGraphNode_Comment>();
	Comment.NodePosX = -50;
	Comment.NodePosY = 450;
	Comment.NodeWidth = 800;
	Comment.NodeHeight = 400;
	New[0]->NodePosY = New[1]->NodePosY = 1256;
	FormatNew();
	EXPECT_GT(New[0]->NodePosY, 1000);
	EXPECT_EQ(400, Comment.NodeHeight);

	// Nobody is asked about what somebody placed.
	New[0]->NodePosY = 4000;
	Format(New);
	EXPECT_EQ(4000, New[0]->NodePosY);
}

TEST_F(FGraphFormatterTest, WhatIsNewCoversNoWireOfOthers)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Below = Call("KismetSystemLibrary.PrintString");
	Link(Event, TEXT("then"), Below, TEXT("execute"));
	Below.NodePosX = 250;
	Below.NodePosY = 900;
	UEdGraphNode& New = Place<UK2Node_CustomEvent>();
	UEdGraphNode& NewPrint = Call("KismetSystemLibrary.PrintString");
	Link(New, TEXT("then"), NewPrint, TEXT("execute"));
	GraphFormatter::FormatSelectedNodes(*EventGraph, {&New, &NewPrint}, 200.0, 200.0, TSet<UEdGraphNode*>{&New, &NewPrint});
	EXPECT_GT(New.NodePosY, Below.NodePosY);
}

TEST_F(FGraphFormatterTest, AValueThatTwoReadStandsBeforeBothAndLanesStayStraight)
{
	UEdGraphNode& Event = Place<UK2Node_CustomEvent>();
	UEdGraphNode& Sequence = Place<UK2Node_ExecutionSequence>();
	UEdGraphNode& Upper = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Next = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Lower = Call("KismetSystemLibrary.PrintString");
	UEdGraphNode& Convert = Call("KismetStringLibrary.Conv_IntToString");
	Link(Event, TEXT("then"), Sequence, TEXT("execute"));
	Link(Sequence, TEXT("then_0"), Upper, TEXT("execute"));
	Link(Upper, TEXT("then"), Next, TEXT("execute"));
	Link(Sequence, TEXT("then_1"), Lower, TEXT("execute"));
	Link(Convert, TEXT("ReturnValue"), Next, TEXT("InString"));
	Link(Convert, TEXT("ReturnValue"), Lower, TEXT("InString"));
	FormatAll();
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	EXPECT_EQ(Upper.NodePosY, Next.NodePosY);
	EXPECT_LT(Convert.NodePosX, Lower.NodePosX);
	EXPECT_GT(Convert.NodePosY, Upper.NodePosY) << "below the lane that it does not belong to";
	EXPECT_GT(Lower.NodePosY, Upper.NodePosY);
}

TEST_F(FGraphFormatterTest, ALargeGraphIsLaidOutWithoutOverlaps)
{
	UEdGraphNode* Before = &Place<UK2Node_CustomEvent>();
	UEdGraphNode* Shared = &Call("KismetStringLibrary.Conv_IntToString");
	for (int32 Index = 0; Index < 120; ++Index)
	{
		UEdGraphNode& Branch = Place<UK2Node_IfThenElse>();
		UEdGraphNode& Print = Call("KismetSystemLibrary.PrintString");
		Link(*Before, TEXT("then"), Branch, TEXT("execute"));
		Link(Branch, TEXT("else"), Print, TEXT("execute"));
		Link(*Shared, TEXT("ReturnValue"), Print, TEXT("InString"));
		Shared = Index % 10 == 0 ? &Call("KismetStringLibrary.Conv_IntToString") : Shared;
		Before = &Branch;
	}
	FormatAll();
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	for (const UEdGraphNode* const Node : EventGraph->Nodes)
	{
		const UEdGraphPin* const Then = Node->IsA<UK2Node_IfThenElse>() ? Node->FindPin(TEXT("then")) : nullptr;
		if (Then && !Then->LinkedTo.IsEmpty())
		{
			EXPECT_EQ(Node->NodePosY, Then->LinkedTo[0]->GetOwningNode()->NodePosY);
		}
	}
}

TEST_F(FGraphFormatterTest, TheTextsOfTheRealEditorAreLaidOutWithoutOverlapsAndTwiceTheSame)
{
	const std::filesystem::path Folder = std::filesystem::path(VEXEL_SOURCE_DIR) / "../shared/samples/t3d";
	for (const auto& Entry : std::filesystem::recursive_directory_iterator(Folder))
	{
		FString Text;
		if (Entry.is_regular_file() && FFileHelper::LoadFileToString(Text, *FString(UTF8_TO_TCHAR(Entry.path().c_str()))))
		{
			TSet<UEdGraphNode*> Pasted;
			FEdGraphUtilities::ImportNodesFromText(EventGraph, Text, Pasted);
		}
	}
	ASSERT_GT(EventGraph->Nodes.Num(), 60);
	FormatAll();
	EXPECT_EQ(0, CountOverlaps(*EventGraph));
	const TArray<FIntPoint> Once = GetPositions();
	FormatAll();
	EXPECT_TRUE(Once == GetPositions());
}
}

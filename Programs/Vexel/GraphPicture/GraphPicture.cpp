#include "GraphPicture.h"

#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraph/EdGraphPin.h"
#include "EdGraphNode_Comment.h"
#include "EdGraphSchema_K2.h"
#include "Engine/Blueprint.h"
#include "K2Node_Knot.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "PinExpression.h"

namespace
{
/** Ways that lie deeper are drawn in a section of their own: they would have no room, and nobody could follow them. */
constexpr int32 MaxDepth = 12;
constexpr int32 MinTextWidth = 30;
constexpr int32 HangingBlanks = 4;

/** A way out of a node: an execution output that leads somewhere. */
struct FWay
{
	FString Label;
	const UEdGraphPin* Entry = nullptr;
};

class FPainter
{
public:
	FPainter(const UEdGraph& InGraph, int32 InWidth)
		: Graph(InGraph)
		, Width(FMath::Max(InWidth, MinTextWidth * 2))
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (const UEdGraphNode_Comment* const Comment = Cast<UEdGraphNode_Comment>(Node))
			{
				Comments.Add(Comment);
			}
		}
	}

	TArray<FStyledLine> Draw()
	{
		NumberJunctions();
		DrawHeading();
		for (const UEdGraphNode* const Root : FindRoots())
		{
			if (Root->IsAutomaticallyPlacedGhostNode())
			{
				// The editor offers them; they are no part of the Blueprint until somebody connects them.
				Ghosts.Add(Root);
				Drawn.Add(Root);
				continue;
			}
			DrawRoot(*Root);
		}
		DrawUnreached();
		DrawTitles(TEXT("Nothing uses: "), FindUnused());
		DrawTitles(TEXT("Without effect: "), Ghosts);
		return MoveTemp(Lines);
	}

private:
	static bool IsDrawn(const UEdGraphNode& Node) { return !Node.IsA<UK2Node_Knot>() && !Node.IsA<UEdGraphNode_Comment>(); }

	static int32 CountEntering(const UEdGraphNode& Node)
	{
		int32 Num = 0;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (Pin->Direction == EGPD_Input && PinExpression::IsExec(*Pin))
			{
				Num += CountSources(*Pin, 0);
			}
		}
		return Num;
	}

	/** Wires that come to an execution input, those behind reroute nodes each. */
	static int32 CountSources(const UEdGraphPin& Input, int32 Depth)
	{
		int32 Num = 0;
		for (const UEdGraphPin* const Source : Input.LinkedTo)
		{
			const UEdGraphNode* const Node = Source->GetOwningNodeUnchecked();
			const bool bReroute = Node && Node->IsA<UK2Node_Knot>() && Depth < MaxDepth;
			const UEdGraphPin* const Inner = bReroute ? Node->FindPinByPredicate([](const UEdGraphPin* Pin)
															{ return Pin->Direction == EGPD_Input; })
													  : nullptr;
			Num += Inner ? CountSources(*Inner, Depth + 1) : 1;
		}
		return Num;
	}

	static bool HasExecInput(const UEdGraphNode& Node)
	{
		return Node.Pins.ContainsByPredicate([](const UEdGraphPin* Pin)
			{ return Pin->Direction == EGPD_Input && PinExpression::IsExec(*Pin); });
	}

	void NumberJunctions()
	{
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (Node && IsDrawn(*Node) && CountEntering(*Node) > 1)
			{
				Numbers.Add(Node, Numbers.Num() + 1);
			}
		}
	}

	/** Where execution begins, from the top of the graph to its bottom. */
	TArray<const UEdGraphNode*> FindRoots() const
	{
		TArray<const UEdGraphNode*> Roots;
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (Node && IsDrawn(*Node) && !PinExpression::IsPure(*Node) && !HasExecInput(*Node))
			{
				Roots.Add(Node);
			}
		}
		Roots.StableSort([](const UEdGraphNode& A, const UEdGraphNode& B)
			{ return A.NodePosY < B.NodePosY; });
		return Roots;
	}

	void DrawHeading()
	{
		int32 NumNodes = 0;
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			NumNodes += Node && IsDrawn(*Node) ? 1 : 0;
		}
		const UBlueprint* const Blueprint = FBlueprintEditorUtils::FindBlueprintForGraph(&Graph);
		FStyledLine& Line = Lines.AddDefaulted_GetRef();
		Line.Add((Blueprint ? Blueprint->GetName() + TEXT(" · ") : FString()) + Graph.GetName(), TextStyle::Strong);
		Line.Add(FString::Printf(TEXT("  %d %s"), NumNodes, NumNodes == 1 ? TEXT("node") : TEXT("nodes")), TextStyle::Faint);
	}

	void DrawRoot(const UEdGraphNode& Root)
	{
		Lines.AddDefaulted();
		DrawComment(Root);
		FStyledLine Text = MakeNodeText(Root, TextStyle::Title);
		TArray<FString> Outputs;
		for (const UEdGraphPin* const Pin : Root.Pins)
		{
			if (Pin->Direction == EGPD_Output && !Pin->bHidden && !PinExpression::IsExec(*Pin) && !Pin->ParentPin &&
				Pin->PinType.PinCategory != UEdGraphSchema_K2::PC_Delegate)
			{
				Outputs.Add(PinExpression::GetName(*Pin));
			}
		}
		if (!Outputs.IsEmpty())
		{
			Text.Add(TEXT(" → ") + FString::Join(Outputs, TEXT(", ")), TextStyle::Faint);
		}
		AddText(Text, FStyledLine(TEXT("● "), TextStyle::Title), TEXT("  "));
		Drawn.Add(&Root);
		DrawWaysOf(Root, FStyledLine(), 0);
		DrawPostponed();
	}

	/** The text of the comment box that a node stands in, if it stands in one. */
	void DrawComment(const UEdGraphNode& Node)
	{
		const UEdGraphNode_Comment* Innermost = nullptr;
		for (const UEdGraphNode_Comment* const Box : Comments)
		{
			const bool bInside = Node.NodePosX >= Box->NodePosX && Node.NodePosX < Box->NodePosX + Box->NodeWidth &&
				Node.NodePosY >= Box->NodePosY && Node.NodePosY < Box->NodePosY + Box->NodeHeight;
			if (bInside && (!Innermost || Box->NodeWidth < Innermost->NodeWidth))
			{
				Innermost = Box;
			}
		}
		if (Innermost && !Innermost->NodeComment.IsEmpty())
		{
			AddText(FStyledLine(Innermost->NodeComment, {.bDim = true, .bItalic = true}), FStyledLine(TEXT("# "), TextStyle::Faint), TEXT("  "));
		}
	}

	/** Nodes that nothing runs, chain by chain. */
	void DrawUnreached()
	{
		bool bHeading = false;
		// Chains first that have a beginning; what is left then runs in circles.
		for (const bool bBeginning : {true, false})
		{
			for (const UEdGraphNode* const Node : Graph.Nodes)
			{
				if (!Node || !IsDrawn(*Node) || PinExpression::IsPure(*Node) || Drawn.Contains(Node) || (bBeginning && CountEntering(*Node) > 0))
				{
					continue;
				}
				if (!bHeading)
				{
					Lines.AddDefaulted();
					Lines.Add(FStyledLine(TEXT("Never runs: nothing leads here"), TextStyle::Accent));
					bHeading = true;
				}
				DrawChain(*Node, FStyledLine(), 0);
				DrawPostponed();
			}
		}
	}

	TArray<const UEdGraphNode*> FindUnused() const
	{
		TArray<const UEdGraphNode*> Unused;
		for (const UEdGraphNode* const Node : Graph.Nodes)
		{
			if (Node && IsDrawn(*Node) && PinExpression::IsPure(*Node) && !Used.Contains(Node))
			{
				Unused.Add(Node);
			}
		}
		return Unused;
	}

	void DrawTitles(const TCHAR* Label, const TArray<const UEdGraphNode*>& Nodes)
	{
		if (Nodes.IsEmpty())
		{
			return;
		}
		Lines.AddDefaulted();
		const FString Titles = FString::JoinBy(Nodes, TEXT(", "), [](const UEdGraphNode* Node)
			{ return PinExpression::GetTitle(*Node); });
		AddText(Titles, FStyledLine(Label, TextStyle::Accent), FStyledLine());
	}

	/** "#3 Print String  In String: "Hello"". */
	FStyledLine MakeNodeText(const UEdGraphNode& Node, const FTextStyle& TitleStyle)
	{
		FStyledLine Text;
		if (const int32* const Number = Numbers.Find(&Node))
		{
			Text.Add(FString::Printf(TEXT("#%d "), *Number), TextStyle::Accent);
		}
		Text.Add(PinExpression::GetTitle(Node), TitleStyle);
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (Pin->Direction != EGPD_Input || Pin->bHidden || PinExpression::IsExec(*Pin) || (Pin->ParentPin && !Pin->ParentPin->bHidden))
			{
				continue;
			}
			const bool bDefault = Pin->LinkedTo.IsEmpty() && Pin->DoesDefaultValueMatchAutogenerated();
			const FString Value = bDefault ? FString() : PinExpression::GetInput(*Pin, Used);
			if (!Value.IsEmpty())
			{
				Text.Add(TEXT("  ") + PinExpression::GetName(*Pin) + TEXT(": "), TextStyle::Faint).Add(Value, TextStyle::Code);
			}
		}
		if (!Node.NodeComment.IsEmpty())
		{
			Text.Add(TEXT("  # ") + Node.NodeComment, {.bDim = true, .bItalic = true});
		}
		return Text;
	}

	static TArray<FWay> FindWays(const UEdGraphNode& Node)
	{
		TArray<FWay> Ways;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			if (Pin->Direction != EGPD_Output || !PinExpression::IsExec(*Pin) || Pin->LinkedTo.IsEmpty())
			{
				continue;
			}
			const UEdGraphPin* const Entry = PinExpression::FollowReroutes(*Pin->LinkedTo[0]);
			if (Entry && !PinExpression::IsPure(*Entry->GetOwningNode()))
			{
				Ways.Add({PinExpression::GetName(*Pin), Entry});
			}
		}
		return Ways;
	}

	/** Whether a node's only way needs its name: it has others that lead nowhere, and is not the usual one. */
	static bool NeedsLabel(const UEdGraphNode& Node, const FWay& Way)
	{
		int32 NumOutputs = 0;
		for (const UEdGraphPin* const Pin : Node.Pins)
		{
			NumOutputs += Pin->Direction == EGPD_Output && PinExpression::IsExec(*Pin) && !Pin->bHidden ? 1 : 0;
		}
		return NumOutputs > 1 && !Way.Label.Equals(UEdGraphSchema_K2::PN_Then.ToString(), ESearchCase::IgnoreCase);
	}

	/** Draws a node and what runs behind it, as long as there is one way. */
	void DrawChain(const UEdGraphNode& First, const FStyledLine& Rail, int32 Depth)
	{
		const UEdGraphNode* Node = &First;
		while (Node)
		{
			Drawn.Add(Node);
			const TArray<FWay> Ways = FindWays(*Node);
			const bool bOneWay = Ways.Num() == 1;
			FStyledLine Text = MakeNodeText(*Node, TextStyle::Strong);
			if (bOneWay && NeedsLabel(*Node, Ways[0]))
			{
				Text.Add(TEXT("  ▸ ") + Ways[0].Label, TextStyle::Accent);
			}
			const UEdGraphNode* const Next = bOneWay ? Ways[0].Entry->GetOwningNode() : nullptr;
			const bool bLast = Ways.IsEmpty();
			AddText(Text, MakeRail(Rail, bLast ? TEXT("└ ") : TEXT("│ ")), MakeRail(Rail, bLast ? TEXT("  ") : TEXT("│ ")));
			if (Ways.Num() > 1)
			{
				DrawWays(Ways, Rail, Depth);
				return;
			}
			if (Next && Drawn.Contains(Next))
			{
				DrawPointer(*Next, Rail);
				return;
			}
			Node = Next;
		}
	}

	void DrawWaysOf(const UEdGraphNode& Node, const FStyledLine& Rail, int32 Depth)
	{
		const TArray<FWay> Ways = FindWays(Node);
		if (Ways.Num() == 1)
		{
			DrawEntry(*Ways[0].Entry->GetOwningNode(), Rail, Depth);
			return;
		}
		DrawWays(Ways, Rail, Depth);
	}

	void DrawWays(const TArray<FWay>& Ways, const FStyledLine& Rail, int32 Depth)
	{
		for (int32 Index = 0; Index < Ways.Num(); ++Index)
		{
			const bool bLast = Index + 1 == Ways.Num();
			Lines.Add(MakeRail(Rail, bLast ? TEXT("└▸ ") : TEXT("├▸ ")).Add(Ways[Index].Label, TextStyle::Accent));
			DrawEntry(*Ways[Index].Entry->GetOwningNode(), MakeRail(Rail, bLast ? TEXT("   ") : TEXT("│  ")), Depth + 1);
		}
	}

	void DrawEntry(const UEdGraphNode& Node, const FStyledLine& Rail, int32 Depth)
	{
		if (Drawn.Contains(&Node))
		{
			DrawPointer(Node, Rail);
			return;
		}
		if (Depth >= MaxDepth || Rail.GetWidth() + MinTextWidth > Width)
		{
			if (!Numbers.Contains(&Node))
			{
				Numbers.Add(&Node, Numbers.Num() + 1);
			}
			Postponed.Add(&Node);
			DrawPointer(Node, Rail);
			return;
		}
		DrawChain(Node, Rail, Depth);
	}

	/** Draws the ways that had no room, from the left edge. */
	void DrawPostponed()
	{
		for (int32 Index = 0; Index < Postponed.Num(); ++Index)
		{
			if (!Drawn.Contains(Postponed[Index]))
			{
				Lines.AddDefaulted();
				DrawChain(*Postponed[Index], FStyledLine(), 0);
			}
		}
		Postponed.Reset();
	}

	void DrawPointer(const UEdGraphNode& Node, const FStyledLine& Rail)
	{
		const int32* const Number = Numbers.Find(&Node);
		const FString Name = (Number ? FString::Printf(TEXT("#%d "), *Number) : FString()) + PinExpression::GetTitle(Node);
		Lines.Add(MakeRail(Rail, TEXT("└ ")).Add(TEXT("↪ ") + Name, TextStyle::Accent).CutTo(Width));
	}

	static FStyledLine MakeRail(const FStyledLine& Rail, const TCHAR* Sign)
	{
		FStyledLine Line = Rail;
		return Line.Add(Sign, TextStyle::Faint);
	}

	void AddText(const FStyledLine& Text, const FStyledLine& First, const FStyledLine& Rest)
	{
		FStyledLine Hanging = Rest;
		Hanging.Add(FString::ChrN(HangingBlanks, TEXT(' ')));
		Lines.Append(WrapText(Text, FMath::Max(Width, First.GetWidth() + MinTextWidth), First, Hanging));
	}

	const UEdGraph& Graph;
	const int32 Width;
	TArray<const UEdGraphNode_Comment*> Comments;
	TArray<const UEdGraphNode*> Ghosts;
	TArray<FStyledLine> Lines;
	TMap<const UEdGraphNode*, int32> Numbers;
	TSet<const UEdGraphNode*> Drawn;
	TSet<const UEdGraphNode*> Used;
	TArray<const UEdGraphNode*> Postponed;
};
}

TArray<FStyledLine> DrawGraph(const UEdGraph& Graph, int32 Width)
{
	return FPainter(Graph, Width).Draw();
}

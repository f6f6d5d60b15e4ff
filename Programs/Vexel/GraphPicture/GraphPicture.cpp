#include "GraphPicture.h"

#include "BlueprintSnapshot.h"
#include "GraphFlow.h"
#include "NodeText.h"

namespace
{
constexpr int32 MinTextWidth = 30;
constexpr int32 HangingBlanks = 4;

class FPainter
{
public:
	FPainter(const FGraphSnapshot& InGraph, int32 InWidth)
		: Graph(InGraph)
		, Width(FMath::Max(InWidth, MinTextWidth * 2))
		, Merged(Graph, nullptr, nullptr)
		, Flow(Merged, Width)
	{
	}

	TArray<FStyledLine> Draw()
	{
		DrawHeading();
		for (const FFlowLine& Line : Flow.GetLines())
		{
			DrawLine(Line);
		}
		const TSet<int32> UsedValues = FindUsedValues(Graph);
		DrawTitles(TEXT("Nothing uses: "), FindPure([&](int32 Node)
											   { return !UsedValues.Contains(Node); }));
		DrawTitles(TEXT("Left out above: "), FindPure([&](int32 Node)
												 { return UsedValues.Contains(Node) && !Shown.Contains(Node); }));
		DrawTitles(TEXT("Without effect: "), Flow.GetGhosts());
		return MoveTemp(Lines);
	}

private:
	void DrawHeading()
	{
		int32 NumNodes = 0;
		for (const FNodeSnapshot& Node : Graph.Nodes)
		{
			NumNodes += Node.IsDrawn() ? 1 : 0;
		}
		FStyledLine& Line = Lines.AddDefaulted_GetRef();
		const FString Owner = Graph.BlueprintName.IsEmpty() ? FString() : Graph.BlueprintName + TEXT(" · ");
		Line.Add(Owner + Graph.Name, TextStyle::Strong);
		Line.Add(FString::Printf(TEXT("  %d %s"), NumNodes, NumNodes == 1 ? TEXT("node") : TEXT("nodes")), TextStyle::Faint);
	}

	void DrawLine(const FFlowLine& Line)
	{
		FStyledLine Rail(Line.Rail, Line.Kind == EFlowLine::Root ? TextStyle::Title : TextStyle::Faint);
		switch (Line.Kind)
		{
			case EFlowLine::Unreached:
				Lines.AddDefaulted();
				Lines.Add(FStyledLine(TEXT("Never runs: nothing leads here"), TextStyle::Accent));
				break;
			case EFlowLine::Root:
				Lines.AddDefaulted();
				if (Line.Node != INDEX_NONE)
				{
					const FNodeSnapshot& Root = Graph.Nodes[Line.Node];
					DrawComment(Root);
					AddText(WriteLine(Line, TextStyle::Title).Add(WriteRootOutputs(Root), TextStyle::Faint), Rail, Line.NextRail);
				}
				break;
			case EFlowLine::Node:
				AddText(WriteLine(Line, TextStyle::Strong), Rail, FStyledLine(Line.NextRail, TextStyle::Faint));
				break;
			case EFlowLine::Way:
				Lines.Add(Rail.Add(Line.Label, TextStyle::Accent));
				break;
			case EFlowLine::Pointer:
				Lines.Add(Rail.Add(TEXT("↪ ") + WriteNumber(Line.Node) + Graph.Nodes[Line.Node].Title, TextStyle::Accent).CutTo(Width));
				break;
		}
	}

	FString WriteNumber(int32 Node) const
	{
		const int32 Number = Flow.GetNumber(Node);
		return Number > 0 ? FString::Printf(TEXT("#%d "), Number) : FString();
	}

	/** "#3 Print String  In String: "Hello"". */
	FStyledLine WriteLine(const FFlowLine& Line, const FTextStyle& TitleStyle)
	{
		FStyledLine Text(WriteNumber(Line.Node), TextStyle::Accent);
		Text.Append(WriteNode(Graph, Graph.Nodes[Line.Node], {.Title = TitleStyle}, Shown));
		if (!Line.Label.IsEmpty())
		{
			Text.Add(TEXT("  ▸ ") + Line.Label, TextStyle::Accent);
		}
		return Text;
	}

	/** The text of the comment box that a node stands in, if it stands in one. */
	void DrawComment(const FNodeSnapshot& Node)
	{
		const FNodeSnapshot* Innermost = nullptr;
		for (const FNodeSnapshot& Box : Graph.Nodes)
		{
			const FIntPoint At = Node.Position - Box.Position;
			const bool bInside =
				Box.Form == ENodeForm::Comment && At.X >= 0 && At.Y >= 0 && At.X < Box.Size.X && At.Y < Box.Size.Y;
			if (bInside && (!Innermost || Box.Size.X < Innermost->Size.X))
			{
				Innermost = &Box;
			}
		}
		if (Innermost && !Innermost->Comment.IsEmpty())
		{
			const FStyledLine Text(Innermost->Comment, {.bDim = true, .bItalic = true});
			AddText(Text, FStyledLine(TEXT("# "), TextStyle::Faint), TEXT("  "));
		}
	}

	template <class PredicateType>
	TArray<int32> FindPure(const PredicateType& IsWanted) const
	{
		TArray<int32> Found;
		for (int32 Node = 0; Node < Graph.Nodes.Num(); ++Node)
		{
			if (Graph.Nodes[Node].IsDrawn() && Graph.Nodes[Node].bPure && IsWanted(Node))
			{
				Found.Add(Node);
			}
		}
		return Found;
	}

	void DrawTitles(const TCHAR* Label, const TArray<int32>& Nodes)
	{
		if (Nodes.IsEmpty())
		{
			return;
		}
		Lines.AddDefaulted();
		const FString Titles = FString::JoinBy(Nodes, TEXT(", "), [this](int32 Node)
			{ return Graph.Nodes[Node].Title; });
		AddText(Titles, FStyledLine(Label, TextStyle::Accent), FStyledLine());
	}

	void AddText(const FStyledLine& Text, const FStyledLine& First, const FStyledLine& Next)
	{
		AddFlowText(Lines, Text, Width, First, Next);
	}

	const FGraphSnapshot& Graph;
	const int32 Width;
	const FMergedGraph Merged;
	const FGraphFlow Flow;
	TArray<FStyledLine> Lines;
	/** Pure nodes whose values are in the text so far. */
	FShownNodes Shown;
};
}

TArray<FStyledLine> DrawGraph(const FGraphSnapshot& Graph, int32 Width)
{
	return FPainter(Graph, Width).Draw();
}

void AddFlowText(TArray<FStyledLine>& Lines, const FStyledLine& Text, int32 Width, const FStyledLine& First, const FStyledLine& Next)
{
	FStyledLine Hanging = Next;
	Hanging.Add(FString::ChrN(HangingBlanks, TEXT(' ')));
	Lines.Append(WrapText(Text, FMath::Max(Width, First.GetWidth() + MinTextWidth), First, Hanging));
}

TSet<int32> FindUsedValues(const FGraphSnapshot& Graph)
{
	TSet<int32> Used;
	TArray<int32> Open;
	const auto AddSources = [&](const FNodeSnapshot& Node)
	{
		for (const FPinSnapshot& Pin : Node.Pins)
		{
			const FPinLink Source = Pin.bInput && !Pin.bExec && !Pin.Links.IsEmpty() ? Graph.FollowReroutes(Pin.Links[0]) : FPinLink();
			if (Source.IsSet() && Graph.Nodes[Source.Node].bPure && !Used.Contains(Source.Node))
			{
				Used.Add(Source.Node);
				Open.Add(Source.Node);
			}
		}
	};
	for (const FNodeSnapshot& Node : Graph.Nodes)
	{
		if (!Node.bPure)
		{
			AddSources(Node);
		}
	}
	while (!Open.IsEmpty())
	{
		AddSources(Graph.Nodes[Open.Pop()]);
	}
	return Used;
}

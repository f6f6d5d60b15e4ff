#include "GraphFormatter/GraphFormatter.h"

#include "GraphFormatter/BlockPlacement.h"
#include "GraphFormatter/ColumnAssignment.h"
#include "GraphFormatter/CommentFrames.h"
#include "GraphFormatter/FormatterGraph.h"
#include "GraphFormatter/LaneLayout.h"

#include "Algo/AllOf.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"

namespace
{
/** Lays the component out around a node that keeps its place. */
FLayoutBlock MakeBlock(FFormatterGraph& Layout, FLaneLayout& Lanes, TArray<int32>&& Component)
{
	TMap<int32, FVector2D> CameIn;
	for (const int32 Node : Component)
	{
		CameIn.Add(Node, Layout.Nodes[Node].Position);
	}
	const int32 First = Lanes.Place(Component);
	const int32* const Fixed = Component.FindByPredicate([&Layout](int32 Node)
		{ return Layout.Nodes[Node].bFixed; });
	const int32 Anchor = Fixed ? *Fixed : First;
	const FVector2D Offset = CameIn[Anchor] - Layout.Nodes[Anchor].Position;
	for (const int32 Node : Component)
	{
		FFormatterNode& Placed = Layout.Nodes[Node];
		Placed.Position = Placed.bFixed ? CameIn[Node] : Placed.Position + Offset;
	}
	return {MoveTemp(Component), CameIn[Anchor]};
}

void Apply(UEdGraph& Graph, const FFormatterGraph& Layout)
{
	FCommentFrames Frames(Graph);
	TSet<const UEdGraphNode*> Moved;
	for (const FFormatterNode& Node : Layout.Nodes)
	{
		const int32 X = FMath::RoundToInt32(Node.Position.X);
		const int32 Y = FMath::RoundToInt32(Node.Position.Y);
		if (X != Node.Node->NodePosX || Y != Node.Node->NodePosY)
		{
			Node.Node->Modify();
			Node.Node->NodePosX = X;
			Node.Node->NodePosY = Y;
			Moved.Add(Node.Node);
		}
	}
	Frames.FitAround(Moved);
}
}

void GraphFormatter::FormatSelectedNodes(UEdGraph& Graph, const TArray<UEdGraphNode*>& Nodes, double HorizontalSpacing,
	double VerticalSpacing, const TSet<UEdGraphNode*>& NewNodes)
{
	FFormatterGraph Layout(Nodes);
	const FLayoutGaps Gaps{HorizontalSpacing / 2, VerticalSpacing / 4, VerticalSpacing / 2};
	FBlockPlacement Placement(Graph, Layout, Gaps);
	const FColumnAssignment Columns(Layout);
	FLaneLayout Lanes(Layout, Columns, Gaps);
	TArray<FLayoutBlock> Blocks;
	for (TArray<int32>& Component : Layout.FindComponents())
	{
		const bool bIsNew = Algo::AllOf(Component, [&](int32 Node)
			{ return !Layout.Nodes[Node].bFixed && NewNodes.Contains(Layout.Nodes[Node].Node); });
		Blocks.Add_GetRef(MakeBlock(Layout, Lanes, MoveTemp(Component))).bNew = bIsNew;
	}
	Placement.Place(Blocks);
	Apply(Graph, Layout);
}

#include "GraphFormatter/GraphFormatter.h"

#include "GraphFormatter/ColumnAssignment.h"
#include "GraphFormatter/CommentFrames.h"
#include "GraphFormatter/FormatterGraph.h"
#include "GraphFormatter/LaneLayout.h"
#include "GraphFormatter/Obstacles.h"

#include "Algo/StableSort.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "EdGraphNode_Comment.h"

namespace
{
FBox2D GetBounds(const FFormatterNode& Node)
{
	return FBox2D(Node.Position, Node.Position + Node.Size);
}

/** The graph's other nodes, and those of the layout that keep their places. */
FObstacles FindObstacles(const UEdGraph& Graph, const FFormatterGraph& Layout)
{
	TSet<const UEdGraphNode*> Free;
	for (const FFormatterNode& Node : Layout.Nodes)
	{
		if (!Node.bFixed)
		{
			Free.Add(Node.Node);
		}
	}
	FObstacles Obstacles;
	for (const UEdGraphNode* const Node : Graph.Nodes)
	{
		if (Node && !Node->IsA<UEdGraphNode_Comment>() && !Free.Contains(Node))
		{
			Obstacles.Add(FCommentFrames::GetBounds(*Node));
		}
	}
	return Obstacles;
}

/** A component that has been laid out by itself. */
struct FBlock
{
	TArray<int32> Component;
	/** Where the node that it is laid out around came in, and is. */
	FVector2D Place;
};

/** Lays the component out around a node that keeps its place. */
FBlock MakeBlock(FFormatterGraph& Layout, FLaneLayout& Lanes, TArray<int32>&& Component)
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

/** Moves the block down, as one, to where its nodes cover nothing. */
void Settle(FFormatterGraph& Layout, const FBlock& Block, FObstacles& Obstacles, double Gap)
{
	double Down;
	do
	{
		Down = 0;
		for (const int32 Node : Block.Component)
		{
			const double Overlap = Layout.Nodes[Node].bFixed ? 0 : Obstacles.GetOverlap(GetBounds(Layout.Nodes[Node]));
			Down = FMath::Max(Down, Overlap > 0 ? Overlap + Gap : 0);
		}
		for (const int32 Node : Block.Component)
		{
			Layout.Nodes[Node].Position.Y += Layout.Nodes[Node].bFixed ? 0 : FMath::CeilToInt32(Down);
		}
	} while (Down > 0);
	for (const int32 Node : Block.Component)
	{
		if (!Layout.Nodes[Node].bFixed)
		{
			Obstacles.Add(GetBounds(Layout.Nodes[Node]));
		}
	}
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

void GraphFormatter::FormatSelectedNodes(
	UEdGraph& Graph, const TArray<UEdGraphNode*>& Nodes, double HorizontalSpacing, double VerticalSpacing)
{
	FFormatterGraph Layout(Nodes);
	const FLayoutGaps Gaps{HorizontalSpacing / 2, VerticalSpacing / 4};
	FObstacles Obstacles = FindObstacles(Graph, Layout);
	const FColumnAssignment Columns(Layout);
	FLaneLayout Lanes(Layout, Columns, Gaps);
	TArray<FBlock> Blocks;
	for (TArray<int32>& Component : Layout.FindComponents())
	{
		Blocks.Add(MakeBlock(Layout, Lanes, MoveTemp(Component)));
	}
	// From top to bottom as they came in, so that those above keep their places.
	Algo::StableSort(Blocks, [](const FBlock& A, const FBlock& B)
		{ return A.Place.Y != B.Place.Y ? A.Place.Y < B.Place.Y : A.Place.X < B.Place.X; });
	for (const FBlock& Block : Blocks)
	{
		Settle(Layout, Block, Obstacles, Gaps.BetweenNodes);
	}
	Apply(Graph, Layout);
}

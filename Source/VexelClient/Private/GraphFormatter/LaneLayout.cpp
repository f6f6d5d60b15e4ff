#include "GraphFormatter/LaneLayout.h"

#include "GraphFormatter/ColumnAssignment.h"
#include "GraphFormatter/FormatterGraph.h"
#include "GraphFormatter/LaneBlocks.h"
#include "GraphFormatter/LaneHeights.h"
#include "GraphFormatter/LaneOrder.h"

#include "Algo/StableSort.h"

namespace
{
/** The editor's own grid. */
constexpr double Grid = 16;
/** How many orders are tried; a large graph is looked at less often, so that a user does not wait. */
constexpr int32 MaxTries = 8;
constexpr int32 MinTries = 3;
constexpr int32 BlocksOfAllTries = 6000;

double SnapUp(double Value)
{
	return Grid * FMath::CeilToInt32(Value / Grid);
}

/** The heights of the blocks in the best order that is found. */
TArray<double> FindHeights(const TArray<FLaneBlock>& Blocks)
{
	FLaneOrder Order(Blocks);
	FLaneHeights Heights(Blocks);
	TArray<double> Best;
	int64 LeastCost = MAX_int64;
	double LeastLength = 0;
	const int32 NumTries = FMath::Clamp(BlocksOfAllTries / Blocks.Num(), MinTries, MaxTries);
	for (int32 Try = 0; Try < NumTries; ++Try)
	{
		Order.Improve();
		Heights.Place(Order.Get());
		const int64 Cost = Order.GetCost();
		const double Length = Heights.GetLength();
		if (Cost < LeastCost || (Cost == LeastCost && Length < LeastLength))
		{
			LeastCost = Cost;
			LeastLength = Length;
			Best = Heights.Get();
		}
		Order.SortBy(Heights.GetUnordered(Try + 1));
	}
	return Best;
}
}

FLaneLayout::FLaneLayout(FFormatterGraph& InGraph, const FColumnAssignment& InColumns, const FLayoutGaps& InGaps)
	: Graph(InGraph)
	, Columns(InColumns)
	, Gaps(InGaps)
{
	IsRoot.Init(false, Graph.Nodes.Num());
	for (const int32 Root : Columns.Roots)
	{
		IsRoot[Root] = true;
	}
}

TArray<int32> FLaneLayout::OrderStarts(const TArray<int32>& Component) const
{
	TArray<int32> Starts = Component.FilterByPredicate([this](int32 Node)
		{ return IsRoot[Node]; });
	Algo::StableSort(Starts, [this](int32 A, int32 B)
		{ return Graph.Nodes[A].Position.Y < Graph.Nodes[B].Position.Y; });
	Starts.Append(Component.FilterByPredicate([this](int32 Node)
		{ return !Graph.Nodes[Node].bExec && Graph.Nodes[Node].Outputs.IsEmpty(); }));
	Starts.Append(Component);
	return Starts;
}

int32 FLaneLayout::Place(const TArray<int32>& Component)
{
	const TArray<int32> Starts = OrderStarts(Component);
	const FLaneBlocks Lanes(Graph, Columns, Starts, Gaps.BetweenNodes);
	const TArray<double> Heights = FindHeights(Lanes.Blocks);
	for (int32 Block = 0; Block < Lanes.Blocks.Num(); ++Block)
	{
		for (const FLaneBlock::FNode& Node : Lanes.Blocks[Block].Nodes)
		{
			Graph.Nodes[Node.Node].Position.Y = Heights[Block] + Node.Y;
		}
	}
	AlignColumns(Component);
	return Starts[0];
}

void FLaneLayout::AlignColumns(const TArray<int32>& Component)
{
	int32 FirstColumn = MAX_int32;
	int32 LastColumn = MIN_int32;
	for (const int32 Node : Component)
	{
		FirstColumn = FMath::Min(FirstColumn, Columns.Columns[Node]);
		LastColumn = FMath::Max(LastColumn, Columns.Columns[Node]);
	}
	TArray<double> Widths;
	Widths.Init(0, LastColumn - FirstColumn + 1);
	for (const int32 Node : Component)
	{
		double& Width = Widths[Columns.Columns[Node] - FirstColumn];
		Width = FMath::Max(Width, Graph.Nodes[Node].Size.X);
	}
	TArray<double> Lefts = {0.0};
	for (const double Width : Widths)
	{
		Lefts.Add(Lefts.Last() + SnapUp(Width + Gaps.BetweenColumns));
	}
	for (const int32 Index : Component)
	{
		// A value stands at the right edge, next to what reads it.
		FFormatterNode& Node = Graph.Nodes[Index];
		const int32 Column = Columns.Columns[Index] - FirstColumn;
		Node.Position.X = Node.bExec ? Lefts[Column] : Lefts[Column] + Widths[Column] - Node.Size.X;
	}
}

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
constexpr int32 BlocksOfAllTries = 4000;
/** How often blocks are let pass each other in each try. */
constexpr int32 NumFillings = 2;
/** Further from the order before with each try. */
constexpr int32 RoundsOfTry = 10;
/** Wire that may be spent to save one crossing of values. */
constexpr double LengthOfCrossing = 200;

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
	double LeastCost = MAX_dbl;
	const int32 NumTries = FMath::Clamp(BlocksOfAllTries / Blocks.Num(), MinTries, MaxTries);
	for (int32 Try = 1; Try <= NumTries; ++Try)
	{
		Order.Improve();
		Heights.Place(Order.Get());
		for (int32 Filling = 0; Filling < NumFillings && Heights.FillGaps(); ++Filling)
		{
			Order.SortBy(Heights.Get());
			Heights.Settle(Order.Get());
		}
		const double Cost = LengthOfCrossing * static_cast<double>(Order.GetCost()) + Heights.GetLength();
		if (Cost < LeastCost)
		{
			LeastCost = Cost;
			Best = Heights.Get();
		}
		Order.SortBy(Heights.GetUnordered(RoundsOfTry * Try));
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

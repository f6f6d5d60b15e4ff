#include "GraphFormatter/LaneLayout.h"

#include "GraphFormatter/ColumnAssignment.h"
#include "GraphFormatter/FormatterGraph.h"

#include "Algo/Reverse.h"
#include "Algo/StableSort.h"

namespace
{
constexpr double FarAbove = -1e12;
/** The editor's own grid. */
constexpr double Grid = 16;
/** What is kept free below a wire that passes a column. */
constexpr double WireRoom = 16;

double SnapUp(double Value)
{
	return Grid * FMath::CeilToInt32(Value / Grid);
}
}

FLaneLayout::FLaneLayout(FFormatterGraph& InGraph, const FColumnAssignment& InColumns, const FLayoutGaps& InGaps)
	: Graph(InGraph)
	, Columns(InColumns)
	, Gaps(InGaps)
{
	Placed.Init(false, Graph.Nodes.Num());
	IsRoot.Init(false, Graph.Nodes.Num());
	for (const int32 Root : Columns.Roots)
	{
		IsRoot[Root] = true;
	}
}

int32 FLaneLayout::Place(const TArray<int32>& Component)
{
	FindColumns(Component);
	// Execution first, then values that nothing reads, then values that are made of themselves.
	TArray<int32> Starts = Component.FilterByPredicate([this](int32 Node)
		{ return IsRoot[Node]; });
	Algo::StableSort(Starts, [this](int32 A, int32 B)
		{ return Graph.Nodes[A].Position.Y < Graph.Nodes[B].Position.Y; });
	Starts.Append(Component.FilterByPredicate([this](int32 Node)
		{ return !Graph.Nodes[Node].bExec && Graph.Nodes[Node].Outputs.IsEmpty(); }));
	const int32 First = Starts.IsEmpty() ? Component[0] : Starts[0];
	Starts.Append(Component);
	for (const int32 Start : Starts)
	{
		if (!Placed[Start])
		{
			PlaceLanesFrom(Start);
		}
	}
	AlignColumns(Component);
	return First;
}

void FLaneLayout::FindColumns(const TArray<int32>& Component)
{
	int32 LastColumn = MIN_int32;
	FirstColumn = MAX_int32;
	for (const int32 Node : Component)
	{
		FirstColumn = FMath::Min(FirstColumn, Columns.Columns[Node]);
		LastColumn = FMath::Max(LastColumn, Columns.Columns[Node]);
	}
	Edges.Init(FarAbove, LastColumn - FirstColumn + 1);
}

int32 FLaneLayout::ColumnOf(int32 Node) const
{
	return Columns.Columns[Node] - FirstColumn;
}

double FLaneLayout::GetFreeY(int32 Column) const
{
	return Edges[Column] == FarAbove ? FarAbove : Edges[Column] + Gaps.BetweenNodes;
}

void FLaneLayout::PlaceLanesFrom(int32 Start)
{
	FLane Open = {{Start, INDEX_NONE}};
	while (!Open.IsEmpty())
	{
		const FLaneStep First = Open.Pop();
		if (Placed[First.Node])
		{
			continue;
		}
		const FLane Lane = FollowLane(First);
		PlaceLane(Lane);
		for (const FLaneStep& Step : Lane)
		{
			PlaceValuesOf(Step.Node);
		}
		// The last pushed is placed first: of the node furthest right, the uppermost pin.
		for (const FLaneStep& Step : Lane)
		{
			const TArray<int32>& Outputs = Graph.Nodes[Step.Node].Outputs;
			for (int32 Index = Outputs.Num() - 1; Index >= 0; --Index)
			{
				const FFormatterWire& Wire = Graph.Wires[Outputs[Index]];
				if (Wire.bExec && !Placed[Wire.To])
				{
					Open.Push({Wire.To, Outputs[Index]});
				}
			}
		}
	}
}

int32 FLaneLayout::FindNextWire(int32 Node) const
{
	const int32* const Found = Graph.Nodes[Node].Outputs.FindByPredicate([this, Node](int32 Index)
		{
			const FFormatterWire& Wire = Graph.Wires[Index];
			return Wire.bExec && !Placed[Wire.To] && ColumnOf(Wire.To) > ColumnOf(Node); });
	return Found ? *Found : INDEX_NONE;
}

FLaneLayout::FLane FLaneLayout::FollowLane(const FLaneStep& First)
{
	FLane Lane = {First};
	Placed[First.Node] = true;
	for (int32 Wire = FindNextWire(First.Node); Wire != INDEX_NONE; Wire = FindNextWire(Lane.Last().Node))
	{
		Lane.Add({Graph.Wires[Wire].To, Wire});
		Placed[Lane.Last().Node] = true;
	}
	return Lane;
}

void FLaneLayout::PlaceLane(const FLane& Lane)
{
	// Tops of the nodes below the first one's, so that the wires between them are level.
	TArray<double> Offsets = {0.0};
	for (int32 Index = 1; Index < Lane.Num(); ++Index)
	{
		const FFormatterWire& Wire = Graph.Wires[Lane[Index].Wire];
		Offsets.Add(Offsets.Last() + Wire.FromY - Wire.ToY);
	}
	const double Y = FindLaneY(Lane, Offsets);
	for (int32 Index = 0; Index < Lane.Num(); ++Index)
	{
		FFormatterNode& Node = Graph.Nodes[Lane[Index].Node];
		Node.Position.Y = Y + Offsets[Index];
		Edges[ColumnOf(Lane[Index].Node)] = Node.Position.Y + Node.Size.Y;
		// The wire to the node has the columns that it passes to itself.
		for (int32 Column = Index > 0 ? ColumnOf(Lane[Index - 1].Node) + 1 : ColumnOf(Lane[Index].Node); Column < ColumnOf(Lane[Index].Node); ++Column)
		{
			Edges[Column] = Node.Position.Y + Graph.Wires[Lane[Index].Wire].ToY + WireRoom;
		}
	}
}

double FLaneLayout::FindLaneY(const FLane& Lane, const TArray<double>& Offsets) const
{
	double Y = FarAbove;
	if (Lane[0].Wire != INDEX_NONE)
	{
		const FFormatterWire& Wire = Graph.Wires[Lane[0].Wire];
		Y = Graph.Nodes[Wire.From].Position.Y + Wire.FromY - Wire.ToY;
	}
	int32 Column = ColumnOf(Lane[0].Node);
	for (int32 Index = 0; Index < Lane.Num(); ++Index)
	{
		for (; Column <= ColumnOf(Lane[Index].Node); ++Column)
		{
			Y = FMath::Max(Y, GetFreeY(Column) - Offsets[Index]);
		}
	}
	return Y == FarAbove ? 0 : SnapUp(Y);
}

void FLaneLayout::PlaceValuesOf(int32 Reader)
{
	TArray<int32> Open = {Reader};
	while (!Open.IsEmpty())
	{
		const int32 Node = Open.Pop();
		TArray<int32> Read;
		for (const int32 WireIndex : Graph.Nodes[Node].Inputs)
		{
			const FFormatterWire& Wire = Graph.Wires[WireIndex];
			const bool bIsFirstReader = ColumnOf(Wire.From) == ColumnOf(Node) - 1;
			if (!Graph.Nodes[Wire.From].bExec && !Placed[Wire.From] && bIsFirstReader)
			{
				PlaceNode(Wire.From, Graph.Nodes[Node].Position.Y + Wire.ToY - Wire.FromY);
				Read.Add(Wire.From);
			}
		}
		Algo::Reverse(Read);
		Open.Append(Read);
	}
}

void FLaneLayout::PlaceNode(int32 Node, double LeastY)
{
	Placed[Node] = true;
	const int32 Column = ColumnOf(Node);
	const double FreeY = GetFreeY(Column);
	Graph.Nodes[Node].Position.Y = FreeY > LeastY ? SnapUp(FreeY) : LeastY;
	Edges[Column] = Graph.Nodes[Node].Position.Y + Graph.Nodes[Node].Size.Y;
}

void FLaneLayout::AlignColumns(const TArray<int32>& Component)
{
	TArray<double> Widths;
	Widths.Init(0, Edges.Num());
	for (const int32 Node : Component)
	{
		double& Width = Widths[ColumnOf(Node)];
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
		const int32 Column = ColumnOf(Index);
		Node.Position.X = Node.bExec ? Lefts[Column] : Lefts[Column] + Widths[Column] - Node.Size.X;
	}
}

#include "GraphFormatter/ColumnAssignment.h"

#include "GraphFormatter/ColumnBalance.h"
#include "GraphFormatter/FormatterGraph.h"

#include "Algo/Reverse.h"
#include "Algo/StableSort.h"

namespace
{
constexpr int32 NoColumn = MIN_int32;
/** The earliest column of what reads nothing that execution makes: it may stand left of where execution begins. */
constexpr int32 AnyColumn = MIN_int32 / 2;
}

FColumnAssignment::FColumnAssignment(const FFormatterGraph& InGraph)
	: Graph(InGraph)
{
	Columns.Init(NoColumn, Graph.Nodes.Num());
	OrderOf.Init(INDEX_NONE, Graph.Nodes.Num());
	EarliestColumns.Init(NoColumn, Graph.Nodes.Num());
	OrderExecution();
	AssignExecution();
	AssignValues();
	MoveRootsNear();
	Balance();
}

void FColumnAssignment::OrderExecution()
{
	const auto IsLedTo = [this](int32 Node)
	{
		return Graph.Nodes[Node].Inputs.ContainsByPredicate([this](int32 Wire)
			{ return Graph.Wires[Wire].bExec; });
	};
	TArray<int32> Starts;
	TArray<int32> Others;
	for (int32 Node = 0; Node < Graph.Nodes.Num(); ++Node)
	{
		if (Graph.Nodes[Node].bExec)
		{
			(IsLedTo(Node) ? Others : Starts).Add(Node);
		}
	}
	const auto IsAbove = [this](int32 A, int32 B)
	{
		const FVector2D& PositionA = Graph.Nodes[A].Position;
		const FVector2D& PositionB = Graph.Nodes[B].Position;
		return PositionA.Y != PositionB.Y ? PositionA.Y < PositionB.Y : PositionA.X < PositionB.X;
	};
	Algo::StableSort(Starts, IsAbove);
	Algo::StableSort(Others, IsAbove);
	Starts.Append(Others);
	for (const int32 Start : Starts)
	{
		if (OrderOf[Start] == INDEX_NONE)
		{
			Roots.Add(Start);
			VisitFrom(Start);
		}
	}
	Algo::Reverse(Order);
	for (int32 Place = 0; Place < Order.Num(); ++Place)
	{
		OrderOf[Order[Place]] = Place;
	}
}

void FColumnAssignment::VisitFrom(int32 Root)
{
	struct FVisit
	{
		int32 Node;
		/** How many of the node's outputs are followed. The last comes first, so that in the reversed order the first does. */
		int32 NumFollowed;
	};
	// Any value but INDEX_NONE marks a node as met; its place is known when all are.
	TArray<FVisit> Open = {{Root, 0}};
	OrderOf[Root] = 0;
	while (!Open.IsEmpty())
	{
		FVisit& Visit = Open.Last();
		const TArray<int32>& Outputs = Graph.Nodes[Visit.Node].Outputs;
		if (Visit.NumFollowed == Outputs.Num())
		{
			Order.Add(Visit.Node);
			Open.Pop();
			continue;
		}
		const FFormatterWire& Wire = Graph.Wires[Outputs[Outputs.Num() - ++Visit.NumFollowed]];
		if (Wire.bExec && OrderOf[Wire.To] == INDEX_NONE)
		{
			OrderOf[Wire.To] = 0;
			Open.Push({Wire.To, 0});
		}
	}
}

void FColumnAssignment::AssignExecution()
{
	for (const int32 Node : Order)
	{
		int32 Column = 0;
		for (const int32 WireIndex : Graph.Nodes[Node].Inputs)
		{
			const int32 From = Graph.Wires[WireIndex].From;
			if (!Graph.Nodes[From].bExec)
			{
				Column = FMath::Max(Column, GetEarliestColumn(From) + 1);
			}
			else if (OrderOf[From] < OrderOf[Node])
			{
				Column = FMath::Max(Column, Columns[From] + 1);
			}
		}
		Columns[Node] = Column;
	}
}

int32 FColumnAssignment::GetEarliestColumn(int32 Node)
{
	TArray<int32> Open = {Node};
	while (!Open.IsEmpty())
	{
		const int32 Current = Open.Last();
		// What is met again on the way to itself counts as nothing.
		EarliestColumns[Current] = FMath::Max(EarliestColumns[Current], AnyColumn);
		int32 Earliest = AnyColumn;
		const int32 NumOpen = Open.Num();
		for (const int32 WireIndex : Graph.Nodes[Current].Inputs)
		{
			const int32 From = Graph.Wires[WireIndex].From;
			const int32 FromColumn = Graph.Nodes[From].bExec ? Columns[From] : EarliestColumns[From];
			if (FromColumn == NoColumn && !Graph.Nodes[From].bExec)
			{
				Open.Push(From);
			}
			Earliest = FromColumn > AnyColumn ? FMath::Max(Earliest, FromColumn + 1) : Earliest;
		}
		if (Open.Num() == NumOpen)
		{
			EarliestColumns[Current] = Earliest;
			Open.Pop();
		}
	}
	return EarliestColumns[Node];
}

void FColumnAssignment::AssignValues()
{
	// From those that nobody reads back to what they read, each when all values that read it have their columns.
	TArray<int32> NumWaiting;
	NumWaiting.Init(0, Graph.Nodes.Num());
	TArray<int32> Ready;
	for (int32 Node = 0; Node < Graph.Nodes.Num(); ++Node)
	{
		for (const int32 Wire : Graph.Nodes[Node].Outputs)
		{
			NumWaiting[Node] += Graph.Nodes[Graph.Wires[Wire].To].bExec ? 0 : 1;
		}
		if (!Graph.Nodes[Node].bExec && NumWaiting[Node] == 0)
		{
			Ready.Add(Node);
		}
	}
	for (int32 Next = 0; Next < Ready.Num(); ++Next)
	{
		AssignValue(Ready[Next]);
		for (const int32 Wire : Graph.Nodes[Ready[Next]].Inputs)
		{
			const int32 From = Graph.Wires[Wire].From;
			if (!Graph.Nodes[From].bExec && --NumWaiting[From] == 0)
			{
				Ready.Add(From);
			}
		}
	}
	// Values that are made of themselves: no compile takes them, but an edit may leave some.
	for (int32 Node = 0; Node < Graph.Nodes.Num(); ++Node)
	{
		if (Columns[Node] == NoColumn)
		{
			AssignValue(Node);
		}
	}
}

void FColumnAssignment::AssignValue(int32 Node)
{
	int32 FirstReader = MAX_int32;
	for (const int32 Wire : Graph.Nodes[Node].Outputs)
	{
		const int32 Reader = Columns[Graph.Wires[Wire].To];
		FirstReader = Reader == NoColumn ? FirstReader : FMath::Min(FirstReader, Reader);
	}
	Columns[Node] = FirstReader == MAX_int32 ? FMath::Max(0, GetEarliestColumn(Node)) : FirstReader - 1;
}

void FColumnAssignment::MoveRootsNear()
{
	for (const int32 Root : Roots)
	{
		// Right before the first that it leads to, where nothing else tells.
		const int32 LastColumn = GetLastColumn(Root);
		if (Graph.Nodes[Root].Inputs.IsEmpty() && LastColumn != MAX_int32)
		{
			Columns[Root] = FMath::Max(Columns[Root], LastColumn);
		}
	}
}

int32 FColumnAssignment::GetLastColumn(int32 Node) const
{
	int32 Last = MAX_int32;
	for (const int32 Wire : Graph.Nodes[Node].Outputs)
	{
		Last = FMath::Min(Last, Columns[Graph.Wires[Wire].To] - 1);
	}
	return Last;
}

void FColumnAssignment::Balance()
{
	TArray<bool> IsRoot;
	IsRoot.Init(false, Graph.Nodes.Num());
	for (const int32 Root : Roots)
	{
		IsRoot[Root] = true;
	}
	for (const TArray<int32>& Component : Graph.FindComponents())
	{
		FColumnBalance Balance;
		TMap<int32, int32> Points;
		for (const int32 Node : Component)
		{
			Points.Add(Node, Balance.AddPoint(Columns[Node]));
		}
		// Where execution begins holds to the left edge, as the events of a graph stand in line, unless more than one wire asks otherwise.
		const int32 Edge = Balance.AddPoint(0);
		for (const int32 Node : Component)
		{
			if (IsRoot[Node])
			{
				Balance.AddWire(Edge, Points[Node], 0);
			}
			for (const int32 WireIndex : Graph.Nodes[Node].Outputs)
			{
				// One that goes back closes a loop, and tells nothing.
				const FFormatterWire& Wire = Graph.Wires[WireIndex];
				if (Columns[Wire.From] < Columns[Wire.To])
				{
					Balance.AddWire(Points[Wire.From], Points[Wire.To], 1);
				}
			}
		}
		Balance.Run();
		for (const auto& [Node, Point] : Points)
		{
			Columns[Node] = Balance.GetColumn(Point) - Balance.GetColumn(Edge);
		}
	}
}

#include "GraphFormatter/LaneBlocks.h"

#include "GraphFormatter/ColumnAssignment.h"
#include "GraphFormatter/FormatterGraph.h"

#include "Algo/Reverse.h"
#include "Algo/StableSort.h"

namespace
{
/** What is kept free above and below a wire that passes a column. */
constexpr double WireRoom = 12;
/** A wire that passes more columns keeps no way free: it would push apart everything on its way. */
constexpr int32 MaxWayColumns = 24;
}

FLaneBlocks::FLaneBlocks(const FFormatterGraph& InGraph, const FColumnAssignment& InColumns, const TArray<int32>& Starts, double InGap)
	: Graph(InGraph)
	, Columns(InColumns)
	, Gap(InGap)
{
	for (const int32 Start : Starts)
	{
		if (!Places.Contains(Start))
		{
			AddLanesFrom(Start);
		}
	}
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		WalkOrder.Add(Block);
	}
	AddWires(Starts);
	PutInWalkOrder();
}

void FLaneBlocks::PutInWalkOrder()
{
	TArray<int32> Order;
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		Order.Add(Block);
	}
	Algo::StableSort(Order, [this](int32 A, int32 B)
		{ return WalkOrder[A] < WalkOrder[B]; });
	TArray<int32> NewIndices;
	NewIndices.SetNum(Order.Num());
	TArray<FLaneBlock> Sorted;
	for (const int32 Block : Order)
	{
		NewIndices[Block] = Sorted.Num();
		Sorted.Add(MoveTemp(Blocks[Block]));
	}
	Blocks = MoveTemp(Sorted);
	for (FLaneBlock& Block : Blocks)
	{
		for (FLaneCell& Cell : Block.Cells)
		{
			for (TArray<FLaneLink>* const Links : {&Cell.Left, &Cell.Right})
			{
				for (FLaneLink& Link : *Links)
				{
					Link.Block = NewIndices[Link.Block];
				}
			}
		}
	}
}

void FLaneBlocks::AddLanesFrom(int32 Start)
{
	TArray<FStep> Open = {{Start, INDEX_NONE}};
	while (!Open.IsEmpty())
	{
		const FStep First = Open.Pop();
		if (Places.Contains(First.Node))
		{
			continue;
		}
		const TArray<FStep> Lane = FollowLane(First);
		for (const FStep& Step : Lane)
		{
			AddValuesOf(Step.Node);
		}
		// The last pushed comes first: of the node furthest right, the uppermost pin.
		for (const FStep& Step : Lane)
		{
			const TArray<int32>& Outputs = Graph.Nodes[Step.Node].Outputs;
			for (int32 Index = Outputs.Num() - 1; Index >= 0; --Index)
			{
				const FFormatterWire& Wire = Graph.Wires[Outputs[Index]];
				if (Wire.bExec && !Places.Contains(Wire.To))
				{
					Open.Push({Wire.To, Outputs[Index]});
				}
			}
		}
	}
}

int32 FLaneBlocks::FindNextWire(int32 Node) const
{
	const int32* const Found = Graph.Nodes[Node].Outputs.FindByPredicate([this, Node](int32 Index)
		{
			const FFormatterWire& Wire = Graph.Wires[Index];
			return Wire.bExec && !Places.Contains(Wire.To) && Columns.Columns[Wire.To] > Columns.Columns[Node]; });
	return Found ? *Found : INDEX_NONE;
}

TArray<FLaneBlocks::FStep> FLaneBlocks::FollowLane(const FStep& First)
{
	TArray<FStep> Lane = {First};
	Places.Add(First.Node, FPlace());
	for (int32 Wire = FindNextWire(First.Node); Wire != INDEX_NONE; Wire = FindNextWire(Lane.Last().Node))
	{
		Lane.Add({Graph.Wires[Wire].To, Wire});
		Places.Add(Lane.Last().Node, FPlace());
		LaneWires.Add(Wire);
	}
	AddLane(Lane);
	return Lane;
}

void FLaneBlocks::AddLane(const TArray<FStep>& Lane)
{
	const int32 Index = Blocks.AddDefaulted();
	FLaneBlock& Block = Blocks[Index];
	Block.FirstColumn = Columns.Columns[Lane[0].Node];
	Block.bExec = Graph.Nodes[Lane[0].Node].bExec;
	// Tops of the nodes below the first one's, so that the wires between them are level.
	double Y = 0;
	for (const FStep& Step : Lane)
	{
		if (Step.Wire != INDEX_NONE && LaneWires.Contains(Step.Wire))
		{
			const FFormatterWire& Wire = Graph.Wires[Step.Wire];
			const double WireY = Y + Wire.FromY;
			// The wire has the columns that it passes to itself.
			for (int32 Left = Columns.Columns[Wire.From]; Left < Columns.Columns[Wire.To]; ++Left)
			{
				if (Left > Columns.Columns[Wire.From])
				{
					Block.Cells.Add({WireY - WireRoom, WireY + WireRoom, {}, {}});
					Block.Cells.Last().Left.Add({Index, WireY, WireY, true});
				}
				Block.Cells.Last().Right.Add({Index, WireY, WireY, true});
			}
			Y = WireY - Wire.ToY;
		}
		AddNode(Block, Step.Node, Y);
		Places[Step.Node] = {Index, Y};
		if (Block.Nodes.Num() > 1)
		{
			const double WireY = Y + Graph.Wires[Step.Wire].ToY;
			Block.Cells.Last().Left.Add({Index, WireY, WireY, true});
		}
	}
}

void FLaneBlocks::AddNode(FLaneBlock& Block, int32 Node, double Y)
{
	Block.Cells.Add({Y - Gap / 2, Y + Graph.Nodes[Node].Size.Y + Gap / 2, {}, {}});
	Block.Nodes.Add({Node, Y});
}

void FLaneBlocks::AddValuesOf(int32 Reader)
{
	TArray<int32> Open = {Reader};
	while (!Open.IsEmpty())
	{
		const int32 Node = Open.Pop();
		TArray<int32> Read;
		for (const int32 WireIndex : Graph.Nodes[Node].Inputs)
		{
			const int32 From = Graph.Wires[WireIndex].From;
			if (!Graph.Nodes[From].bExec && !Places.Contains(From))
			{
				const int32 Index = Blocks.AddDefaulted();
				Blocks[Index].FirstColumn = Columns.Columns[From];
				AddNode(Blocks[Index], From, 0);
				Places.Add(From, {Index, 0});
				Read.Add(From);
			}
		}
		Algo::Reverse(Read);
		Open.Append(Read);
	}
}

void FLaneBlocks::AddWires(const TArray<int32>& Starts)
{
	TSet<int32> Seen;
	for (const int32 Node : Starts)
	{
		bool bSeen = false;
		Seen.Add(Node, &bSeen);
		const TArray<int32>& Outputs = Graph.Nodes[Node].Outputs;
		for (int32 First = 0, Next = 0; !bSeen && First < Outputs.Num(); First = Next)
		{
			// The wires of a pin stand together, as the pin's links do.
			for (Next = First; Next < Outputs.Num() && Graph.Wires[Outputs[Next]].FromY == Graph.Wires[Outputs[First]].FromY;)
			{
				++Next;
			}
			AddWiresOfPin(MakeArrayView(Outputs).Slice(First, Next - First));
		}
	}
}

void FLaneBlocks::AddWiresOfPin(TArrayView<const int32> PinWires)
{
	const FFormatterWire& FirstWire = Graph.Wires[PinWires[0]];
	const FPlace From = Places[FirstWire.From];
	const int32 FromColumn = Columns.Columns[FirstWire.From];
	const double FromY = From.Y + FirstWire.FromY;
	TArray<int32> FarWires;
	int32 LastColumn = FromColumn;
	for (const int32 Index : PinWires)
	{
		const FFormatterWire& Wire = Graph.Wires[Index];
		const int32 NumPassed = Columns.Columns[Wire.To] - FromColumn - 1;
		if (LaneWires.Contains(Index) || NumPassed < 0 || NumPassed > MaxWayColumns)
		{
			continue;
		}
		if (NumPassed == 0)
		{
			Link(From.Block, FromColumn, FromY, Places[Wire.To].Block, Places[Wire.To].Y + Wire.ToY, Wire.bExec);
			continue;
		}
		FarWires.Add(Index);
		LastColumn = FMath::Max(LastColumn, FromColumn + NumPassed);
	}
	if (FarWires.IsEmpty())
	{
		return;
	}
	const int32 Way = Blocks.AddDefaulted();
	WalkOrder.Add(WalkOrder[From.Block] + 0.5);
	Blocks[Way].FirstColumn = FromColumn + 1;
	for (int32 Column = FromColumn + 1; Column <= LastColumn; ++Column)
	{
		Blocks[Way].Cells.Add({-WireRoom, WireRoom, {}, {}});
	}
	for (int32 Column = FromColumn + 1; Column < LastColumn; ++Column)
	{
		Link(Way, Column, 0, Way, 0, FirstWire.bExec);
	}
	Link(From.Block, FromColumn, FromY, Way, 0, FirstWire.bExec);
	for (const int32 Index : FarWires)
	{
		const FFormatterWire& Wire = Graph.Wires[Index];
		Link(Way, Columns.Columns[Wire.To] - 1, 0, Places[Wire.To].Block, Places[Wire.To].Y + Wire.ToY, Wire.bExec);
	}
}

void FLaneBlocks::Link(int32 From, int32 Column, double FromY, int32 To, double ToY, bool bExec)
{
	Blocks[From].Cells[Column - Blocks[From].FirstColumn].Right.Add({To, FromY, ToY, bExec});
	Blocks[To].Cells[Column + 1 - Blocks[To].FirstColumn].Left.Add({From, ToY, FromY, bExec});
}

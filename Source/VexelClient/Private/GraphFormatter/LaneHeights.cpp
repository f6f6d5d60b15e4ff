#include "GraphFormatter/LaneHeights.h"

#include "GraphFormatter/LaneBlocks.h"
#include "GraphFormatter/LaneSettling.h"

#include "Algo/Sort.h"

namespace
{
constexpr double FarAway = 1e12;
/** The editor's own grid. */
constexpr double Grid = 16;
/** After as many rounds hardly anything moves. */
constexpr int32 NumRounds = 24;
constexpr int32 NumTightenings = 8;
constexpr int32 NumFillings = 3;
/** What is nearer stays in its order. */
constexpr double LeastJump = 32;
}

FLaneHeights::FLaneHeights(const TArray<FLaneBlock>& InBlocks)
	: Blocks(InBlocks)
{
	FirstColumn = MAX_int32;
	int32 EndColumn = MIN_int32;
	for (const FLaneBlock& Block : Blocks)
	{
		FirstColumn = FMath::Min(FirstColumn, Block.FirstColumn);
		EndColumn = FMath::Max(EndColumn, Block.FirstColumn + Block.Cells.Num());
	}
	NumColumns = EndColumn - FirstColumn;
}

void FLaneHeights::Place(const TArray<int32>& InOrder)
{
	Heights.Init(0, Blocks.Num());
	Settle(InOrder);
}

void FLaneHeights::Settle(const TArray<int32>& InOrder)
{
	Order = InOrder;
	FindNeighbours();
	TArray<double> Wanted = Heights;
	Heights = PushDown(Wanted);
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		TArray<double> Weights;
		for (int32 Block = 0; Block < Blocks.Num(); ++Block)
		{
			Wanted[Block] = GetMean(Block, Weights.Add_GetRef(0));
		}
		// Both keep the gaps, and so does what lies in the middle, where blocks that are linked do not trade places for ever.
		const TArray<double> Settled = FLaneSettling(Blocks, Order, Neighbours).Settle(Wanted, Weights);
		for (int32 Block = 0; Block < Blocks.Num(); ++Block)
		{
			Heights[Block] = (Heights[Block] + Settled[Block]) / 2;
		}
	}
	Tighten(false);
	SnapLanes();
	Tighten(true);
}

bool FLaneHeights::FillGaps()
{
	bool bAny = false;
	TArray<TArray<int32>> BlocksOfColumns;
	BlocksOfColumns.SetNum(NumColumns);
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		for (int32 Cell = 0; Cell < Blocks[Block].Cells.Num(); ++Cell)
		{
			BlocksOfColumns[Blocks[Block].FirstColumn + Cell - FirstColumn].Add(Block);
		}
	}
	for (int32 Round = 0; Round < NumFillings; ++Round)
	{
		for (const int32 Block : Order)
		{
			const double Wanted = GetWanted(Block);
			const double Distance = FMath::Abs(Wanted - Heights[Block]);
			const double Free = Distance > LeastJump ? FindFreeHeight(Block, Wanted, Distance, BlocksOfColumns) : Heights[Block];
			const bool bJumps = FMath::Abs(Wanted - Free) < Distance - LeastJump;
			Heights[Block] = bJumps ? Free : Heights[Block];
			bAny |= bJumps;
		}
	}
	return bAny;
}

double FLaneHeights::FindFreeHeight(
	int32 Block, double Wanted, double Distance, const TArray<TArray<int32>>& BlocksOfColumns) const
{
	/** Heights at which the block would cover another one. */
	struct FTaken
	{
		double From;
		double To;
	};
	TArray<FTaken> Taken;
	const FLaneBlock& Own = Blocks[Block];
	for (int32 Cell = 0; Cell < Own.Cells.Num(); ++Cell)
	{
		const int32 Column = Own.FirstColumn + Cell;
		for (const int32 Other : BlocksOfColumns[Column - FirstColumn])
		{
			const FLaneCell& OtherCell = Blocks[Other].Cells[Column - Blocks[Other].FirstColumn];
			const FTaken Range{Heights[Other] + OtherCell.Top - Own.Cells[Cell].Bottom, Heights[Other] + OtherCell.Bottom - Own.Cells[Cell].Top};
			if (Other != Block && Range.To > Wanted - Distance && Range.From < Wanted + Distance)
			{
				Taken.Add(Range);
			}
		}
	}
	double Below = Wanted;
	Algo::Sort(Taken, [](const FTaken& A, const FTaken& B)
		{ return A.From < B.From; });
	for (const FTaken& Range : Taken)
	{
		Below = Range.From < Below && Below < Range.To ? Range.To : Below;
	}
	double Above = Wanted;
	Algo::Sort(Taken, [](const FTaken& A, const FTaken& B)
		{ return A.To > B.To; });
	for (const FTaken& Range : Taken)
	{
		Above = Range.From < Above && Above < Range.To ? Range.From : Above;
	}
	return Wanted - Above < Below - Wanted ? Above : Below;
}

void FLaneHeights::FindNeighbours()
{
	TArray<int32> Last;
	Last.Init(INDEX_NONE, NumColumns);
	Neighbours.Reset();
	Neighbours.SetNum(Blocks.Num());
	for (const int32 Block : Order)
	{
		const int32 NumCells = Blocks[Block].Cells.Num();
		Neighbours[Block].Above.Init(INDEX_NONE, NumCells);
		Neighbours[Block].Below.Init(INDEX_NONE, NumCells);
		for (int32 Cell = 0; Cell < NumCells; ++Cell)
		{
			const int32 Column = Blocks[Block].FirstColumn + Cell;
			int32& Above = Last[Column - FirstColumn];
			Neighbours[Block].Above[Cell] = Above;
			if (Above != INDEX_NONE)
			{
				Neighbours[Above].Below[Column - Blocks[Above].FirstColumn] = Block;
			}
			Above = Block;
		}
	}
}

TArray<double> FLaneHeights::PushDown(const TArray<double>& Wanted) const
{
	TArray<double> Edges;
	Edges.Init(-FarAway, NumColumns);
	TArray<double> Result = Wanted;
	for (const int32 Block : Order)
	{
		const int32 Offset = Blocks[Block].FirstColumn - FirstColumn;
		const TArray<FLaneCell>& Cells = Blocks[Block].Cells;
		for (int32 Cell = 0; Cell < Cells.Num(); ++Cell)
		{
			Result[Block] = FMath::Max(Result[Block], Edges[Offset + Cell] - Cells[Cell].Top);
		}
		for (int32 Cell = 0; Cell < Cells.Num(); ++Cell)
		{
			Edges[Offset + Cell] = Result[Block] + Cells[Cell].Bottom;
		}
	}
	return Result;
}

TArray<double> FLaneHeights::GetUnordered(int32 InNumRounds) const
{
	FLaneHeights Free = *this;
	for (int32 Round = 0; Round < InNumRounds; ++Round)
	{
		TArray<double> Next;
		for (int32 Block = 0; Block < Blocks.Num(); ++Block)
		{
			double NumAsked = 0;
			Next.Add((Free.Heights[Block] + Free.GetMean(Block, NumAsked)) / 2);
		}
		Free.Heights = MoveTemp(Next);
	}
	return MoveTemp(Free.Heights);
}

double FLaneHeights::GetMean(int32 Block, double& OutNumAsked) const
{
	double Sum = 0;
	for (const FLaneCell& Cell : Blocks[Block].Cells)
	{
		for (const TArray<FLaneLink>* const Links : {&Cell.Left, &Cell.Right})
		{
			for (const FLaneLink& Link : *Links)
			{
				if (Link.Block != Block)
				{
					Sum += Heights[Link.Block] + Link.OtherY - Link.OwnY;
					++OutNumAsked;
				}
			}
		}
	}
	return OutNumAsked > 0 ? Sum / OutNumAsked : Heights[Block];
}

double FLaneHeights::GetWanted(int32 Block) const
{
	// The middle one of what each wire asks for: there the wires are shortest together.
	TArray<double, TInlineAllocator<16>> Asked;
	for (const FLaneCell& Cell : Blocks[Block].Cells)
	{
		for (const TArray<FLaneLink>* const Links : {&Cell.Left, &Cell.Right})
		{
			for (const FLaneLink& Link : *Links)
			{
				if (Link.Block != Block)
				{
					Asked.Add(Heights[Link.Block] + Link.OtherY - Link.OwnY);
				}
			}
		}
	}
	if (Asked.IsEmpty())
	{
		return Heights[Block];
	}
	Algo::Sort(Asked);
	const int32 Upper = (Asked.Num() - 1) / 2;
	const int32 Lower = Asked.Num() / 2;
	return FMath::Clamp(Heights[Block], Asked[Upper], Asked[Lower]);
}

double FLaneHeights::GetLeast(int32 Block) const
{
	double Least = -FarAway;
	const TArray<FLaneCell>& Cells = Blocks[Block].Cells;
	for (int32 Cell = 0; Cell < Cells.Num(); ++Cell)
	{
		const int32 Above = Neighbours[Block].Above[Cell];
		if (Above != INDEX_NONE)
		{
			const FLaneCell& Other = Blocks[Above].Cells[Blocks[Block].FirstColumn + Cell - Blocks[Above].FirstColumn];
			Least = FMath::Max(Least, Heights[Above] + Other.Bottom - Cells[Cell].Top);
		}
	}
	return Least;
}

double FLaneHeights::GetMost(int32 Block) const
{
	double Most = FarAway;
	const TArray<FLaneCell>& Cells = Blocks[Block].Cells;
	for (int32 Cell = 0; Cell < Cells.Num(); ++Cell)
	{
		const int32 Below = Neighbours[Block].Below[Cell];
		if (Below != INDEX_NONE)
		{
			const FLaneCell& Other = Blocks[Below].Cells[Blocks[Block].FirstColumn + Cell - Blocks[Below].FirstColumn];
			Most = FMath::Min(Most, Heights[Below] + Other.Top - Cells[Cell].Bottom);
		}
	}
	return Most;
}

void FLaneHeights::Tighten(bool bValuesAlone)
{
	for (int32 Round = 0; Round < NumTightenings; ++Round)
	{
		const bool bFromTop = Round % 2 == 0;
		for (int32 Place = 0; Place < Order.Num(); ++Place)
		{
			const int32 Block = Order[bFromTop ? Place : Order.Num() - 1 - Place];
			if (!bValuesAlone || !Blocks[Block].bExec)
			{
				// The gaps come first where rounding has left a hair less than both ask for.
				Heights[Block] = FMath::Max(GetLeast(Block), FMath::Min(GetMost(Block), GetWanted(Block)));
			}
		}
	}
}

void FLaneHeights::SnapLanes()
{
	TArray<double> Snapped = Heights;
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		Snapped[Block] = Blocks[Block].bExec ? Grid * FMath::RoundToDouble(Heights[Block] / Grid) : Heights[Block];
	}
	Heights = PushDown(Snapped);
}

double FLaneHeights::GetLength() const
{
	double Length = 0;
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		for (const FLaneCell& Cell : Blocks[Block].Cells)
		{
			for (const FLaneLink& Link : Cell.Right)
			{
				Length += FMath::Abs(Heights[Block] + Link.OwnY - Heights[Link.Block] - Link.OtherY);
			}
		}
	}
	return Length;
}

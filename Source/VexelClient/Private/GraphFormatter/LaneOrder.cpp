#include "GraphFormatter/LaneOrder.h"

#include "GraphFormatter/LaneBlocks.h"

#include "Algo/StableSort.h"

namespace
{
/** Rounds over all blocks; the later ones find little. */
constexpr int32 MaxRounds = 6;
/** How far a block is moved at once. */
constexpr int32 MaxSiftDistance = 160;
/** How much worse it is to cross a wire of execution, along which one reads, than one of values. */
constexpr int32 ExecWeight = 3;

int32 GetWeight(bool bExecA, bool bExecB)
{
	return bExecA || bExecB ? ExecWeight : 1;
}
}

FLaneOrder::FLaneOrder(const TArray<FLaneBlock>& InBlocks)
	: Blocks(InBlocks)
{
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		Order.Add(Block);
	}
	Ranks.Init(0, Blocks.Num());
	UpdateRanks(0, Blocks.Num() - 1);
}

void FLaneOrder::SortBy(const TArray<double>& Heights)
{
	Algo::StableSort(Order, [&Heights](int32 A, int32 B)
		{ return Heights[A] < Heights[B]; });
	UpdateRanks(0, Order.Num() - 1);
}

void FLaneOrder::UpdateRanks(int32 First, int32 Last)
{
	for (int32 Place = First; Place <= Last; ++Place)
	{
		Ranks[Order[Place]] = Place;
	}
}

void FLaneOrder::Improve()
{
	bool bImproved = true;
	for (int32 Round = 0; Round < MaxRounds && bImproved; ++Round)
	{
		bImproved = false;
		for (int32 Block = 0; Block < Blocks.Num(); ++Block)
		{
			bImproved |= Sift(Block);
		}
	}
}

bool FLaneOrder::Sift(int32 Block)
{
	const int32 Place = static_cast<int32>(Ranks[Block]);
	int32 BestPlace = Place;
	int32 BestCost = 0;
	int32 Cost = 0;
	for (int32 Above = Place - 1; Above >= FMath::Max(0, Place - MaxSiftDistance); --Above)
	{
		// Just below the one that it goes above next.
		Ranks[Block] = Above + 0.5;
		Cost += GetCostOfSwap(Blocks[Order[Above]], Blocks[Block]);
		BestPlace = Cost < BestCost ? Above : BestPlace;
		BestCost = FMath::Min(BestCost, Cost);
	}
	Cost = 0;
	for (int32 Below = Place + 1; Below <= FMath::Min(Order.Num() - 1, Place + MaxSiftDistance); ++Below)
	{
		Ranks[Block] = Below - 0.5;
		Cost += GetCostOfSwap(Blocks[Block], Blocks[Order[Below]]);
		BestPlace = Cost < BestCost ? Below : BestPlace;
		BestCost = FMath::Min(BestCost, Cost);
	}
	Order.RemoveAt(Place);
	Order.Insert(Block, BestPlace);
	UpdateRanks(FMath::Min(Place, BestPlace), FMath::Max(Place, BestPlace));
	return BestPlace != Place;
}

int32 FLaneOrder::GetCostOfSwap(const FLaneBlock& Upper, const FLaneBlock& Lower) const
{
	int32 Cost = 0;
	const auto AddCost = [this, &Cost](const TArray<FLaneLink>& UpperLinks, const TArray<FLaneLink>& LowerLinks)
	{
		for (const FLaneLink& A : UpperLinks)
		{
			for (const FLaneLink& B : LowerLinks)
			{
				const double Way = A.Block != B.Block ? Ranks[A.Block] - Ranks[B.Block] : A.OtherY - B.OtherY;
				const int32 Weight = GetWeight(A.bExec, B.bExec);
				Cost += Way < 0 ? Weight : Way > 0 ? -Weight
												   : 0;
			}
		}
	};
	const int32 First = FMath::Max(Upper.FirstColumn, Lower.FirstColumn);
	const int32 End = FMath::Min(Upper.FirstColumn + Upper.Cells.Num(), Lower.FirstColumn + Lower.Cells.Num());
	for (int32 Column = First; Column < End; ++Column)
	{
		const FLaneCell& UpperCell = Upper.Cells[Column - Upper.FirstColumn];
		const FLaneCell& LowerCell = Lower.Cells[Column - Lower.FirstColumn];
		AddCost(UpperCell.Left, LowerCell.Left);
		AddCost(UpperCell.Right, LowerCell.Right);
	}
	return Cost;
}

int64 FLaneOrder::GetCost() const
{
	/** An end of a wire: the place of its block, and where it is there. */
	struct FEnd
	{
		double Rank;
		double Y;

		bool operator<(const FEnd& Other) const { return Rank != Other.Rank ? Rank < Other.Rank : Y < Other.Y; }
	};
	struct FWire
	{
		FEnd Left;
		FEnd Right;
		bool bExec;
	};
	TMap<int32, TArray<FWire>> WiresByColumn;
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		for (int32 Cell = 0; Cell < Blocks[Block].Cells.Num(); ++Cell)
		{
			for (const FLaneLink& Link : Blocks[Block].Cells[Cell].Right)
			{
				TArray<FWire>& Wires = WiresByColumn.FindOrAdd(Blocks[Block].FirstColumn + Cell);
				Wires.Add({{Ranks[Block], Link.OwnY}, {Ranks[Link.Block], Link.OtherY}, Link.bExec});
			}
		}
	}
	int64 Cost = 0;
	for (auto& [Column, Wires] : WiresByColumn)
	{
		for (int32 A = 0; A < Wires.Num(); ++A)
		{
			for (int32 B = A + 1; B < Wires.Num(); ++B)
			{
				const FWire& First = Wires[A];
				const FWire& Second = Wires[B];
				const bool bCross = (First.Left < Second.Left && Second.Right < First.Right) ||
					(Second.Left < First.Left && First.Right < Second.Right);
				Cost += bCross ? GetWeight(First.bExec, Second.bExec) : 0;
			}
		}
	}
	return Cost;
}

#include "GraphFormatter/LaneSettling.h"

#include "GraphFormatter/LaneBlocks.h"
#include "GraphFormatter/LaneHeights.h"

namespace
{
/** What wants nothing still has to be somewhere. */
constexpr double LeastWeight = 1e-3;
/** Less than this too near is near enough. */
constexpr double Tolerance = 1e-6;
}

FLaneSettling::FLaneSettling(
	const TArray<FLaneBlock>& InBlocks, const TArray<int32>& InOrder, const TArray<FLaneNeighbours>& InNeighbours)
	: Blocks(InBlocks)
	, Order(InOrder)
	, Neighbours(InNeighbours)
{
}

TArray<double> FLaneSettling::Settle(const TArray<double>& Wanted, const TArray<double>& Weights)
{
	Groups.Reset();
	Groups.SetNum(Blocks.Num());
	GroupOf.Init(INDEX_NONE, Blocks.Num());
	Offsets.Init(0, Blocks.Num());
	for (const int32 Block : Order)
	{
		FGroup& Group = Groups[Block];
		Group.Members = {Block};
		Group.Border = {Block};
		Group.Weight = FMath::Max(LeastWeight, Weights[Block]);
		Group.WeightedSum = Wanted[Block] * Group.Weight;
		GroupOf[Block] = Block;
		int32 Current = Block;
		for (FTouch Touch = FindTouch(Current); Touch.Above != INDEX_NONE; Touch = FindTouch(Current))
		{
			Current = Join(Touch);
		}
	}
	TArray<double> Heights;
	for (int32 Block = 0; Block < Blocks.Num(); ++Block)
	{
		Heights.Add(GetHeight(Block));
	}
	return Heights;
}

FLaneSettling::FTouch FLaneSettling::FindTouch(int32 GroupIndex)
{
	FGroup& Group = Groups[GroupIndex];
	FTouch Worst;
	Worst.Excess = Tolerance;
	int32 NumKept = 0;
	for (const int32 Below : Group.Border)
	{
		bool bHasOutside = false;
		const TArray<FLaneCell>& Cells = Blocks[Below].Cells;
		for (int32 Cell = 0; Cell < Cells.Num(); ++Cell)
		{
			const int32 Above = Neighbours[Below].Above[Cell];
			if (Above == INDEX_NONE || GroupOf[Above] == GroupIndex)
			{
				continue;
			}
			bHasOutside = true;
			const FLaneCell& Other = Blocks[Above].Cells[Blocks[Below].FirstColumn + Cell - Blocks[Above].FirstColumn];
			const double Distance = Other.Bottom - Cells[Cell].Top;
			const double Excess = GetHeight(Above) + Distance - GetHeight(Below);
			if (Excess > Worst.Excess)
			{
				Worst = {Above, Below, Distance, Excess};
			}
		}
		if (bHasOutside)
		{
			Group.Border[NumKept++] = Below;
		}
	}
	Group.Border.SetNum(NumKept);
	return Worst;
}

int32 FLaneSettling::Join(const FTouch& Touch)
{
	// The smaller group's members take the offsets of the larger one's.
	const double Shift = Offsets[Touch.Above] + Touch.Distance - Offsets[Touch.Below];
	const int32 Upper = GroupOf[Touch.Above];
	const int32 Lower = GroupOf[Touch.Below];
	const bool bKeepUpper = Groups[Upper].Members.Num() >= Groups[Lower].Members.Num();
	FGroup& Kept = Groups[bKeepUpper ? Upper : Lower];
	FGroup& Gone = Groups[bKeepUpper ? Lower : Upper];
	const double Move = bKeepUpper ? Shift : -Shift;
	for (const int32 Member : Gone.Members)
	{
		Offsets[Member] += Move;
		GroupOf[Member] = bKeepUpper ? Upper : Lower;
	}
	Kept.WeightedSum += Gone.WeightedSum - Move * Gone.Weight;
	Kept.Weight += Gone.Weight;
	Kept.Members.Append(Gone.Members);
	Kept.Border.Append(Gone.Border);
	Gone = FGroup();
	return bKeepUpper ? Upper : Lower;
}

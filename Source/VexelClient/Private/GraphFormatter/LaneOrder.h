#pragma once

#include "CoreMinimal.h"

struct FLaneBlock;

/** Which blocks stand above which: one order for all columns, so that a lane that is above another one is so everywhere. */
class FLaneOrder
{
public:
	/** Begins with the blocks in their own order. They outlive this. */
	explicit FLaneOrder(const TArray<FLaneBlock>& Blocks);

	/** Puts the blocks into the order of the heights, which are by block. */
	void SortBy(const TArray<double>& Heights);
	/** Moves each block among those around it to where its wires cross the others least, until none is better off elsewhere. */
	void Improve();

	/** How many pairs of wires cross; those with one of execution count more. */
	int64 GetCost() const;
	/** The blocks from top to bottom. */
	const TArray<int32>& Get() const { return Order; }

private:
	bool Sift(int32 Block);
	/** How much more wires cross when the lower one of two neighbours goes above the other. */
	int32 GetCostOfSwap(const FLaneBlock& Upper, const FLaneBlock& Lower) const;
	void UpdateRanks(int32 First, int32 Last);

	const TArray<FLaneBlock>& Blocks;
	TArray<int32> Order;
	/** By block, its place in the order. */
	TArray<double> Ranks;
};

#pragma once

#include "CoreMinimal.h"

struct FLaneBlock;
struct FLaneNeighbours;

/**
 * Heights that keep the gaps and are as near as can be to those that are wanted. From top to bottom, what would come too near to something
 * above joins it: both move together from then on, to the mean of what they want, and join what they touch there.
 */
class FLaneSettling
{
public:
	/** All outlive this. The neighbours are those of the order. */
	FLaneSettling(const TArray<FLaneBlock>& Blocks, const TArray<int32>& Order, const TArray<FLaneNeighbours>& Neighbours);

	/** Heights by block. A block without weight wants nothing. */
	TArray<double> Settle(const TArray<double>& Wanted, const TArray<double>& Weights);

private:
	/** Blocks that move together. */
	struct FGroup
	{
		TArray<int32> Members;
		/** Members that had something outside the group above them when it was looked at last. */
		TArray<int32> Border;
		double Weight = 0;
		/** Of what the members want, less their offsets. */
		double WeightedSum = 0;

		double GetHeight() const { return WeightedSum / Weight; }
	};
	/** Something above that a group comes too near to. */
	struct FTouch
	{
		int32 Above = INDEX_NONE;
		int32 Below = INDEX_NONE;
		/** Of the lower block below the upper one. */
		double Distance = 0;
		double Excess = 0;
	};

	FTouch FindTouch(int32 Group);
	/** Puts the upper and the lower block's groups together; answers which group it is then. */
	int32 Join(const FTouch& Touch);
	double GetHeight(int32 Block) const { return Groups[GroupOf[Block]].GetHeight() + Offsets[Block]; }

	const TArray<FLaneBlock>& Blocks;
	const TArray<int32>& Order;
	const TArray<FLaneNeighbours>& Neighbours;
	TArray<FGroup> Groups;
	/** By block; INDEX_NONE while it has not been looked at. */
	TArray<int32> GroupOf;
	/** By block, below its group's height. */
	TArray<double> Offsets;
};

#pragma once

#include "CoreMinimal.h"

struct FLaneBlock;

/** What stands next above and below a block, by cell; INDEX_NONE for nothing. */
struct FLaneNeighbours
{
	TArray<int32> Above;
	TArray<int32> Below;
};

/** How high blocks stand that keep an order: near what they are linked to, and nothing on anything else. */
class FLaneHeights
{
public:
	/** The blocks outlive this. */
	explicit FLaneHeights(const TArray<FLaneBlock>& Blocks);

	/** Places the blocks in the order, from top to bottom. */
	void Place(const TArray<int32>& Order);

	/** The same from where the blocks stand; those that come too near to others in the new order move down. */
	void Settle(const TArray<int32>& Order);
	/**
	 * Lets blocks pass others, to free room nearer to where their wires ask them to be. Their order is then that of their heights. False
	 * where none is better off elsewhere.
	 */
	bool FillGaps();

	/** The blocks' origins. */
	const TArray<double>& Get() const { return Heights; }
	/** The heights that the blocks come to in some rounds in which nothing keeps them from passing each other. */
	TArray<double> GetUnordered(int32 NumRounds) const;
	/** How far the wires go up and down, all together. */
	double GetLength() const;

private:
	void FindNeighbours();
	/** Everything as high as the order allows, but not above the heights given. */
	TArray<double> PushDown(const TArray<double>& Wanted) const;
	/** Where the block's wires ask it to be on the mean, and how many ask. */
	double GetMean(int32 Block, double& OutNumAsked) const;
	/** Where the block's wires would be level on the whole; where it stands when it has none. */
	double GetWanted(int32 Block) const;
	double GetLeast(int32 Block) const;
	double GetMost(int32 Block) const;
	/** The height nearest to the one wanted at which the block covers none; farther away than the distance, others may be covered. */
	double FindFreeHeight(int32 Block, double Wanted, double Distance, const TArray<TArray<int32>>& BlocksOfColumns) const;
	void Tighten(bool bValuesAlone);
	void SnapLanes();

	const TArray<FLaneBlock>& Blocks;
	TArray<int32> Order;
	TArray<double> Heights;
	TArray<FLaneNeighbours> Neighbours;
	int32 FirstColumn = 0;
	int32 NumColumns = 0;
};

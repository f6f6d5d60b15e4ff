#pragma once

#include "CoreMinimal.h"
#include "GraphFormatter/LaneLayout.h"
#include "GraphFormatter/Obstacles.h"

class FFormatterGraph;
class UEdGraph;
class UEdGraphNode;

/** A component that has been laid out by itself: its nodes stand right to each other. */
struct FLayoutBlock
{
	TArray<int32> Component;
	/** Where the node that it is laid out around came in, and is. */
	FVector2D Place;
	/** It has no place yet that anybody chose. */
	bool bNew = false;
};

/**
 * Puts components into their graph, where they cover nothing. One that somebody placed moves down as far as it must. A new one goes
 * above or below the node that is handed its event, or else into the first free room between what stands in the graph, or below all of it.
 */
class FBlockPlacement
{
public:
	/** All outlive this. Nothing of the layout's graph is in the way but nodes that keep their places. */
	FBlockPlacement(const UEdGraph& Graph, FFormatterGraph& Layout, const FLayoutGaps& Gaps);

	void Place(TArray<FLayoutBlock>& Blocks);

private:
	/** An event of the block, and where the other end of its tie stands. */
	struct FCaller
	{
		const struct FFormatterTie* Tie;
		FBox2D Bounds;
	};

	/** The room that is taken by what wires hold together: nothing new goes in between. */
	void AddChains(const TMap<const UEdGraphNode*, FBox2D>& Kept);
	void MoveDown(const FLayoutBlock& Block);
	void PutIntoGap(const FLayoutBlock& Block);
	/** False where no event of the block is handed to anything that has a place. */
	bool PutNearCaller(const FLayoutBlock& Block);
	TOptional<FCaller> FindCaller(const FLayoutBlock& Block) const;
	/** Whether somebody has put it into a comment. */
	bool LiesOnComment(const FLayoutBlock& Block) const;
	void Keep(const FLayoutBlock& Block);
	void Move(const FLayoutBlock& Block, const FVector2D& Way);
	FBox2D GetBounds(const FLayoutBlock& Block) const;
	FBox2D GetBounds(int32 Node) const;
	bool IsCrossedByWires(const FBox2D& Bounds) const;

	FFormatterGraph& Layout;
	FLayoutGaps Gaps;
	FObstacles Obstacles;
	FObstacles Chains;
	TArray<FBox2D> Comments;
	/** Between nodes that keep their places. */
	TArray<FSegment2D> Wires;
	/** By node of the layout; true for one that has been placed. */
	TArray<bool> IsPlaced;
};

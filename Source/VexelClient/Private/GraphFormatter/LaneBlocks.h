#pragma once

#include "CoreMinimal.h"

class FColumnAssignment;
class FFormatterGraph;

/** One end of a wire between neighbouring columns. */
struct FLaneLink
{
	/** At the other end; the block itself where it goes on in the next column. */
	int32 Block;
	/** Of the wire's ends below the origins of this block and of the other one. */
	double OwnY;
	double OtherY;
	bool bExec = false;
};

/** What a block has in one column. */
struct FLaneCell
{
	/** Below the block's origin, with the room that is kept free around. */
	double Top;
	double Bottom;
	/** Wires to the column before and behind. */
	TArray<FLaneLink> Left;
	TArray<FLaneLink> Right;
};

/** What moves up and down as one: a lane of execution, a node of values, or a wire that passes columns. */
struct FLaneBlock
{
	struct FNode
	{
		int32 Node;
		/** Its top below the block's origin. */
		double Y;
	};

	int32 FirstColumn = 0;
	/** By column from the first. */
	TArray<FLaneCell> Cells;
	TArray<FNode> Nodes;
	bool bExec = false;
};

/**
 * A component's nodes and wires as blocks. Execution runs along lanes: a node's first output goes straight on, so that the wires of a lane
 * are level; each other one begins a lane of its own. The blocks come in the order of a walk: a lane, the values that its nodes read, and
 * the lanes that branch off, those further right first.
 */
class FLaneBlocks
{
public:
	/** Gap is the least room between two nodes. Starts are nodes of the component; execution from the first ones on comes first. */
	FLaneBlocks(const FFormatterGraph& Graph, const FColumnAssignment& Columns, const TArray<int32>& Starts, double Gap);

	TArray<FLaneBlock> Blocks;

private:
	/** A node of a lane, and the wire that leads there; INDEX_NONE where execution begins. */
	struct FStep
	{
		int32 Node;
		int32 Wire;
	};
	/** A node's block, and where the node stands in it. */
	struct FPlace
	{
		int32 Block = INDEX_NONE;
		double Y = 0;
	};

	void AddLanesFrom(int32 Start);
	/** Puts the ways of wires behind what they begin at. */
	void PutInWalkOrder();
	TArray<FStep> FollowLane(const FStep& First);
	/** The wire along which a lane goes on behind the node; INDEX_NONE at its end. */
	int32 FindNextWire(int32 Node) const;
	void AddLane(const TArray<FStep>& Lane);
	void AddValuesOf(int32 Reader);
	void AddNode(FLaneBlock& Block, int32 Node, double Y);
	void AddWires(const TArray<int32>& Starts);
	/** The wires of one pin: those to the next column, and one way for all that go further. */
	void AddWiresOfPin(TArrayView<const int32> PinWires);
	void Link(int32 From, int32 Column, double FromY, int32 To, double ToY, bool bExec);

	const FFormatterGraph& Graph;
	const FColumnAssignment& Columns;
	double Gap;
	/** By node. */
	TMap<int32, FPlace> Places;
	/** The wires along which lanes go on. */
	TSet<int32> LaneWires;
	/** By block, its place in the walk; the way of a wire comes behind the block that it begins at. */
	TArray<double> WalkOrder;
};

#pragma once

#include "CoreMinimal.h"

class FColumnAssignment;
class FFormatterGraph;

/** The room between nodes, in units of the graph. */
struct FLayoutGaps
{
	double BetweenColumns;
	double BetweenNodes;
};

/**
 * Where the nodes of one component stand. Execution runs along lanes: a node's first output goes straight on, each other one begins a
 * lane below. A lane that leaves further right lies nearer, so that the wires down to it cross no other lane. Values stand below the
 * lane whose node reads them. Every lane is moved up as far as what is above it allows.
 */
class FLaneLayout
{
public:
	/** Both outlive this. */
	FLaneLayout(FFormatterGraph& Graph, const FColumnAssignment& Columns, const FLayoutGaps& Gaps);

	/** Gives the nodes of the component positions that are right to each other. Answers where its execution begins. */
	int32 Place(const TArray<int32>& Component);

private:
	/** A node of a lane. */
	struct FLaneStep
	{
		int32 Node;
		/** The wire that leads there; INDEX_NONE where execution begins. */
		int32 Wire;
	};
	using FLane = TArray<FLaneStep>;

	void FindColumns(const TArray<int32>& Component);
	void PlaceLanesFrom(int32 Start);
	FLane FollowLane(const FLaneStep& First);
	/** The wire along which a lane goes on behind the node. */
	int32 FindNextWire(int32 Node) const;
	void PlaceLane(const FLane& Lane);
	/** Where the first node of the lane can stand; the others follow it by their offsets. */
	double FindLaneY(const FLane& Lane, const TArray<double>& Offsets) const;
	void PlaceValuesOf(int32 Reader);
	/** Puts the node at LeastY, or below that where its column is free. */
	void PlaceNode(int32 Node, double LeastY);
	void AlignColumns(const TArray<int32>& Component);
	int32 ColumnOf(int32 Node) const;
	/** The least y at which something may stand in a column. */
	double GetFreeY(int32 Column) const;

	FFormatterGraph& Graph;
	const FColumnAssignment& Columns;
	FLayoutGaps Gaps;
	TArray<bool> Placed;
	TArray<bool> IsRoot;

	int32 FirstColumn = 0;
	/** By column from the first of the component: the lower edge of what stands there; far above while nothing does. */
	TArray<double> Edges;
};

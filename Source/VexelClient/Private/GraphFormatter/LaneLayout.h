#pragma once

#include "CoreMinimal.h"

class FColumnAssignment;
class FFormatterGraph;

/** The room between nodes, in units of the graph. */
struct FLayoutGaps
{
	double BetweenColumns;
	double BetweenNodes;
	/** Above and below components. */
	double BetweenBlocks = 0;
};

/** Where the nodes of one component stand: its lanes, values and long wires as blocks, in the order in which the fewest wires cross. */
class FLaneLayout
{
public:
	/** Both outlive this. */
	FLaneLayout(FFormatterGraph& Graph, const FColumnAssignment& Columns, const FLayoutGaps& Gaps);

	/** Gives the nodes of the component positions that are right to each other. Answers where its execution begins. */
	int32 Place(const TArray<int32>& Component);

private:
	/** The component's nodes: first where execution begins, from top to bottom, then values that nothing reads, then the rest. */
	TArray<int32> OrderStarts(const TArray<int32>& Component) const;
	void AlignColumns(const TArray<int32>& Component);

	FFormatterGraph& Graph;
	const FColumnAssignment& Columns;
	FLayoutGaps Gaps;
	TArray<bool> IsRoot;
};

#pragma once

#include "Containers/Array.h"
#include "CoreMinimal.h"

class FFormatterGraph;

/**
 * Which column each node stands in. Execution goes to the right, but for the wires that close a loop; a value stands between
 * what it reads and what reads it.
 */
class FColumnAssignment
{
public:
	explicit FColumnAssignment(const FFormatterGraph& Graph);

	/** By node. Columns left of where execution begins are negative. */
	TArray<int32> Columns;
	/** Nodes of execution that none leads to, and one of each loop that none leads into, from top to bottom. */
	TArray<int32> Roots;

private:
	void OrderExecution();
	void VisitFrom(int32 Root);
	void AssignExecution();
	/** The first column that has everything to the left that the value node reads. */
	int32 GetEarliestColumn(int32 Node);
	void AssignValues();
	void AssignValue(int32 Node);
	void MoveRootsNear();
	/** Moves all nodes to where their wires are shortest together, each to the right of what leads to it. */
	void Balance();
	/** The column before the first that the node leads to; the greatest number where it leads nowhere. */
	int32 GetLastColumn(int32 Node) const;

	const FFormatterGraph& Graph;
	/** Nodes of execution, each before those that it leads to. */
	TArray<int32> Order;
	/** By node, its place in Order; INDEX_NONE for value nodes. */
	TArray<int32> OrderOf;
	/** By node, of value nodes; INDEX_NONE until it is asked for. */
	TArray<int32> EarliestColumns;
};

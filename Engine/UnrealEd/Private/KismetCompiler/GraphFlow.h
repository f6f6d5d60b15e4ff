#pragma once

#include "CoreMinimal.h"

class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;
class UK2Node;

/**
 * How execution and values flow through one graph and the graphs collapsed in it: which nodes are executed, and which pure nodes give them
 * values. Cost grows with nodes and links.
 */
class FGraphFlow
{
public:
	/** Follows the graph from its events, entries and other nodes where execution starts. */
	explicit FGraphFlow(const UEdGraph& Graph);

	/** Every node of the graph and of the graphs collapsed in it, disabled ones and comments left out. */
	const TArray<const UK2Node*>& GetNodes() const { return Nodes; }
	/** The node is executed, or gives a value to a node that is. */
	bool IsReached(const UK2Node& Node) const { return Reached.Contains(&Node); }
	/**
	 * Nodes of which each needs a value of the next, and the last one of the first. Each such ring is reported once, by one of its nodes.
	 */
	TArray<const UK2Node*> FindCyclesOfPureNodes() const;

	/** Where the link leads at last: past disabled nodes and the ends of collapsed graphs. Empty where it leads nowhere. */
	static void FollowExecution(const UEdGraphPin& Output, TArray<const UEdGraphPin*>& OutInputs);

private:
	void CollectNodes(const UEdGraph& Graph);
	void ReachExecuted();
	void ReachGivers();

	TArray<const UK2Node*> Nodes;
	TSet<const UK2Node*> Reached;
};

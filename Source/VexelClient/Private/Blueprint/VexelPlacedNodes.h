#pragma once

#include "CoreMinimal.h"

class UEdGraphNode;

/**
 * The nodes that a conversation has placed, and where it left them. As long as nobody moves one, its place is the conversation's to
 * choose. A plain value. Game thread.
 */
class FVexelPlacedNodes
{
public:
	/** The node is the conversation's, and stands where it is to. */
	void Remember(const UEdGraphNode& Node);
	/** False for a node of somebody else's, and for one that was moved since. */
	bool Contains(const UEdGraphNode& Node) const;
	/** The nodes and, behind them, the placed ones that links lead to from there by way of placed ones alone. */
	TArray<UEdGraphNode*> WithLinked(const TArray<UEdGraphNode*>& Nodes) const;

private:
	/** By the nodes' GUIDs. */
	TMap<FGuid, FIntPoint> Places;
};

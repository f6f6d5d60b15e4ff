#pragma once

#include "CoreMinimal.h"

class UEdGraph;
class UEdGraphNode;

/** A link between two nodes that are laid out. */
struct FFormatterWire
{
	int32 From;
	int32 To;
	/** Of the pins below their nodes' top edges. */
	double FromY;
	double ToY;
	/** Of execution; the others carry values. */
	bool bExec;
};

struct FFormatterNode
{
	UEdGraphNode* Node;
	FVector2D Size;
	/** Where it came in, and, once it is laid out, where it goes. The left top corner. */
	FVector2D Position;
	/** Has pins of execution; other nodes are worked out when what they make is read. */
	bool bExec = false;
	/** Linked to a node that is not laid out, so it keeps its place. */
	bool bFixed = false;
	/** Wires by index, in the order of the node's pins. */
	TArray<int32> Outputs;
	TArray<int32> Inputs;
};

/** The nodes that are laid out and the wires between them, apart from the editor's objects. Comments are none of them. */
class FFormatterGraph
{
public:
	explicit FFormatterGraph(const TArray<UEdGraphNode*>& Selection);

	TArray<FFormatterNode> Nodes;
	TArray<FFormatterWire> Wires;

	/** The nodes by index, parted into what wires hold together; each part in the order of the nodes. */
	TArray<TArray<int32>> FindComponents() const;
};

#pragma once

#include "CoreMinimal.h"

class FNodeMeasure;
class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;

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

/** An event that is handed to a node as what to call: it stands near that node, but has a lane of its own. */
struct FFormatterTie
{
	/** The one of the two that is laid out; where both are, the tie is there twice. */
	int32 Node;
	/** The other end, which may not be laid out. */
	UEdGraphNode* OtherNode;
	/** Whether Node is the event. */
	bool bIsEvent;
	/** Of the pins below their nodes' top edges. */
	double EventY;
	double CallerY;
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
	TArray<FFormatterTie> Ties;

	/** The node's index; INDEX_NONE for one that is not laid out. */
	int32 FindIndex(const UEdGraphNode& Node) const;
	/** The nodes by index, parted into what wires hold together; each part in the order of the nodes. */
	TArray<TArray<int32>> FindComponents() const;

private:
	void AddTie(int32 Node, const FNodeMeasure& Measure, const UEdGraphPin& Pin, const UEdGraphPin& Linked);

	TMap<const UEdGraphNode*, int32> Indices;
};

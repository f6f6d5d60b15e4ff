#pragma once

#include "CoreMinimal.h"
#include "Math/Box2D.h"

#include <string>
#include <vector>

class UEdGraphNode;

/** How good the places of a graph's nodes are. Wires count as straight lines between their pins. */
struct FLayoutMeasure
{
	/** Pairs of nodes that cover each other. */
	int64 NumOverlaps = 0;
	/** Pairs of wires that cross, but for those that meet at a pin. */
	int64 NumCrossings = 0;
	/** Wires that pass over a node that they do not belong to. */
	int64 NumCovered = 0;
	/** Of all wires together, in units of the graph. */
	double Length = 0.0;
	/** Wires of execution that are level, of all wires of execution. */
	int64 NumLevel = 0;
	int64 NumExec = 0;
};

/** The nodes of a graph with their sizes and wires, so that several layouts of one graph can be measured alike. */
class FLayoutSubject
{
public:
	explicit FLayoutSubject(const TArray<UEdGraphNode*>& InNodes);

	int32 NumNodes() const { return int32(Sizes.size()); }
	int32 NumWires() const { return int32(Wires.size()); }

	/** Where the nodes stand now. */
	std::vector<FVector2D> GetPlaces() const;
	FLayoutMeasure Measure(const std::vector<FVector2D>& Places) const;

	/** The graph in the language of Graphviz: nodes of these sizes, wires that end at their pins, the gaps of the formatter. */
	std::string ToDot() const;
	/** Places that "dot -Tplain" gives; empty where it is not installed or failed. Seconds is what it took. */
	std::vector<FVector2D> LayOutByDot(double& OutSeconds) const;

private:
	struct FWire
	{
		int32 From;
		int32 To;
		double FromY;
		double ToY;
		bool bExec;
	};

	TArray<UEdGraphNode*> Nodes;
	std::vector<FVector2D> Sizes;
	std::vector<FWire> Wires;
};

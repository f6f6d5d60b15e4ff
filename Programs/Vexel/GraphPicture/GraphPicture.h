#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

class UEdGraph;

/**
 * A graph as text: below each event or entry the nodes in the order in which they run, with their inputs written out as
 * expressions, and the ways out of a node indented below it. A node that several wires enter is drawn once and has a number by which
 * the other ways point to it. Every node of the graph is in the picture: what nothing runs, and values that nothing uses, stand at
 * the end.
 */
TArray<FStyledLine> DrawGraph(const UEdGraph& Graph, int32 Width);

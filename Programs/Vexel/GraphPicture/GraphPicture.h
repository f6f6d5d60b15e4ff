#pragma once

#include "CoreMinimal.h"
#include "StyledText.h"

struct FGraphSnapshot;

/**
 * A graph as text: below each event or entry the nodes in the order in which they run, with their inputs written out as
 * expressions, and the ways out of a node indented below it. A node that several wires enter is drawn once and has a number by which
 * the other ways point to it. Every node of the graph is in the picture: what nothing runs, and values that nothing uses, stand at
 * the end, and with them values that lie too deep in an expression.
 */
TArray<FStyledLine> DrawGraph(const FGraphSnapshot& Graph, int32 Width);

/** Breaks a line of a flow where it is too wide; what it goes on with is indented. */
void AddFlowText(TArray<FStyledLine>& Lines, const FStyledLine& Text, int32 Width, const FStyledLine& First, const FStyledLine& Next);

/** Nodes whose values some node with an execution wire gets, over however many pure nodes. */
TSet<int32> FindUsedValues(const FGraphSnapshot& Graph);

#pragma once

#include "Containers/Array.h"
#include "Containers/Set.h"

class UEdGraph;
class UEdGraphNode;

/** Lays Blueprint graphs out. */
namespace GraphFormatter
{
/**
 * Places the nodes as a person would: execution from left to right along straight lanes, what a node reads before it and below its
 * lane, lanes that branch off below the one that they leave. No two nodes overlap, and the same graph is always laid out in the same
 * way. Everything else stays where it is, and so does a node that is linked to something else: the rest is placed around it. Comments
 * are fitted around the nodes that they held. An event that is handed to a node, as to one that sets a timer, stands near that node, but
 * with a lane of its own.
 *
 * NewNodes stand where nobody has put them: what is made of them alone goes into the first free room of the graph.
 *
 * Half of HorizontalSpacing lies between columns of nodes and a quarter of VerticalSpacing between nodes of a column, in units of the
 * graph. Nodes that are to move are modified; the transaction is the caller's.
 */
void FormatSelectedNodes(UEdGraph& Graph, const TArray<UEdGraphNode*>& Nodes, double HorizontalSpacing, double VerticalSpacing,
	const TSet<UEdGraphNode*>& NewNodes = TSet<UEdGraphNode*>());
}

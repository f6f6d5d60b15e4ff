#pragma once

#include "Containers/Set.h"
#include "CoreMinimal.h"
#include "EdGraph/EdGraphSchema.h"
#include "UObject/WeakObjectPtr.h"

class UEdGraph;
class UEdGraphNode;

/** A graph as it was when it was looked at: what a reader writes it from. A plain value that keeps no node from collection. */
class FVexelSerializedGraph
{
public:
	explicit FVexelSerializedGraph(const UEdGraph* Graph);

	const FString& GetName() const { return Name; }
	/** In the order of the graph; those that have been collected since are left out. */
	TSet<UEdGraphNode*> GetNodes() const;
	EGraphType GetType() const { return Type; }
	/** Whether the graph lies inside another one, as a collapsed graph does. */
	bool IsSubGraph() const { return bSubGraph; }

private:
	FString Name;
	TSet<TWeakObjectPtr<UEdGraphNode>> Nodes;
	EGraphType Type = GT_MAX;
	bool bSubGraph = false;
};

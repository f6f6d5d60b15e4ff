#pragma once

#include "Containers/Map.h"
#include "CoreMinimal.h"
#include "Templates/Function.h"

class FVexelBlueprintMapping;
class UEdGraphNode;

/** Makes the node-type id of a node of one class; empty, with a log line, where the node lacks what the id names. */
using FVexelNodeTypeRule = TFunction<FString(const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping)>;

/** The table of node classes and their ids. */
class FVexelNodeTypeRules
{
public:
	/** Adds the rule of every node class that has one, by the class's name without prefix. */
	static void Collect(TMap<FName, FVexelNodeTypeRule>& OutRules);
};

#pragma once

#include "Containers/ArrayView.h"
#include "Containers/Map.h"
#include "CoreMinimal.h"
#include "Templates/Function.h"

class FVexelBlueprintMapping;
class UEdGraphNode;

/** Makes the node-type id of a node of one class; empty, with a log line, where the node lacks what the id names. */
using FVexelNodeTypeRule = TFunction<FString(const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping)>;

/** A kind of node that is about an object if one of its pins or members names one: "call.spawn_actor", "call.spawn_actor.BP_Enemy_C". */
struct FVexelOptionalObjectRule
{
	const TCHAR* NodeClass;
	const TCHAR* Id;
	/** Pins whose default object is asked for, then the member; the first that holds an object names it. */
	TArray<const TCHAR*> Pins;
	const TCHAR* Property = nullptr;
};

/** The table of node classes and their ids. */
class FVexelNodeTypeRules
{
public:
	/** The rules of nodes that may be about an object. */
	static TArrayView<const FVexelOptionalObjectRule> GetOptionalObjectRules();

	/** Adds the rule of every node class that has one, by the class's name without prefix. */
	static void Collect(TMap<FName, FVexelNodeTypeRule>& OutRules);
};

#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

class UBlueprint;
class UBlueprintNodeSpawner;
class UEdGraph;

/** Node types that read or write a variable. What variables there are depends on where one stands, so no table of actions has them. */
namespace VexelVariableNodeType
{
/**
 * What makes the node of "var.get.Health", "var.set.BP_Enemy.Health" or "var.local.get.Index" in the Blueprint. Members of the Blueprint
 * come before locals and parameters of the function that the graph, which may be null, belongs to. Null where the id names none of
 * them, or writes one that may only be read.
 */
UBlueprintNodeSpawner* MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, const UEdGraph* Graph);
/** Whether the id names a variable of a function, which is nothing outside that. */
bool IsLocal(const TVexelNodeTypeId& Id);
}

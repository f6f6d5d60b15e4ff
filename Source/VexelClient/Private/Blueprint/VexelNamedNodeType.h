#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

class UBlueprint;
class UBlueprintNodeSpawner;
class UEdGraph;

/**
 * Node types that no action of the editor's database makes as they stand: a plain node and the object that one of its pins holds, and nodes
 * that the editor offers elsewhere than in the menu of its actions.
 */
namespace VexelNamedNodeType
{
/**
 * What makes the node of "call.spawn_actor.BP_Enemy", "timeline.Slide", "struct.make.Vector", "call.super". What the id names is loaded
 * where it is an asset. Where nothing but links can tell a node what the id names, the plain node is made. Null where the id names
 * nothing; Graph may be null.
 */
UBlueprintNodeSpawner* MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, const UEdGraph* Graph);
}

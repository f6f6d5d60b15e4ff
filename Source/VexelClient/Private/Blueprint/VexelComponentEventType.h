#pragma once

#include "CoreMinimal.h"
#include "VexelId.h"

class UBlueprint;
class UBlueprintNodeSpawner;

/** Node types of events that components send. Their actions are nothing without the component that a graph's menu binds them to. */
namespace VexelComponentEventType
{
/**
 * What makes the node of "event.PrimitiveComponent.OnComponentBeginOverlap.Box": the event of a dispatcher that the owner declares, sent by
 * the component of the Blueprint. Null where the id names no such event.
 */
UBlueprintNodeSpawner* MakeSpawner(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint);
}

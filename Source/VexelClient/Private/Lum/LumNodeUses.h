#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UClass;
class UEdGraphNode;
class UK2Node;

/** Which nodes of the loaded Blueprints use what a Blueprint declares. */
namespace LumNodeUses
{
/** Whether the class is the Blueprint's or derives from it. */
bool IsClassOf(const UClass* Class, const UBlueprint& Blueprint);

/** False for a node that only an undo could bring back, or that shows what a menu offers. */
bool StandsInBlueprint(const UEdGraphNode& Node);

/** The nodes that get or set the member; of a local variable, those of its function, which Scope names. */
TArray<UK2Node*> FindOfVariable(const UBlueprint& Blueprint, FName Name, const FString& Scope = FString());
}

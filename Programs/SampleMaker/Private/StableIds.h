#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UEdGraphNode;

/** Ids that depend on names alone, so that the same content is the same file whenever it is made. */
namespace StableIds
{
FGuid MakeId(const UObject& Owner, const FString& Part = FString());

/** Gives the node its id. Call it when the node has its name, before anything refers to it. */
void Fix(UEdGraphNode& Node);

/** Gives the Blueprint, its graphs, nodes and pins their ids. */
void Fix(UBlueprint& Blueprint);
}

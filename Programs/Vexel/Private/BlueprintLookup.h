#pragma once

#include "CoreMinimal.h"

class UBlueprint;
class UEdGraph;

/** Blueprints and their graphs by what a user calls them. */
namespace BlueprintLookup
{
/**
 * Loads the Blueprint of a path (/Game/Doors/BP_Door, with or without .BP_Door) or of a name alone (BP_Door, in any case). Null,
 * with the reason, where there is none, or several of that name.
 */
UBlueprint* Load(const FString& PathOrName, FString& OutReason);

/** A graph by its name, the event graph for none. Null, with the reason and the names that there are, without one. */
UEdGraph* FindGraph(UBlueprint& Blueprint, const FString& Name, FString& OutReason);

/** Folders and Blueprints that a path which is being typed may go on with, or Blueprint names that begin so. */
TArray<FString> Complete(const FString& Beginning);

/** The names of a Blueprint's graphs. */
TArray<FString> GetGraphNames(const UBlueprint& Blueprint);
}

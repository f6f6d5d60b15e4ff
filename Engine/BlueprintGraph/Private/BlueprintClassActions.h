#pragma once

#include "BlueprintActionDatabase.h"

class UBlueprint;
class UClass;

/** Makes the actions that a class or a Blueprint gives to graphs: calls, events, variables, dispatchers, casts, components, macros. */
namespace BlueprintClassActions
{
/** Whether graphs can have anything to do with the class. */
bool IsUsable(const UClass& Class);
/** Of the class's own members, and of the class itself. */
void Add(UClass& Class, FBlueprintActionDatabase::FActionList& OutActions);
/** Of the Blueprint's class as it now stands, and of the Blueprint's macros. */
void AddOfBlueprint(UBlueprint& Blueprint, FBlueprintActionDatabase::FActionList& OutActions);
}

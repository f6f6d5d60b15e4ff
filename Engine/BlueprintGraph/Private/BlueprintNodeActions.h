#pragma once

class FBlueprintActionDatabaseRegistrar;
class UClass;

/** The actions that node classes offer themselves: one, or one of each enumeration, structure, key, subsystem and the like. */
namespace BlueprintNodeActions
{
/** Of one node class. A class of another module that says nothing else offers a node as the class makes it. */
void Add(UClass& NodeClass, FBlueprintActionDatabaseRegistrar& Registrar);
}

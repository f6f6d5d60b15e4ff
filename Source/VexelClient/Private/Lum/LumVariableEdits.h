#pragma once

#include "CoreMinimal.h"
#include "VexelExpected.h"

class FProperty;
class UBlueprint;
class UEdGraph;
class UFunction;
struct FBPVariableDescription;
struct FLumVarDesc;

/**
 * Edits of the variables that a Blueprint or one of its functions declares. Each that succeeds is one entry of undo; one that is refused
 * changes nothing. Descriptors of new variables are complete; in those of changes, what is empty stays as it is.
 */
namespace LumVariableEdits
{
/** Of the type "mcdelegate" it becomes an event dispatcher, whose signature is a graph of the variable's name. */
TVexelExpected<void> AddMember(UBlueprint& Blueprint, const FLumVarDesc& Desc);
/** The nodes of the Blueprint that use the variable go with it. */
TVexelExpected<void> RemoveMember(UBlueprint& Blueprint, FName Name);
/** Nodes of all loaded Blueprints follow. */
TVexelExpected<void> ChangeMember(UBlueprint& Blueprint, FName Name, const FLumVarDesc& Desc);

TVexelExpected<void> AddLocal(UEdGraph& Graph, const FLumVarDesc& Desc);
TVexelExpected<void> RemoveLocal(UEdGraph& Graph, FName Name);
TVexelExpected<void> ChangeLocal(UEdGraph& Graph, FName Name, const FLumVarDesc& Desc);

/** The member of the compiled class whose default object has the variable's default value; null while it has none of the type. */
const FProperty* FindCompiled(const UBlueprint& Blueprint, const FBPVariableDescription& Variable);
/** The text of a member's default value, as the class has it, or as it is declared until there is one. */
FString GetDefaultText(const UBlueprint& Blueprint, const FBPVariableDescription& Variable);

/** The function that the Blueprint's newest class has of the graph; null where it has none. */
UFunction* FindFunction(const UEdGraph& Graph);
}

#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "VexelExpected.h"
#include "VexelId.h"

class UBlueprint;
class UK2Node_FunctionEntry;
class UStruct;
struct FLumVarDesc;

/** What may be declared in a Blueprint. An error of these is the reason that stands behind an edit's own text. */
namespace LumVariableRules
{
/** Fails where the descriptor of a new variable has no name or no type. */
TVexelExpected<void> CheckComplete(const FLumVarDesc& Desc);

/** The engine's name of the id; fails where no name is such a text. */
TVexelExpected<FName> MakeName(const TVexelPropId& PropId);

/** What a type is wanted for. */
enum class EUse : uint8
{
	Member,
	Local,
	Pin
};

/**
 * The pin type of a type id as exports write it, "ref|" in front included. Fails where there is no such type, with those that are most like
 * it, or where nothing of that kind can have it.
 */
TVexelExpected<FEdGraphPinType> ParseType(const TVexelPropTypeId& TypeId, EUse Use);

/** Fails with the editor's reason where a member, a graph or an event of the Blueprint cannot have the name. */
TVexelExpected<void> CheckMemberName(UBlueprint& Blueprint, const FString& Name, FName ExistingName);

/** The same for a local variable of the function. */
TVexelExpected<void> CheckLocalName(
	UBlueprint& Blueprint, const UK2Node_FunctionEntry& Entry, UStruct* Function, const FString& Name, FName ExistingName);

/** The same for a pin, which shares its names with no member of the Blueprint, but with what else stands on its node and in its function. */
TVexelExpected<void> CheckPinName(const UBlueprint& Blueprint, const FString& Name);
}

#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"

/** What nodes say of an input action, which is an asset of a class that may not be known. */
struct INPUTBLUEPRINTNODES_API FInputActionValuePin
{
	/** The type that the action's values have: a boolean while the action's own is not known. */
	static FEdGraphPinType GetType(const UObject* InputAction);
	static FText GetActionName(const UObject* InputAction);
	static UClass* GetActionClass();
};

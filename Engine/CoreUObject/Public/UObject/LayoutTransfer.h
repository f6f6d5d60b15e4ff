#pragma once

#include "CoreMinimal.h"
#include "Templates/Function.h"

class FProperty;
class UObject;

/** What a class that was laid out anew needs of the object system. The engine does it by serializing; nothing of it is visible. */
namespace UE::CoreUObject
{
/**
 * Gives an object of the new layout the values of one of the old. A value is taken when it differs from that of From's archetype,
 * or when the archetype has no such member; otherwise To keeps what its own archetype gave it. A number becomes a number or
 * a Boolean as the engine converts them; any other value whose type has changed goes through its text, and is left out when the new type
 * cannot read that. Parts of the same name and class are treated likewise.
 * @param FindOldProperty  Answers the property that a property of To continues; null for a new one.
 * @param OutParts         Gets each old part with the new one that took its values.
 */
COREUOBJECT_API void TransferValues(UObject& From, UObject& To,
	TFunctionRef<const FProperty*(const FProperty& NewProperty)> FindOldProperty, TMap<UObject*, UObject*>& OutParts);
}

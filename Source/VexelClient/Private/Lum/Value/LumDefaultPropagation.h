#pragma once

#include "CoreMinimal.h"
#include "Lum/Value/LumValuePlace.h"
#include "UObject/ObjectMacros.h"

class UObject;

namespace LumDefaultPropagation
{
/**
 * Hands a change of a default on: every object made from the archetype takes the new value wherever it still has the old one, member by
 * member and element by element. Each is saved for undo and told as if it had been edited itself.
 */
void Propagate(UObject& Archetype, const FLumValuePlace& Place, const void* OldValue, EPropertyChangeType::Type Type);
}

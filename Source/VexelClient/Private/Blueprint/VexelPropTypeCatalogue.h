#pragma once

#include "CoreMinimal.h"
#include "Templates/SharedPointer.h"

class FVexelBlueprintPropType;

/** The types that a variable can have, without containers. Game thread. */
namespace VexelPropTypeCatalogue
{
/**
 * The words, and every class, structure and enumeration that the editor allows, those of assets that are not loaded too: nothing is
 * loaded for it. Sorted by id, each id once.
 */
TArray<TSharedRef<FVexelBlueprintPropType>> List();
}

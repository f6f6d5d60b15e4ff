#pragma once

#include "CoreMinimal.h"

class UBlueprint;

namespace VexelBlueprintUsers
{
/**
 * Loads the Blueprints whose files refer to the Blueprint or to one that derives from it, so that they follow an edit of what it declares.
 * The asset registry knows them. Many take long to load: beyond some number they are left alone, as are those that cannot be loaded.
 * @return a sentence for the user about those that were left; empty when there are none.
 */
TArray<FString> Load(const UBlueprint& Blueprint);
}

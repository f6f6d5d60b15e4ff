#pragma once

#include "Editor.h"
#include "Engine/Blueprint.h"
#include "UObject/GarbageCollection.h"
#include "UObject/Package.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

/**
 * Gives saved Blueprints up, so that they are only on disk as in a fresh editor. Nothing else may hold them; what could be undone is
 * forgotten.
 */
inline void UnloadBlueprints(std::initializer_list<UBlueprint*> Blueprints)
{
	GEditor->ResetTransaction(INVTEXT("Unload"));
	for (UBlueprint* const Blueprint : Blueprints)
	{
		UPackage* const Package = Blueprint->GetPackage();
		TArray<UObject*> Objects;
		GetObjectsWithOuter(Package, Objects, true);
		for (UObject* const Object : Objects)
		{
			Object->ClearFlags(RF_Standalone | RF_Public);
		}
		Package->ClearFlags(RF_Standalone | RF_Public);
	}
	CollectGarbage(RF_Standalone);
}

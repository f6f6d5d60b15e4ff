#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

/** Types and assets by their bare names, as ids have them. Game thread, because to find one may load it. */
namespace VexelNamedObjects
{
/** Whether objects of the class are types that assets make: UClass of Blueprints, UScriptStruct and UEnum of what a user defined. */
bool IsKindOfType(const UClass& Class);
/** The assets that make types of the kind, loaded or not. */
TArray<FAssetData> ListTypeAssets(const UClass& KindOfType);

/**
 * The object of the name, in any letter case: of a kind of type the one in memory, native ones first, or what an asset of the name makes;
 * of every other class the asset. "BP_Door" and "BP_Door_C" both name the class of a Blueprint. Null for none.
 */
UObject* Find(const UClass& Class, const FString& Name);
/** Loads the assets of the name that make types. */
void LoadTypes(const FString& Name);
}

#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"

/** Gives out the registry as modules do it: LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get(). */
class FAssetRegistryModule : public IModuleInterface
{
public:
	IAssetRegistry& Get() const { return IAssetRegistry::GetChecked(); }
	static IAssetRegistry& GetRegistry() { return IAssetRegistry::GetChecked(); }
	static void AssetCreated(UObject* NewAsset) { GetRegistry().AssetCreated(NewAsset); }
	static void AssetDeleted(UObject* DeletedAsset) { GetRegistry().AssetDeleted(DeletedAsset); }
};

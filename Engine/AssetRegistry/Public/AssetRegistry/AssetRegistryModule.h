#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "Modules/ModuleInterface.h"

namespace AssetRegistryConstants
{
inline const FName ModuleName("AssetRegistry");
}

/** Gives out the registry as modules do it: LoadModuleChecked<FAssetRegistryModule>("AssetRegistry").Get(). */
class FAssetRegistryModule : public IModuleInterface
{
public:
	IAssetRegistry& Get() const { return IAssetRegistry::GetChecked(); }
	static IAssetRegistry& GetRegistry() { return IAssetRegistry::GetChecked(); }
	static void AssetCreated(UObject* NewAsset) { GetRegistry().AssetCreated(NewAsset); }
	static void AssetDeleted(UObject* DeletedAsset) { GetRegistry().AssetDeleted(DeletedAsset); }
	static void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
	{
		GetRegistry().AssetRenamed(RenamedAsset, OldObjectPath);
	}
	static void PackageDeleted(UPackage* DeletedPackage) { GetRegistry().PackageDeleted(DeletedPackage); }
};

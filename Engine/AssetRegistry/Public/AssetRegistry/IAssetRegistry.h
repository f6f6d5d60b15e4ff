#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"

class UClass;

/** Which assets there are below the mounted content folders. Game thread. */
class ASSETREGISTRY_API IAssetRegistry
{
public:
	virtual ~IAssetRegistry() = default;

	/** The one registry. It reads the headers of the packages when it is first asked. */
	static IAssetRegistry* Get();
	static IAssetRegistry& GetChecked() { return *Get(); }

	/** An invalid datum when there is no such asset. */
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Each appends to the array in the order of the paths. Assets in memory stand with what they are now. False when there is none. */
	virtual bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses = false) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;

	/** Reads every mounted folder again. */
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;
	/** Reads these files or folders again; paths are package paths: "/Game/Dir". */
	virtual void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan = false) = 0;
	virtual bool IsLoadingAssets() const { return false; }

	/** Tells the registry of an asset that was just made, or that goes away. */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;

	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetAddedEvent, const FAssetData&);
	FAssetAddedEvent& OnAssetAdded() { return AssetAddedEvent; }
	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetRemovedEvent, const FAssetData&);
	FAssetRemovedEvent& OnAssetRemoved() { return AssetRemovedEvent; }

protected:
	FAssetAddedEvent AssetAddedEvent;
	FAssetRemovedEvent AssetRemovedEvent;
};

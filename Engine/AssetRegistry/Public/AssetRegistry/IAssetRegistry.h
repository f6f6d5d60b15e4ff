#pragma once

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Misc/AssetRegistryInterface.h"

class UClass;

/**
 * Which assets there are below the mounted content folders, from the headers of their packages: nothing is loaded. Assets in memory
 * stand with what they are now, saved or not, unless only those on disk are asked for. Arrays are appended to, in the order of the
 * paths. Game thread; the files themselves are read on the pool.
 */
class ASSETREGISTRY_API IAssetRegistry
{
public:
	virtual ~IAssetRegistry() = default;

	/** The one registry. It reads the headers of the packages when it is first asked. */
	static IAssetRegistry* Get();
	static IAssetRegistry& GetChecked() { return *Get(); }

	/** An invalid datum when there is no such asset. */
	virtual FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Each answers false when there is no such asset. */
	virtual bool HasAssets(FName PackagePath, bool bRecursive = false) const = 0;
	virtual bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData,
		bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByPath(
		FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive = false, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	virtual bool GetAssetsByPaths(TArray<FName> PackagePaths, TArray<FAssetData>& OutAssetData, bool bRecursive = false,
		bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** With the subclasses: native ones, and the ones that Blueprints make. */
	virtual bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData,
		bool bSearchSubClasses = false) const = 0;
	/** Assets that have any of the tags; of the values, any of the pairs. */
	virtual bool GetAssetsByTags(const TArray<FName>& AssetTags, TArray<FAssetData>& OutAssetData) const = 0;
	virtual bool GetAssetsByTagValues(const TMultiMap<FName, FString>& AssetTagsAndValues, TArray<FAssetData>& OutAssetData) const = 0;
	/** False, with one log line, for a filter that is empty. */
	virtual bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const = 0;
	virtual bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Calls until the callback answers false; it must not change assets. */
	virtual bool EnumerateAssets(const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback) const = 0;
	virtual bool EnumerateAllAssets(TFunctionRef<bool(const FAssetData&)> Callback, bool bIncludeOnlyOnDiskAssets = false) const = 0;
	/** Keeps those that fit the filter, or those that do not. */
	virtual void RunAssetsThroughFilter(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const = 0;
	virtual void UseFilterToExcludeAssets(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const = 0;

	/** Packages that the package's file refers to, and those whose files refer to it. False when the package is not known. */
	virtual bool GetDependencies(FName PackageName, TArray<FName>& OutDependencies,
		UE::AssetRegistry::EDependencyCategory Category = UE::AssetRegistry::EDependencyCategory::Package,
		const UE::AssetRegistry::FDependencyQuery& Flags = UE::AssetRegistry::FDependencyQuery()) const = 0;
	virtual bool GetDependencies(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutDependencies,
		UE::AssetRegistry::EDependencyCategory Category = UE::AssetRegistry::EDependencyCategory::All,
		const UE::AssetRegistry::FDependencyQuery& Flags = UE::AssetRegistry::FDependencyQuery()) const = 0;
	virtual bool GetReferencers(FName PackageName, TArray<FName>& OutReferencers,
		UE::AssetRegistry::EDependencyCategory Category = UE::AssetRegistry::EDependencyCategory::Package,
		const UE::AssetRegistry::FDependencyQuery& Flags = UE::AssetRegistry::FDependencyQuery()) const = 0;
	virtual bool GetReferencers(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutReferencers,
		UE::AssetRegistry::EDependencyCategory Category = UE::AssetRegistry::EDependencyCategory::All,
		const UE::AssetRegistry::FDependencyQuery& Flags = UE::AssetRegistry::FDependencyQuery()) const = 0;

	/** Classes above a class, nearest first; of classes that Blueprints make too, without loading them. False for an unknown one. */
	virtual bool GetAncestorClassNames(FTopLevelAssetPath ClassPathName, TArray<FTopLevelAssetPath>& OutAncestorClassNames) const = 0;
	/** The classes and those below them, without the excluded ones and those below these. */
	virtual void GetDerivedClassNames(const TArray<FTopLevelAssetPath>& ClassNames, const TSet<FTopLevelAssetPath>& ExcludedClassNames,
		TSet<FTopLevelAssetPath>& OutDerivedClassNames) const = 0;

	/** Folders that hold assets or folders with assets: "/Game/Dir". */
	virtual void GetAllCachedPaths(TArray<FString>& OutPathList) const = 0;
	virtual void GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const = 0;
	virtual bool PathExists(const FString& PathToTest) const = 0;

	/** Searches every mounted folder for what has changed. It is done, however it was asked for, when the call returns. */
	virtual void SearchAllAssets(bool bSynchronousSearch) = 0;
	/** Looks at these packages or folders again ("/Game/Dir"); with bForceRescan also at files whose size and time are as they were. */
	virtual void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan = false) = 0;
	/** The same of files by their names on disk. */
	virtual void ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan = false) = 0;
	virtual void ScanModifiedAssetFiles(const TArray<FString>& InFilePaths) = 0;
	virtual bool IsLoadingAssets() const = 0;
	virtual void WaitForCompletion() = 0;

	/** Tells the registry of an asset that was just made, that goes away, that has another path, or that was changed. */
	virtual void AssetCreated(UObject* NewAsset) = 0;
	virtual void AssetDeleted(UObject* DeletedAsset) = 0;
	virtual void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) = 0;
	virtual void AssetUpdateTags(UObject* Asset) = 0;
	virtual void PackageDeleted(UPackage* DeletedPackage) = 0;

	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetAddedEvent, const FAssetData&);
	FAssetAddedEvent& OnAssetAdded() { return AssetAddedEvent; }
	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetRemovedEvent, const FAssetData&);
	FAssetRemovedEvent& OnAssetRemoved() { return AssetRemovedEvent; }
	/** With the object path that the asset had. */
	DECLARE_MULTICAST_DELEGATE_TwoParams(FAssetRenamedEvent, const FAssetData&, const FString&);
	FAssetRenamedEvent& OnAssetRenamed() { return AssetRenamedEvent; }
	/** An asset's file was read anew. */
	DECLARE_MULTICAST_DELEGATE_OneParam(FAssetUpdatedEvent, const FAssetData&);
	FAssetUpdatedEvent& OnAssetUpdated() { return AssetUpdatedEvent; }
	/** A search of all folders is done. */
	DECLARE_MULTICAST_DELEGATE(FFilesLoadedEvent);
	FFilesLoadedEvent& OnFilesLoaded() { return FilesLoadedEvent; }

protected:
	FAssetAddedEvent AssetAddedEvent;
	FAssetRemovedEvent AssetRemovedEvent;
	FAssetRenamedEvent AssetRenamedEvent;
	FAssetUpdatedEvent AssetUpdatedEvent;
	FFilesLoadedEvent FilesLoadedEvent;
};

#pragma once

#include "AssetRegistry/IAssetRegistry.h"
#include "AssetRegistryState.h"
#include "UObject/WeakObjectPtrTemplates.h"

class FAssetFilter;
class FAssetRegistryCache;
struct FPackageFile;

/** The registry. What files say is in the state; what is in memory is asked of the objects themselves, each time. */
class FAssetRegistryImpl final : public IAssetRegistry
{
public:
	FAssetRegistryImpl();
	~FAssetRegistryImpl() override;
	FAssetRegistryImpl(const FAssetRegistryImpl&) = delete;
	FAssetRegistryImpl& operator=(const FAssetRegistryImpl&) = delete;

	FAssetData GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const override;
	bool HasAssets(FName PackagePath, bool bRecursive) const override;
	bool GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	bool GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive,
		bool bIncludeOnlyOnDiskAssets) const override;
	bool GetAssetsByPaths(
		TArray<FName> PackagePaths, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const override;
	bool GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const override;
	bool GetAssetsByTags(const TArray<FName>& AssetTags, TArray<FAssetData>& OutAssetData) const override;
	bool GetAssetsByTagValues(const TMultiMap<FName, FString>& AssetTagsAndValues, TArray<FAssetData>& OutAssetData) const override;
	bool GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const override;
	bool GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const override;
	bool EnumerateAssets(const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback) const override;
	bool EnumerateAllAssets(TFunctionRef<bool(const FAssetData&)> Callback, bool bIncludeOnlyOnDiskAssets) const override;
	void RunAssetsThroughFilter(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const override;
	void UseFilterToExcludeAssets(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const override;

	bool GetDependencies(FName PackageName, TArray<FName>& OutDependencies, UE::AssetRegistry::EDependencyCategory Category,
		const UE::AssetRegistry::FDependencyQuery& Flags) const override;
	bool GetDependencies(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutDependencies,
		UE::AssetRegistry::EDependencyCategory Category, const UE::AssetRegistry::FDependencyQuery& Flags) const override;
	bool GetReferencers(FName PackageName, TArray<FName>& OutReferencers, UE::AssetRegistry::EDependencyCategory Category,
		const UE::AssetRegistry::FDependencyQuery& Flags) const override;
	bool GetReferencers(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutReferencers,
		UE::AssetRegistry::EDependencyCategory Category, const UE::AssetRegistry::FDependencyQuery& Flags) const override;

	bool GetAncestorClassNames(FTopLevelAssetPath ClassPathName, TArray<FTopLevelAssetPath>& OutAncestorClassNames) const override;
	void GetDerivedClassNames(const TArray<FTopLevelAssetPath>& ClassNames, const TSet<FTopLevelAssetPath>& ExcludedClassNames,
		TSet<FTopLevelAssetPath>& OutDerivedClassNames) const override;

	void GetAllCachedPaths(TArray<FString>& OutPathList) const override;
	void GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const override;
	bool PathExists(const FString& PathToTest) const override;

	void SearchAllAssets(bool bSynchronousSearch) override;
	void ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan) override;
	void ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan) override;
	void ScanModifiedAssetFiles(const TArray<FString>& InFilePaths) override { ScanFilesSynchronous(InFilePaths, true); }
	bool IsLoadingAssets() const override { return bIsSearching; }
	void WaitForCompletion() override { SearchOnce(); }

	void AssetCreated(UObject* NewAsset) override;
	void AssetDeleted(UObject* DeletedAsset) override;
	void AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath) override;
	void AssetUpdateTags(UObject* Asset) override;
	void PackageDeleted(UPackage* DeletedPackage) override;

private:
	/** The first question searches. */
	void SearchOnce() const;
	/** Looks at the files; forgets those of Known that are not among them. Whether anything differs from what was known. */
	bool Scan(const TArray<FPackageFile>& Files, const TArray<FName>& Known, FAssetRegistryCache& Cache, bool bForce);
	void OnPackageSaved(const FString& Filename);
	/** Calls for assets in memory that may match; PackagesInMemory gets the packages of which the files are not to be asked. */
	void EnumerateInMemory(
		const FAssetFilter& Filter, TSet<FName>& OutPackagesInMemory, TFunctionRef<void(const UObject*)> Callback) const;
	bool EnumerateFiltered(const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback) const;
	bool IsListed(const UObject* Object) const;
	bool HasListedAsset(const UPackage* Package) const;
	FAssetFilter Compile(const FARFilter& Filter) const;
	void KeepMatching(TArray<FAssetData>& Assets, const FARFilter& Filter, bool bWanted) const;
	bool IsPackageKnown(FName PackageName) const;

	FAssetRegistryState State;
	/** Told to be deleted, though they may still be in memory. */
	TSet<TWeakObjectPtr<const UObject>> DeletedAssets;
	FDelegateHandle PackageSavedHandle;
	bool bHasSearched = false;
	bool bIsSearching = false;
};

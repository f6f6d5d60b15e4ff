#pragma once

#include "AssetRegistry/AssetData.h"
#include "Containers/SparseArray.h"
#include "Misc/DateTime.h"
#include "PackageHeaderReader.h"

/** A file as it was when its header was read. */
struct FPackageFileStamp
{
	FDateTime Time;
	int64 Size = -1;

	bool operator==(const FPackageFileStamp& Other) const = default;
};

/** What is known of one package file. */
struct FPackageRecord
{
	FPackageFileStamp Stamp;
	/** The header cannot be read. The record stands so that the file is not read again before it changes. */
	bool bBroken = false;
	TArray<FPackageDependency> Dependencies;
	/** Places among the assets. */
	TArray<int32> AssetIds;
};

/**
 * What the files of packages say, and indexes over it: no question goes through all assets. An asset has an id for as long as its
 * package's record stands.
 */
class FAssetRegistryState
{
public:
	using FIds = TArray<int32>;

	const FPackageRecord* FindPackage(FName PackageName) const { return Packages.Find(PackageName); }
	const TMap<FName, FPackageRecord>& GetPackages() const { return Packages; }
	const FAssetData& GetAsset(int32 Id) const { return Assets[Id]; }
	int32 NumAssets() const { return Assets.Num(); }

	/** The package must have no record. */
	void AddPackage(FName PackageName, FPackageRecord&& Record, TArray<FAssetData>&& InAssets);
	/** Those that have no record are passed over. */
	void RemovePackages(const TArray<FName>& PackageNames);
	void Empty();

	/** Null where there is none. */
	const FIds* FindAssetsOfClass(const FTopLevelAssetPath& ClassPath) const { return ByClass.Find(ClassPath); }
	const FIds* FindAssetsWithTag(FName Tag) const { return ByTag.Find(Tag); }
	const FIds* FindAssetsWithTagValue(FName Tag, const FString& Value) const;
	/** INDEX_NONE when there is no such asset. */
	int32 FindAsset(const FTopLevelAssetPath& Path) const;
	FIds GetAllAssetIds() const;
	/** Puts ids into the order of the paths that the assets have. */
	void SortByPath(FIds& Ids) const;
	static bool IsPathLess(const FAssetData& A, const FAssetData& B);

	const TMap<FName, TSet<FName>>& GetFolders() const { return SubFolders; }
	bool HasFolder(FName Folder) const { return SubFolders.Contains(Folder); }
	/** The folders below one, without itself. */
	void GetSubFolders(FName Folder, bool bRecursive, TArray<FName>& OutFolders) const;
	const TSet<FName>* FindPackagesInFolder(FName Folder) const { return PackagesByFolder.Find(Folder); }

	/** Packages whose files refer to the package. */
	const TArray<FName>* FindReferencers(FName PackageName) const;

	/** Classes of Blueprints, as their assets' tags tell them. */
	const TArray<FTopLevelAssetPath>* FindChildClasses(const FTopLevelAssetPath& ClassPath) const { return ChildClasses.Find(ClassPath); }
	const FTopLevelAssetPath* FindParentClass(const FTopLevelAssetPath& ClassPath) const { return ParentClasses.Find(ClassPath); }

private:
	struct FDirtyIndexes;

	void AddAsset(int32 Id);
	void AddFolder(FName Folder);
	void RemoveFromFolder(FName Folder, FName PackageName);
	void CollectIndexes(int32 Id, FDirtyIndexes& OutDirty) const;
	void RemoveClassOf(const FAssetData& Asset);
	void MakeValueIndex(FName Tag) const;
	void AddReferencer(FName Referred, FName PackageName) const;

	TMap<FName, FPackageRecord> Packages;
	TSparseArray<FAssetData> Assets;
	TMap<FTopLevelAssetPath, FIds> ByClass;
	TMap<FName, FIds> ByTag;
	/** Of the tags whose values were asked for: few tags are. */
	mutable TMap<FName, TMap<FString, FIds>> ByTagValue;
	TMap<FName, TSet<FName>> PackagesByFolder;
	/** Every folder with packages at any depth below it, and its direct subfolders. */
	TMap<FName, TSet<FName>> SubFolders;
	TMap<FTopLevelAssetPath, TArray<FTopLevelAssetPath>> ChildClasses;
	TMap<FTopLevelAssetPath, FTopLevelAssetPath> ParentClasses;
	/** Made when first asked for, then kept right. */
	mutable TMap<FName, TArray<FName>> Referencers;
	mutable bool bHasReferencers = false;
	/** Place of each asset id in the order of paths; empty when that has changed since. */
	mutable TArray<int32> PathRanks;
	/** Ids put in order since the ranks were last made or lost. */
	mutable int64 NumSortedByText = 0;
};

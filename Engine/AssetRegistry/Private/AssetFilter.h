#pragma once

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistryState.h"

class UObject;
class UPackage;

/** A filter made ready: folders and classes are sets, classes with those below them. */
class FAssetFilter
{
public:
	/** DerivedClasses are the filter's classes with those below them, if it asks for these. */
	FAssetFilter(const FARFilter& InFilter, TSet<FTopLevelAssetPath>&& DerivedClasses);

	bool Matches(const FAssetData& Asset) const;
	/** Whether an asset of the package may match at all; spares making the asset's data. */
	bool MayMatch(FName PackageName, uint32 PackageFlags) const;
	bool MayMatchClass(const FTopLevelAssetPath& ClassPath) const { return Classes.IsEmpty() || Classes.Contains(ClassPath); }
	/** Ids of matching assets on disk, from the index that has the fewest to look at. */
	FAssetRegistryState::FIds FindOnDisk(const FAssetRegistryState& State) const;

private:
	bool MatchesFolder(const FString& PackageName) const;
	bool MatchesTags(const FAssetData& Asset) const;
	int32 CountInFolders(const FAssetRegistryState& State, const TArray<FName>& Folders) const;

	const FARFilter& Filter;
	bool bHasClasses;
	TSet<FTopLevelAssetPath> Classes;
	TSet<FName> PackageNames;
	TSet<FName> Folders;
	TSet<FTopLevelAssetPath> ObjectPaths;
};

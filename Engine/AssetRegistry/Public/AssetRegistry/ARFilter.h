#pragma once

#include "CoreMinimal.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

#include <initializer_list>

/** What assets are asked for: those that fit every part that is set, and in a part any one of its values. */
struct ASSETREGISTRY_API FARFilter
{
	TArray<FName> PackageNames;
	TArray<FName> PackagePaths;
	TArray<FSoftObjectPath> SoftObjectPaths;
	TArray<FTopLevelAssetPath> ClassPaths;
	/** Classes that bRecursiveClasses leaves out, with those below them. */
	TSet<FTopLevelAssetPath> RecursiveClassPathsExclusionSet;
	/** A tag without a value asks only that the asset has it. Values are compared without regard to case. */
	TMultiMap<FName, TOptional<FString>> TagsAndValues;
	bool bRecursivePaths = false;
	bool bRecursiveClasses = false;
	bool bIncludeOnlyOnDiskAssets = false;
	/** Flags of which a package must have none, and all. */
	uint32 WithoutPackageFlags = 0;
	uint32 WithPackageFlags = 0;

	/** An empty filter asks for nothing in particular; queries refuse it. */
	bool IsEmpty() const;
	bool IsRecursive() const { return bRecursivePaths || bRecursiveClasses; }
	/** Takes over the values of another filter, and its switches that are on. */
	void Append(const FARFilter& Other);
	void Clear() { *this = FARFilter(); }
};

#pragma once

#include "AssetRegistryCache.h"
#include "AssetRegistryState.h"

/** A package file below a mounted folder. */
struct FPackageFile
{
	FString Filename;
	FName PackageName;
};

/** What was found out about a package file. */
struct FGatheredPackage
{
	enum class EOutcome : uint8
	{
		/** The file is not there, or no longer. */
		Missing,
		/** Its size and time are those of the record. */
		Unchanged,
		Cached,
		Read,
		Broken
	};

	FName PackageName;
	EOutcome Outcome = EOutcome::Missing;
	FPackageFileStamp Stamp;
	FPackageHeader Header;
	/** Why the file is broken. */
	FString Error;
};

/** Finds package files and reads the headers of those that are new or have changed. */
namespace PackageFileGatherer
{
/**
 * Appends the packages below "/Game/Dir", which need not exist; folders that another root is mounted on belong to that root. Files
 * whose names no package can have are told of in OutProblems.
 */
void FindFiles(const FString& PackagePath, TArray<FPackageFile>& OutFiles, TArray<FString>& OutProblems);
/** On the pool's threads and this one; answers in the order of the files. Headers that come from the cache are moved out of it. */
TArray<FGatheredPackage> Gather(const TArray<FPackageFile>& Files, const FAssetRegistryState& State, FAssetRegistryCache& Cache,
	bool bForce);
}

#pragma once

#include "AssetRegistryState.h"

/**
 * The registry's memory between two runs: one file with what the headers of packages said, and the size and time of each file by
 * which to tell whether it still says so. It is only ever a help: a missing, damaged or older one is as good as none.
 */
class FAssetRegistryCache
{
public:
	struct FEntry
	{
		FPackageFileStamp Stamp;
		FPackageHeader Header;
	};

	/** In the project's Saved folder; empty when no project is open. */
	static FString GetDefaultFilename();

	/** False with the reason when there is a file that cannot be used. */
	[[nodiscard]] bool Load(const FString& Filename, FString& OutError);
	/** Replaces the file whole. */
	[[nodiscard]] static bool Save(const FString& Filename, const FAssetRegistryState& State, FString& OutError);

	/** The entry, if it is of the file as it is now; each may be taken out by one thread. */
	FEntry* Find(FName PackageName, const FPackageFileStamp& Stamp);
	int32 Num() const { return Entries.Num(); }

private:
	TMap<FName, FEntry> Entries;
};

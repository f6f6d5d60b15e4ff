#pragma once

#include "AssetRegistry/AssetData.h"
#include "Misc/AssetRegistryInterface.h"

/** A package that another refers to. */
struct FPackageDependency
{
	FName PackageName;
	UE::AssetRegistry::EDependencyProperty Properties = UE::AssetRegistry::EDependencyProperty::None;
};

/** What a package's header says. */
struct FPackageHeader
{
	TArray<FAssetData> Assets;
	TArray<FPackageDependency> Dependencies;
};

/**
 * Reads the header of a package file; what follows it is not read, but for the mark at the file's end. False with the file and the
 * reason when that cannot be done. Any thread.
 */
[[nodiscard]] bool ReadPackageHeader(const FString& Filename, FName PackageName, FPackageHeader& OutHeader, FString& OutError);

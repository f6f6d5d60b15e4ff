#pragma once

#include "AssetRegistry/AssetData.h"

/** Reads the assets that a package file says it has, from its header alone. False with the reason when the file cannot be read. */
bool ReadPackageAssets(const FString& Filename, const FString& PackageName, TArray<FAssetData>& OutAssets, FString& OutError);

#pragma once

#include "AssetRegistry/ARFilter.h"
#include "AssetRegistry/AssetData.h"
#include "AssetRegistry/IAssetRegistry.h"
#include "UObject/Object.h"

#include "AssetRegistryHelpers.generated.h"

/** A tag, and the value that it must have. */
struct FTagAndValue
{
	FName Tag;
	FString Value;
};

/** What scripts do with asset data. */
UCLASS(Transient)
class ASSETREGISTRY_API UAssetRegistryHelpers : public UObject
{
	GENERATED_BODY()

public:
	static FAssetData CreateAssetData(const UObject* InAsset, bool bAllowBlueprintClass = false);
	static bool IsValid(const FAssetData& InAssetData) { return InAssetData.IsValid(); }
	static bool IsUAsset(const FAssetData& InAssetData) { return InAssetData.IsUAsset(); }
	static bool IsRedirector(const FAssetData& InAssetData) { return InAssetData.IsRedirector(); }
	static FString GetFullName(const FAssetData& InAssetData) { return InAssetData.GetFullName(); }
	static FString GetExportTextName(const FAssetData& InAssetData) { return InAssetData.GetExportTextName(); }
	static FSoftObjectPath ToSoftObjectPath(const FAssetData& InAssetData) { return InAssetData.ToSoftObjectPath(); }
	static UClass* GetClass(const FAssetData& InAssetData) { return InAssetData.GetClass(); }
	static UObject* GetAsset(const FAssetData& InAssetData) { return InAssetData.GetAsset(); }
	static bool IsAssetLoaded(const FAssetData& InAssetData) { return InAssetData.IsAssetLoaded(); }
	static bool GetTagValue(const FAssetData& InAssetData, const FName& InTagName, FString& OutTagValue);
	static FARFilter SetFilterTagsAndValues(const FARFilter& InFilter, const TArray<FTagAndValue>& InTagsAndValues);
	/** Blueprints whose classes are the filter's, or below them; in the filter's other respects as it says. */
	static void GetBlueprintAssets(const FARFilter& InFilter, TArray<FAssetData>& OutAssetData);
	/** The nearest native class above what the asset is, or for a Blueprint above what it makes; null when it is not known. */
	static UClass* FindAssetNativeClass(const FAssetData& AssetData);
};

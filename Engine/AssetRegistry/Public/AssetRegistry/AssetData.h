#pragma once

#include "AssetRegistry/AssetDataTagMap.h"
#include "CoreMinimal.h"
#include "UObject/Object.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"
#include "UObject/UObjectGlobals.h"

/** What is known of an asset without loading it. A copy, valid for as long as its holder likes. */
struct ASSETREGISTRY_API FAssetData
{
	/** "/Game/Dir/Asset" */
	FName PackageName;
	/** "/Game/Dir" */
	FName PackagePath;
	FName AssetName;
	/** "/Script/Engine.Blueprint" */
	FTopLevelAssetPath AssetClassPath;
	/** What the asset told about itself when it was saved. */
	FAssetDataTagMapSharedView TagsAndValues;
	uint32 PackageFlags = 0;

	FAssetData() = default;
	FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPath,
		FAssetDataTagMap InTags = {}, uint32 InPackageFlags = 0);
	/** Of an asset in memory. */
	explicit FAssetData(const UObject* InAsset);

	bool IsValid() const { return !PackageName.IsNone() && !AssetName.IsNone(); }
	/** "/Game/Dir/Asset.Asset" */
	FString GetObjectPathString() const;
	FSoftObjectPath GetSoftObjectPath() const { return IsValid() ? FSoftObjectPath(PackageName, AssetName) : FSoftObjectPath(); }
	FSoftObjectPath ToSoftObjectPath() const { return GetSoftObjectPath(); }
	FString GetFullName() const { return AssetClassPath.ToString() + TEXT(" ") + GetObjectPathString(); }
	/** "/Script/Engine.Blueprint'/Game/Dir/Asset.Asset'" */
	FString GetExportTextName() const { return FString::Printf(TEXT("%s'%s'"), *AssetClassPath.ToString(), *GetObjectPathString()); }
	/** Whether the asset has the name of its package. */
	bool IsUAsset() const;
	bool IsRedirector() const;
	bool HasAnyPackageFlags(uint32 FlagsToCheck) const { return (PackageFlags & FlagsToCheck) != 0; }
	bool HasAllPackageFlags(uint32 FlagsToCheck) const { return (PackageFlags & FlagsToCheck) == FlagsToCheck; }
	/** The asset's class when it is in memory, else null. */
	UClass* GetClass() const;
	bool IsInstanceOf(const UClass* BaseClass) const;
	/** Loads the asset when it is not in memory. Null when it cannot be loaded. */
	UObject* GetAsset() const;
	/** The object when it is in memory, else null. */
	UObject* FastGetAsset(bool bLoad = false) const;
	UPackage* GetPackage() const;
	bool IsAssetLoaded() const;
	bool GetTagValue(const FName Tag, FString& OutTagValue) const;
	template <typename ValueType>
	bool GetTagValue(const FName Tag, ValueType& OutTagValue) const
	{
		FString Text;
		if (!GetTagValue(Tag, Text))
		{
			return false;
		}
		LexFromString(OutTagValue, *Text);
		return true;
	}
	/** A default value for a tag that is not there. */
	template <typename ValueType>
	ValueType GetTagValueRef(const FName Tag) const
	{
		ValueType Value{};
		GetTagValue(Tag, Value);
		return Value;
	}
	FAssetTagValueRef FindTag(const FName Tag) const { return TagsAndValues.FindTag(Tag); }

	bool operator==(const FAssetData& Other) const { return PackageName == Other.PackageName && AssetName == Other.AssetName; }
	friend uint32 GetTypeHash(const FAssetData& Data) { return HashCombine(GetTypeHash(Data.PackageName), GetTypeHash(Data.AssetName)); }
};

#pragma once

#include "CoreMinimal.h"

/** The kind of a primary asset: "Map". */
struct FPrimaryAssetType
{
	FPrimaryAssetType() = default;
	FPrimaryAssetType(FName InName)
		: Name(InName)
	{
	}

	FName GetName() const { return Name; }
	bool IsValid() const { return Name != NAME_None; }
	FString ToString() const { return Name.ToString(); }
	bool operator==(const FPrimaryAssetType& Other) const = default;
	friend uint32 GetTypeHash(const FPrimaryAssetType& Key) { return GetTypeHash(Key.Name); }

	FName Name;
};

/** A primary asset by kind and name: "Map:Arena". */
struct COREUOBJECT_API FPrimaryAssetId
{
	FPrimaryAssetId() = default;
	FPrimaryAssetId(FPrimaryAssetType InAssetType, FName InAssetName)
		: PrimaryAssetType(InAssetType)
		, PrimaryAssetName(InAssetName)
	{
	}
	explicit FPrimaryAssetId(const FString& TypeAndName);

	bool IsValid() const { return PrimaryAssetType.IsValid() && PrimaryAssetName != NAME_None; }
	/** Empty when invalid. */
	FString ToString() const;
	static FPrimaryAssetId FromString(const FString& String) { return FPrimaryAssetId(String); }
	bool operator==(const FPrimaryAssetId& Other) const = default;
	friend uint32 GetTypeHash(const FPrimaryAssetId& Key)
	{
		return GetTypeHash(Key.PrimaryAssetType) * 31u + GetTypeHash(Key.PrimaryAssetName);
	}

	bool ExportTextItem(FString& ValueStr, const FPrimaryAssetId& DefaultValue, class UObject* Parent, int32 PortFlags,
		class UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, class UObject* Parent, class FOutputDevice* ErrorText);

	FPrimaryAssetType PrimaryAssetType;
	FName PrimaryAssetName;
};

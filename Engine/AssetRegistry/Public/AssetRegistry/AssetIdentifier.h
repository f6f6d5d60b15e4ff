#pragma once

#include "CoreMinimal.h"

class UObject;

/** What a dependency is between: a package, or an object in one. Packages alone have dependencies here. */
struct FAssetIdentifier
{
	FName PackageName;
	FName ObjectName;

	FAssetIdentifier() = default;
	FAssetIdentifier(FName InPackageName, FName InObjectName = NAME_None)
		: PackageName(InPackageName)
		, ObjectName(InObjectName)
	{
	}

	bool IsPackage() const { return !PackageName.IsNone() && !IsObject(); }
	bool IsObject() const { return !ObjectName.IsNone(); }
	bool IsValid() const { return !PackageName.IsNone() || !ObjectName.IsNone(); }
	FString ToString() const
	{
		return IsObject() ? PackageName.ToString() + TEXT(".") + ObjectName.ToString() : PackageName.ToString();
	}
	bool operator==(const FAssetIdentifier& Other) const = default;
	friend uint32 GetTypeHash(const FAssetIdentifier& Value)
	{
		return HashCombine(GetTypeHash(Value.PackageName), GetTypeHash(Value.ObjectName));
	}
};

#pragma once

#include "CoreMinimal.h"

class FArchive;
class FOutputDevice;
class UObject;

/** The path of an object that stands directly in its package: "/Game/Dir/Asset.Asset". */
struct COREUOBJECT_API FTopLevelAssetPath
{
	FTopLevelAssetPath() = default;
	FTopLevelAssetPath(TYPE_OF_NULLPTR) {}
	FTopLevelAssetPath(FName InPackageName, FName InAssetName) { TrySetPath(InPackageName, InAssetName); }
	explicit FTopLevelAssetPath(const FString& Path) { TrySetPath(Path); }
	explicit FTopLevelAssetPath(FStringView Path) { TrySetPath(Path); }
	explicit FTopLevelAssetPath(const TCHAR* Path) { TrySetPath(FStringView(Path)); }
	/** Empty when the object is no package and not directly in one. */
	explicit FTopLevelAssetPath(const UObject* InObject);

	bool TrySetPath(FName InPackageName, FName InAssetName);
	/** False, and empty, for a path that names a sub-object or no package. Takes export text ("Class'/Path'") too. */
	bool TrySetPath(FStringView Path);
	bool TrySetPath(const FString& Path) { return TrySetPath(FStringView(Path)); }
	bool TrySetPath(const UObject* InObject);

	FName GetPackageName() const { return PackageName; }
	FName GetAssetName() const { return AssetName; }
	bool IsValid() const { return PackageName != NAME_None; }
	bool IsNull() const { return PackageName == NAME_None; }
	void Reset() { *this = FTopLevelAssetPath(); }
	FString ToString() const;
	void ToString(FString& OutString) const { OutString = ToString(); }
	void AppendString(FString& OutString) const { OutString += ToString(); }
	FName ToFName() const { return FName(*ToString()); }
	int32 Compare(const FTopLevelAssetPath& Other) const;

	bool operator==(const FTopLevelAssetPath& Other) const = default;
	FORCEINLINE friend uint32 GetTypeHash(const FTopLevelAssetPath& Path)
	{
		return HashCombine(GetTypeHash(Path.PackageName), GetTypeHash(Path.AssetName));
	}
	COREUOBJECT_API friend FArchive& operator<<(FArchive& Ar, FTopLevelAssetPath& Path);

	bool ExportTextItem(
		FString& ValueStr, const FTopLevelAssetPath& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const;
	bool ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText);

	FName PackageName;
	FName AssetName;
};

#include "PackageAssetReader.h"

#include "HAL/FileManager.h"
#include "Misc/PackageName.h"
#include "Serialization/Archive.h"
#include "UObject/PackageFileSummary.h"

namespace
{
constexpr int32 MaxAssetsInPackage = 1 << 16;
constexpr int32 MaxTagsOfAsset = 1 << 16;
/** Two empty strings and a count. */
constexpr int32 MinAssetBytes = 12;
constexpr int32 MinTagBytes = 8;

bool IsGoodCount(FArchive& Ar, int32 Count, int32 MaxCount, int32 MinBytes)
{
	return !Ar.IsError() && Count >= 0 && Count <= MaxCount && Ar.CanHold(Count, MinBytes);
}

/** Packages before 5.1 name the class without its package. */
FTopLevelAssetPath ToClassPath(const FString& ClassName)
{
	if (ClassName.StartsWith(TEXT("/"), ESearchCase::CaseSensitive))
	{
		return FTopLevelAssetPath(ClassName);
	}
	const UClass* const Class = FindFirstObject<UClass>(*ClassName, EFindFirstObjectOptions::NativeFirst);
	return Class ? FTopLevelAssetPath(Class) : FTopLevelAssetPath(FName(TEXT("/Script/Engine")), FName(*ClassName));
}

bool ReadTags(FArchive& Ar, TMap<FName, FString>& OutTags)
{
	int32 NumTags = 0;
	Ar << NumTags;
	if (!IsGoodCount(Ar, NumTags, MaxTagsOfAsset, MinTagBytes))
	{
		return false;
	}
	for (int32 Index = 0; Index < NumTags && !Ar.IsError(); ++Index)
	{
		FString Key;
		FString Value;
		Ar << Key;
		Ar << Value;
		if (!Key.IsEmpty() && Key.Len() < NAME_SIZE)
		{
			OutTags.Add(FName(*Key), MoveTemp(Value));
		}
	}
	return !Ar.IsError();
}
}

bool ReadPackageAssets(const FString& Filename, const FString& PackageName, TArray<FAssetData>& OutAssets, FString& OutError)
{
	const TUniquePtr<FArchive> Reader(IFileManager::Get().CreateFileReader(*Filename));
	if (!Reader)
	{
		OutError = FString::Printf(TEXT("%s cannot be opened"), *Filename);
		return false;
	}
	FArchive& Ar = *Reader;
	FPackageFileSummary Summary;
	if (!Summary.Serialize(Ar, OutError))
	{
		OutError = Filename + TEXT(": ") + OutError;
		return false;
	}
	if (Summary.AssetRegistryDataOffset <= 0)
	{
		return true;
	}
	Ar.Seek(Summary.AssetRegistryDataOffset);
	if (Ar.UEVer() >= VER_UE4_ASSETREGISTRY_DEPENDENCYFLAGS)
	{
		int64 DependencyDataOffset = 0;
		Ar << DependencyDataOffset;
	}
	int32 NumAssets = 0;
	Ar << NumAssets;
	if (!IsGoodCount(Ar, NumAssets, MaxAssetsInPackage, MinAssetBytes))
	{
		OutError = FString::Printf(TEXT("%s: the registry data at %d is damaged"), *Filename, Summary.AssetRegistryDataOffset);
		return false;
	}
	const FName PackagePath(*FPackageName::GetLongPackagePath(PackageName));
	for (int32 Index = 0; Index < NumAssets; ++Index)
	{
		FString ObjectPath;
		FString ClassName;
		TMap<FName, FString> Tags;
		Ar << ObjectPath;
		Ar << ClassName;
		if (!ReadTags(Ar, Tags))
		{
			OutError = FString::Printf(TEXT("%s: the registry data at %d is damaged"), *Filename, Summary.AssetRegistryDataOffset);
			return false;
		}
		// An object path with an outer is that of an asset's part, which is saved in a file of its own.
		const bool bIsAsset = !ObjectPath.IsEmpty() && ObjectPath.Len() < NAME_SIZE && !ObjectPath.Contains(TEXT("."));
		if (bIsAsset)
		{
			OutAssets.Add(FAssetData(FName(*PackageName), PackagePath, FName(*ObjectPath), ToClassPath(ClassName), MoveTemp(Tags), Summary.PackageFlags));
		}
	}
	return true;
}

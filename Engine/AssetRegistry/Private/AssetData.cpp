#include "AssetRegistry/AssetData.h"

#include "Misc/PackageName.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/Package.h"

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPath, TMap<FName, FString> InTags, uint32 InPackageFlags)
	: PackageName(InPackageName)
	, PackagePath(InPackagePath)
	, AssetName(InAssetName)
	, AssetClassPath(InAssetClassPath)
	, TagsAndValues(MoveTemp(InTags))
	, PackageFlags(InPackageFlags)
{
}

FAssetData::FAssetData(const UObject* InAsset)
{
	if (!InAsset)
	{
		return;
	}
	const UPackage* const Package = InAsset->GetPackage();
	PackageName = Package->GetFName();
	PackagePath = FName(*FPackageName::GetLongPackagePath(Package->GetName()));
	AssetName = InAsset->GetFName();
	AssetClassPath = InAsset->GetClass()->GetClassPathName();
	PackageFlags = Package->GetPackageFlags();
	TMap<FName, UObject::FAssetRegistryTag> Tags;
	InAsset->GetAssetRegistryTags(FAssetRegistryTagsContext(InAsset, Tags));
	for (const TPair<FName, UObject::FAssetRegistryTag>& Tag : Tags)
	{
		TagsAndValues.Add(Tag.Key, Tag.Value.Value);
	}
}

FString FAssetData::GetObjectPathString() const
{
	return IsValid() ? PackageName.ToString() + TEXT(".") + AssetName.ToString() : FString();
}

UClass* FAssetData::GetClass() const
{
	return AssetClassPath.IsValid() ? FindObject<UClass>(AssetClassPath) : nullptr;
}

bool FAssetData::IsInstanceOf(const UClass* BaseClass) const
{
	const UClass* const Class = GetClass();
	return Class && Class->IsChildOf(BaseClass);
}

UObject* FAssetData::GetAsset() const
{
	return IsValid() ? LoadObject<UObject>(nullptr, *GetObjectPathString(), nullptr, LOAD_NoWarn | LOAD_Quiet) : nullptr;
}

bool FAssetData::IsAssetLoaded() const
{
	return IsValid() && FindObject<UObject>(nullptr, *GetObjectPathString()) != nullptr;
}

bool FAssetData::GetTagValue(const FName Tag, FString& OutTagValue) const
{
	const FString* const Value = TagsAndValues.Find(Tag);
	if (Value)
	{
		OutTagValue = *Value;
	}
	return Value != nullptr;
}

#include "AssetRegistry/AssetData.h"

#include "Misc/PackageName.h"
#include "UObject/AssetRegistryTagsContext.h"
#include "UObject/Package.h"

FAssetData::FAssetData(FName InPackageName, FName InPackagePath, FName InAssetName, FTopLevelAssetPath InAssetClassPath,
	FAssetDataTagMap InTags, uint32 InPackageFlags)
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
	FAssetDataTagMap Values;
	for (TPair<FName, UObject::FAssetRegistryTag>& Tag : Tags)
	{
		Values.Add(Tag.Key, MoveTemp(Tag.Value.Value));
	}
	TagsAndValues = FAssetDataTagMapSharedView(MoveTemp(Values));
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

bool FAssetData::IsUAsset() const
{
	return IsValid() && FPackageName::GetShortFName(PackageName) == AssetName;
}

bool FAssetData::IsRedirector() const
{
	return AssetClassPath == FTopLevelAssetPath(TEXT("/Script/CoreUObject"), TEXT("ObjectRedirector"));
}

UObject* FAssetData::FastGetAsset(bool bLoad) const
{
	UObject* const InMemory = IsValid() ? FindObject<UObject>(nullptr, *GetObjectPathString()) : nullptr;
	return InMemory || !bLoad ? InMemory : GetAsset();
}

UPackage* FAssetData::GetPackage() const
{
	if (PackageName.IsNone())
	{
		return nullptr;
	}
	UPackage* const InMemory = FindPackage(nullptr, *PackageName.ToString());
	return InMemory ? InMemory : LoadPackage(nullptr, *PackageName.ToString(), LOAD_NoWarn | LOAD_Quiet);
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
	const FAssetTagValueRef Value = TagsAndValues.FindTag(Tag);
	if (Value.IsSet())
	{
		OutTagValue = Value.AsString();
	}
	return Value.IsSet();
}

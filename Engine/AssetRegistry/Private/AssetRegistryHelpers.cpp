#include "AssetRegistry/AssetRegistryHelpers.h"

#include "UObject/Class.h"

namespace
{
const FName GeneratedClassTag("GeneratedClass");
const FName NativeParentClassTag("NativeParentClass");
}

FAssetData UAssetRegistryHelpers::CreateAssetData(const UObject* InAsset, bool bAllowBlueprintClass)
{
	const bool bIsAsset = InAsset && InAsset->IsAsset() && (bAllowBlueprintClass || !InAsset->IsA<UClass>());
	return bIsAsset ? FAssetData(InAsset) : FAssetData();
}

bool UAssetRegistryHelpers::GetTagValue(const FAssetData& InAssetData, const FName& InTagName, FString& OutTagValue)
{
	return InAssetData.GetTagValue(InTagName, OutTagValue);
}

FARFilter UAssetRegistryHelpers::SetFilterTagsAndValues(const FARFilter& InFilter, const TArray<FTagAndValue>& InTagsAndValues)
{
	FARFilter Filter = InFilter;
	for (const FTagAndValue& Each : InTagsAndValues)
	{
		Filter.TagsAndValues.Add(Each.Tag, Each.Value.IsEmpty() ? TOptional<FString>() : TOptional<FString>(Each.Value));
	}
	return Filter;
}

void UAssetRegistryHelpers::GetBlueprintAssets(const FARFilter& InFilter, TArray<FAssetData>& OutAssetData)
{
	const IAssetRegistry& Registry = IAssetRegistry::GetChecked();
	TSet<FTopLevelAssetPath> Wanted;
	Registry.GetDerivedClassNames(InFilter.ClassPaths, InFilter.RecursiveClassPathsExclusionSet, Wanted);
	FARFilter Filter = InFilter;
	Filter.ClassPaths = {FTopLevelAssetPath(TEXT("/Script/Engine.Blueprint"))};
	Filter.RecursiveClassPathsExclusionSet.Reset();
	Filter.bRecursiveClasses = true;
	Registry.EnumerateAssets(Filter,
		[&](const FAssetData& Asset)
		{
			const bool bFits =
				InFilter.ClassPaths.IsEmpty() || Wanted.Contains(FTopLevelAssetPath(Asset.FindTag(GeneratedClassTag).AsString()));
			if (bFits)
			{
				OutAssetData.Add(Asset);
			}
			return true;
		});
}

UClass* UAssetRegistryHelpers::FindAssetNativeClass(const FAssetData& AssetData)
{
	const FAssetTagValueRef NativeParent = AssetData.FindTag(NativeParentClassTag);
	if (NativeParent.IsSet())
	{
		return FindObject<UClass>(FTopLevelAssetPath(NativeParent.AsString()));
	}
	TArray<FTopLevelAssetPath> Classes{AssetData.AssetClassPath};
	IAssetRegistry::GetChecked().GetAncestorClassNames(AssetData.AssetClassPath, Classes);
	for (const FTopLevelAssetPath& Path : Classes)
	{
		UClass* const Class = FindObject<UClass>(Path);
		if (Class && Class->HasAnyClassFlags(CLASS_Native))
		{
			return Class;
		}
	}
	return nullptr;
}

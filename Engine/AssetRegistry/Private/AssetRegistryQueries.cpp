#include "AssetFilter.h"
#include "AssetRegistryImpl.h"
#include "Misc/PackageName.h"
#include "UObject/Class.h"
#include "UObject/Package.h"
#include "UObject/UObjectHash.h"

#include <algorithm>

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistryQuery, Log, All);

namespace
{
using FIds = FAssetRegistryState::FIds;

/** What an enumeration calls to gather all that it finds. */
auto AppendTo(TArray<FAssetData>& OutAssetData)
{
	return [&OutAssetData](const FAssetData& Asset)
	{
		OutAssetData.Add(Asset);
		return true;
	};
}

bool MayHoldAssets(const UPackage* Package)
{
	if (Package->HasAnyPackageFlags(PKG_CompiledIn | PKG_PlayInEditor) || Package == GetTransientPackage() ||
		IsInPlaceholderPackage(Package))
	{
		return false;
	}
	const FString Name = Package->GetName();
	return Name.StartsWith(TEXT("/")) && !FPackageName::IsScriptPackage(Name) && !FPackageName::IsTempPackage(Name) &&
		!FPackageName::IsMemoryPackage(Name);
}
}

bool FAssetRegistryImpl::IsListed(const UObject* Object) const
{
	// A Blueprint's class is not an asset beside the Blueprint.
	return Object->IsAsset() && !Object->IsA<UClass>() && !DeletedAssets.Contains(Object);
}

bool FAssetRegistryImpl::HasListedAsset(const UPackage* Package) const
{
	return !ForEachObjectWithOuterBreakable(
		Package, [this](UObject* Object)
		{ return !IsListed(Object); },
		false);
}

bool FAssetRegistryImpl::IsPackageKnown(FName PackageName) const
{
	const FPackageRecord* const Record = State.FindPackage(PackageName);
	return Record && !Record->bBroken;
}

FAssetFilter FAssetRegistryImpl::Compile(const FARFilter& Filter) const
{
	TSet<FTopLevelAssetPath> Derived;
	if (Filter.bRecursiveClasses && !Filter.ClassPaths.IsEmpty())
	{
		GetDerivedClassNames(Filter.ClassPaths, Filter.RecursiveClassPathsExclusionSet, Derived);
	}
	return FAssetFilter(Filter, MoveTemp(Derived));
}

void FAssetRegistryImpl::EnumerateInMemory(
	const FAssetFilter& Filter, TSet<FName>& OutPackagesInMemory, TFunctionRef<void(const UObject*)> Callback) const
{
	ForEachObjectOfClass(UPackage::StaticClass(),
		[&](UObject* Object)
		{
			const UPackage* const Package = static_cast<const UPackage*>(Object);
			if (!MayHoldAssets(Package) || !Filter.MayMatch(Package->GetFName(), Package->GetPackageFlags()))
			{
				return;
			}
			ForEachObjectWithOuter(
				Package,
				[&](UObject* Each)
				{
					if (IsListed(Each))
					{
						OutPackagesInMemory.Add(Package->GetFName());
						Callback(Each);
					}
				},
				false);
		});
}

bool FAssetRegistryImpl::EnumerateFiltered(const FARFilter& InFilter, TFunctionRef<bool(const FAssetData&)> Callback) const
{
	SearchOnce();
	const FAssetFilter Filter = Compile(InFilter);
	TArray<FAssetData> InMemory;
	TSet<FName> PackagesInMemory;
	if (!InFilter.bIncludeOnlyOnDiskAssets)
	{
		EnumerateInMemory(Filter, PackagesInMemory,
			[&](const UObject* Object)
			{
				if (Filter.MayMatchClass(Object->GetClass()->GetClassPathName()))
				{
					FAssetData Data(Object);
					if (Filter.Matches(Data))
					{
						InMemory.Add(MoveTemp(Data));
					}
				}
			});
		std::sort(InMemory.GetData(), InMemory.GetData() + InMemory.Num(), &FAssetRegistryState::IsPathLess);
	}
	FIds Ids = Filter.FindOnDisk(State);
	if (!PackagesInMemory.IsEmpty())
	{
		Ids.RemoveAll([&](int32 Id)
			{ return PackagesInMemory.Contains(State.GetAsset(Id).PackageName); });
	}
	State.SortByPath(Ids);
	int32 NextInMemory = 0;
	bool bGoOn = true;
	const int32* const End = Ids.GetData() + Ids.Num();
	for (const int32* Next = Ids.GetData(); bGoOn && (Next != End || NextInMemory < InMemory.Num());)
	{
		const bool bFromMemory = NextInMemory < InMemory.Num();
		const auto IsBefore = [this](int32 Id, const FAssetData& Asset)
		{ return FAssetRegistryState::IsPathLess(State.GetAsset(Id), Asset); };
		// Few assets are in memory, so each one's place is searched for instead of comparing all paths.
		const int32* const Place = bFromMemory ? std::lower_bound(Next, End, InMemory[NextInMemory], IsBefore) : End;
		for (; bGoOn && Next != Place; ++Next)
		{
			bGoOn = Callback(State.GetAsset(*Next));
		}
		bGoOn = bGoOn && (!bFromMemory || Callback(InMemory[NextInMemory]));
		++NextInMemory;
	}
	return bGoOn;
}

bool FAssetRegistryImpl::EnumerateAssets(const FARFilter& Filter, TFunctionRef<bool(const FAssetData&)> Callback) const
{
	if (Filter.IsEmpty())
	{
		UE_LOG(LogAssetRegistryQuery, Warning, TEXT("A filter with nothing in it was given for assets; GetAllAssets gives all."));
		return false;
	}
	EnumerateFiltered(Filter, Callback);
	return true;
}

bool FAssetRegistryImpl::EnumerateAllAssets(TFunctionRef<bool(const FAssetData&)> Callback, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	EnumerateFiltered(Filter, Callback);
	return true;
}

bool FAssetRegistryImpl::GetAssets(const FARFilter& Filter, TArray<FAssetData>& OutAssetData) const
{
	const int32 NumBefore = OutAssetData.Num();
	return EnumerateAssets(Filter, AppendTo(OutAssetData)) && OutAssetData.Num() > NumBefore;
}

bool FAssetRegistryImpl::GetAllAssets(TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	const int32 NumBefore = OutAssetData.Num();
	return EnumerateAllAssets(AppendTo(OutAssetData), bIncludeOnlyOnDiskAssets) && OutAssetData.Num() > NumBefore;
}

FAssetData FAssetRegistryImpl::GetAssetByObjectPath(const FSoftObjectPath& ObjectPath, bool bIncludeOnlyOnDiskAssets) const
{
	SearchOnce();
	const FTopLevelAssetPath Path = ObjectPath.GetAssetPath();
	if (Path.IsNull() || Path.GetAssetName().IsNone())
	{
		return FAssetData();
	}
	const UPackage* const Package = bIncludeOnlyOnDiskAssets ? nullptr : FindObjectFast<UPackage>(nullptr, Path.GetPackageName());
	if (Package && MayHoldAssets(Package) && HasListedAsset(Package))
	{
		const UObject* const Object = StaticFindObjectFast(UObject::StaticClass(), const_cast<UPackage*>(Package), Path.GetAssetName());
		return Object && IsListed(Object) ? FAssetData(Object) : FAssetData();
	}
	const int32 Id = State.FindAsset(Path);
	return Id != INDEX_NONE ? State.GetAsset(Id) : FAssetData();
}

bool FAssetRegistryImpl::GetAssetsByPackageName(FName PackageName, TArray<FAssetData>& OutAssetData, bool bIncludeOnlyOnDiskAssets) const
{
	SearchOnce();
	const int32 NumBefore = OutAssetData.Num();
	const UPackage* const Package = bIncludeOnlyOnDiskAssets ? nullptr : FindObjectFast<UPackage>(nullptr, PackageName);
	if (Package && MayHoldAssets(Package))
	{
		ForEachObjectWithOuter(
			Package,
			[&](UObject* Object)
			{
				if (IsListed(Object))
				{
					OutAssetData.Add(FAssetData(Object));
				}
			},
			false);
	}
	const FPackageRecord* const Record = State.FindPackage(PackageName);
	if (OutAssetData.Num() == NumBefore && Record)
	{
		for (const int32 Id : Record->AssetIds)
		{
			OutAssetData.Add(State.GetAsset(Id));
		}
	}
	std::sort(OutAssetData.GetData() + NumBefore, OutAssetData.GetData() + OutAssetData.Num(), &FAssetRegistryState::IsPathLess);
	return OutAssetData.Num() > NumBefore;
}

bool FAssetRegistryImpl::HasAssets(FName PackagePath, bool bRecursive) const
{
	FARFilter Filter;
	Filter.PackagePaths.Add(PackagePath);
	Filter.bRecursivePaths = bRecursive;
	return !EnumerateFiltered(Filter, [](const FAssetData&)
		{ return false; });
}

bool FAssetRegistryImpl::GetAssetsByPath(FName PackagePath, TArray<FAssetData>& OutAssetData, bool bRecursive,
	bool bIncludeOnlyOnDiskAssets) const
{
	return GetAssetsByPaths({PackagePath}, OutAssetData, bRecursive, bIncludeOnlyOnDiskAssets);
}

bool FAssetRegistryImpl::GetAssetsByPaths(
	TArray<FName> PackagePaths, TArray<FAssetData>& OutAssetData, bool bRecursive, bool bIncludeOnlyOnDiskAssets) const
{
	FARFilter Filter;
	Filter.PackagePaths = MoveTemp(PackagePaths);
	Filter.bRecursivePaths = bRecursive;
	Filter.bIncludeOnlyOnDiskAssets = bIncludeOnlyOnDiskAssets;
	return GetAssets(Filter, OutAssetData);
}

bool FAssetRegistryImpl::GetAssetsByClass(FTopLevelAssetPath ClassPathName, TArray<FAssetData>& OutAssetData, bool bSearchSubClasses) const
{
	FARFilter Filter;
	Filter.ClassPaths.Add(ClassPathName);
	Filter.bRecursiveClasses = bSearchSubClasses;
	return GetAssets(Filter, OutAssetData);
}

bool FAssetRegistryImpl::GetAssetsByTags(const TArray<FName>& AssetTags, TArray<FAssetData>& OutAssetData) const
{
	FARFilter Filter;
	for (const FName Tag : AssetTags)
	{
		Filter.TagsAndValues.Add(Tag, TOptional<FString>());
	}
	return GetAssets(Filter, OutAssetData);
}

bool FAssetRegistryImpl::GetAssetsByTagValues(const TMultiMap<FName, FString>& AssetTagsAndValues, TArray<FAssetData>& OutAssetData) const
{
	FARFilter Filter;
	for (const TPair<FName, FString>& Tag : AssetTagsAndValues)
	{
		Filter.TagsAndValues.Add(Tag.Key, TOptional<FString>(Tag.Value));
	}
	return GetAssets(Filter, OutAssetData);
}

void FAssetRegistryImpl::KeepMatching(TArray<FAssetData>& Assets, const FARFilter& InFilter, bool bWanted) const
{
	if (InFilter.IsEmpty())
	{
		return;
	}
	SearchOnce();
	const FAssetFilter Filter = Compile(InFilter);
	Assets.RemoveAll([&Filter, bWanted](const FAssetData& Asset)
		{ return Filter.Matches(Asset) != bWanted; });
}

void FAssetRegistryImpl::RunAssetsThroughFilter(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const
{
	KeepMatching(AssetDataList, Filter, true);
}

void FAssetRegistryImpl::UseFilterToExcludeAssets(TArray<FAssetData>& AssetDataList, const FARFilter& Filter) const
{
	KeepMatching(AssetDataList, Filter, false);
}

#include "AssetFilter.h"

#include "Misc/PackageName.h"

namespace
{
using FIds = FAssetRegistryState::FIds;

void AppendFound(const FIds* Found, FIds& OutIds)
{
	if (Found)
	{
		OutIds.Append(*Found);
	}
}

int32 CountFound(const FIds* Found)
{
	return Found ? Found->Num() : 0;
}

/** One way to the candidates: how many assets it leads to at most, and the way. */
struct FWay
{
	int32 Count = 0;
	TFunction<void(FIds&)> Collect;
};
}

bool FARFilter::IsEmpty() const
{
	return PackageNames.IsEmpty() && PackagePaths.IsEmpty() && SoftObjectPaths.IsEmpty() && ClassPaths.IsEmpty() &&
		TagsAndValues.IsEmpty() && WithoutPackageFlags == 0 && WithPackageFlags == 0;
}

void FARFilter::Append(const FARFilter& Other)
{
	PackageNames.Append(Other.PackageNames);
	PackagePaths.Append(Other.PackagePaths);
	SoftObjectPaths.Append(Other.SoftObjectPaths);
	ClassPaths.Append(Other.ClassPaths);
	RecursiveClassPathsExclusionSet.Append(Other.RecursiveClassPathsExclusionSet);
	for (const TPair<FName, TOptional<FString>>& Tag : Other.TagsAndValues)
	{
		TagsAndValues.Add(Tag.Key, Tag.Value);
	}
	bRecursivePaths |= Other.bRecursivePaths;
	bRecursiveClasses |= Other.bRecursiveClasses;
	bIncludeOnlyOnDiskAssets |= Other.bIncludeOnlyOnDiskAssets;
	WithoutPackageFlags |= Other.WithoutPackageFlags;
	WithPackageFlags |= Other.WithPackageFlags;
}

FAssetFilter::FAssetFilter(const FARFilter& InFilter, TSet<FTopLevelAssetPath>&& DerivedClasses)
	: Filter(InFilter)
	, bHasClasses(!InFilter.ClassPaths.IsEmpty())
	, Classes(MoveTemp(DerivedClasses))
	, PackageNames(InFilter.PackageNames)
	, Folders(InFilter.PackagePaths)
{
	if (!InFilter.bRecursiveClasses)
	{
		Classes.Append(InFilter.ClassPaths);
	}
	for (const FSoftObjectPath& Path : InFilter.SoftObjectPaths)
	{
		ObjectPaths.Add(Path.GetAssetPath());
	}
}

bool FAssetFilter::MatchesFolder(const FString& PackageName) const
{
	if (Folders.IsEmpty())
	{
		return true;
	}
	FString Folder = FPackageName::GetLongPackagePath(PackageName);
	while (!Folder.IsEmpty())
	{
		if (Folders.Contains(FName(*Folder)))
		{
			return true;
		}
		Folder = Filter.bRecursivePaths ? FPackageName::GetLongPackagePath(Folder) : FString();
	}
	return false;
}

bool FAssetFilter::MatchesTags(const FAssetData& Asset) const
{
	if (Filter.TagsAndValues.IsEmpty())
	{
		return true;
	}
	for (const TPair<FName, TOptional<FString>>& Wanted : Filter.TagsAndValues)
	{
		const FAssetTagValueRef Value = Asset.TagsAndValues.FindTag(Wanted.Key);
		if (Value.IsSet() && (!Wanted.Value.IsSet() || Value.Equals(Wanted.Value.GetValue())))
		{
			return true;
		}
	}
	return false;
}

bool FAssetFilter::MayMatch(FName PackageName, uint32 PackageFlags) const
{
	const bool bFlagsFit =
		(PackageFlags & Filter.WithPackageFlags) == Filter.WithPackageFlags && (PackageFlags & Filter.WithoutPackageFlags) == 0;
	return bFlagsFit && (PackageNames.IsEmpty() || PackageNames.Contains(PackageName)) &&
		(Folders.IsEmpty() || MatchesFolder(PackageName.ToString()));
}

bool FAssetFilter::Matches(const FAssetData& Asset) const
{
	const bool bClassFits = !bHasClasses || Classes.Contains(Asset.AssetClassPath);
	const bool bPathFits = ObjectPaths.IsEmpty() || ObjectPaths.Contains(FTopLevelAssetPath(Asset.PackageName, Asset.AssetName));
	return bClassFits && bPathFits && MatchesTags(Asset) && MayMatch(Asset.PackageName, Asset.PackageFlags);
}

int32 FAssetFilter::CountInFolders(const FAssetRegistryState& State, const TArray<FName>& InFolders) const
{
	int32 Count = 0;
	for (const FName Folder : InFolders)
	{
		const TSet<FName>* const Packages = State.FindPackagesInFolder(Folder);
		Count += Packages ? Packages->Num() : 0;
	}
	return Count;
}

FAssetRegistryState::FIds FAssetFilter::FindOnDisk(const FAssetRegistryState& State) const
{
	TArray<FWay> Ways;
	const auto AppendPackage = [&State](FName PackageName, FIds& OutIds)
	{
		const FPackageRecord* const Record = State.FindPackage(PackageName);
		AppendFound(Record ? &Record->AssetIds : nullptr, OutIds);
	};
	if (!ObjectPaths.IsEmpty())
	{
		Ways.Add({ObjectPaths.Num(), [&](FIds& OutIds)
			{
				for (const FTopLevelAssetPath& Path : ObjectPaths)
				{
					if (const int32 Id = State.FindAsset(Path); Id != INDEX_NONE)
					{
						OutIds.Add(Id);
					}
				}
			}});
	}
	if (!PackageNames.IsEmpty())
	{
		Ways.Add({PackageNames.Num(), [&](FIds& OutIds)
			{
				for (const FName PackageName : PackageNames)
				{
					AppendPackage(PackageName, OutIds);
				}
			}});
	}
	if (bHasClasses)
	{
		int32 Count = 0;
		for (const FTopLevelAssetPath& Class : Classes)
		{
			Count += CountFound(State.FindAssetsOfClass(Class));
		}
		Ways.Add({Count, [&](FIds& OutIds)
			{
				for (const FTopLevelAssetPath& Class : Classes)
				{
					AppendFound(State.FindAssetsOfClass(Class), OutIds);
				}
			}});
	}
	const auto FindTagged = [&State](const TPair<FName, TOptional<FString>>& Tag)
	{
		return Tag.Value.IsSet() ? State.FindAssetsWithTagValue(Tag.Key, Tag.Value.GetValue()) : State.FindAssetsWithTag(Tag.Key);
	};
	if (!Filter.TagsAndValues.IsEmpty())
	{
		int32 Count = 0;
		for (const TPair<FName, TOptional<FString>>& Tag : Filter.TagsAndValues)
		{
			Count += CountFound(FindTagged(Tag));
		}
		Ways.Add({Count, [&](FIds& OutIds)
			{
				TSet<int32> Unique;
				for (const TPair<FName, TOptional<FString>>& Tag : Filter.TagsAndValues)
				{
					if (const FIds* const Found = FindTagged(Tag))
					{
						Unique.Append(*Found);
					}
				}
				OutIds = Unique.Array();
			}});
	}
	TArray<FName> AllFolders;
	if (!Folders.IsEmpty())
	{
		TSet<FName> Unique;
		for (const FName Folder : Folders)
		{
			TArray<FName> Below{Folder};
			if (Filter.bRecursivePaths)
			{
				State.GetSubFolders(Folder, true, Below);
			}
			Unique.Append(Below);
		}
		AllFolders = Unique.Array();
		Ways.Add({CountInFolders(State, AllFolders), [&](FIds& OutIds)
			{
				for (const FName Folder : AllFolders)
				{
					const TSet<FName>* const Packages = State.FindPackagesInFolder(Folder);
					for (const FName PackageName : Packages ? *Packages : TSet<FName>())
					{
						AppendPackage(PackageName, OutIds);
					}
				}
			}});
	}
	FIds Ids;
	const FWay* Shortest = nullptr;
	for (const FWay& Way : Ways)
	{
		Shortest = !Shortest || Way.Count < Shortest->Count ? &Way : Shortest;
	}
	if (!Shortest)
	{
		Ids = State.GetAllAssetIds();
	}
	else
	{
		Shortest->Collect(Ids);
	}
	const bool bCheckFlags = Filter.WithPackageFlags != 0 || Filter.WithoutPackageFlags != 0;
	// A single way has found just what matches.
	if (Ways.Num() > 1 || bCheckFlags)
	{
		Ids.RemoveAll([&](int32 Id)
			{ return !Matches(State.GetAsset(Id)); });
	}
	return Ids;
}

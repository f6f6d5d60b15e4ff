#include "AssetRegistryState.h"

#include "Misc/PackageName.h"

#include <algorithm>

namespace
{
const FName GeneratedClassTag("GeneratedClass");
const FName ParentClassTag("ParentClass");

/** The class that an asset makes and the one above it; both empty for an asset that makes none. */
TPair<FTopLevelAssetPath, FTopLevelAssetPath> GetClassesOf(const FAssetData& Asset)
{
	FString Class;
	FString Parent;
	if (!Asset.GetTagValue(GeneratedClassTag, Class) || !Asset.GetTagValue(ParentClassTag, Parent))
	{
		return {};
	}
	return {FTopLevelAssetPath(Class), FTopLevelAssetPath(Parent)};
}
}

/** Which indexes have ids that are no longer there. */
struct FAssetRegistryState::FDirtyIndexes
{
	TSet<int32> DeadIds;
	TSet<FTopLevelAssetPath> Classes;
	TSet<FName> Tags;
	TMap<FName, TSet<FString>> TagValues;
	TSet<FName> ReferredPackages;
};

bool FAssetRegistryState::IsPathLess(const FAssetData& A, const FAssetData& B)
{
	return A.PackageName == B.PackageName ? A.AssetName.LexicalLess(B.AssetName) : A.PackageName.LexicalLess(B.PackageName);
}

void FAssetRegistryState::AddPackage(FName PackageName, FPackageRecord&& InRecord, TArray<FAssetData>&& InAssets)
{
	FPackageRecord& Record = Packages.Add(PackageName, MoveTemp(InRecord));
	Record.AssetIds.Reset(InAssets.Num());
	for (FAssetData& Asset : InAssets)
	{
		const int32 Id = Assets.Add(MoveTemp(Asset));
		Record.AssetIds.Add(Id);
		AddAsset(Id);
	}
	const FName Folder(*FPackageName::GetLongPackagePath(PackageName.ToString()));
	AddFolder(Folder);
	PackagesByFolder.FindOrAdd(Folder).Add(PackageName);
	if (bHasReferencers)
	{
		for (const FPackageDependency& Dependency : Record.Dependencies)
		{
			AddReferencer(Dependency.PackageName, PackageName);
		}
	}
}

void FAssetRegistryState::AddAsset(int32 Id)
{
	PathRanks.Reset();
	const FAssetData& Asset = Assets[Id];
	ByClass.FindOrAdd(Asset.AssetClassPath).Add(Id);
	for (const TPair<FName, FString>& Tag : Asset.TagsAndValues)
	{
		ByTag.FindOrAdd(Tag.Key).Add(Id);
		if (TMap<FString, FIds>* const Values = ByTagValue.Find(Tag.Key))
		{
			Values->FindOrAdd(Tag.Value).Add(Id);
		}
	}
	const auto [Class, Parent] = GetClassesOf(Asset);
	if (Class.IsValid() && Parent.IsValid())
	{
		ChildClasses.FindOrAdd(Parent).AddUnique(Class);
		ParentClasses.Add(Class, Parent);
	}
}

void FAssetRegistryState::AddFolder(FName Folder)
{
	FName Child;
	for (FName Current = Folder; !Current.IsNone();)
	{
		const bool bKnown = SubFolders.Contains(Current);
		TSet<FName>& Below = SubFolders.FindOrAdd(Current);
		if (!Child.IsNone())
		{
			Below.Add(Child);
		}
		if (bKnown)
		{
			return;
		}
		Child = Current;
		Current = FName(*FPackageName::GetLongPackagePath(Current.ToString()));
	}
}

void FAssetRegistryState::RemoveFromFolder(FName Folder, FName PackageName)
{
	TSet<FName>& InFolder = PackagesByFolder[Folder];
	InFolder.Remove(PackageName);
	if (!InFolder.IsEmpty())
	{
		return;
	}
	PackagesByFolder.Remove(Folder);
	for (FName Current = Folder; SubFolders.Contains(Current) && SubFolders[Current].IsEmpty() && !PackagesByFolder.Contains(Current);)
	{
		SubFolders.Remove(Current);
		const FName Parent(*FPackageName::GetLongPackagePath(Current.ToString()));
		if (TSet<FName>* const Siblings = SubFolders.Find(Parent))
		{
			Siblings->Remove(Current);
		}
		Current = Parent;
	}
}

void FAssetRegistryState::CollectIndexes(int32 Id, FDirtyIndexes& OutDirty) const
{
	const FAssetData& Asset = Assets[Id];
	OutDirty.DeadIds.Add(Id);
	OutDirty.Classes.Add(Asset.AssetClassPath);
	for (const TPair<FName, FString>& Tag : Asset.TagsAndValues)
	{
		OutDirty.Tags.Add(Tag.Key);
		if (ByTagValue.Contains(Tag.Key))
		{
			OutDirty.TagValues.FindOrAdd(Tag.Key).Add(Tag.Value);
		}
	}
}

void FAssetRegistryState::RemoveClassOf(const FAssetData& Asset)
{
	const auto [Class, Parent] = GetClassesOf(Asset);
	if (TArray<FTopLevelAssetPath>* const Children = ChildClasses.Find(Parent))
	{
		Children->Remove(Class);
		ParentClasses.Remove(Class);
	}
}

void FAssetRegistryState::RemovePackages(const TArray<FName>& PackageNames)
{
	FDirtyIndexes Dirty;
	TSet<FName> Removed;
	for (const FName PackageName : PackageNames)
	{
		const FPackageRecord* const Record = Packages.Find(PackageName);
		if (!Record)
		{
			continue;
		}
		for (const int32 Id : Record->AssetIds)
		{
			CollectIndexes(Id, Dirty);
			RemoveClassOf(Assets[Id]);
		}
		for (const FPackageDependency& Dependency : Record->Dependencies)
		{
			Dirty.ReferredPackages.Add(Dependency.PackageName);
		}
		RemoveFromFolder(FName(*FPackageName::GetLongPackagePath(PackageName.ToString())), PackageName);
		Removed.Add(PackageName);
		Packages.Remove(PackageName);
	}
	// One pass over each index, however many of its assets go.
	const auto Purge = [&Dirty](auto& Index, const auto& Key)
	{
		FIds& Ids = Index[Key];
		Ids.RemoveAll([&Dirty](int32 Id)
			{ return Dirty.DeadIds.Contains(Id); });
		if (Ids.IsEmpty())
		{
			Index.Remove(Key);
		}
	};
	for (const FTopLevelAssetPath& Class : Dirty.Classes)
	{
		Purge(ByClass, Class);
	}
	for (const FName Tag : Dirty.Tags)
	{
		Purge(ByTag, Tag);
	}
	for (const TPair<FName, TSet<FString>>& Tag : Dirty.TagValues)
	{
		for (const FString& Value : Tag.Value)
		{
			Purge(ByTagValue[Tag.Key], Value);
		}
	}
	for (const int32 Id : Dirty.DeadIds)
	{
		Assets.RemoveAt(Id);
	}
	for (const FName Referred : Dirty.ReferredPackages)
	{
		if (TArray<FName>* const Names = Referencers.Find(Referred))
		{
			Names->RemoveAll([&Removed](FName Name)
				{ return Removed.Contains(Name); });
		}
	}
	PathRanks.Reset();
}

void FAssetRegistryState::Empty()
{
	*this = FAssetRegistryState();
}

const FAssetRegistryState::FIds* FAssetRegistryState::FindAssetsWithTagValue(FName Tag, const FString& Value) const
{
	if (!ByTagValue.Contains(Tag))
	{
		MakeValueIndex(Tag);
	}
	return ByTagValue[Tag].Find(Value);
}

void FAssetRegistryState::MakeValueIndex(FName Tag) const
{
	TMap<FString, FIds>& Values = ByTagValue.Add(Tag);
	const FIds* const Ids = ByTag.Find(Tag);
	for (int32 Index = 0; Ids && Index < Ids->Num(); ++Index)
	{
		const int32 Id = (*Ids)[Index];
		Values.FindOrAdd(Assets[Id].TagsAndValues.FindTag(Tag).AsString()).Add(Id);
	}
}

int32 FAssetRegistryState::FindAsset(const FTopLevelAssetPath& Path) const
{
	const FPackageRecord* const Record = Packages.Find(Path.GetPackageName());
	const int32* const Id = Record ? Record->AssetIds.FindByPredicate([this, &Path](int32 Each)
										 { return Assets[Each].AssetName == Path.GetAssetName(); })
								   : nullptr;
	return Id ? *Id : INDEX_NONE;
}

FAssetRegistryState::FIds FAssetRegistryState::GetAllAssetIds() const
{
	FIds Ids;
	Ids.Reserve(Assets.Num());
	for (auto It = Assets.CreateConstIterator(); It; ++It)
	{
		Ids.Add(It.GetIndex());
	}
	return Ids;
}

void FAssetRegistryState::SortByPath(FIds& Ids) const
{
	const auto IsLess = [this](int32 A, int32 B)
	{ return IsPathLess(Assets[A], Assets[B]); };
	// Comparing texts costs much more than comparing ranks; making these pays once the answers come to a part of all assets.
	constexpr int32 LargePart = 8;
	NumSortedByText += PathRanks.IsEmpty() ? Ids.Num() : 0;
	if (PathRanks.IsEmpty() && NumSortedByText < Assets.Num() / LargePart)
	{
		std::sort(Ids.GetData(), Ids.GetData() + Ids.Num(), IsLess);
		return;
	}
	if (PathRanks.IsEmpty())
	{
		NumSortedByText = 0;
		FIds All = GetAllAssetIds();
		std::sort(All.GetData(), All.GetData() + All.Num(), IsLess);
		PathRanks.SetNumZeroed(Assets.GetMaxIndex());
		for (int32 Rank = 0; Rank < All.Num(); ++Rank)
		{
			PathRanks[All[Rank]] = Rank;
		}
	}
	std::sort(Ids.GetData(), Ids.GetData() + Ids.Num(), [this](int32 A, int32 B)
		{ return PathRanks[A] < PathRanks[B]; });
}

void FAssetRegistryState::GetSubFolders(FName Folder, bool bRecursive, TArray<FName>& OutFolders) const
{
	const TSet<FName>* const Direct = SubFolders.Find(Folder);
	if (!Direct)
	{
		return;
	}
	for (const FName SubFolder : *Direct)
	{
		OutFolders.Add(SubFolder);
		if (bRecursive)
		{
			GetSubFolders(SubFolder, true, OutFolders);
		}
	}
}

void FAssetRegistryState::AddReferencer(FName Referred, FName PackageName) const
{
	TArray<FName>& Names = Referencers.FindOrAdd(Referred);
	// A package may refer to another hard and soft; both come one after the other.
	if (Names.IsEmpty() || Names.Last() != PackageName)
	{
		Names.Add(PackageName);
	}
}

const TArray<FName>* FAssetRegistryState::FindReferencers(FName PackageName) const
{
	if (!bHasReferencers)
	{
		bHasReferencers = true;
		for (const TPair<FName, FPackageRecord>& Package : Packages)
		{
			for (const FPackageDependency& Dependency : Package.Value.Dependencies)
			{
				AddReferencer(Dependency.PackageName, Package.Key);
			}
		}
	}
	return Referencers.Find(PackageName);
}

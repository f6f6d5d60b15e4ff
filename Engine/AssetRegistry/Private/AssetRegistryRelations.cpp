#include "AssetRegistryImpl.h"
#include "UObject/Class.h"
#include "UObject/UObjectHash.h"

namespace
{
using UE::AssetRegistry::EDependencyCategory;
using UE::AssetRegistry::FDependencyQuery;

/** Names of packages out of relations, each once, though a package may refer to another hard and soft. */
void TakeNames(const TArray<FAssetDependency>& Relations, TArray<FName>& OutNames)
{
	TSet<FName> Seen(OutNames);
	for (const FAssetDependency& Relation : Relations)
	{
		bool bSeen = false;
		Seen.Add(Relation.AssetId.PackageName, &bSeen);
		if (!bSeen)
		{
			OutNames.Add(Relation.AssetId.PackageName);
		}
	}
}

/** A Blueprint in work has classes beside its own, which nobody asks for. */
bool IsWorkingClass(const UClass* Class)
{
	const FString Name = Class->GetName();
	return Class->HasAnyClassFlags(CLASS_NewerVersionExists) || Name.StartsWith(TEXT("SKEL_"), ESearchCase::CaseSensitive) ||
		Name.StartsWith(TEXT("REINST_"), ESearchCase::CaseSensitive);
}

/** The direct subclasses: of a class in memory those in memory, and those that only a file tells of. */
void FindChildClasses(const FAssetRegistryState& State, const FTopLevelAssetPath& ClassPath, TArray<FTopLevelAssetPath>& OutChildren)
{
	if (const UClass* const Class = FindObject<UClass>(ClassPath))
	{
		TArray<UClass*> Children;
		GetDerivedClasses(Class, Children, false);
		for (const UClass* const Child : Children)
		{
			if (!IsWorkingClass(Child))
			{
				OutChildren.Add(Child->GetClassPathName());
			}
		}
	}
	const TArray<FTopLevelAssetPath>* const OnDisk = State.FindChildClasses(ClassPath);
	for (int32 Index = 0; OnDisk && Index < OnDisk->Num(); ++Index)
	{
		// One in memory may have another parent by now.
		if (!FindObject<UClass>((*OnDisk)[Index]))
		{
			OutChildren.Add((*OnDisk)[Index]);
		}
	}
}
}

bool FAssetRegistryImpl::GetDependencies(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutDependencies,
	EDependencyCategory Category, const FDependencyQuery& Flags) const
{
	SearchOnce();
	const FPackageRecord* const Record = State.FindPackage(AssetIdentifier.PackageName);
	if (!IsPackageKnown(AssetIdentifier.PackageName) || !AssetIdentifier.IsPackage())
	{
		return false;
	}
	for (const FPackageDependency& Dependency : Record->Dependencies)
	{
		if (EnumHasAnyFlags(Category, EDependencyCategory::Package) && Flags.Matches(Dependency.Properties))
		{
			OutDependencies.Add({FAssetIdentifier(Dependency.PackageName), EDependencyCategory::Package, Dependency.Properties});
		}
	}
	return true;
}

bool FAssetRegistryImpl::GetDependencies(
	FName PackageName, TArray<FName>& OutDependencies, EDependencyCategory Category, const FDependencyQuery& Flags) const
{
	TArray<FAssetDependency> Relations;
	const bool bKnown = GetDependencies(FAssetIdentifier(PackageName), Relations, Category, Flags);
	TakeNames(Relations, OutDependencies);
	return bKnown;
}

bool FAssetRegistryImpl::GetReferencers(const FAssetIdentifier& AssetIdentifier, TArray<FAssetDependency>& OutReferencers,
	EDependencyCategory Category, const FDependencyQuery& Flags) const
{
	SearchOnce();
	const FName PackageName = AssetIdentifier.PackageName;
	const TArray<FName>* const Names = AssetIdentifier.IsPackage() ? State.FindReferencers(PackageName) : nullptr;
	for (int32 Index = 0; Names && Index < Names->Num(); ++Index)
	{
		for (const FPackageDependency& Dependency : State.FindPackage((*Names)[Index])->Dependencies)
		{
			const bool bWanted = EnumHasAnyFlags(Category, EDependencyCategory::Package) && Flags.Matches(Dependency.Properties);
			if (Dependency.PackageName == PackageName && bWanted)
			{
				OutReferencers.Add({FAssetIdentifier((*Names)[Index]), EDependencyCategory::Package, Dependency.Properties});
			}
		}
	}
	return Names || (AssetIdentifier.IsPackage() && IsPackageKnown(PackageName));
}

bool FAssetRegistryImpl::GetReferencers(
	FName PackageName, TArray<FName>& OutReferencers, EDependencyCategory Category, const FDependencyQuery& Flags) const
{
	TArray<FAssetDependency> Relations;
	const bool bKnown = GetReferencers(FAssetIdentifier(PackageName), Relations, Category, Flags);
	TakeNames(Relations, OutReferencers);
	return bKnown;
}

bool FAssetRegistryImpl::GetAncestorClassNames(FTopLevelAssetPath ClassPathName, TArray<FTopLevelAssetPath>& OutAncestorClassNames) const
{
	SearchOnce();
	TSet<FTopLevelAssetPath> Seen{ClassPathName};
	FTopLevelAssetPath Current = ClassPathName;
	bool bKnown = false;
	for (;;)
	{
		const UClass* const Class = FindObject<UClass>(Current);
		const UClass* const Super = Class ? Class->GetSuperClass() : nullptr;
		const FTopLevelAssetPath* const OnDisk = Class ? nullptr : State.FindParentClass(Current);
		bKnown |= Class || OnDisk;
		if (!Super && !OnDisk)
		{
			return bKnown;
		}
		Current = Super ? Super->GetClassPathName() : *OnDisk;
		bool bSeen = false;
		Seen.Add(Current, &bSeen);
		// Files may say what they like, a circle of parents too.
		if (bSeen)
		{
			return bKnown;
		}
		OutAncestorClassNames.Add(Current);
	}
}

void FAssetRegistryImpl::GetDerivedClassNames(const TArray<FTopLevelAssetPath>& ClassNames,
	const TSet<FTopLevelAssetPath>& ExcludedClassNames, TSet<FTopLevelAssetPath>& OutDerivedClassNames) const
{
	SearchOnce();
	TArray<FTopLevelAssetPath> Open(ClassNames);
	while (!Open.IsEmpty())
	{
		const FTopLevelAssetPath Current = Open.Pop();
		if (!ExcludedClassNames.Contains(Current) && !OutDerivedClassNames.Contains(Current))
		{
			OutDerivedClassNames.Add(Current);
			FindChildClasses(State, Current, Open);
		}
	}
}

void FAssetRegistryImpl::GetAllCachedPaths(TArray<FString>& OutPathList) const
{
	SearchOnce();
	for (const TPair<FName, TSet<FName>>& Folder : State.GetFolders())
	{
		OutPathList.Add(Folder.Key.ToString());
	}
	OutPathList.Sort();
}

void FAssetRegistryImpl::GetSubPaths(const FString& InBasePath, TArray<FString>& OutPathList, bool bInRecurse) const
{
	SearchOnce();
	TArray<FName> Folders;
	State.GetSubFolders(FName(*InBasePath), bInRecurse, Folders);
	Folders.Sort(FNameLexicalLess());
	for (const FName Folder : Folders)
	{
		OutPathList.Add(Folder.ToString());
	}
}

bool FAssetRegistryImpl::PathExists(const FString& PathToTest) const
{
	SearchOnce();
	return State.HasFolder(FName(*PathToTest));
}

#include "AssetRegistry/AssetRegistryModule.h"
#include "AssetRegistryCache.h"
#include "AssetRegistryImpl.h"
#include "Misc/PackageName.h"
#include "Modules/ModuleManager.h"
#include "PackageFileGatherer.h"
#include "UObject/ObjectSaveContext.h"
#include "UObject/Package.h"

IMPLEMENT_MODULE(FAssetRegistryModule, AssetRegistry)

DEFINE_LOG_CATEGORY_STATIC(LogAssetRegistry, Log, All);

namespace
{
/** The project's Saved folder, where autosaves and copies are: no assets of the project. */
const TCHAR* const TempRoot = TEXT("/Temp/");

/** Packages of files that are known below the folder, and the one of this name. */
void FindKnown(const FAssetRegistryState& State, const FString& PackagePath, TArray<FName>& OutNames)
{
	const FName Folder(*(PackagePath.EndsWith(TEXT("/")) ? PackagePath.LeftChop(1) : PackagePath));
	TArray<FName> Folders{Folder};
	State.GetSubFolders(Folder, true, Folders);
	for (const FName Each : Folders)
	{
		if (const TSet<FName>* const Packages = State.FindPackagesInFolder(Each))
		{
			OutNames.Append(Packages->Array());
		}
	}
	if (State.FindPackage(Folder))
	{
		OutNames.Add(Folder);
	}
}

void FindFiles(const FString& PackagePath, TArray<FPackageFile>& OutFiles)
{
	FString Filename;
	if (FPackageName::IsValidLongPackageName(PackagePath) && FPackageName::DoesPackageExist(PackagePath, &Filename))
	{
		OutFiles.Add({Filename, FName(*PackagePath)});
	}
	TArray<FString> Problems;
	PackageFileGatherer::FindFiles(PackagePath, OutFiles, Problems);
	for (const FString& Problem : Problems)
	{
		UE_LOG(LogAssetRegistry, Warning, TEXT("%s"), *Problem);
	}
}
}

IAssetRegistry* IAssetRegistry::Get()
{
	static FAssetRegistryImpl Registry;
	return &Registry;
}

FAssetRegistryImpl::FAssetRegistryImpl()
{
	PackageSavedHandle = UPackage::PackageSavedWithContextEvent.AddLambda([this](const FString& Filename, UPackage*, FObjectPostSaveContext)
		{ OnPackageSaved(Filename); });
}

FAssetRegistryImpl::~FAssetRegistryImpl()
{
	UPackage::PackageSavedWithContextEvent.Remove(PackageSavedHandle);
}

void FAssetRegistryImpl::SearchOnce() const
{
	if (!bHasSearched)
	{
		const_cast<FAssetRegistryImpl*>(this)->SearchAllAssets(true);
	}
}

void FAssetRegistryImpl::SearchAllAssets(bool bSynchronousSearch)
{
	const bool bFirst = !bHasSearched;
	bHasSearched = true;
	bIsSearching = true;
	FAssetRegistryCache Cache;
	const FString CacheFile = FAssetRegistryCache::GetDefaultFilename();
	FString Error;
	if (bFirst && !CacheFile.IsEmpty() && !Cache.Load(CacheFile, Error))
	{
		UE_LOG(LogAssetRegistry, Warning, TEXT("The asset registry's cache is not used: %s"), *Error);
	}
	TArray<FPackageFile> Files;
	TArray<FString> Roots;
	FPackageName::QueryRootContentPaths(Roots);
	for (const FString& Root : Roots)
	{
		if (Root != TempRoot)
		{
			FindFiles(Root, Files);
		}
	}
	TArray<FName> Known;
	State.GetPackages().GetKeys(Known);
	const int32 NumCached = Cache.Num();
	const bool bChanged = Scan(Files, Known, Cache, false);
	const bool bCacheIsRight = bFirst ? !bChanged && NumCached == State.GetPackages().Num() : !bChanged;
	if (!CacheFile.IsEmpty() && !bCacheIsRight && !FAssetRegistryCache::Save(CacheFile, State, Error))
	{
		UE_LOG(LogAssetRegistry, Warning, TEXT("The asset registry's cache cannot be written: %s"), *Error);
	}
	bIsSearching = false;
	FilesLoadedEvent.Broadcast();
}

void FAssetRegistryImpl::ScanPathsSynchronous(const TArray<FString>& InPaths, bool bForceRescan)
{
	SearchOnce();
	TArray<FPackageFile> Files;
	TArray<FName> Known;
	for (const FString& Path : InPaths)
	{
		FindFiles(Path, Files);
		FindKnown(State, Path, Known);
	}
	FAssetRegistryCache Nothing;
	Scan(Files, Known, Nothing, bForceRescan);
}

void FAssetRegistryImpl::ScanFilesSynchronous(const TArray<FString>& InFilePaths, bool bForceRescan)
{
	SearchOnce();
	TArray<FPackageFile> Files;
	for (const FString& Filename : InFilePaths)
	{
		FString PackageName;
		FString Error;
		if (!FPackageName::TryConvertFilenameToLongPackageName(Filename, PackageName, &Error) || PackageName.Len() >= NAME_SIZE)
		{
			UE_LOG(LogAssetRegistry, Warning, TEXT("%s"), *Error);
			continue;
		}
		Files.Add({Filename, FName(*PackageName)});
	}
	FAssetRegistryCache Nothing;
	Scan(Files, {}, Nothing, bForceRescan);
}

bool FAssetRegistryImpl::Scan(const TArray<FPackageFile>& Files, const TArray<FName>& Known, FAssetRegistryCache& Cache, bool bForce)
{
	using EOutcome = FGatheredPackage::EOutcome;
	TArray<FGatheredPackage> Gathered = PackageFileGatherer::Gather(Files, State, Cache, bForce);
	TSet<FName> Outdated(Known);
	TSet<FName> Present;
	bool bChanged = false;
	for (const FGatheredPackage& Package : Gathered)
	{
		const bool bKeep = Package.Outcome == EOutcome::Unchanged;
		if (bKeep)
		{
			Outdated.Remove(Package.PackageName);
		}
		else if (State.FindPackage(Package.PackageName))
		{
			Outdated.Add(Package.PackageName);
		}
		bChanged |= !bKeep && Package.Outcome != EOutcome::Cached;
		if (Package.Outcome == EOutcome::Broken)
		{
			UE_LOG(LogAssetRegistry, Warning, TEXT("%s"), *Package.Error);
		}
	}
	TMap<FSoftObjectPath, FAssetData> Before;
	for (const FName Name : Outdated)
	{
		if (const FPackageRecord* const Record = State.FindPackage(Name))
		{
			bChanged = true;
			for (const int32 Id : Record->AssetIds)
			{
				Before.Add(State.GetAsset(Id).GetSoftObjectPath(), State.GetAsset(Id));
			}
		}
	}
	State.RemovePackages(Outdated.Array());
	TArray<FAssetData> Added;
	TArray<FAssetData> Updated;
	const bool bAnyoneListens = AssetAddedEvent.IsBound() || AssetUpdatedEvent.IsBound() || AssetRemovedEvent.IsBound();
	for (FGatheredPackage& Package : Gathered)
	{
		const bool bTake =
			Package.Outcome != EOutcome::Unchanged && Package.Outcome != EOutcome::Missing && !State.FindPackage(Package.PackageName);
		if (!bTake)
		{
			continue;
		}
		for (const FAssetData& Asset : Package.Header.Assets)
		{
			if (bAnyoneListens)
			{
				const bool bWasThere = Before.Remove(Asset.GetSoftObjectPath()) > 0;
				(bWasThere ? Updated : Added).Add(Asset);
			}
		}
		FPackageRecord Record{Package.Stamp, Package.Outcome == EOutcome::Broken, MoveTemp(Package.Header.Dependencies), {}};
		State.AddPackage(Package.PackageName, MoveTemp(Record), MoveTemp(Package.Header.Assets));
	}
	// Told at the end, so that a listener that asks gets answers of the new state.
	for (const TPair<FSoftObjectPath, FAssetData>& Asset : Before)
	{
		AssetRemovedEvent.Broadcast(Asset.Value);
	}
	for (const FAssetData& Asset : Added)
	{
		AssetAddedEvent.Broadcast(Asset);
	}
	for (const FAssetData& Asset : Updated)
	{
		AssetUpdatedEvent.Broadcast(Asset);
	}
	return bChanged;
}

void FAssetRegistryImpl::OnPackageSaved(const FString& Filename)
{
	FString PackageName;
	// Autosaves and copies are saved too, outside of the folders with assets.
	const bool bOfProject = FPackageName::TryConvertFilenameToLongPackageName(Filename, PackageName) && !PackageName.StartsWith(TempRoot);
	if (bHasSearched && bOfProject)
	{
		ScanFilesSynchronous({Filename}, true);
	}
}

void FAssetRegistryImpl::AssetCreated(UObject* NewAsset)
{
	if (NewAsset && NewAsset->IsAsset())
	{
		DeletedAssets.Remove(NewAsset);
		AssetAddedEvent.Broadcast(FAssetData(NewAsset));
	}
}

void FAssetRegistryImpl::AssetDeleted(UObject* DeletedAsset)
{
	if (!DeletedAsset)
	{
		return;
	}
	const FAssetData Data(DeletedAsset);
	// Names of objects that are gone are of no more use.
	for (auto It = DeletedAssets.CreateIterator(); It; ++It)
	{
		if (!It->IsValid())
		{
			It.RemoveCurrent();
		}
	}
	DeletedAssets.Add(DeletedAsset);
	State.RemovePackages({Data.PackageName});
	AssetRemovedEvent.Broadcast(Data);
}

void FAssetRegistryImpl::PackageDeleted(UPackage* DeletedPackage)
{
	if (DeletedPackage)
	{
		State.RemovePackages({DeletedPackage->GetFName()});
	}
}

void FAssetRegistryImpl::AssetRenamed(const UObject* RenamedAsset, const FString& OldObjectPath)
{
	if (!RenamedAsset || !RenamedAsset->IsAsset())
	{
		return;
	}
	const FAssetData Data(RenamedAsset);
	const FTopLevelAssetPath OldPath(OldObjectPath);
	const UObject* const Successor = FindObject<UObject>(nullptr, *OldObjectPath);
	// What stands there now, a redirector maybe, is in memory and speaks for itself; a file that is left is found again when searched for.
	if (!Successor || IsListed(Successor))
	{
		State.RemovePackages({OldPath.GetPackageName()});
	}
	AssetRenamedEvent.Broadcast(Data, OldObjectPath);
}

void FAssetRegistryImpl::AssetUpdateTags(UObject* Asset)
{
	if (Asset && IsListed(Asset))
	{
		AssetUpdatedEvent.Broadcast(FAssetData(Asset));
	}
}

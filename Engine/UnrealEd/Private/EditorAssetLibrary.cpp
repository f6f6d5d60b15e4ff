#include "EditorAssetLibrary.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Editor/EditorEngine.h"
#include "Engine/Blueprint.h"
#include "HAL/FileManager.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "Subsystems/AssetEditorSubsystem.h"
#include "UObject/ObjectRedirector.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UObjectHash.h"

DEFINE_LOG_CATEGORY_STATIC(LogEditorAssetLibrary, Log, All);

namespace
{
/** "/Game/Dir/Asset.Asset" of every spelling of an asset's path; empty when the text is none. */
FString GetObjectPath(const FString& AssetPath)
{
	FString Path = FPackageName::ExportTextPathToObjectPath(AssetPath.TrimStartAndEnd().TrimQuotes());
	int32 Dot = INDEX_NONE;
	if (!Path.FindChar(TEXT('.'), Dot))
	{
		Path = Path + TEXT(".") + FPackageName::GetShortName(Path);
	}
	return FPackageName::IsValidObjectPath(Path) ? Path : FString();
}

constexpr ERenameFlagsType MoveFlags = REN_DontCreateRedirectors | REN_NonTransactional | REN_DoNotDirty | REN_ForceNoResetLoaders;

/** "/Game/Dir" of a folder's path with or without a slash behind it; empty when it is no package path. */
FString GetFolder(const FString& DirectoryPath)
{
	FString Folder = DirectoryPath.TrimStartAndEnd();
	while (Folder.EndsWith(TEXT("/")))
	{
		Folder = Folder.LeftChop(1);
	}
	return Folder.StartsWith(TEXT("/")) && !Folder.Contains(TEXT("..")) ? Folder : FString();
}

bool ConvertFolder(const FString& DirectoryPath, FString& OutDirectory)
{
	const FString Folder = GetFolder(DirectoryPath);
	return !Folder.IsEmpty() && FPackageName::TryConvertLongPackageNameToFilename(Folder + TEXT("/"), OutDirectory);
}

/** The object path of a place that no asset has; empty, and an error in the log, otherwise. */
FString FindFreePath(const FString& AssetPath, const TCHAR* Operation)
{
	const FString Path = GetObjectPath(AssetPath);
	FText Reason;
	if (Path.IsEmpty() || !FPackageName::IsValidLongPackageName(FPackageName::ObjectPathToPackageName(Path), false, &Reason))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("%s failed: '%s' is no path of an asset. %s"), Operation, *AssetPath, *Reason.ToString());
		return FString();
	}
	if (UEditorAssetLibrary::DoesAssetExist(Path))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("%s failed: '%s' exists already."), Operation, *AssetPath);
		return FString();
	}
	return Path;
}

/** An object that left a package, with the name that it had there. */
struct FMovedObject
{
	UObject* Object = nullptr;
	FName OldName;
};

UObject* DuplicateBlueprint(const UBlueprint& Blueprint, UPackage& Package, FName Name)
{
	UBlueprint* const Copy = DuplicateObject<UBlueprint>(&Blueprint, &Package, Name);
	if (Copy)
	{
		FBlueprintEditorUtils::PostDuplicateBlueprint(Copy, false);
	}
	return Copy;
}

void MoveAsset(UObject& Asset, UPackage& Package, const FString& Name, TArray<FMovedObject>& OutMoved)
{
	const auto Move = [&Package, &OutMoved](UObject* Object, const FString& NewName)
	{
		if (Object)
		{
			OutMoved.Add({Object, Object->GetFName()});
			Object->Rename(*NewName, &Package, MoveFlags);
		}
	};
	if (const UBlueprint* const Blueprint = Cast<UBlueprint>(&Asset))
	{
		Move(Blueprint->GeneratedClass.Get(), Name + TEXT("_C"));
		if (Blueprint->SkeletonGeneratedClass)
		{
			Blueprint->SkeletonGeneratedClass->Rename(*FString::Printf(TEXT("SKEL_%s_C"), *Name), &Package, MoveFlags);
		}
	}
	Move(&Asset, Name);
}
}

UObject* UEditorAssetLibrary::LoadAsset(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	UObject* const Asset = ObjectPath.IsEmpty() ? nullptr : LoadObject<UObject>(nullptr, *ObjectPath, nullptr, LOAD_NoWarn | LOAD_Quiet);
	if (!Asset)
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("LoadAsset failed: The AssetData '%s' could not be found in the Asset Registry."),
			*AssetPath);
	}
	return Asset;
}

bool UEditorAssetLibrary::DoesAssetExist(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	return !ObjectPath.IsEmpty() &&
		(FindObject<UObject>(nullptr, *ObjectPath) || FPackageName::DoesPackageExist(FPackageName::ObjectPathToPackageName(ObjectPath)));
}

UClass* UEditorAssetLibrary::LoadBlueprintClass(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	UObject* const Asset = ObjectPath.IsEmpty() ? nullptr : LoadObject<UObject>(nullptr, *ObjectPath, nullptr, LOAD_NoWarn | LOAD_Quiet);
	const UBlueprint* const Blueprint = Cast<UBlueprint>(Asset);
	UClass* const Class = Blueprint ? Blueprint->GeneratedClass.Get() : Cast<UClass>(Asset);
	if (!Class)
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("LoadBlueprintClass failed: '%s' is no Blueprint."), *AssetPath);
	}
	return Class;
}

FString UEditorAssetLibrary::GetPathNameForLoadedAsset(UObject* LoadedAsset)
{
	if (!IsValid(LoadedAsset) || !LoadedAsset->IsAsset())
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("GetPathNameForLoadedAsset failed: %s is no asset."), *GetNameSafe(LoadedAsset));
		return FString();
	}
	return LoadedAsset->GetPathName();
}

FAssetData UEditorAssetLibrary::FindAssetData(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	return ObjectPath.IsEmpty() ? FAssetData() : IAssetRegistry::GetChecked().GetAssetByObjectPath(FSoftObjectPath(ObjectPath));
}

TArray<FString> UEditorAssetLibrary::ListAssets(const FString& DirectoryPath, bool bRecursive, bool bIncludeFolder)
{
	TArray<FString> Paths;
	const FString Folder = GetFolder(DirectoryPath);
	TArray<FAssetData> Assets;
	if (Folder.IsEmpty() || !IAssetRegistry::GetChecked().GetAssetsByPath(FName(*Folder), Assets, bRecursive))
	{
		return Paths;
	}
	TSet<FString> Folders;
	for (const FAssetData& Asset : Assets)
	{
		Paths.Add(Asset.GetObjectPathString());
		// Each folder on the way down from the one that was asked for.
		for (FString Below = Asset.PackagePath.ToString(); bIncludeFolder && Below.Len() > Folder.Len(); Below = FPaths::GetPath(Below))
		{
			Folders.Add(Below + TEXT("/"));
		}
	}
	for (const FString& Below : Folders)
	{
		Paths.Add(Below);
	}
	Paths.Sort();
	return Paths;
}

bool UEditorAssetLibrary::DoesDirectoryExist(const FString& DirectoryPath)
{
	FString Directory;
	return ConvertFolder(DirectoryPath, Directory) && IFileManager::Get().DirectoryExists(*Directory);
}

bool UEditorAssetLibrary::MakeDirectory(const FString& DirectoryPath)
{
	FString Directory;
	return ConvertFolder(DirectoryPath, Directory) && IFileManager::Get().MakeDirectory(*Directory, true);
}

bool UEditorAssetLibrary::DeleteAsset(const FString& AssetPathToDelete)
{
	UObject* const Asset = LoadAsset(AssetPathToDelete);
	return Asset && DeleteLoadedAsset(Asset);
}

bool UEditorAssetLibrary::DeleteLoadedAsset(UObject* AssetToDelete)
{
	if (!IsValid(AssetToDelete) || !AssetToDelete->IsAsset())
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("DeleteLoadedAsset failed: %s is no asset."), *GetNameSafe(AssetToDelete));
		return false;
	}
	UPackage* const Package = AssetToDelete->GetPackage();
	FString Filename;
	if (FPackageName::DoesPackageExist(Package->GetName(), &Filename) && !IFileManager::Get().Delete(*Filename))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("DeleteLoadedAsset failed: '%s' cannot be deleted."), *Filename);
		return false;
	}
	if (GEditor)
	{
		// Entries would hold on to what is in the package.
		GEditor->ResetTransaction(NSLOCTEXT("UnrealEd", "DeleteAsset", "Delete Asset"));
		if (UAssetEditorSubsystem* const Editors = GEditor->GetEditorSubsystem<UAssetEditorSubsystem>())
		{
			Editors->CloseAllEditorsForAsset(AssetToDelete);
		}
	}
	IAssetRegistry::GetChecked().AssetDeleted(AssetToDelete);
	TArray<UObject*> Contents;
	GetObjectsWithOuter(Package, Contents, false);
	for (UObject* const Object : Contents)
	{
		Object->ClearFlags(static_cast<EObjectFlags>(RF_Standalone | RF_Public));
		Object->Rename(nullptr, GetTransientPackageAsObject(), MoveFlags | REN_ForceGlobalUnique);
		Object->MarkAsGarbage();
	}
	Package->SetDirtyFlag(false);
	CollectGarbage(RF_Standalone);
	return true;
}

bool UEditorAssetLibrary::RenameAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath)
{
	UObject* const Asset = LoadAsset(SourceAssetPath);
	return Asset && RenameLoadedAsset(Asset, DestinationAssetPath);
}

bool UEditorAssetLibrary::RenameLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath)
{
	const FString Destination = FindFreePath(DestinationAssetPath, TEXT("RenameLoadedAsset"));
	if (Destination.IsEmpty() || !IsValid(SourceAsset) || !SourceAsset->IsAsset())
	{
		return false;
	}
	UPackage* const OldPackage = SourceAsset->GetPackage();
	UPackage* const NewPackage = CreatePackage(*FPackageName::ObjectPathToPackageName(Destination));
	const FString OldName = SourceAsset->GetName();
	FString OldFilename;
	const bool bHasFile = FPackageName::DoesPackageExist(OldPackage->GetName(), &OldFilename);
	IAssetRegistry::GetChecked().AssetDeleted(SourceAsset);
	TArray<FMovedObject> Moved;
	MoveAsset(*SourceAsset, *NewPackage, FPackageName::ObjectPathToObjectName(Destination), Moved);
	IAssetRegistry::GetChecked().AssetCreated(SourceAsset);
	NewPackage->SetDirtyFlag(true);
	if (!SaveLoadedAsset(SourceAsset, false))
	{
		return false;
	}
	if (!bHasFile)
	{
		return true;
	}
	for (const FMovedObject& Object : Moved)
	{
		UObjectRedirector* const Redirector = NewObject<UObjectRedirector>(OldPackage, Object.OldName, RF_Public | RF_Standalone);
		Redirector->DestinationObject = Object.Object;
	}
	FSavePackageArgs Arguments;
	Arguments.TopLevelFlags = RF_Public | RF_Standalone;
	if (!UPackage::SavePackage(OldPackage, StaticFindObjectFast(nullptr, OldPackage, FName(*OldName)), *OldFilename, Arguments))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("RenameLoadedAsset failed: '%s' could not be written."), *OldFilename);
		return false;
	}
	return true;
}

UObject* UEditorAssetLibrary::DuplicateAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath)
{
	UObject* const Asset = LoadAsset(SourceAssetPath);
	return Asset ? DuplicateLoadedAsset(Asset, DestinationAssetPath) : nullptr;
}

UObject* UEditorAssetLibrary::DuplicateLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath)
{
	const FString Destination = FindFreePath(DestinationAssetPath, TEXT("DuplicateLoadedAsset"));
	if (Destination.IsEmpty() || !IsValid(SourceAsset) || !SourceAsset->IsAsset())
	{
		return nullptr;
	}
	UPackage* const Package = CreatePackage(*FPackageName::ObjectPathToPackageName(Destination));
	const FName Name(*FPackageName::ObjectPathToObjectName(Destination));
	const UBlueprint* const Blueprint = Cast<UBlueprint>(SourceAsset);
	UObject* const Copy = Blueprint ? DuplicateBlueprint(*Blueprint, *Package, Name) : DuplicateObject<UObject>(SourceAsset, Package, Name);
	if (Copy)
	{
		Copy->SetFlags(static_cast<EObjectFlags>(RF_Public | RF_Standalone | RF_Transactional));
		Package->SetDirtyFlag(true);
		IAssetRegistry::GetChecked().AssetCreated(Copy);
	}
	return Copy;
}

bool UEditorAssetLibrary::SaveAsset(const FString& AssetToSave, bool bOnlyIfIsDirty)
{
	UObject* const Asset = LoadAsset(AssetToSave);
	return Asset && SaveLoadedAsset(Asset, bOnlyIfIsDirty);
}

bool UEditorAssetLibrary::SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty)
{
	if (!IsValid(AssetToSave))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("SaveLoadedAsset failed: The asset is not valid."));
		return false;
	}
	UPackage* const Package = AssetToSave->GetPackage();
	if (bOnlyIfIsDirty && !Package->IsDirty())
	{
		return true;
	}
	FString Filename;
	const FString Extension = Package->ContainsMap() ? FPackageName::GetMapPackageExtension() : FPackageName::GetAssetPackageExtension();
	if (!FPackageName::TryConvertLongPackageNameToFilename(Package->GetName(), Filename, Extension))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("SaveLoadedAsset failed: '%s' has no place on disk."), *Package->GetName());
		return false;
	}
	FSavePackageArgs Arguments;
	Arguments.TopLevelFlags = RF_Public | RF_Standalone;
	if (!UPackage::SavePackage(Package, AssetToSave, *Filename, Arguments))
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("SaveLoadedAsset failed: '%s' could not be written."), *Filename);
		return false;
	}
	Package->SetDirtyFlag(false);
	return true;
}

#include "EditorAssetLibrary.h"

#include "AssetRegistry/AssetRegistryModule.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/SavePackage.h"
#include "UObject/UObjectGlobals.h"

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
}

UObject* UEditorAssetLibrary::LoadAsset(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	UObject* const Asset = ObjectPath.IsEmpty() ? nullptr : LoadObject<UObject>(nullptr, *ObjectPath, nullptr, LOAD_NoWarn | LOAD_Quiet);
	if (!Asset)
	{
		UE_LOG(LogEditorAssetLibrary, Error, TEXT("LoadAsset failed: The AssetData '%s' could not be found in the Asset Registry."), *AssetPath);
	}
	return Asset;
}

bool UEditorAssetLibrary::DoesAssetExist(const FString& AssetPath)
{
	const FString ObjectPath = GetObjectPath(AssetPath);
	return !ObjectPath.IsEmpty() && (FindObject<UObject>(nullptr, *ObjectPath) || FPackageName::DoesPackageExist(FPackageName::ObjectPathToPackageName(ObjectPath)));
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

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "Kismet/BlueprintFunctionLibrary.h"

#include "EditorAssetLibrary.generated.h"

/** Assets by path, for scripts. A path is "/Game/Dir/Asset", "/Game/Dir/Asset.Asset" or the reference text with the class. */
UCLASS()
class UNREALED_API UEditorAssetLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Null, and an error in the log, when there is no such asset. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static UObject* LoadAsset(const FString& AssetPath);

	/** True if there is an asset of that path. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool DoesAssetExist(const FString& AssetPath);

	/** The class that the Blueprint makes; the path may name the class itself. Null, and an error in the log, when there is none. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static UClass* LoadBlueprintClass(const FString& AssetPath);

	/** "/Game/Dir/Asset.Asset" of a loaded asset; empty, and an error in the log, for anything else. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static FString GetPathNameForLoadedAsset(UObject* LoadedAsset);

	/** What the registry knows of the asset; invalid when there is none. Nothing is loaded. */
	static FAssetData FindAssetData(const FString& AssetPath);

	/** Paths of the assets below the folder, in their order. Folders are paths that end in "/". */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static TArray<FString> ListAssets(const FString& DirectoryPath, bool bRecursive = true, bool bIncludeFolder = false);

	/** True if there is a folder of that path. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool DoesDirectoryExist(const FString& DirectoryPath);

	/** Makes the folder, and those above it that are missing. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool MakeDirectory(const FString& DirectoryPath);

	/** Deletes the asset with its file. What refers to it refers to nothing then, and no undo brings it back. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool DeleteAsset(const FString& AssetPathToDelete);

	/** Deletes a loaded asset and its file. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool DeleteLoadedAsset(UObject* AssetToDelete);

	/**
	 * Moves the asset, and a Blueprint's classes with it, and saves it there. Loaded packages refer to it still; the old package
	 * leads those that are not loaded to the new one. False when the new path is taken or is no path.
	 */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool RenameAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath);

	/** Moves a loaded asset to another path. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool RenameLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath);

	/** A copy under the new path, in memory until it is saved. Null when the path is taken or is no path. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static UObject* DuplicateAsset(const FString& SourceAssetPath, const FString& DestinationAssetPath);

	/** Makes a copy of a loaded asset at another path. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static UObject* DuplicateLoadedAsset(UObject* SourceAsset, const FString& DestinationAssetPath);

	/** Writes the asset's package, whole or not at all. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool SaveAsset(const FString& AssetToSave, bool bOnlyIfIsDirty = true);

	/** Saves a loaded asset. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty = true);
};

#pragma once

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

	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool DoesAssetExist(const FString& AssetPath);

	/** Writes the asset's package, whole or not at all. */
	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool SaveAsset(const FString& AssetToSave, bool bOnlyIfIsDirty = true);

	UFUNCTION(BlueprintCallable, Category = "Editor Scripting | Asset", meta = (DevelopmentOnly))
	static bool SaveLoadedAsset(UObject* AssetToSave, bool bOnlyIfIsDirty = true);
};

#pragma once

#include "AssetRegistry/AssetData.h"
#include "CoreMinimal.h"
#include "EditorSubsystem.h"
#include "Tools/VexelAssetNameIndex.h"

#include "VexelAssetIndexSubsystem.generated.h"

/**
 * Names and classes of the assets that the registry knows, kept as it tells of changes. Read from the registry when it is first asked.
 * Game thread.
 */
UCLASS()
class UVexelAssetIndexSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	static UVexelAssetIndexSubsystem& Get();

	/** The names of the project's assets, or those of the engine's own content. */
	const FVexelAssetNameIndex& GetNames(bool bOfEngine);
	/** How many assets of each class the project has. */
	const TMap<FTopLevelAssetPath, int32>& GetNumOfClass();
	/** The classes of that name that assets have or that are loaded. A path names itself. */
	TArray<FTopLevelAssetPath> FindClasses(const FString& Name);

	/** Whether a package, or a folder, is of the engine and not of the project. */
	bool IsEngineContent(FName PackageName);

	virtual void Deinitialize() override;

private:
	void ReadOnce();
	void HandleAdded(const FAssetData& Asset);
	void HandleRemoved(const FAssetData& Asset);
	void HandleRenamed(const FAssetData& Asset, const FString& OldObjectPath);
	void Add(const FAssetData& Asset);
	void Remove(const FTopLevelAssetPath& Path);

	FVexelAssetNameIndex ProjectNames;
	FVexelAssetNameIndex EngineNames;
	/** Content roots ("Game") that have been asked for. */
	TMap<FName, bool> EngineRoots;
	TMap<FTopLevelAssetPath, FTopLevelAssetPath> Classes;
	TMap<FTopLevelAssetPath, int32> NumOfClass;
	bool bRead = false;
};

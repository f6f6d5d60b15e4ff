#pragma once

#include "CoreMinimal.h"
#include "EditorSubsystem.h"

#include "AssetEditorSubsystem.generated.h"

/** Knows which assets are open. The headless host has no windows: open means listed here. */
UCLASS()
class UNREALED_API UAssetEditorSubsystem : public UEditorSubsystem
{
	GENERATED_BODY()

public:
	DECLARE_EVENT_OneParam(UAssetEditorSubsystem, FAssetEditorOpenEvent, UObject*);
	FAssetEditorOpenEvent& OnAssetEditorOpened() { return AssetEditorOpenedEvent; }

	/** False for null and for an object that is no asset. Opening an open asset brings it to the end of the list. */
	bool OpenEditorForAsset(UObject* Asset);
	bool OpenEditorForAsset(const FString& AssetPathName);
	bool OpenEditorForAssets(const TArray<UObject*>& Assets);
	void CloseAllEditorsForAsset(UObject* Asset);
	bool CloseAllAssetEditors();
	/** In the order of opening. */
	TArray<UObject*> GetAllEditedAssets();

	virtual void Deinitialize() override;

private:
	UPROPERTY(Transient)
	TArray<TObjectPtr<UObject>> OpenedAssets;

	FAssetEditorOpenEvent AssetEditorOpenedEvent;
};

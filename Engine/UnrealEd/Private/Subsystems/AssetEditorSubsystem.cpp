#include "Subsystems/AssetEditorSubsystem.h"

#include "UObject/UObjectGlobals.h"

bool UAssetEditorSubsystem::OpenEditorForAsset(UObject* Asset)
{
	if (!IsValid(Asset) || !Asset->IsAsset())
	{
		return false;
	}
	OpenedAssets.Remove(Asset);
	OpenedAssets.Add(Asset);
	AssetEditorOpenedEvent.Broadcast(Asset);
	return true;
}

bool UAssetEditorSubsystem::OpenEditorForAsset(const FString& AssetPathName)
{
	return OpenEditorForAsset(LoadObject<UObject>(nullptr, *AssetPathName, nullptr, LOAD_NoWarn));
}

bool UAssetEditorSubsystem::OpenEditorForAssets(const TArray<UObject*>& Assets)
{
	bool bAllOpened = true;
	for (UObject* const Asset : Assets)
	{
		bAllOpened = OpenEditorForAsset(Asset) && bAllOpened;
	}
	return bAllOpened;
}

void UAssetEditorSubsystem::CloseAllEditorsForAsset(UObject* Asset)
{
	OpenedAssets.Remove(Asset);
}

bool UAssetEditorSubsystem::CloseAllAssetEditors()
{
	OpenedAssets.Empty();
	return true;
}

TArray<UObject*> UAssetEditorSubsystem::GetAllEditedAssets()
{
	TArray<UObject*> Result;
	for (UObject* const Asset : OpenedAssets)
	{
		if (IsValid(Asset))
		{
			Result.Add(Asset);
		}
	}
	return Result;
}

void UAssetEditorSubsystem::Deinitialize()
{
	OpenedAssets.Empty();
	Super::Deinitialize();
}

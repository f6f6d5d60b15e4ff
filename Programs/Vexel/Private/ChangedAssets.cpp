#include "ChangedAssets.h"

#include "Console.h"
#include "EditorAssetLibrary.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

FSavedAssets SaveChangedAssets()
{
	FSavedAssets Result;
	for (TObjectIterator<UPackage> Package; Package; ++Package)
	{
		// A new level that nobody gave a name belongs to no project.
		const bool bOfProject = !FPackageName::IsTempPackage(Package->GetName());
		UObject* const Asset = bOfProject && Package->IsDirty() ? Package->FindAssetInPackage() : nullptr;
		if (!Asset)
		{
			continue;
		}
		if (UEditorAssetLibrary::SaveLoadedAsset(Asset))
		{
			Result.Saved.Add(Asset->GetName());
		}
		else
		{
			Result.Failed.Add(Asset->GetPathName());
		}
	}
	return Result;
}

bool SaveChangedAssetsOrSay()
{
	const FSavedAssets Result = SaveChangedAssets();
	for (const FString& Path : Result.Failed)
	{
		FConsole::WriteError(FString::Printf(TEXT("'%s' cannot be saved"), *Path));
	}
	return Result.Failed.IsEmpty();
}

#include "ChangedAssets.h"

#include "Console.h"
#include "EditorAssetLibrary.h"
#include "Engine/Blueprint.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/PackageName.h"
#include "UObject/Package.h"
#include "UObject/UObjectIterator.h"

namespace
{
TArray<UObject*> FindChangedAssets()
{
	TArray<UObject*> Assets;
	for (TObjectIterator<UPackage> Package; Package; ++Package)
	{
		// A new level that nobody gave a name belongs to no project.
		const bool bOfProject = !FPackageName::IsTempPackage(Package->GetName());
		UObject* const Asset = bOfProject && Package->IsDirty() ? Package->FindAssetInPackage() : nullptr;
		if (Asset)
		{
			Assets.Add(Asset);
		}
	}
	return Assets;
}

/** A file has the class of its Blueprint as it is declared: who loads it looks there for the members. */
void CompileChanged(const TArray<UObject*>& Assets)
{
	for (UObject* const Asset : Assets)
	{
		UBlueprint* const Blueprint = Cast<UBlueprint>(Asset);
		if (Blueprint && Blueprint->Status == BS_Dirty)
		{
			FKismetEditorUtilities::CompileBlueprint(Blueprint);
		}
	}
}
}

FSavedAssets SaveChangedAssets()
{
	const TArray<UObject*> Assets = FindChangedAssets();
	CompileChanged(Assets);
	FSavedAssets Result;
	for (UObject* const Asset : Assets)
	{
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

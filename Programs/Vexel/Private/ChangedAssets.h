#pragma once

#include "CoreMinimal.h"

/** What saving the project's changes came to. */
struct FSavedAssets
{
	/** Names of the assets that were saved. */
	TArray<FString> Saved;
	/** Paths of those that could not be. */
	TArray<FString> Failed;
};

/** Saves every asset whose package was changed. */
FSavedAssets SaveChangedAssets();

/** The same; false, and the reasons on standard error, when one cannot be saved. */
bool SaveChangedAssetsOrSay();

#pragma once

#include "CoreMinimal.h"

class FJsonObject;

/** What the user has before them in the editor. Game thread. */
struct FVexelEditorContext
{
	static FVexelEditorContext Capture();

	TSharedRef<FJsonObject> ToJson() const;

	/** Title of the active editor window. */
	FString EditorWindowName;
	/** The open level; empty without one. */
	FString CurrentWorld;
	/** Path names of the assets that are open in editors. */
	TArray<FString> OpenAssets;
};

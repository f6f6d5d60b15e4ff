#pragma once

#include "CoreMinimal.h"
#include "VexelTaskResult.h"

/** A picture, row by row from the top. */
struct FVexelImage
{
	int32 Width = 0;
	int32 Height = 0;
	/** Width times Height of them. */
	TArray<FColor> Pixels;
};

class VEXELCORE_API FVexelEditorUtil
{
public:
	/** What the editor's active window shows, taken at the game thread's next tick. An error where the editor has no window. Any thread. */
	static TVexelTaskResult<FVexelImage> TakeEditorScreenshot();
};

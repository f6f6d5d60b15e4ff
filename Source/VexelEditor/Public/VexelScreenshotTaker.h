#pragma once

#include "CoreMinimal.h"
#include "VexelTaskResult.h"

/** What a screenshot is of. */
enum class EVexelScreenshotMode : uint8
{
	/** The editor's active window. */
	Editor,
	/** The level, as its active view shows it. */
	Viewport
};

/** A picture of the editor. */
struct FVexelScreenshot
{
	/** The window's title, or the level's path. */
	FString Title;
	int32 Width = 0;
	int32 Height = 0;
	/** The picture as a PNG file. */
	TArray<uint8> Png;
};

class VEXELEDITOR_API FVexelScreenshotTaker
{
public:
	/** The longer side of a picture, in pixels; a larger one is made smaller. */
	static constexpr int32 MaxSide = 2048;

	/** Takes a picture at the game thread's next tick, so that what was opened before it is shown; it is compressed on another thread. */
	static TVexelTaskResult<FVexelScreenshot> Take(EVexelScreenshotMode Mode);
};

#pragma once

#include "CoreMinimal.h"

/** What a headless editor is started with. Specific to the headless host. */
struct FHeadlessEditorOptions
{
	/** Folder that holds ScriptApi: the tree's Engine folder or the installed one. */
	FString EngineDir;
	/** The project's folder or its .uproject file. */
	FString Project;
	/** Where logs and saved state go; the project's own Saved folder when empty. */
	FString SavedDir;
	/** Modules to load before the subsystems start, in this order; they must be linked into the program. */
	TArray<FName> Modules;
};

/** Boots the editor in this process, without a window. One at a time; all on the calling thread, which becomes the game thread. */
class UNREALED_API FHeadlessEditor
{
public:
	/** Empty when the editor runs, else one line that says what is wrong; nothing was started then. */
	[[nodiscard]] static FString Start(const FHeadlessEditorOptions& Options);
	/** Runs what is due on the game thread, the tickers and the timers, and moves the host's clock on by that many seconds. */
	static void Tick(float DeltaSeconds);
	/** Waits at most Seconds for other threads to hand over work, then ticks with the time that has passed. */
	static void WaitAndTick(float Seconds);
	/** Takes down what Start made, in reverse order. */
	static void Stop();
	static bool IsRunning();
};

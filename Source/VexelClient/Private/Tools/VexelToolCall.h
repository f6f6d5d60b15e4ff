#pragma once

#include "CoreMinimal.h"
#include "Tools/VexelTool.h"
#include "VexelHttp.h"

/** One tool call of an answer, from the block to the reply: finds the tool, calls it, and sends its result or its error. */
struct FVexelToolCall
{
	FString ToolName;
	/** The tool-call block's information object; without any, null or empty, the call is answered as invalid input. */
	TSharedPtr<FJsonObject> Arguments;
	FVexelToolContext Context;
	/** Whether the reply is still waited for. Asked on the game thread. */
	TFunction<bool()> IsWanted;
	/** Called on the game thread before the tool runs, with its progress text. */
	TFunction<void(const FString& ProgressText)> OnStarted;
	/** Called on the game thread when the tool has finished, with its done text and its answer or its error. */
	TFunction<void(const FString& DoneText, const TVexelExpected<TSharedRef<FJsonObject>>& Answer)> OnFinished;

	/** Runs the call on the game thread. A reply that cannot be sent is reported. */
	void Run(const TSharedRef<FVexelHttp>& ApiClient) const;

private:
	TVexelTaskResult<TSharedRef<FJsonObject>> CallTool(const TVexelExpected<TSharedRef<FVexelTool>>& Tool) const;
};

#pragma once

#include "BlueprintWatch.h"
#include "Chat/ChatDisplay.h"
#include "CoreMinimal.h"
#include "Subsystem/VexelChatSubsystem.h"

/** Follows a conversation's running turn, remembers how it went, and hands what happens to a display. */
class FChatTurnView
{
public:
	/** Both must outlive the view. */
	FChatTurnView(UVexelChatSubsystem& Subsystem, IChatDisplay& Display);
	~FChatTurnView();
	UE_NONCOPYABLE(FChatTurnView)

	/** Sends a message and shows its answer to the end; Ctrl-C cancels it. Answers why that failed, or nothing. */
	TOptional<FString> RunTurn(const FString& ChatId, const FString& Message);

	/** How the last turn ended; Failed for one that was never sent. */
	EVexelChatRequestState GetFinalState() const { return FinalState.Get(EVexelChatRequestState::Failed); }
	/** All text of the last turn's answer. */
	const FString& GetAnswer() const { return Answer; }

private:
	void OnText(const FString& ChatId, FStringView Text);
	void OnBlock(const FString& ChatId, const FVexelChatMessageBlock& Block);
	void OnToolStarted(const FString& ChatId, const FString& ReplyId, const FString& ProgressText);
	void OnToolFinished(const FString& ChatId, const FString& ReplyId, const FString& DoneText,
		const TVexelExpected<TSharedRef<FJsonObject>>& ToolAnswer);
	void OnImageStored(const FString& ChatId, const FString& AssetId, const FString& Path);
	void OnState(const FString& ChatId, EVexelChatRequestState State, const FVexelError* Error);
	void OnSaveFailed(const FString& ChatId, const FVexelError& Error);
	bool WaitForEnd();
	void WaitForImages();

	UVexelChatSubsystem& Subsystem;
	IChatDisplay& Display;
	/** Calls whose tool has not finished. */
	TArray<FChatToolCall> OpenCalls;
	/** There while a turn runs. */
	TUniquePtr<FBlueprintWatch> Watch;
	/** Images of the answer that are not in a file yet. */
	int32 NumAwaitedImages = 0;
	FString Answer;
	FString Failure;
	FString SaveFailure;
	TOptional<EVexelChatRequestState> FinalState;
};

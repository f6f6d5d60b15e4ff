#pragma once

#include "CoreMinimal.h"
#include "Subsystem/VexelChatSubsystem.h"

/** Shows a running turn as it comes: text as it streams, a line for each tool when it starts and when it is done. */
class FChatView
{
public:
	/** @param bQuiet Whether to write nothing and only remember, for a JSON document at the end. */
	FChatView(UVexelChatSubsystem& Subsystem, bool bQuiet);
	~FChatView();
	UE_NONCOPYABLE(FChatView)

	/** Forgets the last turn. */
	void BeginTurn();
	bool IsTurnOver() const { return FinalState.IsSet(); }
	EVexelChatRequestState GetFinalState() const { return *FinalState; }
	/** Why the turn failed; empty unless it did. */
	const FString& GetFailure() const { return Failure; }
	/** Why the conversation is not stored as it stands; empty when it is. */
	const FString& GetSaveFailure() const { return SaveFailure; }
	/** All text of the turn's answer. */
	const FString& GetAnswer() const { return Answer; }

private:
	void OnText(const FString& ChatId, FStringView Text);
	void OnBlock(const FString& ChatId, const FVexelChatMessageBlock& Block);
	void OnToolStarted(const FString& ChatId, const FString& ReplyId, const FString& ProgressText);
	void OnToolFinished(const FString& ChatId, const FString& ReplyId, const FString& DoneText, const FVexelError* Error);
	void OnState(const FString& ChatId, EVexelChatRequestState State, const FVexelError* Error);
	void OnSaveFailed(const FString& ChatId, const FVexelError& Error);
	void FlushText();
	void EndLine();
	void Write(FStringView Text);
	void WriteDim(const FString& Text);

	UVexelChatSubsystem& Subsystem;
	bool bQuiet;
	bool bAtLineStart = true;
	/** Whether the last line on a terminal is a tool's progress, which its done text replaces. */
	bool bProgressShown = false;
	FString Answer;
	/** Text that waits for the next piece. */
	FString HeldText;
	FString Failure;
	FString SaveFailure;
	TOptional<EVexelChatRequestState> FinalState;
};

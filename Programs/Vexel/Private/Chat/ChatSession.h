#pragma once

#include "Chat/ChatDisplay.h"
#include "Chat/ChatTurnView.h"
#include "Chat/LineReader.h"
#include "CoreMinimal.h"
#include "Subsystem/VexelChatSubsystem.h"

/** A chat with a user who types: questions to the assistant, and commands that begin with a slash. */
class FChatSession
{
public:
	/** All must outlive the session. */
	FChatSession(UVexelChatSubsystem& Subsystem, IChatDisplay& Display, const TSharedRef<FVexelChatConversation>& Conversation);

	/** Runs until the input ends or the user leaves. Answers the exit status. */
	int32 Run();

private:
	/** One command: what the user types, and what it does with the words behind it. */
	struct FCommand
	{
		const TCHAR* Name;
		const TCHAR* Arguments;
		const TCHAR* Help;
		/** Answers why it could not be done, or nothing. */
		TOptional<FString> (FChatSession::*Run)(const TArray<FString>& Words);
	};

	/** All commands, in the order of the help. */
	static TConstArrayView<FCommand> GetCommands();
	static const FCommand* FindCommand(const FString& Name);

	void RunLine(const FString& Line);
	FStyledLine MakePrompt() const;
	FCompletions Complete(const FString& Line) const;

	TOptional<FString> ShowHelp(const TArray<FString>& Words);
	TOptional<FString> BeginNew(const TArray<FString>& Words);
	TOptional<FString> ListConversations(const TArray<FString>& Words);
	TOptional<FString> OpenConversation(const TArray<FString>& Words);
	TOptional<FString> ChangeMode(const TArray<FString>& Words);
	TOptional<FString> Revert(const TArray<FString>& Words);
	TOptional<FString> Undo(const TArray<FString>& Words);
	TOptional<FString> Redo(const TArray<FString>& Words);
	TOptional<FString> Save(const TArray<FString>& Words);
	TOptional<FString> ShowBlueprint(const TArray<FString>& Words);
	TOptional<FString> Quit(const TArray<FString>& Words);

	/** Undoes or redoes as many edits, and tells of what. */
	TOptional<FString> Travel(bool bBack, int32 NumSteps);
	/** One line of text as the answer of the command that runs. */
	void Tell(const FString& Text);

	UVexelChatSubsystem& Subsystem;
	IChatDisplay& Display;
	FChatTurnView Turns;
	TSharedRef<FVexelChatConversation> Conversation;
	FString RunningCommand;
	/** How many edits were made and not undone when the last question was asked. */
	int32 NumEditsBeforeAnswer = 0;
	bool bLastSucceeded = true;
	bool bLeaving = false;
};

#pragma once

#include "BlueprintDiff.h"
#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "StyledText.h"
#include "Subsystem/VexelChatSubsystem.h"

class FVexelError;

/** A tool that the assistant uses, as far as it is known when it starts. */
struct FChatToolCall
{
	FString ReplyId;
	FString Name;
	FString ProgressText;
	/** The tool table's style name of its icon. */
	FString Icon;
	/** What it was called with; null where the answer did not say. */
	TSharedPtr<FJsonObject> Input;
};

/** How a tool's work ended. */
struct FChatToolOutcome
{
	FString DoneText;
	/** Null when the tool did its work. */
	const FVexelError* Error = nullptr;
	/** What of its work could not be done, a line each. */
	TArray<FString> Problems;
	/** What it changed, also where it failed later. */
	TArray<FBlueprintDiff> Changes;
};

/** Where a chat is shown. The calls come on the game thread, in the order in which things happen. */
class IChatDisplay
{
public:
	virtual ~IChatDisplay() = default;

	virtual void BeginTurn(const FString& Message) {}
	/** Markdown, as it arrives: a piece may end anywhere. */
	virtual void AddText(FStringView Text) {}
	/** An error that the answer itself carries. */
	virtual void AddError(const FString& Text) {}
	/** A picture of the answer is in a file now; that may be after the turn. */
	virtual void AddImage(const FString& Path) {}
	virtual void BeginTool(const FChatToolCall& Call) {}
	virtual void EndTool(const FChatToolCall& Call, const FChatToolOutcome& Outcome) {}
	/** Time has passed; called many times a second while a turn runs. */
	virtual void Tick() {}
	/** @param Failure Why the turn failed, or could not be stored; empty when all is well. */
	virtual void EndTurn(EVexelChatRequestState State, const FString& Failure) {}

	/** The answer of a command such as "/list": lines for a reader, or a document for a program. */
	virtual void ShowResult(const FString& Command, const TArray<FStyledLine>& Lines, const TSharedRef<FJsonObject>& Document) {}
	/** Something that could not be done, outside a turn. */
	virtual void ShowFailure(const FString& Reason) {}
	/** Columns for the lines of ShowResult. */
	virtual int32 GetWidth() const { return 100; }
};

/** The states that end a turn, as documents name them. */
const TCHAR* ToWord(EVexelChatRequestState State);

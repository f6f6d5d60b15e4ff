#include "Chat/EventChatDisplay.h"

#include "Commands.h"
#include "DiffDocument.h"
#include "VexelError.h"

namespace
{
/** An object that names its kind of event first. */
TSharedRef<FJsonObject> MakeEvent(const TCHAR* Kind)
{
	const TSharedRef<FJsonObject> Event = MakeShared<FJsonObject>();
	Event->SetStringField(TEXT("event"), Kind);
	return Event;
}

void SetOptional(const TSharedRef<FJsonObject>& Event, const TCHAR* Key, const FString& Value)
{
	if (!Value.IsEmpty())
	{
		Event->SetStringField(Key, Value);
	}
}
}

void FEventChatDisplay::BeginTurn(const FString& Message)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("turn_started"));
	Event->SetStringField(TEXT("message"), Message);
	WriteJsonLine(Event);
}

void FEventChatDisplay::AddText(FStringView Text)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("text"));
	Event->SetStringField(TEXT("text"), FString(Text));
	WriteJsonLine(Event);
}

void FEventChatDisplay::AddError(const FString& Text)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("error"));
	Event->SetStringField(TEXT("text"), Text);
	WriteJsonLine(Event);
}

void FEventChatDisplay::AddImage(const FString& Path)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("image"));
	Event->SetStringField(TEXT("path"), Path);
	WriteJsonLine(Event);
}

void FEventChatDisplay::BeginTool(const FChatToolCall& Call)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("tool_started"));
	Event->SetStringField(TEXT("reply_id"), Call.ReplyId);
	Event->SetStringField(TEXT("tool"), Call.Name);
	SetOptional(Event, TEXT("icon"), Call.Icon);
	Event->SetStringField(TEXT("text"), Call.ProgressText);
	if (Call.Input)
	{
		Event->SetObjectField(TEXT("input"), Call.Input);
	}
	WriteJsonLine(Event);
}

void FEventChatDisplay::EndTool(const FChatToolCall& Call, const FChatToolOutcome& Outcome)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("tool_finished"));
	Event->SetStringField(TEXT("reply_id"), Call.ReplyId);
	Event->SetStringField(TEXT("tool"), Call.Name);
	SetOptional(Event, TEXT("text"), Outcome.Error ? FString() : Outcome.DoneText);
	SetOptional(Event, TEXT("error"), Outcome.Error ? Outcome.Error->ToShortString() : FString());
	TArray<TSharedPtr<FJsonValue>> Problems;
	for (const FString& Problem : Outcome.Problems)
	{
		Problems.Add(MakeShared<FJsonValueString>(Problem));
	}
	Event->SetArrayField(TEXT("problems"), Problems);
	Event->SetArrayField(TEXT("changes"), MakeDiffDocuments(Outcome.Changes));
	WriteJsonLine(Event);
}

void FEventChatDisplay::EndTurn(EVexelChatRequestState State, const FString& Failure)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("turn_finished"));
	Event->SetStringField(TEXT("state"), ToWord(State));
	SetOptional(Event, TEXT("failure"), Failure);
	WriteJsonLine(Event);
}

void FEventChatDisplay::ShowResult(const FString& Command, const TArray<FStyledLine>&, const TSharedRef<FJsonObject>& Document)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("command"));
	Event->SetStringField(TEXT("command"), Command);
	Event->SetObjectField(TEXT("result"), Document);
	WriteJsonLine(Event);
}

void FEventChatDisplay::ShowFailure(const FString& Reason)
{
	const TSharedRef<FJsonObject> Event = MakeEvent(TEXT("failure"));
	Event->SetStringField(TEXT("reason"), Reason);
	WriteJsonLine(Event);
}

#include "Chat/ConversationList.h"

#include "MarkdownLines.h"
#include "Subsystem/VexelChatSubsystem.h"
#include "VexelStringUtil.h"

namespace
{
constexpr int32 MaxTitleLength = 80;

/** "2026-11-21 17:40" on the user's clock; empty for an unset time. */
FString FormatTime(const FVexelChatHeader& Header)
{
	const TOptional<FDateTime>& Time = Header.UpdateTime ? Header.UpdateTime : Header.CreationTime;
	return Time ? (*Time + (FDateTime::Now() - FDateTime::UtcNow())).ToString(TEXT("%Y-%m-%d %H:%M")) : FString();
}

/** The user's question that a message answers, on one line. */
FString FindQuestion(const FVexelChatConversation& Conversation, int32 MessageIndex)
{
	const TArray<FVexelChatMessage>& Messages = Conversation.GetMessages();
	for (int32 Index = FMath::Min(MessageIndex, Messages.Num() - 1); Index >= 0; --Index)
	{
		if (Messages[Index].GetRole() == EVexelChatRole::User && Messages[Index].IsValid())
		{
			return FVexelStringUtil::ToPrintableLine(Messages[Index].GetText(), MaxTitleLength);
		}
	}
	return FString();
}
}

TArray<FStyledLine> ConversationList::MakeLines(const TArray<FVexelChatHeader>& Headers, const FString& OpenChatId, int32 Width)
{
	TArray<FStyledLine> Lines;
	for (int32 Index = 0; Index < Headers.Num(); ++Index)
	{
		const FVexelChatHeader& Header = Headers[Index];
		const bool bOpen = Header.ChatId.Equals(OpenChatId);
		FStyledLine Line(bOpen ? TEXT("● ") : TEXT("  "), TextStyle::Good);
		Line.Add(FString::Printf(TEXT("%3d  "), Index + 1), TextStyle::Accent).Add(FormatTime(Header) + TEXT("  "), TextStyle::Faint);
		Line.Add(Header.Title, bOpen ? TextStyle::Strong : TextStyle::Plain);
		const TCHAR* const Noun = Header.NumMessages == 1 ? TEXT("message") : TEXT("messages");
		Line.Add(FString::Printf(TEXT("  %d %s"), Header.NumMessages, Noun), TextStyle::Faint);
		Lines.Add(Line.CutTo(Width));
	}
	if (Lines.IsEmpty())
	{
		Lines.Add(FStyledLine(TEXT("no conversation is stored yet"), TextStyle::Faint));
	}
	return Lines;
}

TSharedRef<FJsonObject> ConversationList::MakeDocument(const TArray<FVexelChatHeader>& Headers, const FString& OpenChatId)
{
	TArray<TSharedPtr<FJsonValue>> Rows;
	for (const FVexelChatHeader& Header : Headers)
	{
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("chat_id"), Header.ChatId);
		Row->SetStringField(TEXT("title"), Header.Title);
		Row->SetStringField(TEXT("mode"), Header.ChatMode);
		Row->SetNumberField(TEXT("messages"), Header.NumMessages);
		Row->SetBoolField(TEXT("open"), Header.ChatId.Equals(OpenChatId));
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("conversations"), Rows);
	return Document;
}

TArray<FStyledLine> ConversationList::MakeLastExchange(const FVexelChatConversation& Conversation, int32 Width)
{
	TArray<FStyledLine> Lines;
	const TArray<FVexelChatMessage>& Messages = Conversation.GetMessages();
	Lines.Add(FStyledLine(Conversation.GetTitle(), TextStyle::Strong).CutTo(Width));
	if (Messages.IsEmpty())
	{
		return Lines;
	}
	Lines.AddDefaulted();
	Lines.Append(WrapText(FStyledLine(FindQuestion(Conversation, Messages.Num() - 1), TextStyle::Strong), Width,
		FStyledLine(TEXT("❯ "), TextStyle::Title), TEXT("  ")));
	if (Messages.Last().GetRole() == EVexelChatRole::Assistant)
	{
		Lines.AddDefaulted();
		Lines.Append(RenderMarkdown(Messages.Last().GetText(), Width));
	}
	return Lines;
}

TArray<FStyledLine> ConversationList::MakeCheckpointLines(const FVexelChatConversation& Conversation, int32 Width)
{
	TArray<FStyledLine> Lines;
	for (const FVexelCheckpoint& Checkpoint : Conversation.GetCheckpoints())
	{
		FStyledLine Line(FString::Printf(TEXT("%3d  "), Lines.Num() + 1), TextStyle::Accent);
		Lines.Add(Line.Add(FindQuestion(Conversation, Checkpoint.MessageIndex)).CutTo(Width));
	}
	if (Lines.IsEmpty())
	{
		Lines.Add(FStyledLine(TEXT("there is no answer yet to go back to"), TextStyle::Faint));
	}
	return Lines;
}

TSharedRef<FJsonObject> ConversationList::MakeCheckpointDocument(const FVexelChatConversation& Conversation)
{
	TArray<TSharedPtr<FJsonValue>> Rows;
	for (const FVexelCheckpoint& Checkpoint : Conversation.GetCheckpoints())
	{
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("checkpoint_id"), Checkpoint.Id);
		Row->SetStringField(TEXT("question"), FindQuestion(Conversation, Checkpoint.MessageIndex));
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("answers"), Rows);
	return Document;
}

void ConversationList::NameAfterFirstQuestion(UVexelChatSubsystem& Subsystem, const FVexelChatConversation& Conversation)
{
	const TArray<FVexelChatMessage>& Messages = Conversation.GetMessages();
	// Its first turn is over; from then on a title may be the user's own.
	if (Messages.Num() > 2 || Messages.IsEmpty())
	{
		return;
	}
	const FString Question = FindQuestion(Conversation, 0);
	if (!Question.IsEmpty() && !Conversation.GetTitle().Equals(Question))
	{
		// A question without letters gives no title; the list then shows the old one.
		(void)Subsystem.SetTitle(Conversation.GetChatId(), Question);
	}
}

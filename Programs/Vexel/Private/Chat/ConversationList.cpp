#include "Chat/ConversationList.h"

#include "MarkdownLines.h"
#include "VexelStringUtil.h"

namespace
{
constexpr int32 MaxTitleLength = 80;

/** "2026-11-21 17:40" on the user's clock; empty for an unset time. */
FString FormatTime(const FVexelChatConversation& Conversation)
{
	const TOptional<FDateTime>& Time = Conversation.GetUpdateTime() ? Conversation.GetUpdateTime() : Conversation.GetCreationTime();
	return Time ? (*Time + (FDateTime::Now() - FDateTime::UtcNow())).ToString(TEXT("%Y-%m-%d %H:%M")) : FString();
}

FString GetText(const FVexelChatMessage& Message)
{
	return FString::JoinBy(Message.GetBlocks(), TEXT(""), [](const FVexelChatMessageBlock& Block)
		{ return Block.GetType() == EVexelChatMessageBlockType::Text ? Block.GetText() : FString(); });
}

/** The user's question that a message answers, on one line. */
FString FindQuestion(const FVexelChatConversation& Conversation, int32 MessageIndex)
{
	const TArray<FVexelChatMessage>& Messages = Conversation.GetMessages();
	for (int32 Index = FMath::Min(MessageIndex, Messages.Num() - 1); Index >= 0; --Index)
	{
		if (Messages[Index].GetRole() == EVexelChatRole::User && Messages[Index].IsValid())
		{
			return FVexelStringUtil::ToPrintableLine(GetText(Messages[Index]), MaxTitleLength);
		}
	}
	return FString();
}

/** What a conversation began with; its title before anything was asked. */
FString GetSubject(const FVexelChatConversation& Conversation)
{
	const FString Question = FindQuestion(Conversation, 0);
	return Question.IsEmpty() ? Conversation.GetTitle() : Question;
}
}

TArray<FStyledLine> ConversationList::MakeLines(const TArray<TSharedRef<FVexelChatConversation>>& Conversations, const FString& OpenChatId, int32 Width)
{
	TArray<FStyledLine> Lines;
	for (const TSharedRef<FVexelChatConversation>& Conversation : Conversations)
	{
		const bool bOpen = Conversation->GetChatId().Equals(OpenChatId);
		const int32 NumMessages = Conversation->GetMessages().Num();
		FStyledLine Line(bOpen ? TEXT("● ") : TEXT("  "), TextStyle::Good);
		Line.Add(FString::Printf(TEXT("%3d  "), Lines.Num() + 1), TextStyle::Accent).Add(FormatTime(*Conversation) + TEXT("  "), TextStyle::Faint);
		Line.Add(GetSubject(*Conversation), bOpen ? TextStyle::Strong : TextStyle::Plain);
		Line.Add(FString::Printf(TEXT("  %d %s"), NumMessages, NumMessages == 1 ? TEXT("message") : TEXT("messages")), TextStyle::Faint);
		Lines.Add(Line.CutTo(Width));
	}
	if (Lines.IsEmpty())
	{
		Lines.Add(FStyledLine(TEXT("no conversation is stored yet"), TextStyle::Faint));
	}
	return Lines;
}

TSharedRef<FJsonObject> ConversationList::MakeDocument(const TArray<TSharedRef<FVexelChatConversation>>& Conversations, const FString& OpenChatId)
{
	TArray<TSharedPtr<FJsonValue>> Rows;
	for (const TSharedRef<FVexelChatConversation>& Conversation : Conversations)
	{
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("chat_id"), Conversation->GetChatId());
		Row->SetStringField(TEXT("title"), GetSubject(*Conversation));
		Row->SetStringField(TEXT("mode"), Conversation->GetChatMode().ChatMode);
		Row->SetNumberField(TEXT("messages"), Conversation->GetMessages().Num());
		Row->SetBoolField(TEXT("open"), Conversation->GetChatId().Equals(OpenChatId));
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
	Lines.Add(FStyledLine(GetSubject(Conversation), TextStyle::Strong).CutTo(Width));
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
		Lines.Append(RenderMarkdown(GetText(Messages.Last()), Width));
	}
	return Lines;
}

TArray<ConversationList::FPlace> ConversationList::FindCheckpoints(const FVexelChatConversation& Conversation)
{
	TArray<FPlace> Places;
	const TArray<FVexelChatMessage>& Messages = Conversation.GetMessages();
	for (int32 Message = 0; Message < Messages.Num(); ++Message)
	{
		const int32 Block = Messages[Message].FindLastCheckpoint();
		if (Block != INDEX_NONE)
		{
			Places.Add({Message, Block});
		}
	}
	return Places;
}

TArray<FStyledLine> ConversationList::MakeCheckpointLines(const FVexelChatConversation& Conversation, int32 Width)
{
	TArray<FStyledLine> Lines;
	for (const FPlace& Checkpoint : FindCheckpoints(Conversation))
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
	for (const FPlace& Checkpoint : FindCheckpoints(Conversation))
	{
		const TSharedRef<FJsonObject> Row = MakeShared<FJsonObject>();
		Row->SetStringField(TEXT("question"), FindQuestion(Conversation, Checkpoint.MessageIndex));
		Rows.Add(MakeShared<FJsonValueObject>(Row));
	}
	const TSharedRef<FJsonObject> Document = MakeShared<FJsonObject>();
	Document->SetArrayField(TEXT("answers"), Rows);
	return Document;
}

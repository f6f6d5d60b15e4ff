#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatConversation.h"
#include "Data/VexelChatHeader.h"
#include "Dom/JsonObject.h"
#include "StyledText.h"

class UVexelChatSubsystem;

/** The stored conversations, and one conversation's answers, as lists for the user. */
namespace ConversationList
{
/** A numbered line each, with its time; the open one is marked. */
TArray<FStyledLine> MakeLines(const TArray<FVexelChatHeader>& Headers, const FString& OpenChatId, int32 Width);
TSharedRef<FJsonObject> MakeDocument(const TArray<FVexelChatHeader>& Headers, const FString& OpenChatId);

/** The last question of a conversation and its answer, for a user who goes on with it. */
TArray<FStyledLine> MakeLastExchange(const FVexelChatConversation& Conversation, int32 Width);

/** The points that a conversation can be cut back to: a numbered line each, with the question before it. */
TArray<FStyledLine> MakeCheckpointLines(const FVexelChatConversation& Conversation, int32 Width);
TSharedRef<FJsonObject> MakeCheckpointDocument(const FVexelChatConversation& Conversation);

/** Titles a conversation that has no title of its own yet after its first question, so that a list can be read. */
void NameAfterFirstQuestion(UVexelChatSubsystem& Subsystem, const FVexelChatConversation& Conversation);
}

#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatConversation.h"
#include "Dom/JsonObject.h"
#include "StyledText.h"

/** The stored conversations, and one conversation's answers, as lists for the user. */
namespace ConversationList
{
/** A numbered line each, with its time; the open one is marked. */
TArray<FStyledLine> MakeLines(const TArray<TSharedRef<FVexelChatConversation>>& Conversations, const FString& OpenChatId, int32 Width);
TSharedRef<FJsonObject> MakeDocument(const TArray<TSharedRef<FVexelChatConversation>>& Conversations, const FString& OpenChatId);

/** The last question of a conversation and its answer, for a user who goes on with it. */
TArray<FStyledLine> MakeLastExchange(const FVexelChatConversation& Conversation, int32 Width);

/** Where a checkpoint stands in a conversation. */
struct FPlace
{
	int32 MessageIndex = INDEX_NONE;
	int32 BlockIndex = INDEX_NONE;
};

/** All checkpoints, in order. */
TArray<FPlace> FindCheckpoints(const FVexelChatConversation& Conversation);

/** The points that a conversation can be cut back to: a numbered line each, with the question before it. */
TArray<FStyledLine> MakeCheckpointLines(const FVexelChatConversation& Conversation, int32 Width);
TSharedRef<FJsonObject> MakeCheckpointDocument(const FVexelChatConversation& Conversation);
}

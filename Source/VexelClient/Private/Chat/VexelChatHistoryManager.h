#pragma once

#include "CoreMinimal.h"
#include "Containers/Map.h"
#include "VexelExpected.h"

class FVexelChatConversation;

/**
 * The user's stored conversations, one JSON file each in the project's "ChatHistories" directory. A file is written whole, so a
 * crash at any instant leaves its last or its new state; one that cannot be read is set aside under another name and said.
 * Game thread.
 */
class FVexelChatHistoryManager
{
public:
	explicit FVexelChatHistoryManager(FString Directory);

	/** Reads every conversation of the directory. */
	void Load();

	/** Adds a conversation to the history; it is stored when it is saved. */
	void Add(const TSharedRef<FVexelChatConversation>& Conversation);
	TVexelExpected<void> Save(const FVexelChatConversation& Conversation);
	/** Removes a conversation and its file; false where there is none of that id. */
	bool Delete(const FString& ChatId);

	TSharedPtr<FVexelChatConversation> Find(const FString& ChatId) const;
	/** All conversations, the one updated last first. */
	TArray<TSharedRef<FVexelChatConversation>> GetConversations() const;

private:
	FString GetFilePath(const FString& ChatId) const;
	void LoadFile(const FString& Path);

	FString Directory;
	TMap<FString, TSharedRef<FVexelChatConversation>> Conversations;
};

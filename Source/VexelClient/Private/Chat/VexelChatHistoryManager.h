#pragma once

#include "Chat/VexelChatHistoryFiles.h"
#include "Chat/VexelChatHistoryIndex.h"
#include "Chat/VexelChatMerge.h"
#include "CoreMinimal.h"
#include "Data/VexelChatHeader.h"
#include "VexelExpected.h"

class FVexelChatConversation;

/**
 * The stored conversations of a project, in its "ChatHistories" directory. They are listed without being read, opened one by one,
 * and saved whole. Several editors may have the project open: what another one has stored of a conversation is kept when this one
 * saves its own. Game thread.
 */
class FVexelChatHistoryManager
{
public:
	explicit FVexelChatHistoryManager(FString Directory);
	UE_NONCOPYABLE(FVexelChatHistoryManager)

	/** All conversations, those that are open but not yet stored too, the one updated last first. */
	TArray<FVexelChatHeader> GetHeaders();

	/** Adds a new conversation to the history; it is stored when it is saved. */
	void Add(const TSharedRef<FVexelChatConversation>& Conversation);

	/** Opens a conversation, which stays open. Null where there is none of that id, or none that can be read. */
	TSharedPtr<FVexelChatConversation> Find(const FString& ChatId);

	/**
	 * Brings what another process has stored of an open conversation into it, in place. Not while a request runs on it. Answers
	 * whether it changed.
	 */
	bool Refresh(const FString& ChatId);

	/**
	 * Stores an open conversation. What another process has added comes into it first; where that process has cut the conversation
	 * back or gone on otherwise, its state is stored as a conversation of its own.
	 */
	TVexelExpected<void> Save(const FString& ChatId);

	/** Removes a conversation and its file; false where there is none of that id. */
	bool Delete(const FString& ChatId);

	/** Paths of conversation files that could not be read and were set aside. */
	TArray<FString> FindSetAside() const { return Files.FindSetAside(); }

private:
	struct FOpenChat
	{
		TSharedRef<FVexelChatConversation> Conversation;
		FVexelChatSyncPoint SyncPoint;
		/** Of the file at the sync point. */
		FVexelChatFileStamp Stamp;
	};

	/** Under the lock. Reads the file again where it is not as this process left it. */
	TVexelExpected<void> TakeInStored(FOpenChat& Open);
	TVexelExpected<void> KeepAsCopy(const TSharedRef<FVexelChatConversation>& Stored);

	FVexelChatHistoryFiles Files;
	FVexelChatHistoryIndex Index;
	TVexelChatIdMap<FOpenChat> OpenChats;
};

#pragma once

#include "CoreMinimal.h"
#include "Misc/Optional.h"

class FVexelChatConversation;

/** What an open conversation and its file were when they were last the same. */
struct FVexelChatSyncPoint
{
	FVexelChatSyncPoint() = default;
	FVexelChatSyncPoint(const FVexelChatConversation& Conversation, uint64 FileHash);

	/** Of the file; unset before there was one. */
	TOptional<uint64> FileHash;
	int32 NumMessages = 0;
	int32 NumReverts = 0;
	int32 Revision = 0;
	FString Title;
	FString ChatMode;
};

enum class EVexelChatMerge : uint8
{
	/** What the file has more is now in the open conversation too. */
	TakenIn,
	/** The open conversation holds all that the file has; the file was cut back. */
	OpenIsLonger,
	/** Both have gone on from different messages; the open conversation is as it was. */
	Diverged
};

/**
 * Brings what another process has stored since into an open conversation, and the sync point to that file. Messages are only ever
 * added at the end but for reverts, so both have the messages up to the last common state; those of the file come before those
 * that are new here.
 */
EVexelChatMerge MergeStoredChat(
	FVexelChatConversation& Open, FVexelChatSyncPoint& SyncPoint, const FVexelChatConversation& Stored, uint64 StoredHash);

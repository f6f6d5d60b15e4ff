#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatHeader.h"
#include "Data/VexelChatMessage.h"
#include "Data/VexelChatModeInfo.h"
#include "Misc/DateTime.h"

class FVexelBlueprintMapping;

/** Where a checkpoint stands in a conversation. */
struct FVexelCheckpoint
{
	int32 MessageIndex = INDEX_NONE;
	int32 BlockIndex = INDEX_NONE;
	FString Id;
};

/** One chat of one user: its messages, and the names that it has given to nodes. Lives on the game thread. */
class VEXELCLIENT_API FVexelChatConversation : public IVexelJsonable, public TSharedFromThis<FVexelChatConversation>
{
public:
	FVexelChatConversation();
	/** A new conversation, titled "Chat %s" by its time of creation. */
	FVexelChatConversation(FString UserId, FString ChatId, FVexelChatModeInfo ChatMode);

	/** The stored form. */
	virtual TSharedRef<FJsonObject> ToJson() const override;
	/** Messages that cannot be read are logged and kept as invalid ones. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** A conversation with an id. */
	bool IsValid() const { return !ChatId.IsEmpty(); }

	const FString& GetUserId() const { return UserId; }
	const FString& GetChatId() const { return ChatId; }
	/** For the copy of a stored conversation; an id never changes while others hold the conversation. */
	void SetChatId(FString NewId) { ChatId = MoveTemp(NewId); }
	const FString& GetTitle() const { return Title; }
	/** The texts of a line alone, without blanks around them. */
	void SetTitle(const FString& NewTitle);
	const FVexelChatModeInfo& GetChatMode() const { return ChatMode; }
	void SetChatMode(FVexelChatModeInfo NewMode);
	/** Unset where the stored text was no date. */
	const TOptional<FDateTime>& GetCreationTime() const { return CreationTime; }
	const TOptional<FDateTime>& GetUpdateTime() const { return UpdateTime; }
	const TSharedRef<FVexelBlueprintMapping>& GetMapping() const { return Mapping; }
	FVexelChatHeader MakeHeader() const;

	const TArray<FVexelChatMessage>& GetMessages() const { return Messages; }
	/** Adds a message at the end, sets the time of update and answers the message's index. */
	int32 AddMessage(FVexelChatMessage Message);

	/**
	 * Takes over what another process has stored of this conversation: its messages behind the first ones that both share, node
	 * names that are free here and, where it is told to, title and mode.
	 */
	void TakeOver(const FVexelChatConversation& Stored, int32 NumShared, bool bTitle, bool bChatMode);

	/** What a message is found again by when others were inserted before it. 0 for an index outside the conversation. */
	int32 GetMessageKey(int32 Index) const;
	/** INDEX_NONE for a message that is not there any more. */
	int32 FindMessageByKey(int32 Key) const;

	/** All checkpoints with an id, in order. */
	TArray<FVexelCheckpoint> GetCheckpoints() const;
	/** Id of the last checkpoint; empty without one. */
	FString FindLastCheckpointId() const;

	/**
	 * Cuts the conversation back to a checkpoint block: its message keeps the blocks up to and with it, later messages go.
	 * Answers false, with a log line, where there is no such block.
	 */
	bool RevertToBlockIndex(int32 MessageIndex, int32 CheckpointBlockIndex);
	/** How often the conversation was cut back since it was opened. */
	int32 GetNumReverts() const { return NumReverts; }

	/** Grows with each change but those of the mapping. */
	int32 GetRevision() const { return Revision; }

private:
	void NoteChange();

	FString UserId;
	FString ChatId;
	FString Title;
	FVexelChatModeInfo ChatMode;
	TOptional<FDateTime> CreationTime;
	TOptional<FDateTime> UpdateTime;
	TArray<FVexelChatMessage> Messages;
	TSharedRef<FVexelBlueprintMapping> Mapping;

	int32 LastKey = 0;
	int32 Revision = 0;
	int32 NumReverts = 0;

	/** Fields of the stored form that this version does not know; null without any. */
	TSharedPtr<FJsonObject> Rest;
	TSharedPtr<FJsonObject> MappingRest;
};

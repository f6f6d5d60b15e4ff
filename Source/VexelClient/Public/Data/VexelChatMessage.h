#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatMessageBlock.h"

enum class EVexelChatRole : uint8
{
	User,
	Assistant,
	System
};

enum class EVexelChatMessageState : uint8
{
	/** Its request still runs. */
	InProgress,
	Completed,
	/** Its request failed; the blocks behind the last checkpoint count as not said. */
	Failed
};

/** One turn of one role: an ordered list of blocks. */
class VEXELCLIENT_API FVexelChatMessage : public IVexelJsonable
{
public:
	FVexelChatMessage() = default;
	explicit FVexelChatMessage(EVexelChatRole InRole, EVexelChatMessageState InState = EVexelChatMessageState::Completed);

	/** A message that cannot be read, perhaps of a later version; its stored form is kept as it is, and it is not valid. */
	static FVexelChatMessage MakeUnreadable(const TSharedPtr<FJsonValue>& Stored);

	/** The stored form. An unreadable message that was no object is an empty one here: see ToStoredValue(). */
	virtual TSharedRef<FJsonObject> ToJson() const override;
	/** Blocks that cannot be read are logged and kept as unknown ones. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** The stored form, for an unreadable message just what was read. */
	TSharedRef<FJsonValue> ToStoredValue() const;

	/** The form sent to the service: the stored one and "content", one string, or an array of parts where there are images. */
	TSharedRef<FJsonObject> ToServiceJson(FVexelChatImageSource ImageSource) const;

	EVexelChatRole GetRole() const { return Role; }
	EVexelChatMessageState GetState() const { return State; }
	void SetState(EVexelChatMessageState NewState) { State = NewState; }
	/** Whether the message could be read, and can be sent. */
	bool IsValid() const { return !Unreadable; }

	int32 NumBlocks() const { return Blocks.Num(); }
	/** Null, and a log line, for an index outside the message. */
	const FVexelChatMessageBlock* GetMessageBlock(int32 Index) const;
	const TArray<FVexelChatMessageBlock>& GetBlocks() const { return Blocks; }
	/** What the message says in words: its text and error blocks one after the other. */
	FString GetText() const;

	/** Adds a block; answers its index. */
	int32 AddBlock(FVexelChatMessageBlock Block);
	/** Adds text to the last block, or a new text block where the last one is none. Answers the index and whether it is new. */
	int32 AppendText(FStringView Text, bool& bOutNewBlock);
	/** Keeps the first blocks alone. */
	void TrimBlocks(int32 NumToKeep);

	/** Index of the last checkpoint block, INDEX_NONE without one. */
	int32 FindLastCheckpoint() const;
	/** Marks the blocks behind an index, and the message, as failed. Answers how many blocks. */
	int32 MarkFailedAfter(int32 CheckpointIndex);

private:
	friend class FVexelChatConversation;

	int32 SetFailedAfter(int32 CheckpointIndex);

	EVexelChatRole Role = EVexelChatRole::User;
	EVexelChatMessageState State = EVexelChatMessageState::Completed;
	TArray<FVexelChatMessageBlock> Blocks;

	/** The message in its conversation while that is open; not stored. */
	int32 Key = 0;
	/** Fields of the stored form that this version does not know; null without any. */
	TSharedPtr<FJsonObject> Rest;
	/** The stored form of a message that cannot be read. */
	TSharedPtr<FJsonValue> Unreadable;
};

#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatMessage.h"
#include "Data/VexelChatModeInfo.h"
#include "Misc/DateTime.h"

class FVexelBlueprintMapping;

/** One chat of one user: its messages, and the names that it has given to nodes. Lives on the game thread. */
class VEXELCLIENT_API FVexelChatConversation : public IVexelJsonable, public TSharedFromThis<FVexelChatConversation>
{
public:
	FVexelChatConversation();
	/** A new conversation, titled "Chat %s" by its time of creation. */
	FVexelChatConversation(FString UserId, FString ChatId, FVexelChatModeInfo ChatMode);

	/** The stored form. */
	virtual TSharedRef<FJsonObject> ToJson() const override;
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** A conversation with an id. */
	bool IsValid() const { return !ChatId.IsEmpty(); }

	const FString& GetUserId() const { return UserId; }
	const FString& GetChatId() const { return ChatId; }
	const FString& GetTitle() const { return Title; }
	const FVexelChatModeInfo& GetChatMode() const { return ChatMode; }
	void SetChatMode(FVexelChatModeInfo NewMode) { ChatMode = MoveTemp(NewMode); }
	/** Unset where the stored text was no date. */
	const TOptional<FDateTime>& GetCreationTime() const { return CreationTime; }
	const TOptional<FDateTime>& GetUpdateTime() const { return UpdateTime; }
	const TSharedRef<FVexelBlueprintMapping>& GetMapping() const { return Mapping; }

	const TArray<FVexelChatMessage>& GetMessages() const { return Messages; }
	/** Adds a message at the end, sets the time of update and answers the message's index. */
	int32 AddMessage(FVexelChatMessage Message);
	/** Null for an index outside the conversation. The pointer holds until a message is added or removed. */
	FVexelChatMessage* FindMessage(int32 Index);

	/** Id of the last checkpoint; empty without one. */
	FString FindLastCheckpointId() const;

	/**
	 * Cuts the conversation back to a checkpoint block: its message keeps the blocks up to and with it, later messages go.
	 * Answers false, with a log line, where there is no such block.
	 */
	bool RevertToBlockIndex(int32 MessageIndex, int32 CheckpointBlockIndex);

private:
	FString UserId;
	FString ChatId;
	FString Title;
	FVexelChatModeInfo ChatMode;
	TOptional<FDateTime> CreationTime;
	TOptional<FDateTime> UpdateTime;
	TArray<FVexelChatMessage> Messages;
	TSharedRef<FVexelBlueprintMapping> Mapping;
};

#include "Data/VexelChatConversation.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "VexelLog.h"

namespace
{
/** Fills a time from a stored text. A text that is no date is logged and leaves the time unset. */
void ReadTime(const TSharedRef<FJsonObject>& Object, const TCHAR* Field, TOptional<FDateTime>& OutTime)
{
	FString Text;
	FDateTime Time;
	OutTime.Reset();
	if (!Object->TryGetStringField(FString(Field), Text))
	{
		return;
	}
	if (!FDateTime::ParseIso8601(*Text, Time))
	{
		VEXEL_LOG(Warning, "Failed to parse %s: %s", Field, *Text);
		return;
	}
	OutTime = Time;
}
}

FVexelChatConversation::FVexelChatConversation()
	: ChatMode(FVexelChatModeInfo::MakeUserMode())
	, Mapping(MakeShared<FVexelBlueprintMapping>())
{
}

FVexelChatConversation::FVexelChatConversation(FString InUserId, FString InChatId, FVexelChatModeInfo InChatMode)
	: UserId(MoveTemp(InUserId))
	, ChatId(MoveTemp(InChatId))
	, ChatMode(MoveTemp(InChatMode))
	, CreationTime(FDateTime::UtcNow())
	, UpdateTime(CreationTime)
	, Mapping(MakeShared<FVexelBlueprintMapping>())
{
	Title = FString::Printf(TEXT("Chat %s"), *CreationTime->ToString(TEXT("%Y-%m-%d %H:%M:%S")));
}

TSharedRef<FJsonObject> FVexelChatConversation::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("UserId"), UserId);
	Object->SetStringField(TEXT("ChatId"), ChatId);
	Object->SetStringField(TEXT("Title"), Title);
	Object->SetStringField(TEXT("ChatMode"), ChatMode.ChatMode);
	if (CreationTime)
	{
		Object->SetStringField(TEXT("CreationTime"), CreationTime->ToIso8601());
	}
	if (UpdateTime)
	{
		Object->SetStringField(TEXT("UpdateTime"), UpdateTime->ToIso8601());
	}
	TArray<TSharedPtr<FJsonValue>> MessageValues;
	for (const FVexelChatMessage& Message : Messages)
	{
		MessageValues.Add(MakeShared<FJsonValueObject>(Message.ToJson()));
	}
	Object->SetArrayField(TEXT("Messages"), MessageValues);
	Object->SetObjectField(TEXT("Mapping"), Mapping->ToJson());
	return Object;
}

bool FVexelChatConversation::FromJson(const TSharedRef<FJsonObject>& Object)
{
	Object->TryGetStringField(TEXT("UserId"), UserId);
	Object->TryGetStringField(TEXT("Title"), Title);
	if (!Object->TryGetStringField(TEXT("ChatId"), ChatId) || ChatId.IsEmpty())
	{
		VEXEL_LOG(Warning, "FVexelChatConversation: No ChatId provided in JSON");
		return false;
	}

	ChatMode = FVexelChatModeInfo::MakeUserMode();
	FString ModeId;
	if (Object->TryGetStringField(TEXT("ChatMode"), ModeId) && !ModeId.IsEmpty())
	{
		ChatMode = FVexelChatModeInfo(ModeId, ModeId, ModeId.Contains(TEXT("agent")));
	}
	else
	{
		VEXEL_LOG(Log, "FVexelChatConversation: No ChatMode provided in JSON, defaulting to User mode.");
	}

	ReadTime(Object, TEXT("CreationTime"), CreationTime);
	ReadTime(Object, TEXT("UpdateTime"), UpdateTime);

	Messages.Reset();
	const TArray<TSharedPtr<FJsonValue>>* MessageValues = nullptr;
	Object->TryGetArrayField(TEXT("Messages"), MessageValues);
	for (int32 Index = 0; MessageValues && Index < MessageValues->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* MessageObject = nullptr;
		FVexelChatMessage Message;
		if (!(*MessageValues)[Index]->TryGetObject(MessageObject) || !Message.FromJson(MessageObject->ToSharedRef()))
		{
			return false;
		}
		Messages.Add(MoveTemp(Message));
	}

	const TSharedPtr<FJsonObject>* MappingObject = nullptr;
	Mapping = MakeShared<FVexelBlueprintMapping>();
	if (Object->TryGetObjectField(TEXT("Mapping"), MappingObject))
	{
		Mapping->FromJson(MappingObject->ToSharedRef());
	}
	else
	{
		VEXEL_LOG(Log, "FVexelChatConversation: No Mapping provided in JSON, creating empty mapping.");
	}
	return true;
}

int32 FVexelChatConversation::AddMessage(FVexelChatMessage Message)
{
	UpdateTime = FDateTime::UtcNow();
	return Messages.Add(MoveTemp(Message));
}

FVexelChatMessage* FVexelChatConversation::FindMessage(int32 Index)
{
	return Messages.IsValidIndex(Index) ? &Messages[Index] : nullptr;
}

FString FVexelChatConversation::FindLastCheckpointId() const
{
	for (int32 Index = Messages.Num() - 1; Index >= 0; --Index)
	{
		const int32 BlockIndex = Messages[Index].FindLastCheckpoint();
		if (BlockIndex != INDEX_NONE)
		{
			return Messages[Index].GetBlocks()[BlockIndex].Checkpoint_GetCheckpointId();
		}
	}
	return FString();
}

bool FVexelChatConversation::RevertToBlockIndex(int32 MessageIndex, int32 CheckpointBlockIndex)
{
	FVexelChatMessage* const Message = FindMessage(MessageIndex);
	const int32 NumBlocks = Message ? Message->NumBlocks() : 0;
	if (CheckpointBlockIndex < 0 || CheckpointBlockIndex >= NumBlocks)
	{
		VEXEL_LOG(Warning, "RevertToBlockIndex: CheckpointBlockIndex %d out of bounds (0-%d)", CheckpointBlockIndex, NumBlocks - 1);
		return false;
	}

	const FString CheckpointId = Message->GetBlocks()[CheckpointBlockIndex].Checkpoint_GetCheckpointId();
	VEXEL_LOG(Log, "[Conversation] Reverting to checkpoint id: %s", *CheckpointId);
	Message->TrimBlocks(CheckpointBlockIndex + 1);
	Message->SetState(EVexelChatMessageState::Completed);
	VEXEL_LOG(Log, "[Conversation] Trimmed message (role=%d) blocks from %d to %d after checkpoint index %d",
		int32(Message->GetRole()), NumBlocks, Message->NumBlocks(), CheckpointBlockIndex);

	const int32 NumRemoved = Messages.Num() - (MessageIndex + 1);
	Messages.SetNum(MessageIndex + 1);
	UpdateTime = FDateTime::UtcNow();
	VEXEL_LOG(Log, "[Conversation] Revert finished. Messages remaining: %d, Removed: %d", Messages.Num(), NumRemoved);
	return true;
}

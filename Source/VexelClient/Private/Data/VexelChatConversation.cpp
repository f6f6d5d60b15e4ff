#include "Data/VexelChatConversation.h"

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelStoredFields.h"
#include "VexelLog.h"

namespace
{
const FString ChatIdField = TEXT("ChatId");
const FString ChatModeField = TEXT("ChatMode");
const FString CreationTimeField = TEXT("CreationTime");
const FString MappingField = TEXT("Mapping");
const FString MessagesField = TEXT("Messages");
const FString TitleField = TEXT("Title");
const FString UpdateTimeField = TEXT("UpdateTime");
const FString UserIdField = TEXT("UserId");

/** Fills a time from a stored text. A text that is no date is logged, kept as it is and leaves the time unset. */
void ReadTime(FVexelStoredFields& Fields, const FString& Name, TOptional<FDateTime>& OutTime)
{
	FString Text;
	FDateTime Time;
	OutTime.Reset();
	if (!Fields.TryGetString(*Name, Text))
	{
		return;
	}
	if (!FDateTime::ParseIso8601(*Text, Time))
	{
		VEXEL_LOG(Warning, "Failed to parse %s: %s", *Name, *Text);
		Fields.PutBack(*Name);
		return;
	}
	OutTime = Time;
}

void WriteTime(FJsonObject& Object, const FString& Name, const TOptional<FDateTime>& Time)
{
	if (Time)
	{
		Object.SetStringField(Name, Time->ToIso8601());
	}
}

FVexelChatMessage ReadMessage(const TSharedPtr<FJsonValue>& Value)
{
	const TSharedPtr<FJsonObject>* Object = nullptr;
	FVexelChatMessage Message;
	if (Value->TryGetObject(Object) && Message.FromJson(Object->ToSharedRef()))
	{
		return Message;
	}
	return FVexelChatMessage::MakeUnreadable(Value);
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
	// The title is for the user, so it tells the time of their own clock.
	Title = FString::Printf(TEXT("Chat %s"), *FDateTime::Now().ToString(TEXT("%Y-%m-%d %H:%M:%S")));
}

TSharedRef<FJsonObject> FVexelChatConversation::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(UserIdField, UserId);
	Object->SetStringField(ChatIdField, ChatId);
	Object->SetStringField(TitleField, Title);
	Object->SetStringField(ChatModeField, ChatMode.ChatMode);
	WriteTime(*Object, CreationTimeField, CreationTime);
	WriteTime(*Object, UpdateTimeField, UpdateTime);
	TArray<TSharedPtr<FJsonValue>> MessageValues;
	MessageValues.Reserve(Messages.Num());
	for (const FVexelChatMessage& Message : Messages)
	{
		MessageValues.Add(Message.ToStoredValue());
	}
	Object->SetArrayField(MessagesField, MoveTemp(MessageValues));
	const TSharedRef<FJsonObject> MappingObject = Mapping->ToJson();
	FVexelStoredFields::WriteRest(MappingRest, MappingObject);
	Object->SetObjectField(MappingField, MappingObject);
	FVexelStoredFields::WriteRest(Rest, Object);
	return Object;
}

bool FVexelChatConversation::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelStoredFields Fields(Object);
	Fields.TryGetString(*UserIdField, UserId);
	Fields.TryGetString(*TitleField, Title);
	if (!Fields.TryGetString(*ChatIdField, ChatId) || ChatId.IsEmpty())
	{
		VEXEL_LOG(Warning, "FVexelChatConversation: No ChatId provided in JSON");
		return false;
	}

	ChatMode = FVexelChatModeInfo::MakeUserMode();
	FString ModeId;
	if (Fields.TryGetString(*ChatModeField, ModeId) && !ModeId.IsEmpty())
	{
		ChatMode = FVexelChatModeInfo::FromId(ModeId);
	}
	else
	{
		VEXEL_LOG(Log, "FVexelChatConversation: No ChatMode provided in JSON, defaulting to User mode.");
	}

	ReadTime(Fields, CreationTimeField, CreationTime);
	ReadTime(Fields, UpdateTimeField, UpdateTime);

	Messages.Reset();
	const TArray<TSharedPtr<FJsonValue>>* MessageValues = nullptr;
	if (Fields.TryGetArray(*MessagesField, MessageValues))
	{
		Messages.Reserve(MessageValues->Num());
		for (const TSharedPtr<FJsonValue>& Value : *MessageValues)
		{
			Messages.Add(ReadMessage(Value));
			Messages.Last().Key = ++LastKey;
		}
	}
	else if (Object->HasField(MessagesField))
	{
		VEXEL_LOG(Warning, "FVexelChatConversation: Messages is no array in JSON");
		return false;
	}

	Mapping = MakeShared<FVexelBlueprintMapping>();
	MappingRest.Reset();
	const TSharedPtr<FJsonObject>* MappingObject = nullptr;
	if (Fields.TryGetObject(*MappingField, MappingObject))
	{
		Mapping->FromJson(MappingObject->ToSharedRef());
		MappingRest = *MappingObject;
	}
	else
	{
		VEXEL_LOG(Log, "FVexelChatConversation: No Mapping provided in JSON, creating empty mapping.");
	}
	Rest = Fields.GetRest();
	++Revision;
	return true;
}

void FVexelChatConversation::SetTitle(const FString& NewTitle)
{
	Title = NewTitle.Replace(TEXT("\r"), TEXT(" ")).Replace(TEXT("\n"), TEXT(" ")).TrimStartAndEnd();
	NoteChange();
}

void FVexelChatConversation::SetChatMode(FVexelChatModeInfo NewMode)
{
	ChatMode = MoveTemp(NewMode);
	NoteChange();
}

FVexelChatHeader FVexelChatConversation::MakeHeader() const
{
	return {ChatId, UserId, Title, ChatMode.ChatMode, CreationTime, UpdateTime, Messages.Num()};
}

int32 FVexelChatConversation::AddMessage(FVexelChatMessage Message)
{
	NoteChange();
	Message.Key = ++LastKey;
	return Messages.Add(MoveTemp(Message));
}

void FVexelChatConversation::TakeOver(const FVexelChatConversation& Stored, int32 NumShared, bool bTitle, bool bChatMode)
{
	const int32 NumNew = Stored.Messages.Num() - NumShared;
	Messages.Insert(Stored.Messages.GetData() + NumShared, NumNew, NumShared);
	for (int32 Index = NumShared; Index < NumShared + NumNew; ++Index)
	{
		Messages[Index].Key = ++LastKey;
	}

	const TSharedRef<FJsonObject> Names = Mapping->ToJson();
	const TSharedRef<FJsonObject> StoredNames = Stored.Mapping->ToJson();
	for (const auto& [Field, Value] : StoredNames->Values)
	{
		const TSharedPtr<FJsonObject>* Ours = nullptr;
		const TSharedPtr<FJsonObject>* Theirs = nullptr;
		if (Names->TryGetObjectField(Field, Ours) && Value->TryGetObject(Theirs))
		{
			FVexelStoredFields::WriteRest(*Theirs, Ours->ToSharedRef());
		}
	}
	Mapping->FromJson(Names);

	Title = bTitle ? Stored.Title : Title;
	ChatMode = bChatMode ? Stored.ChatMode : ChatMode;
	if (!UpdateTime || (Stored.UpdateTime && *Stored.UpdateTime > *UpdateTime))
	{
		UpdateTime = Stored.UpdateTime;
	}
	Rest = Stored.Rest;
	MappingRest = Stored.MappingRest;
	++Revision;
}

int32 FVexelChatConversation::GetMessageKey(int32 Index) const
{
	return Messages.IsValidIndex(Index) ? Messages[Index].Key : 0;
}

int32 FVexelChatConversation::FindMessageByKey(int32 Key) const
{
	return Messages.FindLastByPredicate([Key](const FVexelChatMessage& Message)
		{ return Message.Key == Key; });
}

TArray<FVexelCheckpoint> FVexelChatConversation::GetCheckpoints() const
{
	TArray<FVexelCheckpoint> Checkpoints;
	for (int32 MessageIndex = 0; MessageIndex < Messages.Num(); ++MessageIndex)
	{
		const TArray<FVexelChatMessageBlock>& Blocks = Messages[MessageIndex].GetBlocks();
		for (int32 BlockIndex = 0; BlockIndex < Blocks.Num(); ++BlockIndex)
		{
			if (Blocks[BlockIndex].GetType() != EVexelChatMessageBlockType::Checkpoint)
			{
				continue;
			}
			FString Id = Blocks[BlockIndex].Checkpoint_GetCheckpointId();
			if (!Id.IsEmpty())
			{
				Checkpoints.Add({MessageIndex, BlockIndex, MoveTemp(Id)});
			}
		}
	}
	return Checkpoints;
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
	FVexelChatMessage* const Message = Messages.IsValidIndex(MessageIndex) ? &Messages[MessageIndex] : nullptr;
	const int32 NumBlocks = Message ? Message->NumBlocks() : 0;
	if (CheckpointBlockIndex < 0 || CheckpointBlockIndex >= NumBlocks)
	{
		VEXEL_LOG(Warning, "RevertToBlockIndex: CheckpointBlockIndex %d out of bounds (0-%d)", CheckpointBlockIndex, NumBlocks - 1);
		return false;
	}

	if (Message->GetBlocks()[CheckpointBlockIndex].GetType() != EVexelChatMessageBlockType::Checkpoint)
	{
		VEXEL_LOG(Warning, "RevertToBlockIndex: Block %d of message %d is no checkpoint", CheckpointBlockIndex, MessageIndex);
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
	++NumReverts;
	NoteChange();
	VEXEL_LOG(Log, "[Conversation] Revert finished. Messages remaining: %d, Removed: %d", Messages.Num(), NumRemoved);
	return true;
}

void FVexelChatConversation::NoteChange()
{
	UpdateTime = FDateTime::UtcNow();
	++Revision;
}

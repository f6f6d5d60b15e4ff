#include "Data/VexelChatMessage.h"

#include "Data/VexelStoredFields.h"
#include "VexelLog.h"

namespace
{
const TCHAR* const RoleNames[] = {TEXT("user"), TEXT("assistant"), TEXT("system")};

const FString BlocksField = TEXT("message_blocks");
const FString FailedField = TEXT("failed");
const FString RoleField = TEXT("role");
}

FVexelChatMessage::FVexelChatMessage(EVexelChatRole InRole, EVexelChatMessageState InState)
	: Role(InRole)
	, State(InState)
{
}

FVexelChatMessage FVexelChatMessage::MakeUnreadable(const TSharedPtr<FJsonValue>& Stored)
{
	FVexelChatMessage Message(EVexelChatRole::System);
	Message.Unreadable = Stored;
	return Message;
}

TSharedRef<FJsonObject> FVexelChatMessage::ToJson() const
{
	const TSharedPtr<FJsonObject>* Stored = nullptr;
	if (Unreadable && Unreadable->TryGetObject(Stored))
	{
		return Stored->ToSharedRef();
	}
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(RoleField, RoleNames[int32(Role)]);
	Object->SetBoolField(FailedField, State == EVexelChatMessageState::Failed);
	TArray<TSharedPtr<FJsonValue>> BlockValues;
	BlockValues.Reserve(Blocks.Num());
	for (const FVexelChatMessageBlock& Block : Blocks)
	{
		BlockValues.Add(Block.ToStoredValue());
	}
	Object->SetArrayField(BlocksField, MoveTemp(BlockValues));
	FVexelStoredFields::WriteRest(Rest, Object);
	return Object;
}

TSharedRef<FJsonValue> FVexelChatMessage::ToStoredValue() const
{
	return Unreadable ? Unreadable.ToSharedRef() : TSharedRef<FJsonValue>(MakeShared<FJsonValueObject>(ToJson()));
}

bool FVexelChatMessage::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelStoredFields Fields(Object);
	FString RoleName;
	if (!Fields.TryGetString(*RoleField, RoleName))
	{
		VEXEL_LOG(Warning, "Missing role field in FromJson");
		return false;
	}
	const int32 RoleIndex = TArrayView<const TCHAR* const>(RoleNames).IndexOfByPredicate([&](const TCHAR* Name)
		{ return RoleName.Equals(Name); });
	if (RoleIndex == INDEX_NONE)
	{
		VEXEL_LOG(Warning, "Unknown role '%s' in FromJson", *RoleName);
		return false;
	}
	Role = EVexelChatRole(RoleIndex);

	const TArray<TSharedPtr<FJsonValue>>* BlockValues = nullptr;
	if (!Fields.TryGetArray(*BlocksField, BlockValues))
	{
		VEXEL_LOG(Warning, "Invalid or missing message block in FromJson");
		return false;
	}
	Blocks.Reset(BlockValues->Num());
	for (const TSharedPtr<FJsonValue>& Value : *BlockValues)
	{
		const TSharedPtr<FJsonObject>* BlockObject = nullptr;
		FVexelChatMessageBlock Block;
		if (!Value->TryGetObject(BlockObject) || !Block.FromJson(BlockObject->ToSharedRef()))
		{
			VEXEL_LOG(Warning, "Invalid or missing message block in FromJson");
			Block = FVexelChatMessageBlock::MakeUnknown(Value);
		}
		Blocks.Add(MoveTemp(Block));
	}

	bool bFailed = false;
	Fields.TryGetBool(*FailedField, bFailed);
	State = EVexelChatMessageState::Completed;
	if (bFailed)
	{
		SetFailedAfter(FindLastCheckpoint());
	}
	Rest = Fields.GetRest();
	return true;
}

TSharedRef<FJsonObject> FVexelChatMessage::ToServiceJson(FVexelChatImageSource ImageSource) const
{
	const TSharedRef<FJsonObject> Object = ToJson();
	const bool bHasImages = Blocks.ContainsByPredicate([](const FVexelChatMessageBlock& Block)
		{ return Block.GetType() == EVexelChatMessageBlockType::Image; });
	if (!bHasImages)
	{
		FString Text;
		for (const FVexelChatMessageBlock& Block : Blocks)
		{
			Text += Block.GetType() == EVexelChatMessageBlockType::Text ? Block.GetText() : FString();
		}
		Object->SetStringField(TEXT("content"), MoveTemp(Text));
		return Object;
	}
	TArray<TSharedPtr<FJsonValue>> Parts;
	for (const FVexelChatMessageBlock& Block : Blocks)
	{
		if (const TSharedPtr<FJsonObject> Part = Block.ToServicePart(ImageSource))
		{
			Parts.Add(MakeShared<FJsonValueObject>(Part));
		}
	}
	Object->SetArrayField(TEXT("content"), MoveTemp(Parts));
	return Object;
}

const FVexelChatMessageBlock* FVexelChatMessage::GetMessageBlock(int32 Index) const
{
	if (!Blocks.IsValidIndex(Index))
	{
		VEXEL_LOG(Warning, "GetMessageBlock: Index %d out of bounds (0-%d)", Index, Blocks.Num() - 1);
		return nullptr;
	}
	return &Blocks[Index];
}

FString FVexelChatMessage::GetText() const
{
	FString Text;
	for (const FVexelChatMessageBlock& Block : Blocks)
	{
		Text += Block.GetText();
	}
	return Text;
}

int32 FVexelChatMessage::AddBlock(FVexelChatMessageBlock Block)
{
	return Blocks.Add(MoveTemp(Block));
}

int32 FVexelChatMessage::AppendText(FStringView Text, bool& bOutNewBlock)
{
	bOutNewBlock = Blocks.IsEmpty() || Blocks.Last().GetType() != EVexelChatMessageBlockType::Text;
	if (bOutNewBlock)
	{
		Blocks.Add(FVexelChatMessageBlock::MakeText(FString()));
	}
	Blocks.Last().AppendText(Text);
	return Blocks.Num() - 1;
}

void FVexelChatMessage::TrimBlocks(int32 NumToKeep)
{
	Blocks.SetNum(FMath::Min(NumToKeep, Blocks.Num()));
}

int32 FVexelChatMessage::FindLastCheckpoint() const
{
	return Blocks.FindLastByPredicate([](const FVexelChatMessageBlock& Block)
		{ return Block.GetType() == EVexelChatMessageBlockType::Checkpoint; });
}

int32 FVexelChatMessage::MarkFailedAfter(int32 CheckpointIndex)
{
	const int32 NumMarked = SetFailedAfter(CheckpointIndex);
	VEXEL_LOG(Log, "Marked %d message block(s) as failed after checkpoint index %d", NumMarked, CheckpointIndex);
	return NumMarked;
}

int32 FVexelChatMessage::SetFailedAfter(int32 CheckpointIndex)
{
	State = EVexelChatMessageState::Failed;
	for (int32 Index = CheckpointIndex + 1; Index < Blocks.Num(); ++Index)
	{
		Blocks[Index].MarkFailed();
	}
	return Blocks.Num() - (CheckpointIndex + 1);
}

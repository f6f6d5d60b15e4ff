#include "Data/VexelChatMessage.h"

#include "VexelLog.h"

namespace
{
const TCHAR* const RoleNames[] = {TEXT("user"), TEXT("assistant"), TEXT("system")};
}

FVexelChatMessage::FVexelChatMessage(EVexelChatRole InRole, EVexelChatMessageState InState)
	: Role(InRole)
	, State(InState)
{
}

TSharedRef<FJsonObject> FVexelChatMessage::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetStringField(TEXT("role"), RoleNames[int32(Role)]);
	Object->SetBoolField(TEXT("failed"), State == EVexelChatMessageState::Failed);
	TArray<TSharedPtr<FJsonValue>> BlockValues;
	for (const FVexelChatMessageBlock& Block : Blocks)
	{
		BlockValues.Add(MakeShared<FJsonValueObject>(Block.ToJson()));
	}
	Object->SetArrayField(TEXT("message_blocks"), BlockValues);
	return Object;
}

bool FVexelChatMessage::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FString RoleName;
	if (!Object->TryGetStringField(TEXT("role"), RoleName))
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

	Blocks.Reset();
	const TArray<TSharedPtr<FJsonValue>>* BlockValues = nullptr;
	Object->TryGetArrayField(TEXT("message_blocks"), BlockValues);
	for (int32 Index = 0; BlockValues && Index < BlockValues->Num(); ++Index)
	{
		const TSharedPtr<FJsonObject>* BlockObject = nullptr;
		FVexelChatMessageBlock Block;
		if (!(*BlockValues)[Index]->TryGetObject(BlockObject) || !Block.FromJson(BlockObject->ToSharedRef()))
		{
			VEXEL_LOG(Warning, "Invalid or missing message block in FromJson");
			continue;
		}
		Blocks.Add(MoveTemp(Block));
	}

	bool bFailed = false;
	Object->TryGetBoolField(TEXT("failed"), bFailed);
	State = EVexelChatMessageState::Completed;
	if (bFailed)
	{
		MarkFailedAfter(FindLastCheckpoint());
	}
	return true;
}

TSharedRef<FJsonObject> FVexelChatMessage::ToServiceJson() const
{
	const TSharedRef<FJsonObject> Object = ToJson();
	TArray<TSharedPtr<FJsonValue>> Parts;
	FString Text;
	bool bOnlyText = true;
	for (const FVexelChatMessageBlock& Block : Blocks)
	{
		if (const TSharedPtr<FJsonObject> Part = Block.ToServiceJson())
		{
			Parts.Add(MakeShared<FJsonValueObject>(Part));
			bOnlyText &= Block.GetType() == EVexelChatMessageBlockType::Text;
			Text += Block.GetType() == EVexelChatMessageBlockType::Text ? Block.GetText() : FString();
		}
	}
	if (bOnlyText)
	{
		Object->SetStringField(TEXT("content"), Text);
	}
	else
	{
		Object->SetArrayField(TEXT("content"), Parts);
	}
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
	State = EVexelChatMessageState::Failed;
	int32 NumMarked = 0;
	for (int32 Index = CheckpointIndex + 1; Index < Blocks.Num(); ++Index)
	{
		Blocks[Index].MarkFailed();
		++NumMarked;
	}
	VEXEL_LOG(Log, "Marked %d message block(s) as failed after checkpoint index %d", NumMarked, CheckpointIndex);
	return NumMarked;
}

#include "Data/VexelChatMessageBlock.h"

#include "Misc/Base64.h"
#include "VexelLog.h"

namespace
{
struct FTypeName
{
	EVexelChatMessageBlockType Type;
	const TCHAR* Name;
};

constexpr FTypeName TypeNames[] = {
	{EVexelChatMessageBlockType::Text, TEXT("text")},
	{EVexelChatMessageBlockType::Image, TEXT("image")},
	{EVexelChatMessageBlockType::ToolCall, TEXT("tool_call")},
	{EVexelChatMessageBlockType::ToolResult, TEXT("tool_result")},
	{EVexelChatMessageBlockType::SubChainStart, TEXT("sub_chain_start")},
	{EVexelChatMessageBlockType::SubChainEnd, TEXT("sub_chain_end")},
	{EVexelChatMessageBlockType::Checkpoint, TEXT("checkpoint")},
	{EVexelChatMessageBlockType::Error, TEXT("error")},
};

const FString AssetIdField = TEXT("asset_id");
const FString CheckpointIdField = TEXT("checkpoint_id");
const FString ContentField = TEXT("content");
const FString InfoField = TEXT("info");
const FString MessageField = TEXT("message");
const FString ReplyIdField = TEXT("reply_id");
const FString SubChatIdField = TEXT("sub_chat_id");
const FString ToolInfoField = TEXT("tool_info");
const FString ToolNameField = TEXT("tool_name");
const FString TypeField = TEXT("type");

bool IsTool(EVexelChatMessageBlockType Type)
{
	return Type == EVexelChatMessageBlockType::ToolCall || Type == EVexelChatMessageBlockType::ToolResult;
}

/** The one field of a block that is neither text nor a tool; null for those. */
const FString* GetIdField(EVexelChatMessageBlockType Type)
{
	switch (Type)
	{
		case EVexelChatMessageBlockType::Image:
			return &AssetIdField;
		case EVexelChatMessageBlockType::SubChainStart:
		case EVexelChatMessageBlockType::SubChainEnd:
			return &SubChatIdField;
		case EVexelChatMessageBlockType::Checkpoint:
			return &CheckpointIdField;
		case EVexelChatMessageBlockType::Error:
			return &MessageField;
		default:
			return nullptr;
	}
}
}

FVexelChatMessageBlock FVexelChatMessageBlock::MakeText(FString Text)
{
	FVexelChatMessageBlock Block;
	Block.Text = MoveTemp(Text);
	return Block;
}

FVexelChatMessageBlock FVexelChatMessageBlock::MakeFromTag(EVexelChatMessageBlockType Type, const TSharedPtr<FJsonObject>& Info)
{
	if (IsTool(Type) && (!Info || Info->Values.IsEmpty()))
	{
		VEXEL_LOG(Warning, "Tool block created without valid TagInfo");
	}
	FVexelChatMessageBlock Block;
	Block.Type = Type;
	Block.Info = Info;
	return Block;
}

FVexelChatMessageBlock FVexelChatMessageBlock::MakeImage(FString AssetId, TArray<uint8> Bytes)
{
	FVexelChatMessageBlock Block;
	Block.Type = EVexelChatMessageBlockType::Image;
	Block.Info = MakeShared<FJsonObject>();
	Block.Info->SetStringField(AssetIdField, AssetId);
	Block.ImageBytes = MoveTemp(Bytes);
	return Block;
}

TSharedRef<FJsonObject> FVexelChatMessageBlock::ToJson() const
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	for (const FTypeName& Entry : TypeNames)
	{
		if (Entry.Type == Type)
		{
			Object->SetStringField(TypeField, Entry.Name);
		}
	}
	if (Type == EVexelChatMessageBlockType::Text)
	{
		Object->SetStringField(ContentField, Text);
	}
	else if (IsTool(Type))
	{
		const TSharedRef<FJsonObject> ToolInfo = MakeShared<FJsonObject>();
		ToolInfo->SetStringField(ToolNameField, GetInfoString(*ToolNameField));
		if (Type == EVexelChatMessageBlockType::ToolCall)
		{
			ToolInfo->SetStringField(ReplyIdField, GetInfoString(*ReplyIdField));
		}
		if (Info)
		{
			ToolInfo->SetObjectField(InfoField, Info);
		}
		Object->SetObjectField(ToolInfoField, ToolInfo);
	}
	else if (const FString* const IdField = GetIdField(Type))
	{
		Object->SetStringField(*IdField, GetInfoString(**IdField));
	}
	return Object;
}

bool FVexelChatMessageBlock::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FString Name;
	if (!Object->TryGetStringField(TypeField, Name))
	{
		VEXEL_LOG(Warning, "Missing type field in FromJson");
		return false;
	}
	const FTypeName* Found = nullptr;
	for (const FTypeName& Entry : TypeNames)
	{
		Found = Name.Equals(Entry.Name) ? &Entry : Found;
	}
	if (!Found)
	{
		VEXEL_LOG(Warning, "Unknown block type '%s' in FromJson", *Name);
		return false;
	}
	Type = Found->Type;

	if (Type == EVexelChatMessageBlockType::Text)
	{
		if (!Object->TryGetStringField(ContentField, Text))
		{
			VEXEL_LOG(Warning, "Missing content field in FromJson for Text block");
			return false;
		}
		return true;
	}

	Info = MakeShared<FJsonObject>();
	if (IsTool(Type))
	{
		const TSharedPtr<FJsonObject>* ToolInfo = nullptr;
		FString ToolName;
		if (!Object->TryGetObjectField(ToolInfoField, ToolInfo) || !(*ToolInfo)->TryGetStringField(ToolNameField, ToolName))
		{
			VEXEL_LOG(Warning, "Missing tool_name field in FromJson for tool block");
			return false;
		}
		const TSharedPtr<FJsonObject>* Stored = nullptr;
		if ((*ToolInfo)->TryGetObjectField(InfoField, Stored))
		{
			Info = *Stored;
		}
		Info->SetStringField(ToolNameField, ToolName);
		FString ReplyId;
		if ((*ToolInfo)->TryGetStringField(ReplyIdField, ReplyId))
		{
			Info->SetStringField(ReplyIdField, ReplyId);
		}
		return true;
	}

	const FString& IdField = *GetIdField(Type);
	FString Id;
	Object->TryGetStringField(IdField, Id);
	Info->SetStringField(IdField, Id);
	return true;
}

TSharedPtr<FJsonObject> FVexelChatMessageBlock::ToServiceJson() const
{
	if (Type == EVexelChatMessageBlockType::Text)
	{
		const TSharedPtr<FJsonObject> Part = MakeShared<FJsonObject>();
		Part->SetStringField(TypeField, TEXT("text"));
		Part->SetStringField(TEXT("text"), Text);
		return Part;
	}
	if (Type == EVexelChatMessageBlockType::Image && !ImageBytes.IsEmpty())
	{
		const TSharedPtr<FJsonObject> Source = MakeShared<FJsonObject>();
		Source->SetStringField(TypeField, TEXT("base64"));
		Source->SetStringField(TEXT("data"), FBase64::Encode(ImageBytes));
		const TSharedPtr<FJsonObject> Part = MakeShared<FJsonObject>();
		Part->SetStringField(TypeField, TEXT("image"));
		Part->SetObjectField(TEXT("source"), Source);
		return Part;
	}
	return nullptr;
}

FString FVexelChatMessageBlock::GetText() const
{
	return Type == EVexelChatMessageBlockType::Error ? FString::Printf(TEXT("Error: %s\n"), *GetInfoString(*MessageField)) : Text;
}

void FVexelChatMessageBlock::AppendText(FStringView More)
{
	Text.Append(More);
}

FString FVexelChatMessageBlock::Tool_GetToolName() const
{
	const FString Name = IsTool(Type) ? GetInfoString(*ToolNameField) : FString();
	if (Name.IsEmpty())
	{
		VEXEL_LOG(Warning, "Tool_GetToolName called on a non-tool block or missing tool name");
	}
	return Name;
}

FString FVexelChatMessageBlock::Tool_GetToolReplyId() const
{
	const FString ReplyId = Type == EVexelChatMessageBlockType::ToolCall ? GetInfoString(*ReplyIdField) : FString();
	if (ReplyId.IsEmpty())
	{
		VEXEL_LOG(Warning, "Tool_GetToolReplyId called on a non-tool call block or missing reply_id");
	}
	return ReplyId;
}

FString FVexelChatMessageBlock::SubChain_GetChatId() const
{
	const bool bSubChain = Type == EVexelChatMessageBlockType::SubChainStart || Type == EVexelChatMessageBlockType::SubChainEnd;
	const FString ChatId = bSubChain ? GetInfoString(*SubChatIdField) : FString();
	if (ChatId.IsEmpty())
	{
		VEXEL_LOG(Warning, "SubChain_GetChatId called on a non-sub-chain block or missing sub_chat_id");
	}
	return ChatId;
}

FString FVexelChatMessageBlock::Checkpoint_GetCheckpointId() const
{
	const FString CheckpointId = Type == EVexelChatMessageBlockType::Checkpoint ? GetInfoString(*CheckpointIdField) : FString();
	if (CheckpointId.IsEmpty())
	{
		VEXEL_LOG(Warning, "Checkpoint_GetCheckpointId called on a non-checkpoint block or missing id");
	}
	return CheckpointId;
}

FString FVexelChatMessageBlock::GetInfoString(const TCHAR* Field) const
{
	FString Value;
	if (Info)
	{
		Info->TryGetStringField(FString(Field), Value);
	}
	return Value;
}

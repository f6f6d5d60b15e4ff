#include "Data/VexelChatMessageBlock.h"

#include "Data/VexelStoredFields.h"
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
const FString UrlField = TEXT("url");

const FTypeName* FindTypeName(TFunctionRef<bool(const FTypeName&)> Predicate)
{
	for (const FTypeName& Entry : TypeNames)
	{
		if (Predicate(Entry))
		{
			return &Entry;
		}
	}
	return nullptr;
}

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

/**
 * Reads a string of the stored form into the information object, where that has none of the name of its own. An empty one stands
 * for none.
 */
bool ReadInfoString(FVexelStoredFields& Fields, const FString& Name, FJsonObject& Info)
{
	FString Value;
	if (!Fields.TryGetString(*Name, Value))
	{
		return false;
	}
	if (!Value.IsEmpty() && !Info.HasField(Name))
	{
		Info.SetStringField(Name, Value);
	}
	return true;
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

FVexelChatMessageBlock FVexelChatMessageBlock::MakeImage(const FString& AssetId)
{
	const TSharedRef<FJsonObject> Info = MakeShared<FJsonObject>();
	Info->SetStringField(AssetIdField, AssetId);
	return MakeFromTag(EVexelChatMessageBlockType::Image, Info);
}

FVexelChatMessageBlock FVexelChatMessageBlock::MakeUnknown(const TSharedPtr<FJsonValue>& Stored)
{
	FVexelChatMessageBlock Block;
	Block.Type = EVexelChatMessageBlockType::Unknown;
	Block.Stored = Stored;
	return Block;
}

TSharedRef<FJsonObject> FVexelChatMessageBlock::ToJson() const
{
	const TSharedPtr<FJsonObject>* StoredObject = nullptr;
	if (Stored && Stored->TryGetObject(StoredObject))
	{
		return StoredObject->ToSharedRef();
	}
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	if (const FTypeName* const Name = FindTypeName([this](const FTypeName& Entry)
			{ return Entry.Type == Type; }))
	{
		Object->SetStringField(TypeField, Name->Name);
	}
	if (Type == EVexelChatMessageBlockType::Text)
	{
		Object->SetStringField(ContentField, Text);
	}
	else if (IsTool(Type))
	{
		WriteTool(*Object);
	}
	else if (const FString* const IdField = GetIdField(Type))
	{
		Object->SetStringField(*IdField, GetInfoString(**IdField));
		if (Info && Info->Values.Num() > (Info->HasField(*IdField) ? 1 : 0))
		{
			Object->SetObjectField(InfoField, Info);
		}
	}
	FVexelStoredFields::WriteRest(Rest, Object);
	return Object;
}

TSharedRef<FJsonValue> FVexelChatMessageBlock::ToStoredValue() const
{
	return Stored ? Stored.ToSharedRef() : TSharedRef<FJsonValue>(MakeShared<FJsonValueObject>(ToJson()));
}

bool FVexelChatMessageBlock::FromJson(const TSharedRef<FJsonObject>& Object)
{
	FVexelStoredFields Fields(Object);
	FString Name;
	if (!Fields.TryGetString(*TypeField, Name))
	{
		VEXEL_LOG(Warning, "Missing type field in FromJson");
		return false;
	}
	const FTypeName* const Found = FindTypeName([&](const FTypeName& Entry)
		{ return Name.Equals(Entry.Name); });
	if (!Found)
	{
		VEXEL_LOG(Warning, "Unknown block type '%s' in FromJson", *Name);
		return false;
	}
	Type = Found->Type;

	if (Type == EVexelChatMessageBlockType::Text)
	{
		if (!Fields.TryGetString(*ContentField, Text))
		{
			VEXEL_LOG(Warning, "Missing content field in FromJson for Text block");
			return false;
		}
	}
	else if (IsTool(Type))
	{
		if (!ReadTool(Fields))
		{
			VEXEL_LOG(Warning, "Missing tool_name field in FromJson for tool block");
			return false;
		}
	}
	else
	{
		const FString& IdField = *GetIdField(Type);
		const TSharedPtr<FJsonObject>* StoredInfo = nullptr;
		Info = Fields.TryGetObject(*InfoField, StoredInfo) ? *StoredInfo : MakeShared<FJsonObject>();
		ReadInfoString(Fields, IdField, *Info);
	}
	Rest = Fields.GetRest();
	return true;
}

void FVexelChatMessageBlock::WriteTool(FJsonObject& Object) const
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
	FVexelStoredFields::WriteRest(ToolInfoRest, ToolInfo);
	Object.SetObjectField(ToolInfoField, ToolInfo);
}

bool FVexelChatMessageBlock::ReadTool(FVexelStoredFields& Fields)
{
	const TSharedPtr<FJsonObject>* ToolInfo = nullptr;
	if (!Fields.TryGetObject(*ToolInfoField, ToolInfo))
	{
		return false;
	}
	FVexelStoredFields ToolFields(ToolInfo->ToSharedRef());
	const TSharedPtr<FJsonObject>* StoredInfo = nullptr;
	Info = ToolFields.TryGetObject(*InfoField, StoredInfo) ? *StoredInfo : MakeShared<FJsonObject>();
	if (!ReadInfoString(ToolFields, ToolNameField, *Info))
	{
		return false;
	}
	ReadInfoString(ToolFields, ReplyIdField, *Info);
	ToolInfoRest = ToolFields.GetRest();
	return true;
}

TSharedPtr<FJsonObject> FVexelChatMessageBlock::ToServicePart(FVexelChatImageSource ImageSource) const
{
	if (Type == EVexelChatMessageBlockType::Text)
	{
		const TSharedPtr<FJsonObject> Part = MakeShared<FJsonObject>();
		Part->SetStringField(TypeField, TEXT("text"));
		Part->SetStringField(TEXT("text"), Text);
		return Part;
	}
	if (Type != EVexelChatMessageBlockType::Image)
	{
		return nullptr;
	}
	const TArray<uint8> Bytes = ImageSource(Image_GetAssetId());
	if (Bytes.IsEmpty())
	{
		return nullptr;
	}
	const TSharedPtr<FJsonObject> Source = MakeShared<FJsonObject>();
	Source->SetStringField(TypeField, TEXT("base64"));
	Source->SetStringField(TEXT("data"), FBase64::Encode(Bytes));
	const TSharedPtr<FJsonObject> Part = MakeShared<FJsonObject>();
	Part->SetStringField(TypeField, TEXT("image"));
	Part->SetObjectField(TEXT("source"), Source);
	return Part;
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

FString FVexelChatMessageBlock::Image_GetAssetId() const
{
	const FString AssetId = Type == EVexelChatMessageBlockType::Image ? GetInfoString(*AssetIdField) : FString();
	return AssetId.IsEmpty() ? Image_GetUrl() : AssetId;
}

FString FVexelChatMessageBlock::Image_GetUrl() const
{
	return Type == EVexelChatMessageBlockType::Image ? GetInfoString(*UrlField) : FString();
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

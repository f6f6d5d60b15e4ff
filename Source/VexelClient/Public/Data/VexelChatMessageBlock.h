#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatMessageBlockType.h"
#include "VexelJson.h"

class FVexelStoredFields;

/** Gives an image's bytes by its asset id; none where it is not at hand. */
using FVexelChatImageSource = TFunctionRef<TArray<uint8>(const FString& AssetId)>;

/** One piece of a message: a run of text, or what one tag of the answer carried. */
class VEXELCLIENT_API FVexelChatMessageBlock : public IVexelJsonable
{
public:
	FVexelChatMessageBlock() = default;

	static FVexelChatMessageBlock MakeText(FString Text);

	/** A block of a tag of the answer. A tool block without information is made all the same and logged. */
	static FVexelChatMessageBlock MakeFromTag(EVexelChatMessageBlockType Type, const TSharedPtr<FJsonObject>& Info);

	/** An image by its id. Its bytes stand beside the history. */
	static FVexelChatMessageBlock MakeImage(const FString& AssetId);

	/** A block that cannot be read; its stored form is kept as it is. */
	static FVexelChatMessageBlock MakeUnknown(const TSharedPtr<FJsonValue>& Stored);

	/** The stored form. An unknown block that was no object is an empty one here: see ToStoredValue(). */
	virtual TSharedRef<FJsonObject> ToJson() const override;
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** The stored form, for an unknown block just what was read. */
	TSharedRef<FJsonValue> ToStoredValue() const;

	/** The part of a message's "content" that the service reads; null for blocks that are the editor's own business. */
	TSharedPtr<FJsonObject> ToServicePart(FVexelChatImageSource ImageSource) const;

	EVexelChatMessageBlockType GetType() const { return Type; }

	/** A text block's text, or an error block as it is shown. */
	FString GetText() const;
	void AppendText(FStringView More);

	/** Information of the tag that made the block; null for text. */
	const TSharedPtr<FJsonObject>& GetInfo() const { return Info; }

	/** The accessors below answer an empty text, and log, on a block of another type or without that value. */
	FString Tool_GetToolName() const;
	FString Tool_GetToolReplyId() const;
	FString SubChain_GetChatId() const;
	FString Checkpoint_GetCheckpointId() const;

	/** Id of an image, its address where it was given none; empty for every other block. */
	FString Image_GetAssetId() const;
	/** Where the service has an image; empty for one that it has given no address of. */
	FString Image_GetUrl() const;

	bool HasFailed() const { return bFailed; }
	void MarkFailed(bool bNewFailed = true) { bFailed = bNewFailed; }

private:
	FString GetInfoString(const TCHAR* Field) const;
	void WriteTool(FJsonObject& Object) const;
	bool ReadTool(FVexelStoredFields& Fields);

	EVexelChatMessageBlockType Type = EVexelChatMessageBlockType::Text;
	FString Text;
	TSharedPtr<FJsonObject> Info;
	bool bFailed = false;

	/** Fields of the stored form that this version does not know; null without any. */
	TSharedPtr<FJsonObject> Rest;
	TSharedPtr<FJsonObject> ToolInfoRest;
	/** An unknown block as it was read. */
	TSharedPtr<FJsonValue> Stored;
};

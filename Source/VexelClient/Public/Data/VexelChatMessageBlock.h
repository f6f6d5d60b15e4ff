#pragma once

#include "CoreMinimal.h"
#include "Data/VexelChatMessageBlockType.h"
#include "VexelJson.h"

/** One piece of a message: a run of text, or what one tag of the answer carried. */
class VEXELCLIENT_API FVexelChatMessageBlock : public IVexelJsonable
{
public:
	FVexelChatMessageBlock() = default;

	static FVexelChatMessageBlock MakeText(FString Text);

	/** A block of a tag of the answer. A tool block without information is made all the same and logged. */
	static FVexelChatMessageBlock MakeFromTag(EVexelChatMessageBlockType Type, const TSharedPtr<FJsonObject>& Info);

	/** An image that the user gives; its bytes go to the service, and its id alone is stored. */
	static FVexelChatMessageBlock MakeImage(FString AssetId, TArray<uint8> Bytes);

	virtual TSharedRef<FJsonObject> ToJson() const override;
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object) override;

	/** The part of a message's "content" that the service reads; null for blocks that are the editor's own business. */
	TSharedPtr<FJsonObject> ToServiceJson() const;

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

	bool HasFailed() const { return bFailed; }
	void MarkFailed(bool bNewFailed = true) { bFailed = bNewFailed; }

private:
	FString GetInfoString(const TCHAR* Field) const;

	EVexelChatMessageBlockType Type = EVexelChatMessageBlockType::Text;
	FString Text;
	TSharedPtr<FJsonObject> Info;
	TArray<uint8> ImageBytes;
	bool bFailed = false;
};

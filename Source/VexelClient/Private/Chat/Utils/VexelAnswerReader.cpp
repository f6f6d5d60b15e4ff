#include "Chat/Utils/VexelAnswerReader.h"

#include "VexelLog.h"

FVexelAnswerReader::FVexelAnswerReader()
	: Response(EVexelChatRole::Assistant, EVexelChatMessageState::InProgress)
	, Parser(*this)
{
}

FString FVexelAnswerReader::TakeNewText(TConstArrayView<uint8> WholeBody)
{
	if (WholeBody.Num() < NumProcessedBytes)
	{
		VEXEL_LOG(Warning, "Received response bytes are less than already processed bytes. Ignoring.");
		return FString();
	}
	const TConstArrayView<uint8> NewBytes = WholeBody.RightChop(NumProcessedBytes);
	VEXEL_LOG(VeryVerbose, "[Vexel] Before UTF-8 convert, payload size = %d", NewBytes.Num());
	NumProcessedBytes = WholeBody.Num();
	return Utf8Stream.Convert(NewBytes);
}

void FVexelAnswerReader::Read(FStringView Text)
{
	if (!bStopped)
	{
		Parser.Parse(Text);
	}
}

void FVexelAnswerReader::Finish()
{
	Read(Utf8Stream.Finish());
	if (!bStopped)
	{
		Parser.Finish();
	}
}

void FVexelAnswerReader::OnText(FStringView Text)
{
	if (bStopped)
	{
		return;
	}
	bool bNewBlock = false;
	const int32 BlockIndex = Response.AppendText(Text, bNewBlock);
	if (bNewBlock)
	{
		OnBlock(BlockIndex);
	}
	OnTextAdded(BlockIndex, Text);
}

void FVexelAnswerReader::OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info)
{
	// Whoever was told of an earlier block of the same piece may have stopped the reading.
	if (bStopped)
	{
		return;
	}
	if (Type == EVexelChatMessageBlockType::Text || Type == EVexelChatMessageBlockType::Unknown)
	{
		VEXEL_LOG(Warning, "Unexpected block type %d in content processing, reverting to text", int32(Type));
		return;
	}
	OnBlock(Response.AddBlock(FVexelChatMessageBlock::MakeFromTag(Type, Info)));
}

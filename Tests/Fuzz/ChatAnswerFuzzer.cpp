#include "Chat/Utils/VexelAnswerReader.h"
#include "ChatFuzzing.h"

#include <cstddef>
#include <cstdint>
#include <random>

namespace
{
/** Reads an answer as a request does, up to where it would follow a sub-chain or call a tool. */
class FListener
{
public:
	FListener()
	{
		Reader.OnBlock = [this](int32 BlockIndex)
		{ OnBlock(Reader.GetResponse().GetBlocks()[BlockIndex]); };
		Reader.OnTextAdded = [this](int32, FStringView Text)
		{ AddedText += Text; };
	}

	/** @param MaxChunk Largest piece; 0 for all at once. */
	FVexelChatMessage& Listen(TConstArrayView<uint8> Answer, int32 MaxChunk, uint32 Seed)
	{
		std::minstd_rand Random(Seed);
		for (int32 End = 0; End < Answer.Num();)
		{
			End = MaxChunk == 0 ? Answer.Num() : FMath::Min(Answer.Num(), End + 1 + int32(Random() % uint32(MaxChunk)));
			Reader.Read(Reader.TakeNewText(Answer.Left(End)));
		}
		Reader.Finish();
		ChatFuzzing::ExpectSame("the added text is not that of the blocks", AddedText, ToTextOfTextBlocks());
		return Reader.GetResponse();
	}

	FString Calls;

private:
	void OnBlock(const FVexelChatMessageBlock& Block)
	{
		switch (Block.GetType())
		{
			case EVexelChatMessageBlockType::ToolCall:
				Calls += Block.Tool_GetToolName() + TEXT("(") + Block.Tool_GetToolReplyId() + TEXT(")");
				break;
			case EVexelChatMessageBlockType::SubChainStart:
			case EVexelChatMessageBlockType::SubChainEnd:
				Calls += TEXT("|") + Block.SubChain_GetChatId();
				break;
			case EVexelChatMessageBlockType::Checkpoint:
				Calls += TEXT("@") + Block.Checkpoint_GetCheckpointId();
				break;
			case EVexelChatMessageBlockType::Image:
				Calls += TEXT("#") + Block.Image_GetAssetId() + Block.Image_GetUrl();
				break;
			default:
				break;
		}
	}

	FString ToTextOfTextBlocks() const
	{
		FString Text;
		for (const FVexelChatMessageBlock& Block : Reader.GetResponse().GetBlocks())
		{
			Text += Block.GetType() == EVexelChatMessageBlockType::Text ? Block.GetText() : FString();
		}
		return Text;
	}

	FVexelAnswerReader Reader;
	FString AddedText;
};
}

/** The first two bytes say how the answer is cut. It must come out as it does in one piece, and be stored without loss. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	ChatFuzzing::BeQuiet();
	if (Size < 3)
	{
		return 0;
	}
	const TConstArrayView<uint8> Answer(Data + 2, int32(Size) - 2);
	FListener InPieces;
	FListener AtOnce;
	FVexelChatMessage& Response = InPieces.Listen(Answer, 1 + Data[0], Data[1]);
	ChatFuzzing::ExpectSame(
		"the pieces make another answer", ChatFuzzing::ToText(Response), ChatFuzzing::ToText(AtOnce.Listen(Answer, 0, 0)));
	ChatFuzzing::ExpectSame("the pieces make other calls", InPieces.Calls, AtOnce.Calls);
	ChatFuzzing::ExpectStable(Response);
	Response.MarkFailedAfter(Response.FindLastCheckpoint());
	ChatFuzzing::ExpectStable(Response);
	return 0;
}

#include "Chat/Utils/VexelChunkParser.h"
#include "Chat/Utils/VexelUtf8Stream.h"
#include "Containers/StringConv.h"
#include "Data/VexelChatMessage.h"
#include "Dom/JsonObject.h"

#include <benchmark/benchmark.h>
#include <string>

namespace
{
constexpr size_t AnswerBytes = 64u << 20;
/** What one TCP segment over loopback or a TLS record commonly brings. */
constexpr size_t NetworkChunkBytes = 16u << 10;

/** 64 MiB of what an assistant writes: Markdown with code and comparison signs, some other scripts, a tool call every few kilobytes. */
const std::string& GetAnswer()
{
	static const std::string Answer = []
	{
		const std::string Paragraph =
			"When the player **begins to overlap** the door, `OpenDoor` runs: if Health < 10 it waits 0.5 s, else it plays the timeline "
			"and sets bOpen. Für die Tür gilt dasselbe; 門が開く。\n\n```cpp\nfor (int32 Index = 0; Index < Num; ++Index)\n{\n\tOpen(Index);\n}\n```\n";
		const std::string Call = "<ToolCall info={\"tool_name\":\"read_blueprint\",\"reply_id\":\"17\",\"blueprint\":\"/Game/BP_Door\"}/>";
		std::string Text;
		Text.reserve(AnswerBytes + 8192);
		for (int32 Index = 1; Text.size() < AnswerBytes; ++Index)
		{
			Text += Paragraph;
			if (Index % 16 == 0)
			{
				Text += Call;
			}
		}
		Text.resize(AnswerBytes);
		return Text;
	}();
	return Answer;
}

TConstArrayView<uint8> GetChunk(const std::string& Answer, size_t Start)
{
	return TConstArrayView<uint8>(
		reinterpret_cast<const uint8*>(Answer.data() + Start), int32(FMath::Min(NetworkChunkBytes, Answer.size() - Start)));
}

/** Builds the message as a request does. */
class FMessageSink : public IVexelChunkSink
{
public:
	virtual void OnText(FStringView Text) override
	{
		bool bNewBlock = false;
		Message.AppendText(Text, bNewBlock);
	}
	virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) override
	{
		Message.AddBlock(FVexelChatMessageBlock::MakeFromTag(Type, Info));
	}

	FVexelChatMessage Message{EVexelChatRole::Assistant};
};

/** The whole way of an answer: bytes to text, text to blocks. */
void ParseAnswer(benchmark::State& State)
{
	const std::string& Answer = GetAnswer();
	for (auto _ : State)
	{
		FMessageSink Sink;
		FVexelChunkParser Parser(Sink);
		FVexelUtf8Stream Stream;
		for (size_t Start = 0; Start < Answer.size(); Start += NetworkChunkBytes)
		{
			Parser.Parse(Stream.Convert(GetChunk(Answer, Start)));
		}
		Parser.Finish();
		benchmark::DoNotOptimize(Sink.Message.NumBlocks());
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(Answer.size()));
}

/** The peer: the same bytes in the same chunks to UTF-16, put together into one text. */
void ConvertAnswer(benchmark::State& State)
{
	const std::string& Answer = GetAnswer();
	for (auto _ : State)
	{
		FString Text;
		for (size_t Start = 0; Start < Answer.size(); Start += NetworkChunkBytes)
		{
			const TConstArrayView<uint8> Chunk = GetChunk(Answer, Start);
			const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Chunk.GetData()), Chunk.Num());
			Text.AppendChars(Converted.Get(), Converted.Length());
		}
		benchmark::DoNotOptimize(Text.Len());
	}
	State.SetBytesProcessed(int64(State.iterations()) * int64(Answer.size()));
}
}

BENCHMARK(ParseAnswer)->Name("StreamParser/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(ConvertAnswer)->Name("StreamParser/Peer:utf8_to_utf16")->Unit(benchmark::kMillisecond);

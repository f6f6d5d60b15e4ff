#include "Chat/Utils/VexelChunkParser.h"
#include "Chat/Utils/VexelUtf8Stream.h"
#include "Dom/JsonObject.h"
#include "Misc/OutputDeviceRedirector.h"
#include "VexelJson.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

namespace
{
/** Writes all that it is given into one text, so that two ways of cutting an answer can be compared. */
class FRecorder : public IVexelChunkSink
{
public:
	virtual void OnText(FStringView Text) override { Record += Text; }

	virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) override
	{
		FString Json;
		FVexelJsonConversions::JsonToString(Info, Json);
		Record += FString::Printf(TEXT("\x01%d%s\x02"), int32(Type), *Json);
	}

	FString Record;
};

FString ParseInChunks(TConstArrayView<uint8> Answer, int32 ChunkSize)
{
	FRecorder Recorder;
	FVexelChunkParser Parser(Recorder);
	FVexelUtf8Stream Stream;
	for (int32 Start = 0; Start < Answer.Num(); Start += ChunkSize)
	{
		Parser.Parse(Stream.Convert(Answer.Slice(Start, FMath::Min(ChunkSize, Answer.Num() - Start))));
	}
	Parser.Parse(Stream.Finish());
	Parser.Finish();
	return Recorder.Record;
}
}

/** The first byte is the size of the chunks. The answer must come out as it does in one piece. */
extern "C" int LLVMFuzzerTestOneInput(const uint8_t* Data, size_t Size)
{
	static const bool bQuiet = (GLog->SetConsoleVerbosity(ELogVerbosity::Fatal), true);
	static_cast<void>(bQuiet);
	if (Size < 2)
	{
		return 0;
	}
	const TConstArrayView<uint8> Answer(Data + 1, int32(Size) - 1);
	const int32 ChunkSize = 1 + Data[0];
	if (!ParseInChunks(Answer, ChunkSize).Equals(ParseInChunks(Answer, Answer.Num()), ESearchCase::CaseSensitive))
	{
		abort();
	}
	return 0;
}

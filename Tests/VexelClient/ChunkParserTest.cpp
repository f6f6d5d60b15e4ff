#include "Chat/Utils/VexelChunkParser.h"

#include "Chat/Utils/VexelUtf8Stream.h"
#include "Containers/StringConv.h"
#include "Dom/JsonObject.h"
#include "VexelJson.h"

#include <gtest/gtest.h>
#include <ostream>
#include <string>

namespace
{
/** What came out of a parser, written so that a test can compare it as a whole: "text|ToolCall{...}|text". */
class FTranscript : public IVexelChunkSink
{
public:
	virtual void OnText(FStringView Text) override
	{
		Pending += Text;
	}

	virtual void OnTag(EVexelChatMessageBlockType Type, const TSharedRef<FJsonObject>& Info) override
	{
		Flush();
		static const char* const Names[] = {"Text", "Image", "ToolCall", "ToolResult", "SubChainStart", "SubChainEnd", "Checkpoint", "Error"};
		FString Json;
		FVexelJsonConversions::JsonToString(Info, Json);
		Add(std::string(Names[int32(Type)]) + TCHAR_TO_UTF8(*Json));
	}

	std::string Take()
	{
		Flush();
		return Result;
	}

private:
	void Flush()
	{
		if (!Pending.IsEmpty())
		{
			Add(TCHAR_TO_UTF8(*Pending));
			Pending.Empty();
		}
	}

	void Add(const std::string& Part)
	{
		Result += Result.empty() ? Part : "|" + Part;
	}

	FString Pending;
	std::string Result;
};

/** Parses an answer that arrives in chunks of a number of bytes; 0 for all at once. */
std::string ParseInChunks(const std::string& Answer, size_t ChunkSize)
{
	FTranscript Transcript;
	FVexelChunkParser Parser(Transcript);
	FVexelUtf8Stream Stream;
	for (size_t Start = 0; Start < Answer.size(); Start += ChunkSize ? ChunkSize : Answer.size())
	{
		const std::string Chunk = Answer.substr(Start, ChunkSize ? ChunkSize : std::string::npos);
		Parser.Parse(Stream.Convert(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Chunk.data()), int32(Chunk.size()))));
	}
	Parser.Parse(Stream.Finish());
	Parser.Finish();
	return Transcript.Take();
}

struct FParseCase
{
	const char* Name;
	std::string Answer;
	std::string Expected;
};

void PrintTo(const FParseCase& Case, std::ostream* Stream)
{
	*Stream << Case.Name;
}

class ChunkParser : public testing::TestWithParam<FParseCase>
{
};
}

/** Every answer is cut at every byte: whatever the network does to it, the same comes out. */
TEST_P(ChunkParser, GivesTheSameHoweverItIsCut)
{
	const FParseCase& Case = GetParam();
	for (size_t ChunkSize = 0; ChunkSize <= Case.Answer.size(); ++ChunkSize)
	{
		ASSERT_EQ(ParseInChunks(Case.Answer, ChunkSize), Case.Expected) << "in chunks of " << ChunkSize;
	}
}

INSTANTIATE_TEST_SUITE_P(Answers, ChunkParser,
	testing::Values(
		FParseCase{"PlainText", "The door opens.", "The door opens."},
		FParseCase{"MultiByteText", "Tür → 門 🚪.", "Tür → 門 🚪."},
		FParseCase{"ToolCallBetweenText", R"(a <ToolCall info={"tool_name":"read_blueprint","reply_id":"1"}/> b)",
			R"(a |ToolCall{"tool_name":"read_blueprint","reply_id":"1"}| b)"},
		FParseCase{"ValueWithoutKeyIsInfo", R"(<ToolCall {"tool_name":"x"}/>)", R"(ToolCall{"tool_name":"x"})"},
		FParseCase{"ValueRightBehindTheOpening", R"(<ToolCall{"tool_name":"x"}/>)", R"(ToolCall{"tool_name":"x"})"},
		FParseCase{"BraceInAStringDoesNotEndTheValue", R"(<ToolCall info={"a":"}/>","b":"\"}{\\"}/>)", R"(ToolCall{"a":"}/>","b":"\"}{\\"})"},
		FParseCase{"NestedObjectsAndArrays", R"(<ToolCall info={"a":{"b":[{"c":"]"}]}}/>)", R"(ToolCall{"a":{"b":[{"c":"]"}]}})"},
		FParseCase{"KeysWithoutRegardToCase", R"(<Image ASSET_ID=" x " Url = "http://h/p"/>)", R"(Image{"asset_id":"x","url":"http://h/p"})"},
		FParseCase{"StringFieldsBesideInfo", R"(<Image asset_id="x" info={"w":1} />)", R"(Image{"asset_id":"x","w":1})"},
		FParseCase{"UnknownKeyIsDropped", R"(<Checkpoint colour="red" info={"checkpoint_id":"c"}/>)", R"(Checkpoint{"checkpoint_id":"c"})"},
		FParseCase{"BrokenValueIsDropped", R"(<ToolCall info={"a":} url="u"/>)", R"(ToolCall{"url":"u"})"},
		FParseCase{"ATagWithoutAttributes", "<Checkpoint/>", "Checkpoint{}"},
		FParseCase{"AllOpenings",
			R"(<ToolCall/><ToolResponse/><SubChainStart info={"sub_chat_id":"s"}/><SubChainEnd/><Checkpoint/><Image/><Error/>)",
			R"(ToolCall{}|ToolResult{}|SubChainStart{"sub_chat_id":"s"}|SubChainEnd{}|Checkpoint{}|Image{}|Error{})"},
		FParseCase{"LessThanSignsAreText", "if (a<b && c<Tool) <<Imag <SubChain", "if (a<b && c<Tool) <<Imag <SubChain"},
		FParseCase{"ATagBehindAFalseStart", R"(<Tool<ToolCall{"a":1}/>)", R"(<Tool|ToolCall{"a":1})"},
		FParseCase{"OpeningsAreMatchedWithTheirCase", "<toolcall/><TOOLCALL/>", "<toolcall/><TOOLCALL/>"},
		FParseCase{"WordsThatBeginLikeTagsAreText", "<Errors happen> and <Images>", "<Errors happen> and <Images>"},
		FParseCase{"ABrokenTagIsTextAndTheNextOneIsATag", R"(<Error info>x</Error> <Error info={"message":"m"}/>)",
			R"(<Error info>x</Error> |Error{"message":"m"})"},
		FParseCase{"UnfinishedOpening", "so <ToolCa", "so <ToolCa"},
		FParseCase{"UnfinishedTag", R"(so <ToolCall info={"a":1)", R"(so <ToolCall info={"a":1)"},
		FParseCase{"TextRightBehindATag", R"(<Checkpoint/>x<Checkpoint/>)", R"(Checkpoint{}|x|Checkpoint{})"},
		FParseCase{"EscapedUnicodeInAValue", R"(<ToolCall info={"a":"\u00e9\u4e2d"}/>)", "ToolCall{\"a\":\"é中\"}"}),
	[](const testing::TestParamInfo<FParseCase>& Info)
	{ return Info.param.Name; });

TEST(ChunkParser, InvalidBytesBecomeReplacementCharactersHoweverTheyAreCut)
{
	// A lone continuation, an overlong form, a surrogate, a character cut by text and one cut by the end.
	const std::string Answer = "a\x80"
							   "b\xC0\xAF"
							   "c\xED\xA0\x80"
							   "d\xE4\xB8"
							   "e<Checkpoint/>\xF0\x9F";
	const std::string Expected = ParseInChunks(Answer, 0);
	EXPECT_NE(Expected.find("a\xEF\xBF\xBD"
							"b"),
		std::string::npos);
	EXPECT_NE(Expected.find("e|Checkpoint{}|\xEF\xBF\xBD"), std::string::npos);
	for (size_t ChunkSize = 1; ChunkSize <= Answer.size(); ++ChunkSize)
	{
		EXPECT_EQ(ParseInChunks(Answer, ChunkSize), Expected) << "in chunks of " << ChunkSize;
	}
}

TEST(ChunkParser, ATagThatNeverEndsIsGivenBackAndTheParserGoesOn)
{
	FTranscript Transcript;
	FVexelChunkParser Parser(Transcript);
	Parser.Parse(TEXT("<ToolCall info={\"a\":\""));
	const FString Filler = FString::ChrN(64 * 1024, TEXT('x'));
	for (int32 Length = 0; Length <= FVexelChunkParser::MaxTagLength; Length += Filler.Len())
	{
		Parser.Parse(Filler);
	}
	Parser.Parse(TEXT("<Checkpoint/>"));
	const std::string Result = Transcript.Take();
	EXPECT_TRUE(Result.ends_with("x|Checkpoint{}"));
	EXPECT_TRUE(Result.starts_with("<ToolCall info="));
}

TEST(ChunkParser, AValueThatIsTooDeepToBeStoredIsText)
{
	const auto Nest = [](int32 Depth)
	{
		std::string Value = "1";
		for (int32 Level = 0; Level < Depth - 1; ++Level)
		{
			Value = "[" + Value + "]";
		}
		return "<Error info={\"a\":" + Value + "}/>";
	};
	EXPECT_TRUE(ParseInChunks(Nest(FVexelChunkParser::MaxValueDepth), 0).starts_with("Error{"));
	EXPECT_EQ(ParseInChunks(Nest(FVexelChunkParser::MaxValueDepth + 1), 0), Nest(FVexelChunkParser::MaxValueDepth + 1));
}

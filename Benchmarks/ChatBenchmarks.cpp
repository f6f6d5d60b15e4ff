#include "Async/TaskGraphInterfaces.h"
#include "Chat/VexelChatRequest.h"
#include "Containers/StringConv.h"
#include "Misc/OutputDeviceRedirector.h"
#include "VexelHttp.h"

#include <benchmark/benchmark.h>
#include <cstdlib>
#include <httplib.h>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <string>
#include <thread>

namespace
{
constexpr int32 NumMessages = 2000;
constexpr size_t AnswerBytes = size_t(10) << 20;
/** What one TCP segment over loopback or a TLS record commonly brings. */
constexpr size_t PieceBytes = 16u << 10;

const char* const Paragraph =
	"When the player **begins to overlap** the door, `OpenDoor` runs: if Health < 10 it waits 0.5 s, else it plays the timeline "
	"and sets bOpen. Für die Tür gilt dasselbe; 門が開く。\n\n```cpp\nfor (int32 Index = 0; Index < Num; ++Index)\n{\n\tOpen(Index);\n}\n```\n";
const char* const ToolCall = "<ToolResponse info={\"tool_name\":\"read_blueprint\",\"reply_id\":\"17\",\"blueprint\":\"/Game/BP_Door\"}/>";

const FVexelChatModeInfo Mode(TEXT("vexel_agent"), TEXT("Agent"), true);

FVexelChatMessage Say(EVexelChatRole Role, const std::string& Text)
{
	FVexelChatMessage Message(Role);
	Message.AddBlock(FVexelChatMessageBlock::MakeText(UTF8_TO_TCHAR(Text.c_str())));
	return Message;
}

/** A long conversation: short questions, and answers of a few paragraphs with a tool's result between them. */
TSharedRef<FVexelChatConversation> MakeConversation()
{
	const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>(TEXT("user"), TEXT("chat"), Mode);
	for (int32 Index = 0; Index < NumMessages; Index += 2)
	{
		Conversation->AddMessage(Say(EVexelChatRole::User, "What does BP_Door" + std::to_string(Index) + " do?"));
		FVexelChatMessage Answer = Say(EVexelChatRole::Assistant, "I look at it.");
		const TSharedRef<FJsonObject> Info = MakeShared<FJsonObject>();
		Info->SetStringField(TEXT("tool_name"), TEXT("read_blueprint"));
		Info->SetStringField(TEXT("blueprint"), TEXT("/Game/BP_Door"));
		Answer.AddBlock(FVexelChatMessageBlock::MakeFromTag(EVexelChatMessageBlockType::ToolResult, Info));
		Answer.AddBlock(FVexelChatMessageBlock::MakeText(UTF8_TO_TCHAR((std::string(Paragraph) + Paragraph).c_str())));
		Conversation->AddMessage(MoveTemp(Answer));
	}
	return Conversation;
}

VexelInternal::Http::FRequestBody MakeBody(const FVexelChatRequest& Request)
{
	VexelInternal::Http::FRequestBody Body;
	VexelInternal::Http::TPayloadHelper<TSharedPtr<FJsonObject>>::SetRequestData(Request.PreparePayload(), Body);
	return Body;
}

TSharedRef<FVexelChatRequest> MakeRequest(const TSharedRef<FVexelChatConversation>& Conversation)
{
	return MakeShared<FVexelChatRequest>(Conversation, Say(EVexelChatRole::User, "And now?"), FString(), TEXT("user"), nullptr);
}

void SerializeConversation(benchmark::State& State)
{
	const TSharedRef<FVexelChatRequest> Request = MakeRequest(MakeConversation());
	int64 NumBytes = 0;
	for (auto _ : State)
	{
		NumBytes = MakeBody(*Request).GetNum();
		benchmark::DoNotOptimize(NumBytes);
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * NumBytes);
}

void SerializeConversationWithRapidJson(benchmark::State& State)
{
	const VexelInternal::Http::FRequestBody Body = MakeBody(*MakeRequest(MakeConversation()));
	const TArray<uint8>& Bytes = Body.Pieces[0].Bytes;
	rapidjson::Document Document;
	Document.Parse(reinterpret_cast<const char*>(Bytes.GetData()), size_t(Bytes.Num()));
	for (auto _ : State)
	{
		rapidjson::StringBuffer Buffer;
		rapidjson::Writer<rapidjson::StringBuffer> Writer(Buffer);
		Document.Accept(Writer);
		if (int32(Buffer.GetSize()) != Bytes.Num())
		{
			State.SkipWithError("not the same text");
		}
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * Bytes.Num());
}

/** Whoever asks is logged in. */
class FAuthProvider final : public FVexelHttp::IAuthProvider
{
public:
	virtual EAuthResult GetAuthState(FString& OutToken) override
	{
		OutToken = TEXT("token");
		return EAuthResult::Authenticated;
	}
};

/** One service for all of this program, which answers each turn with the same 10 MiB, piece by piece, and does not pack them. */
class FService
{
public:
	FService()
	{
		GLog->SetConsoleVerbosity(ELogVerbosity::Error);
		// Statics that are made in here are destroyed after this one.
		FVexelHttpManager::Shutdown();
		FTaskGraphInterface::Startup();
		FVexelHttpManager::SetAuthProvider(&AuthProvider);
		for (int32 Index = 1; Answer.size() < AnswerBytes; ++Index)
		{
			Answer += Index % 16 == 0 ? ToolCall : Paragraph;
		}
		Server.set_tcp_nodelay(true);
		Server.Post("/api/chat", [this](const httplib::Request&, httplib::Response& Response)
			{ Response.set_chunked_content_provider("application/octet-stream", [this](size_t Offset, httplib::DataSink& Sink)
				  {
						if (Offset >= Answer.size())
						{
							Sink.done();
							return true;
						}
						return Sink.write(Answer.data() + Offset, std::min(PieceBytes, Answer.size() - Offset)); }); });
		Port = Server.bind_to_any_port("127.0.0.1");
		Thread = std::thread([this]
			{ Server.listen_after_bind(); });
	}
	~FService()
	{
		FVexelHttpManager::SetAuthProvider(nullptr);
		FVexelHttpManager::Shutdown();
		Server.stop();
		Thread.join();
		FTaskGraphInterface::Shutdown();
	}

	std::string GetUrl() const { return "http://127.0.0.1:" + std::to_string(Port); }
	size_t GetAnswerSize() const { return Answer.size(); }

private:
	FAuthProvider AuthProvider;
	std::string Answer;
	httplib::Server Server;
	std::thread Thread;
	int32 Port = 0;
};

FService& GetService()
{
	static FService Service;
	return Service;
}

/** A turn from the prompt to the last block. */
void ReadAnswer(benchmark::State& State)
{
	const TSharedRef<FVexelHttp> Client = MakeShared<FVexelHttp>(FVexelHttpClientConfig(UTF8_TO_TCHAR(GetService().GetUrl().c_str())));
	for (auto _ : State)
	{
		const TSharedRef<FVexelChatRequest> Request =
			MakeRequest(MakeShared<FVexelChatConversation>(TEXT("user"), TEXT("chat"), Mode));
		Request->Send(*Client);
		while (!Request->IsFinal())
		{
			FTaskGraphInterface::Get().WaitForGameThreadWork(FTimespan::FromSeconds(1.0));
			FTaskGraphInterface::Get().ProcessThreadUntilIdle(ENamedThreads::GameThread);
		}
		if (Request->GetState() != EVexelChatRequestState::Succeeded || Request->GetResponse().NumBlocks() < 1000)
		{
			State.SkipWithError("the turn failed");
		}
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * int64_t(GetService().GetAnswerSize()));
}

/** The program itself, which writes to a file that keeps nothing. */
void ReadAnswerWithTheProgram(benchmark::State& State)
{
	const std::string Command =
		"curl --silent --fail --noproxy '*' --no-buffer --data '{}' --output /dev/null " + GetService().GetUrl() + "/api/chat";
	for (auto _ : State)
	{
		if (std::system(Command.c_str()) != 0)
		{
			State.SkipWithError("curl failed or is not installed");
		}
	}
	State.SetBytesProcessed(int64_t(State.iterations()) * int64_t(GetService().GetAnswerSize()));
}

BENCHMARK(SerializeConversation)->Name("ChatRequest2000Messages/Ours")->Unit(benchmark::kMillisecond);
BENCHMARK(SerializeConversationWithRapidJson)->Name("ChatRequest2000Messages/Peer:rapidjson")->Unit(benchmark::kMillisecond);
BENCHMARK(ReadAnswer)->Name("ChatAnswer10MiB/Ours")->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(ReadAnswerWithTheProgram)->Name("ChatAnswer10MiB/Peer:curl")->Unit(benchmark::kMillisecond)->UseRealTime();
}

#include "Auth/VexelAuth.h"
#include "Chat/VexelChatRequest.h"
#include "Containers/StringConv.h"
#include "EditorFixture.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "ScriptedHttpServer.h"
#include "Subsystem/VexelChatSubsystem.h"
#include "VexelCrypto.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"
#include "VexelSecureStorage.h"

#include <cstring>
#include <gmock/gmock.h>
#include <map>

namespace
{
using testing::HasSubstr;

const FName ClientModule = TEXT("VexelClient");
const bool bModuleWanted = (FEditorTest::WantModule(ClientModule), true);

std::string MakeToken(const std::string& UserId)
{
	const std::string Payload = "{\"sub\":\"" + UserId + "\"}";
	const FString Encoded =
		FVexelCrypto::Base64UrlEncode(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Payload.data()), int32(Payload.size())));
	return std::string("e30.") + TCHAR_TO_UTF8(*Encoded) + ".signature";
}

TSharedPtr<FJsonObject> ParseJson(const std::string& Text)
{
	TSharedPtr<FJsonObject> Object;
	FVexelJsonConversions::StringToJson(FString(UTF8_TO_TCHAR(Text.c_str())), Object);
	return Object;
}

/** The plug-in logged in at a scripted service, with a conversation open and every event of a turn noted. */
class ChatTurn : public FEditorTest
{
protected:
	virtual void SetUp() override
	{
		FEditorTest::SetUp();
		ASSERT_TRUE(bModuleWanted);
		Server.Answer("/api/auth/plugin-client-id", FScriptedAnswer::Json(R"({"clientId":"plugin"})"));
		Server.Answer("/oauth/token",
			FScriptedAnswer::Json("{\"access_token\":\"" + MakeToken("user-1") + "\",\"refresh_token\":\"next\",\"expires_in\":3600}"));
		Server.Answer("/api/tool_reply/sub", FScriptedAnswer::Json("{}"));
		for (const TCHAR* const Key : {TEXT("ApiUrl"), TEXT("AppUrl"), TEXT("InsightsApiUrl")})
		{
			FVexelInternalConfig::Find(Key)->SetOverride(Server.GetUrl());
		}
		LogIn();
		Subsystem = UVexelChatSubsystem::Get();
		ASSERT_NE(Subsystem, nullptr);
		Conversation = Subsystem->CreateConversation(UVexelChatSubsystem::GetDefaultAgentChatMode());
		ASSERT_TRUE(Conversation.IsValid());
		Server.Answer("/api/tool_reply/" + GetChatId(), FScriptedAnswer::Json("{}"));
		Server.Answer("/api/tool_error/" + GetChatId(), FScriptedAnswer::Json("{}"));
		Server.Answer("/api/tool_error/sub", FScriptedAnswer::Json("{}"));
		Subsystem->GetEvents().OnTextAppended.AddLambda([this](const FString&, FStringView Text)
			{ Streamed += Text; });
		Subsystem->GetEvents().OnRequestStateChanged.AddLambda([this](const FString&, EVexelChatRequestState State, const FVexelError* Error)
			{
				LastState = State;
				Failure = Error ? TCHAR_TO_UTF8(*Error->ToShortString()) : "";
				FailureChain = Error ? TCHAR_TO_UTF8(*Error->ToChainString()) : ""; });
	}

	virtual void TearDown() override
	{
		if (Subsystem)
		{
			Subsystem->GetEvents().OnTextAppended.Clear();
			Subsystem->GetEvents().OnRequestStateChanged.Clear();
		}
	}

	void LogIn()
	{
		if (FVexelAuth::IsOnline())
		{
			return;
		}
		FVexelSecureStorage::SetDirectory(GetProjectDir() / TEXT("Secrets"));
		ASSERT_TRUE(FVexelSecureStorage::StoreValueString(TEXT("rt"), TEXT("first")).HasValue());
		FVexelAuth::StartAutoLogin();
		ASSERT_TRUE(PumpUntil([]
			{ return FVexelAuth::IsOnline(); }))
			<< Log.ToText();
	}

	std::string GetChatId() const { return TCHAR_TO_UTF8(*Conversation->GetChatId()); }

	/** Sends a message and runs the turn to its end. */
	void RunTurn(const TCHAR* Message)
	{
		ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), Message).HasValue());
		ASSERT_TRUE(PumpUntil([this]
			{ return !Subsystem->HasActiveRequest(Conversation->GetChatId()); }))
			<< Log.ToText();
	}

	/** The body of the last request of a path; null without one. */
	TSharedPtr<FJsonObject> FindBody(const std::string& Path) const
	{
		TSharedPtr<FJsonObject> Body;
		for (const FScriptedRequest& Request : Server.GetRequests())
		{
			Body = Request.GetPath() == Path ? ParseJson(Request.Body) : Body;
		}
		return Body;
	}

	std::string ReadStoredConversation() const
	{
		FString Text;
		const FString Path = FPaths::ProjectSavedDir() / TEXT("ChatHistories") / Conversation->GetChatId() + TEXT(".json");
		FFileHelper::LoadFileToString(Text, *Path);
		return TCHAR_TO_UTF8(*Text);
	}

	FScriptedHttpServer Server;
	UVexelChatSubsystem* Subsystem = nullptr;
	TSharedPtr<FVexelChatConversation> Conversation;
	FString Streamed;
	EVexelChatRequestState LastState = EVexelChatRequestState::Preparing;
	std::string Failure;
	std::string FailureChain;
};
}

TEST_F(ChatTurn, SendsTheConversationAndKeepsTheAnswer)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("The door ").Chunk("opens.<Checkpoint info={\"checkpoint_id\":\"c1\"}/>"));
	RunTurn(TEXT("What does it do?"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Succeeded);
	EXPECT_EQ(Streamed, FString(TEXT("The door opens.")));

	const TSharedPtr<FJsonObject> Body = FindBody("/api/chat");
	ASSERT_TRUE(Body.IsValid());
	EXPECT_EQ(Body->GetStringField(TEXT("chat_id")), Conversation->GetChatId());
	EXPECT_EQ(Body->GetStringField(TEXT("user_id")), FString(TEXT("user-1")));
	EXPECT_EQ(Body->GetStringField(TEXT("checkpoint_id")), FString());
	EXPECT_EQ(Body->GetStringField(TEXT("chat_mode")), FString(TEXT("vexel_agent")));
	EXPECT_EQ(Body->GetStringField(TEXT("engine_version")), FString(TEXT("5.7")));
	EXPECT_TRUE(Body->GetObjectField(TEXT("context"))->HasField(TEXT("open_assets")));
	ASSERT_EQ(Body->GetArrayField(TEXT("messages")).Num(), 1);
	EXPECT_EQ(Body->GetArrayField(TEXT("messages"))[0]->AsObject()->GetStringField(TEXT("content")), FString(TEXT("What does it do?")));
	EXPECT_EQ(Server.GetRequests().back().GetHeader("Authorization"), "Bearer " + MakeToken("user-1"));

	RunTurn(TEXT("And then?"));
	const TSharedPtr<FJsonObject> Second = FindBody("/api/chat");
	EXPECT_EQ(Second->GetStringField(TEXT("checkpoint_id")), FString(TEXT("c1")));
	ASSERT_EQ(Second->GetArrayField(TEXT("messages")).Num(), 3);
	EXPECT_EQ(Second->GetArrayField(TEXT("messages"))[1]->AsObject()->GetStringField(TEXT("content")), FString(TEXT("The door opens.")));
	EXPECT_EQ(Conversation->GetMessages().Num(), 4);
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("And then?"));
}

TEST_F(ChatTurn, APromptIsStoredBeforeItsAnswerComes)
{
	FScriptedGate Gate;
	Server.Answer("/api/chat", FScriptedAnswer().WaitFor(Gate).Chunk("late"));
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Are you there?")).HasValue());
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("Are you there?"));
	EXPECT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Hello?")).HasError());
	Gate.Open();
	EXPECT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Succeeded; }));
}

TEST_F(ChatTurn, AToolCallIsAnsweredWithItsError)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("<ToolCall info={\"tool_name\":\"read_blueprint\",\"reply_id\":\"r1\",\"blueprint\":\"/Game/BP_Nowhere\"}/>"
								"<ToolCall info={\"tool_name\":\"Compile\",\"reply_id\":\"r2\"}/>"
								"<ToolCall info={\"tool_name\":\"knowledge_search\",\"reply_id\":\"r3\"}/>"));
	RunTurn(TEXT("Look"));
	std::map<std::string, std::string> Errors;
	ASSERT_TRUE(PumpUntil([&]
		{
			for (const FScriptedRequest& Request : Server.GetRequests())
			{
				if (Request.GetPath() == "/api/tool_error/" + GetChatId())
				{
					const TSharedPtr<FJsonObject> Body = ParseJson(Request.Body);
					Errors[TCHAR_TO_UTF8(*Body->GetStringField(TEXT("reply_id")))] = TCHAR_TO_UTF8(*Body->GetStringField(TEXT("error_message")));
				}
			}
			return Errors.size() == 3; }));
	EXPECT_EQ(Errors["r1"], "Invalid input: Blueprint not found: `/Game/BP_Nowhere`");
	EXPECT_EQ(Errors["r2"], "Tool not found: Tool 'Compile' not found");
	EXPECT_EQ(Errors["r3"], "This tool produces no response");
	EXPECT_TRUE(Log.Contains("Processing tool call: `read_blueprint` -> `r1`. Chat: `" + GetChatId() + "`"));
}

TEST_F(ChatTurn, AToolCallInASubChainIsAnsweredToTheSubAgent)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("<SubChainStart info={\"sub_chat_id\":\"sub\"}/><ToolCall info={\"tool_name\":\"none\",\"reply_id\":\"r\"}/>"
								"<SubChainEnd info={\"sub_chat_id\":\"other\"}/><ToolCall info={\"tool_name\":\"none\",\"reply_id\":\"r\"}/>"));
	RunTurn(TEXT("Delegate"));
	EXPECT_TRUE(PumpUntil([this]
		{ return FindBody("/api/tool_error/sub") && FindBody("/api/tool_error/" + GetChatId()); }));
	EXPECT_TRUE(Log.Contains("Popped sub-agent chat ID sub does not match expected other. Agent stack may be corrupted!"));
}

TEST_F(ChatTurn, CancellingKeepsThePromptAlone)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("one ").Stall());
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Tell me")).HasValue());
	ASSERT_TRUE(PumpUntil([this]
		{ return !Streamed.IsEmpty(); }));
	EXPECT_TRUE(Subsystem->CancelRequest(Conversation->GetChatId()));
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
	EXPECT_FALSE(Subsystem->CancelRequest(Conversation->GetChatId()));
	ASSERT_EQ(Conversation->GetMessages().Num(), 1);
	EXPECT_EQ(Conversation->GetMessages()[0].GetRole(), EVexelChatRole::User);
}

TEST_F(ChatTurn, EachBadServiceGivesAClearReason)
{
	struct FCase
	{
		FScriptedAnswer Answer;
		std::string Reason;
	};
	const FCase Cases[] = {
		{FScriptedAnswer(500).Text("boom"), "failed with HTTP status 500 after receiving 4 bytes"},
		{FScriptedAnswer::Json(R"({"detail":"no credits left"})", 402), "Chat request failed: no credits left"},
		{FScriptedAnswer().Chunk("half").Close(), "Chat request " + GetChatId() + " failed"},
		{FScriptedAnswer::Raw("this is no HTTP\r\n\r\n"), "Chat request " + GetChatId() + " failed"},
	};
	for (const FCase& Case : Cases)
	{
		Server.Answer("/api/chat", Case.Answer);
		RunTurn(TEXT("Well?"));
		EXPECT_EQ(LastState, EVexelChatRequestState::Failed);
		EXPECT_THAT(Failure, HasSubstr(Case.Reason));
	}
	FVexelInternalConfig::Find(TEXT("ApiUrl"))->SetOverride(TEXT("http://127.0.0.1:1"));
	RunTurn(TEXT("Anyone?"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Failed);
}

TEST_F(ChatTurn, AServiceThatGoesSilentEndsTheTurnWithOneClearLine)
{
	FConfigValueBase* const Setting = FVexelInternalConfig::Find(TEXT("ChatStallTimeoutSeconds"));
	ASSERT_NE(Setting, nullptr);
	EXPECT_EQ(Setting->GetNumber(1.0, 1000.0), 300.0);
	Setting->SetOverride(TEXT("1"));
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("one moment").Stall());
	RunTurn(TEXT("Well?"));
	Setting->SetOverride(TEXT("300"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Failed);
	EXPECT_THAT(FailureChain, HasSubstr("/api/chat: nothing came for 1 seconds"));
	EXPECT_THAT(FailureChain, testing::Not(HasSubstr("\n")));
	EXPECT_EQ(Streamed, FString(TEXT("one moment")));
}

TEST_F(ChatTurn, ASubAgentsIdCannotLeaveItsPlaceInTheAddress)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("<SubChainStart info={\"sub_chat_id\":\"../../oauth/revoke?x\"}/>"
								"<ToolCall info={\"tool_name\":\"none\",\"reply_id\":\"r\"}/>"));
	RunTurn(TEXT("Delegate"));
	EXPECT_TRUE(PumpUntil([this]
		{ return FindBody("/api/tool_error/..%2F..%2Foauth%2Frevoke%3Fx").IsValid(); }));
}

TEST_F(ChatTurn, InvalidBytesAndTagsAreShownAsTheyAre)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("a\xE9"
													   "b <ToolCall info={broken} url=")
								   .Chunk("\"x\"> c <Image nonsense/> <ToolCa"));
	RunTurn(TEXT("Well?"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Succeeded);
	EXPECT_EQ(Streamed, FString(u"a\uFFFDb <ToolCall info={broken} url=\"x\"> c <Image nonsense/> <ToolCa"));
}

TEST_F(ChatTurn, AFailedAnswerKeepsWhatItsCheckpointsConfirm)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("a<Checkpoint info={\"checkpoint_id\":\"1\"}/>b<Checkpoint info={\"checkpoint_id\":\"2\"}/>c").Close());
	RunTurn(TEXT("Well?"));
	ASSERT_EQ(Conversation->GetMessages().Num(), 2);
	const FVexelChatMessage& Answer = Conversation->GetMessages()[1];
	ASSERT_EQ(Answer.NumBlocks(), 5);
	EXPECT_FALSE(Answer.GetBlocks()[3].HasFailed());
	EXPECT_TRUE(Answer.GetBlocks()[4].HasFailed());
	EXPECT_TRUE(Log.Contains("Request failed, marking blocks after last checkpoint (index 3) as failed for conversation " + GetChatId()));
}

TEST_F(ChatTurn, AReportThatRepeatsAShorterBodyChangesNothing)
{
	const TSharedRef<FVexelChatRequest> Request =
		MakeShared<FVexelChatRequest>(Conversation.ToSharedRef(), FVexelChatMessage(EVexelChatRole::User), FString(), FString());
	const auto Report = [&](const char* Body)
	{ Request->OnBodyReceived(TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Body), int32(strlen(Body)))); };
	Report("one two");
	Report("one");
	Report("one two");
	Report("one two three");
	ASSERT_EQ(Request->GetResponse().NumBlocks(), 1);
	EXPECT_EQ(Request->GetResponse().GetBlocks()[0].GetText(), FString(TEXT("one two three")));
	EXPECT_EQ(Log.Count("Received response bytes are less than already processed bytes. Ignoring."), 1);
}

#include "ChatTurnFixture.h"

#include "Auth/VexelAuth.h"
#include "Chat/VexelChatRequest.h"
#include "Containers/StringConv.h"
#include "VexelHttp.h"
#include "VexelInternalConfig.h"
#include "VexelJson.h"

#include <cstring>
#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
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
	EXPECT_EQ(Server.GetRequests().back().GetHeader("Authorization"), "Bearer " + GetToken());

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
	Server.Answer("/api/chat", FScriptedAnswer().WaitFor(Gate).Chunk("late"));
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Are you there?")).HasValue());
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("Are you there?"));
	EXPECT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Hello?")).HasError());
	Gate.Open();
	EXPECT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Succeeded; }));
}

TEST_F(ChatTurn, CancellingKeepsWhatHasComeOfTheAnswerAsFailed)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("one ").Stall());
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Tell me")).HasValue());
	ASSERT_TRUE(PumpUntil([this]
		{ return !Streamed.IsEmpty(); }));
	EXPECT_TRUE(Subsystem->CancelRequest(Conversation->GetChatId()));
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
	EXPECT_FALSE(Subsystem->CancelRequest(Conversation->GetChatId()));
	ASSERT_EQ(Conversation->GetMessages().Num(), 2);
	EXPECT_EQ(Conversation->GetMessages()[0].GetRole(), EVexelChatRole::User);
	EXPECT_EQ(Conversation->GetMessages()[1].GetState(), EVexelChatMessageState::Failed);
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("one "));
}

TEST_F(ChatTurn, CancellingBeforeAnythingCameKeepsThePromptAlone)
{
	Server.Answer("/api/chat", FScriptedAnswer().WaitFor(Gate).Chunk("late"));
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Tell me")).HasValue());
	EXPECT_TRUE(Subsystem->CancelRequest(Conversation->GetChatId()));
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
	ASSERT_EQ(Conversation->GetMessages().Num(), 1);
	EXPECT_EQ(Conversation->GetMessages()[0].GetRole(), EVexelChatRole::User);
	Gate.Open();
}

TEST_F(ChatTurn, AConversationThatIsDeletedWhileItsAnswerComesStaysDeleted)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("one ").Stall());
	RunUntilText(TEXT("Tell me"));
	const FString ChatId = Conversation->GetChatId();
	EXPECT_TRUE(Subsystem->CancelRequest(ChatId));
	Subsystem->DeleteConversation(Conversation);
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
	EXPECT_EQ(Subsystem->FindActiveConversation(ChatId), nullptr);
}

TEST_F(ChatTurn, LosingTheLoginCancelsTheAnswerAndKeepsThePrompt)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("one ").Stall());
	RunUntilText(TEXT("Tell me"));
	Server.Answer("/oauth/token", FScriptedAnswer::Json(R"({"error":"invalid_grant"})", 400));
	const TVexelTaskResult<void> Refreshed = FVexelAuth::RefreshRefusedToken(UTF8_TO_TCHAR(GetToken().c_str()));
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }))
		<< Log.ToText();
	EXPECT_FALSE(FVexelAuth::IsOnline());
	EXPECT_EQ(Conversation->GetMessages().Num(), 1);
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("Tell me"));
	EXPECT_EQ(Subsystem->CreateConversation(UVexelChatSubsystem::GetDefaultChatMode()), nullptr);
	EXPECT_TRUE(Log.Contains("Cannot create new conversation: No user ID."));
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
		MakeShared<FVexelChatRequest>(Conversation.ToSharedRef(), FVexelChatMessage(EVexelChatRole::User), FString(), FString(), nullptr);
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

TEST_F(ChatTurn, ATurnThatIsCancelledAsItBeginsIsNotSent)
{
	Subsystem->GetEvents().OnRequestStateChanged.AddLambda([this](const FString& ChatId, EVexelChatRequestState State, const FVexelError*)
		{
			if (State == EVexelChatRequestState::InProgress)
			{
				Subsystem->CancelRequest(ChatId);
			} });
	RunTurn(TEXT("Well?"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Cancelled);
	EXPECT_EQ(FindBody("/api/chat"), nullptr);
	EXPECT_EQ(Conversation->GetMessages().Num(), 1);
}

TEST_F(ChatTurn, ARequestGoesThroughItsStatesOnce)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("answer"));
	const TSharedPtr<FVexelChatRequest> Request = Subsystem->PrepareChatRequest(Conversation->GetChatId(), TEXT("Hi"), NullOpt);
	ASSERT_TRUE(Request.IsValid());
	EXPECT_TRUE(Log.Contains("[Subsystem] PrepareChatRequest called. ChatId=" + GetChatId() + ", MessageLen=2, CheckpointIdParam='<null>'"));
	Request->Cancel();
	EXPECT_TRUE(Log.Contains("Attempted to cancel a chat request that is not valid."));
	EXPECT_EQ(Request->GetState(), EVexelChatRequestState::Preparing);

	FVexelHttp Client{FVexelHttpClientConfig(Server.GetUrl())};
	EXPECT_TRUE(Request->Send(Client));
	EXPECT_FALSE(Request->Send(Client));
	EXPECT_TRUE(Log.Contains("Attempted to send a chat request that is not in the preparing state."));
	ASSERT_TRUE(PumpUntil([&]
		{ return Request->IsFinal(); }));
	EXPECT_EQ(Request->GetState(), EVexelChatRequestState::Succeeded);
	Request->Cancel();
	EXPECT_EQ(Request->GetState(), EVexelChatRequestState::Succeeded);
	EXPECT_EQ(Log.Count("Attempted to cancel a chat request that is not valid."), 2);
	EXPECT_EQ(Subsystem->PrepareChatRequest(TEXT("none"), TEXT("Hi"), FString(TEXT("c"))), nullptr);
	EXPECT_TRUE(Log.Contains("CheckpointIdParam='c'"));
	EXPECT_TRUE(Log.Contains("Cannot prepare chat request: Conversation is not valid"));
}

TEST_F(ChatTurn, AConversationThatCannotBeSentSaysWhy)
{
	const auto Prepare = [](const TSharedRef<FVexelChatConversation>& Sent)
	{
		return MakeShared<FVexelChatRequest>(Sent, FVexelChatMessage(EVexelChatRole::User), FString(), FString(), nullptr)->PreparePayload();
	};
	EXPECT_EQ(Prepare(MakeShared<FVexelChatConversation>()), nullptr);
	EXPECT_TRUE(Log.Contains("Attempted to prepare JSON payload for an invalid conversation."));
	EXPECT_EQ(Prepare(MakeShared<FVexelChatConversation>(TEXT("u"), TEXT("c"), FVexelChatModeInfo())), nullptr);
	EXPECT_TRUE(Log.Contains("Attempted to prepare JSON payload for a conversation with an invalid chat mode."));
	EXPECT_EQ(Subsystem->CreateConversation(FVexelChatModeInfo()), nullptr);
	EXPECT_TRUE(Log.Contains("Cannot create new conversation: ChatModeInfo is not valid"));
	Subsystem->DeleteConversation(nullptr);
	EXPECT_TRUE(Log.Contains("Cannot delete conversation: Conversation is not valid"));
}

#include "ChatTurnFixture.h"
#include "Containers/StringConv.h"
#include "Tools/VexelToolReply.h"
#include "VexelClient.h"

#include <atomic>
#include <gmock/gmock.h>
#include <map>

namespace
{
using testing::HasSubstr;
using testing::Pair;
using testing::UnorderedElementsAre;

std::string Call(const std::string& Tool, const std::string& ReplyId)
{
	return "<ToolCall info={\"tool_name\":\"" + Tool + "\",\"reply_id\":\"" + ReplyId + "\"}/>";
}

/** Tool calls of an answer, with the editor's clock in the test's hands. */
class ChatToolCall : public ChatTurn
{
protected:
	std::string GetErrorPath() const { return "/api/tool_error/" + GetChatId(); }

	/** The error texts that were posted, by reply id. */
	std::map<std::string, std::string> GetErrors() const
	{
		std::map<std::string, std::string> Errors;
		for (const TSharedPtr<FJsonObject>& Body : FindBodies(GetErrorPath()))
		{
			Errors[TCHAR_TO_UTF8(*Body->GetStringField(TEXT("reply_id")))] = TCHAR_TO_UTF8(*Body->GetStringField(TEXT("error_message")));
		}
		return Errors;
	}

	/** Lets the editor's clock run until so many errors were posted; false when a minute of it is not enough. */
	bool AdvanceUntilErrors(int32 Num)
	{
		for (int32 Step = 0; Step < 600; ++Step)
		{
			if (FindBodies(GetErrorPath()).Num() >= Num)
			{
				return true;
			}
			// What the network does takes real time, of which a request on loopback needs little.
			PumpUntil([&]
				{ return FindBodies(GetErrorPath()).Num() >= Num; },
				0.01);
			AdvanceTime(0.1f);
		}
		return false;
	}
};
}

TEST_F(ChatToolCall, EachFailureIsAnsweredWithItsError)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("<ToolCall info={\"tool_name\":\"read_blueprint\",\"reply_id\":\"r1\",\"blueprint\":\"/Game/BP_Nowhere\"}/>" +
			Call("Compile", "r2") + Call("knowledge_search", "r3") + Call(std::string(5000, 'x'), "r4") + "<ToolCall/>"));
	RunTurn(TEXT("Look"));
	ASSERT_TRUE(PumpUntil([&]
		{ return GetErrors().size() == 5; }));
	std::map<std::string, std::string> Errors = GetErrors();
	EXPECT_EQ(Errors["r1"], "Invalid input: Blueprint not found: `/Game/BP_Nowhere`");
	EXPECT_EQ(Errors["r2"], "Tool not found: Tool 'Compile' not found");
	EXPECT_EQ(Errors["r3"], "This tool produces no response");
	EXPECT_THAT(Errors["r4"], HasSubstr("Tool not found"));
	EXPECT_EQ(Errors[""], "Invalid input: Invalid tool call block, missing TagInfo");
	EXPECT_TRUE(Log.Contains("Processing tool call: `read_blueprint` -> `r1`. Chat: `" + GetChatId() + "`"));
	EXPECT_TRUE(Log.Contains("Tool block created without valid TagInfo"));
}

TEST_F(ChatToolCall, InASubChainItIsAnsweredToTheSubAgent)
{
	Server.Answer("/api/chat",
		FScriptedAnswer().Chunk("<SubChainStart info={\"sub_chat_id\":\"sub\"}/>" + Call("none", "r") +
			"<SubChainEnd info={\"sub_chat_id\":\"other\"}/>" + Call("none", "r") + "<SubChainStart/><SubChainEnd/>"));
	RunTurn(TEXT("Delegate"));
	EXPECT_TRUE(PumpUntil([this]
		{ return FindBody("/api/tool_error/sub") && FindBody(GetErrorPath()); }));
	EXPECT_TRUE(Log.Contains("Popped sub-agent chat ID sub does not match expected other. Agent stack may be corrupted!"));
	EXPECT_EQ(Log.Count("Received sub-chain block with empty chat ID"), 2);
}

TEST_F(ChatToolCall, ASubAgentsIdCannotLeaveItsPlaceInTheAddress)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("<SubChainStart info={\"sub_chat_id\":\"../../oauth/revoke?x\"}/>" + Call("none", "r")));
	RunTurn(TEXT("Delegate"));
	EXPECT_TRUE(PumpUntil([this]
		{ return FindBody("/api/tool_error/..%2F..%2Foauth%2Frevoke%3Fx").IsValid(); }));
}

TEST_F(ChatToolCall, AReplyIsSentAgainWhenTheServiceHasASlowMoment)
{
	std::atomic<int32> NumAsked = 0;
	Server.AnswerWith(GetErrorPath(), [&](const FScriptedRequest&)
		{
			const FScriptedAnswer Answers[] = {FScriptedAnswer(503), FScriptedAnswer(429).Header("Retry-After", "20"),
				FScriptedAnswer::Raw("no HTTP\r\n\r\n"), FScriptedAnswer::Json("{}")};
			return Answers[FMath::Min(NumAsked++, 3)]; });
	Server.Answer("/api/chat", FScriptedAnswer().Chunk(Call("none", "r1")));
	RunTurn(TEXT("Look"));
	EXPECT_TRUE(AdvanceUntilErrors(4)) << Log.ToText();
	AdvanceTime(60.0f);
	EXPECT_EQ(FindBodies(GetErrorPath()).Num(), 4);
	EXPECT_THAT(GetErrors(), UnorderedElementsAre(Pair("r1", "Tool not found: Tool 'none' not found")));
	EXPECT_TRUE(Log.Contains("is sent again in 0.5 s"));
	EXPECT_TRUE(Log.Contains("is sent again in 20.0 s"));
	EXPECT_TRUE(Log.Contains("is sent again in 2.0 s"));
}

TEST_F(ChatToolCall, AReplyThatTheServiceRefusesIsNotSentAgain)
{
	Server.AnswerWith(GetErrorPath(), [](const FScriptedRequest&)
		{ return FScriptedAnswer(404); });
	Server.Answer("/api/chat", FScriptedAnswer().Chunk(Call("none", "r1")));
	RunTurn(TEXT("Look"));
	ASSERT_TRUE(PumpUntil([this]
		{ return Log.Contains("The reply of tool call 'r1' did not reach the service"); }));
	AdvanceTime(60.0f);
	EXPECT_EQ(FindBodies(GetErrorPath()).Num(), 1);
	EXPECT_TRUE(Log.Contains("tool_execution")) << "the report says which call it was";
}

TEST_F(ChatToolCall, AServiceThatStaysAwayIsGivenUp)
{
	Server.AnswerWith(GetErrorPath(), [](const FScriptedRequest&)
		{ return FScriptedAnswer(503); });
	Server.Answer("/api/chat", FScriptedAnswer().Chunk(Call("none", "r1")));
	RunTurn(TEXT("Look"));
	EXPECT_TRUE(AdvanceUntilErrors(6));
	ASSERT_TRUE(PumpUntil([this]
		{ return Log.Contains("The reply of tool call 'r1' did not reach the service"); }));
	AdvanceTime(60.0f);
	EXPECT_EQ(FindBodies(GetErrorPath()).Num(), 6);
}

TEST_F(ChatToolCall, AResultThatIsTooLargeIsAnsweredAsAnError)
{
	Server.AnswerWith("/api/tool_reply/" + GetChatId(), [](const FScriptedRequest&)
		{ return FScriptedAnswer(413); });
	const FVexelToolContext Context{Conversation->GetChatId(), TEXT("r1"), Conversation};
	MakeShared<FVexelToolReply>(FVexelClient::Get().GetApiClient().ToSharedRef(), Context, []
		{ return true; })
		->Send(MakeShared<FJsonObject>());
	EXPECT_TRUE(AdvanceUntilErrors(1));
	EXPECT_EQ(FindBodies("/api/tool_reply/" + GetChatId()).Num(), 1);
	EXPECT_EQ(GetErrors()["r1"], "Tool call failed: The result is larger than the service takes");
}

TEST_F(ChatToolCall, NoToolIsCalledAndNoReplySentAfterCancelling)
{
	Server.AnswerWith(GetErrorPath(), [](const FScriptedRequest&)
		{ return FScriptedAnswer(503); });
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("go " + Call("none", "r1")).WaitFor(Gate).Chunk(Call("none", "r2")).Stall());
	int32 NumStarted = 0;
	Subsystem->GetEvents().OnToolStarted.AddLambda([&](const FString&, const FString&, const FString&)
		{ ++NumStarted; });
	RunUntilText(TEXT("Go"));
	ASSERT_TRUE(PumpUntil([this]
		{ return Log.Contains("is sent again in 0.5 s"); }));
	EXPECT_TRUE(Subsystem->CancelRequest(Conversation->GetChatId()));
	Gate.Open();
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
	AdvanceTime(60.0f);
	EXPECT_EQ(NumStarted, 1);
	EXPECT_EQ(FindBodies(GetErrorPath()).Num(), 1);
}

TEST_F(ChatToolCall, ACallThatIsCancelledWhenItIsShownIsNotMade)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("a" + Call("none", "r1")).Stall());
	Subsystem->GetEvents().OnBlockAdded.AddLambda([&](const FString& ChatId, const FVexelChatMessageBlock& Block)
		{
			if (Block.GetType() == EVexelChatMessageBlockType::ToolCall)
			{
				Subsystem->CancelRequest(ChatId);
			} });
	RunTurn(TEXT("Go"));
	EXPECT_FALSE(Log.Contains("Processing tool call"));
}

TEST_F(ChatToolCall, ACallThatIsCancelledAsItStartsIsNotMade)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("a" + Call("none", "r1")).Stall());
	bool bFinished = false;
	Subsystem->GetEvents().OnToolStarted.AddLambda([this](const FString& ChatId, const FString&, const FString&)
		{ Subsystem->CancelRequest(ChatId); });
	Subsystem->GetEvents().OnToolFinished.AddLambda([&](const FString&, const FString&, const FString&, const TVexelExpected<TSharedRef<FJsonObject>>&)
		{ bFinished = true; });
	RunTurn(TEXT("Go"));
	EXPECT_FALSE(bFinished);
	EXPECT_EQ(FindBody(GetErrorPath()), nullptr);
}

TEST_F(ChatToolCall, CancellingFromABlockStopsTheRestOfItsPiece)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("a<Checkpoint info={\"checkpoint_id\":\"1\"}/>b" + Call("none", "r1")).Stall());
	int32 NumStarted = 0;
	Subsystem->GetEvents().OnToolStarted.AddLambda([&](const FString&, const FString&, const FString&)
		{ ++NumStarted; });
	Subsystem->GetEvents().OnBlockAdded.AddLambda([&](const FString& ChatId, const FVexelChatMessageBlock& Block)
		{
			if (Block.GetType() == EVexelChatMessageBlockType::Checkpoint)
			{
				Subsystem->CancelRequest(ChatId);
			} });
	RunTurn(TEXT("Go"));
	EXPECT_EQ(LastState, EVexelChatRequestState::Cancelled);
	EXPECT_EQ(Streamed, FString(TEXT("a")));
	EXPECT_EQ(NumStarted, 0);
}

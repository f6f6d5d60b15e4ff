#include "Chat/VexelChatHistoryManager.h"
#include "ChatTurnFixture.h"
#include "Containers/StringConv.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelJson.h"

#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;

class ChatSubsystem : public ChatTurn
{
protected:
	/** A turn whose answer confirms each word with a checkpoint of that id. */
	void RunConfirmedTurn(const TCHAR* Message, const std::vector<std::string>& Words)
	{
		std::string Answer;
		for (const std::string& Word : Words)
		{
			Answer += Word + "<Checkpoint info={\"checkpoint_id\":\"" + Word + "\"}/>";
		}
		Server.AnswerWith("/api/chat", [Answer](const FScriptedRequest&)
			{ return FScriptedAnswer().Chunk(Answer + "loose end"); });
		RunTurn(Message);
	}

	const FVexelChatHeader* FindHeader(const TArray<FVexelChatHeader>& Headers, const FString& ChatId) const
	{
		return Headers.FindByPredicate([&](const FVexelChatHeader& Header)
			{ return Header.ChatId.Equals(ChatId); });
	}

	void WriteStored(const TCHAR* ChatId, const TCHAR* UserId) const
	{
		const FString Text = FString::Printf(TEXT("{\"UserId\":\"%s\",\"ChatId\":\"%s\",\"Title\":\"t\",\"ChatMode\":\"vexel_agent\","
												  "\"UpdateTime\":\"2020-01-01T00:00:00.000Z\",\"Messages\":[]}"),
			UserId, ChatId);
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *GetStoredPath(ChatId)));
	}

	static FString GetStoredPath(const FString& ChatId) { return FPaths::ProjectSavedDir() / TEXT("ChatHistories") / ChatId + TEXT(".json"); }
};
}

TEST_F(ChatSubsystem, RevertsToACheckpointAndGoesOnFromThere)
{
	RunConfirmedTurn(TEXT("First"), {"one", "two"});
	RunConfirmedTurn(TEXT("Second"), {"three"});
	ASSERT_EQ(Conversation->GetMessages().Num(), 4);
	EXPECT_TRUE(Subsystem->RevertToCheckpoint(Conversation->GetChatId(), TEXT("four")).HasError());
	EXPECT_EQ(NumChanges, 0);
	EXPECT_TRUE(Subsystem->RevertToCheckpoint(Conversation->GetChatId(), TEXT("one")).HasValue());
	EXPECT_EQ(NumChanges, 1);
	EXPECT_EQ(Conversation->GetMessages().Num(), 2);
	EXPECT_THAT(ReadStoredConversation(), testing::AllOf(HasSubstr("\"one\""), testing::Not(HasSubstr("\"two\""))));

	RunConfirmedTurn(TEXT("Again"), {"five"});
	EXPECT_EQ(FindBody("/api/chat")->GetStringField(TEXT("checkpoint_id")), FString(TEXT("one")));
	EXPECT_EQ(FindBody("/api/chat")->GetArrayField(TEXT("messages")).Num(), 3);
}

TEST_F(ChatSubsystem, TitleAndModeAreStoredAndSent)
{
	const FString ChatId = Conversation->GetChatId();
	EXPECT_THAT(TCHAR_TO_UTF8(*Conversation->GetTitle()), testing::ContainsRegex("^Chat [0-9]{4}-[0-9]{2}-[0-9]{2} [0-9]{2}:[0-9]{2}:[0-9]{2}$"));
	EXPECT_TRUE(Subsystem->SetTitle(ChatId, TEXT("All doors")).HasValue());
	EXPECT_TRUE(Subsystem->SetTitle(ChatId, TEXT(" \n")).HasError());
	EXPECT_TRUE(Subsystem->SetChatMode(ChatId, UVexelChatSubsystem::GetAllChatModes()[1]).HasValue());
	EXPECT_TRUE(Subsystem->SetChatMode(ChatId, FVexelChatModeInfo()).HasError());
	EXPECT_TRUE(Subsystem->SetTitle(TEXT("none"), TEXT("x")).HasError());
	EXPECT_EQ(NumChanges, 2);
	RunConfirmedTurn(TEXT("Hello"), {"one"});
	EXPECT_EQ(FindBody("/api/chat")->GetStringField(TEXT("conversation_title")), FString(TEXT("All doors")));
	EXPECT_EQ(FindBody("/api/chat")->GetStringField(TEXT("chat_mode")), FString(TEXT("vexel_agent_lite")));
	EXPECT_THAT(ReadStoredConversation(), HasSubstr("All doors"));
}

TEST_F(ChatSubsystem, AConversationThatWaitsForItsAnswerIsNotChanged)
{
	Server.Answer("/api/chat", FScriptedAnswer().Chunk("a").Stall());
	RunUntilText(TEXT("Well?"));
	const FString ChatId = Conversation->GetChatId();
	EXPECT_TRUE(Subsystem->RevertToCheckpoint(ChatId, TEXT("x")).HasError());
	EXPECT_TRUE(Subsystem->SetTitle(ChatId, TEXT("x")).HasError());
	EXPECT_TRUE(Subsystem->SetChatMode(ChatId, UVexelChatSubsystem::GetAllChatModes()[1]).HasError());
	EXPECT_EQ(NumChanges, 0);
	EXPECT_TRUE(Subsystem->CancelRequest(ChatId));
	EXPECT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Cancelled; }));
}

TEST_F(ChatSubsystem, SeveralConversationsWaitForTheirAnswersAtOnce)
{
	const TSharedPtr<FVexelChatConversation> Other = Subsystem->CreateConversation(UVexelChatSubsystem::GetDefaultChatMode());
	Server.AnswerWith("/api/chat", [this](const FScriptedRequest& Request)
		{
			const bool bFirst = Request.Body.find("first prompt") != std::string::npos;
			return bFirst ? FScriptedAnswer().WaitFor(Gate).Chunk("first answer") : FScriptedAnswer().Chunk("second answer"); });
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("first prompt")).HasValue());
	ASSERT_TRUE(Subsystem->SendMessage(Other->GetChatId(), TEXT("second prompt")).HasValue());
	ASSERT_TRUE(PumpUntil([&]
		{ return Other->GetMessages().Num() == 2; }));
	EXPECT_TRUE(Subsystem->HasActiveRequest(Conversation->GetChatId()));
	Gate.Open();
	ASSERT_TRUE(PumpUntil([this]
		{ return Conversation->GetMessages().Num() == 2; }));
	EXPECT_EQ(Conversation->GetMessages()[1].GetText(), FString(TEXT("first answer")));
	EXPECT_EQ(Other->GetMessages()[1].GetText(), FString(TEXT("second answer")));
	Subsystem->DeleteConversation(Other);
}

TEST_F(ChatSubsystem, TheHistoryHasTheUsersOwnConversationsAndOpensThemOnDemand)
{
	WriteStored(TEXT("mine-stored"), TEXT("user-1"));
	WriteStored(TEXT("another-users"), TEXT("user-2"));
	RunConfirmedTurn(TEXT("Hello"), {"one"});
	const TArray<FVexelChatHeader> History = Subsystem->GetHistory();
	EXPECT_NE(FindHeader(History, TEXT("mine-stored")), nullptr);
	EXPECT_EQ(FindHeader(History, TEXT("another-users")), nullptr);
	ASSERT_NE(FindHeader(History, Conversation->GetChatId()), nullptr);
	EXPECT_EQ(FindHeader(History, Conversation->GetChatId())->NumMessages, 2);
	EXPECT_EQ(Subsystem->GetNewestConversation(), Conversation);

	const TSharedPtr<FVexelChatConversation> Opened = Subsystem->FindActiveConversation(TEXT("mine-stored"));
	ASSERT_TRUE(Opened.IsValid());
	EXPECT_EQ(Subsystem->FindActiveConversation(TEXT("mine-stored")), Opened);
	Subsystem->DeleteConversation(Opened);
	EXPECT_FALSE(FPaths::FileExists(GetStoredPath(TEXT("mine-stored"))));
	Subsystem->DeleteConversation(Opened);
	EXPECT_TRUE(Log.Contains("Conversation with ID mine-stored not found"));
	Subsystem->DeleteConversation(Subsystem->FindActiveConversation(TEXT("another-users")));
}

TEST_F(ChatSubsystem, WhatAnotherEditorStoresMeanwhileIsKeptAndTold)
{
	RunConfirmedTurn(TEXT("Hello"), {"one"});
	FVexelChatHistoryManager AnotherEditor(FPaths::ProjectSavedDir() / TEXT("ChatHistories"));
	const TSharedPtr<FVexelChatConversation> Theirs = AnotherEditor.Find(Conversation->GetChatId());
	FVexelChatMessage Message(EVexelChatRole::User);
	Message.AddBlock(FVexelChatMessageBlock::MakeText(TEXT("from elsewhere")));

	// It saves while this one waits for its answer.
	Server.AnswerWith("/api/chat", [this](const FScriptedRequest&)
		{ return FScriptedAnswer().WaitFor(Gate).Chunk("answer"); });
	ASSERT_TRUE(Subsystem->SendMessage(Conversation->GetChatId(), TEXT("Second")).HasValue());
	ASSERT_TRUE(AnotherEditor.Refresh(Conversation->GetChatId()));
	Theirs->AddMessage(Message);
	ASSERT_TRUE(AnotherEditor.Save(Conversation->GetChatId()).HasValue());
	Gate.Open();
	ASSERT_TRUE(PumpUntil([this]
		{ return LastState == EVexelChatRequestState::Succeeded; }));
	ASSERT_EQ(Conversation->GetMessages().Num(), 5);
	EXPECT_EQ(Conversation->GetMessages()[3].GetText(), FString(TEXT("from elsewhere")));
	EXPECT_EQ(Conversation->GetMessages()[4].GetText(), FString(TEXT("answer")));
	EXPECT_EQ(NumChanges, 1);

	EXPECT_TRUE(AnotherEditor.Refresh(Conversation->GetChatId()));
	Theirs->SetTitle(TEXT("Renamed elsewhere"));
	ASSERT_TRUE(AnotherEditor.Save(Conversation->GetChatId()).HasValue());
	NumChanges = 0;
	EXPECT_EQ(Subsystem->FindActiveConversation(Conversation->GetChatId())->GetTitle(), FString(TEXT("Renamed elsewhere")));
	EXPECT_EQ(NumChanges, 1);
}

TEST_F(ChatSubsystem, AConversationWithAMessageThatCannotBeReadIsShownButNotSent)
{
	const FString Path = GetStoredPath(TEXT("strange"));
	ASSERT_TRUE(FFileHelper::SaveStringToFile(
		TEXT("{\"UserId\":\"user-1\",\"ChatId\":\"strange\",\"ChatMode\":\"vexel_agent\",\"Messages\":[{\"role\":\"tool\"}]}"), *Path));
	const TSharedPtr<FVexelChatConversation> Strange = Subsystem->FindActiveConversation(TEXT("strange"));
	ASSERT_TRUE(Strange.IsValid());
	EXPECT_TRUE(Subsystem->SendMessage(TEXT("strange"), TEXT("Hello")).HasError());
	EXPECT_FALSE(Subsystem->HasActiveRequest(TEXT("strange")));
	EXPECT_TRUE(Log.Contains("Encountered an invalid chat message in conversation history."));
	EXPECT_TRUE(Log.Contains("Failed to prepare JSON payload for chat request."));
	EXPECT_EQ(Strange->GetMessages().Num(), 1);
	Subsystem->DeleteConversation(Strange);
}

TEST_F(ChatSubsystem, AFullDiskLosesNothingOfWhatWasSaid)
{
	RunConfirmedTurn(TEXT("Hello"), {"one"});
	const FString Path = GetStoredPath(Conversation->GetChatId());
	std::string SaveFailure;
	Subsystem->GetEvents().OnSaveFailed.AddLambda([&](const FString&, const FVexelError& Error)
		{ SaveFailure = TCHAR_TO_UTF8(*Error.ToChainString()); });
	// What stands in the way of the file stands in for the disk.
	ASSERT_TRUE(IFileManager::Get().Delete(*Path));
	ASSERT_TRUE(IFileManager::Get().MakeDirectory(*(Path / TEXT("in the way")), true));
	RunConfirmedTurn(TEXT("Second"), {"two"});
	EXPECT_THAT(SaveFailure, HasSubstr("while saving conversation"));
	EXPECT_EQ(Conversation->GetMessages().Num(), 4);
	ASSERT_TRUE(IFileManager::Get().DeleteDirectory(*Path, true, true));
	RunConfirmedTurn(TEXT("Third"), {"three"});
	EXPECT_THAT(ReadStoredConversation(), testing::AllOf(HasSubstr("Hello"), HasSubstr("Second"), HasSubstr("Third")));
}

#include "Blueprint/VexelBlueprintMapping.h"
#include "Chat/VexelChatHistoryManager.h"
#include "Containers/StringConv.h"
#include "Data/VexelChatConversation.h"
#include "HAL/FileManager.h"
#include "LogCapture.h"
#include "Misc/FileHelper.h"
#include "Misc/Paths.h"
#include "VexelJson.h"

#include <filesystem>
#include <gtest/gtest.h>

namespace
{
TSharedRef<FJsonObject> Parse(const TCHAR* Text)
{
	TSharedPtr<FJsonObject> Object;
	FString Error;
	EXPECT_TRUE(FVexelJsonConversions::StringToJson(FString(Text), Object, &Error)) << TCHAR_TO_UTF8(*Error);
	return Object.ToSharedRef();
}

std::string ToText(const TSharedRef<FJsonObject>& Object)
{
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	return TCHAR_TO_UTF8(*Text);
}

FVexelChatMessageBlock MakeCheckpoint(const TCHAR* Id)
{
	const TSharedPtr<FJsonObject> Info = MakeShared<FJsonObject>();
	Info->SetStringField(TEXT("checkpoint_id"), Id);
	return FVexelChatMessageBlock::MakeFromTag(EVexelChatMessageBlockType::Checkpoint, Info);
}

/** An answer of text, checkpoint, text, checkpoint, text. */
FVexelChatMessage MakeAnswer()
{
	FVexelChatMessage Message(EVexelChatRole::Assistant);
	for (const TCHAR* const Id : {TEXT("first"), TEXT("second")})
	{
		Message.AddBlock(FVexelChatMessageBlock::MakeText(TEXT("before ")));
		Message.AddBlock(MakeCheckpoint(Id));
	}
	Message.AddBlock(FVexelChatMessageBlock::MakeText(TEXT("after")));
	return Message;
}

/** A directory of its own for each test, gone at its end. */
class ChatHistory : public testing::Test
{
protected:
	ChatHistory()
	{
		std::string Pattern = (std::filesystem::temp_directory_path() / "vexel-history-XXXXXX").string();
		Path = mkdtemp(Pattern.data());
		Directory = FString(UTF8_TO_TCHAR(Path.c_str()));
	}
	~ChatHistory() override { std::filesystem::remove_all(Path); }

	std::filesystem::path Path;
	FString Directory;
};
}

TEST(ChatMessage, EveryBlockSurvivesItsStoredForm)
{
	const TCHAR* const Stored =
		u"{\"role\":\"assistant\",\"failed\":false,\"message_blocks\":["
		u"{\"type\":\"text\",\"content\":\"a \\\"quoted\\\" word\"},"
		u"{\"type\":\"image\",\"asset_id\":\"img\"},"
		u"{\"type\":\"tool_call\",\"tool_info\":{\"tool_name\":\"compile\",\"reply_id\":\"7\",\"info\":{\"tool_name\":\"compile\",\"reply_id\":\"7\"}}},"
		u"{\"type\":\"tool_result\",\"tool_info\":{\"tool_name\":\"compile\",\"info\":{\"ok\":true,\"tool_name\":\"compile\"}}},"
		u"{\"type\":\"sub_chain_start\",\"sub_chat_id\":\"s\"},{\"type\":\"sub_chain_end\",\"sub_chat_id\":\"s\"},"
		u"{\"type\":\"checkpoint\",\"checkpoint_id\":\"c\"},{\"type\":\"error\",\"message\":\"m\"}]}";
	FVexelChatMessage Message;
	ASSERT_TRUE(Message.FromJson(Parse(Stored)));
	EXPECT_EQ(Message.NumBlocks(), 8);
	EXPECT_EQ(Message.GetBlocks()[2].Tool_GetToolReplyId(), FString(TEXT("7")));
	EXPECT_EQ(Message.GetBlocks()[7].GetText(), FString(TEXT("Error: m\n")));
	EXPECT_EQ(ToText(Message.ToJson()), TCHAR_TO_UTF8(Stored));
}

TEST(ChatMessage, BadStoredFormsAreRefusedAndSaid)
{
	FLogCapture Log;
	FVexelChatMessage Message;
	EXPECT_FALSE(Message.FromJson(Parse(TEXT(R"({"role":"tool","message_blocks":[]})"))));
	EXPECT_TRUE(Log.Contains("Unknown role 'tool' in FromJson"));
	EXPECT_FALSE(Message.FromJson(Parse(TEXT(R"({"message_blocks":[]})"))));
	EXPECT_TRUE(Log.Contains("Missing role field in FromJson"));
	EXPECT_TRUE(Message.FromJson(
		Parse(TEXT(R"({"role":"user","message_blocks":[3,{"type":"text"},{"type":"poem"},{"type":"text","content":"x"}]})"))));
	EXPECT_EQ(Message.NumBlocks(), 1);
	EXPECT_TRUE(Log.Contains("Invalid or missing message block in FromJson"));
	EXPECT_TRUE(Log.Contains("Missing content field in FromJson for Text block"));
	EXPECT_EQ(Message.GetMessageBlock(1), nullptr);
	EXPECT_TRUE(Log.Contains("GetMessageBlock: Index 1 out of bounds (0-0)"));
}

TEST(ChatMessage, ServiceFormIsAStringUntilThereAreImages)
{
	FVexelChatMessage Message(EVexelChatRole::User);
	Message.AddBlock(FVexelChatMessageBlock::MakeText(TEXT("Look")));
	EXPECT_EQ(Message.ToServiceJson()->GetStringField(TEXT("content")), FString(TEXT("Look")));

	Message.AddBlock(FVexelChatMessageBlock::MakeImage(TEXT("img"), {1, 2, 3}));
	const TSharedRef<FJsonObject> ServiceForm = Message.ToServiceJson();
	const TArray<TSharedPtr<FJsonValue>>& Parts = ServiceForm->GetArrayField(TEXT("content"));
	ASSERT_EQ(Parts.Num(), 2);
	EXPECT_EQ(ToText(Parts[0]->AsObject().ToSharedRef()), R"({"type":"text","text":"Look"})");
	EXPECT_EQ(ToText(Parts[1]->AsObject().ToSharedRef()), R"({"type":"image","source":{"type":"base64","data":"AQID"}})");
}

TEST(ChatMessage, OnlyBlocksBehindTheLastCheckpointFail)
{
	FVexelChatMessage Message = MakeAnswer();
	EXPECT_EQ(Message.MarkFailedAfter(Message.FindLastCheckpoint()), 1);
	EXPECT_FALSE(Message.GetBlocks()[3].HasFailed());
	EXPECT_TRUE(Message.GetBlocks()[4].HasFailed());

	FVexelChatMessage Loaded;
	ASSERT_TRUE(Loaded.FromJson(Message.ToJson()));
	EXPECT_EQ(Loaded.GetState(), EVexelChatMessageState::Failed);
	EXPECT_FALSE(Loaded.GetBlocks()[3].HasFailed());
	EXPECT_TRUE(Loaded.GetBlocks()[4].HasFailed());
}

TEST(ChatConversation, LoadsWithWhatIsThere)
{
	FLogCapture Log;
	FVexelChatConversation Conversation;
	ASSERT_TRUE(Conversation.FromJson(Parse(TEXT(R"({"UserId":"u","ChatId":"c","Title":"t","CreationTime":"yesterday","Messages":[]})"))));
	EXPECT_EQ(Conversation.GetChatMode().ChatMode, FVexelChatModeInfo::MakeUserMode().ChatMode);
	EXPECT_FALSE(Conversation.GetCreationTime().IsSet());
	EXPECT_TRUE(Log.Contains("FVexelChatConversation: No ChatMode provided in JSON, defaulting to User mode."));
	EXPECT_TRUE(Log.Contains("Failed to parse CreationTime: yesterday"));
	EXPECT_TRUE(Log.Contains("FVexelChatConversation: No Mapping provided in JSON, creating empty mapping."));
}

TEST(ChatConversation, RevertsToACheckpoint)
{
	FVexelChatConversation Conversation(TEXT("u"), TEXT("c"), FVexelChatModeInfo(TEXT("vexel_agent"), TEXT("Agent"), true));
	Conversation.AddMessage(FVexelChatMessage(EVexelChatRole::User));
	Conversation.AddMessage(MakeAnswer());
	Conversation.AddMessage(FVexelChatMessage(EVexelChatRole::User));
	EXPECT_EQ(Conversation.FindLastCheckpointId(), FString(TEXT("second")));

	FLogCapture Log;
	EXPECT_FALSE(Conversation.RevertToBlockIndex(1, 5));
	EXPECT_TRUE(Log.Contains("RevertToBlockIndex: CheckpointBlockIndex 5 out of bounds (0-4)"));
	EXPECT_TRUE(Conversation.RevertToBlockIndex(1, 1));
	EXPECT_EQ(Conversation.GetMessages().Num(), 2);
	EXPECT_EQ(Conversation.GetMessages()[1].NumBlocks(), 2);
	EXPECT_EQ(Conversation.FindLastCheckpointId(), FString(TEXT("first")));
	EXPECT_TRUE(Log.Contains("[Conversation] Revert finished. Messages remaining: 2, Removed: 1"));
}

TEST_F(ChatHistory, ConversationsComeBackNewestFirst)
{
	FVexelChatHistoryManager Written(Directory);
	for (const TCHAR* const Stored :
		{TEXT(R"({"UserId":"u","ChatId":"newer","Title":"t","ChatMode":"vexel_agent","UpdateTime":"2026-03-01T10:00:00.500Z"})"),
			TEXT(R"({"UserId":"u","ChatId":"older","Title":"t","ChatMode":"vexel_agent","UpdateTime":"2026-03-01T10:00:00.499Z"})")})
	{
		const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>();
		ASSERT_TRUE(Conversation->FromJson(Parse(Stored)));
		Written.Add(Conversation);
		ASSERT_TRUE(Written.Save(*Conversation).HasValue());
	}
	FVexelChatHistoryManager Read(Directory);
	Read.Load();
	const TArray<TSharedRef<FVexelChatConversation>> Conversations = Read.GetConversations();
	ASSERT_EQ(Conversations.Num(), 2);
	EXPECT_EQ(Conversations[0]->GetChatId(), FString(TEXT("newer")));
	EXPECT_EQ(ToText(Conversations[0]->ToJson()), ToText(Written.Find(TEXT("newer"))->ToJson()));
	EXPECT_TRUE(Read.Delete(TEXT("older")));
	EXPECT_FALSE(Read.Delete(TEXT("older")));
	EXPECT_EQ(std::distance(std::filesystem::directory_iterator(Path), {}), 1);
}

TEST_F(ChatHistory, ADamagedFileIsSetAsideAndKept)
{
	const FString File = Directory / TEXT("broken.json");
	ASSERT_TRUE(FFileHelper::SaveStringToFile(TEXT("{\"ChatId\":\"broken\",\"Messa"), *File));
	FLogCapture Log;
	FVexelChatHistoryManager History(Directory);
	History.Load();
	EXPECT_TRUE(History.GetConversations().IsEmpty());
	EXPECT_FALSE(FPaths::FileExists(File));
	EXPECT_TRUE(FPaths::FileExists(File + TEXT(".damaged")));
	EXPECT_TRUE(Log.Contains("is damaged; it is kept as"));
}

TEST_F(ChatHistory, AnIdThatIsAPathIsNotWritten)
{
	FVexelChatHistoryManager History(Directory);
	const FVexelChatConversation Conversation(TEXT("u"), TEXT("../escape"), FVexelChatModeInfo(TEXT("vexel_agent"), TEXT("Agent"), true));
	EXPECT_TRUE(History.Save(Conversation).HasError());
	EXPECT_FALSE(std::filesystem::exists(Path.parent_path() / "escape.json"));
}

#include "Containers/StringConv.h"
#include "Data/VexelChatConversation.h"
#include "LogCapture.h"
#include "VexelJson.h"

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
	EXPECT_FALSE(Message.FromJson(Parse(TEXT(R"({"role":"user","message_blocks":{}})"))));
	const TCHAR* const Stored =
		TEXT(R"({"role":"user","failed":false,"message_blocks":[3,{"type":"text"},{"type":"poem","lines":[1]},{"type":"text","content":"x"},null]})");
	EXPECT_TRUE(Message.FromJson(Parse(Stored)));
	ASSERT_EQ(Message.NumBlocks(), 5);
	EXPECT_EQ(Message.GetBlocks()[2].GetType(), EVexelChatMessageBlockType::Unknown);
	EXPECT_EQ(Message.GetText(), FString(TEXT("x")));
	EXPECT_EQ(ToText(Message.ToJson()), TCHAR_TO_UTF8(Stored)) << "what cannot be read goes back as it came";
	EXPECT_TRUE(Log.Contains("Invalid or missing message block in FromJson"));
	EXPECT_TRUE(Log.Contains("Missing content field in FromJson for Text block"));
	EXPECT_EQ(Message.GetMessageBlock(5), nullptr);
	EXPECT_TRUE(Log.Contains("GetMessageBlock: Index 5 out of bounds (0-4)"));
}

TEST(ChatMessage, ServiceFormIsAStringUntilThereAreImages)
{
	FVexelChatMessage Message(EVexelChatRole::User);
	Message.AddBlock(FVexelChatMessageBlock::MakeText(TEXT("Look")));
	const auto Images = [](const FString& AssetId)
	{ return AssetId.Equals(TEXT("img")) ? TArray<uint8>{1, 2, 3} : TArray<uint8>(); };
	EXPECT_EQ(Message.ToServiceJson(Images)->GetStringField(TEXT("content")), FString(TEXT("Look")));

	Message.AddBlock(FVexelChatMessageBlock::MakeImage(TEXT("img")));
	Message.AddBlock(FVexelChatMessageBlock::MakeImage(TEXT("gone")));
	const TSharedRef<FJsonObject> ServiceForm = Message.ToServiceJson(Images);
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

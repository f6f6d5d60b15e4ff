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
#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

const FVexelChatModeInfo AgentMode(TEXT("vexel_agent"), TEXT("Agent"), true);

FVexelChatMessage Say(EVexelChatRole Role, const TCHAR* Text)
{
	FVexelChatMessage Message(Role);
	Message.AddBlock(FVexelChatMessageBlock::MakeText(Text));
	return Message;
}

FVexelChatMessage Ask(const TCHAR* Text)
{
	return Say(EVexelChatRole::User, Text);
}

/** An answer that ends with a checkpoint. */
FVexelChatMessage Confirm(const TCHAR* Text, const TCHAR* CheckpointId)
{
	FVexelChatMessage Message = Say(EVexelChatRole::Assistant, Text);
	const TSharedPtr<FJsonObject> Info = MakeShared<FJsonObject>();
	Info->SetStringField(TEXT("checkpoint_id"), CheckpointId);
	Message.AddBlock(FVexelChatMessageBlock::MakeFromTag(EVexelChatMessageBlockType::Checkpoint, Info));
	return Message;
}

std::vector<std::string> TextsOf(const FVexelChatConversation& Conversation)
{
	std::vector<std::string> Texts;
	for (const FVexelChatMessage& Message : Conversation.GetMessages())
	{
		Texts.push_back(TCHAR_TO_UTF8(*Message.GetText()));
	}
	return Texts;
}

std::vector<std::string> IdsOf(const TArray<FVexelChatHeader>& Headers)
{
	std::vector<std::string> Ids;
	for (const FVexelChatHeader& Header : Headers)
	{
		Ids.push_back(TCHAR_TO_UTF8(*Header.ChatId));
	}
	return Ids;
}

std::string ToText(const TSharedPtr<FJsonValue>& Value)
{
	const TSharedRef<FJsonObject> Object = MakeShared<FJsonObject>();
	Object->SetField(TEXT("value"), Value);
	FString Text;
	FVexelJsonConversions::JsonToString(Object, Text);
	return TCHAR_TO_UTF8(*Text);
}

/** A directory of its own for each test, gone at its end. Each manager stands for an editor that has the project open. */
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

	void WriteFile(const TCHAR* Name, FStringView Text) const
	{
		ASSERT_TRUE(FFileHelper::SaveStringToFile(Text, *(Directory / Name), FFileHelper::EEncodingOptions::ForceUTF8WithoutBOM));
	}

	std::string ReadFile(const TCHAR* Name) const
	{
		FString Text;
		FFileHelper::LoadFileToString(Text, *(Directory / Name));
		return TCHAR_TO_UTF8(*Text);
	}

	/** Makes a file old enough for its time stamp to be trusted. */
	void Age(const TCHAR* Name, int32 Hours = 1) const
	{
		IFileManager::Get().SetTimeStamp(*(Directory / Name), FDateTime::UtcNow() - FTimespan::FromHours(Hours));
	}

	/** Adds a conversation to an editor's history, with a first message, and stores it. */
	TSharedRef<FVexelChatConversation> Begin(FVexelChatHistoryManager& Editor, const TCHAR* ChatId, const TCHAR* FirstMessage) const
	{
		const TSharedRef<FVexelChatConversation> Conversation = MakeShared<FVexelChatConversation>(TEXT("user"), ChatId, AgentMode);
		Conversation->AddMessage(Ask(FirstMessage));
		Editor.Add(Conversation);
		EXPECT_TRUE(Editor.Save(ChatId).HasValue());
		return Conversation;
	}

	void AddAndSave(FVexelChatHistoryManager& Editor, FVexelChatConversation& Conversation, FVexelChatMessage Message) const
	{
		Conversation.AddMessage(MoveTemp(Message));
		EXPECT_TRUE(Editor.Save(Conversation.GetChatId()).HasValue());
	}

	std::filesystem::path Path;
	FString Directory;
};

/** Two editors that have the same conversation open, whose answer ends with the checkpoint "c1". */
class ChatHistoryOfTwo : public ChatHistory
{
protected:
	ChatHistoryOfTwo()
		: First(Directory)
		, Ours(Begin(First, TEXT("shared"), TEXT("start")))
		, Second(Directory)
	{
		AddAndSave(First, *Ours, Confirm(TEXT("one"), TEXT("c1")));
		AddAndSave(First, *Ours, Ask(TEXT("more")));
		Theirs = Second.Find(TEXT("shared"));
	}

	/** What a third editor reads. */
	std::vector<std::string> ReadTexts() const { return TextsOf(*FVexelChatHistoryManager(Directory).Find(TEXT("shared"))); }

	FVexelChatHistoryManager First;
	TSharedRef<FVexelChatConversation> Ours;
	FVexelChatHistoryManager Second;
	TSharedPtr<FVexelChatConversation> Theirs;
};
}

TEST_F(ChatHistory, ListsConversationsNewestFirstAndOpensEach)
{
	for (const TCHAR* const Stored :
		{TEXT(R"({"UserId":"u","ChatId":"newer","Title":"t","ChatMode":"vexel_agent","UpdateTime":"2026-03-01T10:00:00.500Z","Messages":[{"role":"user","message_blocks":[]}]})"),
			TEXT(R"({"UserId":"u","ChatId":"older","Title":"t","ChatMode":"vexel_agent","UpdateTime":"2026-03-01T10:00:00.499Z"})")})
	{
		WriteFile(FString(Stored).Contains(TEXT("newer")) ? TEXT("newer.json") : TEXT("older.json"), Stored);
	}
	FVexelChatHistoryManager Editor(Directory);
	const TArray<FVexelChatHeader> Headers = Editor.GetHeaders();
	ASSERT_THAT(IdsOf(Headers), ElementsAre("newer", "older"));
	EXPECT_EQ(Headers[0].NumMessages, 1);
	EXPECT_EQ(Headers[0].ChatMode, FString(TEXT("vexel_agent")));
	EXPECT_EQ(Headers[0].UpdateTime->ToIso8601(), FString(TEXT("2026-03-01T10:00:00.500Z")));
	ASSERT_TRUE(Editor.Find(TEXT("older")).IsValid());
	EXPECT_EQ(Editor.Find(TEXT("none")), nullptr);
	EXPECT_TRUE(Editor.Delete(TEXT("older")));
	EXPECT_FALSE(Editor.Delete(TEXT("older")));
	EXPECT_THAT(IdsOf(Editor.GetHeaders()), ElementsAre("newer"));
}

TEST_F(ChatHistory, AListReadsOnlyWhatHasChanged)
{
	{
		FVexelChatHistoryManager Writer(Directory);
		Begin(Writer, TEXT("one"), TEXT("a"));
		Begin(Writer, TEXT("two"), TEXT("b"));
	}
	Age(TEXT("one.json"));
	Age(TEXT("two.json"), 2);
	FVexelChatHistoryManager(Directory).GetHeaders();

	// Bytes of the same number under the same time stamp are not looked at: the list comes from its cache.
	const FDateTime Stamp = IFileManager::Get().GetTimeStamp(*(Directory / TEXT("one.json")));
	const int64 Size = IFileManager::Get().FileSize(*(Directory / TEXT("one.json")));
	WriteFile(TEXT("one.json"), FString::ChrN(int32(Size), TEXT('x')));
	IFileManager::Get().SetTimeStamp(*(Directory / TEXT("one.json")), Stamp);
	FLogCapture Log;
	EXPECT_THAT(IdsOf(FVexelChatHistoryManager(Directory).GetHeaders()), testing::UnorderedElementsAre("one", "two"));

	Age(TEXT("one.json"), 3);
	EXPECT_THAT(IdsOf(FVexelChatHistoryManager(Directory).GetHeaders()), ElementsAre("two"));
	EXPECT_TRUE(Log.Contains("is damaged; it is kept as"));
}

TEST_F(ChatHistory, ADamagedListIsMadeAgain)
{
	FVexelChatHistoryManager Writer(Directory);
	Begin(Writer, TEXT("one"), TEXT("a"));
	Age(TEXT("one.json"));
	Writer.GetHeaders();
	const std::string Whole = ReadFile(TEXT("index.cache"));
	EXPECT_THAT(Whole, testing::HasSubstr("\"one\""));
	for (const char* const Damaged : {"", "{", "[]", "{\"version\":9}", "{\"version\":1,\"conversations\":[3,{\"id\":\"one\",\"stamp\":\"x\"}]}"})
	{
		WriteFile(TEXT("index.cache"), UTF8_TO_TCHAR(Damaged));
		FVexelChatHistoryManager Editor(Directory);
		EXPECT_THAT(IdsOf(Editor.GetHeaders()), ElementsAre("one")) << Damaged;
		EXPECT_EQ(ReadFile(TEXT("index.cache")), Whole) << Damaged;
	}
}

TEST_F(ChatHistory, ADamagedFileIsSetAsideAndKept)
{
	for (int32 Round = 0; Round < 2; ++Round)
	{
		WriteFile(TEXT("broken.json"), TEXT("{\"ChatId\":\"broken\",\"Messa"));
		FLogCapture Log;
		FVexelChatHistoryManager Editor(Directory);
		EXPECT_THAT(IdsOf(Editor.GetHeaders()), IsEmpty());
		EXPECT_FALSE(FPaths::FileExists(Directory / TEXT("broken.json")));
		EXPECT_EQ(Editor.FindSetAside().Num(), Round + 1) << "an earlier damaged file keeps its place";
		EXPECT_TRUE(Log.Contains("is damaged; it is kept as"));
	}
}

TEST_F(ChatHistory, FilesOfOtherNamesAreLeftAlone)
{
	WriteFile(TEXT("my notes.json"), TEXT("no conversation"));
	FVexelChatHistoryManager Editor(Directory);
	EXPECT_THAT(IdsOf(Editor.GetHeaders()), IsEmpty());
	EXPECT_EQ(ReadFile(TEXT("my notes.json")), "no conversation");
}

TEST_F(ChatHistory, ACopyOfAFileIsAConversationOfItsOwn)
{
	FVexelChatHistoryManager Editor(Directory);
	Begin(Editor, TEXT("first"), TEXT("a"));
	std::filesystem::copy_file(Path / "first.json", Path / "second.json");
	EXPECT_THAT(IdsOf(Editor.GetHeaders()), testing::UnorderedElementsAre("first", "second"));
	AddAndSave(Editor, *Editor.Find(TEXT("second")), Ask(TEXT("b")));
	FVexelChatHistoryManager Later(Directory);
	EXPECT_THAT(TextsOf(*Later.Find(TEXT("first"))), ElementsAre("a"));
	EXPECT_THAT(TextsOf(*Later.Find(TEXT("second"))), ElementsAre("a", "b"));
}

TEST_F(ChatHistory, AnIdThatIsAPathIsNeitherReadNorWritten)
{
	FVexelChatHistoryManager Editor(Directory / TEXT("Inner"));
	WriteFile(TEXT("escape.json"), TEXT(R"({"ChatId":"escape"})"));
	EXPECT_EQ(Editor.Find(TEXT("../escape")), nullptr);
	Editor.Add(MakeShared<FVexelChatConversation>(TEXT("u"), TEXT("../escape"), AgentMode));
	EXPECT_TRUE(Editor.Save(TEXT("../escape")).HasError());
	EXPECT_EQ(ReadFile(TEXT("escape.json")), R"({"ChatId":"escape"})");
}

TEST_F(ChatHistory, WhatALaterVersionWroteGoesBackAsItCame)
{
	const TCHAR* const Stored =
		TEXT(R"({"UserId":"u","ChatId":"later","Title":"t","ChatMode":"oracle","CreationTime":"the day after","UpdateTime":"2026-03-01T10:00:00.000Z",)")
			TEXT(R"("Messages":[{"role":"assistant","failed":false,"message_blocks":[{"type":"text","content":"a","language":"en"},)")
				TEXT(R"({"type":"poem","lines":["x",{"y":1.50}]},{"type":"tool_call","tool_info":{"tool_name":"n","reply_id":"1","info":{"a":1,"tool_name":"n","reply_id":"1"},"cost":3}},)")
					TEXT(R"({"type":"image","asset_id":"i","info":{"asset_id":"i","url":"https://h/i.png"}},)")
						TEXT(R"({"type":"error","message":"m","code":12345678901234567890}],"rating":5},{"role":"tool","said":"x"},17],)")
							TEXT(R"("Mapping":{"node_agent_names":{},"variables":{"v":"1"}},"Pinned":true})");
	WriteFile(TEXT("later.json"), Stored);
	FVexelChatHistoryManager Editor(Directory);
	const TSharedPtr<FVexelChatConversation> Conversation = Editor.Find(TEXT("later"));
	ASSERT_TRUE(Conversation.IsValid());
	EXPECT_FALSE(Conversation->GetMessages()[1].IsValid());
	AddAndSave(Editor, *Conversation, Ask(TEXT("b")));

	TSharedPtr<FJsonObject> Before;
	TSharedPtr<FJsonObject> After;
	ASSERT_TRUE(FVexelJsonConversions::StringToJson(Stored, Before));
	ASSERT_TRUE(FVexelJsonConversions::StringToJson(UTF8_TO_TCHAR(ReadFile(TEXT("later.json")).c_str()), After));
	TArray<TSharedPtr<FJsonValue>> Messages = After->GetArrayField(TEXT("Messages"));
	ASSERT_EQ(Messages.Num(), 4);
	Messages.Pop();
	After->SetArrayField(TEXT("Messages"), Messages);
	After->SetStringField(TEXT("UpdateTime"), Before->GetStringField(TEXT("UpdateTime")));
	for (const auto& [Name, Value] : Before->Values)
	{
		const TSharedPtr<FJsonValue> Now = After->TryGetField(Name);
		ASSERT_TRUE(Now.IsValid()) << TCHAR_TO_UTF8(*Name);
		EXPECT_EQ(ToText(Now), ToText(Value)) << TCHAR_TO_UTF8(*Name);
	}
	EXPECT_THAT(ReadFile(TEXT("later.json")), testing::HasSubstr("12345678901234567890"));
}

TEST_F(ChatHistoryOfTwo, NeitherLosesATurn)
{
	AddAndSave(First, *Ours, Ask(TEXT("ours 1")));
	const int32 Key = Ours->GetMessageKey(3);
	AddAndSave(Second, *Theirs, Ask(TEXT("theirs 1")));
	AddAndSave(Second, *Theirs, Ask(TEXT("theirs 2")));
	AddAndSave(First, *Ours, Ask(TEXT("ours 2")));
	EXPECT_THAT(TextsOf(*Ours), ElementsAre("start", "one", "more", "ours 1", "theirs 1", "theirs 2", "ours 2"));
	EXPECT_EQ(Ours->FindMessageByKey(Key), 3);

	EXPECT_TRUE(Second.Refresh(TEXT("shared")));
	EXPECT_FALSE(Second.Refresh(TEXT("shared")));
	EXPECT_EQ(TextsOf(*Theirs), TextsOf(*Ours));
	EXPECT_EQ(ReadTexts(), TextsOf(*Ours));
}

TEST_F(ChatHistoryOfTwo, ARefreshKeepsWhatIsNotSavedYet)
{
	AddAndSave(First, *Ours, Ask(TEXT("ours")));
	Theirs->AddMessage(Ask(TEXT("theirs")));
	EXPECT_TRUE(Second.Refresh(TEXT("shared")));
	EXPECT_FALSE(Second.Refresh(TEXT("shared")));
	EXPECT_TRUE(Second.Save(TEXT("shared")).HasValue());
	EXPECT_THAT(ReadTexts(), ElementsAre("start", "one", "more", "ours", "theirs"));
}

TEST_F(ChatHistoryOfTwo, TitleAndModeAreThoseOfWhoChangedThemLast)
{
	Ours->SetTitle(TEXT("  Doors\nand keys "));
	ASSERT_TRUE(First.Save(TEXT("shared")).HasValue());
	Theirs->SetChatMode(FVexelChatModeInfo::FromId(TEXT("vexel_agent_lite")));
	ASSERT_TRUE(Second.Save(TEXT("shared")).HasValue());
	EXPECT_EQ(Theirs->GetTitle(), FString(TEXT("Doors and keys")));
	EXPECT_TRUE(First.Refresh(TEXT("shared")));
	EXPECT_EQ(Ours->GetChatMode().DisplayText, FString(TEXT("Agent Lite")));
}

TEST_F(ChatHistoryOfTwo, NamesThatBothHaveGivenToNodesStay)
{
	const TCHAR* const Guids[] = {TEXT("00000000000000000000000000000001"), TEXT("00000000000000000000000000000002")};
	const auto Name = [&](FVexelChatConversation& Conversation, const TCHAR* Guid, const TCHAR* NodeName)
	{
		const TSharedRef<FJsonObject> Mapping = MakeShared<FJsonObject>();
		const TSharedRef<FJsonObject> Names = MakeShared<FJsonObject>();
		Names->SetStringField(Guid, NodeName);
		Mapping->SetObjectField(TEXT("node_agent_names"), Names);
		Conversation.GetMapping()->FromJson(Mapping);
	};
	Name(*Ours, Guids[0], TEXT("Branch_0"));
	Name(*Theirs, Guids[1], TEXT("Branch_1"));
	ASSERT_TRUE(First.Save(TEXT("shared")).HasValue());
	ASSERT_TRUE(Second.Save(TEXT("shared")).HasValue());
	const TSharedRef<FJsonObject> Merged = FVexelChatHistoryManager(Directory).Find(TEXT("shared"))->GetMapping()->ToJson();
	EXPECT_EQ(Merged->GetObjectField(TEXT("node_agent_names"))->GetStringField(Guids[0]), FString(TEXT("Branch_0")));
	EXPECT_EQ(Merged->GetObjectField(TEXT("node_agent_names"))->GetStringField(Guids[1]), FString(TEXT("Branch_1")));
}

TEST_F(ChatHistoryOfTwo, ARevertElsewhereIsTakenOverByWhoHasNothingNew)
{
	ASSERT_TRUE(Ours->RevertToBlockIndex(1, 1));
	ASSERT_TRUE(First.Save(TEXT("shared")).HasValue());
	EXPECT_TRUE(Second.Refresh(TEXT("shared")));
	EXPECT_THAT(TextsOf(*Theirs), ElementsAre("start", "one"));
}

TEST_F(ChatHistoryOfTwo, StatesThatGoApartAreBothKept)
{
	ASSERT_TRUE(Ours->RevertToBlockIndex(1, 1));
	AddAndSave(First, *Ours, Ask(TEXT("another way")));
	FLogCapture Log;
	AddAndSave(Second, *Theirs, Ask(TEXT("straight on")));
	EXPECT_TRUE(Log.Contains("was changed by another editor at the same time"));

	EXPECT_THAT(ReadTexts(), ElementsAre("start", "one", "more", "straight on"));
	FVexelChatHistoryManager Later(Directory);
	const TArray<FVexelChatHeader> Headers = Later.GetHeaders();
	ASSERT_EQ(Headers.Num(), 2);
	const FVexelChatHeader& Copy = Headers[Headers[0].ChatId == TEXT("shared") ? 1 : 0];
	EXPECT_THAT(TextsOf(*Later.Find(Copy.ChatId)), ElementsAre("start", "one", "another way"));
	EXPECT_TRUE(Copy.Title.EndsWith(TEXT(" (copy)")));
}

TEST_F(ChatHistory, AFileThatCannotBeReadIsNotOverwritten)
{
	FVexelChatHistoryManager Editor(Directory);
	const TSharedRef<FVexelChatConversation> Ours = Begin(Editor, TEXT("one"), TEXT("start"));
	const auto Size = std::filesystem::file_size(Path / "one.json");
	// Larger than what is read at all.
	std::filesystem::resize_file(Path / "one.json", std::uintmax_t(600) << 20);
	Ours->AddMessage(Ask(TEXT("more")));
	EXPECT_THAT(TCHAR_TO_UTF8(*Editor.Save(TEXT("one")).GetError().ToShortString()), testing::HasSubstr("cannot be read"));
	std::filesystem::resize_file(Path / "one.json", Size);
	EXPECT_TRUE(Editor.Save(TEXT("one")).HasValue());
	EXPECT_THAT(TextsOf(*FVexelChatHistoryManager(Directory).Find(TEXT("one"))), ElementsAre("start", "more"));
}

TEST_F(ChatHistory, WhatKilledWritersLeftBehindIsRemoved)
{
	FVexelChatHistoryManager Editor(Directory);
	Begin(Editor, TEXT("one"), TEXT("a"));
	WriteFile(TEXT("one.json.0123.tmp"), TEXT("half"));
	FVexelChatHistoryManager Later(Directory);
	EXPECT_FALSE(FPaths::FileExists(Directory / TEXT("one.json.0123.tmp")));
	EXPECT_THAT(TextsOf(*Later.Find(TEXT("one"))), ElementsAre("a"));
}

TEST_F(ChatHistory, WritersThatAreKilledWhileTheySaveLoseNothing)
{
	FILE* const Program = popen(VEXEL_HISTORY_CRASH " 20 2>&1", "r");
	ASSERT_NE(Program, nullptr);
	std::string Output;
	for (int Character = fgetc(Program); Character != EOF; Character = fgetc(Program))
	{
		Output += char(Character);
	}
	EXPECT_EQ(pclose(Program), 0) << Output;
	EXPECT_THAT(Output, testing::HasSubstr("kills 20, "));
	EXPECT_THAT(Output, testing::HasSubstr(", losses 0"));
}

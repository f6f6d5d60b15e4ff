#include "TerminalChatFixture.h"

#include <fstream>
#include <gmock/gmock.h>

namespace
{
using testing::HasSubstr;
using testing::Not;

const std::string CtrlC = "\x03";
const std::string CtrlD = "\x04";

using TerminalChat = FTerminalChatTest;
}

TEST_F(TerminalChat, RendersMarkdownAndEndsWithCtrlD)
{
	SetChat(FScriptedAnswer().Chunk("# A ti").Chunk("tle\n\nSome **bo").Chunk("ld** words\n\n- one\n- two\n\n| a | b |\n|---|---|\n| 1 | 2 |\n"));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	ASSERT_TRUE(Chat.WaitFor("1 │ 2")) << Chat.GetText();
	ASSERT_TRUE(Chat.WaitForPrompt());
	EXPECT_THAT(Chat.GetRaw(), HasSubstr("\x1b[0;1mbo"));
	EXPECT_THAT(Chat.GetText(), HasSubstr("❯ Hello?\n\nA title\n\nSome bold words\n\n• one\n• two\n\na │ b\n──┼──\n1 │ 2\n\n❯\n"));
	Chat.Type(CtrlD);
	EXPECT_EQ(Chat.Finish(), 0) << Chat.GetText();
}

TEST_F(TerminalChat, CtrlCStopsAnAnswerAndClearsALine)
{
	FScriptedGate Gate;
	SetChat(FScriptedAnswer().Chunk("A beginning").WaitFor(Gate));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	ASSERT_TRUE(Chat.WaitFor("A beginning")) << Chat.GetText();
	Chat.Type(CtrlC);
	EXPECT_TRUE(Chat.WaitFor("■ Stopped")) << Chat.GetText();
	ASSERT_TRUE(Chat.WaitForPrompt());
	Gate.Open();
	SetChat(FScriptedAnswer().Chunk("Whole."));
	Chat.Type("/quit" + CtrlC);
	ASSERT_TRUE(Chat.WaitForPrompt()) << "the line is gone, and the program is not";
	Chat.Type("Again?\r");
	EXPECT_TRUE(Chat.WaitFor("Whole.")) << Chat.GetText();
	ASSERT_TRUE(Chat.WaitForPrompt());
	Chat.Type("/quit\r");
	EXPECT_EQ(Chat.Finish(), 0);
	const std::vector<nlohmann::json> History = ReadStored();
	ASSERT_EQ(History.size(), 1u);
	ASSERT_EQ(History[0]["Messages"].size(), 4u) << "what came before Ctrl-C is kept";
	EXPECT_EQ(History[0]["Messages"][1]["message_blocks"][0]["content"], "A beginning");
	EXPECT_EQ(History[0]["Messages"][1]["failed"], true);
}

TEST_F(TerminalChat, SlashCommandsAnswerAndTabCompletesThem)
{
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("/he\t\r");
	EXPECT_TRUE(Chat.WaitFor("/blueprint PATH [GRAPH]")) << Chat.GetText();
	ASSERT_TRUE(Chat.WaitForPrompt());
	Chat.Type("/bl\t/G\tBP_Do\tOpen\t\r");
	EXPECT_TRUE(Chat.WaitFor("● Open Door")) << Chat.GetText();
	ASSERT_TRUE(Chat.WaitForPrompt());
	Chat.Type("/mode\r");
	EXPECT_TRUE(Chat.WaitFor("vexel_agent_lite")) << Chat.GetText();
	Chat.Type("/undo\r");
	EXPECT_TRUE(Chat.WaitFor("there is nothing to undo")) << Chat.GetText();
	Chat.Type("/dance\r");
	EXPECT_TRUE(Chat.WaitFor("there is no command '/dance'")) << Chat.GetText();
	Chat.Type(CtrlD);
	EXPECT_EQ(Chat.Finish(), 0);
}

TEST_F(TerminalChat, ANewWidthHoldsFromTheNextLineOn)
{
	FScriptedGate Gate;
	const std::string Words = "These words are more than thirty columns wide, all in all.";
	SetChat(FScriptedAnswer().Chunk("First.\n\n").WaitFor(Gate).Chunk(Words));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings(), 100);
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	ASSERT_TRUE(Chat.WaitFor("First.")) << Chat.GetText();
	Chat.Resize(30, 24);
	Gate.Open();
	ASSERT_TRUE(Chat.WaitFor("all.\n")) << Chat.GetText();
	EXPECT_THAT(Chat.GetText(), HasSubstr("These words are more than\nthirty columns wide, all in\nall.\n"));
	Chat.Type(CtrlD);
	Chat.Finish();
}

TEST_F(TerminalChat, NoColorLeavesTheStylesOut)
{
	SetChat(FScriptedAnswer().Chunk("Some **bold** words"));
	FProgramSurroundings Surroundings = MakeTerminalSurroundings();
	Surroundings.Environment.push_back("NO_COLOR=1");
	FTerminalProgram Chat(MakeWords(), Surroundings);
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	ASSERT_TRUE(Chat.WaitFor("bold words")) << Chat.GetText();
	Chat.Type(CtrlD);
	Chat.Finish();
	for (size_t At = Chat.GetRaw().find("\x1b["); At != std::string::npos; At = Chat.GetRaw().find("\x1b[", At + 1))
	{
		EXPECT_NE(Chat.GetRaw()[Chat.GetRaw().find_first_not_of("0123456789;", At + 2)], 'm') << Chat.GetRaw().substr(At, 20);
	}
}

TEST_F(TerminalChat, HostileTextSendsNoCodesOfItsOwn)
{
	SetChat(FScriptedAnswer().Chunk("a\x1b]0;title\x07 b\x1b[31m c\xC2\x9B"
									"2J &#27;[5m `\x1b[7m`\n\n```\n\x1b[8m\n```\n"
									"<ToolCall info={\"tool_name\":\"x\\u001b[2J\",\"reply_id\":\"r\",\"blueprint\":\"\\u001b[9m\"}/>the end"));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	ASSERT_TRUE(Chat.WaitFor("the end")) << Chat.GetText();
	Chat.Type(CtrlD);
	Chat.Finish();
	for (const char* const Code : {"\x1b]", "\x1b[31m", "\x1b[2J", "\x1b[5m", "\x1b[7m", "\x1b[8m", "\x1b[9m", "\xC2\x9B", "\x07"})
	{
		EXPECT_THAT(Chat.GetRaw(), Not(HasSubstr(Code)));
	}
}

TEST_F(TerminalChat, WideAndCombiningCharactersKeepTheLayout)
{
	SetChat(FScriptedAnswer().Chunk("| 名前 | e\u0301te\u0301 |\n|---|---|\n| 扉 | x |\n\n完了 done"));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("扉は？\r");
	ASSERT_TRUE(Chat.WaitFor("完了 done")) << Chat.GetText();
	EXPECT_THAT(Chat.GetText(), HasSubstr("扉   │ x"));
	Chat.Type(CtrlD);
	EXPECT_EQ(Chat.Finish(), 0);
	EXPECT_EQ(ReadStored()[0]["Messages"][0]["message_blocks"][0]["content"], "扉は？");
}

TEST_F(TerminalChat, AServiceThatFailsIsToldAndTheChatGoesOn)
{
	SetChat(FScriptedAnswer(500).Text("broken"));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings());
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Hello?\r");
	EXPECT_TRUE(Chat.WaitFor("HTTP status 500")) << Chat.GetText();
	SetChat(FScriptedAnswer().Chunk("Better."));
	ASSERT_TRUE(Chat.WaitForPrompt());
	Chat.Type("And now?\r");
	EXPECT_TRUE(Chat.WaitFor("Better.")) << Chat.GetText();
	Chat.Type(CtrlD);
	EXPECT_EQ(Chat.Finish(), 0);
}

TEST_F(TerminalChat, APipeGetsPlainTextAndCommandsWorkThere)
{
	SetChat(FScriptedAnswer().Chunk("Some **bold** words"));
	const FProgramResult Result = RunInPipe("Hello?\n/blueprint BP_Door OpenDoor\n/list\n/revert\n/open 9\n/quit\nnever asked\n");
	EXPECT_EQ(Result.Status, 0);
	EXPECT_THAT(Result.Output, testing::StartsWith("Some **bold** words\n"));
	EXPECT_THAT(Result.Output, HasSubstr("● Open Door"));
	EXPECT_THAT(Result.Output, HasSubstr("Hello?  2 messages"));
	EXPECT_THAT(Result.Errors, HasSubstr("which conversation?"));
	EXPECT_THAT(Result.Output + Result.Errors, Not(HasSubstr("\x1b")));
	EXPECT_THAT(Result.Output, Not(HasSubstr("❯")));
}

TEST_F(TerminalChat, APictureOfTheAnswerIsInAFileWhenTheTurnEnds)
{
	const std::string Png = "\x89PNG\r\n\x1a\n and more";
	SetAnswer("/picture", FScriptedAnswer().Header("Content-Type", "image/png").Text(Png));
	SetChat(FScriptedAnswer().Chunk("Look: <Image asset_id=\"p1\" url=\"" + GetUrl() + "/picture\"/>"));
	const FProgramResult Result = RunInPipe("Show me\n");
	const std::string Before = "[picture: ";
	const size_t Begin = Result.Output.find(Before);
	ASSERT_NE(Begin, std::string::npos) << Result.Output << Result.Errors;
	const std::string Path = Result.Output.substr(Begin + Before.size(), Result.Output.find(']', Begin) - Begin - Before.size());
	std::ifstream File(Path, std::ios::binary);
	EXPECT_EQ(std::string(std::istreambuf_iterator<char>(File), {}), Png) << Path;
}

TEST_F(TerminalChat, JsonGivesOneEventALine)
{
	SetChat(FScriptedAnswer().Chunk(
		"Text\u009b <ToolCall info={\"tool_name\":\"read_blueprint\",\"reply_id\":\"r\",\"blueprint\":\"/Game/BP_Door\"}/>"));
	SetAnswer("/api/tool_reply/.*", FScriptedAnswer::Json("{}"));
	const FProgramResult Result = RunInPipe("Hello?\n/mode vexel_agent_lite\n/dance\n", {"--json"});
	const std::vector<nlohmann::json> Events = ParseLines(Result.Output);
	std::vector<std::string> Kinds;
	for (const nlohmann::json& Event : Events)
	{
		ASSERT_TRUE(Event.is_object()) << Result.Output;
		Kinds.push_back(Event["event"]);
	}
	EXPECT_THAT(Kinds, testing::ElementsAre("turn_started", "text", "tool_started", "tool_finished", "turn_finished", "command", "failure"));
	EXPECT_EQ(Events[0]["message"], "Hello?");
	EXPECT_EQ(Events[1]["text"], "Text\u009b ");
	EXPECT_EQ(Events[2]["tool"], "read_blueprint");
	EXPECT_EQ(Events[2]["input"]["blueprint"], "/Game/BP_Door");
	EXPECT_EQ(Events[3]["text"], "Blueprint loaded");
	EXPECT_EQ(Events[4]["state"], "succeeded");
	EXPECT_EQ(Events[5]["command"], "/mode");
	EXPECT_THAT(Events[6]["reason"].get<std::string>(), HasSubstr("/dance"));
	EXPECT_THAT(Result.Output, Not(HasSubstr("\xC2\x9B")));
}

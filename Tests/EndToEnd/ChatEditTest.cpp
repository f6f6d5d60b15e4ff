#include "TerminalChatFixture.h"

#include <gmock/gmock.h>

namespace
{
using testing::AllOf;
using testing::HasSubstr;

const std::string Door = "/Game/BP_Door.BP_Door";

/** A chat in which the service asks for edits. */
class ChatEdit : public FTerminalChatTest
{
protected:
	ChatEdit() { SetAnswer("/api/tool_.*", FScriptedAnswer::Json("{}")); }

	/** A call of a tool on BP_Door, with the rest of its arguments. */
	static std::string MakeCall(const std::string& Tool, const std::string& Id, const std::string& Arguments)
	{
		return "<ToolCall info={\"tool_name\":\"" + Tool + "\",\"reply_id\":\"" + Id + "\",\"blueprint\":\"" + Door + "\"" + Arguments + "}/>";
	}

	static std::string MakeSpawn(const std::string& Id, const std::string& Type, const std::string& Values = "{}")
	{
		return MakeCall("node_spawn", Id, R"(,"graph":"EventGraph","nodes":[{"node_type":")" + Type + R"(","pin_values":)" + Values + "}]");
	}
	static std::string MakeSpawnOfPrint() { return MakeSpawn("print", "call.KismetSystemLibrary.PrintString", R"({"InString":"Creak"})"); }

	static std::string MakeLink(const std::string& Id, const std::string& From, const std::string& FromPin, const std::string& To,
		const std::string& ToPin)
	{
		return MakeCall("node_link", Id,
			R"(,"graph":"EventGraph","links":[{"from_node":")" + From + R"(","from_pin":")" + FromPin + R"(","to_node":")" + To + R"(","to_pin":")" +
				ToPin + "\"}]");
	}

	/** BP_Door is read, so that its nodes have names; then it is edited. */
	static FScriptedAnswer MakeEdits(const std::vector<std::string>& Calls)
	{
		FScriptedAnswer Answer = FScriptedAnswer().Chunk("Here goes." + MakeCall("read_blueprint", "read", ""));
		for (const std::string& Call : Calls)
		{
			Answer.Chunk(Call);
		}
		return Answer;
	}
};
}

TEST_F(ChatEdit, APipeShowsWhatEachEditDid)
{
	SetChat(MakeEdits({
		MakeSpawnOfPrint(),
		MakeLink("begin", "EventBeginPlay_0", "then", "PrintString_2", "execute"),
		MakeSpawn("get", "var.get.OpenAngle"),
		MakeLink("value", "GetOpenAngle_1", "OpenAngle", "PrintString_2", "InString"),
		MakeCall("node_remove", "remove", R"(,"graph":"EventGraph","nodes":["PrintString_2","Nobody_0"])"),
	}));
	const FProgramResult Result = RunInPipe("Print something\n");
	EXPECT_EQ(Result.Status, 0) << Result.Errors;
	EXPECT_EQ(Result.Output,
		"Here goes.\n"
		"[Loading blueprint]\n"
		"[Blueprint loaded]\n"
		"[Spawning nodes...]\n"
		"[Nodes spawned]\n"
		"  ~ BP_Door · EventGraph  +1 node\n"
		"    Never runs: nothing leads here\n"
		"  + └ Print String  In String: \"Creak\"\n"
		"[Linking nodes...]\n"
		"[Nodes linked]\n"
		"  ~ BP_Door · EventGraph  +1 -1 wires\n"
		"    ● Event BeginPlay\n"
		"  - │ ↪ Print String  In String: \"A door waits in the dark\"\n"
		"  + │ ↪ Print String  In String: \"Creak\"\n"
		"    └ Print String  In String: \"Creak\"\n"
		"[Spawning nodes...]\n"
		"[Nodes spawned]\n"
		"  ~ BP_Door · EventGraph  +1 node\n"
		"  + Get Open Angle\n"
		"[Linking nodes...]\n"
		"[Nodes linked]\n"
		"  ~ BP_Door · EventGraph  +1 node  +2 wires\n"
		"    ● Event BeginPlay\n"
		"  ~ └ Print String  In String: \"Creak\" → Open Angle\n"
		"  + To String (Float)  In Double: Open Angle\n"
		"[Removing nodes...]\n"
		"[Nodes removed]\n"
		"  ! Failed to remove node 'Nobody_0': Blueprint manipulation failed: Node 'Nobody_0' not found in the graph 'EventGraph'\n"
		"  ~ BP_Door · EventGraph  -1 node  -2 wires\n"
		"    ● Event BeginPlay\n"
		"  - └ Print String  In String: Open Angle\n");
}

TEST_F(ChatEdit, WhatFollowsFromAnEditOfMembersIsShownToo)
{
	SetChat(MakeEdits({MakeCall("object_edit", "edit", R"(,"requests":[{"target":{"target_type":"blueprint"},"operations":[
		{"operation":"add_variable","scope":"member","name":"OpenCount","value":{"type_id":"int","category":"Door"}},
		{"operation":"edit_variable","scope":"member","name":"OpenAngle","value":{"prop_id":"Angle"}},
		{"operation":"remove_variable","scope":"member","name":"Handle"}]}])")}));
	EXPECT_THAT(RunInPipe("Do it\n").Output,
		HasSubstr("[Object edits applied]\n"
				  "  ! Failed to execute operation on target 'Blueprint': Write Error: Variable 'Handle' with scope 'member' not found. "
				  "Nearest: 'Angle' of scope 'member'\n"
				  "  ~ BP_Door\n"
				  "  ~ variable OpenAngle → Angle\n"
				  "  + variable OpenCount  type: Integer  category: Door\n"
				  "  ~ BP_Door · OpenDoor  function\n"
				  "    1 node goes by the new name\n"));
}

TEST_F(ChatEdit, UndoAndRedoShowWhatTheyDid)
{
	SetChat(MakeEdits({MakeSpawnOfPrint(), MakeCall("graph_add", "add", R"(,"graph":"Creak")")}));
	const FProgramResult Result = RunInPipe("Do it\n/undo\n/undo\n/redo\n/undo\n/undo\n");
	EXPECT_THAT(Result.Output,
		HasSubstr("undone: (Vexel) Add Function Graph\n"
				  "  - BP_Door · Creak  function  -1 node\n"
				  "  - ● Creak\n"
				  "undone: (Vexel) Spawn Node\n"
				  "  ~ BP_Door · EventGraph  -1 node\n"
				  "    Never runs: nothing leads here\n"
				  "  - └ Print String  In String: \"Creak\"\n"
				  "redone: (Vexel) Spawn Node\n"
				  "  ~ BP_Door · EventGraph  +1 node\n"
				  "    Never runs: nothing leads here\n"
				  "  + └ Print String  In String: \"Creak\"\n"
				  "undone: (Vexel) Spawn Node\n"));
	EXPECT_THAT(Result.Errors, HasSubstr("there is nothing to undo"));
}

TEST_F(ChatEdit, AllEditsOfAnAnswerAreUndoneAndRedoneAtOnce)
{
	SetChat(MakeEdits({MakeSpawnOfPrint(), MakeCall("graph_add", "add", R"(,"graph":"Creak")")}));
	const FProgramResult Result = RunInPipe("Do it\n/undo all\n/redo all\n/undo\n/undo all\n/undo all\n/undo most\n");
	const std::string Gone = "  - BP_Door · Creak  function  -1 node\n"
							 "  - ● Creak\n";
	EXPECT_THAT(Result.Output, AllOf(HasSubstr("undone: 2 edits\n"), HasSubstr("redone: 2 edits\n"), HasSubstr("undone: (Vexel) Add Function Graph\n" + Gone), testing::EndsWith("undone: (Vexel) Spawn Node\n"
																																												 "  ~ BP_Door · EventGraph  -1 node\n"
																																												 "    Never runs: nothing leads here\n"
																																												 "  - └ Print String  In String: \"Creak\"\n")));
	EXPECT_THAT(Result.Errors, AllOf(HasSubstr("of the last answer there is nothing to undo"), HasSubstr("how much? Say '/undo'")));
}

TEST_F(ChatEdit, EventsHaveTheChangesForPrograms)
{
	SetChat(MakeEdits({MakeSpawnOfPrint(), MakeLink("begin", "EventBeginPlay_0", "then", "PrintString_2", "execute"),
		MakeLink("wrong", "EventBeginPlay_0", "then", "Nobody_0", "execute")}));
	const std::vector<nlohmann::json> Events = ParseLines(RunInPipe("Do it\n/undo\n/undo\n", {"--json"}).Output);
	std::vector<nlohmann::json> Finished;
	for (const nlohmann::json& Event : Events)
	{
		if (Event["event"] == "tool_finished" || Event["event"] == "command")
		{
			Finished.push_back(Event);
		}
	}
	ASSERT_EQ(Finished.size(), 6u);
	EXPECT_EQ(Finished[0]["changes"], nlohmann::json::array()) << "reading changes nothing";
	const nlohmann::json& Spawned = Finished[1]["changes"][0];
	EXPECT_EQ(Spawned["blueprint"], Door);
	ASSERT_EQ(Spawned["graphs"].size(), 1u);
	const nlohmann::json& Node = Spawned["graphs"][0]["nodes"][0];
	EXPECT_EQ(Spawned["graphs"][0]["name"], "EventGraph");
	EXPECT_EQ(Node["change"], "added");
	EXPECT_EQ(Node["title"], "Print String");
	EXPECT_EQ(Node["class"], "K2Node_CallFunction");
	const nlohmann::json& Wires = Finished[2]["changes"][0]["graphs"][0]["wires"];
	ASSERT_EQ(Wires.size(), 2u);
	EXPECT_EQ(Wires[0]["change"], "added");
	EXPECT_EQ(Wires[0]["from"]["title"], "Event BeginPlay");
	EXPECT_EQ(Wires[0]["from"]["pin"], "then");
	EXPECT_EQ(Wires[0]["to"]["guid"], Node["guid"]);
	EXPECT_EQ(Wires[1]["change"], "removed");
	EXPECT_EQ(Finished[3]["changes"], nlohmann::json::array());
	ASSERT_EQ(Finished[3]["problems"].size(), 1u);
	EXPECT_THAT(Finished[3]["problems"][0].get<std::string>(), HasSubstr("Failed to connect nodes 'EventBeginPlay_0' and 'Nobody_0'"));
	EXPECT_EQ(Finished[4]["command"], "/undo");
	EXPECT_EQ(Finished[4]["result"]["changes"], nlohmann::json::array()) << "where nodes stand is no change";
	EXPECT_EQ(Finished[5]["result"]["changes"][0]["graphs"][0]["wires"].size(), 2u);
}

TEST_F(ChatEdit, ATerminalShowsChangesInColoursAndWithinItsWidth)
{
	SetChat(MakeEdits({MakeSpawn("print", "call.KismetSystemLibrary.PrintString",
						   R"({"InString":"A text that is by far too long for one line of a narrow terminal, so that it is broken"})"),
		MakeCall("node_remove", "remove", R"(,"graph":"EventGraph","nodes":["PrintString_0"])")}));
	FTerminalProgram Chat(MakeWords(), MakeTerminalSurroundings(), 64);
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	Chat.Type("Do it\r");
	ASSERT_TRUE(Chat.WaitForPrompt()) << Chat.GetText();
	EXPECT_THAT(Chat.GetText(), HasSubstr("  ✎ Nodes spawned  BP_Door"));
	EXPECT_THAT(Chat.GetText(),
		HasSubstr("    ~ BP_Door · EventGraph  +1 node\n"
				  "      Never runs: nothing leads here\n"
				  "    + └ Print String  In String: \"A text that is by far too\n"
				  "    +       long for one line of a narrow terminal, so that it\n"
				  "    +       is broken\"\n"));
	EXPECT_THAT(Chat.GetText(), HasSubstr("      ● Event BeginPlay\n    - └ Print String  In String: \"A door waits in the dark\"\n"));
	EXPECT_THAT(Chat.GetRaw(), HasSubstr("\x1b[0;32m+ └ ")) << "green";
	EXPECT_THAT(Chat.GetRaw(), HasSubstr("\x1b[0;31m- └ ")) << "red";
	Chat.Type("\x04");
	EXPECT_EQ(Chat.Finish(), 0);
}

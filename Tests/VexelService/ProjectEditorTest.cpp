#include "Assistant/Edits/ProjectEditor.h"

#include "BlueprintJson.h"
#include "ScriptedEditor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace VexelService
{

namespace
{

using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* DoorPath = "/Game/Doors/BP_Door.BP_Door";

/** An editing tool's answer: the door with the nodes that stand in its graph, and what failed. */
FJson AnswerWith(std::vector<FJson> Nodes, std::vector<std::string> Errors = {})
{
	return {{"blueprint", MakeBlueprint(DoorPath, {MakeGraph("Open", "function", std::move(Nodes))})}, {"errors", Errors}};
}

class ProjectEditor : public testing::Test
{
protected:
	FScriptedEditor Channel;
	FProjectReader Reader{Channel};
	FProjectEditor Editor{Reader, DoorPath};
};

TEST_F(ProjectEditor, SpawnedNodesAreToldApartFromThoseThatFailed)
{
	Channel.SetTool("node_spawn", [](const FJson& Arguments) -> FJson
		{
			EXPECT_EQ(Arguments["nodes"][0]["pin_values"]["InString"], "Hello");
			return AnswerWith({MakeNode("Open_0", "graph.entry", {ExecOut()}), MakeNode("PrintString_0", "call.KismetSystemLibrary.PrintString", {}),
								  MakeNode("Delay_0", "call.KismetSystemLibrary.Delay", {})},
				{"Failed to spawn node of type 'call.Nonsense': Node type is not valid. Nearest: 'call.KismetSystemLibrary.PrintString'"}); });
	const FSpawnOutcome Outcome = Editor.SpawnNodes("Open",
		{{"call.KismetSystemLibrary.PrintString", {{"InString", "Hello"}}}, {"call.Nonsense"}, {"call.KismetSystemLibrary.Delay"}});
	EXPECT_TRUE(Outcome.bDone);
	EXPECT_THAT(Outcome.Nodes, ElementsAre("PrintString_0", "", "Delay_0"));
	EXPECT_THAT(Outcome.Errors, ElementsAre(HasSubstr("Node type is not valid")));
}

TEST_F(ProjectEditor, EachAnswerBringsTheModelUpToDate)
{
	const FBlueprintModel* const Model = Editor.Model();
	ASSERT_TRUE(Model);
	ASSERT_EQ(Editor.FindGraph("open")->Nodes.size(), 2u);
	Channel.SetTool("node_remove", [](const FJson&)
		{ return AnswerWith({MakeNode("Open_0", "graph.entry", {ExecOut()})}); });
	EXPECT_TRUE(Editor.RemoveNodes("Open", {"SetbOpen_0"}).IsComplete());
	EXPECT_EQ(Editor.Model(), Model);
	EXPECT_EQ(Editor.FindGraph("Open")->Nodes.size(), 1u);
	EXPECT_EQ(std::count(Channel.GetCalls().begin(), Channel.GetCalls().end(), std::string("read_blueprint ") + DoorPath), 1);
}

TEST_F(ProjectEditor, AnAnswerWithoutABlueprintHasItReadAgain)
{
	ASSERT_TRUE(Editor.Model());
	Channel.SetTool("graph_add", [](const FJson&) -> FJson
		{ return {{"done", true}}; });
	EXPECT_TRUE(Editor.AddFunction("Close").IsComplete());
	ASSERT_TRUE(Editor.Model());
	EXPECT_EQ(std::count(Channel.GetCalls().begin(), Channel.GetCalls().end(), std::string("read_blueprint ") + DoorPath), 2);
}

TEST_F(ProjectEditor, AFailedCallIsAValueWithTheEditorsWords)
{
	const FEditOutcome Outcome = Editor.EditLinks("Open", {{"Open_0", "then", "SetbOpen_0", "execute", true}});
	EXPECT_FALSE(Outcome.bDone);
	EXPECT_THAT(Outcome.Errors, ElementsAre("no such thing"));
	EXPECT_FALSE(Reader.IsOver());
}

TEST_F(ProjectEditor, VariablesAreAddedAndGivenDefaultsAtTheirTarget)
{
	std::vector<FJson> Requests;
	Channel.SetTool("object_edit", [&](const FJson& Arguments) -> FJson
		{
			Requests.push_back(Arguments["requests"]);
			return AnswerWith({}, {}); });
	EXPECT_TRUE(Editor.AddVariable({.Name = "Health", .Type = "real", .Category = "Life"}).IsComplete());
	EXPECT_TRUE(Editor.SetVariableDefault("Health", "100").IsComplete());
	EXPECT_TRUE(Editor.SetProperty("name", "OnOpened", {.Graph = "EventGraph", .Node = "CustomEvent_0"}).IsComplete());
	const FJson Blueprint = {{"target_type", "blueprint"}};
	const FJson Description = {{"scope_id", "member"}, {"prop_id", "Health"}, {"type_id", "real"}, {"category", "Life"}};
	ASSERT_EQ(Requests.size(), 3u);
	EXPECT_EQ(Requests[0][0]["target"], Blueprint);
	EXPECT_EQ(Requests[0][0]["operations"],
		FJson::array({{{"operation", "add_variable"}, {"scope", "member"}, {"name", "Health"}, {"value", Description}}}));
	EXPECT_EQ(Requests[1][0]["operations"],
		FJson::array({{{"operation", "update"}, {"scope", "member"}, {"prop_path", "Health"}, {"value", "100"}}}));
	EXPECT_EQ(Requests[2][0]["target"], FJson({{"target_type", "node"}, {"graph", "EventGraph"}, {"node", "CustomEvent_0"}}));
}

TEST_F(ProjectEditor, CompilerMessagesComeWithTheirSeverity)
{
	Channel.SetTool("compile", [](const FJson&) -> FJson
		{ return {{"success", false}, {"compiler_messages", {{{"severity", "warning"}, {"message", "slow"}}, {{"severity", "error"}, {"message", "bad"}}}}}; });
	const FCompileOutcome Outcome = Editor.Compile();
	EXPECT_TRUE(Outcome.bDone);
	EXPECT_FALSE(Outcome.bSuccess);
	ASSERT_EQ(Outcome.Messages.size(), 2u);
	EXPECT_TRUE(Outcome.Messages[0].IsWarning());
	EXPECT_TRUE(Outcome.Messages[1].IsError());
}

}

}

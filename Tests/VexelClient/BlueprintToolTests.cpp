#include "BlueprintToolFixture.h"
#include "Editor.h"
#include "Kismet2/BlueprintEditorUtils.h"

#include <gmock/gmock.h>

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

TEST_F(FBlueprintToolTest, NodesAreSpawnedLinkedAndCompiledAndAllOfItIsUndone)
{
	const FString Before = ExportText();
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'eventgraph', 'nodes': ["
					"{'node_type': 'event.Actor.ReceiveBeginPlay'},"
					"{'node_type': 'call.KismetSystemLibrary.PrintString', 'pin_values': {'InString': 'open', 'NoSuchPin': 'x'}},"
					"{'node_type': 'flow.if'}]}"),
		IsEmpty());
	UEdGraphNode* const Print = FindNode(TEXT("PrintString_0"));
	ASSERT_NE(nullptr, Print);
	EXPECT_EQ("open", ToStd(Print->FindPinChecked(TEXT("InString"))->DefaultValue));
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
					"{'from_node': 'EventBeginPlay_0', 'from_pin': 'then', 'to_node': 'branch_0', 'to_pin': 'execute'},"
					"{'from_node': 'Branch_0', 'from_pin': 'Else', 'to_node': 'PrintString_0', 'to_pin': 'EXECUTE'}]}"),
		IsEmpty());
	EXPECT_EQ(FindNode(TEXT("Branch_0")), Print->FindPinChecked(TEXT("execute"))->LinkedTo[0]->GetOwningNode());
	EXPECT_LT(FindNode(TEXT("Branch_0"))->NodePosX, Print->NodePosX) << "laid out from left to right";

	EXPECT_TRUE(Compiles());

	EXPECT_EQ(6, NumUndos()) << "three spawns, two links, one layout";
	UndoAll();
	EXPECT_EQ(ToStd(Before), ToStd(ExportText()));
}

TEST_F(FBlueprintToolTest, WhatSeveralCallsPlacedIsLaidOutAsOneUnlessSomebodyMovesIt)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'event.custom'},"
					"{'node_type': 'flow.if'}, {'node_type': 'call.KismetSystemLibrary.Delay'},"
					"{'node_type': 'call.KismetSystemLibrary.PrintString'}]}"),
		IsEmpty());
	const auto Connect = [this](const std::string& From, const std::string& To)
	{
		EXPECT_THAT(ItemErrorsOf(TEXT("node_link"),
						"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': '" + From + "', 'from_pin': 'then', 'to_node': '" + To +
							"', 'to_pin': 'execute'}]}"),
			IsEmpty());
	};
	Connect("CustomEvent_0", "Delay_0");
	Connect("Delay_0", "PrintString_0");
	// Between two that stand side by side by now.
	Connect("CustomEvent_0", "Branch_0");
	Connect("Branch_0", "Delay_0");
	const UEdGraphNode* const Event = FindNode(TEXT("CustomEvent_0"));
	const UEdGraphNode* const Branch = FindNode(TEXT("Branch_0"));
	UEdGraphNode* const Delay = FindNode(TEXT("Delay_0"));
	const UEdGraphNode* const Print = FindNode(TEXT("PrintString_0"));
	EXPECT_LT(Event->NodePosX, Branch->NodePosX);
	EXPECT_LT(Branch->NodePosX, Delay->NodePosX);
	EXPECT_LT(Delay->NodePosX, Print->NodePosX);
	EXPECT_EQ(Branch->NodePosY, Delay->NodePosY);

	Delay->NodePosX += 1000;
	Delay->NodePosY += 1000;
	const FIntPoint Moved(Delay->NodePosX, Delay->NodePosY);
	Connect("CustomEvent_0", "Branch_0");
	ASSERT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': 'CustomEvent_0', 'from_pin': 'then', 'to_node': "
					"'Branch_0', 'to_pin': 'execute', 'remove': true}]}"),
		IsEmpty());
	EXPECT_EQ(Moved, FIntPoint(Delay->NodePosX, Delay->NodePosY)) << "it is the user's from then on";
}

TEST_F(FBlueprintToolTest, AConversionThatTheEditorPutsInIsLaidOutWithTheRest)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'call.KismetMathLibrary.RandomInteger'},"
					"{'node_type': 'call.KismetSystemLibrary.PrintString'}]}"),
		IsEmpty());
	ASSERT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': 'RandomInteger_0', 'from_pin': 'ReturnValue', 'to_node': "
					"'PrintString_0', 'to_pin': 'InString'}]}"),
		IsEmpty());
	const UEdGraphNode* const Random = FindNode(TEXT("RandomInteger_0"));
	const UEdGraphNode* const Print = FindNode(TEXT("PrintString_0"));
	const UEdGraphNode* const Conversion = Print->FindPinChecked(TEXT("InString"))->LinkedTo[0]->GetOwningNode();
	ASSERT_NE(Random, Conversion);
	EXPECT_LT(Random->NodePosX, Conversion->NodePosX);
	EXPECT_LT(Conversion->NodePosX, Print->NodePosX);
}

TEST_F(FBlueprintToolTest, AnItemThatFailsSaysWhatWouldBeRightAndLeavesNothing)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ["
					"{'node_type': 'call.KismetSystemLibrary.PrintString'}, {'node_type': 'call.KismetMathLibrary.RandomInteger'}]}"),
		IsEmpty());
	const FString Before = ExportText();
	const int32 NumEdits = NumUndos();

	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'call.KismetSystemLibrary.PrintStrin'}]}"),
		ElementsAre(HasSubstr("Failed to spawn node of type 'call.KismetSystemLibrary.PrintStrin': Blueprint manipulation failed: Node "
							  "type is not valid. Nearest: 'call.KismetSystemLibrary.PrintString'")));
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
					"{'from_node': 'PrintString_0', 'from_pin': 'then', 'to_node': 'RandomInteger_0', 'to_pin': 'Max'},"
					"{'from_node': 'PrintString_0', 'from_pin': 'out', 'to_node': 'RandomInteger_0', 'to_pin': 'Max'},"
					"{'from_node': 'PrintString_7', 'from_pin': 'then', 'to_node': 'RandomInteger_0', 'to_pin': 'Max'},"
					"{'from_node': 'PrintString_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'execute'},"
					"{'from_node': 'PrintString_0', 'from_pin': 'then', 'to_node': 'RandomInteger_0', 'to_pin': 'Max', 'remove': true}]}"),
		ElementsAre(HasSubstr("Connection not allowed from 'PrintString_0'.'then' to 'RandomInteger_0'.'Max': "),
			AllOf(HasSubstr("Pin 'out' not found in node 'PrintString_0'"), HasSubstr("'then' (output)")),
			HasSubstr("Node 'PrintString_7' not found in the graph 'EventGraph'"),
			HasSubstr("Connection not allowed from 'PrintString_0'.'then' to 'PrintString_0'.'execute': "),
			HasSubstr("Failed to connect nodes 'PrintString_0' and 'RandomInteger_0': Blueprint manipulation failed: No connection found from "
					  "'PrintString_0'.'then' to 'RandomInteger_0'.'Max'")));
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Gone_0']}"),
		ElementsAre(HasSubstr("Failed to remove node 'Gone_0': Blueprint manipulation failed: Node 'Gone_0' not found")));
	EXPECT_EQ(ToStd(Before), ToStd(ExportText()));
	EXPECT_EQ(NumEdits, NumUndos());
}

TEST_F(FBlueprintToolTest, TheItemsBehindOneThatFailsAreStillApplied)
{
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': ''}, {'node_type': 'flow.if'}]}"),
		ElementsAre(HasSubstr("Node type is not valid")));
	EXPECT_NE(nullptr, FindNode(TEXT("Branch_0"))) << ToStd(ExportText());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Branch_0', 'Branch_0']}"),
		ElementsAre(HasSubstr("Node 'Branch_0' not found in the graph 'EventGraph'")));
	EXPECT_EQ(nullptr, FindNode(TEXT("Branch_0")));
}

TEST_F(FBlueprintToolTest, EveryMistakeInTheInputIsNamedAndChangesNothing)
{
	struct FCase
	{
		const TCHAR* Tool;
		const char* Input;
		const char* Error;
	};
	const FCase Cases[] = {
		{TEXT("node_spawn"), "{'graph': 'EventGraph'}", "Missing `blueprint`"},
		{TEXT("node_spawn"), "{'blueprint': 5, 'graph': 'EventGraph'}", "Missing `blueprint`"},
		{TEXT("node_spawn"), "{'blueprint': 'BP'}", "Missing `graph`"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 7}", "Missing `graph`"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph'}",
			"Missing or empty required parameter 'nodes' (must be an array of node descriptor objects)"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': {'node_type': 'var.self'}}",
			"Missing or empty required parameter 'nodes' (must be an array of node descriptor objects)"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{}]}",
			"Missing or invalid 'node_type' field in node descriptor"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': []}",
			"Missing or empty required parameter 'nodes' (must be an array of node descriptor objects)"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['var.self']}",
			"Invalid item in 'nodes' array: each must be an object"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 1}]}",
			"Missing or invalid 'node_type' field in node descriptor"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.self', 'pin_values': {'A': 1}}]}",
			"Invalid pin value for 'A': must be a string"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.self', 'pin_values': []}]}",
			"`nodes[0].pin_values` must be an object, not an empty array"},
		{TEXT("node_spawn"), "{'blueprint': '/Game/None', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.self'}]}",
			"Blueprint not found: /Game/None"},
		{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'None_7', 'nodes': [{'node_type': 'var.self'}]}", "Graph not found: None_7"},
		{TEXT("node_link"), "{'graph': 'EventGraph'}", "Missing `blueprint`"},
		{TEXT("node_link"), "{'blueprint': 'BP'}", "Missing `graph`"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph'}",
			"Missing or empty required parameter 'links' (must be an array of node descriptor objects)"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': []}",
			"Missing or empty required parameter 'links' (must be an array of node descriptor objects)"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': 'a', 'to_node': 'c', 'to_pin': 'd'}]}",
			"Missing or invalid 'from_pin' field in link descriptor"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': 'a', 'from_pin': 'b', 'to_node': 3}]}",
			"Missing or invalid 'to_node' field in link descriptor"},
		{TEXT("node_link"),
			"{'blueprint': 'BP', 'graph': 'None_7', 'links': [{'from_node': 'a', 'from_pin': 'b', 'to_node': 'c', 'to_pin': 'd'}]}",
			"Graph not found: None_7"},
		{TEXT("node_link"),
			"{'blueprint': '/Game/None', 'graph': 'X', 'links': [{'from_node': 'a', 'from_pin': 'b', 'to_node': 'c', 'to_pin': 'd'}]}",
			"Invalid input: Blueprint not found: /Game/None"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': {}}",
			"Missing or empty required parameter 'links' (must be an array of node descriptor objects)"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [[]]}",
			"Invalid item in 'links' array: each must be an object"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_pin': 'a'}]}",
			"Missing or invalid 'from_node' field in link descriptor"},
		{TEXT("node_link"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [{'from_node': 'a', 'from_pin': 'b', 'to_node': 'c'}]}",
			"Missing or invalid 'to_pin' field in link descriptor"},
		{TEXT("node_remove"), "{}", "Missing `blueprint`"},
		{TEXT("node_remove"), "{'blueprint': 'BP'}", "Missing `graph`"},
		{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': []}",
			"Missing or empty required parameter 'nodes' (must be an array of node ids)"},
		{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': 'Branch_0'}",
			"Missing or empty required parameter 'nodes' (must be an array of node ids)"},
		{TEXT("node_remove"), "{'blueprint': '/Game/None', 'graph': 'X', 'nodes': ['a']}", "Invalid input: Blueprint not found: /Game/None"},
		{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph'}",
			"Missing or empty required parameter 'nodes' (must be an array of node ids)"},
		{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{}]}",
			"Invalid node descriptor in the input array (expected a string)"},
		{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'Gone', 'nodes': ['a']}",
			"Graph reference `Gone` is invalid or does not exist in the blueprint."},
		{TEXT("read_blueprint"), "{}", "Invalid input: Missing `blueprint`"},
		{TEXT("read_blueprint"), "{'blueprint': null}", "Invalid input: Missing `blueprint`"},
		{TEXT("graph_add"), "{'graph': 'F'}", "Invalid input: Missing `blueprint`"},
		{TEXT("graph_add"), "{'blueprint': 'BP'}", "Invalid input: Missing `graph`"},
		{TEXT("graph_add"), "{'blueprint': '/Game/None', 'graph': 'F'}", "Invalid input: Blueprint not found: /Game/None"},
		{TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'UserConstructionScript'}", "Invalid input: Graph already exists: UserConstructionScript"},
		{TEXT("graph_remove"), "{}", "Invalid input: Missing `blueprint`"},
		{TEXT("graph_remove"), "{'blueprint': 'BP'}", "Invalid input: Missing `graph`"},
		{TEXT("graph_remove"), "{'blueprint': '/Game/None', 'graph': 'F'}", "Invalid input: Blueprint not found: /Game/None"},
		{TEXT("read_blueprint"), "{'blueprint': '/Game/None'}", "Blueprint not found: `/Game/None`"},
		{TEXT("compile"), "{}", "Blueprint path not provided in tool input!"},
		{TEXT("compile"), "{'blueprint': '/Game/None'}", "Tool call failed: Blueprint not found: /Game/None"},
		{TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'eventgraph'}", "Graph already exists: eventgraph"},
		{TEXT("graph_add"), "{'blueprint': 'BP', 'graph': ''}", "Failed to create graph ''"},
		{TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'Gone'}", "Graph not found: Gone"},
		{TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'UserConstructionScript'}", "while removing graph from blueprint"},
	};
	const FString Before = ExportText();
	for (const FCase& Case : Cases)
	{
		EXPECT_THAT(ErrorOf(Case.Tool, Case.Input), HasSubstr(Case.Error)) << ToStd(FString(Case.Tool)) << " " << Case.Input;
	}
	EXPECT_EQ(ToStd(Before), ToStd(ExportText()));
	EXPECT_EQ(0, NumUndos());
}

TEST_F(FBlueprintToolTest, OutsideAConversationNothingIsEdited)
{
	Conversation.Reset();
	EXPECT_THAT(ErrorOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['a']}"),
		HasSubstr("Tool call failed: Failed to find the conversation."));
	EXPECT_THAT(ErrorOf(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Foo'}"), HasSubstr("Conversation not found."));
	EXPECT_THAT(ErrorOf(TEXT("compile"), "{'blueprint': 'BP'}"), HasSubstr("Failed to find the conversation."));
}

TEST_F(FBlueprintToolTest, AFunctionIsAddedAndRemovedAndBothAreUndone)
{
	const FAnswer Added = Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Open Door'}");
	ASSERT_FALSE(Added.HasError()) << ToStd(Added.GetError().ToChainString());
	EXPECT_TRUE(Added.GetValue()->HasTypedField<EJson::Object>(TEXT("blueprint")));
	ASSERT_EQ(1, NumUndos());
	const auto HasFunction = [this]
	{
		return Blueprint->FunctionGraphs.ContainsByPredicate([](const UEdGraph* Graph)
			{ return Graph->GetFName() == TEXT("Open Door"); });
	};
	EXPECT_TRUE(HasFunction());
	EXPECT_FALSE(Call(TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'open door'}").HasError());
	EXPECT_FALSE(HasFunction());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_TRUE(HasFunction());
	EXPECT_TRUE(GEditor->UndoTransaction());
	EXPECT_FALSE(HasFunction());
}

TEST_F(FBlueprintToolTest, ACompileThatFailsIsAnAnswerWithItsMessages)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ["
					"{'node_type': 'event.Actor.ReceiveBeginPlay'}, {'node_type': 'call.KismetSystemLibrary.PrintString', "
					"'pin_values': {'Duration': 'not a number'}}]}"),
		IsEmpty());
	ASSERT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
					"{'from_node': 'EventBeginPlay_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'execute'}]}"),
		IsEmpty());
	const FAnswer Compiled = Call(TEXT("compile"), "{'blueprint': 'BP'}");
	ASSERT_FALSE(Compiled.HasError());
	EXPECT_FALSE(Compiled.GetValue()->GetBoolField(TEXT("success")));
	std::vector<std::string> Severities;
	for (const TSharedPtr<FJsonValue>& Message : Compiled.GetValue()->GetArrayField(TEXT("compiler_messages")))
	{
		Severities.push_back(ToStd(Message->AsObject()->GetStringField(TEXT("severity"))));
	}
	EXPECT_THAT(Severities, testing::Contains("error"));
}

TEST_F(FBlueprintToolTest, VariablesAreReadAndWrittenByWhereTheyAre)
{
	FEdGraphPinType Type;
	Type.PinCategory = TEXT("int");
	ASSERT_TRUE(FBlueprintEditorUtils::AddMemberVariable(Blueprint, TEXT("Health"), Type));
	ASSERT_FALSE(Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Heal'}").HasError());
	UEdGraph* const Heal = Blueprint->FunctionGraphs.Last();
	ASSERT_TRUE(FBlueprintEditorUtils::AddLocalVariable(Blueprint, Heal, TEXT("Amount"), Type));

	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'Heal', 'nodes': [{'node_type': 'var.get.Health'}, {'node_type': 'VAR.SET.health'},"
					"{'node_type': 'var.local.get.Amount'}, {'node_type': 'var.set.Amount'}]}"),
		IsEmpty());
	std::vector<std::string> Ids;
	for (const UEdGraphNode* const Node : Heal->Nodes)
	{
		Ids.push_back(ToStd(Mapping.MakeNodeTypeReference(*Node).ToString()));
	}
	EXPECT_THAT(Ids, ElementsAre("graph.entry", "var.get.Health", "var.set.Health", "var.local.get.Amount", "var.local.set.Amount"));
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'var.local.get.Amount'}, {'node_type': 'var.get.'}]}"),
		testing::SizeIs(2));
}
}

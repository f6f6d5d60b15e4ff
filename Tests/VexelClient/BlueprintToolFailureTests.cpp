#include "BlueprintToolFixture.h"
#include "Editor.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "NodeTestTypes.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

// What the editor itself refuses, and what the compiler may say.

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

class FBlueprintToolFailureTest : public FBlueprintToolTest
{
protected:
	UK2Node_SaysEverything& PlaceTalker()
	{
		return Place<UK2Node_SaysEverything>([](UK2Node_SaysEverything& Node)
			{ Node.CustomFunctionName = TEXT("Talk"); });
	}

	/** The call has one item, which fails with the text and leaves nothing behind. */
	void ExpectRefused(const TCHAR* Tool, const std::string& Input, const std::string& Error)
	{
		Blueprint->GetPackage()->SetDirtyFlag(false);
		const std::string Before = ToStd(ExportText());
		const int32 NumEdits = NumUndos();
		EXPECT_THAT(ItemErrorsOf(Tool, Input), ElementsAre(HasSubstr(Error)));
		EXPECT_EQ(Before, ToStd(ExportText()));
		EXPECT_EQ(NumEdits, NumUndos());
		EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
	}
};

TEST_F(FBlueprintToolFailureTest, AnActionThatMakesNoNodeIsAFailureWithoutATrace)
{
	ExpectRefused(TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'convert.asset.LumWatch'}]}",
		"Failed to spawn node of type 'convert.asset.LumWatch': Blueprint manipulation failed: Failed to create node from spawner.");
}

TEST_F(FBlueprintToolFailureTest, ALinkThatTheEditorFailsToMakeIsAFailureWithoutATrace)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ["
					"{'node_type': 'event.custom'}, {'node_type': 'call.KismetSystemLibrary.PrintString'}]}"),
		IsEmpty());
	EventGraph->Schema = UNodeTestSchema::StaticClass();
	ExpectRefused(TEXT("node_link"),
		"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
		"{'from_node': 'CustomEvent_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'execute'}]}",
		"Failed to connect nodes 'CustomEvent_0' and 'PrintString_0': Blueprint manipulation failed: Connection not allowed from "
		"'CustomEvent_0'.'then' to 'PrintString_0'.'execute'");
}

TEST_F(FBlueprintToolFailureTest, AnUnknownNodeIsAnsweredWithThoseThatItMayBe)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ["
					"{'node_type': 'flow.if'}, {'node_type': 'call.KismetSystemLibrary.PrintString'}]}"),
		IsEmpty());
	ExpectRefused(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['PrintSting_0']}",
		"Node 'PrintSting_0' not found in the graph 'EventGraph'. Nearest: 'PrintString_0'");
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Flight_0']}"),
		ElementsAre("Failed to remove node 'Flight_0': Blueprint manipulation failed: Node 'Flight_0' not found in the graph 'EventGraph'"));
}

struct FSeverityCase
{
	int32 Severity;
	const char* Word;
	bool bFails;
};

TEST_F(FBlueprintToolFailureTest, EachSeverityHasItsWordAndErrorsAloneFail)
{
	const FSeverityCase Cases[] = {
		{0, "error", true},
		{1, "error", true},
		{2, "performance_warning", false},
		{3, "warning", false},
		{4, "info", false},
		{5, "unknown", false},
		{-1, "unknown", false},
	};
	UK2Node_SaysEverything& Node = PlaceTalker();
	for (const FSeverityCase& Case : Cases)
	{
		Node.Severities = {Case.Severity};
		const FAnswer Compiled = Call(TEXT("compile"), "{'blueprint': 'BP'}");
		ASSERT_TRUE(Compiled.HasValue());
		EXPECT_EQ(!Case.bFails, Compiled.GetValue()->GetBoolField(TEXT("success"))) << Case.Severity;
		std::vector<std::string> Said;
		for (const TSharedPtr<FJsonValue>& Message : Compiled.GetValue()->GetArrayField(TEXT("compiler_messages")))
		{
			const TSharedPtr<FJsonObject> Object = Message->AsObject();
			if (Object->GetStringField(TEXT("message")) == FString::Printf(TEXT("of %d"), Case.Severity))
			{
				Said.push_back(ToStd(Object->GetStringField(TEXT("severity"))));
			}
		}
		EXPECT_THAT(Said, ElementsAre(Case.Word)) << Case.Severity;
	}
}

TEST_F(FBlueprintToolFailureTest, MessagesKeepTheOrderOfTheCompiler)
{
	PlaceTalker().Severities = {4, 2, 3, 4};
	const FAnswer Compiled = Call(TEXT("compile"), "{'blueprint': 'BP'}");
	ASSERT_TRUE(Compiled.HasValue());
	EXPECT_TRUE(Compiled.GetValue()->GetBoolField(TEXT("success")));
	std::vector<std::string> Said;
	for (const TSharedPtr<FJsonValue>& Message : Compiled.GetValue()->GetArrayField(TEXT("compiler_messages")))
	{
		const FString Text = Message->AsObject()->GetStringField(TEXT("message"));
		if (Text.StartsWith(TEXT("of ")))
		{
			Said.push_back(ToStd(Text));
		}
	}
	EXPECT_THAT(Said, ElementsAre("of 4", "of 2", "of 3", "of 4"));
}

TEST_F(FBlueprintToolFailureTest, ThousandsOfNodesThatAreNotThereAreAnsweredInALargeGraph)
{
	constexpr int32 NumNodes = 3000;
	constexpr int32 NumItems = 2000;
	std::string Spawn = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [";
	std::string Remove = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [";
	for (int32 Node = 0; Node < NumNodes; ++Node)
	{
		Spawn += (Node == 0 ? "" : ",") + std::string("{'node_type': 'flow.if'}");
	}
	for (int32 Item = 0; Item < NumItems; ++Item)
	{
		// Some that nobody was ever called, some that could be somebody's next name, and each one twice that goes the first time.
		Remove += (Item == 0 ? "" : ",") + std::string(Item % 3 == 0 ? "'Nobody" + std::to_string(Item) + "_0'" : "'Branch_" + std::to_string(Item / 2) + "'");
	}
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), Spawn + "]}"), IsEmpty());
	const std::vector<std::string> Errors = ItemErrorsOf(TEXT("node_remove"), Remove + "]}");
	const int32 NumLeft = EventGraph->Nodes.FilterByPredicate([](const UEdGraphNode* Node)
											   { return Node->GetClass()->GetName() == TEXT("K2Node_IfThenElse"); })
							  .Num();
	EXPECT_THAT(Errors, SizeIs(NumItems - (NumNodes - NumLeft)));
	EXPECT_LT(NumLeft, NumNodes - NumItems / 4);
}
}

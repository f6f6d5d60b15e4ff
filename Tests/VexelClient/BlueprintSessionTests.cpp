#include "BlueprintToolFixture.h"
#include "Editor.h"
#include "K2Node_CallFunction.h"
#include "Kismet2/BlueprintEditorUtils.h"
#include "Misc/PackageName.h"
#include "Misc/Paths.h"
#include "UObject/Package.h"

#include <gmock/gmock.h>

// What happens between the calls of one conversation: what is gone, what runs meanwhile, what is too much.

namespace
{
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

using FBlueprintSessionTest = FBlueprintToolTest;

const char* const TwoNodes =
	"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ["
	"{'node_type': 'call.KismetSystemLibrary.PrintString'}, {'node_type': 'flow.if'}]}";
const char* const AnEvent = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'event.custom'}]}";
const char* const ABranch = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'flow.if'}]}";
const char* const Link =
	"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
	"{'from_node': 'Branch_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'execute'}]}";

/** A session on a Blueprint that the engine's own editor saved. */
class FSampleSessionTest : public FBlueprintToolTest, public testing::WithParamInterface<const char*>
{
protected:
	virtual void SetUp() override
	{
		FBlueprintToolTest::SetUp();
		Folder = FPaths::ConvertRelativePathToFull(
			FString(UTF8_TO_TCHAR(VEXEL_SOURCE_DIR)) / TEXT("../shared/samples/packages/AirSim/Blueprints"));
		if (!FPaths::DirectoryExists(Folder))
		{
			GTEST_SKIP() << "the sample packages are not here";
		}
		FPackageName::RegisterMountPoint(TEXT("/SessionSample/"), Folder);
		UBlueprint* Sample = nullptr;
		const FString Path = TEXT("/SessionSample/") + FString(UTF8_TO_TCHAR(GetParam()));
		ASSERT_TRUE(Mapping.ResolveBlueprint(TVexelBlueprintId(Path), Sample)) << Log.ToText();
		Blueprint = Sample;
		EventGraph = FBlueprintEditorUtils::FindEventGraph(Sample);
		GEditor->ResetTransaction(INVTEXT("Test"));
	}

	virtual void TearDown() override
	{
		FPackageName::UnRegisterMountPoint(TEXT("/SessionSample/"), Folder);
		FBlueprintToolTest::TearDown();
	}

	FString Folder;
};

TEST_P(FSampleSessionTest, IsReadEditedCompiledAndUndoneToTheLetter)
{
	ASSERT_FALSE(Call(TEXT("read_blueprint"), "{'blueprint': 'BP'}").HasError());
	// Nodes of old versions of the engine are brought up to date then, as in the editor, which no undo takes back.
	Compiles();
	const std::string Before = ToStd(ExportText());
	const int32 NumNodes = EventGraph->Nodes.Num();
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), AnEvent), IsEmpty());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"), Link), IsEmpty());
	EXPECT_EQ(NumNodes + 3, EventGraph->Nodes.Num());
	const bool bCompiled = Compiles();
	EXPECT_FALSE(Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Added'}").HasError());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Branch_0']}"), IsEmpty());
	EXPECT_EQ(bCompiled, Compiles()) << "what was added is sound, so it makes no difference";
	EXPECT_NE(Before, ToStd(ExportText()));
	UndoAll();
	EXPECT_EQ(Before, ToStd(ExportText()));
}

INSTANTIATE_TEST_SUITE_P(Packages, FSampleSessionTest, testing::Values("BP_PIPCamera", "BP_CameraDirector", "Lights/SpotLightBP"));

TEST_F(FBlueprintSessionTest, IdsOfWhatIsGoneAreRefused)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	ASSERT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Branch_0']}"), IsEmpty());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"), Link), ElementsAre(HasSubstr("Node 'Branch_0' not found in the graph 'EventGraph'")));
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), ABranch), IsEmpty());
	EXPECT_EQ(nullptr, FindNode(TEXT("Branch_0"))) << "a name that was given is not given again";
	EXPECT_NE(nullptr, FindNode(TEXT("Branch_1")));

	ASSERT_FALSE(Call(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'Open'}").HasError());
	ASSERT_FALSE(Call(TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'Open'}").HasError());
	EXPECT_THAT(ErrorOf(TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'Open', 'nodes': [{'node_type': 'flow.if'}]}"),
		HasSubstr("Graph not found: Open"));
	EXPECT_THAT(ErrorOf(TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'Open'}"), HasSubstr("Graph not found: Open"));
}

TEST_F(FBlueprintSessionTest, ANodeThatUndoBringsBackHasItsIdAgain)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	ASSERT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Branch_0']}"), IsEmpty());
	GEditor->UndoTransaction();
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"), Link), IsEmpty());
}

TEST_F(FBlueprintSessionTest, ANodeIsNotLinkedToItself)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'call.KismetMathLibrary.Max'}, {'node_type': 'flow.if'}]}"),
		IsEmpty());
	const int32 NumEdits = NumUndos();
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
					"{'from_node': 'Branch_0', 'from_pin': 'then', 'to_node': 'Branch_0', 'to_pin': 'execute'},"
					"{'from_node': 'Max(Integer)_0', 'from_pin': 'ReturnValue', 'to_node': 'Max(Integer)_0', 'to_pin': 'A'},"
					"{'from_node': 'Branch_0', 'from_pin': 'then', 'to_node': 'Branch_0', 'to_pin': 'then'}]}"),
		SizeIs(3));
	EXPECT_EQ(NumEdits, NumUndos());
}

TEST_F(FBlueprintSessionTest, ARefusedEditLeavesNoTrace)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	ASSERT_TRUE(Compiles());
	Blueprint->GetPackage()->SetDirtyFlag(false);
	const std::string Before = ToStd(ExportText());
	const int32 NumEdits = NumUndos();
	const EBlueprintStatus Status = Blueprint->Status;
	for (const auto& [Tool, Input] : {
			 std::pair{TEXT("node_spawn"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'no.such.thing'}]}"},
			 std::pair{TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Nobody_0']}"},
			 std::pair{TEXT("node_link"),
				 "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
				 "{'from_node': 'Branch_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'InString'},"
				 "{'from_node': 'Branch_0', 'from_pin': 'then', 'to_node': 'PrintString_0', 'to_pin': 'execute', 'remove': true}]}"}})
	{
		EXPECT_THAT(ItemErrorsOf(Tool, Input), testing::Not(IsEmpty()));
	}
	EXPECT_NE("no error", ErrorOf(TEXT("graph_add"), "{'blueprint': 'BP', 'graph': 'EventGraph'}"));
	EXPECT_NE("no error", ErrorOf(TEXT("graph_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph'}"));
	EXPECT_EQ(Before, ToStd(ExportText()));
	EXPECT_EQ(NumEdits, NumUndos());
	EXPECT_FALSE(Blueprint->GetPackage()->IsDirty());
	EXPECT_EQ(Status, Blueprint->Status);
}

TEST_F(FBlueprintSessionTest, ABlueprintThatDoesNotCompileIsEditedAllTheSame)
{
	ASSERT_THAT(ItemErrorsOf(TEXT("node_spawn"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [{'node_type': 'event.Actor.ReceiveBeginPlay'},"
					"{'node_type': 'call.KismetSystemLibrary.Delay', 'pin_values': {'Duration': 'soon'}}]}"),
		IsEmpty());
	ASSERT_THAT(ItemErrorsOf(TEXT("node_link"),
					"{'blueprint': 'BP', 'graph': 'EventGraph', 'links': ["
					"{'from_node': 'EventBeginPlay_0', 'from_pin': 'then', 'to_node': 'Delay_0', 'to_pin': 'execute'}]}"),
		IsEmpty());
	ASSERT_FALSE(Compiles());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Delay_0']}"), IsEmpty());
	EXPECT_TRUE(Compiles());
}

TEST_F(FBlueprintSessionTest, EditsWhileACompileWaitsAreCompiledWithTheRest)
{
	const FPending First = Start(TEXT("compile"), "{'blueprint': 'BP'}");
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), TwoNodes), IsEmpty());
	const FPending Second = Start(TEXT("compile"), "{'blueprint': 'BP'}");
	const FPending Linked = Start(TEXT("node_link"), Link);
	const FPending Removed = Start(TEXT("node_remove"), "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': ['Branch_0']}");
	EXPECT_TRUE(PumpUntil([&]
		{ return First.IsComplete() && Second.IsComplete() && Linked.IsComplete() && Removed.IsComplete(); }));
	for (const FPending* const Pending : {&First, &Second})
	{
		ASSERT_TRUE(Pending->Value().HasValue());
		EXPECT_TRUE(Pending->Value().GetValue()->GetBoolField(TEXT("success")));
	}
	EXPECT_EQ(nullptr, FindNode(TEXT("Branch_0")));
	EXPECT_TRUE(FindNode(TEXT("PrintString_0"))->FindPinChecked(TEXT("execute"))->LinkedTo.IsEmpty());
	EXPECT_TRUE(Compiles());
	UndoAll();
}

TEST_F(FBlueprintSessionTest, ABlueprintThatGoesWhileItsCompileWaitsIsCompiledFirst)
{
	const FPending Compile = Start(TEXT("compile"), "{'blueprint': 'BP'}");
	LetGoOfBlueprint();
	CollectGarbage(RF_NoFlags);
	EXPECT_TRUE(PumpUntil([&Compile]
		{ return Compile.IsComplete(); }));
	EXPECT_TRUE(Compile.Value().HasValue());
}

TEST_F(FBlueprintSessionTest, ThousandsOfItemsAreOneCall)
{
	constexpr int32 NumItems = 2000;
	std::string Spawn = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [";
	std::string Links = "{'blueprint': 'BP', 'graph': 'EventGraph', 'links': [";
	std::string Remove = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [";
	for (int32 Item = 0; Item < NumItems; ++Item)
	{
		const std::string Comma = Item == 0 ? "" : ",";
		Spawn += Comma + "{'node_type': 'call.KismetSystemLibrary.PrintString'}";
		Remove += Comma + "'PrintString_" + std::to_string(Item) + "'";
		if (Item > 0)
		{
			Links += (Item == 1 ? "" : ",") + std::string("{'from_node': 'PrintString_") + std::to_string(Item - 1) +
				"', 'from_pin': 'then', 'to_node': 'PrintString_" + std::to_string(Item) + "', 'to_pin': 'execute'}";
		}
	}
	const int32 NumNodes = EventGraph->Nodes.Num();
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), Spawn + "]}"), IsEmpty());
	EXPECT_EQ(NumNodes + NumItems, EventGraph->Nodes.Num());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_link"), Links + "]}"), IsEmpty());
	EXPECT_EQ(NumItems - 1, EventGraph->Nodes.FilterByPredicate([](const UEdGraphNode* Node)
												 {
								   const UEdGraphPin* const Then = Node->IsA<UK2Node_CallFunction>() ? Node->FindPin(TEXT("then")) : nullptr;
								   return Then && Then->LinkedTo.Num() == 1; })
								.Num());
	EXPECT_THAT(ItemErrorsOf(TEXT("node_remove"), Remove + "]}"), IsEmpty());
	EXPECT_EQ(NumNodes, EventGraph->Nodes.Num());
}

TEST_F(FBlueprintSessionTest, ThousandsOfMistakesAreAnsweredOneByOne)
{
	constexpr int32 NumItems = 2000;
	std::string Spawn = "{'blueprint': 'BP', 'graph': 'EventGraph', 'nodes': [";
	for (int32 Item = 0; Item < NumItems; ++Item)
	{
		Spawn += (Item == 0 ? "" : ",") + std::string("{'node_type': 'call.KismetSystemLibrary.PrintStrin") + std::to_string(Item) + "'}";
	}
	EXPECT_THAT(ItemErrorsOf(TEXT("node_spawn"), Spawn + "]}"), SizeIs(NumItems));
	EXPECT_EQ(0, NumUndos());
}
}

#include "Tools/ToolFixture.h"

#include "Containers/StringConv.h"
#include "Tools/VexelToolManager.h"
#include "VexelErrorKinds.h"

#include <gmock/gmock.h>
#include <set>

namespace
{
using testing::ElementsAre;

class ToolTable : public FToolTest
{
};

/** A tool whose row leaves the texts out. */
class FPlainTool : public FVexelToolUnavailable
{
public:
	FPlainTool()
		: FVexelToolUnavailable(FVexelToolRow{TEXT("plain"), TEXT("VexelAI.Icon.Tool.Read"), nullptr, nullptr})
	{
	}
};

std::string ToUtf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}
}

TEST(ToolTableRows, AreThoseOfTheSharedVocabulary)
{
	std::vector<std::string> Rows;
	for (const TSharedRef<FVexelTool>& Tool : FVexelToolManager::Get().GetTools())
	{
		FString Icon = Tool->GetIcon().ToString();
		EXPECT_TRUE(Icon.RemoveFromStart(TEXT("VexelAI.Icon.Tool.")));
		Rows.push_back(ToUtf8(FString::Printf(TEXT("%s|%s|%s|%s|%s"), *Tool->GetName().ToString(), *Icon, *Tool->GetProgressText(),
			*Tool->GetDoneText(), Tool->ProducesResponse() ? TEXT("editor") : TEXT("service"))));
	}
	EXPECT_THAT(Rows,
		ElementsAre("compile|Compile|Compiling blueprint|Interpreting compilation results...|editor",
			"graph_add|Edit|Creating function graph...|Function graph created|editor",
			"graph_remove|Edit|Removing function graph...|Function graph removed|editor",
			"read_blueprint|Read|Loading blueprint|Blueprint loaded|editor", "node_link|Edit|Linking nodes...|Nodes linked|editor",
			"node_remove|Edit|Removing nodes...|Nodes removed|editor", "node_spawn|Edit|Spawning nodes...|Nodes spawned|editor",
			"object_edit|Edit|Editing blueprint objects...|Object edits applied|editor",
			"search_node|Search|Browsing nodes...|Interpreting nodes...|editor",
			"search_type|Search|Browsing types...|Interpreting types...|editor",
			"edit_blueprint|Object|Editing blueprint|Editing blueprint|service",
			"generate_3d_model|Object|Generating 3D model|Processing 3D model|service",
			"generate_image|Screenshot|Generating image|Processing image|service",
			"get_asset_info|Read|Reading asset information|Interpreting asset information|editor",
			"get_project|Read|Reading project information|Interpreting project information|editor",
			"get_source|Read|Reading source file|Interpreting source file|editor",
			"knowledge_search|Search|Searching knowledge base|Interpreting results|service",
			"get_blueprint_code|Read|Loading blueprint|Blueprint loaded|service",
			"load_blueprint|Read|Loading blueprint|Blueprint loaded|service",
			"place_model_on_scene|Object|Placing a placeholder on the scene|Placeholder placed on the scene|editor",
			"get_scene_screenshot|Screenshot|Taking a screenshot of your viewport|Interpreting the image|editor",
			"search_assets|Search|Searching for assets...|Interpreting asset search results|editor"));
}

TEST(ToolTableRows, ARowWithoutTextsNamesItsTool)
{
	EXPECT_EQ(ToUtf8(FPlainTool().GetProgressText()), "Using plain");
	EXPECT_EQ(ToUtf8(FPlainTool().GetDoneText()), "Analyzing data from plain");
}

TEST_F(ToolTable, NamesAreMatchedWithTheirCase)
{
	EXPECT_EQ(Error("Compile", "{}"), "Tool not found: Tool 'Compile' not found");
	EXPECT_EQ(Error("READ_BLUEPRINT", "{}"), "Tool not found: Tool 'READ_BLUEPRINT' not found");
	EXPECT_EQ(Error("read_blueprint", "{}"), "Invalid input: Missing `blueprint`");
}

TEST_F(ToolTable, ToolsOfTheServiceProduceNoResponseHere)
{
	for (const char* const Tool :
		{"edit_blueprint", "generate_3d_model", "generate_image", "knowledge_search", "get_blueprint_code", "load_blueprint"})
	{
		const TVexelExpected<TSharedRef<FJsonObject>> Result = Call(Tool, R"({"blueprint":"/Game/BP_Door"})");
		ASSERT_TRUE(Result.HasError()) << Tool;
		EXPECT_TRUE(Result.GetError().IsA<FVexelError_ToolNoResponse>()) << Tool;
		EXPECT_EQ(ToUtf8(Result.GetError().GetTitle()), "This tool produces no response");
	}
}

#include "Tools/VexelToolManager.h"

#include "Tools/Blueprint/VexelToolBlueprintCompile.h"
#include "Tools/Blueprint/VexelToolBlueprintGraphAdd.h"
#include "Tools/Blueprint/VexelToolBlueprintGraphRemove.h"
#include "Tools/Blueprint/VexelToolBlueprintLoad.h"
#include "Tools/Blueprint/VexelToolBlueprintNodeLink.h"
#include "Tools/Blueprint/VexelToolBlueprintNodeRemove.h"
#include "Tools/Blueprint/VexelToolBlueprintNodeSpawn.h"

namespace
{
const TCHAR* const IconEdit = TEXT("VexelAI.Icon.Tool.Edit");
const TCHAR* const IconCompile = TEXT("VexelAI.Icon.Tool.Compile");
const TCHAR* const IconRead = TEXT("VexelAI.Icon.Tool.Read");
const TCHAR* const IconSearch = TEXT("VexelAI.Icon.Tool.Search");
const TCHAR* const IconObject = TEXT("VexelAI.Icon.Tool.Object");
const TCHAR* const IconScreenshot = TEXT("VexelAI.Icon.Tool.Screenshot");

template <typename ToolType>
TSharedRef<FVexelTool> Make(const FVexelToolRow& Row)
{
	return MakeShared<ToolType>(Row);
}

struct FToolTableRow
{
	FVexelToolRow Row;
	TSharedRef<FVexelTool> (*Make)(const FVexelToolRow&);
};

/** The vocabulary shared with the service: name, icon, text while running, text when done, what performs it. */
const FToolTableRow ToolTable[] = {
	{{TEXT("compile"), IconCompile, TEXT("Compiling blueprint"), TEXT("Interpreting compilation results...")}, Make<FVexelToolBlueprintCompile>},
	{{TEXT("graph_add"), IconEdit, TEXT("Creating function graph..."), TEXT("Function graph created")}, Make<FVexelToolBlueprintGraphAdd>},
	{{TEXT("graph_remove"), IconEdit, TEXT("Removing function graph..."), TEXT("Function graph removed")}, Make<FVexelToolBlueprintGraphRemove>},
	{{TEXT("read_blueprint"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, Make<FVexelToolBlueprintLoad>},
	{{TEXT("node_link"), IconEdit, TEXT("Linking nodes..."), TEXT("Nodes linked")}, Make<FVexelToolBlueprintNodeLink>},
	{{TEXT("node_remove"), IconEdit, TEXT("Removing nodes..."), TEXT("Nodes removed")}, Make<FVexelToolBlueprintNodeRemove>},
	{{TEXT("node_spawn"), IconEdit, TEXT("Spawning nodes..."), TEXT("Nodes spawned")}, Make<FVexelToolBlueprintNodeSpawn>},
	{{TEXT("object_edit"), IconEdit, TEXT("Editing blueprint objects..."), TEXT("Object edits applied")}, Make<FVexelToolUnavailable>},
	{{TEXT("search_node"), IconSearch, TEXT("Browsing nodes..."), TEXT("Interpreting nodes...")}, Make<FVexelToolUnavailable>},
	{{TEXT("search_type"), IconSearch, TEXT("Browsing types..."), TEXT("Interpreting types...")}, Make<FVexelToolUnavailable>},
	{{TEXT("edit_blueprint"), IconObject, TEXT("Editing blueprint"), TEXT("Editing blueprint")}, Make<FVexelToolNoResponse>},
	{{TEXT("generate_3d_model"), IconObject, TEXT("Generating 3D model"), TEXT("Processing 3D model")}, Make<FVexelToolNoResponse>},
	{{TEXT("generate_image"), IconScreenshot, TEXT("Generating image"), TEXT("Processing image")}, Make<FVexelToolNoResponse>},
	{{TEXT("get_asset_info"), IconRead, TEXT("Reading asset information"), TEXT("Interpreting asset information")},
		Make<FVexelToolUnavailable>},
	{{TEXT("get_project"), IconRead, TEXT("Reading project information"), TEXT("Interpreting project information")},
		Make<FVexelToolUnavailable>},
	{{TEXT("get_source"), IconRead, TEXT("Reading source file"), TEXT("Interpreting source file")}, Make<FVexelToolUnavailable>},
	{{TEXT("knowledge_search"), IconSearch, TEXT("Searching knowledge base"), TEXT("Interpreting results")}, Make<FVexelToolNoResponse>},
	{{TEXT("get_blueprint_code"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, Make<FVexelToolNoResponse>},
	{{TEXT("load_blueprint"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, Make<FVexelToolNoResponse>},
	{{TEXT("place_model_on_scene"), IconObject, TEXT("Placing a placeholder on the scene"), TEXT("Placeholder placed on the scene")},
		Make<FVexelToolUnavailable>},
	{{TEXT("get_scene_screenshot"), IconScreenshot, TEXT("Taking a screenshot of your viewport"), TEXT("Interpreting the image")},
		Make<FVexelToolUnavailable>},
	{{TEXT("search_assets"), IconSearch, TEXT("Searching for assets..."), TEXT("Interpreting asset search results")},
		Make<FVexelToolUnavailable>},
};
}

const FVexelToolManager& FVexelToolManager::Get()
{
	static const FVexelToolManager Manager;
	return Manager;
}

FVexelToolManager::FVexelToolManager()
{
	for (const FToolTableRow& TableRow : ToolTable)
	{
		const TSharedRef<FVexelTool> Tool = TableRow.Make(TableRow.Row);
		Tools.Add(Tool);
		ToolsByName.Add(FString(TableRow.Row.Name), Tool);
	}
}

TVexelExpected<TSharedRef<FVexelTool>> FVexelToolManager::FindTool(const FName& Name) const
{
	const FString Text = Name.ToString();
	if (const TSharedRef<FVexelTool>* const Tool = ToolsByName.Find(Text))
	{
		return *Tool;
	}
	return VEXEL_ERROR(FVexelError_ToolNotFound, "Tool '%s' not found", *Text);
}

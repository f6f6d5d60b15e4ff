#include "Tools/VexelToolManager.h"

namespace
{
const TCHAR* const IconEdit = TEXT("VexelAI.Icon.Tool.Edit");
const TCHAR* const IconCompile = TEXT("VexelAI.Icon.Tool.Compile");
const TCHAR* const IconRead = TEXT("VexelAI.Icon.Tool.Read");
const TCHAR* const IconSearch = TEXT("VexelAI.Icon.Tool.Search");
const TCHAR* const IconObject = TEXT("VexelAI.Icon.Tool.Object");
const TCHAR* const IconScreenshot = TEXT("VexelAI.Icon.Tool.Screenshot");

struct FToolTableRow
{
	FVexelToolRow Row;
	TSharedRef<FVexelTool> (*Make)(const FVexelToolRow&);
};
}

/**
 * The vocabulary shared with the service: name, icon, text while running, text when done, and the class that performs the tool. A row
 * declares its class by naming it, so a tool needs no header; the table stands outside the anonymous namespace for that.
 */
static const FToolTableRow ToolTable[] = {
	{{TEXT("compile"), IconCompile, TEXT("Compiling blueprint"), TEXT("Interpreting compilation results...")}, MakeVexelTool<class FVexelToolBlueprintCompile>},
	{{TEXT("graph_add"), IconEdit, TEXT("Creating function graph..."), TEXT("Function graph created")}, MakeVexelTool<class FVexelToolBlueprintGraphAdd>},
	{{TEXT("graph_remove"), IconEdit, TEXT("Removing function graph..."), TEXT("Function graph removed")}, MakeVexelTool<class FVexelToolBlueprintGraphRemove>},
	{{TEXT("read_blueprint"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, MakeVexelTool<class FVexelToolBlueprintLoad>},
	{{TEXT("node_link"), IconEdit, TEXT("Linking nodes..."), TEXT("Nodes linked")}, MakeVexelTool<class FVexelToolBlueprintNodeLink>},
	{{TEXT("node_remove"), IconEdit, TEXT("Removing nodes..."), TEXT("Nodes removed")}, MakeVexelTool<class FVexelToolBlueprintNodeRemove>},
	{{TEXT("node_spawn"), IconEdit, TEXT("Spawning nodes..."), TEXT("Nodes spawned")}, MakeVexelTool<class FVexelToolBlueprintNodeSpawn>},
	{{TEXT("object_edit"), IconEdit, TEXT("Editing blueprint objects..."), TEXT("Object edits applied")}, MakeVexelTool<class FVexelToolBlueprintObjectEdit>},
	{{TEXT("search_node"), IconSearch, TEXT("Browsing nodes..."), TEXT("Interpreting nodes...")}, MakeVexelTool<class FVexelToolUnavailable>},
	{{TEXT("search_type"), IconSearch, TEXT("Browsing types..."), TEXT("Interpreting types...")}, MakeVexelTool<class FVexelToolUnavailable>},
	{{TEXT("edit_blueprint"), IconObject, TEXT("Editing blueprint"), TEXT("Editing blueprint")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("generate_3d_model"), IconObject, TEXT("Generating 3D model"), TEXT("Processing 3D model")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("generate_image"), IconScreenshot, TEXT("Generating image"), TEXT("Processing image")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("get_asset_info"), IconRead, TEXT("Reading asset information"), TEXT("Interpreting asset information")},
		MakeVexelTool<class FVexelToolGetAssetInfo>},
	{{TEXT("get_project"), IconRead, TEXT("Reading project information"), TEXT("Interpreting project information")},
		MakeVexelTool<class FVexelToolGetProject>},
	{{TEXT("get_source"), IconRead, TEXT("Reading source file"), TEXT("Interpreting source file")}, MakeVexelTool<class FVexelToolGetSource>},
	{{TEXT("knowledge_search"), IconSearch, TEXT("Searching knowledge base"), TEXT("Interpreting results")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("get_blueprint_code"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("load_blueprint"), IconRead, TEXT("Loading blueprint"), TEXT("Blueprint loaded")}, MakeVexelTool<class FVexelToolNoResponse>},
	{{TEXT("place_model_on_scene"), IconObject, TEXT("Placing a placeholder on the scene"), TEXT("Placeholder placed on the scene")},
		MakeVexelTool<class FVexelToolUnavailable>},
	{{TEXT("get_scene_screenshot"), IconScreenshot, TEXT("Taking a screenshot of your viewport"), TEXT("Interpreting the image")},
		MakeVexelTool<class FVexelToolGetSceneScreenshot>},
	{{TEXT("search_assets"), IconSearch, TEXT("Searching for assets..."), TEXT("Interpreting asset search results")},
		MakeVexelTool<class FVexelToolSearchAssets>},
};

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

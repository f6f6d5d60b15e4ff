#include "Blueprint/VexelBlueprintMapping.h"
#include "EdGraph/EdGraph.h"
#include "EdGraph/EdGraphNode.h"
#include "Engine/Blueprint.h"
#include "Kismet2/KismetEditorUtilities.h"
#include "Misc/Base64.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"
#include "VexelScreenshotTaker.h"
#include "VexelTry.h"

namespace
{
struct FGetSceneScreenshotInput
{
	FString Mode;
	TOptional<FString> Blueprint;
	TOptional<FString> Graph;
	TOptional<FString> Node;

	static const TVexelToolSchema<FGetSceneScreenshotInput>& GetSchema()
	{
		static const TVexelToolSchema<FGetSceneScreenshotInput> Schema = TVexelToolSchema<FGetSceneScreenshotInput>()
																			 .Required(TEXT("mode"), &FGetSceneScreenshotInput::Mode)
																			 .Optional(TEXT("blueprint"), &FGetSceneScreenshotInput::Blueprint)
																			 .Optional(TEXT("graph"), &FGetSceneScreenshotInput::Graph)
																			 .Optional(TEXT("node"), &FGetSceneScreenshotInput::Node);
		return Schema;
	}
};

struct FModeRow
{
	const TCHAR* Name;
	EVexelScreenshotMode Mode;
};

constexpr FModeRow ModeRows[] = {
	{TEXT("editor"), EVexelScreenshotMode::Editor},
	{TEXT("viewport"), EVexelScreenshotMode::Viewport},
};

TVexelExpected<EVexelScreenshotMode> ReadMode(const FString& Name)
{
	for (const FModeRow& Row : ModeRows)
	{
		if (Name.Equals(Row.Name, ESearchCase::CaseSensitive))
		{
			return Row.Mode;
		}
	}
	return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid mode '%s'; must be 'editor' or 'viewport'", *Name);
}

/** A node of the graph, or of any graph when that is null. */
TVexelExpected<const UObject*> FindNode(FVexelBlueprintMapping& Mapping, const UBlueprint& Blueprint, UEdGraph* Graph, const FString& Id)
{
	TArray<UEdGraph*> Graphs;
	if (Graph)
	{
		Graphs.Add(Graph);
	}
	else
	{
		Blueprint.GetAllGraphs(Graphs);
	}
	for (const UEdGraph* const Each : Graphs)
	{
		UEdGraphNode* Node = nullptr;
		if (Mapping.ResolveNodeInGraph(TVexelNodeId(Id), *Each, Node))
		{
			return Node;
		}
	}
	return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Node not found: %s", *Id);
}

/** What the input names in a Blueprint: a node, a graph or the Blueprint itself. */
TVexelExpected<const UObject*> FindInBlueprint(FVexelBlueprintMapping& Mapping, const FGetSceneScreenshotInput& Input)
{
	UBlueprint* Blueprint = nullptr;
	if (!Mapping.ResolveBlueprint(TVexelBlueprintId(*Input.Blueprint), Blueprint))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Blueprint not found: %s", **Input.Blueprint);
	}
	UEdGraph* Graph = nullptr;
	if (Input.Graph && !Mapping.ResolveGraphInBlueprint(TVexelGraphId(*Input.Graph), *Blueprint, Graph))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Graph not found: %s", **Input.Graph);
	}
	if (Input.Node)
	{
		return FindNode(Mapping, *Blueprint, Graph, *Input.Node);
	}
	return Graph ? static_cast<const UObject*>(Graph) : Blueprint;
}

/** What is to be shown before the picture is taken; null for what is shown already. */
TVexelExpected<const UObject*> FindWanted(FVexelBlueprintMapping& Mapping, const FGetSceneScreenshotInput& Input, EVexelScreenshotMode Mode)
{
	if (!Input.Blueprint && (Input.Graph || Input.Node))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`%s` needs a `blueprint`", Input.Graph ? TEXT("graph") : TEXT("node"));
	}
	if (Input.Blueprint && Mode == EVexelScreenshotMode::Viewport)
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`blueprint` goes with the mode 'editor'; the viewport shows the level");
	}
	return Input.Blueprint ? FindInBlueprint(Mapping, Input) : TVexelExpected<const UObject*>(nullptr);
}

TSharedRef<FJsonObject> Describe(const FString& Mode, const FVexelScreenshot& Screenshot)
{
	const TSharedRef<FJsonObject> Answer = MakeShared<FJsonObject>();
	Answer->SetStringField(TEXT("mode"), Mode);
	Answer->SetStringField(TEXT("title"), Screenshot.Title);
	Answer->SetNumberField(TEXT("width"), Screenshot.Width);
	Answer->SetNumberField(TEXT("height"), Screenshot.Height);
	Answer->SetStringField(TEXT("format"), TEXT("png"));
	Answer->SetStringField(TEXT("image"), FBase64::Encode(Screenshot.Png));
	return Answer;
}
}

/** "get_scene_screenshot": a picture of the editor's window, or of the level. */
class FVexelToolGetSceneScreenshot : public TVexelTool<FGetSceneScreenshotInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FGetSceneScreenshotInput& Input) const override
	{
		VEXEL_TRY(const EVexelScreenshotMode Mode, ReadMode(Input.Mode));
		VEXEL_TRY(const UObject* const Wanted, FindWanted(*Context.GetMapping(), Input, Mode));
		if (Wanted)
		{
			FKismetEditorUtilities::BringKismetToFocusAttentionOnObject(Wanted);
		}
		return Try(FVexelScreenshotTaker::Take(Mode))
			.Then([Name = Input.Mode](const FVexelScreenshot& Screenshot)
				{ return Describe(Name, Screenshot); })
			.Catch<FVexelError>([](const FVexelError& Error) -> TVexelExpected<TSharedRef<FJsonObject>>
				{ return MakeToolError(FVexelError(Error), TEXT("while taking a screenshot")); });
	}
};

VEXEL_DEFINE_TOOL(FVexelToolGetSceneScreenshot)

#include "Blueprint/VexelBlueprintMapping.h"
#include "Data/VexelChatConversation.h"
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

/** What the input names in a Blueprint: its node, its graph or the Blueprint itself. Null when it names nothing. */
TVexelExpected<const UObject*> FindWanted(FVexelBlueprintMapping& Mapping, const FGetSceneScreenshotInput& Input, EVexelScreenshotMode Mode)
{
	if (!Input.Blueprint)
	{
		if (Input.Graph || Input.Node)
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`%s` needs a `blueprint`", Input.Graph ? TEXT("graph") : TEXT("node"));
		}
		return nullptr;
	}
	if (Mode == EVexelScreenshotMode::Viewport)
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "`blueprint` goes with the mode 'editor'; the viewport shows the level");
	}
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
	if (!Input.Node)
	{
		return Graph ? static_cast<const UObject*>(Graph) : Blueprint;
	}
	TArray<UEdGraph*> Graphs = {Graph};
	if (!Graph)
	{
		Graphs.Reset();
		Blueprint->GetAllGraphs(Graphs);
	}
	for (const UEdGraph* const Each : Graphs)
	{
		UEdGraphNode* Node = nullptr;
		if (Mapping.ResolveNodeInGraph(TVexelNodeId(*Input.Node), *Each, Node))
		{
			return Node;
		}
	}
	return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Node not found: %s", **Input.Node);
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
		const TSharedRef<FVexelBlueprintMapping> Mapping =
			Context.Conversation ? Context.Conversation->GetMapping() : MakeShared<FVexelBlueprintMapping>();
		VEXEL_TRY(const UObject* const Wanted, FindWanted(*Mapping, Input, Mode));
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

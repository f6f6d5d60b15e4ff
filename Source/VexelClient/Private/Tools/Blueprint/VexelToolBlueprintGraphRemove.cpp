#include "Lum/LumHelper.h"
#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

/** "graph_remove": removes a function from a Blueprint. */
class FVexelToolBlueprintGraphRemove : public FVexelBlueprintGraphTool
{
public:
	using FVexelBlueprintGraphTool::FVexelBlueprintGraphTool;

protected:
	virtual TVexelExpected<void> EditGraph(const FVexelBlueprintRequestHelper& Target, const FString& GraphId) const override
	{
		UEdGraph* const Graph = Target.FindGraph(GraphId);
		if (!Graph)
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Graph not found: %s", *GraphId);
		}
		TVexelExpected<void> Removed = FLumHelper::RemoveGraphFromBlueprint(*Graph);
		if (Removed.HasError())
		{
			return MakeToolError(MoveTemp(Removed).GetError(), TEXT("while removing graph from blueprint"));
		}
		return {};
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintGraphRemove)

#include "EdGraph/EdGraphSchema.h"
#include "Lum/LumHelper.h"
#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

/** "graph_add": adds a function to a Blueprint. */
class FVexelToolBlueprintGraphAdd : public FVexelBlueprintGraphTool
{
public:
	using FVexelBlueprintGraphTool::FVexelBlueprintGraphTool;

protected:
	virtual TVexelExpected<void> EditGraph(const FVexelBlueprintRequestHelper& Target, const FString& GraphId) const override
	{
		if (Target.FindGraph(GraphId))
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Graph already exists: %s", *GraphId);
		}
		TVexelExpected<UEdGraph*> Added = FLumHelper::AddGraphToBlueprint(Target.GetBlueprint(), GraphId, GT_Function);
		if (Added.HasError())
		{
			return MakeToolError(MoveTemp(Added).GetError(), TEXT("while adding graph to blueprint"));
		}
		return {};
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintGraphAdd)

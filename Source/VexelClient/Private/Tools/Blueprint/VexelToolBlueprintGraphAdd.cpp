#include "Tools/Blueprint/VexelToolBlueprintGraphAdd.h"

#include "EdGraph/EdGraphSchema.h"
#include "Lum/LumHelper.h"
#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

namespace
{
TVexelExpected<TSharedRef<FJsonObject>> AddGraph(const FVexelToolContext& Context, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FParsedAddRemoveGraphInput Parsed, FParsedAddRemoveGraphInput::Parse(Input));
	return Parsed.Run(Context, [&Parsed](const FVexelBlueprintToolTarget& Target) -> TVexelExpected<void>
		{
			if (Target.FindGraph(Parsed.Graph))
			{
				return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Graph already exists: %s", *Parsed.Graph);
			}
			const auto Added = FLumHelper::AddGraphToBlueprint(Target.GetBlueprint(), Parsed.Graph, GT_Function);
			if (Added.HasError())
			{
				return VEXEL_ERROR_CAUSED(FVexelError_ToolCallFailed, Added.GetError(), "while adding graph to blueprint");
			}
			return {}; });
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintGraphAdd::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return AddGraph(Context, Input);
}

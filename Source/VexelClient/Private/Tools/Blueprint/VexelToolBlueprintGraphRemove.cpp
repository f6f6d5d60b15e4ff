#include "Tools/Blueprint/VexelToolBlueprintGraphRemove.h"

#include "Lum/LumHelper.h"
#include "Tools/Blueprint/VexelBlueprintGraphTool.h"

namespace
{
TVexelExpected<TSharedRef<FJsonObject>> RemoveGraph(const FVexelToolContext& Context, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FParsedAddRemoveGraphInput Parsed, FParsedAddRemoveGraphInput::Parse(Input));
	return Parsed.Run(Context, [&Parsed](const FVexelBlueprintToolTarget& Target) -> TVexelExpected<void>
		{
			UEdGraph* const Graph = Target.FindGraph(Parsed.Graph);
			if (!Graph)
			{
				return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Graph not found: %s", *Parsed.Graph);
			}
			const TVexelExpected<void> Removed = FLumHelper::RemoveGraphFromBlueprint(*Graph);
			if (Removed.HasError())
			{
				return VEXEL_ERROR_CAUSED(FVexelError_ToolCallFailed, Removed.GetError(), "while removing graph from blueprint");
			}
			return {}; });
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintGraphRemove::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return RemoveGraph(Context, Input);
}

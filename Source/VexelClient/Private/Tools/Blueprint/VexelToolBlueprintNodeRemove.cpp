#include "Tools/Blueprint/VexelToolBlueprintNodeRemove.h"

#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"

namespace
{
struct FParsedRemoveInput
{
	FVexelNodeToolInput Target;
	TArray<TVexelNodeId> Nodes;
};

TVexelExpected<FParsedRemoveInput> Parse(const FVexelToolInput& Input)
{
	VEXEL_TRY(const FVexelNodeToolInput Target, FVexelNodeToolInput::Parse(Input));
	const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
	if (!Input.GetValues()->TryGetArrayField(TEXT("nodes"), Items) || Items->IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Missing or empty required parameter 'nodes' (must be an array of node ids)");
	}
	FParsedRemoveInput Parsed{Target, {}};
	for (const TSharedPtr<FJsonValue>& Item : *Items)
	{
		if (!Item || Item->Type != EJson::String)
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid node descriptor in the input array (expected a string)");
		}
		Parsed.Nodes.Emplace(Item->AsString());
	}
	return Parsed;
}

TVexelExpected<TSharedRef<FJsonObject>> Remove(const FVexelToolContext& Context, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FParsedRemoveInput Parsed, Parse(Input));
	return Parsed.Target.Run(Context, TEXT("Graph reference `%s` is invalid or does not exist in the blueprint."),
		[&Parsed](const FVexelBlueprintManipulator& Manipulator, FVexelNodeToolInput::FErrors& OutErrors)
		{
			for (const TVexelNodeId& Node : Parsed.Nodes)
			{
				const TVexelExpected<TVexelNodeId> Removed = Manipulator.RemoveNode(Parsed.Target.Graph, Node);
				if (Removed.HasError())
				{
					OutErrors.Add(FString::Printf(TEXT("Failed to remove node '%s': %s"), *Node, *Removed.GetError().ToChainString()));
				}
			}
		});
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintNodeRemove::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return Remove(Context, Input);
}

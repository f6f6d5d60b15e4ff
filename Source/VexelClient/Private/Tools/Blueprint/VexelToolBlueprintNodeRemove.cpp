#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

namespace
{
struct FParsedRemoveInput
{
	FString Blueprint;
	FString Graph;
	TArray<FString> Nodes;

	static const TVexelToolSchema<FParsedRemoveInput>& GetSchema()
	{
		static const TVexelToolSchema<FParsedRemoveInput> Schema =
			TVexelToolSchema<FParsedRemoveInput>()
				.Required(TEXT("blueprint"), &FParsedRemoveInput::Blueprint, {.Complaint = TEXT("Missing `blueprint`")})
				.Required(TEXT("graph"), &FParsedRemoveInput::Graph, {.Complaint = TEXT("Missing `graph`")})
				.Required(TEXT("nodes"), &FParsedRemoveInput::Nodes,
					{.bNotEmpty = true,
						.Complaint = TEXT("Missing or empty required parameter 'nodes' (must be an array of node ids)"),
						.ElementComplaint = TEXT("Invalid node descriptor in the input array (expected a string)")});
		return Schema;
	}
};

void RemoveNodes(
	const FParsedRemoveInput& Input, const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
{
	for (const FString& Node : Input.Nodes)
	{
		const TVexelExpected<TVexelNodeId> Removed = Manipulator.RemoveNode(TVexelGraphId(Input.Graph), TVexelNodeId(Node));
		if (Removed.HasError())
		{
			OutErrors.Add(FString::Printf(TEXT("Failed to remove node '%s': %s"), *Node, *Removed.GetError().ToChainString()));
		}
	}
}
}

/** "node_remove": removes nodes from a graph. */
class FVexelToolBlueprintNodeRemove : public TVexelTool<FParsedRemoveInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FParsedRemoveInput& Input) const override
	{
		return VexelBlueprintNodeTool::Run(Context, Input.Blueprint, Input.Graph,
			TEXT("Graph reference `%s` is invalid or does not exist in the blueprint."),
			[&Input](const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
			{ RemoveNodes(Input, Manipulator, OutErrors); });
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintNodeRemove)

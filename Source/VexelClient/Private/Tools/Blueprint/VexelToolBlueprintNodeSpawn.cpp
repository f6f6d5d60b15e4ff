#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

namespace
{
struct FNodeToSpawn
{
	FString Type;
	TSharedPtr<FJsonObject> PinValues;

	static const TVexelToolSchema<FNodeToSpawn>& GetSchema()
	{
		static const TVexelToolSchema<FNodeToSpawn> Schema =
			TVexelToolSchema<FNodeToSpawn>()
				.Required(TEXT("node_type"), &FNodeToSpawn::Type,
					{.Complaint = TEXT("Missing or invalid 'node_type' field in node descriptor")})
				.Optional(TEXT("pin_values"), &FNodeToSpawn::PinValues);
		return Schema;
	}
};

struct FParsedSpawnInput
{
	FString Blueprint;
	FString Graph;
	TArray<FNodeToSpawn> Nodes;

	static const TVexelToolSchema<FParsedSpawnInput>& GetSchema()
	{
		static const TVexelToolSchema<FParsedSpawnInput> Schema =
			TVexelToolSchema<FParsedSpawnInput>()
				.Required(TEXT("blueprint"), &FParsedSpawnInput::Blueprint, {.Complaint = TEXT("Missing `blueprint`")})
				.Required(TEXT("graph"), &FParsedSpawnInput::Graph, {.Complaint = TEXT("Missing `graph`")})
				.Required(TEXT("nodes"), &FParsedSpawnInput::Nodes,
					{.bNotEmpty = true,
						.Complaint = TEXT("Missing or empty required parameter 'nodes' (must be an array of node descriptor objects)"),
						.ElementComplaint = TEXT("Invalid item in 'nodes' array: each must be an object")});
		return Schema;
	}
};

/** The values by pin, in the order of the input. */
using FPinValues = TArray<TTuple<FName, FString>>;

TVexelExpected<FPinValues> ReadPinValues(const FNodeToSpawn& Node)
{
	FPinValues PinValues;
	if (!Node.PinValues)
	{
		return PinValues;
	}
	for (const auto& [Name, Value] : Node.PinValues->Values)
	{
		if (!Value || Value->Type != EJson::String)
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid pin value for '%s': must be a string", *Name);
		}
		// A longer text is no engine name, so no pin has it.
		if (Name.Len() < NAME_SIZE)
		{
			PinValues.Emplace(FName(*Name), Value->AsString());
		}
	}
	return PinValues;
}

TVexelExpected<TSharedRef<FJsonObject>> Spawn(const FVexelToolContext& Context, const FParsedSpawnInput& Input)
{
	TArray<FPinValues> PinValues;
	for (const FNodeToSpawn& Node : Input.Nodes)
	{
		VEXEL_TRY(FPinValues Values, ReadPinValues(Node));
		PinValues.Add(MoveTemp(Values));
	}
	return VexelBlueprintNodeTool::Run(Context, Input.Blueprint, Input.Graph, TEXT("Graph not found: %s"),
		[&](const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
		{
			for (int32 Index = 0; Index < Input.Nodes.Num(); ++Index)
			{
				const TVexelNodeTypeId Type(Input.Nodes[Index].Type);
				const TVexelExpected<TVexelNodeId> Spawned = Manipulator.SpawnNode(TVexelGraphId(Input.Graph), Type, PinValues[Index]);
				if (Spawned.HasError())
				{
					OutErrors.Add(FString::Printf(TEXT("Failed to spawn node of type '%s': %s"), *Type, *Spawned.GetError().ToChainString()));
				}
			}
		});
}
}

/** "node_spawn": places nodes in a graph, each with values for its pins. */
class FVexelToolBlueprintNodeSpawn : public TVexelTool<FParsedSpawnInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FParsedSpawnInput& Input) const override
	{
		return Spawn(Context, Input);
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintNodeSpawn)

#include "Tools/Blueprint/VexelToolBlueprintNodeSpawn.h"

#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"

namespace
{
struct FNodeToSpawn
{
	TVexelNodeTypeId Type;
	/** In the order of the input. */
	TArray<TTuple<FName, FString>> PinValues;
};

struct FParsedSpawnInput
{
	FVexelNodeToolInput Target;
	TArray<FNodeToSpawn> Nodes;
};

TVexelExpected<void> ParsePinValues(const FJsonObject& Values, FNodeToSpawn& OutNode)
{
	for (const auto& [Name, Value] : Values.Values)
	{
		FString Text;
		if (!Value || Value->Type != EJson::String || !Value->TryGetString(Text))
		{
			return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid pin value for '%s': must be a string", *Name);
		}
		// A longer text is no engine name, so no pin has it.
		if (Name.Len() < NAME_SIZE)
		{
			OutNode.PinValues.Emplace(FName(*Name), MoveTemp(Text));
		}
	}
	return {};
}

TVexelExpected<FNodeToSpawn> ParseNode(const TSharedPtr<FJsonValue>& Item)
{
	const TSharedPtr<FJsonObject>* Descriptor = nullptr;
	if (!Item || !Item->TryGetObject(Descriptor))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid item in 'nodes' array: each must be an object");
	}
	FString Type;
	if (!(*Descriptor)->HasTypedField<EJson::String>(TEXT("node_type")) || !(*Descriptor)->TryGetStringField(TEXT("node_type"), Type))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Missing or invalid 'node_type' field in node descriptor");
	}
	FNodeToSpawn Node{TVexelNodeTypeId(MoveTemp(Type)), {}};
	const TSharedPtr<FJsonObject>* PinValues = nullptr;
	if ((*Descriptor)->TryGetObjectField(TEXT("pin_values"), PinValues))
	{
		VEXEL_TRY_VOID(ParsePinValues(**PinValues, Node));
	}
	else if ((*Descriptor)->HasField(TEXT("pin_values")) && !(*Descriptor)->HasTypedField<EJson::Null>(TEXT("pin_values")))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid 'pin_values' field in node descriptor: must be an object");
	}
	return Node;
}

TVexelExpected<FParsedSpawnInput> Parse(const FVexelToolInput& Input)
{
	VEXEL_TRY(const FVexelNodeToolInput Target, FVexelNodeToolInput::Parse(Input));
	const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
	if (!Input.GetValues()->TryGetArrayField(TEXT("nodes"), Items) || Items->IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput,
			"Missing or empty required parameter 'nodes' (must be an array of node descriptor objects)");
	}
	FParsedSpawnInput Parsed{Target, {}};
	for (const TSharedPtr<FJsonValue>& Item : *Items)
	{
		VEXEL_TRY(FNodeToSpawn Node, ParseNode(Item));
		Parsed.Nodes.Add(MoveTemp(Node));
	}
	return Parsed;
}

TVexelExpected<TSharedRef<FJsonObject>> Spawn(const FVexelToolContext& Context, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FParsedSpawnInput Parsed, Parse(Input));
	return Parsed.Target.Run(Context, TEXT("Graph not found: %s"),
		[&Parsed](const FVexelBlueprintManipulator& Manipulator, FVexelNodeToolInput::FErrors& OutErrors)
		{
			for (const FNodeToSpawn& Node : Parsed.Nodes)
			{
				const TVexelExpected<TVexelNodeId> Spawned = Manipulator.SpawnNode(Parsed.Target.Graph, Node.Type, Node.PinValues);
				if (Spawned.HasError())
				{
					OutErrors.Add(FString::Printf(
						TEXT("Failed to spawn node of type '%s': %s"), *Node.Type, *Spawned.GetError().ToChainString()));
				}
			}
		});
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintNodeSpawn::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return Spawn(Context, Input);
}

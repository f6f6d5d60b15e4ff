#include "Tools/Blueprint/VexelToolBlueprintNodeLink.h"

#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"

namespace
{
struct FLink
{
	TVexelNodeId FromNode;
	TVexelPinId FromPin;
	TVexelNodeId ToNode;
	TVexelPinId ToPin;
	bool bRemove = false;
};

struct FParsedLinkInput
{
	FVexelNodeToolInput Target;
	TArray<FLink> Links;
};

TVexelExpected<FString> ParseField(const FJsonObject& Descriptor, const TCHAR* Name)
{
	FString Text;
	if (!Descriptor.HasTypedField<EJson::String>(Name) || !Descriptor.TryGetStringField(Name, Text))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Missing or invalid '%s' field in link descriptor", Name);
	}
	return Text;
}

TVexelExpected<FLink> ParseLink(const TSharedPtr<FJsonValue>& Item)
{
	const TSharedPtr<FJsonObject>* Descriptor = nullptr;
	if (!Item || !Item->TryGetObject(Descriptor))
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "Invalid item in 'links' array: each must be an object");
	}
	VEXEL_TRY(FString FromNode, ParseField(**Descriptor, TEXT("from_node")));
	VEXEL_TRY(FString FromPin, ParseField(**Descriptor, TEXT("from_pin")));
	VEXEL_TRY(FString ToNode, ParseField(**Descriptor, TEXT("to_node")));
	VEXEL_TRY(FString ToPin, ParseField(**Descriptor, TEXT("to_pin")));
	FLink Link{TVexelNodeId(MoveTemp(FromNode)), TVexelPinId(MoveTemp(FromPin)), TVexelNodeId(MoveTemp(ToNode)), TVexelPinId(MoveTemp(ToPin))};
	(*Descriptor)->TryGetBoolField(TEXT("remove"), Link.bRemove);
	return Link;
}

TVexelExpected<FParsedLinkInput> Parse(const FVexelToolInput& Input)
{
	VEXEL_TRY(const FVexelNodeToolInput Target, FVexelNodeToolInput::Parse(Input));
	const TArray<TSharedPtr<FJsonValue>>* Items = nullptr;
	if (!Input.GetValues()->TryGetArrayField(TEXT("links"), Items) || Items->IsEmpty())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput,
			"Missing or empty required parameter 'links' (must be an array of node descriptor objects)");
	}
	FParsedLinkInput Parsed{Target, {}};
	for (const TSharedPtr<FJsonValue>& Item : *Items)
	{
		VEXEL_TRY(FLink Link, ParseLink(Item));
		Parsed.Links.Add(MoveTemp(Link));
	}
	return Parsed;
}

/** Makes and breaks the links; answers the nodes that those which succeeded touch, each once. */
TArray<TVexelNodeId> EditLinks(
	const FParsedLinkInput& Parsed, const FVexelBlueprintManipulator& Manipulator, FVexelNodeToolInput::FErrors& OutErrors)
{
	TSet<TVexelNodeId> Touched;
	for (const FLink& Link : Parsed.Links)
	{
		const auto Edited =
			Manipulator.EditConnection(Parsed.Target.Graph, Link.FromNode, Link.FromPin, Link.ToNode, Link.ToPin, !Link.bRemove);
		if (Edited.HasError())
		{
			OutErrors.Add(FString::Printf(TEXT("Failed to connect nodes '%s' and '%s': %s"), *Link.FromNode, *Link.ToNode,
				*Edited.GetError().ToChainString()));
			continue;
		}
		Touched.Add(Edited.GetValue().Get<0>());
		Touched.Add(Edited.GetValue().Get<1>());
	}
	return Touched.Array();
}

TVexelExpected<TSharedRef<FJsonObject>> LinkNodes(const FVexelToolContext& Context, const FVexelToolInput& Input)
{
	VEXEL_TRY(const FParsedLinkInput Parsed, Parse(Input));
	return Parsed.Target.Run(Context, TEXT("Graph not found: %s"),
		[&Parsed](const FVexelBlueprintManipulator& Manipulator, FVexelNodeToolInput::FErrors& OutErrors)
		{
			const TArray<TVexelNodeId> Touched = EditLinks(Parsed, Manipulator, OutErrors);
			if (Touched.IsEmpty())
			{
				return;
			}
			const TVexelExpected<void> Formatted = Manipulator.FormatSelectedNodes(Parsed.Target.Graph, Touched);
			if (Formatted.HasError())
			{
				OutErrors.Add(Formatted.GetError().ToChainString());
			}
		});
}
}

TVexelTaskResult<TSharedRef<FJsonObject>> FVexelToolBlueprintNodeLink::Call(
	const FVexelToolContext& Context, const FVexelToolInput& Input) const
{
	return LinkNodes(Context, Input);
}

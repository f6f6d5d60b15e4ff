#include "Blueprint/VexelBlueprintManipulator.h"
#include "Tools/Blueprint/VexelBlueprintNodeTool.h"
#include "Tools/VexelTool.h"
#include "Tools/VexelToolSchema.h"

namespace
{
struct FLink
{
	FString FromNode;
	FString FromPin;
	FString ToNode;
	FString ToPin;
	/** The link is broken instead of made. */
	bool bRemove = false;

	static const TVexelToolSchema<FLink>& GetSchema()
	{
		static const TVexelToolSchema<FLink> Schema =
			TVexelToolSchema<FLink>()
				.Required(TEXT("from_node"), &FLink::FromNode, {.Complaint = TEXT("Missing or invalid 'from_node' field in link descriptor")})
				.Required(TEXT("from_pin"), &FLink::FromPin, {.Complaint = TEXT("Missing or invalid 'from_pin' field in link descriptor")})
				.Required(TEXT("to_node"), &FLink::ToNode, {.Complaint = TEXT("Missing or invalid 'to_node' field in link descriptor")})
				.Required(TEXT("to_pin"), &FLink::ToPin, {.Complaint = TEXT("Missing or invalid 'to_pin' field in link descriptor")})
				.Optional(TEXT("remove"), &FLink::bRemove);
		return Schema;
	}
};

struct FParsedLinkInput
{
	FString Blueprint;
	FString Graph;
	TArray<FLink> Links;

	static const TVexelToolSchema<FParsedLinkInput>& GetSchema()
	{
		static const TVexelToolSchema<FParsedLinkInput> Schema =
			TVexelToolSchema<FParsedLinkInput>()
				.Required(TEXT("blueprint"), &FParsedLinkInput::Blueprint, {.Complaint = TEXT("Missing `blueprint`")})
				.Required(TEXT("graph"), &FParsedLinkInput::Graph, {.Complaint = TEXT("Missing `graph`")})
				.Required(TEXT("links"), &FParsedLinkInput::Links,
					{.bNotEmpty = true,
						.Complaint = TEXT("Missing or empty required parameter 'links' (must be an array of node descriptor objects)"),
						.ElementComplaint = TEXT("Invalid item in 'links' array: each must be an object")});
		return Schema;
	}
};

/** Makes and breaks the links; answers the nodes that those which succeeded touch, each once. */
TArray<TVexelNodeId> EditLinks(
	const FParsedLinkInput& Input, const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
{
	TSet<TVexelNodeId> Touched;
	for (const FLink& Link : Input.Links)
	{
		const auto Edited = Manipulator.EditConnection(TVexelGraphId(Input.Graph), TVexelNodeId(Link.FromNode), TVexelPinId(Link.FromPin),
			TVexelNodeId(Link.ToNode), TVexelPinId(Link.ToPin), !Link.bRemove);
		if (Edited.HasError())
		{
			OutErrors.Add(FString::Printf(
				TEXT("Failed to connect nodes '%s' and '%s': %s"), *Link.FromNode, *Link.ToNode, *Edited.GetError().ToChainString()));
			continue;
		}
		Touched.Add(Edited.GetValue().Get<0>());
		Touched.Add(Edited.GetValue().Get<1>());
	}
	return Touched.Array();
}

void LinkAndFormat(
	const FParsedLinkInput& Input, const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
{
	const TArray<TVexelNodeId> Touched = EditLinks(Input, Manipulator, OutErrors);
	if (Touched.IsEmpty())
	{
		return;
	}
	const TVexelExpected<void> Formatted = Manipulator.FormatSelectedNodes(TVexelGraphId(Input.Graph), Touched);
	if (Formatted.HasError())
	{
		OutErrors.Add(Formatted.GetError().ToChainString());
	}
}
}

/** "node_link": makes links between pins, or breaks them, and lays out the nodes that they touch. */
class FVexelToolBlueprintNodeLink : public TVexelTool<FParsedLinkInput>
{
public:
	using TVexelTool::TVexelTool;

protected:
	virtual TVexelTaskResult<TSharedRef<FJsonObject>> Run(const FVexelToolContext& Context, const FParsedLinkInput& Input) const override
	{
		return VexelBlueprintNodeTool::Run(Context, Input.Blueprint, Input.Graph, TEXT("Graph not found: %s"),
			[&Input](const FVexelBlueprintManipulator& Manipulator, VexelBlueprintNodeTool::FErrors& OutErrors)
			{ LinkAndFormat(Input, Manipulator, OutErrors); });
	}
};

VEXEL_DEFINE_TOOL(FVexelToolBlueprintNodeLink)

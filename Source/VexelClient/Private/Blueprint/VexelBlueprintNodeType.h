#pragma once

#include "Blueprint/VexelBlueprintNodePin.h"

class UEdGraphNode;

/** One kind of node that can be placed, as the assistant and the search index see it. */
class FVexelBlueprintNodeType
{
public:
	FVexelBlueprintNodeType() = default;
	/** Empty for a node that is no Blueprint script node; that is logged. */
	FVexelBlueprintNodeType(const UEdGraphNode& Node, FVexelBlueprintMapping& Mapping);
	virtual ~FVexelBlueprintNodeType() = default;

	virtual void ToJson(const TSharedRef<FJsonObject>& Object) const;
	/** False, with this type as it was, where the object names no type or one of its pins is none. */
	virtual bool FromJson(const TSharedRef<FJsonObject>& Object);

	TVexelNodeTypeId Id;
	FString Name;
	/** The node's own search keywords, as the editor gives them. */
	FString KeywordsRaw;
	/** What the search index is offered: the node's own keywords and its name. */
	FString Keywords;
	FString Category;
	FString Description;
	TArray<FVexelBlueprintNodeTypePin> Pins;
};

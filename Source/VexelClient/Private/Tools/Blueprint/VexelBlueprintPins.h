#pragma once

#include "CoreMinimal.h"
#include "EdGraph/EdGraphPin.h"
#include "UObject/WeakObjectPtr.h"

class FVexelBlueprintMapping;
class UBlueprint;
class UEdGraph;
class UEdGraphNode;

/**
 * The links of a Blueprint and of the loaded Blueprints that use it, with the values of their pins, as they were when this was made: what
 * an edit of types and members has cost can be told from it.
 */
class FVexelBlueprintPins
{
public:
	FVexelBlueprintPins(UBlueprint& Blueprint, FVexelBlueprintMapping& Mapping);

	/**
	 * A sentence for each link that has been lost since or fits no more, and for each value that a pin's new type does not take; of many,
	 * the first ones and how many more there are.
	 */
	TArray<FString> DescribeLost() const;

private:
	struct FNode
	{
		TWeakObjectPtr<UEdGraphNode> Node;
		/** As the assistant knows it; the node may be gone when that is asked for. */
		FString Id;
		int32 Graph;
	};
	struct FGraph
	{
		TWeakObjectPtr<UEdGraph> Graph;
		FString Name;
		FString BlueprintName;
	};
	/** One end of a link. A node that is reconstructed gets new pins, but they keep their ids. */
	struct FEnd
	{
		int32 Node;
		FGuid PinId;
		FName PinName;
	};
	struct FLink
	{
		FEnd From;
		FEnd To;
		/** One that did not fit before either is no news. */
		bool bFits;
	};

	/** What somebody has given a pin instead of its default. */
	struct FValue
	{
		FEnd Pin;
		FEdGraphPinType Type;
		FString Text;
	};

	void Add(UEdGraph& Graph, const FString& BlueprintName, FVexelBlueprintMapping& Mapping);
	/** Null where the node stands in its graph no more, or has no such pin but one that is only kept for its links. */
	const UEdGraphPin* FindPin(const FEnd& End, const TSet<const UEdGraphNode*>& StandingNodes) const;
	/** What has become of the link, for the end of a sentence; empty when it is as it was. */
	const TCHAR* FindFault(const FLink& Link, const TSet<const UEdGraphNode*>& StandingNodes) const;
	FString Describe(const FLink& Link, const TCHAR* Fault) const;
	bool IsLost(const FValue& Value, const TSet<const UEdGraphNode*>& StandingNodes) const;
	FString DescribeLost(const FValue& Value) const;
	/** "in graph 'EventGraph' of 'BP_Key'" */
	FString DescribePlace(const FNode& Node) const;

	TArray<FGraph> Graphs;
	TArray<FNode> Nodes;
	TArray<FLink> Links;
	TArray<FValue> Values;
};

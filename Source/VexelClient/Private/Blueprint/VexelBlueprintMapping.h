#pragma once

#include "Blueprint/VexelNodeNameTable.h"
#include "Blueprint/VexelPlacedNodes.h"
#include "CoreMinimal.h"
#include "Dom/JsonObject.h"
#include "UObject/WeakObjectPtr.h"
#include "VexelId.h"

class FProperty;
class FVexelBlueprintNodeType;
class UBlueprint;
class UBlueprintNodeSpawner;
class UEdGraph;
class UEdGraphNode;
class UEdGraphPin;
class UObject;
struct FAssetData;
struct FBPVariableDescription;
struct FEdGraphPinType;

/**
 * The dictionary between editor objects and the ids that the assistant knows them by. A Make function never fails; a Resolve
 * function answers false, with its out-parameter untouched, where nothing has the id. A plain value. Game thread.
 */
class FVexelBlueprintMapping
{
public:
	FVexelBlueprintMapping() = default;
	virtual ~FVexelBlueprintMapping() = default;
	FVexelBlueprintMapping(const FVexelBlueprintMapping&) = default;
	FVexelBlueprintMapping(FVexelBlueprintMapping&&) = default;
	FVexelBlueprintMapping& operator=(const FVexelBlueprintMapping&) = default;
	FVexelBlueprintMapping& operator=(FVexelBlueprintMapping&&) = default;

	/** The node names. */
	virtual TSharedRef<FJsonObject> ToJson() const;
	/** Replaces the node names by the saved ones, where the object has some. */
	virtual void FromJson(const TSharedRef<FJsonObject>& Object);

	/** The Blueprint's path name. */
	TVexelBlueprintId MakeBlueprintReference(const UBlueprint& Blueprint);
	/** Loads the Blueprint. The path of a level names its level script. */
	bool ResolveBlueprint(const TVexelBlueprintId& Id, UBlueprint*& OutBlueprint);

	TVexelGraphId MakeGraphReference(const UEdGraph& Graph);
	/** Looks at event, function, delegate-signature and macro graphs, in this order. */
	bool ResolveGraphInBlueprint(const TVexelGraphId& Id, const UBlueprint& Blueprint, UEdGraph*& OutGraph);

	/** The name that the node has, or the next free one of its title; bRegister keeps that one for the node. */
	TVexelNodeId MakeNodeReference(const UEdGraphNode& Node, bool bRegister);
	/** The first node of the graph that has the name, or would be given it. */
	bool ResolveNodeInGraph(const TVexelNodeId& Id, const UEdGraph& Graph, UEdGraphNode*& OutNode);

	TVexelPinId MakePinReference(const UEdGraphPin& Pin);
	bool ResolvePinInNode(const TVexelPinId& Id, const UEdGraphNode& Node, UEdGraphPin*& OutPin);

	/** Empty for a node of a class that has no rule. */
	TVexelNodeTypeId MakeNodeTypeReference(const UEdGraphNode& Node);
	/**
	 * What makes a node of the type in the graph. The id of a variable names one of the Blueprint, or one of the function that the graph
	 * belongs to; every other names an action of the editor's database. From another thread, waits for the game thread.
	 */
	bool ResolveNodeTypeForGraph(const TVexelNodeTypeId& Id, const UEdGraph& Graph, UBlueprintNodeSpawner*& OutSpawner);
	/** The same without a graph, so without locals and parameters. */
	bool ResolveNodeTypeForBlueprint(const TVexelNodeTypeId& Id, const UBlueprint& Blueprint, UBlueprintNodeSpawner*& OutSpawner);
	/** Every type of node that the Blueprint's event graph, or the graph, takes. */
	TArray<FVexelBlueprintNodeType> IterateNodeTypesForBlueprint(const UBlueprint& Blueprint);
	TArray<FVexelBlueprintNodeType> IterateNodeTypesForGraph(const UEdGraph& Graph);

	/** SubCategoryAsset stands in for a type's object that is not loaded; it may be null. */
	TVexelPropTypeId MakePropTypeReference(const FEdGraphPinType& PinType, const FAssetData* SubCategoryAsset);
	bool ResolvePropType(const TVexelPropTypeId& Id, FEdGraphPinType& OutPinType);
	/** Every type that a variable can have, without containers, sorted by id; those of assets too, which it does not load. */
	TArray<TSharedRef<FVexelBlueprintPropType>> IteratePropTypes();

	/** The same GUID for the same property of the same owner, until the editor closes. All zero without a property or an owner. */
	FGuid MakePropGuid(const FProperty* Property);
	FGuid MakePropGuid(const UObject* OwnerObject, const FBPVariableDescription& Variable);
	FGuid MakePropGuidDirect(const UObject* OwnerObject, const TVexelPropId& PropId);

	/** The nodes that the conversation has placed since the editor was started. */
	FVexelPlacedNodes& GetPlacedNodes() { return PlacedNodes; }

private:
	UEdGraphNode* FindNamedNode(const FGuid& NodeGuid, const UEdGraph& Graph);

	FVexelNodeNameTable NodeNames;
	/** Where a node was last found. It is there still as long as its graph has it at that index. */
	struct FFoundNode
	{
		TWeakObjectPtr<UEdGraphNode> Node;
		int32 Index = INDEX_NONE;
	};
	TMap<FGuid, FFoundNode> FoundNodes;
	FVexelPlacedNodes PlacedNodes;
	/** By "owner path.property name". */
	TMap<FString, FGuid> PropGuids;
};

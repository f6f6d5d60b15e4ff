#pragma once

#include "BlueprintNodeBinder.h"
#include "BlueprintNodeSignature.h"
#include "CoreMinimal.h"
#include "EdGraph/EdGraphNode.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "BlueprintNodeSpawner.generated.h"

class UEdGraph;

/** What a menu shows of an action. */
struct FBlueprintActionUiSpec
{
	FText MenuName;
	FText Category;
	FText Tooltip;
	FText Keywords;
	FText DocLink;
};

/**
 * One action: it makes a node of one class that is about one thing. An action is cheap until its template is asked for: a node outside
 * every
 * Blueprint, from which all that a menu or a search says of the action is taken. Game thread.
 */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintNodeSpawner : public UObject, public IBlueprintNodeBinder
{
	GENERATED_BODY()

public:
	/** Makes the node what the action is about, before its pins are made. The second argument is true for a template. */
	DECLARE_DELEGATE_TwoParams(FCustomizeNodeDelegate, UEdGraphNode*, bool);

	UPROPERTY()
	TSubclassOf<UEdGraphNode> NodeClass;

	FCustomizeNodeDelegate CustomizeNodeDelegate;

	static UBlueprintNodeSpawner* Create(TSubclassOf<UEdGraphNode> const NodeClass, UObject* Outer = nullptr,
		FCustomizeNodeDelegate PostSpawnDelegate = FCustomizeNodeDelegate());
	template <class NodeType>
	static UBlueprintNodeSpawner* Create(UObject* Outer = nullptr, FCustomizeNodeDelegate PostSpawnDelegate = FCustomizeNodeDelegate())
	{
		return Create(NodeType::StaticClass(), Outer, PostSpawnDelegate);
	}

	virtual FBlueprintNodeSignature GetSpawnerSignature() const;
	/** Taken from the template, which it makes. */
	const FBlueprintActionUiSpec& PrimeDefaultUiSpec(UEdGraph* TargetGraph = nullptr) const;
	/**
	 * Makes the node in the graph, bound to what the bindings name. Null when it cannot be there. Some actions answer a node that stands
	 * in the
	 * Blueprint already: an event is there once.
	 */
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const;
	/** Null unless it was made, and is still kept. */
	UEdGraphNode* GetCachedTemplateNode() const;
	/** The node that stands for what the action makes, with its pins. Kept while templates have room; hold it no longer than the call. */
	UEdGraphNode* GetTemplateNode(UEdGraph* TargetGraph = nullptr, FBindingSet const& Bindings = FBindingSet()) const;
	void ClearCachedTemplateNode();
	/** The node is a template. */
	static bool IsTemplateNode(const UEdGraphNode* Node);

protected:
	template <class NodeType>
	NodeType* SpawnNode(
		UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location, FCustomizeNodeDelegate PostSpawnDelegate) const
	{
		return Cast<NodeType>(SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, PostSpawnDelegate));
	}
	UEdGraphNode* SpawnEdGraphNode(TSubclassOf<UEdGraphNode> const InNodeClass, UEdGraph* ParentGraph, FBindingSet const& Bindings,
		FVector2D Location, FCustomizeNodeDelegate PostSpawnDelegate) const;
	/** True when the graph holds templates. */
	static bool IsTemplateGraph(const UEdGraph* Graph);

private:
	/** Kept between calls, so that a list of actions is shown at once when it is shown again. */
	mutable TSharedPtr<FBlueprintActionUiSpec> UiSpec;
};

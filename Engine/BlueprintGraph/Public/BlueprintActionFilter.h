#pragma once

#include "BlueprintNodeBinder.h"
#include "CoreMinimal.h"

class UBlueprint;
class UBlueprintNodeSpawner;
class UEdGraph;

/** Where an action would be used. */
struct FBlueprintActionContext
{
	TArray<UBlueprint*> Blueprints;
	TArray<UEdGraph*> Graphs;
};

/** One action with what it is about. */
struct BLUEPRINTGRAPH_API FBlueprintActionInfo
{
	UBlueprintNodeSpawner const* NodeSpawner;
	IBlueprintNodeBinder::FBindingSet Bindings;

	FBlueprintActionInfo(UObject const* InActionOwner, UBlueprintNodeSpawner const* Action)
		: NodeSpawner(Action)
		, ActionOwner(InActionOwner)
	{
	}

	UObject const* GetActionOwner() const { return ActionOwner; }
	const UClass* GetNodeClass() const;
	/** Null when the action is about no function. */
	UFunction const* GetAssociatedFunction() const;
	FProperty const* GetAssociatedProperty() const;
	/** The class whose member the action is about; null without one. */
	UClass const* GetOwnerClass() const;

private:
	UObject const* ActionOwner;
};

/** Tells which actions cannot be used in a context. */
struct BLUEPRINTGRAPH_API FBlueprintActionFilter
{
	FBlueprintActionContext Context;

	/** True when the action cannot be used in every Blueprint and graph of the context. */
	bool IsFiltered(FBlueprintActionInfo& BlueprintAction) const;

private:
	static bool IsRefusedByBlueprint(const FBlueprintActionInfo& Action, const UBlueprint& Blueprint);
	static bool IsRefusedByGraph(const FBlueprintActionInfo& Action, const UEdGraph& Graph);
};

#pragma once

#include "BlueprintNodeSpawner.h"

#include "BlueprintComponentNodeSpawner.generated.h"

class UActorComponent;

/** Adds a component to an actor, made from a template of the Blueprint. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintComponentNodeSpawner : public UBlueprintNodeSpawner
{
	GENERATED_BODY()

public:
	static UBlueprintComponentNodeSpawner* Create(TSubclassOf<UActorComponent> InComponentClass, UObject* Outer = nullptr);

	virtual FBlueprintNodeSignature GetSpawnerSignature() const override;
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;

	TSubclassOf<UActorComponent> GetComponentClass() const { return ComponentClass; }

private:
	UPROPERTY()
	TSubclassOf<UActorComponent> ComponentClass;
};

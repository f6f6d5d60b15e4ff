#pragma once

#include "BlueprintFieldNodeSpawner.h"

#include "BlueprintDelegateNodeSpawner.generated.h"

class FMulticastDelegateProperty;
class UK2Node_BaseMCDelegate;

/** Binds to an event dispatcher, unbinds from it, or calls it. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintDelegateNodeSpawner : public UBlueprintFieldNodeSpawner
{
	GENERATED_BODY()

public:
	static UBlueprintDelegateNodeSpawner* Create(
		TSubclassOf<UK2Node_BaseMCDelegate> NodeClass, FMulticastDelegateProperty const* const Property, UObject* Outer = nullptr);

	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;

	FMulticastDelegateProperty const* GetDelegateProperty() const;
};

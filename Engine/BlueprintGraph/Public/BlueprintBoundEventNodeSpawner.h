#pragma once

#include "BlueprintEventNodeSpawner.h"

#include "BlueprintBoundEventNodeSpawner.generated.h"

class FMulticastDelegateProperty;

/** Places the event of one of a component's or a placed actor's dispatchers. The binding names the component's property, or the actor. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintBoundEventNodeSpawner : public UBlueprintEventNodeSpawner
{
	GENERATED_BODY()

public:
	static UBlueprintBoundEventNodeSpawner* Create(
		TSubclassOf<UK2Node_Event> NodeClass, FMulticastDelegateProperty* EventDelegate, UObject* Outer = nullptr);

	virtual FBlueprintNodeSignature GetSpawnerSignature() const override;
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;
	virtual bool IsBindingCompatible(FBindingObject BindingCandidate) const override;
	virtual bool BindToNode(UEdGraphNode* Node, FBindingObject Binding) const override;

	FMulticastDelegateProperty const* GetEventDelegate() const;
};

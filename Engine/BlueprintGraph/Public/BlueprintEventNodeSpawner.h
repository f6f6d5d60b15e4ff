#pragma once

#include "BlueprintFieldNodeSpawner.h"

#include "BlueprintEventNodeSpawner.generated.h"

class UK2Node_Event;

/**
 * Places an event: one that overrides a function, or one of the Blueprint's own. An override that stands in the Blueprint already is
 * answered as it is.
 */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintEventNodeSpawner : public UBlueprintFieldNodeSpawner
{
	GENERATED_BODY()

public:
	static UBlueprintEventNodeSpawner* Create(UFunction const* const EventFunc, UObject* Outer = nullptr);
	/** An event that the Blueprint declares; a name in use is numbered. */
	static UBlueprintEventNodeSpawner* Create(TSubclassOf<UK2Node_Event> NodeClass, FName CustomEventName, UObject* Outer = nullptr);

	virtual FBlueprintNodeSignature GetSpawnerSignature() const override;
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;

	UFunction const* GetEventFunction() const { return GetFunction(); }
	bool IsForCustomEvent() const { return !CustomEventName.IsNone(); }

private:
	UPROPERTY()
	FName CustomEventName;
};

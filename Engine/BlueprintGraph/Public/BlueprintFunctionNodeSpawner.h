#pragma once

#include "BlueprintFieldNodeSpawner.h"

#include "BlueprintFunctionNodeSpawner.generated.h"

class UK2Node_CallFunction;

/** Calls a function. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintFunctionNodeSpawner : public UBlueprintFieldNodeSpawner
{
	GENERATED_BODY()

public:
	/** The class of node that suits the function: arrays, operators and data tables have their own. */
	static UBlueprintFunctionNodeSpawner* Create(UFunction const* const Function, UObject* Outer = nullptr);
	static UBlueprintFunctionNodeSpawner* Create(
		TSubclassOf<UK2Node_CallFunction> NodeClass, UFunction const* const Function, UObject* Outer = nullptr);

	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;
};

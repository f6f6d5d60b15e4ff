#pragma once

#include "BlueprintFieldNodeSpawner.h"
#include "Engine/Blueprint.h"

#include "BlueprintVariableNodeSpawner.generated.h"

class UK2Node_Variable;

/** Reads or writes a variable: a class's, or a function's own. */
UCLASS(Transient)
class BLUEPRINTGRAPH_API UBlueprintVariableNodeSpawner : public UBlueprintFieldNodeSpawner
{
	GENERATED_BODY()

public:
	/** VarContext is the function's graph when the property is a parameter or a local variable of it. */
	static UBlueprintVariableNodeSpawner* CreateFromMemberOrParam(TSubclassOf<UK2Node_Variable> NodeClass, FProperty const* VarProperty,
		UEdGraph* VarContext = nullptr, UClass* OwnerClass = nullptr);
	static UBlueprintVariableNodeSpawner* CreateFromLocal(TSubclassOf<UK2Node_Variable> NodeClass, UEdGraph* VarContext,
		FBPVariableDescription const& VarDesc, FProperty* VarProperty, UObject* Outer = nullptr);

	virtual FBlueprintNodeSignature GetSpawnerSignature() const override;
	virtual UEdGraphNode* Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const override;

	bool IsLocalVariable() const { return LocalVarOuter != nullptr; }
	FProperty const* GetVarProperty() const { return GetProperty(); }
	UEdGraph* GetVarContext() const { return LocalVarOuter.Get(); }

private:
	UPROPERTY()
	TObjectPtr<UEdGraph> LocalVarOuter = nullptr;

	UPROPERTY()
	FName LocalVarName;

	UPROPERTY()
	FGuid LocalVarGuid;
};

#pragma once

#include "K2Node.h"

#include "K2Node_TemporaryVariable.generated.h"

/** A variable that lives as long as the graph runs. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_TemporaryVariable : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FEdGraphPinType VariableType;

	UPROPERTY()
	bool bIsPersistent = false;

	UEdGraphPin* GetVariablePin() const { return FindPin(TEXT("Variable")); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

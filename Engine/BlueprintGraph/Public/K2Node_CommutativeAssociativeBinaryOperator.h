#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CommutativeAssociativeBinaryOperator.generated.h"

/** A call of an operator that takes any number of operands. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CommutativeAssociativeBinaryOperator : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumAdditionalInputs = 0;

	bool CanAddPin() const;
	bool CanRemovePin(const UEdGraphPin* Pin) const;
	void AddInputPin();
	void RemoveInputPin(UEdGraphPin* Pin);
	virtual void AllocateDefaultPins() override;

private:
	UEdGraphPin* AddOperand(int32 Index);
};

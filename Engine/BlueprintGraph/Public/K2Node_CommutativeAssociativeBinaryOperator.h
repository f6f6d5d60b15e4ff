#pragma once

#include "K2Node_AddPinInterface.h"
#include "K2Node_CallFunction.h"

#include "K2Node_CommutativeAssociativeBinaryOperator.generated.h"

/** A call of an operator that takes any number of operands. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CommutativeAssociativeBinaryOperator : public UK2Node_CallFunction, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumAdditionalInputs = 0;

	UK2Node_CommutativeAssociativeBinaryOperator(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	virtual void AllocateDefaultPins() override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual bool CanAddPin() const override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

private:
	UEdGraphPin* AddOperand(int32 Index);
};

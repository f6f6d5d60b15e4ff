#pragma once

#include "K2Node_AddPinInterface.h"
#include "K2Node_CallFunction.h"

#include "K2Node_PromotableOperator.generated.h"

/** An operator that takes the widest type of what is linked to it. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_PromotableOperator : public UK2Node_CallFunction, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName OperationName;

	UPROPERTY()
	int32 NumAdditionalInputs = 0;

	/** "Add" of "Add_DoubleDouble". */
	FName GetOperationName() const;
	virtual void SetFromFunction(const UFunction* Function) override;
	/** Whether some function of the operation takes a value of the type there, beside what is linked to the other operands. */
	bool TakesOperand(const UEdGraphPin& Operand, const FEdGraphPinType& Type) const;
	virtual FText GetCompactNodeTitle() const override { return Super::GetCompactNodeTitle(); }
	virtual void AllocateDefaultPins() override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual bool CanAddPin() const override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

private:
	/** The operands in their order; not the tolerance, nor sub-pins. */
	TArray<UEdGraphPin*> GetOperands() const;
	UEdGraphPin* CreateOperand(int32 Index);
	void ResetToWildcards();
	/** Takes the function that fits what is linked best, and the types of its parameters where nothing is linked. */
	void UpdateFromLinks();
	void ConformToFunction(const UFunction& Function);
};

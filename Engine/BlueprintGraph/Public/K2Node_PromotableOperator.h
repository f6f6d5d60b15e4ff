#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_PromotableOperator.generated.h"

/** An operator that takes the widest type of what is linked to it. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_PromotableOperator : public UK2Node_CallFunction
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
	virtual FText GetCompactNodeTitle() const override { return Super::GetCompactNodeTitle(); }
	virtual void AllocateDefaultPins() override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

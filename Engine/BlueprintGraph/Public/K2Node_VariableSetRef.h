#pragma once

#include "K2Node.h"

#include "K2Node_VariableSetRef.generated.h"

/** Sets the value of a variable that is given by reference. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_VariableSetRef : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetTargetPin() const { return FindPin(TEXT("Target"), EGPD_Input); }
	UEdGraphPin* GetValuePin() const { return FindPin(TEXT("Value"), EGPD_Input); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
	virtual bool TakesLinkedContainer() const override { return true; }
};

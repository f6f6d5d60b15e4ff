#pragma once

#include "K2Node.h"

#include "K2Node_AssignmentStatement.generated.h"

/** Assigns Value to Variable */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AssignmentStatement : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetVariablePin() const { return FindPin(TEXT("Variable")); }
	UEdGraphPin* GetValuePin() const { return FindPin(TEXT("Value")); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
	virtual bool TakesLinkedContainer() const override { return true; }
};

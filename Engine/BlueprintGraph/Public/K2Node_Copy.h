#pragma once

#include "K2Node.h"

#include "K2Node_Copy.generated.h"

/** Copies a value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Copy : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetInputReferencePin() const { return Pins[0]; }
	UEdGraphPin* GetCopyResultPin() const { return Pins[1]; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
	virtual bool TakesLinkedContainer() const override { return true; }
};

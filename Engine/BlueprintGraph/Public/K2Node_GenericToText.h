#pragma once

#include "K2Node.h"

#include "K2Node_GenericToText.generated.h"

/** Turns a value of any type that has a text form into text. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GenericToText : public UK2Node
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

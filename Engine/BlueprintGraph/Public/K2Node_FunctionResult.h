#pragma once

#include "K2Node_FunctionTerminator.h"

#include "K2Node_FunctionResult.generated.h"

/** Where a function returns its results. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FunctionResult : public UK2Node_FunctionTerminator
{
	GENERATED_BODY()

public:
	virtual bool DrawNodeAsExit() const override { return true; }
	virtual bool CanCreateUserDefinedPin(
		const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage) override;
	/** A further return node takes the pins of the graph's first one. */
	virtual void PostPlacedNewNode() override;
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

#pragma once

#include "K2Node_BaseMCDelegate.h"

#include "K2Node_CallDelegate.generated.h"

/** Calls the events that are bound to the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

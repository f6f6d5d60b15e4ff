#pragma once

#include "K2Node_BaseMCDelegate.h"

#include "K2Node_RemoveDelegate.generated.h"

/** Takes an event off the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_RemoveDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

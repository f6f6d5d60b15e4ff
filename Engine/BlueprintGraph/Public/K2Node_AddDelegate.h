#pragma once

#include "K2Node_BaseMCDelegate.h"

#include "K2Node_AddDelegate.generated.h"

/** Binds an event to the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AddDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

#pragma once

#include "K2Node_BaseMCDelegate.h"

#include "K2Node_ClearDelegate.generated.h"

/** Takes all events off the dispatcher. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ClearDelegate : public UK2Node_BaseMCDelegate
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

#pragma once

#include "K2Node_GetInputAxisKeyValue.h"

#include "K2Node_GetInputVectorAxisValue.generated.h"

/** The value that a device's axis of three dimensions has. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetInputVectorAxisValue : public UK2Node_GetInputAxisKeyValue
{
	GENERATED_BODY()

public:
	void Initialize(const FKey AxisKey);

	virtual FText GetTooltipText() const override;
};

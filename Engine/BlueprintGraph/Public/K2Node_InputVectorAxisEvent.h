#pragma once

#include "K2Node_InputAxisKeyEvent.h"

#include "K2Node_InputVectorAxisEvent.generated.h"

/** Runs each frame with the value of a device's axis that has three dimensions. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_InputVectorAxisEvent : public UK2Node_InputAxisKeyEvent
{
	GENERATED_BODY()

public:
	UK2Node_InputVectorAxisEvent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	void Initialize(const FKey InAxisKey);
	virtual void AllocateDefaultPins() override;
};

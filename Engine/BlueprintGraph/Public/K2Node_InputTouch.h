#pragma once

#include "K2Node.h"

#include "K2Node_InputTouch.generated.h"

/** Events of a finger that touches the screen. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_InputTouch : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bConsumeInput : 1 = true;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

	UPROPERTY()
	uint32 bOverrideParentBinding : 1 = true;

	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

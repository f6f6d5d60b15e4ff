#pragma once

#include "K2Node_Event.h"

#include "K2Node_InputAxisEvent.generated.h"

/** The value of an input axis, each frame. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_InputAxisEvent : public UK2Node_Event
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName InputAxisName;

	UPROPERTY()
	uint32 bConsumeInput : 1 = true;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

	UPROPERTY()
	uint32 bOverrideParentBinding : 1 = true;

	UK2Node_InputAxisEvent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	void Initialize(const FName AxisName);
	virtual bool HasKnownDefinition() const override { return true; }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

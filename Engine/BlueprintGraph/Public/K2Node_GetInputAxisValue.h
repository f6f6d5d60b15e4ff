#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_GetInputAxisValue.generated.h"

/** The value of an input axis. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetInputAxisValue : public UK2Node_CallFunction
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

	void Initialize(const FName AxisName);
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

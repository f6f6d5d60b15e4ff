#pragma once

#include "InputCoreTypes.h"
#include "K2Node_CallFunction.h"

#include "K2Node_GetInputAxisKeyValue.generated.h"

/** The value of an axis key. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetInputAxisKeyValue : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FKey InputAxisKey;

	UPROPERTY()
	uint32 bConsumeInput : 1 = true;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

	UPROPERTY()
	uint32 bOverrideParentBinding : 1 = true;

	void Initialize(const FKey AxisKey);
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

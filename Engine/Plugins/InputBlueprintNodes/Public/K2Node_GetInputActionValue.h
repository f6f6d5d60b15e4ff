#pragma once

#include "K2Node.h"

#include "K2Node_GetInputActionValue.generated.h"

/** The value that an input action has now. */
UCLASS()
class INPUTBLUEPRINTNODES_API UK2Node_GetInputActionValue : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UObject> InputAction = nullptr;

	void Initialize(UObject* Action) { InputAction = Action; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

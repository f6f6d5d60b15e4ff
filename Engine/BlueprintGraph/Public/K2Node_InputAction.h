#pragma once

#include "InputCoreTypes.h"
#include "K2Node.h"

#include "K2Node_InputAction.generated.h"

/** Events of an action that the project's input settings name. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_InputAction : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName InputActionName;

	UPROPERTY()
	uint32 bConsumeInput : 1 = true;

	UPROPERTY()
	uint32 bExecuteWhenPaused : 1 = false;

	UPROPERTY()
	uint32 bOverrideParentBinding : 1 = true;

	UEdGraphPin* GetPressedPin() const { return FindPin(TEXT("Pressed")); }
	UEdGraphPin* GetReleasedPin() const { return FindPin(TEXT("Released")); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
};

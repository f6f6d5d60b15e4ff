#include "K2Node_GetInputActionValue.h"

#include "InputActionValuePin.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetInputActionValue::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, FInputActionValuePin::GetType(InputAction), UEdGraphSchema_K2::PN_ReturnValue);
}

FText UK2Node_GetInputActionValue::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Name = FInputActionValuePin::GetActionName(InputAction);
	return TitleType == ENodeTitleType::MenuTitle ? Name : FText::Format(LOCTEXT("GetInputActionValue_Name", "Get {0}"), Name);
}

FText UK2Node_GetInputActionValue::GetTooltipText() const
{
	return FText::Format(LOCTEXT("GetInputActionValue_Tooltip",
							 "Returns the current value of input action {0}. If input is disabled for the actor the value will be 0."),
		FInputActionValuePin::GetActionName(InputAction));
}

FText UK2Node_GetInputActionValue::GetMenuCategory() const
{
	return LOCTEXT("GetInputActionValue_Category", "Input|Enhanced Action Values");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_InputAction.h"

#include "InputNodePins.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_InputAction::AllocateDefaultPins()
{
	FInputNodePins::CreateKeyPins(*this);
}

FText UK2Node_InputAction::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::MenuTitle
		? FText::FromName(InputActionName)
		: FText::Format(LOCTEXT("InputAction_Name", "InputAction {0}"), FText::FromName(InputActionName));
}

FText UK2Node_InputAction::GetTooltipText() const
{
	return FText::Format(LOCTEXT("InputAction_Tooltip", "Event for when the keys bound to input action {0} are pressed or released."),
		FText::FromName(InputActionName));
}

FText UK2Node_InputAction::GetMenuCategory() const
{
	return LOCTEXT("InputAction_Category", "Input|Action Events");
}

#undef LOCTEXT_NAMESPACE

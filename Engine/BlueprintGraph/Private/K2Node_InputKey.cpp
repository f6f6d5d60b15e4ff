#include "K2Node_InputKey.h"

#include "InputNodePins.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_InputKey::AllocateDefaultPins()
{
	FInputNodePins::CreateKeyPins(*this);
}

FText UK2Node_InputKey::GetKeyText() const
{
	return FInputNodePins::GetKeyText(InputKey, bControl, bAlt, bShift, bCommand);
}

FText UK2Node_InputKey::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return GetKeyText();
}

FText UK2Node_InputKey::GetTooltipText() const
{
	return FText::Format(LOCTEXT("InputKey_Tooltip", "Events for when the {0} key is pressed or released."), GetKeyText());
}

FText UK2Node_InputKey::GetMenuCategory() const
{
	return LOCTEXT("KeyEventsCategory", "Input|Keyboard Events");
}

#undef LOCTEXT_NAMESPACE

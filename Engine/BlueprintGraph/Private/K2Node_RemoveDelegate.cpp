#include "K2Node_RemoveDelegate.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_RemoveDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	CreateDelegatePin();
}

FText UK2Node_RemoveDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("RemoveDelegate_Title", "Unbind Event from {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

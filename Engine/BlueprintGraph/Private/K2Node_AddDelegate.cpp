#include "K2Node_AddDelegate.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_AddDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	CreateDelegatePin();
}

FText UK2Node_AddDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("AddDelegate_Title", "Bind Event to {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

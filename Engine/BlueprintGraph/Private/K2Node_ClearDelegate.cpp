#include "K2Node_ClearDelegate.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_ClearDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("ClearDelegate_Title", "Unbind all Events from {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

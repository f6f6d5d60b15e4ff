#include "K2Node_AssignDelegate.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_AssignDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::FullTitle ? Super::GetNodeTitle(TitleType) : FText::Format(LOCTEXT("AssignDelegate_Title", "Assign {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

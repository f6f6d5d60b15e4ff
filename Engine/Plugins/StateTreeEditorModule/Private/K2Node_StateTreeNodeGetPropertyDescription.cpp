#include "K2Node_StateTreeNodeGetPropertyDescription.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_StateTreeNodeGetPropertyDescription::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Text, TEXT("Description"));
}

FText UK2Node_StateTreeNodeGetPropertyDescription::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FName Name = Variable.GetMemberName();
	return Name.IsNone() || TitleType == ENodeTitleType::MenuTitle
		? LOCTEXT("GetPropertyDescription_Title", "Get Property Description")
		: FText::Format(LOCTEXT("GetPropertyDescription_Named", "Get Property Description of {0}"), FText::FromName(Name));
}

FText UK2Node_StateTreeNodeGetPropertyDescription::GetTooltipText() const
{
	return LOCTEXT("StateTreeNodeGetPropertyDescription_Tooltip", "Returns the text that describes the property.");
}

FText UK2Node_StateTreeNodeGetPropertyDescription::GetMenuCategory() const
{
	return LOCTEXT("StateTreeNodeGetPropertyDescription_Category", "AI|StateTree");
}

#undef LOCTEXT_NAMESPACE

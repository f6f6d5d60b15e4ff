#include "K2Node_GetNumEnumEntries.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetNumEnumEntries::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Int, UEdGraphSchema_K2::PN_ReturnValue);
}

FText UK2Node_GetNumEnumEntries::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(
		LOCTEXT("GetNumEnumEntries_Title", "Get number of entries in {0}"), FText::FromString(Enum ? Enum->GetName() : TEXT("(bad enum)")));
}

FText UK2Node_GetNumEnumEntries::GetTooltipText() const
{
	return FText::Format(LOCTEXT("GetNumEnumEntries_Tooltip", "Returns the number of entries in the enum {0}"),
		FText::FromString(Enum ? Enum->GetName() : TEXT("(bad enum)")));
}

FText UK2Node_GetNumEnumEntries::GetMenuCategory() const
{
	return LOCTEXT("GetNumEnumEntries_Category", "Utilities|Enum");
}

#undef LOCTEXT_NAMESPACE

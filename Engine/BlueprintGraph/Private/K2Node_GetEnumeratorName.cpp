#include "K2Node_GetEnumeratorName.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetEnumeratorName::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Enumerator"));
	CreatePin(EGPD_Output, GetResultCategory(), UEdGraphSchema_K2::PN_ReturnValue);
}

TArray<UEdGraphPin*> UK2Node_GetEnumeratorName::GetPinsOfOneType() const
{
	return {FindPin(TEXT("Enumerator"))};
}

FText UK2Node_GetEnumeratorName::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GetEnumeratorName_Title", "Enum to Name");
}

FText UK2Node_GetEnumeratorName::GetMenuCategory() const
{
	return LOCTEXT("GetEnumeratorName_Category", "Utilities|Enum");
}

#undef LOCTEXT_NAMESPACE

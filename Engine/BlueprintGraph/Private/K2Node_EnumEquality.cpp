#include "K2Node_EnumEquality.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EnumEquality::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("A"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("B"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Boolean, UEdGraphSchema_K2::PN_ReturnValue);
}

TArray<UEdGraphPin*> UK2Node_EnumEquality::GetPinsOfOneType() const
{
	return {FindPin(TEXT("A")), FindPin(TEXT("B"))};
}

FText UK2Node_EnumEquality::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("EnumEquality_Title", "Equal (Enum)");
}

FText UK2Node_EnumEquality::GetMenuCategory() const
{
	return LOCTEXT("EnumEquality_Category", "Utilities|Enum");
}

#undef LOCTEXT_NAMESPACE

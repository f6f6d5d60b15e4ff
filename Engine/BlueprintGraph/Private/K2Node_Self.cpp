#include "K2Node_Self.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_Self::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Object, UEdGraphSchema_K2::PSC_Self, UEdGraphSchema_K2::PN_Self);
}

FText UK2Node_Self::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TitleType == ENodeTitleType::MenuTitle ? LOCTEXT("GetSelfReference", "Get a reference to self")
												  : LOCTEXT("SelfReferenceName", "Self-Reference");
}

FText UK2Node_Self::GetMenuCategory() const
{
	return LOCTEXT("SelfReferenceCategory", "Variables");
}

#undef LOCTEXT_NAMESPACE

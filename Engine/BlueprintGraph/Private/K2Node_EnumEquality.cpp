#include "K2Node_EnumEquality.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EnumEquality::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("A"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("B"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Boolean, UEdGraphSchema_K2::PN_ReturnValue);
}

void UK2Node_EnumEquality::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	FollowLinkedType({FindPin(TEXT("A")), FindPin(TEXT("B"))});
}

void UK2Node_EnumEquality::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	KeepResolvedWildcards(OldPins);
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

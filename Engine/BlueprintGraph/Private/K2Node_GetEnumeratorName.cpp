#include "K2Node_GetEnumeratorName.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetEnumeratorName::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Enumerator"));
	CreatePin(EGPD_Output, GetResultCategory(), UEdGraphSchema_K2::PN_ReturnValue);
}

void UK2Node_GetEnumeratorName::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	FollowLinkedType({FindPin(TEXT("Enumerator"))});
}

void UK2Node_GetEnumeratorName::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	KeepResolvedWildcards(OldPins);
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

#include "K2Node_Copy.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_Copy::AllocateDefaultPins()
{
	FCreatePinParams Reference;
	Reference.bIsReference = true;
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Input"), Reference);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("ReturnValue"));
}

TArray<UEdGraphPin*> UK2Node_Copy::GetPinsOfOneType() const
{
	return Pins;
}

FText UK2Node_Copy::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("Copy_Title", "Copy");
}

FText UK2Node_Copy::GetMenuCategory() const
{
	return LOCTEXT("Copy_Category", "Utilities");
}

#undef LOCTEXT_NAMESPACE

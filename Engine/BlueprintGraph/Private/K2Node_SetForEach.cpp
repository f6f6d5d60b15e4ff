#include "K2Node_SetForEach.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SetForEach::AllocateDefaultPins()
{
	FCreatePinParams Params;
	Params.ContainerType = EPinContainerType::Set;
	CreateExecPin();
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("SetPin"), Params)->PinFriendlyName = LOCTEXT("SetForEach_Set", "Set");
	UEdGraphPin* const Break = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, TEXT("BreakPin"));
	Break->PinFriendlyName = LOCTEXT("SetForEach_Break", "Break");
	Break->bAdvancedView = true;
	CreateThenPin()->PinFriendlyName = LOCTEXT("SetForEach_Body", "Loop Body");
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("ValuePin"))->PinFriendlyName = FText::FromString(ValueName);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("CompletedPin"))->PinFriendlyName = LOCTEXT(
		"SetForEach_Completed", "Completed");
	HideAdvancedPins();
}

TArray<UEdGraphPin*> UK2Node_SetForEach::GetPinsOfOneType() const
{
	return {GetContainerPin(), GetValuePin()};
}

FText UK2Node_SetForEach::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("SetForEach_Title", "For Each Loop (Set)");
}

FText UK2Node_SetForEach::GetTooltipText() const
{
	return LOCTEXT("SetForEach_Tooltip", "Loop over each element of a set");
}

FText UK2Node_SetForEach::GetMenuCategory() const
{
	return LOCTEXT("SetForEach_Category", "Utilities|Set");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_MapForEach.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_MapForEach::AllocateDefaultPins()
{
	FCreatePinParams Params;
	Params.ContainerType = EPinContainerType::Map;
	Params.ValueTerminalType.TerminalCategory = UEdGraphSchema_K2::PC_Wildcard;
	CreateExecPin();
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("MapPin"), Params)->PinFriendlyName = LOCTEXT("MapForEach_Map", "Map");
	UEdGraphPin* const Break = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Exec, TEXT("BreakPin"));
	Break->PinFriendlyName = LOCTEXT("MapForEach_Break", "Break");
	Break->bAdvancedView = true;
	CreateThenPin()->PinFriendlyName = LOCTEXT("MapForEach_Body", "Loop Body");
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("KeyPin"))->PinFriendlyName = FText::FromString(KeyName);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("ValuePin"))->PinFriendlyName = FText::FromString(ValueName);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("CompletedPin"))->PinFriendlyName = LOCTEXT(
		"MapForEach_Completed", "Completed");
	HideAdvancedPins();
}

void UK2Node_MapForEach::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	if (!UEdGraphSchema_K2::IsExecPin(*Pin))
	{
		FollowLinkedMapType(GetContainerPin(), {GetKeyPin()}, {GetValuePin()});
	}
}

FText UK2Node_MapForEach::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MapForEach_Title", "For Each Loop (Map)");
}

FText UK2Node_MapForEach::GetTooltipText() const
{
	return LOCTEXT("MapForEach_Tooltip", "Loop over each element of a map");
}

FText UK2Node_MapForEach::GetMenuCategory() const
{
	return LOCTEXT("MapForEach_Category", "Utilities|Map");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_GenericToText.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GenericToText::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Value"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Text, TEXT("Result"));
}

TArray<UEdGraphPin*> UK2Node_GenericToText::GetPinsOfOneType() const
{
	return {FindPin(TEXT("Value"), EGPD_Input)};
}

bool UK2Node_GenericToText::IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const
{
	using Schema = UEdGraphSchema_K2;
	FEdGraphPinType TextType;
	TextType.PinCategory = Schema::PC_Text;
	const FEdGraphPinType& Type = OtherPin->PinType;
	const bool bHasText = !Type.IsContainer() &&
		(Type.PinCategory == Schema::PC_Wildcard || Type.PinCategory == Schema::PC_Text ||
			GetK2Schema()->SearchForAutocastFunction(Type, TextType).IsSet());
	if (MyPin->PinName != TEXT("Value") || bHasText)
	{
		return false;
	}
	OutReason = FText::Format(LOCTEXT("GenericToText_NoText", "{0} has no text form."), Schema::TypeToText(Type)).ToString();
	return true;
}

FText UK2Node_GenericToText::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GenericToText_Title", "To Text");
}

FText UK2Node_GenericToText::GetTooltipText() const
{
	return LOCTEXT("GenericToText_Tooltip", "Turns the value into text.");
}

FText UK2Node_GenericToText::GetMenuCategory() const
{
	return LOCTEXT("GenericToText_Category", "Utilities|Text");
}

#undef LOCTEXT_NAMESPACE

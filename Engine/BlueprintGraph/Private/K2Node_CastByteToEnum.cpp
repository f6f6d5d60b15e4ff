#include "K2Node_CastByteToEnum.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_CastByteToEnum::AllocateDefaultPins()
{
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Byte, TEXT("Byte"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Byte, Enum.Get(), UEdGraphSchema_K2::PN_ReturnValue);
}

FText UK2Node_CastByteToEnum::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(
		LOCTEXT("CastByteToEnum_Title", "Byte to Enum {0}"), FText::FromString(Enum ? Enum->GetName() : TEXT("(bad enum)")));
}

FText UK2Node_CastByteToEnum::GetMenuCategory() const
{
	return LOCTEXT("CastByteToEnum_Category", "Utilities|Enum");
}

#undef LOCTEXT_NAMESPACE

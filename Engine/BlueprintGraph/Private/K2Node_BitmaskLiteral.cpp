#include "K2Node_BitmaskLiteral.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

const FName& UK2Node_BitmaskLiteral::GetBitmaskInputPinName()
{
	static const FName Name(TEXT("Bitmask"));
	return Name;
}

void UK2Node_BitmaskLiteral::AllocateDefaultPins()
{
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Int, GetBitmaskInputPinName(), UEdGraphSchema_K2::PSC_Bitmask, BitflagsEnum);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Int, UEdGraphSchema_K2::PN_ReturnValue);
}

FText UK2Node_BitmaskLiteral::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const bool bNamesEnum = BitflagsEnum && TitleType != ENodeTitleType::MenuTitle;
	return bNamesEnum
		? FText::Format(LOCTEXT("BitmaskLiteral_EnumTitle", "Make Bitmask Literal {0}"), FText::FromString(BitflagsEnum->GetName()))
		: LOCTEXT("BitmaskLiteral_Title", "Make Bitmask Literal");
}

FText UK2Node_BitmaskLiteral::GetTooltipText() const
{
	return LOCTEXT("BitmaskLiteral_Tooltip", "Creates a set of flags from the ones that are chosen.");
}

FText UK2Node_BitmaskLiteral::GetMenuCategory() const
{
	return LOCTEXT("BitmaskLiteral_Category", "Utilities|Bitmask");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_EnumLiteral.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

const FName& UK2Node_EnumLiteral::GetEnumInputPinName()
{
	static const FName Name(TEXT("Enum"));
	return Name;
}

void UK2Node_EnumLiteral::AllocateDefaultPins()
{
	UEdGraphPin* const Input = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Byte, Enum.Get(), GetEnumInputPinName());
	Input->DefaultValue = Enum ? Enum->GetNameStringByIndex(0) : FString();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Byte, Enum.Get(), UEdGraphSchema_K2::PN_ReturnValue);
}

FText UK2Node_EnumLiteral::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("EnumLiteral_Title", "Literal enum {0}"), FText::FromString(Enum ? Enum->GetName() : TEXT("(bad enum)")));
}

FText UK2Node_EnumLiteral::GetMenuCategory() const
{
	return LOCTEXT("EnumLiteral_Category", "Utilities|Enum");
}

#undef LOCTEXT_NAMESPACE

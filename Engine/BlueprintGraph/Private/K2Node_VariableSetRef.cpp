#include "K2Node_VariableSetRef.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_VariableSetRef::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	FCreatePinParams Reference;
	Reference.bIsReference = true;
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Target"), Reference);
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Value"));
}

TArray<UEdGraphPin*> UK2Node_VariableSetRef::GetPinsOfOneType() const
{
	return {GetTargetPin(), GetValuePin()};
}

FText UK2Node_VariableSetRef::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UEdGraphPin* const Target = GetTargetPin();
	const bool bIsTyped = Target && Target->PinType.PinCategory != UEdGraphSchema_K2::PC_Wildcard;
	FEdGraphPinType Type = bIsTyped ? Target->PinType : FEdGraphPinType();
	Type.bIsReference = false;
	return bIsTyped ? FText::Format(LOCTEXT("SetRefVarNodeTitle_Typed", "Set {0}"), UEdGraphSchema_K2::TypeToText(Type))
					: LOCTEXT("SetRefVarNodeTitle", "Set By-Ref Var");
}

FText UK2Node_VariableSetRef::GetTooltipText() const
{
	return LOCTEXT("VariableSetRef_Tooltip", "Set the value of the variable that is linked to Target");
}

FText UK2Node_VariableSetRef::GetMenuCategory() const
{
	return LOCTEXT("VariableSetRef_Category", "Variables");
}

#undef LOCTEXT_NAMESPACE

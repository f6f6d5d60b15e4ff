#include "K2Node_TemporaryVariable.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_TemporaryVariable::AllocateDefaultPins()
{
	FEdGraphPinType Type = VariableType;
	Type.bIsReference = true;
	CreatePin(EGPD_Output, Type, TEXT("Variable"));
}

FText UK2Node_TemporaryVariable::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Type = UEdGraphSchema_K2::TypeToText(VariableType);
	return bIsPersistent ? FText::Format(LOCTEXT("PersistentLocalVariable", "Persistent Local {0}"), Type)
						 : FText::Format(LOCTEXT("LocalTemporaryVariable", "Local {0}"), Type);
}

FText UK2Node_TemporaryVariable::GetMenuCategory() const
{
	return LOCTEXT("TemporaryVariable_Category", "Macro|Local variables");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_AssignmentStatement.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_AssignmentStatement::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	FCreatePinParams Reference;
	Reference.bIsReference = true;
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Variable"), Reference);
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Value"));
}

TArray<UEdGraphPin*> UK2Node_AssignmentStatement::GetPinsOfOneType() const
{
	return {GetVariablePin(), GetValuePin()};
}

FText UK2Node_AssignmentStatement::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("AssignmentStatement_Title", "Assign");
}

FText UK2Node_AssignmentStatement::GetMenuCategory() const
{
	return LOCTEXT("AssignmentStatement_Category", "Macro");
}

#undef LOCTEXT_NAMESPACE

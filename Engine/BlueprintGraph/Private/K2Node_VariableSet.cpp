#include "K2Node_VariableSet.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_VariableSet::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	if (CreatePinForVariable(EGPD_Input))
	{
		UEdGraphPin* const Output = CreatePinForVariable(EGPD_Output, GetVariableOutputPinName());
		Output->PinToolTip =
			LOCTEXT("SetPinOutputTooltip", "Retrieves the value of the variable, can use instead of a separate Get node").ToString();
		CreatePinForSelf();
	}
}

FText UK2Node_VariableSet::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FormatTitle(LOCTEXT("SetVariable_Title", "Set {0}"));
}

FText UK2Node_VariableSet::GetTooltipText() const
{
	return FormatTitle(LOCTEXT("SetVariable_ToolTip", "Set the value of variable {0}"));
}

#undef LOCTEXT_NAMESPACE

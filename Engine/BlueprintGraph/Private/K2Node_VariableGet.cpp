#include "K2Node_VariableGet.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_VariableGet::SetPurity(bool bNewPurity)
{
	if (bNewPurity != bIsPureGet)
	{
		bIsPureGet = bNewPurity;
		CurrentVariation = bNewPurity ? EGetNodeVariation::Pure : EGetNodeVariation::ValidatedObject;
		ReconstructNode();
	}
}

void UK2Node_VariableGet::AllocateDefaultPins()
{
	if (!IsNodePure())
	{
		const bool bIsBranch = CurrentVariation == EGetNodeVariation::Branch;
		CreateExecPin();
		CreateThenPin()->PinFriendlyName = bIsBranch ? LOCTEXT("True", "True") : LOCTEXT("IsValid", "Is Valid");
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Else)->PinFriendlyName = bIsBranch
			? LOCTEXT("False", "False")
			: LOCTEXT("IsNotValid", "Is Not Valid");
	}
	if (UEdGraphPin* const Value = CreatePinForVariable(EGPD_Output))
	{
		Value->bDefaultValueIsIgnored = false;
		CreatePinForSelf();
	}
}

FText UK2Node_VariableGet::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FormatTitle(LOCTEXT("GetVariable_Title", "Get {0}"));
}

FText UK2Node_VariableGet::GetTooltipText() const
{
	return FormatTitle(LOCTEXT("GetVariable_ToolTip", "Read the value of variable {0}"));
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_SetVariableOnPersistentFrame.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SetVariableOnPersistentFrame::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
}

FText UK2Node_SetVariableOnPersistentFrame::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("SetVariableOnPersistentFrame_Title", "Set Variable On Persistent Frame");
}

#undef LOCTEXT_NAMESPACE

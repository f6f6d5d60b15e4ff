#include "K2Node_EvaluateLiveLinkFrameAtWorldTime.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EvaluateLiveLinkFrameAtWorldTime::CreateTimePins()
{
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Real, TEXT("WorldTime"), UEdGraphSchema_K2::PC_Double);
}

FText UK2Node_EvaluateLiveLinkFrameAtWorldTime::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("EvaluateLiveLinkFrameAtWorldTime_Title", "Evaluate Live Link Frame at World Time");
}

FText UK2Node_EvaluateLiveLinkFrameAtWorldTime::GetTooltipText() const
{
	return LOCTEXT("EvaluateLiveLinkFrameAtWorldTime_Tooltip", "Evaluates the frame that a subject had at a time of the world.");
}

#undef LOCTEXT_NAMESPACE

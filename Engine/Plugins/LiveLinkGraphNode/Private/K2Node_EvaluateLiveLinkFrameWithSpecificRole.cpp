#include "K2Node_EvaluateLiveLinkFrameWithSpecificRole.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

FText UK2Node_EvaluateLiveLinkFrameWithSpecificRole::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("EvaluateLiveLinkFrameWithSpecificRole_Title", "Evaluate Live Link Frame");
}

FText UK2Node_EvaluateLiveLinkFrameWithSpecificRole::GetTooltipText() const
{
	return LOCTEXT("EvaluateLiveLinkFrameWithSpecificRole_Tooltip", "Evaluates the current frame of a subject with a role.");
}

#undef LOCTEXT_NAMESPACE

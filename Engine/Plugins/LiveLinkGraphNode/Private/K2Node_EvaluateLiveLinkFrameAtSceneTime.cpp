#include "K2Node_EvaluateLiveLinkFrameAtSceneTime.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EvaluateLiveLinkFrameAtSceneTime::CreateTimePins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FindObject<UScriptStruct>(nullptr, TEXT("/Script/CoreUObject.Timecode")),
		TEXT("SceneTime"));
}

FText UK2Node_EvaluateLiveLinkFrameAtSceneTime::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("EvaluateLiveLinkFrameAtSceneTime_Title", "Evaluate Live Link Frame at Scene Time");
}

FText UK2Node_EvaluateLiveLinkFrameAtSceneTime::GetTooltipText() const
{
	return LOCTEXT("EvaluateLiveLinkFrameAtSceneTime_Tooltip", "Evaluates the frame that a subject had at a time code.");
}

#undef LOCTEXT_NAMESPACE

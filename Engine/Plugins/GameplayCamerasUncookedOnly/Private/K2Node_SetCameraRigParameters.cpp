#include "K2Node_SetCameraRigParameters.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SetCameraRigParameters::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct,
		FindObject<UScriptStruct>(nullptr, TEXT("/Script/GameplayCameras.BlueprintCameraEvaluationDataRef")), TEXT("CameraData"));
}

FText UK2Node_SetCameraRigParameters::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return CameraRig ? FText::Format(LOCTEXT("SetCameraRigParameters_Named", "Set {0} Parameters"), FText::FromString(CameraRig->GetName()))
					 : LOCTEXT("SetCameraRigParameters_Title", "Set Camera Rig Parameters");
}

FText UK2Node_SetCameraRigParameters::GetTooltipText() const
{
	return LOCTEXT("SetCameraRigParameters_Tooltip", "Sets values of the parameters that a camera rig has.");
}

FText UK2Node_SetCameraRigParameters::GetMenuCategory() const
{
	return LOCTEXT("SetCameraRigParameters_Category", "Gameplay Cameras");
}

#undef LOCTEXT_NAMESPACE

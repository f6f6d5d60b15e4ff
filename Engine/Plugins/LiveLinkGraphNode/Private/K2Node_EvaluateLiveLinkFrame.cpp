#include "K2Node_EvaluateLiveLinkFrame.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_EvaluateLiveLinkFrame::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin()->PinFriendlyName = LOCTEXT("EvaluateLiveLinkFrame_Valid", "Valid Frame");
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("FrameNotAvailable"))->PinFriendlyName = LOCTEXT(
		"EvaluateLiveLinkFrame_Invalid", "Invalid Frame");
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Class, FindObject<UClass>(nullptr, TEXT("/Script/LiveLinkInterface.LiveLinkRole")),
		TEXT("LiveLinkRole"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct,
		FindObject<UScriptStruct>(nullptr, TEXT("/Script/LiveLinkInterface.LiveLinkSubjectName")), TEXT("LiveLinkSubject"));
	CreateTimePins();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, TEXT("DataResult"));
}

TArray<UEdGraphPin*> UK2Node_EvaluateLiveLinkFrame::GetPinsOfOneType() const
{
	return {GetResultingDataPin()};
}

FText UK2Node_EvaluateLiveLinkFrame::GetMenuCategory() const
{
	return LOCTEXT("EvaluateLiveLinkFrame_Category", "LiveLink");
}

#undef LOCTEXT_NAMESPACE

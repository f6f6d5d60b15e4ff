#include "K2Node_UpdateVirtualSubjectDataBase.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_UpdateVirtualSubjectDataBase::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	CreateTargetPin(FindObject<UClass>(nullptr, TEXT("/Script/LiveLink.LiveLinkBlueprintVirtualSubject")));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Wildcard, TEXT("Struct"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Boolean, UEdGraphSchema_K2::PN_ReturnValue);
}

TArray<UEdGraphPin*> UK2Node_UpdateVirtualSubjectDataBase::GetPinsOfOneType() const
{
	return {GetStructPin()};
}

FText UK2Node_UpdateVirtualSubjectDataBase::GetMenuCategory() const
{
	return LOCTEXT("UpdateVirtualSubjectDataBase_Category", "LiveLink");
}

#undef LOCTEXT_NAMESPACE

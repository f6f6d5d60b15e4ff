#include "K2Node_InputTouch.h"

#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_InputTouch::AllocateDefaultPins()
{
	for (const TCHAR* const Name : {TEXT("Pressed"), TEXT("Released"), TEXT("Moved")})
	{
		CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, Name);
	}
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, TBaseStructure<FVector>::Get(), TEXT("Location"));
	CreatePin(
		EGPD_Output, UEdGraphSchema_K2::PC_Byte, FindObject<UEnum>(nullptr, TEXT("/Script/InputCore.ETouchIndex")), TEXT("FingerIndex"));
}

FText UK2Node_InputTouch::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("InputTouch_Title", "InputTouch");
}

FText UK2Node_InputTouch::GetMenuCategory() const
{
	return LOCTEXT("InputTouch_Category", "Input|Touch Input Events");
}

#undef LOCTEXT_NAMESPACE

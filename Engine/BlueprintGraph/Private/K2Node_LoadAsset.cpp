#include "K2Node_LoadAsset.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_LoadAsset::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Completed);
	CreatePin(EGPD_Input, GetInputCategory(), UObject::StaticClass(), GetInputPinName());
	CreatePin(EGPD_Output, GetOutputCategory(), UObject::StaticClass(), GetOutputPinName());
}

FText UK2Node_LoadAsset::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("LoadAsset_Title", "Async Load Asset");
}

FText UK2Node_LoadAsset::GetMenuCategory() const
{
	return LOCTEXT("LoadAsset_Category", "Utilities");
}

#undef LOCTEXT_NAMESPACE

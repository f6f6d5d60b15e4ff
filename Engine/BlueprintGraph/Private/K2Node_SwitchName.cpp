#include "K2Node_SwitchName.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SwitchName::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/Engine.KismetMathLibrary"), TEXT("NotEqual_NameName"));
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Name, TEXT("Selection"));
}

FText UK2Node_SwitchName::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("SwitchName_Title", "Switch on Name");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_SwitchString.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_SwitchString::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/Engine.KismetStringLibrary"), bIsCaseSensitive ? TEXT("NotEqual_StrStr") : TEXT("NotEqual_StriStri"));
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_String, TEXT("Selection"));
}

FText UK2Node_SwitchString::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("SwitchString_Title", "Switch on String");
}

#undef LOCTEXT_NAMESPACE

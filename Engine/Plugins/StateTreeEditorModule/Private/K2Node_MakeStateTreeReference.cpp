#include "K2Node_MakeStateTreeReference.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_MakeStateTreeReference::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, FindObject<UClass>(nullptr, TEXT("/Script/StateTreeModule.StateTree")),
		TEXT("StateTree"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct,
		FindObject<UScriptStruct>(nullptr, TEXT("/Script/StateTreeModule.StateTreeReference")), TEXT("StateTreeReference"));
}

FText UK2Node_MakeStateTreeReference::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("MakeStateTreeReference_Title", "Make StateTree Reference");
}

FText UK2Node_MakeStateTreeReference::GetTooltipText() const
{
	return LOCTEXT("MakeStateTreeReference_Tooltip", "Makes a reference to a state tree, with values for its parameters.");
}

FText UK2Node_MakeStateTreeReference::GetMenuCategory() const
{
	return LOCTEXT("MakeStateTreeReference_Category", "AI|StateTree");
}

#undef LOCTEXT_NAMESPACE

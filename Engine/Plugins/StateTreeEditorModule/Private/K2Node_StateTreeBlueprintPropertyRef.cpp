#include "K2Node_StateTreeBlueprintPropertyRef.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_StateTreeBlueprintPropertyRef::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_Else);
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct,
		FindObject<UScriptStruct>(nullptr, TEXT("/Script/StateTreeModule.StateTreeBlueprintPropertyRef")), TEXT("PropertyRef"));
	FCreatePinParams Reference;
	Reference.bIsReference = true;
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, UEdGraphSchema_K2::PN_ReturnValue, Reference);
}

TArray<UEdGraphPin*> UK2Node_StateTreeBlueprintPropertyRef::GetPinsOfOneType() const
{
	return {FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output)};
}

FText UK2Node_StateTreeBlueprintPropertyRef::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("StateTreeBlueprintPropertyRef_Title", "Get Property Reference");
}

FText UK2Node_StateTreeBlueprintPropertyRef::GetTooltipText() const
{
	return LOCTEXT("StateTreeBlueprintPropertyRef_Tooltip", "Gets the property that the reference leads to, if it leads to one.");
}

FText UK2Node_StateTreeBlueprintPropertyRef::GetMenuCategory() const
{
	return LOCTEXT("StateTreeBlueprintPropertyRef_Category", "AI|StateTree");
}

#undef LOCTEXT_NAMESPACE

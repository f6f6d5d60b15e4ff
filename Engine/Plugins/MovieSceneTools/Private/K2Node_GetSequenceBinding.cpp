#include "K2Node_GetSequenceBinding.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetSequenceBinding::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct,
		FindObject<UScriptStruct>(nullptr, TEXT("/Script/MovieScene.MovieSceneObjectBindingID")), TEXT("Output"));
}

FText UK2Node_GetSequenceBinding::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GetSequenceBinding_Title", "Get Sequence Binding");
}

FText UK2Node_GetSequenceBinding::GetTooltipText() const
{
	return LOCTEXT("GetSequenceBinding_Tooltip", "Gets an object binding of a level sequence.");
}

FText UK2Node_GetSequenceBinding::GetMenuCategory() const
{
	return LOCTEXT("GetSequenceBinding_Category", "Sequencer");
}

#undef LOCTEXT_NAMESPACE

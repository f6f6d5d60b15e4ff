#include "K2Node_InputDebugKey.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_InputDebugKey::UK2Node_InputDebugKey(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bExecuteWhenPaused(false)
	, bControl(false)
	, bAlt(false)
	, bShift(false)
	, bCommand(false)
{
}

void UK2Node_InputDebugKey::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("Pressed"));
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("Released"));
	CreatePinWithDefault(EGPD_Output, UEdGraphSchema_K2::PC_Struct, TEXT("Key"), NAME_None, FKey::StaticStruct());
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, FindObject<UScriptStruct>(nullptr, TEXT("/Script/EnhancedInput.InputActionValue")), TEXT("ActionValue"));
}

FText UK2Node_InputDebugKey::GetKeyText() const
{
	FString Text;
	Text += bControl ? TEXT("Ctrl+") : TEXT("");
	Text += bAlt ? TEXT("Alt+") : TEXT("");
	Text += bShift ? TEXT("Shift+") : TEXT("");
	Text += bCommand ? TEXT("Cmd+") : TEXT("");
	return FText::FromString(Text + InputKey.GetDisplayName().ToString());
}

FText UK2Node_InputDebugKey::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("InputDebugKey_Title", "Debug Key {0}"), GetKeyText());
}

FText UK2Node_InputDebugKey::GetTooltipText() const
{
	return FText::Format(LOCTEXT("InputKey_Tooltip", "Events for when the {0} key is pressed or released."), GetKeyText());
}

FText UK2Node_InputDebugKey::GetMenuCategory() const
{
	return LOCTEXT("KeyEventsCategory", "Input|Debug Events");
}

#undef LOCTEXT_NAMESPACE

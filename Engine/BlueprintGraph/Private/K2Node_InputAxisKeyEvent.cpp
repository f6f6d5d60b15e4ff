#include "K2Node_InputAxisKeyEvent.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_InputAxisKeyEvent::UK2Node_InputAxisKeyEvent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetDelegateSignature(TEXT("InputAxisHandlerDynamicSignature__DelegateSignature"));
}

void UK2Node_InputAxisKeyEvent::Initialize(const FKey InAxisKey)
{
	AxisKey = InAxisKey;
	CustomFunctionName = MakeInternalName(TEXT("InpAxisKeyEvt"), AxisKey.ToString());
}

void UK2Node_InputAxisKeyEvent::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	CreateValuePin(TEXT("AxisValue"), UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Float);
}

FText UK2Node_InputAxisKeyEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("InputAxisKeyEvent_Title", "{0}"), AxisKey.GetDisplayName());
}

FText UK2Node_InputAxisKeyEvent::GetMenuCategory() const
{
	return LOCTEXT("InputAxisKeyEvent_Category", "Input|Axis Key Events");
}

#undef LOCTEXT_NAMESPACE

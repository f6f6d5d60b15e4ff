#include "K2Node_InputAxisEvent.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_InputAxisEvent::UK2Node_InputAxisEvent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetDelegateSignature(TEXT("InputAxisHandlerDynamicSignature__DelegateSignature"));
}

void UK2Node_InputAxisEvent::Initialize(const FName AxisName)
{
	InputAxisName = AxisName;
	CustomFunctionName = MakeInternalName(TEXT("InpAxisEvt"), InputAxisName.ToString());
}

void UK2Node_InputAxisEvent::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	CreateValuePin(TEXT("AxisValue"), UEdGraphSchema_K2::PC_Real, UEdGraphSchema_K2::PC_Float);
}

FText UK2Node_InputAxisEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("InputAxisEvent_Title", "InputAxis {0}"), FText::FromName(InputAxisName));
}

FText UK2Node_InputAxisEvent::GetMenuCategory() const
{
	return LOCTEXT("InputAxisEvent_Category", "Input|Axis Events");
}

#undef LOCTEXT_NAMESPACE

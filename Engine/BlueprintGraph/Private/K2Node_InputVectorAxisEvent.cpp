#include "K2Node_InputVectorAxisEvent.h"

#include "UObject/NoExportTypes.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_InputVectorAxisEvent::UK2Node_InputVectorAxisEvent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	SetDelegateSignature(TEXT("InputVectorAxisHandlerDynamicSignature__DelegateSignature"));
}

void UK2Node_InputVectorAxisEvent::Initialize(const FKey InAxisKey)
{
	AxisKey = InAxisKey;
	CustomFunctionName = MakeInternalName(TEXT("InpVectorAxisEvt"), AxisKey.ToString());
}

void UK2Node_InputVectorAxisEvent::AllocateDefaultPins()
{
	UK2Node_Event::AllocateDefaultPins();
	CreateValuePin(TEXT("AxisValue"), UEdGraphSchema_K2::PC_Struct, NAME_None, TBaseStructure<FVector>::Get());
}

#undef LOCTEXT_NAMESPACE

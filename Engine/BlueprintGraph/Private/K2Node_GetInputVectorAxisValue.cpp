#include "K2Node_GetInputVectorAxisValue.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetInputVectorAxisValue::Initialize(const FKey AxisKey)
{
	Super::Initialize(AxisKey);
	FunctionReference.SetSelfMember(FName(TEXT("GetInputVectorAxisValue")));
}

FText UK2Node_GetInputVectorAxisValue::GetTooltipText() const
{
	return FText::Format(
		LOCTEXT("GetInputVectorAxis_Tooltip",
			"Returns the current value of input axis key {0}. If input is disabled for the actor the value will be (0, 0, 0)."),
		InputAxisKey.GetDisplayName());
}

#undef LOCTEXT_NAMESPACE

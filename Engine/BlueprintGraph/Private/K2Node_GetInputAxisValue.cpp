#include "K2Node_GetInputAxisValue.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetInputAxisValue::Initialize(const FName AxisName)
{
	InputAxisName = AxisName;
	bIsPureFunc = true;
	bIsConstFunc = true;
	FunctionReference.SetSelfMember(FName(TEXT("GetInputAxisValue")));
}

void UK2Node_GetInputAxisValue::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	SetFixedParameter(TEXT("InputAxisName"), InputAxisName.ToString());
}

FText UK2Node_GetInputAxisValue::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("GetInputAxis_Name", "Get {0}"), FText::FromName(InputAxisName));
}

FText UK2Node_GetInputAxisValue::GetMenuCategory() const
{
	return LOCTEXT("AxisValuesCategory", "Input|Axis Values");
}

#undef LOCTEXT_NAMESPACE

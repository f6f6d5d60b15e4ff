#include "K2Node_GetInputAxisKeyValue.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_GetInputAxisKeyValue::Initialize(const FKey AxisKey)
{
	InputAxisKey = AxisKey;
	static const FName FunctionName(TEXT("GetInputAxisKeyValue"));
	const UFunction* const Function = AActor::StaticClass()->FindFunctionByName(FunctionName);
	bIsPureFunc = !Function || Function->HasAnyFunctionFlags(FUNC_BlueprintPure);
	bIsConstFunc = true;
	FunctionReference.SetSelfMember(FunctionName);
}

void UK2Node_GetInputAxisKeyValue::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	SetFixedParameter(TEXT("InputAxisKey"), InputAxisKey.ToString());
}

FText UK2Node_GetInputAxisKeyValue::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("GetInputAxisKey_Name", "Get {0}"), InputAxisKey.GetDisplayName());
}

FText UK2Node_GetInputAxisKeyValue::GetMenuCategory() const
{
	return LOCTEXT("AxisValuesCategory", "Input|Axis Values");
}

#undef LOCTEXT_NAMESPACE

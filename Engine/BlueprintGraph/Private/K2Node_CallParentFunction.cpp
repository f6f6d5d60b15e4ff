#include "K2Node_CallParentFunction.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_CallParentFunction::SetFromFunction(const UFunction* Function)
{
	Super::SetFromFunction(Function);
	if (Function)
	{
		bIsFinalFunction = true;
		FunctionReference.SetFromField<UFunction>(Function, false);
	}
}

UEdGraphPin* UK2Node_CallParentFunction::CreateSelfPin(const UFunction* Function)
{
	UEdGraphPin* const Pin = Super::CreateSelfPin(Function);
	Pin->bHidden = true;
	return Pin;
}

FText UK2Node_CallParentFunction::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UFunction* const Function = GetTargetFunction();
	const FText Name = Function ? GetUserFacingFunctionName(Function) : FText::FromName(FunctionReference.GetMemberName());
	return FText::Format(LOCTEXT("CallSuperFunction", "Parent: {0}"), Name);
}

#undef LOCTEXT_NAMESPACE

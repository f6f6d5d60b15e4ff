#include "K2Node_FunctionTerminator.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

bool UK2Node_FunctionTerminator::HasKnownDefinition() const
{
	// A function of a parent that this host does not know keeps its pins.
	return UserDefinedPins.Num() > 0 || !FunctionReference.GetMemberParentClass() || FindSignatureFunction() != nullptr;
}

UFunction* UK2Node_FunctionTerminator::FindSignatureFunction() const
{
	return FunctionReference.GetMemberParentClass() ? FunctionReference.ResolveMember<UFunction>(GetBlueprintClassFromNode()) : nullptr;
}

bool UK2Node_FunctionTerminator::CreatePinsForFunctionEntryExit(const UFunction* Function, bool bForFunctionEntry)
{
	return ForEachParameter(Function, [this, bForFunctionEntry](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (IsFunctionInput(Parameter) == bForFunctionEntry)
			{
				UEdGraphPin* const Pin = CreatePinWithDefault(bForFunctionEntry ? EGPD_Output : EGPD_Input, Type, Parameter.GetFName());
				GeneratePinTooltip(*Pin, FText::GetEmpty());
			} });
}

#undef LOCTEXT_NAMESPACE

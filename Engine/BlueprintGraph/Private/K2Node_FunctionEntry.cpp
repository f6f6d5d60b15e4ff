#include "K2Node_FunctionEntry.h"

#include "EdGraph/EdGraph.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

int32 UK2Node_FunctionEntry::GetFunctionFlags() const
{
	const UFunction* const Function = FindSignatureFunction();
	return (Function ? static_cast<int32>(Function->FunctionFlags) & ~FUNC_Native : 0) | ExtraFlags;
}

bool UK2Node_FunctionEntry::CanCreateUserDefinedPin(
	const FEdGraphPinType& InPinType, EEdGraphPinDirection InDesiredDirection, FText& OutErrorMessage)
{
	if (InDesiredDirection == EGPD_Input)
	{
		OutErrorMessage = LOCTEXT("AddInputPinError", "Cannot add input pins to function entry node!");
		return false;
	}
	return Super::CanCreateUserDefinedPin(InPinType, InDesiredDirection, OutErrorMessage);
}

void UK2Node_FunctionEntry::AllocateDefaultPins()
{
	CreateThenPin();
	if (const UFunction* const Function = FindSignatureFunction())
	{
		CreatePinsForFunctionEntryExit(Function, true);
	}
	Super::AllocateDefaultPins();
}

FText UK2Node_FunctionEntry::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UFunction* const Function = FindSignatureFunction();
	if (Function)
	{
		return Function->GetDisplayNameText();
	}
	const UEdGraph* const Graph = GetGraph();
	const FString Name = CustomGeneratedFunctionName.IsNone() ? Graph ? Graph->GetName() : FString()
															  : CustomGeneratedFunctionName.ToString();
	return FText::FromString(FName::NameToDisplayString(Name, false));
}

#undef LOCTEXT_NAMESPACE

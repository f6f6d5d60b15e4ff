#include "K2Node_DelegateSet.h"

#include "UObject/DelegateProperty.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

UFunction* UK2Node_DelegateSet::GetDelegateSignature() const
{
	const FMulticastDelegateProperty* const Property =
		DelegatePropertyClass ? FindFProperty<FMulticastDelegateProperty>(DelegatePropertyClass.Get(), DelegatePropertyName) : nullptr;
	return Property ? Property->SignatureFunction : nullptr;
}

bool UK2Node_DelegateSet::HasKnownDefinition() const
{
	return GetDelegateSignature() != nullptr;
}

void UK2Node_DelegateSet::AllocateDefaultPins()
{
	CreateExecPin();
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, DelegatePropertyClass ? DelegatePropertyClass->GetAuthoritativeClass() : nullptr,
		DelegatePropertyName);
	CreateThenPin();
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, UEdGraphSchema_K2::PN_DelegateEntry);
	ForEachParameter(GetDelegateSignature(), [this](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (IsFunctionInput(Parameter))
			{
				CreatePin(EGPD_Output, Type, Parameter.GetFName());
			} });
}

FText UK2Node_DelegateSet::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("Assign_Name", "Assign {0}"), FText::FromName(DelegatePropertyName));
}

FText UK2Node_DelegateSet::GetTooltipText() const
{
	return FText::Format(LOCTEXT("Create_Event_Handler", "Create an event handler for {0}"), FText::FromName(DelegatePropertyName));
}

#undef LOCTEXT_NAMESPACE

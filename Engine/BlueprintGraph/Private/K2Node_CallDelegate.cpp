#include "K2Node_CallDelegate.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_CallDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	const UFunction* const Signature = GetDelegateSignature();
	ForEachParameter(Signature, [this, Signature](FProperty& Parameter, const FEdGraphPinType& Type)
		{
			if (IsFunctionInput(Parameter))
			{
				GetK2Schema()->SetPinDefaultValue(CreatePin(EGPD_Input, Type, Parameter.GetFName()), Signature, &Parameter);
			} });
}

FText UK2Node_CallDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("CallDelegate_Title", "Call {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

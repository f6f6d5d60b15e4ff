#include "K2Node_CallDelegate.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_CallDelegate::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	const UFunction* const Signature = GetDelegateSignature();
	for (TFieldIterator<FProperty> Parameter(Signature); Parameter && Parameter->HasAnyPropertyFlags(CPF_Parm); ++Parameter)
	{
		FEdGraphPinType Type;
		const bool bIsInput = !Parameter->HasAnyPropertyFlags(CPF_OutParm) || Parameter->HasAnyPropertyFlags(CPF_ReferenceParm);
		if (bIsInput && GetK2Schema()->ConvertPropertyToPinType(*Parameter, Type))
		{
			UEdGraphPin* const Pin = CreatePin(EGPD_Input, Type, Parameter->GetFName());
			GetK2Schema()->SetPinDefaultValue(Pin, Signature, *Parameter);
		}
	}
}

FText UK2Node_CallDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("CallDelegate_Title", "Call {0}"), GetPropertyDisplayName());
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_Message.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UEdGraphPin* UK2Node_Message::CreateSelfPin(const UFunction* Function)
{
	// Any object may be asked: what does not implement the interface does nothing.
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, UObject::StaticClass(), UEdGraphSchema_K2::PN_Self);
	Pin->PinFriendlyName = LOCTEXT("Target", "Target");
	return Pin;
}

FText UK2Node_Message::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Name = GetTargetFunction() ? GetUserFacingFunctionName(GetTargetFunction())
										   : FText::FromName(FunctionReference.GetMemberName());
	if (TitleType != ENodeTitleType::FullTitle)
	{
		return FText::Format(LOCTEXT("MessageName", "{0} (Message)"), Name);
	}
	const UClass* const Class = FunctionReference.GetMemberParentClass();
	return FText::Format(
		LOCTEXT("CallInterface_Title", "{0}\nUsing Interface {1}"), Name, FText::FromString(Class ? Class->GetName() : FString()));
}

#undef LOCTEXT_NAMESPACE

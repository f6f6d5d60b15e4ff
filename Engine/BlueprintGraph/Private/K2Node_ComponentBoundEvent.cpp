#include "K2Node_ComponentBoundEvent.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_ComponentBoundEvent::InitializeComponentBoundEventParams(
	const FObjectProperty* InComponentProperty, const FMulticastDelegateProperty* InDelegateProperty)
{
	if (!InComponentProperty || !InDelegateProperty)
	{
		return;
	}
	ComponentPropertyName = InComponentProperty->GetFName();
	DelegatePropertyName = InDelegateProperty->GetFName();
	DelegateOwnerClass = InDelegateProperty->GetOwnerClass();
	BindToDispatcher(*InDelegateProperty, ComponentPropertyName);
}

UFunction* UK2Node_ComponentBoundEvent::FindEventSignatureFunction() const
{
	UFunction* const Signature = FindDispatcherSignature(DelegateOwnerClass, DelegatePropertyName);
	return Signature ? Signature : Super::FindEventSignatureFunction();
}

FText UK2Node_ComponentBoundEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(
		LOCTEXT("ComponentBoundEvent_Title", "{0} ({1})"), GetTargetDelegateDisplayName(), FText::FromName(ComponentPropertyName));
}

FText UK2Node_ComponentBoundEvent::GetTooltipText() const
{
	return GetDispatcherToolTip(DelegateOwnerClass, DelegatePropertyName);
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_ActorBoundEvent.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_ActorBoundEvent::InitializeActorBoundEventParams(AActor* InEventOwner, const FMulticastDelegateProperty* InDelegateProperty)
{
	if (!InEventOwner || !InDelegateProperty)
	{
		return;
	}
	EventOwner = InEventOwner;
	DelegatePropertyName = InDelegateProperty->GetFName();
	DelegateOwnerClass = InDelegateProperty->GetOwnerClass();
	BindToDispatcher(*InDelegateProperty, InEventOwner->GetFName());
}

UFunction* UK2Node_ActorBoundEvent::FindEventSignatureFunction() const
{
	UFunction* const Signature = FindDispatcherSignature(DelegateOwnerClass, DelegatePropertyName);
	return Signature ? Signature : Super::FindEventSignatureFunction();
}

FText UK2Node_ActorBoundEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Owner = EventOwner ? FText::FromString(EventOwner->GetName()) : LOCTEXT("None", "None");
	return FText::Format(LOCTEXT("ActorBoundEvent_Title", "{0} ({1})"), GetTargetDelegateDisplayName(), Owner);
}

FText UK2Node_ActorBoundEvent::GetTooltipText() const
{
	return GetDispatcherToolTip(DelegateOwnerClass, DelegatePropertyName);
}

#undef LOCTEXT_NAMESPACE

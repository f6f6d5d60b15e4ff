#include "K2Node_ActorBoundEvent.h"

#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

UFunction* UK2Node_ActorBoundEvent::FindEventSignatureFunction() const
{
	const FMulticastDelegateProperty* const Property = GetTargetDelegateProperty();
	return Property ? Property->SignatureFunction : Super::FindEventSignatureFunction();
}

FText UK2Node_ActorBoundEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Owner = EventOwner ? FText::FromString(EventOwner->GetName()) : LOCTEXT("None", "None");
	return FText::Format(LOCTEXT("ActorBoundEvent_Title", "{0} ({1})"), GetTargetDelegateDisplayName(), Owner);
}

#undef LOCTEXT_NAMESPACE

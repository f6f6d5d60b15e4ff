#include "K2Node_ComponentBoundEvent.h"

#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_ComponentBoundEvent::InitializeComponentBoundEventParams(const FObjectProperty* InComponentProperty, const FMulticastDelegateProperty* InDelegateProperty)
{
	if (!InComponentProperty || !InDelegateProperty)
	{
		return;
	}
	ComponentPropertyName = InComponentProperty->GetFName();
	DelegatePropertyName = InDelegateProperty->GetFName();
	DelegateOwnerClass = InDelegateProperty->GetOwnerClass();
	EventReference.SetFromField<UFunction>(InDelegateProperty->SignatureFunction, false);
	CustomFunctionName = FName(*FString::Printf(TEXT("BndEvt__%s_%s_%s_%s"), GetBlueprint() ? *GetBlueprint()->GetName() : TEXT(""), *ComponentPropertyName.ToString(), *GetName(),
		*InDelegateProperty->SignatureFunction->GetName()));
	bOverrideFunction = false;
	bInternalEvent = true;
}

UFunction* UK2Node_ComponentBoundEvent::FindEventSignatureFunction() const
{
	const FMulticastDelegateProperty* const Property = GetTargetDelegateProperty();
	return Property ? Property->SignatureFunction : Super::FindEventSignatureFunction();
}

FText UK2Node_ComponentBoundEvent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("ComponentBoundEvent_Title", "{0} ({1})"), GetTargetDelegateDisplayName(), FText::FromName(ComponentPropertyName));
}

FText UK2Node_ComponentBoundEvent::GetTooltipText() const
{
	const FMulticastDelegateProperty* const Property = GetTargetDelegateProperty();
	return Property ? Property->GetToolTipText() : FText::FromName(DelegatePropertyName);
}

#undef LOCTEXT_NAMESPACE

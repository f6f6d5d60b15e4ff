#include "K2Node_BaseMCDelegate.h"

#include "Engine/Blueprint.h"
#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_BaseMCDelegate::SetFromProperty(const FProperty* Property, bool bSelfContext, UClass* OwnerClass)
{
	DelegateReference.SetFromField<FProperty>(Property, bSelfContext, OwnerClass);
}

FProperty* UK2Node_BaseMCDelegate::GetProperty() const
{
	return GetPropertyName().IsNone() ? nullptr : DelegateReference.ResolveMember<FMulticastDelegateProperty>(GetBlueprintClassFromNode());
}

bool UK2Node_BaseMCDelegate::HasKnownDefinition() const
{
	return GetProperty() != nullptr;
}

FText UK2Node_BaseMCDelegate::GetPropertyDisplayName() const
{
	const FProperty* const Property = GetProperty();
	return Property ? Property->GetDisplayNameText() : FText::FromString(FName::NameToDisplayString(GetPropertyName().ToString(), false));
}

UFunction* UK2Node_BaseMCDelegate::GetDelegateSignature() const
{
	const FMulticastDelegateProperty* const Property = CastField<FMulticastDelegateProperty>(GetProperty());
	return Property ? Property->SignatureFunction : nullptr;
}

void UK2Node_BaseMCDelegate::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	CreateTargetPin(DelegateReference.IsSelfContext() && GetBlueprint()
			? GetBlueprint()->GeneratedClass.Get()
			: DelegateReference.GetMemberParentClass(GetBlueprintClassFromNode()));
}

void UK2Node_BaseMCDelegate::FollowRenames()
{
	const FName SavedName = GetPropertyName();
	const UFunction* const Signature = DelegateReference.GetMemberGuid().IsValid() ? GetDelegateSignature() : nullptr;
	UEdGraphPin* const Pin = Signature && GetPropertyName() != SavedName ? GetDelegatePin() : nullptr;
	if (!Pin)
	{
		return;
	}
	const FSimpleMemberReference Saved = Pin->PinType.PinSubCategoryMemberReference;
	FSimpleMemberReference Now;
	FMemberReference::FillSimpleMemberReference<UFunction>(Signature, Now);
	Pin->PinType.PinSubCategoryMemberReference = Now;
	for (UEdGraphPin* const Event : Pin->LinkedTo)
	{
		FSimpleMemberReference& Reference = Event->PinType.PinSubCategoryMemberReference;
		Reference = Reference == Saved ? Now : Reference;
	}
}

void UK2Node_BaseMCDelegate::CreateDelegatePin()
{
	UEdGraphPin* const Pin = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Delegate, UEdGraphSchema_K2::PN_Delegate);
	Pin->PinFriendlyName = LOCTEXT("PinFriendlyDelegatetName", "Event");
	Pin->PinType.bIsConst = true;
	Pin->PinType.bIsReference = true;
	Pin->bDefaultValueIsIgnored = true;
	FMemberReference::FillSimpleMemberReference<UFunction>(GetDelegateSignature(), Pin->PinType.PinSubCategoryMemberReference);
}

FText UK2Node_BaseMCDelegate::GetMenuCategory() const
{
	return LOCTEXT("EventDispatcherCategory", "Event Dispatchers");
}

#undef LOCTEXT_NAMESPACE

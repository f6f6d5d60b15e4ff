#include "K2Node_CreateDelegate.h"

#include "Engine/Blueprint.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_CreateDelegate::AllocateDefaultPins()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Object, UObject::StaticClass(), UEdGraphSchema_K2::PN_Self)->PinFriendlyName = LOCTEXT(
		"CreateDelegate_ObjectInputName", "Object");
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Delegate, TEXT("OutputDelegate"))->PinFriendlyName = LOCTEXT(
		"CreateDelegate_DelegateOutName", "Event");
}

void UK2Node_CreateDelegate::SetFunction(FName Name)
{
	SelectedFunctionName = Name;
	SelectedFunctionGuid.Invalidate();
	UBlueprint::GetFunctionGuidFromClassByFieldName(GetScopeClass(), Name, SelectedFunctionGuid);
}

void UK2Node_CreateDelegate::ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins)
{
	AllocateDefaultPins();
	if (const UEdGraphPin* const Old = FindOldPin(OldPins, GetDelegateOutPin()->PinName, EGPD_Output))
	{
		GetDelegateOutPin()->PinType = Old->PinType;
	}
}

void UK2Node_CreateDelegate::FollowRenames()
{
	const FName CurrentName = SelectedFunctionGuid.IsValid()
		? UBlueprint::GetFunctionNameFromClassByGuid(GetScopeClass(), SelectedFunctionGuid)
		: NAME_None;
	if (!CurrentName.IsNone())
	{
		SelectedFunctionName = CurrentName;
	}
}

void UK2Node_CreateDelegate::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	// The signature is the one of what the event is bound to.
	if (Pin == GetDelegateOutPin())
	{
		Pin->PinType.PinSubCategoryMemberReference = Pin->LinkedTo.Num() > 0 ? Pin->LinkedTo[0]->PinType.PinSubCategoryMemberReference
																			 : FSimpleMemberReference();
	}
}

UClass* UK2Node_CreateDelegate::GetScopeClass() const
{
	const UEdGraphPin* const Object = GetObjectInPin();
	const UEdGraphPin* const Linked = Object && Object->LinkedTo.Num() > 0 ? Object->LinkedTo[0] : nullptr;
	return Linked && Linked->PinType.PinSubCategory != UEdGraphSchema_K2::PSC_Self
		? Cast<UClass>(Linked->PinType.PinSubCategoryObject.Get())
		: GetBlueprintClassFromNode();
}

FText UK2Node_CreateDelegate::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("CreateDelegate_Title", "Create Event");
}

FText UK2Node_CreateDelegate::GetMenuCategory() const
{
	return LOCTEXT("CreateDelegate_Category", "Event Dispatchers");
}

#undef LOCTEXT_NAMESPACE

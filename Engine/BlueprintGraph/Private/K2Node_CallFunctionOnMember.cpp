#include "K2Node_CallFunctionOnMember.h"

#define LOCTEXT_NAMESPACE "K2Node"

UEdGraphPin* UK2Node_CallFunctionOnMember::CreateSelfPin(const UFunction* Function)
{
	UEdGraphPin* const Pin = CreateTargetPin(MemberVariableToCallOn.GetMemberParentClass(GetBlueprintClassFromNode()));
	Pin->bHidden = MemberVariableToCallOn.IsSelfContext();
	return Pin;
}

FText UK2Node_CallFunctionOnMember::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const FText Name = Super::GetNodeTitle(ENodeTitleType::ListView);
	return FText::Format(LOCTEXT("CallFunctionOnMember_Title", "{0} ({1})"), Name, FText::FromName(MemberVariableToCallOn.GetMemberName()));
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_ClassDynamicCast.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_ClassDynamicCast::CreateResultPin()
{
	const FString Name = UEdGraphSchema_K2::PN_CastedValuePrefix + FName::NameToDisplayString(GetTargetDisplayName(), false);
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Class, TargetType.Get(), FName(*Name));
}

bool UK2Node_ClassDynamicCast::CanCast(const FEdGraphPinType& Type) const
{
	return Type.PinCategory == UEdGraphSchema_K2::PC_Class || Type.PinCategory == UEdGraphSchema_K2::PC_Wildcard;
}

FText UK2Node_ClassDynamicCast::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return TargetType ? FText::Format(LOCTEXT("ClassCastTo", "Cast To {0} Class"), FText::FromString(GetTargetDisplayName()))
					  : LOCTEXT("BadClassCastNode", "Bad cast node");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_Literal.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_Literal::AllocateDefaultPins()
{
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Object, ObjectRef ? ObjectRef->GetClass() : UObject::StaticClass(),
		ObjectRef ? ObjectRef->GetFName() : FName(TEXT("Value")));
}

FText UK2Node_Literal::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return ObjectRef ? FText::FromString(ObjectRef->GetName()) : LOCTEXT("Literal_Unknown", "Unknown");
}

#undef LOCTEXT_NAMESPACE

#include "K2Node_BreakStruct.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UK2Node_BreakStruct::AllocateDefaultPins()
{
	if (!StructType)
	{
		return;
	}
	UEdGraphPin* const Input = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, StructType.Get(), StructType->GetFName());
	Input->PinType.bIsConst = true;
	Input->PinType.bIsReference = true;
	Input->bDefaultValueIsIgnored = true;
	FOptionalPinManager Manager;
	Manager.RebuildPropertyList(ShowPinForProperties, StructType);
	Manager.CreateVisiblePins(ShowPinForProperties, StructType, EGPD_Output, this);
}

FText UK2Node_BreakStruct::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("BreakStruct_Title", "Break {0}"), GetStructName());
}

FText UK2Node_BreakStruct::GetTooltipText() const
{
	return FText::Format(LOCTEXT("BreakStruct_Tooltip", "Adds a node that breaks a '{0}' into its member fields."), GetStructName());
}

#undef LOCTEXT_NAMESPACE

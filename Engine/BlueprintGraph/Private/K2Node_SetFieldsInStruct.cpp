#include "K2Node_SetFieldsInStruct.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
struct FSetFieldsPins : public FOptionalPinManager
{
	void GetRecordDefaults(FProperty* TestProperty, FOptionalPinFromProperty& Record) const override
	{
		Record.bShowPin = false;
		Record.bCanToggleVisibility = true;
	}
};
}

void UK2Node_SetFieldsInStruct::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin();
	if (!StructType)
	{
		return;
	}
	FCreatePinParams Reference;
	Reference.bIsReference = true;
	UEdGraphPin* const Input = CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, StructType.Get(), TEXT("StructRef"), Reference);
	UEdGraphPin* const Output = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, StructType.Get(), TEXT("StructOut"), Reference);
	Input->PinFriendlyName = LOCTEXT("SetFieldsInStruct_In", "Struct Ref");
	Input->bDefaultValueIsIgnored = true;
	Output->PinFriendlyName = LOCTEXT("SetFieldsInStruct_Out", "Struct Out");
	Input->AssignByRefPassThroughConnection(Output);
	FSetFieldsPins Manager;
	Manager.RebuildPropertyList(ShowPinForProperties, StructType);
	Manager.CreateVisiblePins(ShowPinForProperties, StructType, EGPD_Input, this);
}

void UK2Node_SetFieldsInStruct::SetMemberVisible(FName MemberName, bool bVisible)
{
	FOptionalPinFromProperty* const Record = ShowPinForProperties.FindByPredicate([MemberName](const FOptionalPinFromProperty& Item)
		{ return Item.PropertyName == MemberName; });
	if (Record)
	{
		Modify();
		Record->bShowPin = bVisible;
		ReconstructNode();
	}
}

FText UK2Node_SetFieldsInStruct::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("SetFieldsInStruct_Title", "Set members in {0}"), GetStructName());
}

FText UK2Node_SetFieldsInStruct::GetTooltipText() const
{
	return FText::Format(LOCTEXT("SetFieldsInStruct_Tooltip", "Adds a node that modifies a '{0}'"), GetStructName());
}

#undef LOCTEXT_NAMESPACE

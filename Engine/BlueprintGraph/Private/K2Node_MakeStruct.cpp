#include "K2Node_MakeStruct.h"

#include "UObject/Class.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

namespace
{
struct FMakeStructPins : public FOptionalPinManager
{
	bool CanTreatPropertyAsOptional(FProperty* TestProperty) const override
	{
		return TestProperty->HasAnyPropertyFlags(CPF_Edit | CPF_BlueprintVisible) &&
			!TestProperty->HasAnyPropertyFlags(CPF_BlueprintReadOnly);
	}
};
}

void UK2Node_MakeStruct::AllocateDefaultPins()
{
	if (!StructType)
	{
		return;
	}
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Struct, StructType.Get(), StructType->GetFName());
	TArray<uint8> Memory;
	Memory.SetNumZeroed(StructType->GetStructureSize() + StructType->GetMinAlignment());
	uint8* const Defaults = Align(Memory.GetData(), StructType->GetMinAlignment());
	StructType->InitializeStruct(Defaults);
	FMakeStructPins Manager;
	Manager.RebuildPropertyList(ShowPinForProperties, StructType);
	Manager.CreateVisiblePins(ShowPinForProperties, StructType, EGPD_Input, this, nullptr, Defaults);
	StructType->DestroyStruct(Defaults);
}

FText UK2Node_MakeStruct::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return FText::Format(LOCTEXT("MakeStruct_Title", "Make {0}"), GetStructName());
}

FText UK2Node_MakeStruct::GetTooltipText() const
{
	return FText::Format(LOCTEXT("MakeStruct_Tooltip", "Adds a node that create a {0} from its members"), GetStructName());
}

#undef LOCTEXT_NAMESPACE

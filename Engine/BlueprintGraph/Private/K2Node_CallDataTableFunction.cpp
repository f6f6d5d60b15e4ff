#include "K2Node_CallDataTableFunction.h"

#include "K2Node_GetDataTableRow.h"
#include "UObject/Class.h"

void UK2Node_CallDataTableFunction::RefreshRowType()
{
	const UFunction* const Function = GetTargetFunction();
	const FString* const Row = Function ? Function->FindMetaData(FBlueprintMetadata::MD_CustomStructureParam) : nullptr;
	const FString* const Table = Function ? Function->FindMetaData(TEXT("DataTablePin")) : nullptr;
	UEdGraphPin* const RowPin = Row ? FindPin(*Row) : nullptr;
	const UEdGraphPin* const TablePin = Table ? FindPin(*Table, EGPD_Input) : nullptr;
	UScriptStruct* const Struct = TablePin && TablePin->LinkedTo.Num() == 0
		? UK2Node_GetDataTableRow::FindRowStruct(TablePin->DefaultObject)
		: nullptr;
	const bool bIsUnknown = TablePin && TablePin->DefaultObject && !Struct;
	if (RowPin && RowPin->LinkedTo.Num() == 0 && !bIsUnknown)
	{
		RowPin->PinType.PinCategory = Struct ? UEdGraphSchema_K2::PC_Struct : UEdGraphSchema_K2::PC_Wildcard;
		RowPin->PinType.PinSubCategoryObject = Struct;
	}
}

void UK2Node_CallDataTableFunction::PostReconstructNode()
{
	Super::PostReconstructNode();
	RefreshRowType();
}

void UK2Node_CallDataTableFunction::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	RefreshRowType();
}

void UK2Node_CallDataTableFunction::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	RefreshRowType();
}

#include "K2Node_GetDataTableRow.h"

#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"
#include "UObject/UnrealType.h"

#define LOCTEXT_NAMESPACE "K2Node"

UScriptStruct* UK2Node_GetDataTableRow::FindRowStruct(const UObject* DataTable)
{
	const FObjectProperty* const Property = DataTable ? FindFProperty<FObjectProperty>(DataTable->GetClass(), TEXT("RowStruct")) : nullptr;
	return Property ? Cast<UScriptStruct>(Property->GetObjectPropertyValue_InContainer(DataTable)) : nullptr;
}

void UK2Node_GetDataTableRow::AllocateDefaultPins()
{
	CreateExecPin();
	CreateThenPin()->PinFriendlyName = LOCTEXT("GetDataTableRow_Row_Found", "Row Found");
	CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Exec, TEXT("RowNotFound"))->PinFriendlyName = LOCTEXT(
		"GetDataTableRow_Row_Not_Found", "Row Not Found");
	UEdGraphPin* const Table = CreatePin(
		EGPD_Input, UEdGraphSchema_K2::PC_Object, FindObject<UClass>(nullptr, TEXT("/Script/Engine.DataTable")), TEXT("DataTable"));
	GeneratePinTooltip(*Table, LOCTEXT("GetDataTableRow_TableTip", "The table you want to retrieve a row from"));
	UEdGraphPin* const Row = CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Name, TEXT("RowName"));
	GeneratePinTooltip(*Row, LOCTEXT("GetDataTableRow_RowTip", "The name of the row to retrieve from the table"));
	UEdGraphPin* const Result = CreatePin(EGPD_Output, UEdGraphSchema_K2::PC_Wildcard, UEdGraphSchema_K2::PN_ReturnValue);
	Result->PinFriendlyName = LOCTEXT("GetDataTableRow_Output_Row", "Out Row");
	GeneratePinTooltip(*Result, LOCTEXT("GetDataTableRow_ResultTip", "The returned row, if found"));
}

void UK2Node_GetDataTableRow::RefreshOutputPinType()
{
	UEdGraphPin* const Result = GetResultPin();
	const UEdGraphPin* const Table = GetDataTablePin();
	if (!Result || !Table)
	{
		return;
	}
	const FEdGraphPinType* const Linked = Result->LinkedTo.Num() > 0 ? &Result->LinkedTo[0]->PinType : nullptr;
	UObject* const OfLink = Linked && Linked->PinCategory == UEdGraphSchema_K2::PC_Struct ? Linked->PinSubCategoryObject.Get() : nullptr;
	UObject* const OfTable = Table->LinkedTo.Num() == 0 ? FindRowStruct(Table->DefaultObject) : nullptr;
	UObject* const RowStruct = OfTable ? OfTable : OfLink;
	if (!RowStruct && Table->DefaultObject && Table->LinkedTo.Num() == 0)
	{
		// The table's rows are not known here: what was loaded or pasted stays.
		return;
	}
	Result->PinType.ResetToDefaults();
	Result->PinType.PinCategory = RowStruct ? UEdGraphSchema_K2::PC_Struct : UEdGraphSchema_K2::PC_Wildcard;
	Result->PinType.PinSubCategoryObject = RowStruct;
}

void UK2Node_GetDataTableRow::PostReconstructNode()
{
	Super::PostReconstructNode();
	RefreshOutputPinType();
}

void UK2Node_GetDataTableRow::NotifyPinConnectionListChanged(UEdGraphPin* Pin)
{
	Super::NotifyPinConnectionListChanged(Pin);
	RefreshOutputPinType();
}

void UK2Node_GetDataTableRow::PinDefaultValueChanged(UEdGraphPin* Pin)
{
	Super::PinDefaultValueChanged(Pin);
	if (Pin == GetDataTablePin())
	{
		RefreshOutputPinType();
	}
}

FText UK2Node_GetDataTableRow::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UEdGraphPin* const Table = GetDataTablePin();
	if (TitleType == ENodeTitleType::MenuTitle || TitleType == ENodeTitleType::ListView || !Table)
	{
		return LOCTEXT("GetDataTableRow_ListTitle", "Get Data Table Row");
	}
	if (Table->LinkedTo.Num() > 0)
	{
		return LOCTEXT("GetDataTableRow_Title_Unknown", "Get Data Table Row");
	}
	return FText::Format(LOCTEXT("GetDataTableRow_Title", "Get Data Table Row {0}"),
		FText::FromString(Table->DefaultObject ? Table->DefaultObject->GetName() : TEXT("NONE")));
}

FText UK2Node_GetDataTableRow::GetTooltipText() const
{
	return LOCTEXT("GetDataTableRow_Tooltip", "Attempts to retrieve a TableRow from a DataTable via it's RowName");
}

FText UK2Node_GetDataTableRow::GetMenuCategory() const
{
	return LOCTEXT("GetDataTableRow_Category", "Utilities");
}

#undef LOCTEXT_NAMESPACE

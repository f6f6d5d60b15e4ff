#pragma once

#include "K2Node.h"

#include "K2Node_GetDataTableRow.generated.h"

/** Looks a row up in a data table by its name. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetDataTableRow : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetDataTablePin() const { return FindPin(TEXT("DataTable"), EGPD_Input); }
	UEdGraphPin* GetRowNamePin() const { return FindPin(TEXT("RowName"), EGPD_Input); }
	UEdGraphPin* GetRowNotFoundPin() const { return FindPin(TEXT("RowNotFound"), EGPD_Output); }
	UEdGraphPin* GetResultPin() const { return FindPin(UEdGraphSchema_K2::PN_ReturnValue, EGPD_Output); }
	/** The struct that a table's rows are of; null without a table and while the struct is not known. */
	static UScriptStruct* FindRowStruct(const UObject* DataTable);
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void PostReconstructNode() override;

private:
	/** The result is a row of the table, or of what it is linked to while no table is chosen. */
	void RefreshOutputPinType();
};

#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CallDataTableFunction.generated.h"

/** A call of a function of data tables, whose row is of the struct that the table has. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallDataTableFunction : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void PostReconstructNode() override;

private:
	/** Gives the row the type of the table's rows where nothing is linked to it. */
	void RefreshRowType();
};

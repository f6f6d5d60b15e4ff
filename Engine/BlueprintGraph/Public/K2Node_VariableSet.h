#pragma once

#include "K2Node_Variable.h"

#include "K2Node_VariableSet.generated.h"

/** Sets the value of a variable */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_VariableSet : public UK2Node_Variable
{
	GENERATED_BODY()

public:
	/** Name of the output that gives the value back. */
	FName GetVariableOutputPinName() const { return FName(TEXT("Output_Get")); }
	virtual void AllocateDefaultPins() override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

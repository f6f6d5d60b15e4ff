#pragma once

#include "K2Node_ExecutionSequence.h"

#include "K2Node_MultiGate.generated.h"

/** Executes a series of pins in order */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MultiGate : public UK2Node_ExecutionSequence
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetResetPin() const { return FindPin(TEXT("Reset")); }
	UEdGraphPin* GetIsRandomPin() const { return FindPin(TEXT("IsRandom")); }
	UEdGraphPin* GetLoopPin() const { return FindPin(TEXT("Loop")); }
	UEdGraphPin* GetStartIndexPin() const { return FindPin(TEXT("StartIndex")); }

protected:
	virtual FName GetPinNameGivenIndex(int32 Index) const override;
	virtual void CreateInputs() override;

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CallArrayFunction.generated.h"

/** A call of a function of arrays, whose pins take the type of the array that is linked to it. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallArrayFunction : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	/** The array pin that metadata of the function names. */
	UEdGraphPin* GetTargetArrayPin() const;
	virtual bool ShouldDrawCompact() const override { return false; }

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

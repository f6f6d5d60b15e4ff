#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_CallParentFunction.generated.h"

/** A call of the parent class's version of a function. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CallParentFunction : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	virtual void SetFromFunction(const UFunction* Function) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual UEdGraphPin* CreateSelfPin(const UFunction* Function) override;
};

#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_Message.generated.h"

/** A call of an interface's function on an object that may implement the interface. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Message : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	virtual bool IsNodePure() const override { return false; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual bool AllowsExecPins() const override { return true; }
	virtual UEdGraphPin* CreateSelfPin(const UFunction* Function) override;
};

#pragma once

#include "K2Node.h"

#include "K2Node_Knot.generated.h"

/** A node that passes its input on, to lead a wire around others. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Knot : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetInputPin() const { return Pins[0]; }
	UEdGraphPin* GetOutputPin() const { return Pins[1]; }
	/** Takes the type of what the chain of reroute nodes is linked to, and hands it on along the chain. */
	void PropagatePinType();
	virtual bool IsNodeSafeToIgnore() const override { return true; }
	virtual bool IsNodePure() const override { return Pins.Num() > 1 && !UEdGraphSchema_K2::IsExecPin(*Pins[0]); }
	virtual UEdGraphPin* GetPassThroughPin(const UEdGraphPin* FromPin) const override;
	virtual void AllocateDefaultPins() override;
	virtual void PostReconstructNode() override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
};

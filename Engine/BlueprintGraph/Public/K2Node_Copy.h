#pragma once

#include "K2Node.h"

#include "K2Node_Copy.generated.h"

/** Copies a value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Copy : public UK2Node
{
	GENERATED_BODY()

public:
	UEdGraphPin* GetInputReferencePin() const { return Pins[0]; }
	UEdGraphPin* GetCopyResultPin() const { return Pins[1]; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

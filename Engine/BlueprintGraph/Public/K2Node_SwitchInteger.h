#pragma once

#include "K2Node_Switch.h"

#include "K2Node_SwitchInteger.generated.h"

/** Selects an output that matches the input value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SwitchInteger : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 StartIndex = 0;

	virtual void AddPinToSwitchNode() override;
	virtual void RemovePinFromSwitchNode(UEdGraphPin* TargetPin) override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;

protected:
	virtual void CreateSelectionPin() override;
	virtual void CreateCasePins() override;

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

#pragma once

#include "K2Node_Switch.h"

#include "K2Node_SwitchName.generated.h"

/** Selects an output that matches the input value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SwitchName : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FName> PinNames;

	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual void CreateSelectionPin() override;
	virtual TArray<FName>* GetNamedCases() override { return &PinNames; }
};

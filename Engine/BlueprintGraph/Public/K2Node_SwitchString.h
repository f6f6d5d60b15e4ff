#pragma once

#include "K2Node_Switch.h"

#include "K2Node_SwitchString.generated.h"

/** Selects an output that matches the input value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SwitchString : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FName> PinNames;

	UPROPERTY()
	uint32 bIsCaseSensitive : 1 = false;

	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual void CreateSelectionPin() override;
	virtual TArray<FName>* GetNamedCases() override { return &PinNames; }
};

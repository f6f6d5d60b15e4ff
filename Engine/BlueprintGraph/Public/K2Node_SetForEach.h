#pragma once

#include "K2Node.h"

#include "K2Node_SetForEach.generated.h"

/** Loop over each element of a set */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SetForEach : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString ValueName = TEXT("Set Value");

	UEdGraphPin* GetContainerPin() const { return FindPin(TEXT("SetPin"), EGPD_Input); }
	UEdGraphPin* GetBreakPin() const { return FindPin(TEXT("BreakPin"), EGPD_Input); }
	UEdGraphPin* GetCompletedPin() const { return FindPin(TEXT("CompletedPin"), EGPD_Output); }
	UEdGraphPin* GetValuePin() const { return FindPin(TEXT("ValuePin"), EGPD_Output); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

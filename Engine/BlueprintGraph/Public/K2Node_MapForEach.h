#pragma once

#include "K2Node.h"

#include "K2Node_MapForEach.generated.h"

/** Loop over each element of a map */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_MapForEach : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString KeyName = TEXT("Map Key");

	UPROPERTY()
	FString ValueName = TEXT("Map Value");

	UEdGraphPin* GetContainerPin() const { return FindPin(TEXT("MapPin"), EGPD_Input); }
	UEdGraphPin* GetBreakPin() const { return FindPin(TEXT("BreakPin"), EGPD_Input); }
	UEdGraphPin* GetCompletedPin() const { return FindPin(TEXT("CompletedPin"), EGPD_Output); }
	UEdGraphPin* GetKeyPin() const { return FindPin(TEXT("KeyPin"), EGPD_Output); }
	UEdGraphPin* GetValuePin() const { return FindPin(TEXT("ValuePin"), EGPD_Output); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
};

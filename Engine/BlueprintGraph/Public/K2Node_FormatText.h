#pragma once

#include "K2Node.h"

#include "K2Node_FormatText.generated.h"

/** Builds a formatted string from available format argument values. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_FormatText : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FName> PinNames;

	UEdGraphPin* GetFormatPin() const { return FindPin(TEXT("Format")); }
	UEdGraphPin* FindArgumentPin(const FName InPinName) const { return FindPin(InPinName, EGPD_Input); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

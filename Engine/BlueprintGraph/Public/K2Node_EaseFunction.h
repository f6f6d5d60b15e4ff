#pragma once

#include "K2Node.h"

#include "K2Node_EaseFunction.generated.h"

/** Interpolates from value A to value B using a user specified easing function */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_EaseFunction : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FString EaseFunctionName;

	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual void PostReconstructNode() override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;

private:
	/** Shows the settings that the chosen function has. */
	void RefreshPinVisibility();
};

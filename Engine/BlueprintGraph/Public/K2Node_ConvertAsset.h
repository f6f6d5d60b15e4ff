#pragma once

#include "K2Node.h"

#include "K2Node_ConvertAsset.generated.h"

/** Turns a soft reference into the object or class that it leads to, if that is loaded. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ConvertAsset : public UK2Node
{
	GENERATED_BODY()

public:
	/** The class that the soft reference is of; UObject's while none is linked. */
	UClass* GetTargetClass() const;
	/** True when the reference is to an asset's class rather than to the asset. */
	bool IsAssetClassType() const;
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;
	virtual FText GetCompactNodeTitle() const override;
	virtual bool ShouldDrawCompact() const override { return true; }
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PostReconstructNode() override;
	virtual bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const override;

private:
	UEdGraphPin* GetInputPin() const { return FindPin(TEXT("Asset"), EGPD_Input); }
	UEdGraphPin* GetOutputPin() const { return FindPin(TEXT("Object"), EGPD_Output); }
	const UEdGraphPin* GetLinkedPin() const;
	void RefreshPinTypes();
};

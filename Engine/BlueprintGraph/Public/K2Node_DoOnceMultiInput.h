#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"

#include "K2Node_DoOnceMultiInput.generated.h"

/** Goes on by the way that execution came in, the first time alone, until it is reset. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_DoOnceMultiInput : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumAdditionalInputs = 0;

	UEdGraphPin* GetResetPin() const { return FindPin(TEXT("Reset"), EGPD_Input); }
	UEdGraphPin* GetStartClosedPin() const { return FindPin(TEXT("StartClosed"), EGPD_Input); }
	/** "B In" of the second way, and "B Out" where it goes on. */
	static FName GetNameForPin(int32 PinIndex, bool bIn);
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual bool CanAddPin() const override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

private:
	void CreateWay(int32 WayIndex);
	/** The inputs of the ways, or their outputs, in their order. */
	TArray<UEdGraphPin*> GetWays(EEdGraphPinDirection Direction) const;
};

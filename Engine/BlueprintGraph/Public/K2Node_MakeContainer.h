#pragma once

#include "K2Node.h"

#include "K2Node_MakeContainer.generated.h"

/** Makes a container of its elements. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_MakeContainer : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumInputs = 1;

	UEdGraphPin* GetOutputPin() const;
	EPinContainerType GetContainerType() const { return ContainerType; }
	void AddInputPin();
	void RemoveInputPin(UEdGraphPin* Pin);
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetMenuCategory() const override;

protected:
	EPinContainerType ContainerType = EPinContainerType::None;
	virtual FName GetOutputPinName() const { return FName(TEXT("Container")); }
	virtual FName GetPinName(int32 PinIndex) const { return FName(*FString::Printf(TEXT("[%d]"), PinIndex)); }
	/** The pins of one element: keys have a value beside them. */
	virtual void CreateElementPins(int32 PinIndex, const FEdGraphPinType& Type);
	FEdGraphPinType GetElementType() const;
};

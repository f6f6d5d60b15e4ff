#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"

#include "K2Node_MakeContainer.generated.h"

/** Makes a container of its elements. */
UCLASS(abstract)
class BLUEPRINTGRAPH_API UK2Node_MakeContainer : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	/** Number of elements; of a map, of pairs. */
	UPROPERTY()
	int32 NumInputs = 1;

	UK2Node_MakeContainer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UEdGraphPin* GetOutputPin() const;
	EPinContainerType GetContainerType() const { return ContainerType; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual FText GetMenuCategory() const override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

protected:
	EPinContainerType ContainerType = EPinContainerType::None;

	virtual FName GetOutputPinName() const { return FName(TEXT("Container")); }
	/** The name of the input at a place among the inputs. */
	virtual FName GetPinName(int32 PinIndex) const { return FName(*FString::Printf(TEXT("[%d]"), PinIndex)); }
	/** How many inputs an element has: a map's have a key and a value. */
	virtual int32 GetPinsPerElement() const { return 1; }
	/** The type that an input at a place takes of the output. */
	virtual FEdGraphPinType GetInputType(int32 PinIndex) const;
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override { return Pins; }
	/** Retypes the pins by what is linked to them. */
	virtual void FollowLinks() { FollowLinkedType(Pins); }
	/** The inputs in their order, without the sub-pins of those that are split. */
	TArray<UEdGraphPin*> GetInputPins() const;

private:
	void CreateElementPins(int32 ElementIndex);
};

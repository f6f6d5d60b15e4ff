#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"

#include "K2Node_ExecutionSequence.generated.h"

/** Executes a series of pins in order */
UCLASS(meta = (Keywords = "sequence"))
class BLUEPRINTGRAPH_API UK2Node_ExecutionSequence : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UK2Node_ExecutionSequence(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds a further output: the interface speaks of inputs, which are what most nodes have more of. */
	virtual void AddInputPin() override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override { RemovePinFromExecutionNode(Pin); }
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;
	/** Adds an output behind TargetPin, or before it; the names of those that follow move on by one. */
	void InsertPinIntoExecutionNode(UEdGraphPin* TargetPin, bool bBefore);
	bool CanRemoveExecutionPin() const;
	void RemovePinFromExecutionNode(UEdGraphPin* TargetPin);
	/** The output of the place, or null. */
	UEdGraphPin* GetThenPinGivenIndex(int32 Index) const;
	virtual void AllocateDefaultPins() override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;

protected:
	virtual FName GetPinNameGivenIndex(int32 Index) const;
	void GetOutputPins(TArray<UEdGraphPin*>& OutPins) const;
	virtual void CreateInputs();
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

private:
	void InsertOutput(int32 Place);
	void RenameOutputs();
};

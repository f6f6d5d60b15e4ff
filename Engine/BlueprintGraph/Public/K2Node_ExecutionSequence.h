#pragma once

#include "K2Node.h"

#include "K2Node_ExecutionSequence.generated.h"

/** Executes a series of pins in order */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_ExecutionSequence : public UK2Node
{
	GENERATED_BODY()

public:
	/** Adds a further output. */
	void AddInputPin();
	bool CanRemoveExecutionPin() const;
	void RemovePinFromExecutionNode(UEdGraphPin* TargetPin);
	/** The output of the place, or null. */
	UEdGraphPin* GetThenPinGivenIndex(int32 Index) const;
	virtual void AllocateDefaultPins() override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual FText GetKeywords() const override;

protected:
	virtual FName GetPinNameGivenIndex(int32 Index) const;
	void GetOutputPins(TArray<UEdGraphPin*>& OutPins) const;
	virtual void CreateInputs();
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

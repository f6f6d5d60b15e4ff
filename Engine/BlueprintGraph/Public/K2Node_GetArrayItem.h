#pragma once

#include "K2Node.h"

#include "K2Node_GetArrayItem.generated.h"

/** Given an array and an index, returns the item of the array at that index */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetArrayItem : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	bool bReturnByRefDesired = true;

	UEdGraphPin* GetTargetArrayPin() const { return Pins[0]; }
	UEdGraphPin* GetIndexPin() const { return Pins[1]; }
	UEdGraphPin* GetResultPin() const { return Pins[2]; }
	void SetDesiredReturnType(bool bAsReference);
	virtual FText GetCompactNodeTitle() const override;
	virtual bool ShouldDrawCompact() const override { return true; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
};

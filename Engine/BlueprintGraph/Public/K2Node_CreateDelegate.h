#pragma once

#include "K2Node.h"

#include "K2Node_CreateDelegate.generated.h"

/** Makes an event of one of an object's functions */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_CreateDelegate : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	FName SelectedFunctionName;

	UPROPERTY()
	FGuid SelectedFunctionGuid;

	FName GetFunctionName() const { return SelectedFunctionName; }
	/** Takes the function's id along, where it has one, so that a rename is followed. */
	void SetFunction(FName Name);
	UEdGraphPin* GetDelegateOutPin() const { return FindPin(TEXT("OutputDelegate")); }
	UEdGraphPin* GetObjectInPin() const { return FindPin(UEdGraphSchema_K2::PN_Self); }
	/** The class whose functions can be chosen. */
	UClass* GetScopeClass() const;
	virtual bool HasDeprecatedReference() const override { return false; }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void PostReconstructNode() override { FollowRenames(); }
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;

protected:
	virtual void FollowRenames() override;
};

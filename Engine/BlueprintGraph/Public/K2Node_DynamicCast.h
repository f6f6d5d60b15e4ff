#pragma once

#include "K2Node.h"
#include "Templates/SubclassOf.h"

#include "K2Node_DynamicCast.generated.h"

/** Tries to treat an object as one of another class. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_DynamicCast : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TSubclassOf<UObject> TargetType;

	UPROPERTY()
	bool bIsPureCast = false;

	UEdGraphPin* GetValidCastPin() const { return FindPin(UEdGraphSchema_K2::PN_CastSucceeded, EGPD_Output); }
	UEdGraphPin* GetInvalidCastPin() const { return FindPin(UEdGraphSchema_K2::PN_CastFailed, EGPD_Output); }
	UEdGraphPin* GetCastResultPin() const;
	virtual UEdGraphPin* GetCastSourcePin() const { return FindPin(UEdGraphSchema_K2::PN_ObjectToCast, EGPD_Input); }
	UEdGraphPin* GetBoolSuccessPin() const { return FindPin(TEXT("bSuccess")); }
	void SetPurity(bool bNewPurity);
	virtual bool IsNodePure() const override { return bIsPureCast; }
	virtual bool IsConnectionDisallowed(const UEdGraphPin* MyPin, const UEdGraphPin* OtherPin, FString& OutReason) const override;
	virtual void AllocateDefaultPins() override;
	virtual bool HasKnownDefinition() const override;
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void ValidateNodeDuringCompilation(class FCompilerResultsLog& MessageLog) const override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;
	virtual FText GetMenuCategory() const override;

protected:
	/** "BP Player" of the class that BP_Player makes. */
	FString GetTargetDisplayName() const;
	virtual FName GetSourcePinName() const { return UEdGraphSchema_K2::PN_ObjectToCast; }
	virtual void CreateResultPin();
	/** The category of what is cast. */
	virtual bool CanCast(const FEdGraphPinType& Type) const;
};

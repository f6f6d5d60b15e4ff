#pragma once

#include "K2Node.h"
#include "K2Node_AddPinInterface.h"
#include "UObject/Class.h"

#include "K2Node_Select.generated.h"

/** Returns the option of the index. */
UCLASS(meta = (Keywords = "Ternary If"))
class BLUEPRINTGRAPH_API UK2Node_Select : public UK2Node, public IK2Node_AddPinInterface
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 NumOptionPins = 2;

	UPROPERTY()
	FEdGraphPinType IndexPinType;

	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	UPROPERTY()
	TArray<FName> EnumEntries;

	UK2Node_Select(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UEdGraphPin* GetReturnValuePin() const { return FindPin(UEdGraphSchema_K2::PN_ReturnValue); }
	UEdGraphPin* GetIndexPin() const { return FindPin(TEXT("Index")); }
	void GetOptionPins(TArray<UEdGraphPin*>& OptionPins) const;
	UEnum* GetEnum() const { return Enum; }
	void SetEnum(UEnum* InEnum, bool bForceRegenerate = false);
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;

	// IK2Node_AddPinInterface
	virtual void AddInputPin() override;
	virtual bool CanAddPin() const override;
	virtual void RemoveInputPin(UEdGraphPin* Pin) override;
	virtual bool CanRemovePin(const UEdGraphPin* Pin) const override;

protected:
	/** The options and the result. */
	virtual TArray<UEdGraphPin*> GetPinsOfOneType() const override;
	virtual bool TakesLinkedContainer() const override { return true; }

private:
	void TakeIndexType(const FEdGraphPinType& Type);
	/** Makes the options and the result wildcards again when nothing is linked to them and nobody gave them a value. */
	void FollowOptions();
};

#pragma once

#include "K2Node.h"
#include "UObject/Class.h"

#include "K2Node_Select.generated.h"

/** Returns the option of the index. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_Select : public UK2Node
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
	void AddInputPin();
	virtual bool CanAddPin() const;
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

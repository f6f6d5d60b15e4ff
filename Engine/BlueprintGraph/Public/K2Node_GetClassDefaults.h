#pragma once

#include "K2Node.h"

#include "K2Node_GetClassDefaults.generated.h"

/** Returns the values of the properties of a class's default object */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_GetClassDefaults : public UK2Node
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FOptionalPinFromProperty> ShowPinForProperties;

	UEdGraphPin* FindClassPin() const { return FindPin(TEXT("Class"), EGPD_Input); }
	UClass* GetInputClass() const;
	virtual bool HasKnownDefinition() const override { return IsKnownClassOrNone(GetInputClass()); }
	virtual void AllocateDefaultPins() override;
	virtual bool IsNodePure() const override { return true; }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual void NotifyPinConnectionListChanged(UEdGraphPin* Pin) override;
	virtual void PinDefaultValueChanged(UEdGraphPin* Pin) override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetMenuCategory() const override;
};

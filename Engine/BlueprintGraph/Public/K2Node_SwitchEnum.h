#pragma once

#include "K2Node_Switch.h"
#include "UObject/Class.h"

#include "K2Node_SwitchEnum.generated.h"

/** Selects an output that matches the input value */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_SwitchEnum : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<UEnum> Enum = nullptr;

	UPROPERTY()
	TArray<FName> EnumEntries;

	TArray<FText> EnumFriendlyNames;

	UK2Node_SwitchEnum(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UEnum* GetEnum() const { return Enum; }
	void SetEnum(UEnum* InEnum);
	virtual void ReloadEnum(UEnum* InEnum) { SetEnum(InEnum); }
	virtual void ReallocatePinsDuringReconstruction(TArray<UEdGraphPin*>& OldPins) override;
	virtual bool HasKnownDefinition() const override { return IsKnownEnum(Enum); }
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;

protected:
	virtual void CreateSelectionPin() override;
	virtual void CreateCasePins() override;
};

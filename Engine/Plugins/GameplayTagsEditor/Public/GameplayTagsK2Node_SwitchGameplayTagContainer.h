#pragma once

#include "GameplayTagContainer.h"
#include "K2Node_Switch.h"

#include "GameplayTagsK2Node_SwitchGameplayTagContainer.generated.h"

/** Selects an output that matches the input container of tags */
UCLASS()
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_SwitchGameplayTagContainer : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FGameplayTagContainer> PinContainers;

	UPROPERTY()
	TArray<FName> PinNames;

	UGameplayTagsK2Node_SwitchGameplayTagContainer(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual void CreateSelectionPin() override;
	virtual TArray<FName>* GetNamedCases() override { return &PinNames; }
	virtual void SetNumCaseValues(int32 Num) override { PinContainers.SetNum(Num); }
	virtual void RemoveCaseValue(int32 Index) override { PinContainers.RemoveAt(Index); }
};

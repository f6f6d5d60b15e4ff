#pragma once

#include "GameplayTagContainer.h"
#include "K2Node_Switch.h"

#include "GameplayTagsK2Node_SwitchGameplayTag.generated.h"

/** Selects an output that matches the input tag */
UCLASS()
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_SwitchGameplayTag : public UK2Node_Switch
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TArray<FGameplayTag> PinTags;

	UPROPERTY()
	TArray<FName> PinNames;

	UGameplayTagsK2Node_SwitchGameplayTag(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual void CreateSelectionPin() override;
	virtual TArray<FName>* GetNamedCases() override { return &PinNames; }
	virtual void SetNumCaseValues(int32 Num) override { PinTags.SetNum(Num); }
	virtual void RemoveCaseValue(int32 Index) override { PinTags.RemoveAt(Index); }
};

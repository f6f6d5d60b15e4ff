#pragma once

#include "GameplayTagsK2Node_MultiCompareGameplayTagContainer.h"

#include "GameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags.generated.h"

/** Checks a container of tags against several tags. */
UCLASS()
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags
	: public UGameplayTagsK2Node_MultiCompareGameplayTagContainer
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual UScriptStruct* GetCaseStruct() const override;
};

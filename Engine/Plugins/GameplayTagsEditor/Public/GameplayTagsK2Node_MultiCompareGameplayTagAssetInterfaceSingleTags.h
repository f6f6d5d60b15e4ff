#pragma once

#include "GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface.h"

#include "GameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags.generated.h"

/** Checks the tags of an object against several tags. */
UCLASS()
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags
	: public UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual UScriptStruct* GetCaseStruct() const override;
};

#pragma once

#include "GameplayTagsK2Node_MultiCompareBase.h"

#include "GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface.generated.h"

/** Checks the tags of an object against several containers. */
UCLASS()
class GAMEPLAYTAGSEDITOR_API UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface : public UGameplayTagsK2Node_MultiCompareBase
{
	GENERATED_BODY()

public:
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
	virtual FText GetTooltipText() const override;

protected:
	virtual void CreateOwnerPin() override;
	virtual UScriptStruct* GetCaseStruct() const override;
};

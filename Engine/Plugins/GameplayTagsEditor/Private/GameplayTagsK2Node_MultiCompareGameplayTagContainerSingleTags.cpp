#include "GameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags.h"

#include "GameplayTagContainer.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UScriptStruct* UGameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags::GetCaseStruct() const
{
	return FGameplayTag::StaticStruct();
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagContainerSingleTags_Title", "Compare Single Tags (Container)");
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagContainerSingleTags::GetTooltipText() const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagContainerSingleTags_Tooltip", "Checks a container of tags against several tags.");
}

#undef LOCTEXT_NAMESPACE

#include "GameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags.h"

#include "GameplayTagContainer.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UScriptStruct* UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags::GetCaseStruct() const
{
	return FGameplayTag::StaticStruct();
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagAssetInterfaceSingleTags_Title", "Compare Single Tags (Object)");
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterfaceSingleTags::GetTooltipText() const
{
	return LOCTEXT(
		"GameplayTagsMultiCompareGameplayTagAssetInterfaceSingleTags_Tooltip", "Checks the tags of an object against several tags.");
}

#undef LOCTEXT_NAMESPACE

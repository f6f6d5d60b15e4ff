#include "GameplayTagsK2Node_MultiCompareGameplayTagAssetInterface.h"

#include "GameplayTagContainer.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface::CreateOwnerPin()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Interface,
		FindObject<UClass>(nullptr, TEXT("/Script/GameplayTags.GameplayTagAssetInterface")), TEXT("Tagged Object"));
}

UScriptStruct* UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface::GetCaseStruct() const
{
	return FGameplayTagContainer::StaticStruct();
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagAssetInterface_Title", "Compare Tags (Object)");
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagAssetInterface::GetTooltipText() const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagAssetInterface_Tooltip", "Checks the tags of an object against several containers.");
}

#undef LOCTEXT_NAMESPACE

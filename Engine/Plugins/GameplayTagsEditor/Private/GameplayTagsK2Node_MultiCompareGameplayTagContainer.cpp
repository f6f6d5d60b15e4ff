#include "GameplayTagsK2Node_MultiCompareGameplayTagContainer.h"

#include "GameplayTagContainer.h"
#include "UObject/Class.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

void UGameplayTagsK2Node_MultiCompareGameplayTagContainer::CreateOwnerPin()
{
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FGameplayTagContainer::StaticStruct(), TEXT("Gameplay Tag Container"));
}

UScriptStruct* UGameplayTagsK2Node_MultiCompareGameplayTagContainer::GetCaseStruct() const
{
	return FGameplayTagContainer::StaticStruct();
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagContainer::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagContainer_Title", "Compare Tags (Container)");
}

FText UGameplayTagsK2Node_MultiCompareGameplayTagContainer::GetTooltipText() const
{
	return LOCTEXT("GameplayTagsMultiCompareGameplayTagContainer_Tooltip", "Checks a container of tags against several containers.");
}

#undef LOCTEXT_NAMESPACE

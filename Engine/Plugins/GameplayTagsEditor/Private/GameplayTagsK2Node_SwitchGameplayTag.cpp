#include "GameplayTagsK2Node_SwitchGameplayTag.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UGameplayTagsK2Node_SwitchGameplayTag::UGameplayTagsK2Node_SwitchGameplayTag(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;
}

void UGameplayTagsK2Node_SwitchGameplayTag::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/GameplayTags.BlueprintGameplayTagLibrary"), TEXT("NotEqual_TagTag"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FGameplayTag::StaticStruct(), TEXT("Selection"));
}

FText UGameplayTagsK2Node_SwitchGameplayTag::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsSwitchGameplayTag_Title", "Switch on Gameplay Tag");
}

FText UGameplayTagsK2Node_SwitchGameplayTag::GetTooltipText() const
{
	return LOCTEXT("GameplayTagsSwitchGameplayTag_Tooltip", "Selects an output that matches the input value");
}

#undef LOCTEXT_NAMESPACE

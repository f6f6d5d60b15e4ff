#include "GameplayTagsK2Node_SwitchGameplayTagContainer.h"

#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UGameplayTagsK2Node_SwitchGameplayTagContainer::UGameplayTagsK2Node_SwitchGameplayTagContainer(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
{
	OrphanedPinSaveMode = ESaveOrphanPinMode::SaveNone;
}

void UGameplayTagsK2Node_SwitchGameplayTagContainer::CreateSelectionPin()
{
	SetComparison(TEXT("/Script/GameplayTags.BlueprintGameplayTagLibrary"), TEXT("NotEqual_TagContainerTagContainer"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, FGameplayTagContainer::StaticStruct(), TEXT("Selection"));
}

FText UGameplayTagsK2Node_SwitchGameplayTagContainer::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	return LOCTEXT("GameplayTagsSwitchGameplayTagContainer_Title", "Switch on Gameplay Tag Container");
}

FText UGameplayTagsK2Node_SwitchGameplayTagContainer::GetTooltipText() const
{
	return LOCTEXT("GameplayTagsSwitchGameplayTagContainer_Tooltip", "Selects an output that matches the input value");
}

#undef LOCTEXT_NAMESPACE

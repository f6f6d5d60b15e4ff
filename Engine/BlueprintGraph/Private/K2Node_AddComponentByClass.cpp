#include "K2Node_AddComponentByClass.h"

#include "Components/ActorComponent.h"
#include "Components/SceneComponent.h"
#include "GameFramework/Actor.h"
#include "UObject/Class.h"
#include "UObject/NoExportTypes.h"
#include "UObject/UObjectGlobals.h"

#define LOCTEXT_NAMESPACE "K2Node"

UClass* UK2Node_AddComponentByClass::GetClassPinBaseClass() const
{
	return UActorComponent::StaticClass();
}

void UK2Node_AddComponentByClass::CreateOwnPins()
{
	CreateTargetPin(AActor::StaticClass());
	CreatePinWithDefault(EGPD_Input, UEdGraphSchema_K2::PC_Boolean, TEXT("bManualAttachment"));
	CreatePin(EGPD_Input, UEdGraphSchema_K2::PC_Struct, TBaseStructure<FTransform>::Get(), TEXT("RelativeTransform"));
}

void UK2Node_AddComponentByClass::CreatePinsForClass(const UClass* InClass)
{
	Super::CreatePinsForClass(InClass);
	const bool bIsInScene = InClass->IsChildOf(USceneComponent::StaticClass());
	for (UEdGraphPin* const Pin : {GetRelativeTransformPin(), GetManualAttachmentPin()})
	{
		Pin->bHidden = !bIsInScene;
	}
}

FText UK2Node_AddComponentByClass::GetBaseNodeTitle() const
{
	return LOCTEXT("AddComponentByClass_Base", "Add Component by Class");
}

FText UK2Node_AddComponentByClass::GetNodeTitleFormat() const
{
	return LOCTEXT("AddComponentByClass_Format", "Add {0}");
}

FText UK2Node_AddComponentByClass::GetNothingSelectedTitle() const
{
	return LOCTEXT("AddComponentByClass_None", "Add NONE");
}

FText UK2Node_AddComponentByClass::GetTooltipText() const
{
	return LOCTEXT("AddComponentByClass_Tooltip", "Dynamically add a component to an actor");
}

FText UK2Node_AddComponentByClass::GetMenuCategory() const
{
	return LOCTEXT("AddComponentByClass_Category", "Add Component");
}

#undef LOCTEXT_NAMESPACE

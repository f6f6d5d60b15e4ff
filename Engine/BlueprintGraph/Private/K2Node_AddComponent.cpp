#include "K2Node_AddComponent.h"

#include "Components/ActorComponent.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "UObject/Class.h"

#define LOCTEXT_NAMESPACE "K2Node"

UK2Node_AddComponent::UK2Node_AddComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bHasExposedVariable(false)
{
	FunctionReference.SetExternalMember(FName(TEXT("AddComponent")), AActor::StaticClass());
}

UActorComponent* UK2Node_AddComponent::GetTemplateFromNode() const
{
	const UBlueprint* const Blueprint = GetBlueprint();
	const UEdGraphPin* const NamePin = GetTemplateNamePin();
	if (Blueprint && NamePin)
	{
		for (UActorComponent* const Template : Blueprint->ComponentTemplates)
		{
			if (Template && Template->GetName() == NamePin->DefaultValue)
			{
				return Template;
			}
		}
	}
	return nullptr;
}

UClass* UK2Node_AddComponent::GetSpawnedType() const
{
	const UActorComponent* const Template = GetTemplateFromNode();
	return Template ? Template->GetClass() : TemplateType.Get();
}

void UK2Node_AddComponent::AllocateDefaultPins()
{
	Super::AllocateDefaultPins();
	static const TSet<FName> Internal = {TEXT("TemplateName"), TEXT("ComponentTemplateContext"), TEXT("bDeferredFinish")};
	for (UEdGraphPin* const Pin : Pins)
	{
		Pin->bHidden = Pin->bHidden || Internal.Contains(Pin->PinName);
	}
	UEdGraphPin* const Result = GetReturnValuePin();
	if (Result && GetSpawnedType())
	{
		Result->PinType.PinSubCategoryObject = GetSpawnedType();
	}
}

FText UK2Node_AddComponent::GetNodeTitle(ENodeTitleType::Type TitleType) const
{
	const UClass* const Type = GetSpawnedType();
	return Type ? FText::Format(LOCTEXT("AddClass", "Add {0}"), Type->GetDisplayNameText()) : LOCTEXT("AddComponent", "Add Component");
}

#undef LOCTEXT_NAMESPACE

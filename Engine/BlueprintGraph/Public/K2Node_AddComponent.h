#pragma once

#include "K2Node_CallFunction.h"

#include "K2Node_AddComponent.generated.h"

class UActorComponent;

/** Adds a component to the actor, made from a template of the Blueprint. */
UCLASS()
class BLUEPRINTGRAPH_API UK2Node_AddComponent : public UK2Node_CallFunction
{
	GENERATED_BODY()

public:
	UPROPERTY()
	uint32 bHasExposedVariable : 1;

	UPROPERTY()
	FString TemplateBlueprint;

	UPROPERTY()
	TObjectPtr<UClass> TemplateType = nullptr;

	UK2Node_AddComponent(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** The template that the "TemplateName" pin names; null when the Blueprint has no such template. */
	UActorComponent* GetTemplateFromNode() const;
	UClass* GetSpawnedType() const;
	UEdGraphPin* GetTemplateNamePin() const { return FindPin(TEXT("TemplateName")); }
	virtual void AllocateDefaultPins() override;
	virtual FText GetNodeTitle(ENodeTitleType::Type TitleType) const override;
};

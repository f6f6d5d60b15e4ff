#include "BlueprintComponentNodeSpawner.h"

#include "Components/ActorComponent.h"
#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "K2Node_AddComponent.h"
#include "UObject/UObjectGlobals.h"

UBlueprintComponentNodeSpawner* UBlueprintComponentNodeSpawner::Create(TSubclassOf<UActorComponent> InComponentClass, UObject* Outer)
{
	UBlueprintComponentNodeSpawner* const Spawner = NewObject<UBlueprintComponentNodeSpawner>(
		Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = UK2Node_AddComponent::StaticClass();
	Spawner->ComponentClass = InComponentClass;
	return Spawner;
}

FBlueprintNodeSignature UBlueprintComponentNodeSpawner::GetSpawnerSignature() const
{
	FBlueprintNodeSignature Signature = Super::GetSpawnerSignature();
	Signature.AddSubObject(ComponentClass.Get());
	return Signature;
}

UEdGraphNode* UBlueprintComponentNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const auto Customize = [this](UEdGraphNode* Node, bool bIsTemplate)
	{ CastChecked<UK2Node_AddComponent>(Node)->TemplateType = ComponentClass.Get(); };
	UK2Node_AddComponent* const Node = SpawnNode<UK2Node_AddComponent>(
		ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
	UBlueprint* const Blueprint = Node ? Node->GetBlueprint() : nullptr;
	UEdGraphPin* const NamePin = Node ? Node->GetTemplateNamePin() : nullptr;
	if (IsTemplateGraph(ParentGraph) || !Blueprint || !Blueprint->GeneratedClass || !NamePin)
	{
		return Node;
	}
	// Instances are made as copies of a component that the Blueprint keeps.
	Blueprint->Modify();
	UObject* const Outer = Blueprint->GeneratedClass.Get();
	const FName Name = MakeUniqueObjectName(Outer, ComponentClass.Get(), FName(*(TEXT("NODE_Add") + ComponentClass->GetName())));
	UActorComponent* const Template = NewObject<UActorComponent>(
		Outer, ComponentClass.Get(), Name, RF_ArchetypeObject | RF_Public | RF_Transactional);
	Blueprint->ComponentTemplates.Add(Template);
	NamePin->DefaultValue = Template->GetName();
	return Node;
}

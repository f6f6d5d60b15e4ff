#include "Components/SceneComponent.h"
#include "Engine/BlueprintGeneratedClass.h"
#include "Engine/SCS_Node.h"
#include "Engine/SimpleConstructionScript.h"
#include "GameFramework/Actor.h"
#include "UObject/UObjectHash.h"
#include "UObject/UnrealType.h"

namespace
{
/** The variable that a Blueprint has for each of its components. */
void SetComponentVariable(AActor& Actor, FName Variable, UActorComponent* Component)
{
	const FObjectPropertyBase* const Property = FindFProperty<FObjectPropertyBase>(Actor.GetClass(), Variable);
	if (Property && Component->IsA(Property->PropertyClass))
	{
		Property->SetObjectPropertyValue(Property->ContainerPtrToValuePtr<void>(&Actor), Component);
	}
}
}

UActorComponent* USCS_Node::ExecuteNodeOnActor(AActor* Actor, USceneComponent* ParentComponent)
{
	UActorComponent* const Template = GetActualComponentTemplate(Cast<UBlueprintGeneratedClass>(Actor->GetClass()));
	UActorComponent* const Component = Actor->CreateComponentFromTemplate(Template, InternalVariableName);
	if (!Component)
	{
		return nullptr;
	}
	Component->CreationMethod = EComponentCreationMethod::SimpleConstructionScript;
	SetComponentVariable(*Actor, InternalVariableName, Component);
	USceneComponent* const SceneComponent = Cast<USceneComponent>(Component);
	if (SceneComponent && ParentComponent)
	{
		SceneComponent->SetupAttachment(ParentComponent, AttachToName);
	}
	else if (SceneComponent && !Actor->GetRootComponent())
	{
		Actor->SetRootComponent(SceneComponent);
	}
	for (USCS_Node* const Child : ChildNodes)
	{
		if (Child)
		{
			Child->ExecuteNodeOnActor(Actor, SceneComponent ? SceneComponent : ParentComponent);
		}
	}
	return Component;
}

void USimpleConstructionScript::ExecuteScriptOnActor(AActor* Actor)
{
	for (USCS_Node* const Node : RootNodes)
	{
		if (!Node)
		{
			continue;
		}
		// A root node of this Blueprint may hang below a component that a parent class made.
		USceneComponent* const Named = Node->ParentComponentOrVariableName.IsNone()
			? nullptr
			: Cast<USceneComponent>(StaticFindObjectFast(nullptr, Actor, Node->ParentComponentOrVariableName));
		Node->ExecuteNodeOnActor(Actor, Named ? Named : Actor->GetRootComponent());
	}
}

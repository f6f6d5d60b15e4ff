#include "BlueprintBoundEventNodeSpawner.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "GameFramework/Actor.h"
#include "K2Node_ActorBoundEvent.h"
#include "K2Node_ComponentBoundEvent.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** The Blueprint's event of that component and dispatcher; null when there is none. */
UK2Node_ComponentBoundEvent* FindBoundEvent(
	const UEdGraph& Graph, const FObjectProperty& Component, const FMulticastDelegateProperty& Delegate)
{
	const UBlueprint* const Blueprint = Graph.GetTypedOuter<UBlueprint>();
	for (const UEdGraph* const Page : Blueprint ? Blueprint->UbergraphPages : TArray<TObjectPtr<UEdGraph>>())
	{
		TArray<UK2Node_ComponentBoundEvent*> Events;
		if (Page)
		{
			Page->GetNodesOfClass(Events);
		}
		for (UK2Node_ComponentBoundEvent* const Event : Events)
		{
			if (Event->ComponentPropertyName == Component.GetFName() && Event->DelegatePropertyName == Delegate.GetFName())
			{
				return Event;
			}
		}
	}
	return nullptr;
}
}

UBlueprintBoundEventNodeSpawner* UBlueprintBoundEventNodeSpawner::Create(
	TSubclassOf<UK2Node_Event> NodeClass, FMulticastDelegateProperty* EventDelegate, UObject* Outer)
{
	UBlueprintBoundEventNodeSpawner* const Spawner = NewObject<UBlueprintBoundEventNodeSpawner>(
		Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->SetField(EventDelegate, nullptr);
	return Spawner;
}

FBlueprintNodeSignature UBlueprintBoundEventNodeSpawner::GetSpawnerSignature() const
{
	return UBlueprintFieldNodeSpawner::GetSpawnerSignature();
}

FMulticastDelegateProperty const* UBlueprintBoundEventNodeSpawner::GetEventDelegate() const
{
	return CastField<FMulticastDelegateProperty>(GetProperty());
}

bool UBlueprintBoundEventNodeSpawner::IsBindingCompatible(FBindingObject BindingCandidate) const
{
	const UClass* const Owner = GetOwnerClass();
	const FObjectProperty* const Component = BindingCandidate.Get<FObjectProperty>();
	const AActor* const Actor = BindingCandidate.Get<AActor>();
	const bool bIsForComponents = NodeClass && NodeClass->IsChildOf(UK2Node_ComponentBoundEvent::StaticClass());
	if (bIsForComponents)
	{
		return Owner && Component && Component->PropertyClass->IsChildOf(Owner);
	}
	return Owner && Actor && Actor->GetClass()->IsChildOf(Owner);
}

UEdGraphNode* UBlueprintBoundEventNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const FMulticastDelegateProperty* const Delegate = GetEventDelegate();
	if (!Delegate)
	{
		return nullptr;
	}
	for (const FBindingObject& Binding : Bindings)
	{
		const FObjectProperty* const Component = Binding.Get<FObjectProperty>();
		UK2Node_ComponentBoundEvent* const Existing = Component ? FindBoundEvent(*ParentGraph, *Component, *Delegate) : nullptr;
		if (Existing)
		{
			return Existing;
		}
	}
	const auto Customize = [this, Delegate, &Bindings](UEdGraphNode* Node, bool bIsTemplate)
	{
		// An event without a binding, as a template is, knows its dispatcher alone.
		if (UK2Node_ComponentBoundEvent* const OfComponent = Cast<UK2Node_ComponentBoundEvent>(Node))
		{
			OfComponent->DelegatePropertyName = Delegate->GetFName();
			OfComponent->DelegateOwnerClass = const_cast<UClass*>(GetOwnerClass());
		}
		else if (UK2Node_ActorBoundEvent* const OfActor = Cast<UK2Node_ActorBoundEvent>(Node))
		{
			OfActor->DelegatePropertyName = Delegate->GetFName();
			OfActor->DelegateOwnerClass = const_cast<UClass*>(GetOwnerClass());
		}
		for (const FBindingObject& Binding : Bindings)
		{
			BindToNode(Node, Binding);
		}
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, FBindingSet(), Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}

bool UBlueprintBoundEventNodeSpawner::BindToNode(UEdGraphNode* Node, FBindingObject Binding) const
{
	if (!IsBindingCompatible(Binding))
	{
		return false;
	}
	if (UK2Node_ComponentBoundEvent* const OfComponent = Cast<UK2Node_ComponentBoundEvent>(Node))
	{
		OfComponent->InitializeComponentBoundEventParams(Binding.Get<FObjectProperty>(), GetEventDelegate());
		return true;
	}
	if (UK2Node_ActorBoundEvent* const OfActor = Cast<UK2Node_ActorBoundEvent>(Node))
	{
		OfActor->EventOwner = Binding.Get<AActor>();
		return true;
	}
	return false;
}

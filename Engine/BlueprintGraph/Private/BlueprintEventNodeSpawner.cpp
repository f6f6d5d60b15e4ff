#include "BlueprintEventNodeSpawner.h"

#include "EdGraph/EdGraph.h"
#include "Engine/Blueprint.h"
#include "K2Node_CustomEvent.h"
#include "K2Node_Event.h"
#include "UObject/UObjectGlobals.h"

namespace
{
/** The event of the Blueprint that overrides the function; null when there is none. */
UK2Node_Event* FindOverride(const UBlueprint& Blueprint, const UFunction& Function)
{
	for (const UEdGraph* const Graph : Blueprint.UbergraphPages)
	{
		TArray<UK2Node_Event*> Events;
		if (Graph)
		{
			Graph->GetNodesOfClass(Events);
		}
		for (UK2Node_Event* const Event : Events)
		{
			if (Event->bOverrideFunction && Event->EventReference.GetMemberName() == Function.GetFName())
			{
				return Event;
			}
		}
	}
	return nullptr;
}

/** The class that first declares the function: what an event refers to. */
UClass* GetDeclaringClass(const UFunction& Function)
{
	const UFunction* Declaration = &Function;
	while (Declaration->GetSuperFunction())
	{
		Declaration = Declaration->GetSuperFunction();
	}
	UClass* const Class = Declaration->GetOwnerClass();
	return Class ? Class->GetAuthoritativeClass() : nullptr;
}
}

UBlueprintEventNodeSpawner* UBlueprintEventNodeSpawner::Create(UFunction const* const EventFunc, UObject* Outer)
{
	UBlueprintEventNodeSpawner* const Spawner = NewObject<UBlueprintEventNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = UK2Node_Event::StaticClass();
	Spawner->SetField(EventFunc, nullptr);
	return Spawner;
}

UBlueprintEventNodeSpawner* UBlueprintEventNodeSpawner::Create(TSubclassOf<UK2Node_Event> NodeClass, FName CustomEventName, UObject* Outer)
{
	UBlueprintEventNodeSpawner* const Spawner = NewObject<UBlueprintEventNodeSpawner>(Outer ? Outer : GetTransientPackageAsObject());
	Spawner->NodeClass = NodeClass.Get();
	Spawner->CustomEventName = CustomEventName;
	return Spawner;
}

FBlueprintNodeSignature UBlueprintEventNodeSpawner::GetSpawnerSignature() const
{
	FBlueprintNodeSignature Signature = Super::GetSpawnerSignature();
	Signature.AddNamedValue(TEXT("CustomEvent"), CustomEventName.IsNone() ? FString() : CustomEventName.ToString());
	return Signature;
}

UEdGraphNode* UBlueprintEventNodeSpawner::Invoke(UEdGraph* ParentGraph, FBindingSet const& Bindings, FVector2D const Location) const
{
	const UFunction* const Function = GetFunction();
	if (!Function && !IsForCustomEvent())
	{
		return nullptr;
	}
	const UBlueprint* const Blueprint = ParentGraph->GetTypedOuter<UBlueprint>();
	UK2Node_Event* const Existing = Function && Blueprint && !IsTemplateGraph(ParentGraph) ? FindOverride(*Blueprint, *Function) : nullptr;
	if (Existing)
	{
		// A ghost that the editor suggested is now wanted.
		if (!Existing->IsNodeEnabled())
		{
			Existing->Modify();
			Existing->SetEnabledState(ENodeEnabledState::Enabled, false);
			Existing->NodeComment.Empty();
			Existing->bCommentBubbleVisible = false;
		}
		return Existing;
	}
	const auto Customize = [this, Function](UEdGraphNode* Node, bool bIsTemplate)
	{
		UK2Node_Event* const Event = CastChecked<UK2Node_Event>(Node);
		if (Function)
		{
			Event->EventReference.SetExternalMember(Function->GetFName(), GetDeclaringClass(*Function));
			Event->bOverrideFunction = true;
		}
		else
		{
			Event->CustomFunctionName = CustomEventName;
			Event->bIsEditable = true;
		}
		CustomizeNodeDelegate.ExecuteIfBound(Node, bIsTemplate);
	};
	return SpawnEdGraphNode(NodeClass, ParentGraph, Bindings, Location, FCustomizeNodeDelegate::CreateLambda(Customize));
}

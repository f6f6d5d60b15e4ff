#include "Components/ActorComponent.h"

#include "Engine/Level.h"
#include "Engine/World.h"
#include "GameFramework/Actor.h"

UActorComponent::UActorComponent(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bEditableWhenInherited(true)
	, bAutoActivate(false)
	, bReplicates(false)
	, bIsEditorOnly(false)
	, bIsActive(false)
	, bRegistered(false)
{
}

AActor* UActorComponent::GetOwner() const
{
	return GetTypedOuter<AActor>();
}

UWorld* UActorComponent::GetWorld() const
{
	const AActor* const Owner = GetOwner();
	return Owner ? Owner->GetWorld() : GetTypedOuter<UWorld>();
}

ULevel* UActorComponent::GetComponentLevel() const
{
	return GetTypedOuter<ULevel>();
}

bool UActorComponent::ComponentHasTag(FName Tag) const
{
	return !Tag.IsNone() && ComponentTags.Contains(Tag);
}

void UActorComponent::Activate(bool bReset)
{
	if (bReset || !bIsActive)
	{
		bIsActive = true;
		OnComponentActivated.Broadcast(this, bReset);
	}
}

void UActorComponent::Deactivate()
{
	if (bIsActive)
	{
		bIsActive = false;
		OnComponentDeactivated.Broadcast(this);
	}
}

void UActorComponent::SetActive(bool bNewActive, bool bReset)
{
	if (bNewActive)
	{
		Activate(bReset);
	}
	else
	{
		Deactivate();
	}
}

void UActorComponent::RegisterComponent()
{
	if (!bRegistered && GetOwner())
	{
		OnRegister();
		if (bAutoActivate)
		{
			Activate(true);
		}
	}
}

void UActorComponent::UnregisterComponent()
{
	if (bRegistered)
	{
		OnUnregister();
	}
}

void UActorComponent::DestroyComponent(bool bPromoteChildren)
{
	Modify();
	UnregisterComponent();
	MarkAsGarbage();
}

void UActorComponent::PostEditUndo()
{
	Super::PostEditUndo();
	// An undo gives up and brings back components behind their registration's back.
	if (!IsValid(this))
	{
		UnregisterComponent();
	}
	else if (GetWorld() && IsValid(GetOwner()) && !IsTemplate())
	{
		RegisterComponent();
	}
}

void UActorComponent::K2_DestroyComponent(UObject* Object)
{
	DestroyComponent();
}

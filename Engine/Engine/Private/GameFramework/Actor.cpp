#include "GameFramework/Actor.h"

#include "Components/ActorComponent.h"
#include "Components/SceneComponent.h"
#include "Engine/Blueprint.h"
#include "Engine/Level.h"
#include "Engine/World.h"
#include "UObject/UObjectHash.h"

AActor::AActor(const FObjectInitializer& ObjectInitializer)
	: Super(ObjectInitializer)
	, bHidden(false)
	, bReplicates(false)
	, bCanBeDamaged(true)
	, bGenerateOverlapEventsDuringLevelStreaming(false)
	, bActorIsBeingDestroyed(false)
{
}

ULevel* AActor::GetLevel() const
{
	return GetTypedOuter<ULevel>();
}

UWorld* AActor::GetWorld() const
{
	const ULevel* const Level = GetLevel();
	return Level ? Level->GetWorld() : nullptr;
}

const FTransform& AActor::ActorToWorld() const
{
	return RootComponent ? RootComponent->GetComponentTransform() : FTransform::Identity;
}

FVector AActor::GetActorForwardVector() const
{
	return RootComponent ? RootComponent->GetForwardVector() : FVector(1.0, 0.0, 0.0);
}

FVector AActor::GetActorRightVector() const
{
	return RootComponent ? RootComponent->GetRightVector() : FVector(0.0, 1.0, 0.0);
}

FVector AActor::GetActorUpVector() const
{
	return RootComponent ? RootComponent->GetUpVector() : FVector(0.0, 0.0, 1.0);
}

FVector AActor::GetActorScale3D() const
{
	return RootComponent ? RootComponent->K2_GetComponentScale() : FVector(FVector::OneVector);
}

void AActor::SetActorScale3D(FVector NewScale3D)
{
	if (RootComponent)
	{
		FTransform Transform = RootComponent->GetComponentTransform();
		Transform.SetScale3D(NewScale3D);
		RootComponent->SetWorldTransform(Transform);
	}
}

float AActor::GetDistanceTo(const AActor* OtherActor) const
{
	return OtherActor ? static_cast<float>((GetActorLocation() - OtherActor->GetActorLocation()).Size()) : 0.0f;
}

bool AActor::SetActorLocation(const FVector& NewLocation)
{
	FTransform Transform = ActorToWorld();
	Transform.SetLocation(NewLocation);
	return SetActorTransform(Transform);
}

bool AActor::SetActorRotation(FRotator NewRotation)
{
	FTransform Transform = ActorToWorld();
	Transform.SetRotation(NewRotation.Quaternion());
	return SetActorTransform(Transform);
}

bool AActor::SetActorLocationAndRotation(FVector NewLocation, FRotator NewRotation)
{
	FTransform Transform = ActorToWorld();
	Transform.SetLocation(NewLocation);
	Transform.SetRotation(NewRotation.Quaternion());
	return SetActorTransform(Transform);
}

bool AActor::SetActorTransform(const FTransform& NewTransform)
{
	if (!RootComponent)
	{
		return false;
	}
	RootComponent->SetWorldTransform(NewTransform);
	return true;
}

bool AActor::SetRootComponent(USceneComponent* NewRootComponent)
{
	if (NewRootComponent && NewRootComponent->GetOwner() != this)
	{
		return false;
	}
	Modify();
	RootComponent = NewRootComponent;
	return true;
}

void AActor::K2_DestroyActor()
{
	Destroy();
}

bool AActor::Destroy(bool bNetForce, bool bShouldModifyLevel)
{
	UWorld* const World = GetWorld();
	return World && World->DestroyActor(this, bNetForce, bShouldModifyLevel);
}

FString AActor::GetDefaultActorLabel() const
{
	const UBlueprint* const Blueprint = UBlueprint::GetBlueprintFromClass(GetClass());
	return Blueprint ? Blueprint->GetName() : GetClass()->GetName();
}

const FString& AActor::GetActorLabel(bool bCreateIfNone) const
{
	if (ActorLabel.IsEmpty() && bCreateIfNone)
	{
		const_cast<AActor*>(this)->ActorLabel = GetDefaultActorLabel();
	}
	return ActorLabel;
}

void AActor::SetActorLabel(const FString& NewActorLabel, bool bMarkDirty)
{
	const FString Trimmed = NewActorLabel.TrimStartAndEnd();
	if (Trimmed.IsEmpty() || Trimmed.Equals(ActorLabel, ESearchCase::CaseSensitive))
	{
		return;
	}
	Modify(bMarkDirty);
	ActorLabel = Trimmed;
}

TArray<UActorComponent*> AActor::GetComponents() const
{
	TArray<UObject*> Inners;
	GetObjectsWithOuter(this, Inners, true);
	TArray<UActorComponent*> Components;
	for (UObject* const Inner : Inners)
	{
		UActorComponent* const Component = Cast<UActorComponent>(Inner);
		if (IsValid(Component))
		{
			Components.Add(Component);
		}
	}
	return Components;
}

UActorComponent* AActor::GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const
{
	for (UActorComponent* const Component : GetComponents())
	{
		if (ComponentClass && Component->IsA(ComponentClass.Get()))
		{
			return Component;
		}
	}
	return nullptr;
}

TArray<UActorComponent*> AActor::K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const
{
	TArray<UActorComponent*> Components = GetComponents();
	Components.RemoveAll([&ComponentClass](const UActorComponent* Component)
		{ return !ComponentClass || !Component->IsA(ComponentClass.Get()); });
	return Components;
}

UActorComponent* AActor::CreateComponentFromTemplate(UActorComponent* Template, const FName& InName)
{
	if (!Template)
	{
		return nullptr;
	}
	UActorComponent* const Component = NewObject<UActorComponent>(this, Template->GetClass(), InName, RF_Transactional, Template);
	BlueprintCreatedComponents.Add(Component);
	return Component;
}

void AActor::AddInstanceComponent(UActorComponent* Component)
{
	Component->CreationMethod = EComponentCreationMethod::Instance;
	InstanceComponents.AddUnique(Component);
}

#pragma once

#include "CoreMinimal.h"
#include "Engine/EngineTypes.h"
#include "Templates/Casts.h"
#include "Templates/SubclassOf.h"
#include "UObject/Object.h"
#include "UObject/ObjectMacros.h"

#include "Actor.generated.h"

class AActor;
class AController;
class APawn;
class UActorComponent;
class UInputComponent;
class ULevel;
class USceneComponent;
class UWorld;

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorBeginOverlapSignature, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorEndOverlapSignature, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FActorDestroyedSignature, AActor*, DestroyedActor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorEndPlaySignature, AActor*, Actor, EEndPlayReason::Type, EndPlayReason);

/** Something that stands in a level. Made by UWorld::SpawnActor; its place is its root component's. */
UCLASS(BlueprintType, Blueprintable, config = Engine,
	meta = (ShortTooltip = "An Actor is an object that can be placed or spawned in the world."))
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	AActor(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	UPROPERTY(EditDefaultsOnly, Category = Tick)
	FActorTickFunction PrimaryActorTick;

	/** Not drawn while the game runs. */
	UPROPERTY(Interp, EditAnywhere, Category = Rendering, BlueprintReadOnly, meta = (DisplayName = "Actor Hidden In Game"))
	uint8 bHidden : 1;

	/** The server makes the actor on its clients too, and keeps what is replicated of it the same there. */
	UPROPERTY(Category = Replication, EditDefaultsOnly, BlueprintReadOnly)
	uint8 bReplicates : 1;

	/** Damage that reaches the actor is told to it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Actor)
	uint8 bCanBeDamaged : 1;

	UPROPERTY(EditAnywhere, Category = Collision)
	uint8 bGenerateOverlapEventsDuringLevelStreaming : 1;

	/** Seconds; 0 lives until it is destroyed. */
	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = Actor)
	float InitialLifeSpan = 0.0f;

	/** How fast time passes for the actor, as a multiple of the world's. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Actor)
	float CustomTimeDilation = 1.0f;

	UPROPERTY(EditAnywhere, Category = Input)
	TEnumAsByte<EAutoReceiveInput::Type> AutoReceiveInput = EAutoReceiveInput::Disabled;

	/** Actors with a higher number are asked first whether they take an input. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Input)
	int32 InputPriority = 0;

	/** What happens when the actor is to be made where something is in its way. */
	UPROPERTY(EditAnywhere, Category = Collision, BlueprintReadWrite)
	ESpawnActorCollisionHandlingMethod SpawnCollisionHandlingMethod = ESpawnActorCollisionHandlingMethod::AlwaysSpawn;

	/** Words that gameplay finds the actor by. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, AdvancedDisplay, Category = Actor)
	TArray<FName> Tags;

	/** Layers of the editor that the actor is in. */
	UPROPERTY()
	TArray<FName> Layers;

	/** Called when another actor begins to overlap this one. */
	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorBeginOverlapSignature OnActorBeginOverlap;

	/** Called when another actor stops overlapping this one. */
	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorEndOverlapSignature OnActorEndOverlap;

	/** Called when the actor is destroyed while the game runs. */
	UPROPERTY(BlueprintAssignable, Category = "Game")
	FActorDestroyedSignature OnDestroyed;

	/** Called when the actor leaves play, for whatever reason. */
	UPROPERTY(BlueprintAssignable, Category = "Game")
	FActorEndPlaySignature OnEndPlay;

protected:
	/** The component that gives the actor its place; all others hang below it. */
	UPROPERTY(BlueprintGetter = K2_GetRootComponent, Category = "Transformation")
	TObjectPtr<USceneComponent> RootComponent = nullptr;

	UPROPERTY()
	TObjectPtr<AActor> Owner = nullptr;

	UPROPERTY(Transient)
	TObjectPtr<AActor> ParentComponentActor = nullptr;

	/** Components of the Blueprint, which an instance shares its changes with. */
	UPROPERTY(TextExportTransient, NonTransactional)
	TArray<TObjectPtr<UActorComponent>> BlueprintCreatedComponents;

	/** Components that this one actor was given in the editor. */
	UPROPERTY(Instanced)
	TArray<TObjectPtr<UActorComponent>> InstanceComponents;

private:
	/** What the editor calls the actor. */
	UPROPERTY()
	FString ActorLabel;

	UPROPERTY()
	FName FolderPath;

	UPROPERTY(Transient)
	uint8 bActorIsBeingDestroyed : 1;

public:
	// Place

	/** Where the actor is, in world space: the place of its root component. */
	UFUNCTION(BlueprintCallable, BlueprintPure,
		meta = (DisplayName = "Get Actor Location", ScriptName = "GetActorLocation", Keywords = "position"), Category = "Transformation")
	FVector K2_GetActorLocation() const { return GetActorLocation(); }

	/** How the actor is turned, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get Actor Rotation", ScriptName = "GetActorRotation"),
		Category = "Transformation")
	FRotator K2_GetActorRotation() const { return GetActorRotation(); }

	/** The component that gives the actor its place. */
	UFUNCTION(BlueprintCallable, BlueprintPure, meta = (DisplayName = "Get Root Component", ScriptName = "GetRootComponent"),
		Category = "Transformation", BlueprintInternalUseOnly)
	USceneComponent* K2_GetRootComponent() const { return RootComponent; }

	/** The direction of length one that the actor looks to (X), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetActorForwardVector() const;

	/** The direction of length one to the right of the actor (Y), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetActorRightVector() const;

	/** The direction of length one above the actor (Z), in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetActorUpVector() const;

	/** The scale of the actor's root component, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	FVector GetActorScale3D() const;

	/** Sets the scale of the actor's root component, in world space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetActorScale3D(FVector NewScale3D);

	/** Place, rotation and scale of the actor's root component, in world space. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	const FTransform& GetTransform() const { return ActorToWorld(); }

	/** How far it is from this actor to the other one, in centimetres. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Transformation")
	float GetDistanceTo(const AActor* OtherActor) const;

	const FTransform& ActorToWorld() const;
	FTransform GetActorTransform() const { return ActorToWorld(); }
	FVector GetActorLocation() const { return ActorToWorld().GetLocation(); }
	FRotator GetActorRotation() const { return ActorToWorld().Rotator(); }
	bool SetActorLocation(const FVector& NewLocation);
	bool SetActorRotation(FRotator NewRotation);
	bool SetActorTransform(const FTransform& NewTransform);
	bool SetActorLocationAndRotation(FVector NewLocation, FRotator NewRotation);
	USceneComponent* GetRootComponent() const { return RootComponent; }
	bool SetRootComponent(USceneComponent* NewRootComponent);

	// State

	/** Hides or shows the actor while the game runs. */
	UFUNCTION(
		BlueprintCallable, Category = "Rendering", meta = (DisplayName = "Set Actor Hidden In Game", Keywords = "Visible Hidden Show Hide"))
	virtual void SetActorHiddenInGame(bool bNewHidden) { bHidden = bNewHidden; }

	/** True if the tag is among the tags of the actor. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Actor")
	bool ActorHasTag(FName Tag) const { return Tags.Contains(Tag); }

	/** The actor that owns this one, which decides where its calls are sent over the network. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Actor")
	AActor* GetOwner() const { return Owner; }

	/** Gives the actor another owner. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	virtual void SetOwner(AActor* NewOwner) { Owner = NewOwner; }

	/** Has the actor destroyed after that many seconds; 0 lets it live. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	virtual void SetLifeSpan(float InLifespan) { InitialLifeSpan = InLifespan; }

	/** How many seconds are left until the actor is destroyed; 0 when it just lives. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Actor")
	virtual float GetLifeSpan() const { return InitialLifeSpan; }

	/** True once the destruction of the actor has begun. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Actor")
	bool IsActorBeingDestroyed() const { return bActorIsBeingDestroyed; }

	/** Removes the actor from the world. */
	UFUNCTION(
		BlueprintCallable, Category = "Actor", meta = (Keywords = "Delete", DisplayName = "Destroy Actor", ScriptName = "DestroyActor"))
	virtual void K2_DestroyActor();

	bool Destroy(bool bNetForce = false, bool bShouldModifyLevel = true);
	ULevel* GetLevel() const;
	virtual UWorld* GetWorld() const override;

	const FString& GetActorLabel(bool bCreateIfNone = true) const;
	void SetActorLabel(const FString& NewActorLabel, bool bMarkDirty = true);
	FName GetFolderPath() const { return FolderPath; }
	void SetFolderPath(const FName& NewFolderPath) { FolderPath = NewFolderPath; }

	// Components

	/** The first component of the class that the actor has, or none. */
	UFUNCTION(BlueprintCallable, BlueprintPure, Category = "Actor",
		meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass"))
	UActorComponent* GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	/** All components of the class that the actor has. */
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (DeterminesOutputType = "ComponentClass", DisplayName = "Get Components by Class", ScriptName = "GetComponentsByClass"))
	TArray<UActorComponent*> K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	template <class T>
	T* FindComponentByClass() const
	{
		return static_cast<T*>(GetComponentByClass(T::StaticClass()));
	}

	/** The actor's components: every component that is outered to it. */
	TArray<UActorComponent*> GetComponents() const;
	template <class T>
	void GetComponents(TArray<T*>& OutComponents) const
	{
		OutComponents.Reset();
		for (UActorComponent* const Component : GetComponents())
		{
			if (T* const Match = Cast<T>(Component))
			{
				OutComponents.Add(Match);
			}
		}
	}
	/** A component like the template; null without a template. The actor's Blueprint owns it. */
	UActorComponent* CreateComponentFromTemplate(UActorComponent* Template, const FName& InName = NAME_None);
	void AddInstanceComponent(UActorComponent* Component);
	const TArray<TObjectPtr<UActorComponent>>& GetInstanceComponents() const { return InstanceComponents; }

	// Events

	/** When play begins for the actor: it is in the world, and its components are there. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "BeginPlay"))
	void ReceiveBeginPlay();

	/** Every frame, with the seconds that have passed since the frame before. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);

	/** When the actor leaves play: it is destroyed, its level goes, or the game ends. Tells which of these. */
	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

	/** When the actor is destroyed. */
	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "Destroyed"))
	void ReceiveDestroyed();

	/** When another actor begins to overlap this one, for example when a player steps into a trigger. Both must create overlap events. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "ActorBeginOverlap"), Category = "Collision")
	void ReceiveActorBeginOverlap(AActor* OtherActor);

	/** When an actor that overlapped this one does so no more. Both must create overlap events. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "ActorEndOverlap"), Category = "Collision")
	void ReceiveActorEndOverlap(AActor* OtherActor);

	/** Runs when an instance is placed or changed in the editor. */
	UFUNCTION(BlueprintImplementableEvent, meta = (BlueprintInternalUseOnly = "true", DisplayName = "Construction Script"))
	void UserConstructionScript();

	virtual bool IsEditorOnly() const override { return false; }
	virtual bool IsListedInSceneOutliner() const { return true; }
	virtual FString GetDefaultActorLabel() const;

private:
	friend class UWorld;
};

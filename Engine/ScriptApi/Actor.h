// Package: /Script/Engine
#pragma once

#include "GameFramework/Actor.h"
#include "EngineTypes.h"
#include "Actor.generated.h"

// Extends native
UCLASS()
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	/** Moves the actor to a place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Location", ScriptName = "SetActorLocation", Keywords = "position"))
	bool K2_SetActorLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Rotation", ScriptName = "SetActorRotation"))
	bool K2_SetActorRotation(FRotator NewRotation, bool bTeleportPhysics);

	/** Moves and turns the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Location And Rotation", ScriptName = "SetActorLocationAndRotation"))
	bool K2_SetActorLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the actor's place, rotation and scale in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Transform", ScriptName = "SetActorTransform"))
	bool K2_SetActorTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the actor by a distance in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Actor World Offset", ScriptName = "AddActorWorldOffset", Keywords = "location position"))
	void K2_AddActorWorldOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Actor World Rotation", ScriptName = "AddActorWorldRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddActorWorldRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the actor by a distance along its own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Actor Local Offset", ScriptName = "AddActorLocalOffset", Keywords = "location position"))
	void K2_AddActorLocalOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor around its own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Actor Local Rotation", ScriptName = "AddActorLocalRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddActorLocalRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Place of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Actor Location", ScriptName = "GetActorLocation", Keywords = "position"))
	FVector K2_GetActorLocation() const;

	/** Rotation of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Actor Rotation", ScriptName = "GetActorRotation"))
	FRotator K2_GetActorRotation() const;

	/** The transform from the actor's space to the world's. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Actor Transform", ScriptName = "GetActorTransform"))
	const FTransform& GetTransform() const;

	/** Scale of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorScale3D() const;

	/** Sets the scale of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetActorScale3D(FVector NewScale3D);

	/** Direction that the actor looks in. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorForwardVector() const;

	/** Direction above the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorUpVector() const;

	/** Direction to the right of the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorRightVector() const;

	/** Velocity in centimetres a second. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetVelocity() const;

	/** Distance to another actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetDistanceTo(const AActor* OtherActor) const;

	/** Distance to another actor without Z. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetHorizontalDistanceTo(const AActor* OtherActor) const;

	/** Ends the actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (DisplayName = "Destroy Actor", ScriptName = "DestroyActor", Keywords = "Delete"))
	void K2_DestroyActor();

	/** True if this machine has the say over the actor. */
	UFUNCTION(BlueprintCallable, Category = "Networking")
	bool HasAuthority() const;

	/** Hides or shows the actor in the game. */
	UFUNCTION(BlueprintCallable, Category = "Rendering", meta = (DisplayName = "Set Actor Hidden In Game", Keywords = "Visible Hidden Show Hide"))
	void SetActorHiddenInGame(bool bNewHidden);

	/** Switches all collision of the actor. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetActorEnableCollision(bool bNewActorEnableCollision);

	/** True if the actor collides. */
	UFUNCTION(BlueprintPure, Category = "Collision")
	bool GetActorEnableCollision() const;

	/** Switches the actor's tick. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetActorTickEnabled(bool bEnabled);

	/** Seconds between ticks. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetActorTickInterval(float TickInterval);

	/** Seconds until the actor ends by itself; 0 is never. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (Keywords = "delete destroy"))
	void SetLifeSpan(float InLifespan);

	/** True if the actor has a tag. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	bool ActorHasTag(FName Tag) const;

	/** Owner of the actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	AActor* GetOwner() const;

	/** Sets the owner, which matters to replication and visibility. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	void SetOwner(AActor* NewOwner);

	/** Pawn responsible for damage and other gameplay events caused by this actor. */
	UPROPERTY(BlueprintReadWrite, Category = "Actor", meta = (ExposeOnSpawn = true, AllowPrivateAccess = true))
	TObjectPtr<APawn> Instigator;

	/** Pawn that is answerable for what the actor does. */
	UFUNCTION(BlueprintPure, Category = "Game")
	APawn* GetInstigator() const;

	/** Controller of the instigator. */
	UFUNCTION(BlueprintPure, Category = "Game")
	AController* GetInstigatorController() const;

	/** First component of a class, or null. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass"))
	UActorComponent* GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	/** All components of a class. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass", DisplayName = "Get Components By Class", ScriptName = "GetComponentsByClass"))
	TArray<UActorComponent*> K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	/** Components of a class that have a tag. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass"))
	TArray<UActorComponent*> GetComponentsByTag(TSubclassOf<UActorComponent> ComponentClass, FName Tag) const;

	/** Attaches the actor's root to another actor's. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Attach Actor To Actor", ScriptName = "AttachToActor", bWeldSimulatedBodies = true))
	void K2_AttachToActor(AActor* ParentActor, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule, EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Attaches the actor's root to a component. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Attach Actor To Component", ScriptName = "AttachToComponent", bWeldSimulatedBodies = true))
	void K2_AttachToComponent(USceneComponent* Parent, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule, EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Takes the actor from what it is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Detach From Actor", ScriptName = "DetachFromActor"))
	void K2_DetachFromActor(EDetachmentRule LocationRule = EDetachmentRule::KeepRelative, EDetachmentRule RotationRule = EDetachmentRule::KeepRelative, EDetachmentRule ScaleRule = EDetachmentRule::KeepRelative);

	/** Lets a player's input reach the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void EnableInput(APlayerController* PlayerController);

	/** Keeps a player's input from the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void DisableInput(APlayerController* PlayerController);

	/** Value of an input axis, if input reaches the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisName"))
	float GetInputAxisValue(const FName InputAxisName) const;

	/** Gets the value of the input axis key if input is enabled for this actor. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisKey"))
	float GetInputAxisKeyValue(const FKey InputAxisKey) const;

	/** Gets the value of the input axis key of three dimensions if input is enabled for this actor. */
	UFUNCTION(BlueprintCallable, Category = "Input", meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisKey"))
	FVector GetInputVectorAxisValue(const FKey InputAxisKey) const;

	/** True if the actor overlaps another. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	bool IsOverlappingActor(const AActor* Other) const;

	/** Actors that the actor overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (UnsafeDuringActorConstruction = "true"))
	void GetOverlappingActors(TArray<AActor*>& OverlappingActors, TSubclassOf<AActor> ClassFilter = nullptr) const;

	/** Middle and half size of the actor's box. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (DisplayName = "Get Actor Bounds"))
	void GetActorBounds(bool bOnlyCollidingComponents, FVector& Origin, FVector& BoxExtent, bool bIncludeFromChildActors = false) const;

	/** Play begins for the actor. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "BeginPlay"))
	void ReceiveBeginPlay();

	/** Play ends for the actor. */
	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);

	/** The actor is destroyed. */
	UFUNCTION(BlueprintImplementableEvent, meta = (Keywords = "delete", DisplayName = "Destroyed"))
	void ReceiveDestroyed();

	/** The actor is hurt. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, Category = "Game|Damage", meta = (DisplayName = "AnyDamage"))
	void ReceiveAnyDamage(float Damage, const UDamageType* DamageType, AController* InstigatedBy, AActor* DamageCauser);

	/** The actor runs into something, or something into it. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "Hit"))
	void ReceiveHit(UPrimitiveComponent* MyComp, AActor* Other, UPrimitiveComponent* OtherComp, bool bSelfMoved, FVector HitLocation, FVector HitNormal, FVector NormalImpulse, const FHitResult& Hit);

	/** Another actor begins to overlap. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "ActorBeginOverlap"))
	void ReceiveActorBeginOverlap(AActor* OtherActor);

	/** Another actor overlaps no longer. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "ActorEndOverlap"))
	void ReceiveActorEndOverlap(AActor* OtherActor);

	/** The actor is made or changed in the editor, or spawned. */
	UFUNCTION(BlueprintImplementableEvent, meta = (BlueprintInternalUseOnly = "true", DisplayName = "Construction Script"))
	void UserConstructionScript();
};

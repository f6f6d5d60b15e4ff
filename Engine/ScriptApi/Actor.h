// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "Actor.generated.h"

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FiveParams(FTakeAnyDamageSignature, AActor, OnTakeAnyDamage, AActor*, DamagedActor, float, Damage,
	const UDamageType*, DamageType, AController*, InstigatedBy, AActor*, DamageCauser);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_NineParams(FTakePointDamageSignature, AActor, OnTakePointDamage, AActor*, DamagedActor, float,
	Damage, AController*, InstigatedBy, FVector, HitLocation, UPrimitiveComponent*, FHitComponent, FName, BoneName, FVector,
	ShotFromDirection, const UDamageType*, DamageType, AActor*, DamageCauser);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_SevenParams(FTakeRadialDamageSignature, AActor, OnTakeRadialDamage, AActor*, DamagedActor, float,
	Damage, const UDamageType*, DamageType, FVector, Origin, const FHitResult&, HitInfo, AController*, InstigatedBy, AActor*, DamageCauser);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorBeginOverlapSignature, AActor, OnActorBeginOverlap, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorEndOverlapSignature, AActor, OnActorEndOverlap, AActor*, OverlappedActor, AActor*, OtherActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FourParams(
	FActorHitSignature, AActor, OnActorHit, AActor*, SelfActor, AActor*, OtherActor, FVector, NormalImpulse, const FHitResult&, Hit);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(FActorBeginCursorOverSignature, AActor, OnBeginCursorOver, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(FActorEndCursorOverSignature, AActor, OnEndCursorOver, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorOnClickedSignature, AActor, OnClicked, AActor*, TouchedActor, FKey, ButtonPressed);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorOnReleasedSignature, AActor, OnReleased, AActor*, TouchedActor, FKey, ButtonReleased);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorOnInputTouchBeginSignature, AActor, OnInputTouchBegin, ETouchIndex::Type, FingerIndex, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorOnInputTouchEndSignature, AActor, OnInputTouchEnd, ETouchIndex::Type, FingerIndex, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorBeginTouchOverSignature, AActor, OnInputTouchEnter, ETouchIndex::Type, FingerIndex, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorEndTouchOverSignature, AActor, OnInputTouchLeave, ETouchIndex::Type, FingerIndex, AActor*, TouchedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(FActorDestroyedSignature, AActor, OnDestroyed, AActor*, DestroyedActor);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FActorEndPlaySignature, AActor, OnEndPlay, AActor*, Actor, EEndPlayReason::Type, EndPlayReason);

// Extends native
UCLASS()
class ENGINE_API AActor : public UObject
{
	GENERATED_BODY()

public:
	/** Moves the actor to a place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Actor Location", ScriptName = "SetActorLocation", Keywords = "position"))
	bool K2_SetActorLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Rotation", ScriptName = "SetActorRotation"))
	bool K2_SetActorRotation(FRotator NewRotation, bool bTeleportPhysics);

	/** Moves and turns the actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Actor Location And Rotation", ScriptName = "SetActorLocationAndRotation"))
	bool K2_SetActorLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the actor's place, rotation and scale in the world. */
	UFUNCTION(
		BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Actor Transform", ScriptName = "SetActorTransform"))
	bool K2_SetActorTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the actor by a distance in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor World Offset", ScriptName = "AddActorWorldOffset", Keywords = "location position"))
	void K2_AddActorWorldOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor World Rotation", ScriptName = "AddActorWorldRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddActorWorldRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the actor by a distance along its own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor Local Offset", ScriptName = "AddActorLocalOffset", Keywords = "location position"))
	void K2_AddActorLocalOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor around its own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor Local Rotation", ScriptName = "AddActorLocalRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddActorLocalRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Place of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Get Actor Location", ScriptName = "GetActorLocation", Keywords = "position"))
	FVector K2_GetActorLocation() const;

	/** Rotation of the root component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Actor Rotation", ScriptName = "GetActorRotation"))
	FRotator K2_GetActorRotation() const;

	/** The transform from the actor's space to the world's. */
	UFUNCTION(
		BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Actor Transform", ScriptName = "GetActorTransform"))
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
	UFUNCTION(
		BlueprintCallable, Category = "Actor", meta = (DisplayName = "Destroy Actor", ScriptName = "DestroyActor", Keywords = "Delete"))
	void K2_DestroyActor();

	/** True if this machine has the say over the actor. */
	UFUNCTION(BlueprintCallable, Category = "Networking")
	bool HasAuthority() const;

	/** Hides or shows the actor in the game. */
	UFUNCTION(
		BlueprintCallable, Category = "Rendering", meta = (DisplayName = "Set Actor Hidden In Game", Keywords = "Visible Hidden Show Hide"))
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
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass"))
	UActorComponent* GetComponentByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	/** All components of a class. */
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass",
			DisplayName = "Get Components By Class", ScriptName = "GetComponentsByClass"))
	TArray<UActorComponent*> K2_GetComponentsByClass(TSubclassOf<UActorComponent> ComponentClass) const;

	/** Components of a class that have a tag. */
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (ComponentClass = "/Script/Engine.ActorComponent", DeterminesOutputType = "ComponentClass"))
	TArray<UActorComponent*> GetComponentsByTag(TSubclassOf<UActorComponent> ComponentClass, FName Tag) const;

	/** Attaches the actor's root to another actor's. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Attach Actor To Actor", ScriptName = "AttachToActor", bWeldSimulatedBodies = true))
	void K2_AttachToActor(AActor* ParentActor, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule,
		EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Attaches the actor's root to a component. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Attach Actor To Component", ScriptName = "AttachToComponent", bWeldSimulatedBodies = true))
	void K2_AttachToComponent(USceneComponent* Parent, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule,
		EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Takes the actor from what it is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Detach From Actor", ScriptName = "DetachFromActor"))
	void K2_DetachFromActor(EDetachmentRule LocationRule = EDetachmentRule::KeepRelative,
		EDetachmentRule RotationRule = EDetachmentRule::KeepRelative, EDetachmentRule ScaleRule = EDetachmentRule::KeepRelative);

	/** Lets a player's input reach the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void EnableInput(APlayerController* PlayerController);

	/** Keeps a player's input from the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void DisableInput(APlayerController* PlayerController);

	/** Value of an input axis, if input reaches the actor. */
	UFUNCTION(BlueprintCallable, Category = "Input",
		meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisName"))
	float GetInputAxisValue(const FName InputAxisName) const;

	/** Gets the value of the input axis key if input is enabled for this actor. */
	UFUNCTION(BlueprintCallable, Category = "Input",
		meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisKey"))
	float GetInputAxisKeyValue(const FKey InputAxisKey) const;

	/** Gets the value of the input axis key of three dimensions if input is enabled for this actor. */
	UFUNCTION(BlueprintCallable, Category = "Input",
		meta = (BlueprintInternalUseOnly = "true", BlueprintProtected, HideSelfPin = "true", HidePin = "InputAxisKey"))
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
	void ReceiveHit(UPrimitiveComponent* MyComp, AActor* Other, UPrimitiveComponent* OtherComp, bool bSelfMoved, FVector HitLocation,
		FVector HitNormal, FVector NormalImpulse, const FHitResult& Hit);

	/** Another actor begins to overlap. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "ActorBeginOverlap"))
	void ReceiveActorBeginOverlap(AActor* OtherActor);

	/** Another actor overlaps no longer. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "ActorEndOverlap"))
	void ReceiveActorEndOverlap(AActor* OtherActor);

	/** The actor is made or changed in the editor, or spawned. */
	UFUNCTION(BlueprintImplementableEvent, meta = (BlueprintInternalUseOnly = "true", DisplayName = "Construction Script"))
	void UserConstructionScript();

	UPROPERTY(BlueprintAssignable, Category = "Game|Damage")
	FTakeAnyDamageSignature OnTakeAnyDamage;

	UPROPERTY(BlueprintAssignable, Category = "Game|Damage")
	FTakePointDamageSignature OnTakePointDamage;

	UPROPERTY(BlueprintAssignable, Category = "Game|Damage")
	FTakeRadialDamageSignature OnTakeRadialDamage;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorBeginOverlapSignature OnActorBeginOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorEndOverlapSignature OnActorEndOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FActorHitSignature OnActorHit;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FActorBeginCursorOverSignature OnBeginCursorOver;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FActorEndCursorOverSignature OnEndCursorOver;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FActorOnClickedSignature OnClicked;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FActorOnReleasedSignature OnReleased;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FActorOnInputTouchBeginSignature OnInputTouchBegin;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FActorOnInputTouchEndSignature OnInputTouchEnd;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FActorBeginTouchOverSignature OnInputTouchEnter;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FActorEndTouchOverSignature OnInputTouchLeave;

	UPROPERTY(BlueprintAssignable, Category = "Game")
	FActorDestroyedSignature OnDestroyed;

	UPROPERTY(BlueprintAssignable, Category = "Game")
	FActorEndPlaySignature OnEndPlay;

	/** Makes a noise that pawns may hear. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Game", meta = (AdvancedDisplay = "3"))
	void MakeNoise(float Loudness = 1.f, APawn* NoiseInstigator = nullptr, FVector NoiseLocation = FVector::ZeroVector,
		float MaxRange = 0.f, FName Tag = NAME_None);

	/** The actor is hurt at a place. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, Category = "Game|Damage", meta = (DisplayName = "PointDamage"))
	void ReceivePointDamage(float Damage, const UDamageType* DamageType, FVector HitLocation, FVector HitNormal,
		UPrimitiveComponent* HitComponent, FName BoneName, FVector ShotFromDirection, AController* InstigatedBy, AActor* DamageCauser,
		const FHitResult& HitInfo);

	/** The actor is hurt by an explosion. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, Category = "Game|Damage", meta = (DisplayName = "RadialDamage"))
	void ReceiveRadialDamage(float DamageReceived, const UDamageType* DamageType, FVector Origin, const FHitResult& HitInfo,
		AController* InstigatedBy, AActor* DamageCauser);

	/** The pointer comes over the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Mouse Input", meta = (DisplayName = "ActorBeginCursorOver"))
	void ReceiveActorBeginCursorOver();

	/** The pointer leaves the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Mouse Input", meta = (DisplayName = "ActorEndCursorOver"))
	void ReceiveActorEndCursorOver();

	/** The actor is clicked. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Mouse Input", meta = (DisplayName = "ActorOnClicked"))
	void ReceiveActorOnClicked(FKey ButtonPressed = EKeys::LeftMouseButton);

	/** A click on the actor ends. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Mouse Input", meta = (DisplayName = "ActorOnReleased"))
	void ReceiveActorOnReleased(FKey ButtonReleased = EKeys::LeftMouseButton);

	/** A finger touches the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Touch Input", meta = (DisplayName = "BeginInputTouch"))
	void ReceiveActorOnInputTouchBegin(const ETouchIndex::Type FingerIndex);

	/** A finger leaves the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Touch Input", meta = (DisplayName = "EndInputTouch"))
	void ReceiveActorOnInputTouchEnd(const ETouchIndex::Type FingerIndex);

	/** A finger comes over the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Touch Input", meta = (DisplayName = "TouchEnter"))
	void ReceiveActorOnInputTouchEnter(const ETouchIndex::Type FingerIndex);

	/** A finger goes from over the actor. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Input|Touch Input", meta = (DisplayName = "TouchLeave"))
	void ReceiveActorOnInputTouchLeave(const ETouchIndex::Type FingerIndex);

	/** Places the actor in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Actor Relative Location", ScriptName = "SetActorRelativeLocation"))
	void K2_SetActorRelativeLocation(FVector NewRelativeLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the actor in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Actor Relative Rotation", ScriptName = "SetActorRelativeRotation"))
	void K2_SetActorRelativeRotation(FRotator NewRelativeRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Places, turns and scales the actor in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Actor Relative Transform", ScriptName = "SetActorRelativeTransform"))
	void K2_SetActorRelativeTransform(const FTransform& NewRelativeTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a transform in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor World Transform", ScriptName = "AddActorWorldTransform"))
	void K2_AddActorWorldTransform(const FTransform& DeltaTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a transform in the world without scaling. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor World Transform Keep Scale", ScriptName = "AddActorWorldTransformKeepScale",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddActorWorldTransformKeepScale(const FTransform& DeltaTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a transform along the actor's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Actor Local Transform", ScriptName = "AddActorLocalTransform"))
	void K2_AddActorLocalTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Scales the actor in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetActorRelativeScale3D(FVector NewRelativeScale);

	/** Scale in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetActorRelativeScale3D() const;

	/** Moves the actor where it fits. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Teleport", ScriptName = "TeleportTo", Keywords = "Move Position"))
	bool K2_TeleportTo(FVector DestLocation, FRotator DestRotation);

	/** Component that the actor's place is of. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get Root Component", ScriptName = "GetRootComponent"))
	USceneComponent* K2_GetRootComponent() const;

	/** Actors that are attached to this one. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void GetAttachedActors(TArray<AActor*>& OutActors, bool bResetArray = true, bool bRecursivelyIncludeAttachedActors = false) const;

	/** Actor that this one is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	AActor* GetAttachParentActor() const;

	/** Socket that the actor is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FName GetAttachParentSocketName() const;

	/** Square of the distance to another actor. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetSquaredDistanceTo(const AActor* OtherActor) const;

	/** Square of the distance without Z. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetSquaredHorizontalDistanceTo(const AActor* OtherActor) const;

	/** Difference of Z. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetVerticalDistanceTo(const AActor* OtherActor) const;

	/** Whether another actor is ahead: 1 ahead, -1 behind. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetDotProductTo(const AActor* OtherActor) const;

	/** Whether another actor is ahead, without Z. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	float GetHorizontalDotProductTo(const AActor* OtherActor) const;

	/** Seconds until the actor ends by itself. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	float GetLifeSpan() const;

	/** Seconds since the actor was made. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	float GetGameTimeSinceCreation() const;

	/** True if the actor is ending. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	bool IsActorBeingDestroyed() const;

	/** Actors of child actor components. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	void GetAllChildActors(TArray<AActor*>& ChildActors, bool bIncludeDescendants = true) const;

	/** Actor whose child actor component made this one. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	AActor* GetParentActor() const;

	/** Child actor component that made this one. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	UChildActorComponent* GetParentComponent() const;

	/** First component of a class with a tag. */
	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (DeterminesOutputType = "ComponentClass", ComponentClass = "/Script/Engine.ActorComponent"))
	UActorComponent* FindComponentByTag(TSubclassOf<UActorComponent> ComponentClass, FName Tag) const;

	/** Components that have an interface. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	TArray<UActorComponent*> GetComponentsByInterface(TSubclassOf<UInterface> Interface) const;

	UFUNCTION(BlueprintCallable, Category = "Actor",
		meta = (BlueprintInternalUseOnly = "true", DefaultToSelf = "ComponentTemplateContext",
			InternalUseParam = "ComponentTemplateContext,bDeferredFinish"))
	UActorComponent* AddComponent(FName TemplateName, bool bManualAttachment, const FTransform& RelativeTransform,
		const UObject* ComponentTemplateContext, bool bDeferredFinish = false);

	/** Adds a component of a class. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (BlueprintInternalUseOnly = "true", ScriptNoExport))
	UActorComponent* AddComponentByClass(
		TSubclassOf<UActorComponent> Class, bool bManualAttachment, const FTransform& RelativeTransform, bool bDeferredFinish);

	/** Ends the adding of a component. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (BlueprintInternalUseOnly = "true", ScriptNoExport))
	void FinishAddComponent(UActorComponent* Component, bool bManualAttachment, const FTransform& RelativeTransform);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Actor")
	TArray<FName> Tags;

	UPROPERTY(BlueprintReadWrite, Category = "Actor")
	float CustomTimeDilation = 1.f;

	/** How fast time passes for the actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	float GetActorTimeDilation() const;

	/** Takes the actor from what it is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Actor", meta = (DeprecatedFunction))
	void DetachRootComponentFromParent(bool bMaintainWorldPosition = true);

	/** Level that the actor is in. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	ULevel* GetLevel() const;

	/** The level transform. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	FTransform GetLevelTransform() const;

	/** True if a child actor component made the actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor")
	bool IsChildActor() const;

	/** True if the actor was drawn lately. */
	UFUNCTION(BlueprintPure, Category = "Actor", meta = (Keywords = "scene visible"))
	bool WasRecentlyRendered(float Tolerance = 0.2f) const;

	/** True if the actor ticks. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	bool IsActorTickEnabled() const;

	/** Seconds between ticks. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	float GetActorTickInterval() const;

	/** Whether the actor ticks while the game is paused. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetTickableWhenPaused(bool bTickableWhenPaused);

	/** When in a frame the actor ticks. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick")
	void SetTickGroup(TEnumAsByte<ETickingGroup> NewTickGroup);

	/** Ticks after another actor. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick", meta = (Keywords = "dependency"))
	void AddTickPrerequisiteActor(AActor* PrerequisiteActor);

	/** Ticks after a component. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick", meta = (Keywords = "dependency"))
	void AddTickPrerequisiteComponent(UActorComponent* PrerequisiteComponent);

	/** Does not wait for an actor any more. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick", meta = (Keywords = "dependency"))
	void RemoveTickPrerequisiteActor(AActor* PrerequisiteActor);

	/** Does not wait for a component any more. */
	UFUNCTION(BlueprintCallable, Category = "Actor|Tick", meta = (Keywords = "dependency"))
	void RemoveTickPrerequisiteComponent(UActorComponent* PrerequisiteComponent);

	/** Components that the actor overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (UnsafeDuringActorConstruction = "true"))
	void GetOverlappingComponents(TArray<UPrimitiveComponent*>& OverlappingComponents) const;

	/** A player begins to look through the actor. */
	UFUNCTION(
		BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "OnBecomeViewTarget", ScriptName = "OnBecomeViewTarget"))
	void K2_OnBecomeViewTarget(APlayerController* PC);

	/** A player looks through the actor no longer. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "OnEndViewTarget", ScriptName = "OnEndViewTarget"))
	void K2_OnEndViewTarget(APlayerController* PC);

	/** The level begins anew. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "OnReset", ScriptName = "OnReset"))
	void K2_OnReset();

	/** Each step of physics. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Collision", meta = (DisplayName = "Async Physics Tick"))
	void ReceiveAsyncPhysicsTick(float DeltaSeconds, float SimSeconds);

	/** Loads the actor's textures in full. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void PrestreamTextures(float Seconds, bool bEnableStreaming, int32 CinematicTextureGroups = 0);

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering", meta = (DisplayName = "Actor Hidden In Game"))
	uint8 bHidden : 1;

	/** Whether the actor is sent to clients. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void SetReplicates(bool bInReplicates);

	/** Whether the actor's movement is sent to clients. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void SetReplicateMovement(bool bInReplicateMovement);

	/** Sends the actor to clients soon. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void ForceNetUpdate();

	/** Lets the actor sleep on the network. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void SetNetDormancy(ENetDormancy NewDormancy);

	/** Sends a sleeping actor once. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void FlushNetDormancy();

	/** Stops sending the actor; clients go on by themselves. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "Networking")
	void TearOff();

	/** Role of the actor here. */
	UFUNCTION(BlueprintCallable, Category = "Networking")
	ENetRole GetLocalRole() const;

	/** Role of the actor on the other side. */
	UFUNCTION(BlueprintCallable, Category = "Networking")
	ENetRole GetRemoteRole() const;

	UPROPERTY(EditDefaultsOnly, BlueprintReadWrite, Category = "Networking")
	float NetUpdateFrequency = 100.f;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "Networking")
	uint8 bAlwaysRelevant : 1;

	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "Networking")
	uint8 bReplicates : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Input")
	int32 InputPriority = 0;

	UPROPERTY(EditAnywhere, Category = "Input")
	TEnumAsByte<EAutoReceiveInput::Type> AutoReceiveInput;
};

// Package: /Script/Engine
#pragma once

#include "SceneComponent.h"
#include "PrimitiveComponent.generated.h"

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FComponentWakeSignature, UPrimitiveComponent, OnComponentWake, UPrimitiveComponent*, WakingComponent, FName, BoneName);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FComponentSleepSignature, UPrimitiveComponent, OnComponentSleep, UPrimitiveComponent*, SleepingComponent, FName, BoneName);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(
	FComponentBeginCursorOverSignature, UPrimitiveComponent, OnBeginCursorOver, UPrimitiveComponent*, TouchedComponent);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(
	FComponentEndCursorOverSignature, UPrimitiveComponent, OnEndCursorOver, UPrimitiveComponent*, TouchedComponent);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(
	FComponentOnReleasedSignature, UPrimitiveComponent, OnReleased, UPrimitiveComponent*, TouchedComponent, FKey, ButtonReleased);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(FComponentOnInputTouchBeginSignature, UPrimitiveComponent, OnInputTouchBegin,
	ETouchIndex::Type, FingerIndex, UPrimitiveComponent*, TouchedComponent);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(FComponentOnInputTouchEndSignature, UPrimitiveComponent, OnInputTouchEnd,
	ETouchIndex::Type, FingerIndex, UPrimitiveComponent*, TouchedComponent);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(FComponentBeginTouchOverSignature, UPrimitiveComponent, OnInputTouchEnter,
	ETouchIndex::Type, FingerIndex, UPrimitiveComponent*, TouchedComponent);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(FComponentEndTouchOverSignature, UPrimitiveComponent, OnInputTouchLeave,
	ETouchIndex::Type, FingerIndex, UPrimitiveComponent*, TouchedComponent);

/** A component that is drawn or collides. */
UCLASS(Abstract, HideCategories = (Mobility, VirtualTexture), ShowCategories = (PhysicsVolume))
class ENGINE_API UPrimitiveComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentHitSignature OnComponentHit;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentBeginOverlapSignature OnComponentBeginOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Collision")
	FComponentEndOverlapSignature OnComponentEndOverlap;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FComponentOnClickedSignature OnClicked;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 CastShadow : 1;

	/** Finds where a line meets the component. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (DisplayName = "Line Trace Component", ScriptName = "LineTraceComponent", bTraceComplex = "true"))
	bool K2_LineTraceComponent(FVector TraceStart, FVector TraceEnd, bool bTraceComplex, bool bShowTrace, bool bPersistentShowTrace,
		FVector& HitLocation, FVector& HitNormal, FName& BoneName, FHitResult& OutHit);

	/** Sets what collision is used for. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetCollisionEnabled(ECollisionEnabled::Type NewType);

	/** What collision is used for. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	ECollisionEnabled::Type GetCollisionEnabled() const;

	/** Takes the settings of a collision profile. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetCollisionProfileName(FName InCollisionProfileName, bool bUpdateOverlaps = true);

	/** Name of the collision profile. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	FName GetCollisionProfileName() const;

	/** Sets what kind of object the component is. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetCollisionObjectType(ECollisionChannel Channel);

	/** Sets the answer to one channel. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetCollisionResponseToChannel(ECollisionChannel Channel, ECollisionResponse NewResponse);

	/** Sets the answer to all channels. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetCollisionResponseToAllChannels(ECollisionResponse NewResponse);

	/** Sets whether overlaps tell of themselves. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetGenerateOverlapEvents(bool bInGenerateOverlapEvents);

	/** True if the component overlaps another. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	bool IsOverlappingComponent(const UPrimitiveComponent* OtherComp) const;

	/** Actors that the component overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void GetOverlappingActors(TArray<AActor*>& OverlappingActors, TSubclassOf<AActor> ClassFilter = nullptr) const;

	/** Switches physics. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetSimulatePhysics(bool bSimulate);

	/** True if physics moves the component. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	bool IsSimulatingPhysics(FName BoneName = NAME_None) const;

	/** Switches gravity. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetEnableGravity(bool bGravityEnabled);

	/** Pushes at once. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddImpulse(FVector Impulse, FName BoneName = NAME_None, bool bVelChange = false);

	/** Pushes for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddForce(FVector Force, FName BoneName = NAME_None, bool bAccelChange = false);

	/** Sets the velocity in centimetres a second. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysicsLinearVelocity(FVector NewVel, bool bAddToCurrent = false, FName BoneName = NAME_None);

	/** Velocity in centimetres a second. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	FVector GetPhysicsLinearVelocity(FName BoneName = NAME_None);

	/** Mass in kilograms. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	float GetMass() const;

	/** Sets a material. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetMaterial(int32 ElementIndex, UMaterialInterface* Material);

	/** Material at a place. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInterface* GetMaterial(int32 ElementIndex) const;

	/** Number of materials. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	int32 GetNumMaterials() const;

	/** Makes a material of the component that can change in the game. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInstanceDynamic* CreateDynamicMaterialInstance(
		int32 ElementIndex, UMaterialInterface* SourceMaterial = nullptr, FName OptionalName = NAME_None);

	/** Switches the shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCastShadow(bool NewCastShadow);

	UPROPERTY(BlueprintAssignable, Category = "Physics")
	FComponentWakeSignature OnComponentWake;

	UPROPERTY(BlueprintAssignable, Category = "Physics")
	FComponentSleepSignature OnComponentSleep;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FComponentBeginCursorOverSignature OnBeginCursorOver;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FComponentEndCursorOverSignature OnEndCursorOver;

	UPROPERTY(BlueprintAssignable, Category = "Input|Mouse Input")
	FComponentOnReleasedSignature OnReleased;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FComponentOnInputTouchBeginSignature OnInputTouchBegin;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FComponentOnInputTouchEndSignature OnInputTouchEnd;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FComponentBeginTouchOverSignature OnInputTouchEnter;

	UPROPERTY(BlueprintAssignable, Category = "Input|Touch Input")
	FComponentEndTouchOverSignature OnInputTouchLeave;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Rendering")
	float BoundsScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	float LDMaxDrawDistance;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	float MinDrawDistance;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bRenderInMainPass : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bRenderCustomDepth : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	int32 CustomDepthStencilValue;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bOwnerNoSee : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bOnlyOwnerSee : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bReceivesDecals : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	int32 TranslucencySortPriority;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bVisibleInReflectionCaptures : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bVisibleInRayTracing : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Collision")
	FBodyInstance BodyInstance;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Collision")
	uint8 bTraceComplexOnMove : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Collision")
	uint8 bReturnMaterialOnMove : 1;

	UPROPERTY(BlueprintReadWrite, Category = "Collision")
	TArray<TObjectPtr<AActor>> MoveIgnoreActors;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lighting")
	uint8 bAffectDynamicIndirectLighting : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lighting")
	uint8 bCastDynamicShadow : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lighting")
	uint8 bCastStaticShadow : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lighting")
	uint8 bCastHiddenShadow : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Lighting")
	FLightingChannels LightingChannels;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "HLOD")
	uint8 bEnableAutoLODGeneration : 1;

	/** Components that the component overlaps. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void GetOverlappingComponents(TArray<UPrimitiveComponent*>& OutOverlappingComponents) const;

	/** True if the component overlaps an actor. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	bool IsOverlappingActor(const AActor* Other) const;

	/** Whether the component passes through an actor as it moves. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void IgnoreActorWhenMoving(AActor* Actor, bool bShouldIgnore);

	/** Actors that the component passes through. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (DisplayName = "Get Move Ignore Actors"))
	TArray<AActor*> CopyArrayOfMoveIgnoreActors();

	/** Passes through no actors any more. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void ClearMoveIgnoreActors();

	/** Whether the component passes through another as it moves. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void IgnoreComponentWhenMoving(UPrimitiveComponent* Component, bool bShouldIgnore);

	/** Components that the component passes through. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (DisplayName = "Get Move Ignore Components"))
	TArray<UPrimitiveComponent*> CopyArrayOfMoveIgnoreComponents();

	/** Passes through no components any more. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void ClearMoveIgnoreComponents();

	/** What kind of object the component is. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	ECollisionChannel GetCollisionObjectType() const;

	/** Answer to a channel. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	ECollisionResponse GetCollisionResponseToChannel(ECollisionChannel Channel) const;

	/** True if overlaps tell of themselves. */
	UFUNCTION(BlueprintPure, Category = "Collision")
	bool GetGenerateOverlapEvents() const;

	/** Whether a sphere overlaps the component. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (ScriptName = "SphereOverlapComponent", DisplayName = "Sphere Overlap Component", bTraceComplex = "true"))
	bool K2_SphereOverlapComponent(FVector InSphereCentre, float InSphereRadius, bool bTraceComplex, bool bShowTrace,
		bool bPersistentShowTrace, FVector& HitLocation, FVector& HitNormal, FName& BoneName, FHitResult& OutHit);

	/** Whether a box overlaps the component. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (ScriptName = "BoxOverlapComponent", DisplayName = "Box Overlap Component", bTraceComplex = "true"))
	bool K2_BoxOverlapComponent(FVector InBoxCentre, const FBox InBox, bool bTraceComplex, bool bShowTrace, bool bPersistentShowTrace,
		FVector& HitLocation, FVector& HitNormal, FName& BoneName, FHitResult& OutHit);

	/** Finds where a moving sphere meets the component. */
	UFUNCTION(BlueprintCallable, Category = "Collision",
		meta = (ScriptName = "SphereTraceComponent", DisplayName = "Sphere Trace Component", bTraceComplex = "true"))
	bool K2_SphereTraceComponent(FVector TraceStart, FVector TraceEnd, float SphereRadius, bool bTraceComplex, bool bShowTrace,
		bool bPersistentShowTrace, FVector& HitLocation, FVector& HitNormal, FName& BoneName, FHitResult& OutHit);

	/** The point of the body that is nearest and its distance. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	float GetClosestPointOnCollision(const FVector& Point, FVector& OutPointOnBody, FName BoneName = NAME_None) const;

	/** True if the component collides. */
	UFUNCTION(BlueprintPure, Category = "Collision", meta = (ScriptName = "IsCollisionEnabled", DisplayName = "Is Collision Enabled"))
	bool K2_IsCollisionEnabled() const;

	/** True if traces find the component. */
	UFUNCTION(
		BlueprintPure, Category = "Collision", meta = (ScriptName = "IsQueryCollisionEnabled", DisplayName = "Is Query Collision Enabled"))
	bool K2_IsQueryCollisionEnabled() const;

	/** True if physics meets the component. */
	UFUNCTION(BlueprintPure, Category = "Collision",
		meta = (ScriptName = "IsPhysicsCollisionEnabled", DisplayName = "Is Physics Collision Enabled"))
	bool K2_IsPhysicsCollisionEnabled() const;

	/** Whether fast bodies are tested on their whole way. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (Keywords = "CCD continuous"))
	void SetUseCCD(bool InUseCCD, FName BoneName = NAME_None);

	/** Whether fast bodies are tested on their whole way. */
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (Keywords = "CCD continuous"))
	void SetAllUseCCD(bool InUseCCD);

	/** Whether hits tell of themselves. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetNotifyRigidBodyCollision(bool bNewNotifyRigidBodyCollision);

	/** Sets the all mass scale. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetAllMassScale(float InMassScale = 1.f);

	/** Limit for slopes to walk on. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	FWalkableSlopeOverride GetWalkableSlopeOverride() const;

	/** Sets the limit for slopes to walk on. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	void SetWalkableSlopeOverride(const FWalkableSlopeOverride& NewOverride);

	/** True if a character may step up on the component. */
	UFUNCTION(BlueprintCallable, Category = "Collision")
	bool CanCharacterStepUp(APawn* Pawn) const;

	/** Sets which way the body is locked. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetConstraintMode(EDOFMode::Type ConstraintMode);

	/** Pushes at a place once. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddImpulseAtLocation(FVector Impulse, FVector Location, FName BoneName = NAME_None);

	/** Pushes at a place once, whatever the mass. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddVelocityChangeImpulseAtLocation(FVector Impulse, FVector Location, FName BoneName = NAME_None);

	/** Turns once. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddAngularImpulseInRadians(FVector Impulse, FName BoneName = NAME_None, bool bVelChange = false);

	/** Turns once. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddAngularImpulseInDegrees(FVector Impulse, FName BoneName = NAME_None, bool bVelChange = false);

	/** Pushes away from a point once. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddRadialImpulse(FVector Origin, float Radius, float Strength, ERadialImpulseFalloff Falloff, bool bVelChange = false);

	/** Pushes at a place for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddForceAtLocation(FVector Force, FVector Location, FName BoneName = NAME_None);

	/** Pushes at a place of the body's space for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddForceAtLocationLocal(FVector Force, FVector Location, FName BoneName = NAME_None);

	/** Pushes away from a point for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddRadialForce(FVector Origin, float Radius, float Strength, ERadialImpulseFalloff Falloff, bool bAccelChange = false);

	/** Turns for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddTorqueInRadians(FVector Torque, FName BoneName = NAME_None, bool bAccelChange = false);

	/** Turns for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void AddTorqueInDegrees(FVector Torque, FName BoneName = NAME_None, bool bAccelChange = false);

	/** Velocity of a point of the body. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	FVector GetPhysicsLinearVelocityAtPoint(FVector Point, FName BoneName = NAME_None);

	/** Sets the velocity of all bodies. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetAllPhysicsLinearVelocity(FVector NewVel, bool bAddToCurrent = false);

	/** Sets how fast the body turns. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysicsAngularVelocityInRadians(FVector NewAngVel, bool bAddToCurrent = false, FName BoneName = NAME_None);

	/** Sets how fast the body turns. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysicsAngularVelocityInDegrees(FVector NewAngVel, bool bAddToCurrent = false, FName BoneName = NAME_None);

	/** Sets how fast all bodies turn. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetAllPhysicsAngularVelocityInDegrees(const FVector& NewAngVel, bool bAddToCurrent = false);

	/** Sets how fast all bodies turn. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetAllPhysicsAngularVelocityInRadians(const FVector& NewAngVel, bool bAddToCurrent = false);

	/** Sets how fast the body may turn. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysicsMaxAngularVelocityInDegrees(float NewMaxAngVel, bool bAddToCurrent = false, FName BoneName = NAME_None);

	/** Sets how fast the body may turn. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysicsMaxAngularVelocityInRadians(float NewMaxAngVel, bool bAddToCurrent = false, FName BoneName = NAME_None);

	/** How fast the body turns. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	FVector GetPhysicsAngularVelocityInDegrees(FName BoneName = NAME_None) const;

	/** How fast the body turns. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	FVector GetPhysicsAngularVelocityInRadians(FName BoneName = NAME_None) const;

	/** Centre of mass in the world. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	FVector GetCenterOfMass(FName BoneName = NAME_None) const;

	/** Moves the centre of mass. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetCenterOfMass(FVector CenterOfMassOffset, FName BoneName = NAME_None);

	/** Wakes a body. */
	UFUNCTION(BlueprintCallable, Category = "Physics", meta = (Keywords = "physics"))
	void WakeRigidBody(FName BoneName = NAME_None);

	/** Wakes all bodies. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void WakeAllRigidBodies();

	/** Puts a body to sleep. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void PutRigidBodyToSleep(FName BoneName = NAME_None);

	/** True if a body is awake. */
	UFUNCTION(BlueprintCallable, Category = "Physics", meta = (DisplayName = "Is Rigid Body Awake"))
	bool RigidBodyIsAwake(FName BoneName = NAME_None) const;

	/** True if it is gravity enabled. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	bool IsGravityEnabled() const;

	/** Sets the linear damping. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetLinearDamping(float InDamping);

	/** The linear damping. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	float GetLinearDamping() const;

	/** Sets the angular damping. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetAngularDamping(float InDamping);

	/** The angular damping. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	float GetAngularDamping() const;

	/** Factor of the mass. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetMassScale(FName BoneName = NAME_None, float InMassScale = 1.f);

	/** Factor of the mass. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	float GetMassScale(FName BoneName = NAME_None) const;

	/** Sets the mass in kilograms. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetMassOverrideInKg(FName BoneName = NAME_None, float MassInKg = 1.f, bool bOverrideMass = true);

	/** Inertia of a body. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	FVector GetInertiaTensor(FName BoneName = NAME_None) const;

	/** A vector times the inertia of a body. */
	UFUNCTION(BlueprintPure, Category = "Physics")
	FVector ScaleByMomentOfInertia(FVector InputVector, FName BoneName = NAME_None) const;

	/** Sets the physical material. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetPhysMaterialOverride(UPhysicalMaterial* NewPhysMaterial);

	/** Sets the update kinematic from simulation. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetUpdateKinematicFromSimulation(bool bUpdateKinematicFromSimulation);

	/** Hides the component from its owner's view. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetOwnerNoSee(bool bNewOwnerNoSee);

	/** Hides the component from all views but its owner's. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetOnlyOwnerSee(bool bNewOnlyOwnerSee);

	/** Whether the component is drawn into the custom depth. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRenderCustomDepth(bool bValue);

	/** Number of the component in the custom depth. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomDepthStencilValue(int32 Value);

	/** Sets the custom depth stencil write mask. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomDepthStencilWriteMask(ERendererStencilMask WriteMaskBit);

	/** Whether the component is drawn. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRenderInMainPass(bool bValue);

	/** Sets the render in depth pass. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetRenderInDepthPass(bool bValue);

	/** Sets the visible in ray tracing. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetVisibleInRayTracing(bool bValue);

	/** Sets the visible in scene capture only. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetVisibleInSceneCaptureOnly(bool bValue);

	/** Sets the hidden in scene capture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetHiddenInSceneCapture(bool bValue);

	/** Order among see-through components. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetTranslucentSortPriority(int32 NewTranslucentSortPriority);

	/** Sets the translucency sort distance offset. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetTranslucencySortDistanceOffset(float NewTranslucencySortDistanceOffset);

	/** Sets the receives decals. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetReceivesDecals(bool bNewReceivesDecals);

	/** Distance from which the component is not drawn. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCullDistance(float NewCullDistance);

	/** Sets the bounds scale. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetBoundsScale(float NewBoundsScale = 1.f);

	/** Sets a number that the material reads. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomPrimitiveDataFloat(int32 DataIndex, float Value);

	/** Sets two numbers that the material reads. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomPrimitiveDataVector2(int32 DataIndex, FVector2D Value);

	/** Sets three numbers that the material reads. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomPrimitiveDataVector3(int32 DataIndex, FVector Value);

	/** Sets four numbers that the material reads. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCustomPrimitiveDataVector4(int32 DataIndex, FVector4 Value);

	/** Sets the default custom primitive data float. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetDefaultCustomPrimitiveDataFloat(int32 DataIndex, float Value);

	/** Sets the material of a slot. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetMaterialByName(FName MaterialSlotName, UMaterialInterface* Material);

	/** Gives an element a material whose parameters can change. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInstanceDynamic* CreateAndSetMaterialInstanceDynamic(int32 ElementIndex);

	/** Gives an element a changing material made of another. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInstanceDynamic* CreateAndSetMaterialInstanceDynamicFromMaterial(int32 ElementIndex, UMaterialInterface* Parent);

	/** Material of a face. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInterface* GetMaterialFromCollisionFaceIndex(int32 FaceIndex, int32& SectionIndex) const;

	/** The material by name. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterialInterface* GetMaterialByName(FName MaterialSlotName) const;

	/** Sets which lights reach the component. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetLightingChannels(bool bChannel0, bool bChannel1, bool bChannel2);

	/** Sets the single sample shadow from stationary lights. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetSingleSampleShadowFromStationaryLights(bool bNewSingleSampleShadowFromStationaryLights);

	/** Sets the exclude from light attachment group. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetExcludeFromLightAttachmentGroup(bool bValue);

	/** Sets the affect dynamic indirect lighting. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetAffectDynamicIndirectLighting(bool bNewAffectDynamicIndirectLighting);

	/** Sets the cast hidden shadow. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetCastHiddenShadow(bool NewCastHiddenShadow);

	/** Sets the cast inset shadow. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetCastInsetShadow(bool bInCastInsetShadow);

	/** Sets the cast contact shadow. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetCastContactShadow(bool bInCastContactShadow);

	/** Sets the light attachments as group. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetLightAttachmentsAsGroup(bool bInLightAttachmentsAsGroup);

	/** Sets the emissive light source. */
	UFUNCTION(BlueprintCallable, Category = "Lighting")
	void SetEmissiveLightSource(bool NewEmissiveLightSource);
};

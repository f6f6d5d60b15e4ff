// Package: /Script/Engine
#pragma once

#include "Components/SceneComponent.h"
#include "EngineTypes.h"
#include "Components.generated.h"

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FiveParams(FComponentHitSignature, UPrimitiveComponent, OnComponentHit, UPrimitiveComponent*, HitComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, FVector, NormalImpulse, const FHitResult&, Hit);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_SixParams(FComponentBeginOverlapSignature, UPrimitiveComponent, OnComponentBeginOverlap, UPrimitiveComponent*, OverlappedComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex, bool, bFromSweep, const FHitResult&, SweepResult);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_FourParams(FComponentEndOverlapSignature, UPrimitiveComponent, OnComponentEndOverlap, UPrimitiveComponent*, OverlappedComponent, AActor*, OtherActor, UPrimitiveComponent*, OtherComp, int32, OtherBodyIndex);
DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_TwoParams(FComponentOnClickedSignature, UPrimitiveComponent, OnClicked, UPrimitiveComponent*, TouchedComponent, FKey, ButtonPressed);

// Extends native
UCLASS()
class ENGINE_API UActorComponent : public UObject
{
	GENERATED_BODY()

public:
	/** Switches the component on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void Activate(bool bReset = false);

	/** Switches the component off. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void Deactivate();

	/** Switches the component on or off. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	void SetActive(bool bNewActive, bool bReset = false);

	/** True if the component is on. */
	UFUNCTION(BlueprintCallable, Category = "Components|Activation")
	bool IsActive() const;

	/** Switches the component's tick. */
	UFUNCTION(BlueprintCallable, Category = "Components|Tick")
	void SetComponentTickEnabled(bool bEnabled);

	/** Actor that owns the component. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Actor Owning Parent"))
	AActor* GetOwner() const;

	/** True if the component has a tag. */
	UFUNCTION(BlueprintCallable, Category = "Components")
	bool ComponentHasTag(FName Tag) const;

	/** Ends the component. */
	UFUNCTION(BlueprintCallable, Category = "Components", meta = (Keywords = "Delete", DisplayName = "Destroy Component", ScriptName = "DestroyComponent"))
	void K2_DestroyComponent(UObject* Object);

	/** Play begins for the component. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Begin Play"))
	void ReceiveBeginPlay();

	/** Play ends for the component. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "End Play"))
	void ReceiveEndPlay(EEndPlayReason::Type EndPlayReason);

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Tick"))
	void ReceiveTick(float DeltaSeconds);
};

// Extends native
UCLASS()
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** Place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Location", ScriptName = "GetWorldLocation", Keywords = "position"))
	FVector K2_GetComponentLocation() const;

	/** Rotation in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Rotation", ScriptName = "GetWorldRotation"))
	FRotator K2_GetComponentRotation() const;

	/** Scale in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Scale", ScriptName = "GetWorldScale"))
	FVector K2_GetComponentScale() const;

	/** The transform from the component's space to the world's. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Transform", ScriptName = "GetWorldTransform"))
	FTransform K2_GetComponentToWorld() const;

	/** Direction that the component looks in. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetForwardVector() const;

	/** Direction above the component. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetUpVector() const;

	/** Direction to the right of the component. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetRightVector() const;

	/** Sets the scale in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetRelativeScale3D(FVector NewScale3D);

	/** Sets the scale in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetWorldScale3D(FVector NewScale);

	/** Shows or hides the component. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetVisibility(bool bNewVisibility, bool bPropagateToChildren = false);

	/** Shows the component if it is hidden and hides it if it is shown. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void ToggleVisibility(bool bPropagateToChildren = false);

	/** Hides or shows the component in the game. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetHiddenInGame(bool NewHidden, bool bPropagateToChildren = false);

	/** True if the component is to be seen. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	bool IsVisible() const;

	/** Attaches the component to another. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Attach Component To Component", ScriptName = "AttachToComponent", bWeldSimulatedBodies = true))
	bool K2_AttachToComponent(USceneComponent* Parent, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule, EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Takes the component from its parent. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Detach From Component", ScriptName = "DetachFromComponent"))
	void K2_DetachFromComponent(EDetachmentRule LocationRule = EDetachmentRule::KeepRelative, EDetachmentRule RotationRule = EDetachmentRule::KeepRelative, EDetachmentRule ScaleRule = EDetachmentRule::KeepRelative, bool bCallModify = true);

	/** Component that this one is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	USceneComponent* GetAttachParent() const;

	/** Attached components, and theirs when asked for. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void GetChildrenComponents(bool bIncludeAllDescendants, TArray<USceneComponent*>& Children) const;

	/** Place of a socket in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	FVector GetSocketLocation(FName InSocketName) const;

	/** Sets whether the component may move. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetMobility(EComponentMobility::Type NewMobility);

	/** Moves the component to a place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set World Location", ScriptName = "SetWorldLocation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set World Rotation", ScriptName = "SetWorldRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves and turns the component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set World Location And Rotation", ScriptName = "SetWorldLocationAndRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the transform in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set World Transform", ScriptName = "SetWorldTransform", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Location", ScriptName = "SetRelativeLocation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Rotation", ScriptName = "SetRelativeRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves and turns the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Location And Rotation", ScriptName = "SetRelativeLocationAndRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the transform in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Set Relative Transform", ScriptName = "SetRelativeTransform", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add World Offset", ScriptName = "AddWorldOffset", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add World Rotation", ScriptName = "AddWorldRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance along the component's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Local Offset", ScriptName = "AddLocalOffset", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddLocalOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation around the component's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Local Rotation", ScriptName = "AddLocalRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddLocalRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Relative Location", ScriptName = "AddRelativeLocation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddRelativeLocation(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Add Relative Rotation", ScriptName = "AddRelativeRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddRelativeRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);
};

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
	UFUNCTION(BlueprintCallable, Category = "Collision", meta = (DisplayName = "Line Trace Component", ScriptName = "LineTraceComponent", bTraceComplex = "true"))
	bool K2_LineTraceComponent(FVector TraceStart, FVector TraceEnd, bool bTraceComplex, bool bShowTrace, bool bPersistentShowTrace, FVector& HitLocation, FVector& HitNormal, FName& BoneName, FHitResult& OutHit);

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
	UMaterialInstanceDynamic* CreateDynamicMaterialInstance(int32 ElementIndex, UMaterialInterface* SourceMaterial = nullptr, FName OptionalName = NAME_None);

	/** Switches the shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering")
	void SetCastShadow(bool NewCastShadow);
};

/** A component that shows a mesh. */
UCLASS(abstract, ShowCategories = (VirtualTexture))
class ENGINE_API UMeshComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
	/** Materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	TArray<UMaterialInterface*> GetMaterials() const;

	/** Sets a number in all materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetScalarParameterValueOnMaterials(const FName ParameterName, const float ParameterValue);

	/** Sets a vector in all materials of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetVectorParameterValueOnMaterials(const FName ParameterName, const FVector ParameterValue);
};

/** Shows a mesh that does not bend. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UStaticMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "StaticMesh", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UStaticMesh> StaticMesh;

	/** Sets the mesh; false if it may not change. */
	UFUNCTION(BlueprintCallable, Category = "Components|StaticMesh")
	bool SetStaticMesh(UStaticMesh* NewMesh);
};

/** Shows a mesh that bones bend. */
UCLASS(abstract)
class ENGINE_API USkinnedMeshComponent : public UMeshComponent
{
	GENERATED_BODY()

public:
	/** Name of a bone by its number. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	FName GetBoneName(int32 BoneIndex) const;

	/** Number of bones. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	int32 GetNumBones() const;
};

/** Shows a mesh that animation bends. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USkeletalMeshComponent : public USkinnedMeshComponent
{
	GENERATED_BODY()

public:
	/** Animation instance of the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkeletalMesh", meta = (Keywords = "AnimBlueprint"))
	UAnimInstance* GetAnimInstance() const;

	/** Plays one animation. */
	UFUNCTION(BlueprintCallable, Category = "Components|Animation", meta = (Keywords = "Animation"))
	void PlayAnimation(UAnimationAsset* NewAnimToPlay, bool bLooping);

	/** Stops the one animation that plays. */
	UFUNCTION(BlueprintCallable, Category = "Components|Animation")
	void Stop();

	/** Switches physics of all bodies. */
	UFUNCTION(BlueprintCallable, Category = "Physics")
	void SetAllBodiesSimulatePhysics(bool bNewSimulate);
};

/** Runs the animation of a mesh. */
UCLASS(transient, Blueprintable, hideCategories = AnimInstance, BlueprintType)
class ENGINE_API UAnimInstance : public UObject
{
	GENERATED_BODY()

public:
	/** Actor that is animated. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	AActor* GetOwningActor() const;

	/** Pawn that is animated, or null. */
	UFUNCTION(BlueprintPure, Category = "Animation", meta = (NotBlueprintThreadSafe))
	APawn* TryGetPawnOwner() const;

	/** True while a montage plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool Montage_IsPlaying(const UAnimMontage* Montage) const;

	/** Stops a montage, or all for null. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void Montage_Stop(float InBlendOutTime, const UAnimMontage* Montage = nullptr);

	/** Play of the animation begins. */
	UFUNCTION(BlueprintImplementableEvent, meta = (DisplayName = "Blueprint Begin Play"))
	void BlueprintBeginPlay();

	/** The instance is made. */
	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintInitializeAnimation();

	/** Each frame. */
	UFUNCTION(BlueprintImplementableEvent)
	void BlueprintUpdateAnimation(float DeltaTimeX);
};

/** Collides as a simple shape. */
UCLASS(abstract)
class ENGINE_API UShapeComponent : public UPrimitiveComponent
{
	GENERATED_BODY()

public:
};

/** Collides as a box. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UBoxComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Half sizes of the box. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	void SetBoxExtent(FVector InBoxExtent, bool bUpdateOverlaps = true);

	/** Half sizes of the box, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	FVector GetScaledBoxExtent() const;

	/** Half sizes of the box. */
	UFUNCTION(BlueprintCallable, Category = "Components|Box")
	FVector GetUnscaledBoxExtent() const;
};

/** Collides as a sphere. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USphereComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Sets the radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	void SetSphereRadius(float InSphereRadius, bool bUpdateOverlaps = true);

	/** Radius, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	float GetScaledSphereRadius() const;

	/** Radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Sphere")
	float GetUnscaledSphereRadius() const;
};

/** Collides as a capsule that stands. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCapsuleComponent : public UShapeComponent
{
	GENERATED_BODY()

public:
	/** Sets the radius and half of the height. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleSize(float InRadius, float InHalfHeight, bool bUpdateOverlaps = true);

	/** Sets the radius. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleRadius(float Radius, bool bUpdateOverlaps = true);

	/** Sets half of the height. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	void SetCapsuleHalfHeight(float HalfHeight, bool bUpdateOverlaps = true);

	/** Radius, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetScaledCapsuleRadius() const;

	/** Half of the height, scaled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Capsule")
	float GetScaledCapsuleHalfHeight() const;
};

/** What all lights have. */
UCLASS(abstract, hidecategories = (Trigger, Activation, "Components|Activation", Physics))
class ENGINE_API ULightComponentBase : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintReadOnly, interp, EditAnywhere, Category = "Light")
	float Intensity;

	UPROPERTY(BlueprintReadOnly, interp, EditAnywhere, Category = "Light", meta = (HideAlphaChannel))
	FColor LightColor;

	/** Switches the shadow. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetCastShadows(bool bNewValue);

	/** Colour of the light. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	FLinearColor GetLightColor() const;
};

/** A light. */
UCLASS(abstract, HideCategories = (Trigger, Activation, "Components|Activation", Physics), ShowCategories = (Mobility))
class ENGINE_API ULightComponent : public ULightComponentBase
{
	GENERATED_BODY()

public:
	/** Sets the brightness. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetIntensity(float NewIntensity);

	/** Sets the colour. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetLightColor(FLinearColor NewLightColor, bool bSRGB = true);

	/** Sets the colour temperature in kelvins. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Components|Light")
	void SetTemperature(float NewTemperature);
};

/** A light that fades with distance. */
UCLASS(abstract)
class ENGINE_API ULocalLightComponent : public ULightComponent
{
	GENERATED_BODY()

public:
	/** Sets the distance that the light reaches. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetAttenuationRadius(float NewRadius);
};

/** A light that shines to all sides. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UPointLightComponent : public ULocalLightComponent
{
	GENERATED_BODY()

public:
	/** Sets the size of the source. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetSourceRadius(float bNewValue);
};

/** A light that shines in a cone. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USpotLightComponent : public UPointLightComponent
{
	GENERATED_BODY()

public:
	/** Sets the angle of the bright cone, in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetInnerConeAngle(float NewInnerConeAngle);

	/** Sets the angle of the cone, in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Lighting")
	void SetOuterConeAngle(float NewOuterConeAngle);
};

/** A light from far away. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UDirectionalLightComponent : public ULightComponent
{
	GENERATED_BODY()

public:
};

/** A point of view. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCameraComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(Interp, EditAnywhere, BlueprintReadWrite, Category = "CameraSettings", meta = (ClampMin = "0.001", ClampMax = "360.0"))
	float FieldOfView;

	/** Sets the angle of view in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Camera")
	void SetFieldOfView(float InFieldOfView);
};

/** Holds a camera at a distance that obstacles shorten. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API USpringArmComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float TargetArmLength;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraSettings")
	uint32 bUsePawnControlRotation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "CameraCollision")
	uint32 bDoCollisionTest : 1;
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnAudioFinished);

/** Plays a sound. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UAudioComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnAudioFinished OnAudioFinished;

	/** Plays from a place in seconds. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Play(float StartTime = 0.0f);

	/** Stops. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Stop();

	/** True while it plays. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	bool IsPlaying() const;

	/** What the component is doing. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	EAudioComponentPlayState GetPlayState() const;

	/** Sets the sound. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetSound(USoundBase* NewSound);

	/** Sets the volume. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetVolumeMultiplier(float NewVolumeMultiplier);
};

/** Moves another component. */
UCLASS(ClassGroup = Movement, abstract, BlueprintType)
class ENGINE_API UMovementComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Velocity")
	FVector Velocity;

	/** Stops at once. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	void StopMovementImmediately();

	/** Highest speed in centimetres a second. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	float GetMaxSpeed() const;
};

/** Moves along paths. */
UCLASS(abstract, config = Engine)
class ENGINE_API UNavMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	/** True while it falls. */
	UFUNCTION(BlueprintPure, Category = "AI|Components|NavMovement")
	bool IsFalling() const;

	/** True while it crouches. */
	UFUNCTION(BlueprintPure, Category = "AI|Components|NavMovement")
	bool IsCrouching() const;
};

/** Moves a pawn. */
UCLASS(abstract)
class ENGINE_API UPawnMovementComponent : public UNavMovementComponent
{
	GENERATED_BODY()

public:
	/** Pawn that is moved. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	APawn* GetPawnOwner() const;
};

/** Moves a character. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCharacterMovementComponent : public UPawnMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking", meta = (ClampMin = "0", ForceUnits = "cm/s"))
	float MaxWalkSpeed;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling", meta = (DisplayName = "Jump Z Velocity", ForceUnits = "cm/s"))
	float JumpZVelocity;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float GravityScale;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (Rotation Settings)")
	uint8 bOrientRotationToMovement : 1;

	UPROPERTY(BlueprintReadOnly, Category = "Character Movement: MovementMode")
	TEnumAsByte<enum EMovementMode> MovementMode;

	/** Sets the way of moving. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetMovementMode(EMovementMode NewMovementMode, uint8 NewCustomMode = 0);

	/** Keeps the character where it is. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void DisableMovement();
};

/** A mesh that does not bend. */
UCLASS(BlueprintType)
class ENGINE_API UStaticMesh : public UObject
{
	GENERATED_BODY()

public:
};

/** Something that animates. */
UCLASS(BlueprintType)
class ENGINE_API UAnimationAsset : public UObject
{
	GENERATED_BODY()

public:
};

/** An animation of sections. */
UCLASS(BlueprintType)
class ENGINE_API UAnimMontage : public UAnimationAsset
{
	GENERATED_BODY()

public:
};

/** A sound. */
UCLASS(BlueprintType)
class ENGINE_API USoundBase : public UObject
{
	GENERATED_BODY()

public:
};

/** A picture. */
UCLASS(BlueprintType)
class ENGINE_API UTexture : public UObject
{
	GENERATED_BODY()

public:
};

/** How a surface looks. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UMaterialInterface : public UObject
{
	GENERATED_BODY()

public:
	/** Material that this one goes back to. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	UMaterial* GetBaseMaterial();
};

/** How a surface looks, as a graph says. */
UCLASS(BlueprintType)
class ENGINE_API UMaterial : public UMaterialInterface
{
	GENERATED_BODY()

public:
};

/** A material with values of its own. */
UCLASS(abstract, BlueprintType)
class ENGINE_API UMaterialInstance : public UMaterialInterface
{
	GENERATED_BODY()

public:
};

/** A material whose values change in the game. */
UCLASS(hidecategories = Object, collapsecategories, BlueprintType)
class ENGINE_API UMaterialInstanceDynamic : public UMaterialInstance
{
	GENERATED_BODY()

public:
	/** Sets a number. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material", meta = (Keywords = "SetFloatParameterValue"))
	void SetScalarParameterValue(FName ParameterName, float Value);

	/** Sets a vector or a colour. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material", meta = (Keywords = "SetColorParameterValue"))
	void SetVectorParameterValue(FName ParameterName, FLinearColor Value);

	/** Sets a picture. */
	UFUNCTION(BlueprintCallable, Category = "Rendering|Material")
	void SetTextureParameterValue(FName ParameterName, UTexture* Value);
};

// Package: /Script/Engine
#pragma once

#include "ActorComponent.h"
#include "SceneComponent.generated.h"

/** Space of a socket's transform. */
UENUM(BlueprintType)
enum ERelativeTransformSpace : int
{
	RTS_World UMETA(DisplayName = "World"),
	RTS_Actor UMETA(DisplayName = "Actor"),
	RTS_Component UMETA(DisplayName = "Component"),
	RTS_ParentBoneSpace UMETA(DisplayName = "Parent Bone Space")
};

DECLARE_DYNAMIC_MULTICAST_SPARSE_DELEGATE_OneParam(
	FPhysicsVolumeChanged, USceneComponent, PhysicsVolumeChangedDelegate, APhysicsVolume*, NewVolume);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FIsRootComponentChanged, USceneComponent*, UpdatedComponent, bool, bIsRootComponent);

// Extends native
UCLASS()
class ENGINE_API USceneComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** Place in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Get World Location", ScriptName = "GetWorldLocation", Keywords = "position"))
	FVector K2_GetComponentLocation() const;

	/** Rotation in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Rotation", ScriptName = "GetWorldRotation"))
	FRotator K2_GetComponentRotation() const;

	/** Scale in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Scale", ScriptName = "GetWorldScale"))
	FVector K2_GetComponentScale() const;

	/** The transform from the component's space to the world's. */
	UFUNCTION(
		BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Get World Transform", ScriptName = "GetWorldTransform"))
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
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Attach Component To Component", ScriptName = "AttachToComponent", bWeldSimulatedBodies = true))
	bool K2_AttachToComponent(USceneComponent* Parent, FName SocketName, EAttachmentRule LocationRule, EAttachmentRule RotationRule,
		EAttachmentRule ScaleRule, bool bWeldSimulatedBodies);

	/** Takes the component from its parent. */
	UFUNCTION(
		BlueprintCallable, Category = "Transformation", meta = (DisplayName = "Detach From Component", ScriptName = "DetachFromComponent"))
	void K2_DetachFromComponent(EDetachmentRule LocationRule = EDetachmentRule::KeepRelative,
		EDetachmentRule RotationRule = EDetachmentRule::KeepRelative, EDetachmentRule ScaleRule = EDetachmentRule::KeepRelative,
		bool bCallModify = true);

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
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set World Location", ScriptName = "SetWorldLocation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set World Rotation", ScriptName = "SetWorldRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves and turns the component in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set World Location And Rotation", ScriptName = "SetWorldLocationAndRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldLocationAndRotation(FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the transform in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set World Transform", ScriptName = "SetWorldTransform", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetWorldTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Relative Location", ScriptName = "SetRelativeLocation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeLocation(FVector NewLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Turns the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Relative Rotation", ScriptName = "SetRelativeRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeRotation(FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Moves and turns the component in its parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Relative Location And Rotation", ScriptName = "SetRelativeLocationAndRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeLocationAndRotation(
		FVector NewLocation, FRotator NewRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Sets the transform in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Set Relative Transform", ScriptName = "SetRelativeTransform",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_SetRelativeTransform(const FTransform& NewTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add World Offset", ScriptName = "AddWorldOffset", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add World Rotation", ScriptName = "AddWorldRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance along the component's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Local Offset", ScriptName = "AddLocalOffset", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddLocalOffset(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation around the component's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Local Rotation", ScriptName = "AddLocalRotation", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddLocalRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a distance in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Relative Location", ScriptName = "AddRelativeLocation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddRelativeLocation(FVector DeltaLocation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a rotation in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (DisplayName = "Add Relative Rotation", ScriptName = "AddRelativeRotation",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddRelativeRotation(FRotator DeltaRotation, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Puts the component at its parent's place. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void ResetRelativeTransform();

	/** Whether place, rotation and scale are of the world instead of the parent. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	void SetAbsolute(bool bNewAbsoluteLocation = false, bool bNewAbsoluteRotation = false, bool bNewAbsoluteScale = false);

	/** The transform in the parent's space. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FTransform GetRelativeTransform() const;

	/** All components above this one. */
	UFUNCTION(BlueprintPure, Category = "Transformation")
	void GetParentComponents(TArray<USceneComponent*>& Parents) const;

	/** Number of attached components. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	int32 GetNumChildrenComponents() const;

	/** An attached component by number. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	USceneComponent* GetChildComponent(int32 ChildIndex) const;

	/** Socket of the parent that the component is attached to. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FName GetAttachSocketName() const;

	/** Adds a transform in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (ScriptName = "AddWorldTransform", DisplayName = "Add World Transform", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldTransform(const FTransform& DeltaTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a transform in the world without scaling. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (ScriptName = "AddWorldTransformKeepScale", DisplayName = "Add World Transform Keep Scale",
			AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddWorldTransformKeepScale(const FTransform& DeltaTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Adds a transform along the component's own axes. */
	UFUNCTION(BlueprintCallable, Category = "Transformation",
		meta = (ScriptName = "AddLocalTransform", DisplayName = "Add Local Transform", AdvancedDisplay = "bSweep,SweepHitResult,bTeleport"))
	void K2_AddLocalTransform(const FTransform& DeltaTransform, bool bSweep, FHitResult& SweepHitResult, bool bTeleport);

	/** Names of all sockets. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	TArray<FName> GetAllSocketNames() const;

	/** Transform of a socket. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	FTransform GetSocketTransform(FName InSocketName, ERelativeTransformSpace TransformSpace = RTS_World) const;

	/** Rotation of a socket in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	FRotator GetSocketRotation(FName InSocketName) const;

	/** Rotation of a socket in the world. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	FQuat GetSocketQuaternion(FName InSocketName) const;

	/** True if there is such a socket. */
	UFUNCTION(BlueprintCallable, Category = "Transformation", meta = (Keywords = "Bone"))
	bool DoesSocketExist(FName InSocketName) const;

	/** Velocity of the component in centimetres a second. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	FVector GetComponentVelocity() const;

	/** Volume that the component is in. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	APhysicsVolume* GetPhysicsVolume() const;

	/** True if physics moves any part. */
	UFUNCTION(BlueprintCallable, Category = "Transformation")
	bool IsAnySimulatingPhysics() const;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bVisible : 1;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Rendering")
	uint8 bHiddenInGame : 1;

	UPROPERTY(BlueprintAssignable, Category = "Physics")
	FPhysicsVolumeChanged PhysicsVolumeChangedDelegate;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Physics")
	uint8 bShouldUpdatePhysicsVolume : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "LOD")
	TEnumAsByte<EDetailMode> DetailMode;
};

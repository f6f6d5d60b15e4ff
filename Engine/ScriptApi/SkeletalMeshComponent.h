// Package: /Script/Engine
#pragma once

#include "MeshComponents.h"
#include "SkeletalMeshComponent.generated.h"

/** Where a mesh's pose comes from. */
UENUM(BlueprintType)
namespace EAnimationMode
{
enum Type : int
{
	AnimationBlueprint UMETA(DisplayName = "Use Animation Blueprint"),
	AnimationSingleNode UMETA(DisplayName = "Use Animation Asset"),
	AnimationCustomMode UMETA(DisplayName = "Use Custom Mode")
};
}

/** What happens to a body of a hidden bone. */
UENUM(BlueprintType)
enum EPhysBodyOp : int
{
	PBO_None,
	PBO_Term
};

/** Whether a bone is shown. */
UENUM(BlueprintType)
enum EBoneVisibilityStatus : int
{
	BVS_HiddenByParent,
	BVS_Visible,
	BVS_ExplicitlyHidden
};

/** Which bones are sent to physics. */
UENUM(BlueprintType)
namespace EKinematicBonesUpdateToPhysics
{
enum Type : int
{
	SkipSimulatingBones,
	SkipAllBones
};
}

/** What a mesh does while nobody sees it. */
UENUM(BlueprintType)
enum class EVisibilityBasedAnimTickOption : uint8
{
	AlwaysTickPoseAndRefreshBones,
	AlwaysTickPose,
	OnlyTickMontagesWhenNotRendered,
	OnlyTickPoseWhenRendered
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPlasticDeformationEventSignature, int32, ConstraintIndex);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnAnimInitialized);

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

	UPROPERTY(BlueprintReadOnly, Category = "Components|SkinnedMesh", meta = (DeprecatedProperty))
	TObjectPtr<USkeletalMesh> SkeletalMesh;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Components|SkinnedMesh")
	EVisibilityBasedAnimTickOption VisibilityBasedAnimTickOption;

	/** Number of a bone, or -1. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	int32 GetBoneIndex(FName BoneName) const;

	/** The parent bone. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	FName GetParentBone(FName BoneName) const;

	/** Bone that a socket is on. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	FName GetSocketBoneName(FName InSocketName) const;

	/** The bone transform. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh", meta = (DisplayName = "Get Bone Transform", Keywords = "Bone"))
	FTransform GetBoneTransform(FName InBoneName, ERelativeTransformSpace TransformSpace = RTS_World) const;

	/** True if a bone is below another. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool BoneIsChildOf(FName BoneName, FName ParentBoneName) const;

	/** Shows one level of detail always; 0 is by distance. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetForcedLOD(int32 InNewForcedLOD);

	/** The forced LOD. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	int32 GetForcedLOD() const;

	/** Sets the min LOD. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetMinLOD(int32 InNewMinLOD);

	/** The predicted LOD level. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	int32 GetPredictedLODLevel() const;

	/** The num LO ds. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	int32 GetNumLODs() const;

	/** Hides a bone and all below it. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void HideBoneByName(FName BoneName, EPhysBodyOp PhysBodyOption);

	/** Shows a hidden bone again. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void UnHideBoneByName(FName BoneName);

	/** True if a bone is hidden. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool IsBoneHiddenByName(FName BoneName);

	/** Takes the pose of another mesh from now on. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetLeaderPoseComponent(
		USkinnedMeshComponent* NewLeaderBoneComponent, bool bForceUpdate = false, bool bInFollowerShouldTickPose = false);

	/** Sets the capsule indirect shadow min visibility. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetCapsuleIndirectShadowMinVisibility(float NewValue);

	/** Sets the cast capsule direct shadow. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetCastCapsuleDirectShadow(bool bNewValue);

	/** Sets the cast capsule indirect shadow. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetCastCapsuleIndirectShadow(bool bNewValue);

	/** Sets the physics asset. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetPhysicsAsset(UPhysicsAsset* NewPhysicsAsset, bool bForceReInit = false);

	/** Sets the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetSkinnedAssetAndUpdate(USkinnedAsset* NewMesh, bool bReinitPose = true);

	/** The skinned asset. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	USkinnedAsset* GetSkinnedAsset() const;

	/** Shows or hides a part. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void ShowMaterialSection(int32 MaterialID, int32 SectionIndex, bool bShow, int32 LODIndex);

	/** Shows all parts. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void ShowAllMaterialSections(int32 LODIndex);

	/** True if it is material section shown. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool IsMaterialSectionShown(int32 MaterialID, int32 LODIndex);

	/** Brings a place into a bone's space. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void TransformToBoneSpace(FName BoneName, FVector InPosition, FRotator InRotation, FVector& OutPosition, FRotator& OutRotation) const;

	/** Brings a place out of a bone's space. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void TransformFromBoneSpace(FName BoneName, FVector InPosition, FRotator InRotation, FVector& OutPosition, FRotator& OutRotation);

	/** The bone that is nearest to a place. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh",
		meta = (DisplayName = "Find Closest Bone", ScriptName = "FindClosestBone", Keywords = "FindClosestBone"))
	FName FindClosestBone_K2(FVector TestLocation, FVector& BoneLocation, float IgnoreScale = 0.f, bool bRequirePhysicsAsset = false) const;

	/** Sets the render static. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void SetRenderStatic(bool bNewValue);

	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void UnloadSkinWeightProfile(FName InProfileName);

	/** Sets the skin weight profile. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool SetSkinWeightProfile(FName InProfileName);

	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void ClearSkinWeightProfile();

	/** True if it is using skin weight profile. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool IsUsingSkinWeightProfile() const;

	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void ClearSkinWeightOverride(int32 LODIndex);

	/** Sets the vertex color override linear color. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh", meta = (DisplayName = "Set Vertex Color Override"))
	void SetVertexColorOverride_LinearColor(int32 LODIndex, const TArray<FLinearColor>& VertexColors);

	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	void ClearVertexColorOverride(int32 LODIndex);

	/** The twist and swing angle of delta rotation from ref pose. */
	UFUNCTION(BlueprintCallable, Category = "Components|SkinnedMesh")
	bool GetTwistAndSwingAngleOfDeltaRotationFromRefPose(FName BoneName, float& OutTwistAngle, float& OutSwingAngle) const;
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

	UPROPERTY(BlueprintAssignable, Category = "Components|SkeletalMesh")
	FConstraintBrokenSignature OnConstraintBroken;

	UPROPERTY(BlueprintAssignable, Category = "Components|SkeletalMesh")
	FPlasticDeformationEventSignature OnPlasticDeformation;

	UPROPERTY(BlueprintAssignable, Category = "Components|SkeletalMesh")
	FOnAnimInitialized OnAnimInitialized;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Animation", meta = (BlueprintSetter = "SetAnimInstanceClass"))
	TSubclassOf<UAnimInstance> AnimClass;

	UPROPERTY(BlueprintReadWrite, Category = "Animation", meta = (NotBlueprintVisible = "1"))
	TObjectPtr<UAnimInstance> AnimScriptInstance;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Animation")
	float GlobalAnimRateScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Animation")
	uint8 bPauseAnims : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Animation")
	uint8 bUseRefPoseOnInitAnim : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Animation")
	uint8 bEnableUpdateRateOptimizations : 1;

	/** Sets the skeletal mesh asset. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetSkeletalMeshAsset(USkeletalMesh* NewMesh);

	/** The skeletal mesh asset. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	USkeletalMesh* GetSkeletalMeshAsset() const;

	/** Sets the mesh. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetSkeletalMesh(USkeletalMesh* NewMesh, bool bReinitPose = true);

	/** Sets the animation Blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "AnimBlueprint", DisplayName = "Set Anim Instance Class"))
	void SetAnimInstanceClass(UClass* NewClass);

	/** Sets the animation Blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "AnimBlueprint"))
	void SetAnimClass(UClass* NewClass);

	/** The anim class. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "AnimBlueprint", BlueprintInternalUseOnly = "true"))
	UClass* GetAnimClass();

	/** Instance that works on the pose last. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetPostProcessInstance() const;

	/** The linked anim graph instance by tag. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetLinkedAnimGraphInstanceByTag(FName InTag) const;

	/** The linked anim graph instances by tag. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void GetLinkedAnimGraphInstancesByTag(FName InTag, TArray<UAnimInstance*>& OutLinkedInstances) const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void LinkAnimGraphByTag(FName InTag, TSubclassOf<UAnimInstance> InClass);

	/** Uses the layers of an animation Blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void LinkAnimClassLayers(TSubclassOf<UAnimInstance> InClass);

	/** Uses the layers of an animation Blueprint no more. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnlinkAnimClassLayers(TSubclassOf<UAnimInstance> InClass);

	/** The linked anim layer instance by group. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetLinkedAnimLayerInstanceByGroup(FName InGroup) const;

	/** The linked anim layer instance by class. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetLinkedAnimLayerInstanceByClass(TSubclassOf<UAnimInstance> InClass) const;

	/** True if it has valid animation instance. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool HasValidAnimationInstance() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ResetAnimInstanceDynamics(ETeleportType InTeleportType = ETeleportType::ResetPhysics);

	/** Sets the animation mode. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void SetAnimationMode(EAnimationMode::Type InAnimationMode, bool bForceInitAnimScriptInstance = true);

	/** The animation mode. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	EAnimationMode::Type GetAnimationMode() const;

	/** Sets the animation without playing it. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void SetAnimation(UAnimationAsset* NewAnimToPlay);

	/** Plays the animation. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void Play(bool bLooping);

	/** True while an animation plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	bool IsPlaying() const;

	/** Sets the time of the animation. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void SetPosition(float InPos, bool bFireNotifies = true);

	/** Time of the animation. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	float GetPosition() const;

	/** How fast the animation plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void SetPlayRate(float Rate);

	/** The play rate. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	float GetPlayRate() const;

	/** Sets what is played and how. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (Keywords = "Animation"))
	void OverrideAnimationData(
		UAnimationAsset* InAnimToPlay, bool bIsLooping = true, bool bIsPlaying = true, float Position = 0.f, float PlayRate = 1.f);

	/** Sets the weight of a morph target. */
	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (UnsafeDuringActorConstruction = "true"))
	void SetMorphTarget(FName MorphTargetName, float Value, bool bRemoveZeroWeight = true);

	/** Sets all morph targets to 0. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ClearMorphTargets();

	/** The morph target. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetMorphTarget(FName MorphTargetName) const;

	/** Sets the update animation in editor. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetUpdateAnimationInEditor(const bool NewUpdateState);

	/** Sets the disable post process blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetDisablePostProcessBlueprint(bool bInDisablePostProcess);

	/** The disable post process blueprint. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool GetDisablePostProcessBlueprint() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ToggleDisablePostProcessBlueprint();

	/** Keeps the pose as it is now. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SnapshotPose(UPARAM(ref) FPoseSnapshot& Snapshot);

	/** Sets the allow anim curve evaluation. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAllowAnimCurveEvaluation(bool bInAllow);

	/** The allowed anim curve evaluate. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool GetAllowedAnimCurveEvaluate() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void AllowAnimCurveEvaluation(FName NameOfCurve, bool bAllow);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ResetAllowedAnimCurveEvaluation();

	/** Sets the enable body gravity. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetEnableBodyGravity(bool bEnableGravity, FName BoneName);

	/** True if it is body gravity enabled. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool IsBodyGravityEnabled(FName BoneName);

	/** Sets the enable gravity on all bodies below. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetEnableGravityOnAllBodiesBelow(bool bEnableGravity, FName BoneName, bool bIncludeSelf = true);

	/** Sets the all bodies physics blend weight. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAllBodiesPhysicsBlendWeight(float PhysicsBlendWeight, bool bSkipCustomPhysicsType = false);

	/** Whether physics moves a bone and all below it. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAllBodiesBelowSimulatePhysics(const FName& InBoneName, bool bNewSimulate, bool bIncludeSelf = true);

	/** Sets the all bodies below physics blend weight. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAllBodiesBelowPhysicsBlendWeight(
		const FName& InBoneName, float PhysicsBlendWeight, bool bSkipCustomPhysicsType = false, bool bIncludeSelf = true);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void AccumulateAllBodiesBelowPhysicsBlendWeight(
		const FName& InBoneName, float AddPhysicsBlendWeight, bool bSkipCustomPhysicsType = false);

	/** Sets the all bodies below linear velocity. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAllBodiesBelowLinearVelocity(const FName& InBoneName, const FVector& LinearVelocity, bool bIncludeSelf = true);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void AddForceToAllBodiesBelow(FVector Force, FName BoneName = NAME_None, bool bAccelChange = false, bool bIncludeSelf = true);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void AddImpulseToAllBodiesBelow(FVector Impulse, FName BoneName = NAME_None, bool bVelChange = false, bool bIncludeSelf = true);

	/** Sets the physics blend weight. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetPhysicsBlendWeight(float PhysicsBlendWeight);

	/** Sets the body simulate physics. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetBodySimulatePhysics(const FName& InBoneName, bool bSimulate);

	/** Sets the body notify rigid body collision. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetBodyNotifyRigidBodyCollision(bool bNewNotifyRigidBodyCollision, FName BoneName = NAME_None, bool bIncludeSelf = true);

	/** Sets the constraint profile. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetConstraintProfile(FName JointName, FName ProfileName, bool bDefaultIfNotFound = false);

	/** Sets the constraint profile for all. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetConstraintProfileForAll(FName ProfileName, bool bDefaultIfNotFound = false);

	/** Breaks a joint. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void BreakConstraint(FVector Impulse, FVector HitLocation, FName InBoneName);

	/** The bone mass. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetBoneMass(FName BoneName = NAME_None, bool bScaleMass = true) const;

	/** The skeletal center of mass. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	FVector GetSkeletalCenterOfMass() const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	FName FindConstraintBoneName(int32 ConstraintIndex);

	/** The closest point on physics asset. */
	UFUNCTION(BlueprintCallable, Category = "Animation",
		meta = (DisplayName = "Get Closest Point On Physics Asset", ScriptName = "GetClosestPointOnPhysicsAsset",
			Keywords = "closest point"))
	bool K2_GetClosestPointOnPhysicsAsset(
		const FVector& WorldPosition, FVector& ClosestWorldPosition, FVector& Normal, FName& BoneName, float& Distance) const;

	/** Sets the teleport rotation threshold. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetTeleportRotationThreshold(float Threshold);

	/** Sets the teleport distance threshold. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetTeleportDistanceThreshold(float Threshold);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SuspendClothingSimulation();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ResumeClothingSimulation();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ForceClothNextUpdateTeleport();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ForceClothNextUpdateTeleportAndReset();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ResetClothTeleportMode();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void BindClothToLeaderPoseComponent();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnbindClothFromLeaderPoseComponent(bool bRestoreSimulationSpace = true);

	/** Sets the cloth max distance scale. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetClothMaxDistanceScale(float Scale);
};

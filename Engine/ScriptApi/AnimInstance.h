// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "AnimInstance.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnMontageStartedMCDelegate, UAnimMontage*, Montage);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnMontageEndedMCDelegate, UAnimMontage*, Montage, bool, bInterrupted);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnAllMontageInstancesEndedMCDelegate);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnMontageBlendingOutStartedMCDelegate, UAnimMontage*, Montage, bool, bInterrupted);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(
	FPlayMontageAnimNotifyDelegate, FName, NotifyName, const FBranchingPointNotifyPayload&, BranchingPointPayload);

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

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FOnMontageBlendingOutStartedMCDelegate OnMontageBlendingOut;

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FOnMontageStartedMCDelegate OnMontageStarted;

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FOnMontageEndedMCDelegate OnMontageEnded;

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FOnAllMontageInstancesEndedMCDelegate OnAllMontageInstancesEnded;

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FPlayMontageAnimNotifyDelegate OnPlayMontageNotifyBegin;

	UPROPERTY(BlueprintAssignable, Category = "Animation")
	FPlayMontageAnimNotifyDelegate OnPlayMontageNotifyEnd;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RootMotion")
	TEnumAsByte<ERootMotionMode::Type> RootMotionMode;

	UPROPERTY(EditAnywhere, Category = "Optimization")
	uint8 bUseMultiThreadedAnimationUpdate : 1;

	/** The owning component. */
	UFUNCTION(BlueprintPure, Category = "Animation", meta = (BlueprintThreadSafe))
	USkeletalMeshComponent* GetOwningComponent() const;

	/** Brings the animation up to date beside the game. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Animation", meta = (BlueprintThreadSafe))
	void BlueprintThreadSafeUpdateAnimation(float DeltaTime);

	/** The pose is made. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Animation")
	void BlueprintPostEvaluateAnimation();

	/** The layers are ready. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Animation")
	void BlueprintLinkedAnimationLayersInitialized();

	/** Plays a montage. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	float Montage_Play(UAnimMontage* MontageToPlay, float InPlayRate = 1.f,
		EMontagePlayReturnType ReturnValueType = EMontagePlayReturnType::MontageLength, float InTimeToStartMontageAt = 0.f,
		bool bStopAllMontages = true);

	/** Plays a montage with a blend of your own. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	float Montage_PlayWithBlendIn(UAnimMontage* MontageToPlay, const FAlphaBlendArgs& BlendIn, float InPlayRate = 1.f,
		EMontagePlayReturnType ReturnValueType = EMontagePlayReturnType::MontageLength, float InTimeToStartMontageAt = 0.f,
		bool bStopAllMontages = true);

	/** Ends a montage with a blend of your own. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_StopWithBlendOut(const FAlphaBlendArgs& BlendOut, const UAnimMontage* Montage = nullptr);

	/** Stops the montages of the group, with a blend of that many seconds. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_StopGroupByName(float InBlendOutTime, FName GroupName);

	/** Pauses the montage, or all when none is given. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_Pause(const UAnimMontage* Montage = nullptr);

	/** Goes on with a montage that was paused. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_Resume(const UAnimMontage* Montage);

	/** Goes to a section. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_JumpToSection(FName SectionName, const UAnimMontage* Montage = nullptr);

	/** Goes to the end of a section. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_JumpToSectionsEnd(FName SectionName, const UAnimMontage* Montage = nullptr);

	/** Sets what follows a section. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_SetNextSection(FName SectionNameToChange, FName NextSection, const UAnimMontage* Montage = nullptr);

	/** Sets how fast the montage plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_SetPlayRate(const UAnimMontage* Montage, float NewPlayRate = 1.f);

	/** True while the montage plays or blends out. */
	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	bool Montage_IsActive(const UAnimMontage* Montage) const;

	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	FName Montage_GetCurrentSection(const UAnimMontage* Montage = nullptr) const;

	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	float Montage_GetPosition(const UAnimMontage* Montage) const;

	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void Montage_SetPosition(const UAnimMontage* Montage, float NewPosition);

	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	bool Montage_GetIsStopped(const UAnimMontage* Montage) const;

	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	float Montage_GetBlendTime(const UAnimMontage* Montage) const;

	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	float Montage_GetPlayRate(const UAnimMontage* Montage) const;

	/** True if it is any montage playing. */
	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	bool IsAnyMontagePlaying() const;

	/** The current active montage. */
	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	UAnimMontage* GetCurrentActiveMontage() const;

	/** Plays an animation in a slot. */
	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	UAnimMontage* PlaySlotAnimationAsDynamicMontage(UAnimSequenceBase* Asset, FName SlotNodeName, float BlendInTime = 0.25f,
		float BlendOutTime = 0.25f, float InPlayRate = 1.f, int32 LoopCount = 1, float BlendOutTriggerTime = -1.f,
		float InTimeToStartMontageAt = 0.f);

	UFUNCTION(BlueprintCallable, Category = "Animation|Montage")
	void StopSlotAnimation(float InBlendOutTime = 0.25f, FName SlotNodeName = NAME_None);

	/** True if it is playing slot animation. */
	UFUNCTION(BlueprintPure, Category = "Animation|Montage")
	bool IsPlayingSlotAnimation(const UAnimSequenceBase* Asset, FName SlotNodeName) const;

	/** The curve value. */
	UFUNCTION(BlueprintPure, Category = "Animation", meta = (BlueprintThreadSafe))
	float GetCurveValue(FName CurveName) const;

	/** The curve value with default. */
	UFUNCTION(BlueprintPure, Category = "Animation", meta = (BlueprintThreadSafe))
	bool GetCurveValueWithDefault(FName CurveName, float DefaultValue, float& OutValue);

	/** The active curve names. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	void GetActiveCurveNames(EAnimCurveType CurveType, TArray<FName>& OutNames) const;

	/** The all curve names. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	void GetAllCurveNames(TArray<FName>& OutNames) const;

	/** Sets the root motion mode. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetRootMotionMode(TEnumAsByte<ERootMotionMode::Type> Value);

	/** Sets the morph target. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetMorphTarget(FName MorphTargetName, float Value);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ClearMorphTargets();

	UFUNCTION(BlueprintCallable, Category = "Pose")
	void SavePoseSnapshot(FName SnapshotName);

	UFUNCTION(BlueprintCallable, Category = "Pose")
	void RemovePoseSnapshot(FName SnapshotName);

	UFUNCTION(BlueprintCallable, Category = "Pose")
	void SnapshotPose(UPARAM(ref) FPoseSnapshot& Snapshot);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void ResetDynamics(ETeleportType InTeleportType);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void LockAIResources(bool bLockMovement, bool LockAILogic);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnlockAIResources(bool bUnlockMovement, bool UnlockAILogic);

	/** The linked anim graph instance by tag. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	UAnimInstance* GetLinkedAnimGraphInstanceByTag(FName InTag) const;

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void LinkAnimGraphByTag(FName InTag, TSubclassOf<UAnimInstance> InClass);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void LinkAnimClassLayers(TSubclassOf<UAnimInstance> InClass);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void UnlinkAnimClassLayers(TSubclassOf<UAnimInstance> InClass);

	/** The linked anim layer instance by group. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetLinkedAnimLayerInstanceByGroup(FName InGroup) const;

	/** The linked anim layer instance by class. */
	UFUNCTION(BlueprintPure, Category = "Animation")
	UAnimInstance* GetLinkedAnimLayerInstanceByClass(TSubclassOf<UAnimInstance> InClass) const;

	/** True if it has marker been hit this frame. */
	UFUNCTION(BlueprintPure, Category = "SyncGroup")
	bool HasMarkerBeenHitThisFrame(FName SyncGroup, FName MarkerName) const;

	/** The time to closest marker. */
	UFUNCTION(BlueprintPure, Category = "SyncGroup")
	bool GetTimeToClosestMarker(FName SyncGroup, FName MarkerName, float& OutMarkerTime) const;

	/** True if it is sync group between markers. */
	UFUNCTION(BlueprintPure, Category = "SyncGroup")
	bool IsSyncGroupBetweenMarkers(FName InSyncGroupName, FName PreviousMarker, FName NextMarker, bool bRespectMarkerOrder = true) const;

	UFUNCTION(BlueprintCallable, Category = "Animation", meta = (DeprecatedFunction))
	float CalculateDirection(const FVector& Velocity, const FRotator& BaseRotation) const;

	/** The instance asset player length. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceAssetPlayerLength(int32 AssetPlayerIndex);

	/** The instance asset player time. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceAssetPlayerTime(int32 AssetPlayerIndex);

	/** The instance asset player time fraction. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceAssetPlayerTimeFraction(int32 AssetPlayerIndex);

	/** The instance asset player time from end. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceAssetPlayerTimeFromEnd(int32 AssetPlayerIndex);

	/** The instance asset player time from end fraction. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceAssetPlayerTimeFromEndFraction(int32 AssetPlayerIndex);

	/** The instance machine weight. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceMachineWeight(int32 MachineIndex);

	/** The instance state weight. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceStateWeight(int32 MachineIndex, int32 StateIndex);

	/** The instance current state elapsed time. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceCurrentStateElapsedTime(int32 MachineIndex);

	/** The instance transition time elapsed. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceTransitionTimeElapsed(int32 MachineIndex, int32 TransitionIndex);

	/** The instance transition crossfade duration. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetInstanceTransitionCrossfadeDuration(int32 MachineIndex, int32 TransitionIndex);

	/** The current state name. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	FName GetCurrentStateName(int32 MachineIndex);

	/** The relevant anim time remaining. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetRelevantAnimTimeRemaining(int32 MachineIndex, int32 StateIndex);

	/** The relevant anim time remaining fraction. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetRelevantAnimTimeRemainingFraction(int32 MachineIndex, int32 StateIndex);

	/** The relevant anim length. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetRelevantAnimLength(int32 MachineIndex, int32 StateIndex);

	/** The relevant anim time. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetRelevantAnimTime(int32 MachineIndex, int32 StateIndex);

	/** The relevant anim time fraction. */
	UFUNCTION(BlueprintPure, Category = "Asset Player", meta = (BlueprintInternalUseOnly = "true"))
	float GetRelevantAnimTimeFraction(int32 MachineIndex, int32 StateIndex);
};

/** Plays one animation. */
UCLASS(transient, NotBlueprintable)
class ENGINE_API UAnimSingleNodeInstance : public UAnimInstance
{
	GENERATED_BODY()

public:
	/** Sets the looping. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetLooping(bool bIsLooping);

	/** Sets the play rate. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetPlayRate(float InPlayRate);

	/** Sets the reverse. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetReverse(bool bInReverse);

	/** Sets the position. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetPosition(float InPosition, bool bFireNotifies = true);

	/** Sets the playing. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetPlaying(bool bIsPlaying);

	/** The length. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetLength();

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void PlayAnim(bool bIsLooping = false, float InPlayRate = 1.f, float InStartPosition = 0.f);

	UFUNCTION(BlueprintCallable, Category = "Animation")
	void StopAnim();

	/** Sets the animation asset. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void SetAnimationAsset(UAnimationAsset* NewAsset, bool bIsLooping = true, float InPlayRate = 1.f);

	/** The animation asset. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	UAnimationAsset* GetAnimationAsset() const;
};

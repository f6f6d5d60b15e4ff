// Package: /Script/Engine
#pragma once

#include "Pawn.h"
#include "Character.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(
	FMovementModeChangedSignature, ACharacter*, Character, EMovementMode, PrevMovementMode, uint8, PreviousCustomMode);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(
	FCharacterMovementUpdatedSignature, float, DeltaSeconds, FVector, OldLocation, FVector, OldVelocity);
DECLARE_DYNAMIC_MULTICAST_DELEGATE(FCharacterReachedApexSignature);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FLandedSignature, const FHitResult&, Hit);

/** A pawn with a mesh, a capsule and a way to walk, jump, swim and fly. */
UCLASS(config = Game, BlueprintType)
class ENGINE_API ACharacter : public APawn
{
	GENERATED_BODY()

public:
	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<USkeletalMeshComponent> Mesh;

	UPROPERTY()
	TObjectPtr<UArrowComponent> ArrowComponent;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCharacterMovementComponent> CharacterMovement;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Character", meta = (AllowPrivateAccess = "true"))
	TObjectPtr<UCapsuleComponent> CapsuleComponent;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	uint32 bIsCrouched : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character")
	int32 JumpMaxCount = 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character")
	float JumpMaxHoldTime;

	/** Begins a jump in the next update. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void Jump();

	/** Ends a jump that is held. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void StopJumping();

	/** True if the character can jump now. */
	UFUNCTION(BlueprintPure, Category = "Character")
	bool CanJump() const;

	/** Crouches, if it can. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void Crouch(bool bClientSimulation = false);

	/** Stands up, if it can. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	void UnCrouch(bool bClientSimulation = false);

	/** Throws the character; an override replaces the velocity it has. */
	UFUNCTION(BlueprintCallable, Category = "Character", meta = (Keywords = "knockback"))
	void LaunchCharacter(FVector LaunchVelocity, bool bXYOverride, bool bZOverride);

	/** Plays a montage on the mesh and answers its length in seconds, 0 if it cannot. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float PlayAnimMontage(UAnimMontage* AnimMontage, float InPlayRate = 1.f, FName StartSectionName = NAME_None);

	/** Stops a montage, or the one that plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	void StopAnimMontage(UAnimMontage* AnimMontage = nullptr);

	/** The character lands. */
	UFUNCTION(BlueprintImplementableEvent)
	void OnLanded(const FHitResult& Hit);

	/** The character jumps. */
	UFUNCTION(BlueprintNativeEvent, Category = "Character")
	void OnJumped();

	UPROPERTY(BlueprintAssignable, Category = "Character")
	FMovementModeChangedSignature MovementModeChangedDelegate;

	UPROPERTY(BlueprintAssignable, Category = "Character")
	FCharacterMovementUpdatedSignature OnCharacterMovementUpdated;

	UPROPERTY(BlueprintAssignable, Category = "Character")
	FCharacterReachedApexSignature OnReachedJumpApex;

	UPROPERTY(BlueprintAssignable, Category = "Character")
	FLandedSignature LandedDelegate;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Interp, Category = "Camera")
	float CrouchedEyeHeight = 32.f;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	uint8 bPressedJump : 1;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	uint8 bWasJumping : 1;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	float JumpKeyHoldTime = 0.f;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	float JumpForceTimeRemaining = 0.f;

	UPROPERTY(BlueprintReadOnly, Category = "Character")
	int32 JumpCurrentCount = 0;

	UFUNCTION(BlueprintCallable, Category = "Character")
	void CacheInitialMeshOffset(FVector MeshRelativeLocation, FRotator MeshRelativeRotation);

	/** True if it can crouch. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	bool CanCrouch() const;

	/** The anim root motion translation scale. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	float GetAnimRootMotionTranslationScale() const;

	/** The base translation offset. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	FVector GetBaseTranslationOffset() const;

	/** The base rotation offset rotator. */
	UFUNCTION(
		BlueprintCallable, Category = "Character", meta = (DisplayName = "Get Base Rotation Offset", ScriptName = "GetBaseRotationOffset"))
	FRotator GetBaseRotationOffsetRotator() const;

	/** Montage that the character plays. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	UAnimMontage* GetCurrentMontage() const;

	/** True if it is playing root motion. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool IsPlayingRootMotion() const;

	/** True if it is playing networked root motion montage. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool IsPlayingNetworkedRootMotionMontage() const;

	/** True if it has any root motion. */
	UFUNCTION(BlueprintCallable, Category = "Animation")
	bool HasAnyRootMotion() const;

	/** True if it is jump providing force. */
	UFUNCTION(BlueprintCallable, Category = "Character")
	bool IsJumpProvidingForce() const;

	/** True if it can jump internal. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Character",
		meta = (DisplayName = "CanJump", BlueprintInternalUseOnly = "true"))
	bool CanJumpInternal() const;

	/** The character walks off an edge. */
	UFUNCTION(BlueprintNativeEvent, BlueprintCallable, Category = "Character")
	void OnWalkingOffLedge(const FVector& PreviousFloorImpactNormal, const FVector& PreviousFloorContactNormal,
		const FVector& PreviousLocation, float TimeDelta);

	/** The character is launched. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Character")
	void OnLaunched(FVector LaunchVelocity, bool bXYOverride, bool bZOverride);

	/** The way of moving changes. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Character",
		meta = (DisplayName = "OnMovementModeChanged", ScriptName = "OnMovementModeChanged"))
	void K2_OnMovementModeChanged(EMovementMode PrevMovementMode, EMovementMode NewMovementMode, uint8 PrevCustomMode, uint8 NewCustomMode);

	/** Moves the character in a way of your own. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Character",
		meta = (DisplayName = "UpdateCustomMovement", ScriptName = "UpdateCustomMovement"))
	void K2_UpdateCustomMovement(float DeltaTime);

	/** The character crouches. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Character", meta = (DisplayName = "OnStartCrouch", ScriptName = "OnStartCrouch"))
	void K2_OnStartCrouch(float HalfHeightAdjust, float ScaledHalfHeightAdjust);

	/** The character stands up. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Character", meta = (DisplayName = "OnEndCrouch", ScriptName = "OnEndCrouch"))
	void K2_OnEndCrouch(float HalfHeightAdjust, float ScaledHalfHeightAdjust);
};

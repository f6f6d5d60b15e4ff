// Package: /Script/Engine
#pragma once

#include "MovementComponents.h"
#include "CharacterMovement.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnProjectileBounceDelegate, const FHitResult&, ImpactResult, const FVector&, ImpactVelocity);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnProjectileStopDelegate, const FHitResult&, ImpactResult);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnInterpToReverseDelegate, const FHitResult&, ImpactResult, float, Time);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnInterpToStopDelegate, const FHitResult&, ImpactResult, float, Time);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnInterpToWaitBeginDelegate, const FHitResult&, ImpactResult, float, Time);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnInterpToWaitEndDelegate, const FHitResult&, ImpactResult, float, Time);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnInterpToResetDelegate, const FHitResult&, ImpactResult, float, Time);

/** Moves a character. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UCharacterMovementComponent : public UPawnMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking", meta = (ClampMin = "0", ForceUnits = "cm/s"))
	float MaxWalkSpeed = 600.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling",
		meta = (DisplayName = "Jump Z Velocity", ForceUnits = "cm/s"))
	float JumpZVelocity = 420.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float GravityScale = 1.f;

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

	UPROPERTY(BlueprintReadOnly, Category = "Character Movement (General Settings)")
	TObjectPtr<ACharacter> CharacterOwner;

	UPROPERTY(BlueprintReadOnly, Category = "Character Movement: MovementMode")
	uint8 CustomMovementMode;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	TEnumAsByte<EMovementMode> DefaultLandMovementMode = MOVE_Walking;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Swimming")
	TEnumAsByte<EMovementMode> DefaultWaterMovementMode = MOVE_Swimming;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float MaxAcceleration = 2048.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float BrakingFrictionFactor = 2.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float BrakingFriction = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	uint8 bUseSeparateBrakingFriction : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	float Mass = 100.f;

	UPROPERTY(BlueprintReadOnly, Category = "Character Movement (General Settings)")
	FVector LastUpdateLocation;

	UPROPERTY(BlueprintReadOnly, VisibleInstanceOnly, Category = "Character Movement: Walking")
	FFindFloorResult CurrentFloor;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (General Settings)")
	uint8 bRunPhysicsWithNoController : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float MaxStepHeight = 45.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float MaxWalkSpeedCrouched = 300.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Custom Movement")
	float MaxCustomMovementSpeed = 600.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float GroundFriction = 8.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float BrakingDecelerationWalking = 2048.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float MinAnalogWalkSpeed = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	uint8 bCanWalkOffLedges : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	uint8 bCanWalkOffLedgesWhenCrouching : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	uint8 bMaintainHorizontalGroundVelocity : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	uint8 bUseFlatBaseForFloorChecks : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float PerchRadiusThreshold = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	float PerchAdditionalHeight = 40.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Walking")
	uint8 bIgnoreBaseRotation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	float BrakingDecelerationFalling = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	float AirControl = 0.05f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	float AirControlBoostMultiplier = 2.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	float AirControlBoostVelocityThreshold = 25.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	float FallingLateralFriction = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	uint8 bNotifyApex : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	uint8 bImpartBaseVelocityX : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	uint8 bImpartBaseVelocityY : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	uint8 bImpartBaseVelocityZ : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Jumping / Falling")
	uint8 bApplyGravityWhileJumping : 1 = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Swimming")
	float MaxSwimSpeed = 300.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Swimming")
	float BrakingDecelerationSwimming = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Swimming")
	float Buoyancy = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Flying")
	float MaxFlySpeed = 600.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Flying")
	float BrakingDecelerationFlying = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (Rotation Settings)")
	FRotator RotationRate = FRotator(0.0, 360.0, 0.0);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (Rotation Settings)")
	uint8 bUseControllerDesiredRotation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement (Rotation Settings)")
	uint8 bAllowPhysicsRotationDuringAnimRootMotion : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	bool bEnablePhysicsInteraction = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	bool bTouchForceScaledToMass = true;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	bool bPushForceScaledToMass = false;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	float StandingDownwardForceScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	float InitialPushForceFactor = 500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	float PushForceFactor = 750000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	float TouchForceFactor = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Physics Interaction")
	float RepulsionForce = 2.5f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Avoidance")
	uint8 bUseRVOAvoidance : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Character Movement: Avoidance")
	float AvoidanceConsiderationRadius = 500.f;

	UPROPERTY(BlueprintReadOnly, Category = "Character Movement (General Settings)")
	uint8 bWantsToCrouch : 1;

	/** The character owner. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	ACharacter* GetCharacterOwner() const;

	/** Sets the walkable floor angle. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetWalkableFloorAngle(float InWalkableFloorAngle);

	/** The walkable floor angle. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement",
		meta = (ScriptName = "GetWalkableFloorAngle", DisplayName = "Get Walkable Floor Angle"))
	float K2_GetWalkableFloorAngle() const;

	/** Sets the walkable floor z. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetWalkableFloorZ(float InWalkableFloorZ);

	/** The walkable floor z. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement",
		meta = (ScriptName = "GetWalkableFloorZ", DisplayName = "Get Walkable Floor Z"))
	float K2_GetWalkableFloorZ() const;

	/** True if it is walking. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	bool IsWalking() const;

	/** True if it is walkable. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	bool IsWalkable(const FHitResult& Hit) const;

	/** The movement base. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	UPrimitiveComponent* GetMovementBase() const;

	/** The max acceleration. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetMaxAcceleration() const;

	/** The current acceleration. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FVector GetCurrentAcceleration() const;

	/** The analog input modifier. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetAnalogInputModifier() const;

	/** The max braking deceleration. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetMaxBrakingDeceleration() const;

	/** The min analog speed. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetMinAnalogSpeed() const;

	/** The max jump height. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetMaxJumpHeight() const;

	/** The max jump height with jump time. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetMaxJumpHeightWithJumpTime() const;

	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void ClearAccumulatedForces();

	/** Pushes the character once. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void AddImpulse(FVector Impulse, bool bVelocityChange = false);

	/** Pushes the character for a frame. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void AddForce(FVector Force);

	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void CalcVelocity(float DeltaTime, float Friction, bool bFluid, float BrakingDeceleration);

	/** The perch radius threshold. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetPerchRadiusThreshold() const;

	/** The valid perch radius. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetValidPerchRadius() const;

	UFUNCTION(
		BlueprintCallable, Category = "Pawn|Components|CharacterMovement", meta = (DisplayName = "Find Floor", ScriptName = "FindFloor"))
	void K2_FindFloor(FVector CapsuleLocation, FFindFloorResult& FloorResult) const;

	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement",
		meta = (DisplayName = "Compute Floor Distance", ScriptName = "ComputeFloorDist"))
	void K2_ComputeFloorDist(
		FVector CapsuleLocation, float LineDistance, float SweepDistance, float SweepRadius, FFindFloorResult& FloorResult) const;

	/** Sets the avoidance enabled. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetAvoidanceEnabled(bool bEnable);

	/** The last update rotation. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FRotator GetLastUpdateRotation() const;

	/** The last update location. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FVector GetLastUpdateLocation() const;

	/** The last update velocity. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FVector GetLastUpdateVelocity() const;

	/** The imparted movement base velocity. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FVector GetImpartedMovementBaseVelocity() const;

	/** The gravity direction. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	FVector GetGravityDirection() const;

	/** Sets the gravity direction. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetGravityDirection(const FVector& GravityDir);

	/** True if it has custom gravity. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	bool HasCustomGravity() const;

	/** Sets the crouched half height. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	void SetCrouchedHalfHeight(const float NewValue);

	/** The crouched half height. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|CharacterMovement")
	float GetCrouchedHalfHeight() const;
};

/** Moves its actor as something that was thrown. */
UCLASS(ClassGroup = Movement, meta = (BlueprintSpawnableComponent), ShowCategories = (Velocity))
class ENGINE_API UProjectileMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Game|Components|ProjectileMovement")
	FOnProjectileBounceDelegate OnProjectileBounce;

	UPROPERTY(BlueprintAssignable, Category = "Game|Components|ProjectileMovement")
	FOnProjectileStopDelegate OnProjectileStop;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	float InitialSpeed = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	float MaxSpeed = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	uint8 bRotationFollowsVelocity : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	uint8 bRotationRemainsVertical : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	uint8 bInitialVelocityInLocalSpace : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileSimulation")
	uint8 bForceSubStepping : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileSimulation")
	uint8 bSimulationEnabled : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileSimulation")
	uint8 bSweepCollision : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	float ProjectileGravityScale = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Projectile")
	float Buoyancy = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileBounces")
	uint8 bShouldBounce : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileBounces")
	uint8 bBounceAngleAffectsFriction : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileBounces")
	float Bounciness = 0.6f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileBounces")
	float Friction = 0.2f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ProjectileBounces")
	float BounceVelocityStopSimulatingThreshold = 5.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Homing")
	uint8 bIsHomingProjectile : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Homing")
	float HomingAccelerationMagnitude = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Homing")
	TWeakObjectPtr<USceneComponent> HomingTargetComponent;

	/** Sets the velocity in local space. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	void SetVelocityInLocalSpace(FVector NewVelocity);

	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	void StopSimulating(const FHitResult& HitResult);

	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	FVector LimitVelocity(FVector NewVelocity) const;

	/** True if it is velocity under simulation threshold. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	bool IsVelocityUnderSimulationThreshold() const;

	/** Sets the interpolated component. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	void SetInterpolatedComponent(USceneComponent* Component);

	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	void MoveInterpolationTarget(const FVector& NewLocation, const FRotator& NewRotation);

	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	void ResetInterpolation();

	/** True if it is interpolation complete. */
	UFUNCTION(BlueprintCallable, Category = "Game|Components|ProjectileMovement")
	bool IsInterpolationComplete() const;
};

/** Turns its actor all the time. */
UCLASS(ClassGroup = Movement, meta = (BlueprintSpawnableComponent), HideCategories = Velocity)
class ENGINE_API URotatingMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RotatingComponent")
	FRotator RotationRate;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RotatingComponent")
	FVector PivotTranslation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "RotatingComponent")
	uint8 bRotationInLocalSpace : 1;
};

/** Moves its pawn without gravity. */
UCLASS(ClassGroup = Movement, meta = (BlueprintSpawnableComponent))
class ENGINE_API UFloatingPawnMovement : public UPawnMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FloatingPawnMovement")
	float MaxSpeed = 1200.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FloatingPawnMovement")
	float Acceleration = 4000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FloatingPawnMovement")
	float Deceleration = 8000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "FloatingPawnMovement")
	float TurningBoost = 8.f;
};

/** Moves what only looks on. */
UCLASS()
class ENGINE_API USpectatorPawnMovement : public UFloatingPawnMovement
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "SpectatorPawnMovement")
	uint8 bIgnoreTimeDilation : 1;
};

/** Moves its actor along points. */
UCLASS(ClassGroup = Movement, meta = (BlueprintSpawnableComponent), HideCategories = Velocity)
class ENGINE_API UInterpToMovementComponent : public UMovementComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Control")
	float Duration = 1.f;

	UPROPERTY(BlueprintAssignable, Category = "InterpToMovement")
	FOnInterpToReverseDelegate OnInterpToReverse;

	UPROPERTY(BlueprintAssignable, Category = "InterpToMovement")
	FOnInterpToStopDelegate OnInterpToStop;

	UPROPERTY(BlueprintAssignable, Category = "InterpToMovement")
	FOnInterpToWaitBeginDelegate OnWaitBeginDelegate;

	UPROPERTY(BlueprintAssignable, Category = "InterpToMovement")
	FOnInterpToWaitEndDelegate OnWaitEndDelegate;

	UPROPERTY(BlueprintAssignable, Category = "InterpToMovement")
	FOnInterpToResetDelegate OnResetDelegate;

	UFUNCTION(BlueprintCallable, Category = "Components|InterpToMovement")
	void StopSimulating(const FHitResult& HitResult);

	UFUNCTION(BlueprintCallable, Category = "Components|InterpToMovement")
	void RestartMovement(float InitialDirection = 1.0f);

	UFUNCTION(BlueprintCallable, Category = "Components|InterpToMovement")
	void FinaliseControlPoints();
};

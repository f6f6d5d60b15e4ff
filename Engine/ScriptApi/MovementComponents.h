// Package: /Script/Engine
#pragma once

#include "ActorComponent.h"
#include "MovementComponents.generated.h"

/** What a character stands on. */
USTRUCT(BlueprintType)
struct FFindFloorResult
{
	GENERATED_BODY()

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	uint8 bBlockingHit : 1;

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	uint8 bWalkableFloor : 1;

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	uint8 bLineTrace : 1;

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	float FloorDist = 0.f;

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	float LineDist = 0.f;

	UPROPERTY(VisibleInstanceOnly, BlueprintReadOnly, Category = "CharacterFloor")
	FHitResult HitResult;
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

	UPROPERTY(BlueprintReadOnly, Transient, DuplicateTransient, Category = "MovementComponent")
	TObjectPtr<USceneComponent> UpdatedComponent;

	UPROPERTY(BlueprintReadOnly, Transient, DuplicateTransient, Category = "MovementComponent")
	TObjectPtr<UPrimitiveComponent> UpdatedPrimitive;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MovementComponent")
	uint8 bUpdateOnlyIfRendered : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "MovementComponent")
	uint8 bAutoUpdateTickRegistration : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlanarMovement")
	uint8 bConstrainToPlane : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "PlanarMovement")
	uint8 bSnapToPlaneAtStart : 1;

	/** The gravity z. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	float GetGravityZ() const;

	/** The max speed modifier. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	float GetMaxSpeedModifier() const;

	/** The max speed modifier. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement",
		meta = (ScriptName = "GetMaxSpeedModifier", DisplayName = "Get Max Speed Modifier"))
	float K2_GetMaxSpeedModifier() const;

	/** The modified max speed. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement",
		meta = (ScriptName = "GetModifiedMaxSpeed", DisplayName = "Get Modified Max Speed"))
	float K2_GetModifiedMaxSpeed() const;

	/** True if it is exceeding max speed. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	bool IsExceedingMaxSpeed(float MaxSpeed) const;

	/** The physics volume. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	APhysicsVolume* GetPhysicsVolume() const;

	/** Sets the updated component. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement")
	void SetUpdatedComponent(USceneComponent* NewUpdatedComponent);

	UFUNCTION(BlueprintCallable, Category = "Components|Movement",
		meta = (ScriptName = "MoveUpdatedComponent", DisplayName = "Move Updated Component", AutoCreateRefTerm = "Delta,NewRotation"))
	bool K2_MoveUpdatedComponent(FVector Delta, FRotator NewRotation, FHitResult& OutHit, bool bSweep = true, bool bTeleport = false);

	/** Sets the plane constraint axis setting. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SetPlaneConstraintAxisSetting(EPlaneConstraintAxisSetting NewAxisSetting);

	/** The plane constraint axis setting. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	EPlaneConstraintAxisSetting GetPlaneConstraintAxisSetting() const;

	/** Sets the plane constraint normal. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SetPlaneConstraintNormal(FVector PlaneNormal);

	/** Sets the plane constraint from vectors. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SetPlaneConstraintFromVectors(FVector Forward, FVector Up);

	/** Sets the plane constraint origin. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SetPlaneConstraintOrigin(FVector PlaneOrigin);

	/** Sets the plane constraint enabled. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SetPlaneConstraintEnabled(bool bEnabled);

	/** The plane constraint normal. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	const FVector& GetPlaneConstraintNormal() const;

	/** The plane constraint origin. */
	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	const FVector& GetPlaneConstraintOrigin() const;

	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	FVector ConstrainDirectionToPlane(FVector Direction) const;

	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	FVector ConstrainLocationToPlane(FVector Location) const;

	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	FVector ConstrainNormalToPlane(FVector Normal) const;

	UFUNCTION(BlueprintCallable, Category = "Components|Movement|Planar")
	void SnapUpdatedComponentToPlane();
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

	/** True if it is swimming. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|NavMovement")
	bool IsSwimming() const;

	/** True if it is flying. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|NavMovement")
	bool IsFlying() const;

	/** True if it is moving on ground. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|NavMovement")
	bool IsMovingOnGround() const;

	UFUNCTION(BlueprintCallable, Category = "AI|Components|NavMovement")
	void StopActiveMovement();

	UFUNCTION(BlueprintCallable, Category = "AI|Components|NavMovement")
	void StopMovementKeepPathing();
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

	/** Adds input to the movement. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	void AddInputVector(FVector WorldVector, bool bForce = false);

	/** The pending input vector. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	FVector GetPendingInputVector() const;

	/** The last input vector. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	FVector GetLastInputVector() const;

	/** Takes the input and forgets it. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	FVector ConsumeInputVector();

	/** True if it is move input ignored. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Components|PawnMovement")
	bool IsMoveInputIgnored() const;
};

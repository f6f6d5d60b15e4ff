// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "Pawn.generated.h"

/** When a pawn gets a controller by itself. */
UENUM(BlueprintType)
enum class EAutoPossessAI : uint8
{
	Disabled,
	PlacedInWorld UMETA(DisplayName = "Placed in World"),
	Spawned,
	PlacedInWorldOrSpawned UMETA(DisplayName = "Placed in World or Spawned")
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPawnRestartedSignature, APawn*, Pawn);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(
	FPawnControllerChangedSignature, APawn*, Pawn, AController*, OldController, AController*, NewController);

/** An actor that a player or an AI controls. */
UCLASS(config = Game, BlueprintType, Blueprintable, hideCategories = (Navigation))
class ENGINE_API APawn : public AActor
{
	GENERATED_BODY()

public:
	/** Controller of the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	AController* GetController() const;

	/** True if a person controls the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsPlayerControlled() const;

	/** True if a controller that is here controls the pawn. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsLocallyControlled() const;

	/** Rotation that the controller wants. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	FRotator GetControlRotation() const;

	/** Asks the movement component to move; a scale of 1 is full speed. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "AddInput"))
	void AddMovementInput(FVector WorldDirection, float ScaleValue = 1.0f, bool bForce = false);

	/** Turns the control rotation left and right. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "up down addpitch"))
	void AddControllerPitchInput(float Val);

	/** Turns the control rotation. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "left right turn addyaw"))
	void AddControllerYawInput(float Val);

	/** Rolls the control rotation. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input", meta = (Keywords = "left right turn addroll"))
	void AddControllerRollInput(float Val);

	/** Takes the input that was added. */
	UFUNCTION(BlueprintCallable, Category = "Pawn|Input")
	FVector ConsumeMovementInputVector();

	/** Movement component of the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	UPawnMovementComponent* GetMovementComponent() const;

	/** Makes an AI controller for the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void SpawnDefaultController();

	/** Parts the pawn from its controller. */
	UFUNCTION(BlueprintCallable, Category = "Pawn", meta = (Keywords = "Delete"))
	void DetachFromControllerPendingDestroy();

	/** A controller takes the pawn. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Possessed"))
	void ReceivePossessed(AController* NewController);

	/** A controller leaves the pawn. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, meta = (DisplayName = "Unpossessed"))
	void ReceiveUnpossessed(AController* OldController);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationPitch : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationYaw : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint32 bUseControllerRotationRoll : 1;

	UPROPERTY(BlueprintAssignable, Category = "Pawn")
	FPawnRestartedSignature ReceiveRestartedDelegate;

	UPROPERTY(BlueprintAssignable, Category = "Pawn")
	FPawnControllerChangedSignature ReceiveControllerChangedDelegate;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn", meta = (DisplayName = "AI Controller Class"))
	TSubclassOf<AController> AIControllerClass;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Pawn")
	EAutoPossessAI AutoPossessAI;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	TEnumAsByte<EAutoReceiveInput::Type> AutoPossessPlayer;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Camera")
	float BaseEyeHeight = 64.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	uint8 bCanAffectNavigationGeneration : 1;

	UPROPERTY(BlueprintReadOnly, Transient, Category = "Pawn")
	TObjectPtr<AController> LastHitBy;

	UPROPERTY(BlueprintReadOnly, Category = "Pawn")
	TObjectPtr<APlayerState> PlayerState;

	/** Rotation that the pawn aims in. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FRotator GetBaseAimRotation() const;

	/** True if it is move input ignored. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	bool IsMoveInputIgnored() const;

	/** True if no player controls the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	bool IsBotControlled() const;

	/** True if anybody controls the pawn. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	bool IsPawnControlled() const;

	/** The pending movement input vector. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FVector GetPendingMovementInputVector() const;

	/** The last movement input vector. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FVector GetLastMovementInputVector() const;

	/** The nav agent location. */
	UFUNCTION(BlueprintCallable, Category = "AI")
	FVector GetNavAgentLocation() const;

	/** Actor that a pawn stands on. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	static AActor* GetMovementBaseActor(const APawn* Pawn);

	/** True if it is locally viewed. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	bool IsLocallyViewed() const;

	/** Sets the can affect navigation generation. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void SetCanAffectNavigationGeneration(bool bNewValue, bool bForceUpdate);

	/** Makes a noise that pawns may hear. */
	UFUNCTION(BlueprintCallable, BlueprintAuthorityOnly, Category = "AI")
	void PawnMakeNoise(float Loudness, FVector NoiseLocation, bool bUseNoiseMakerLocation = true, AActor* NoiseMaker = nullptr);

	/** The platform user id. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FPlatformUserId GetPlatformUserId() const;

	/** Another controller takes over. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Pawn")
	void ReceiveControllerChanged(AController* OldController, AController* NewController);

	/** The pawn begins anew. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Pawn")
	void ReceiveRestarted();
};

/** A pawn that flies about. */
UCLASS(config = Game, Blueprintable, BlueprintType)
class ENGINE_API ADefaultPawn : public APawn
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	float BaseTurnRate = 45.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Pawn")
	float BaseLookUpRate = 45.f;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Pawn")
	TObjectPtr<UPawnMovementComponent> MovementComponent;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Pawn")
	TObjectPtr<USphereComponent> CollisionComponent;

	UPROPERTY(VisibleAnywhere, BlueprintReadOnly, Category = "Pawn")
	TObjectPtr<UStaticMeshComponent> MeshComponent;

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void MoveForward(float Val);

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void MoveRight(float Val);

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void MoveUp_World(float Val);

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void TurnAtRate(float Rate);

	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void LookUpAtRate(float Rate);
};

/** A pawn that watches. */
UCLASS(config = Game, Blueprintable, BlueprintType, notplaceable)
class ENGINE_API ASpectatorPawn : public ADefaultPawn
{
	GENERATED_BODY()
};

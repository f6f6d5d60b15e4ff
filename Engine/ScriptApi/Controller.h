// Package: /Script/Engine
#pragma once

#include "Actor.h"
#include "Controller.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_FourParams(
	FInstigatedAnyDamageSignature, float, Damage, const UDamageType*, DamageType, AActor*, DamagedActor, AActor*, DamageCauser);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnPossessedPawnChanged, APawn*, OldPawn, APawn*, NewPawn);

/** Decides what a pawn does. */
UCLASS(abstract, notplaceable, NotBlueprintable)
class ENGINE_API AController : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY()
	TObjectPtr<USceneComponent> TransformComponent;

	/** Takes a pawn under control. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void Possess(APawn* InPawn);

	/** Lets the pawn go. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void UnPossess();

	/** Pawn under control, or null. */
	UFUNCTION(BlueprintPure, Category = "Pawn", meta = (DisplayName = "Get Controlled Pawn", ScriptName = "GetControlledPawn"))
	APawn* K2_GetPawn() const;

	/** Rotation that the controller wants. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	FRotator GetControlRotation() const;

	/** Sets the rotation that the controller wants. */
	UFUNCTION(BlueprintCallable, Category = "Pawn", meta = (Tooltip = "Set the control rotation."))
	void SetControlRotation(const FRotator& NewRotation);

	/** True for a controller of this machine's player or AI. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsLocalController() const;

	/** True for a person's controller. */
	UFUNCTION(BlueprintPure, Category = "Pawn")
	bool IsPlayerController() const;

	/** Stops movement at once. */
	UFUNCTION(BlueprintCallable, Category = "AI|Navigation")
	void StopMovement();

	/** Sets whether input moves the pawn; calls are counted. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void SetIgnoreMoveInput(bool bNewMoveInput);

	/** Sets whether input turns the view; calls are counted. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void SetIgnoreLookInput(bool bNewLookInput);

	UPROPERTY(BlueprintAssignable, Category = "Controller")
	FInstigatedAnyDamageSignature OnInstigatedAnyDamage;

	UPROPERTY(BlueprintAssignable, Category = "Controller")
	FOnPossessedPawnChanged OnPossessedPawnChanged;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Controller")
	TObjectPtr<APlayerState> PlayerState;

	UPROPERTY(EditDefaultsOnly, Category = "Controller")
	uint8 bAttachToPawn : 1;

	/** Takes movement input again. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void ResetIgnoreMoveInput();

	/** True if it is move input ignored. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	bool IsMoveInputIgnored() const;

	/** Takes look input again. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	void ResetIgnoreLookInput();

	/** True if it is look input ignored. */
	UFUNCTION(BlueprintCallable, Category = "Input")
	bool IsLookInputIgnored() const;

	UFUNCTION(BlueprintCallable, Category = "Input")
	void ResetIgnoreInputFlags();

	/** Sets the initial location and rotation. */
	UFUNCTION(BlueprintCallable, Category = "Controller")
	void SetInitialLocationAndRotation(const FVector& NewLocation, const FRotator& NewRotation);

	/** Actor that the controller looks through. */
	UFUNCTION(BlueprintCallable, Category = "Controller")
	AActor* GetViewTarget() const;

	/** The desired rotation. */
	UFUNCTION(BlueprintCallable, Category = "Controller")
	FRotator GetDesiredRotation() const;

	/** True if the pawn can see an actor. */
	UFUNCTION(BlueprintCallable, Category = "Controller")
	bool LineOfSightTo(const AActor* Other, FVector ViewPoint = FVector(ForceInit), bool bAlternateChecks = false) const;

	/** True if it is local player controller. */
	UFUNCTION(BlueprintCallable, Category = "Controller")
	bool IsLocalPlayerController() const;

	/** Place and rotation that the controller looks from. */
	UFUNCTION(BlueprintCallable, Category = "Pawn")
	void GetPlayerViewPoint(FVector& Location, FRotator& Rotation) const;

	/** The controller takes over a pawn. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Controller", meta = (DisplayName = "On Possess"))
	void ReceivePossess(APawn* PossessedPawn);

	/** The controller lets go of a pawn. */
	UFUNCTION(BlueprintImplementableEvent, Category = "Controller", meta = (DisplayName = "On UnPossess"))
	void ReceiveUnPossess(APawn* UnpossessedPawn);

	/** The controller's pawn hurts somebody. */
	UFUNCTION(BlueprintImplementableEvent, BlueprintAuthorityOnly, Category = "Controller")
	void ReceiveInstigatedAnyDamage(float Damage, const UDamageType* DamageType, AActor* DamagedActor, AActor* DamageCauser);
};

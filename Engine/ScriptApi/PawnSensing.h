// Package: /Script/AIModule
#pragma once

#include "ActorComponent.h"
#include "PawnSensing.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FSeePawnDelegate, APawn*, Pawn);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(FHearNoiseDelegate, APawn*, Instigator, const FVector&, Location, float, Volume);

/** Sees and hears pawns. */
UCLASS(ClassGroup = AI, HideCategories = (Activation, "Components|Activation", Collision), meta = (BlueprintSpawnableComponent))
class AIMODULE_API UPawnSensingComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "AI")
	FSeePawnDelegate OnSeePawn;

	UPROPERTY(BlueprintAssignable, Category = "AI")
	FHearNoiseDelegate OnHearNoise;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	float HearingThreshold = 1400.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	float LOSHearingThreshold = 2800.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	float SightRadius = 5000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	float SensingInterval = 0.5f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	float HearingMaxSoundAge = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	uint8 bEnableSensingUpdates : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	uint8 bOnlySensePlayers : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	uint8 bSeePawns : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "AI")
	uint8 bHearNoises : 1;

	/** Sets the sensing interval. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PawnSensing")
	void SetSensingInterval(const float NewSensingInterval);

	/** Sets the sensing updates enabled. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PawnSensing")
	void SetSensingUpdatesEnabled(const bool bEnabled);

	/** Sets the peripheral vision angle. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PawnSensing")
	void SetPeripheralVisionAngle(const float NewPeripheralVisionAngle);

	/** The peripheral vision angle. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PawnSensing")
	float GetPeripheralVisionAngle() const;

	/** The peripheral vision cosine. */
	UFUNCTION(BlueprintCallable, Category = "AI|Components|PawnSensing")
	float GetPeripheralVisionCosine() const;
};

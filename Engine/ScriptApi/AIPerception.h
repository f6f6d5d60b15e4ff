// Package: /Script/AIModule
#pragma once

#include "ActorComponent.h"
#include "AIPerception.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FPerceptionUpdatedDelegate, const TArray<AActor*>&, UpdatedActors);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FActorPerceptionUpdatedDelegate, AActor*, Actor, FAIStimulus, Stimulus);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FActorPerceptionForgetUpdatedDelegate, AActor*, Actor);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FActorPerceptionInfoUpdatedDelegate, const FActorPerceptionUpdateInfo&, UpdateInfo);

/** A sense. */
UCLASS(Abstract, config = Engine)
class AIMODULE_API UAISense : public UObject
{
	GENERATED_BODY()
};

/** Sight. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Sight : public UAISense
{
	GENERATED_BODY()
};

/** Hearing. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Hearing : public UAISense
{
	GENERATED_BODY()

public:
	/** Makes a noise. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception", meta = (WorldContext = "WorldContextObject"))
	static void ReportNoiseEvent(UObject* WorldContextObject, FVector NoiseLocation, float Loudness = 1.f, AActor* Instigator = nullptr,
		float MaxRange = 0.f, FName Tag = NAME_None);
};

/** Being hurt. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Damage : public UAISense
{
	GENERATED_BODY()

public:
	/** Tells of damage. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception", meta = (WorldContext = "WorldContextObject"))
	static void ReportDamageEvent(UObject* WorldContextObject, AActor* DamagedActor, AActor* Instigator, float DamageAmount,
		FVector EventLocation, FVector HitLocation, FName Tag = NAME_None);
};

/** Touch. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Touch : public UAISense
{
	GENERATED_BODY()
};

/** The team. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Team : public UAISense
{
	GENERATED_BODY()
};

/** Foresight. */
UCLASS(config = Game)
class AIMODULE_API UAISense_Prediction : public UAISense
{
	GENERATED_BODY()
};

/** Settings of a sense. */
UCLASS(Abstract, EditInlineNew, config = Engine, hidecategories = (Implementation))
class AIMODULE_API UAISenseConfig : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, Category = "Sense")
	FColor DebugColor;

	UPROPERTY(EditAnywhere, Category = "Sense")
	float MaxAge = 0.f;
};

/** Settings of sight. */
UCLASS(BlueprintType, EditInlineNew, config = Game)
class AIMODULE_API UAISenseConfig_Sight : public UAISenseConfig
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	TSubclassOf<UAISense_Sight> Implementation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	float SightRadius = 3000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	float LoseSightRadius = 3500.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	float PeripheralVisionAngleDegrees = 90.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	FAISenseAffiliationFilter DetectionByAffiliation;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	float AutoSuccessRangeFromLastSeenLocation = -1.f;
};

/** Settings of hearing. */
UCLASS(meta = (DisplayName = "AI Hearing config"))
class AIMODULE_API UAISenseConfig_Hearing : public UAISenseConfig
{
	GENERATED_BODY()

public:
	UPROPERTY(EditDefaultsOnly, BlueprintReadOnly, Category = "Sense")
	float HearingRange = 3000.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sense")
	FAISenseAffiliationFilter DetectionByAffiliation;
};

/** Settings of being hurt. */
UCLASS(meta = (DisplayName = "AI Damage sense config"))
class AIMODULE_API UAISenseConfig_Damage : public UAISenseConfig
{
	GENERATED_BODY()
};

/** Senses of a pawn. */
UCLASS(ClassGroup = AI, HideCategories = (Activation, Collision), meta = (BlueprintSpawnableComponent), config = Game)
class AIMODULE_API UAIPerceptionComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "AI")
	FPerceptionUpdatedDelegate OnPerceptionUpdated;

	UPROPERTY(BlueprintAssignable, Category = "AI")
	FActorPerceptionUpdatedDelegate OnTargetPerceptionUpdated;

	UPROPERTY(BlueprintAssignable, Category = "AI")
	FActorPerceptionForgetUpdatedDelegate OnTargetPerceptionForgotten;

	UPROPERTY(BlueprintAssignable, Category = "AI")
	FActorPerceptionInfoUpdatedDelegate OnTargetPerceptionInfoUpdated;

	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void RequestStimuliListenerUpdate();

	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void ForgetAll();

	/** The perceived hostile actors. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void GetPerceivedHostileActors(TArray<AActor*>& OutActors) const;

	/** The perceived hostile actors by sense. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void GetPerceivedHostileActorsBySense(const TSubclassOf<UAISense> SenseToUse, TArray<AActor*>& OutActors) const;

	/** The currently perceived actors. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void GetCurrentlyPerceivedActors(TSubclassOf<UAISense> SenseToUse, TArray<AActor*>& OutActors) const;

	/** The known perceived actors. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void GetKnownPerceivedActors(TSubclassOf<UAISense> SenseToUse, TArray<AActor*>& OutActors) const;

	/** The actors perception. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	bool GetActorsPerception(AActor* Actor, FActorPerceptionBlueprintInfo& Info);

	/** Sets the sense enabled. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void SetSenseEnabled(TSubclassOf<UAISense> SenseClass, const bool bEnable);

	/** True if it is sense enabled. */
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	bool IsSenseEnabled(TSubclassOf<UAISense> SenseClass) const;
};

/** Can be sensed. */
UCLASS(ClassGroup = AI, HideCategories = (Activation, Collision), meta = (BlueprintSpawnableComponent), config = Game)
class AIMODULE_API UAIPerceptionStimuliSourceComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void RegisterWithPerceptionSystem();

	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void RegisterForSense(TSubclassOf<UAISense> SenseClass);

	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void UnregisterFromPerceptionSystem();

	UFUNCTION(BlueprintCallable, Category = "AI|Perception")
	void UnregisterFromSense(TSubclassOf<UAISense> SenseClass);
};

/** All senses of a world. */
UCLASS(ClassGroup = AI, config = Game, defaultconfig)
class AIMODULE_API UAIPerceptionSystem : public UObject
{
	GENERATED_BODY()

public:
	UFUNCTION(BlueprintCallable, Category = "AI|Perception", meta = (WorldContext = "WorldContextObject"))
	static bool RegisterPerceptionStimuliSource(UObject* WorldContextObject, TSubclassOf<UAISense> Sense, AActor* Target);

	/** The sense class for stimulus. */
	UFUNCTION(BlueprintPure, Category = "AI|Perception", meta = (WorldContext = "WorldContextObject"))
	static TSubclassOf<UAISense> GetSenseClassForStimulus(UObject* WorldContextObject, const FAIStimulus& Stimulus);
};

// Package: /Script/Engine
#pragma once

#include "SceneComponent.h"
#include "ForceFeedback.generated.h"

DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnForceFeedbackFinished, UForceFeedbackComponent*, ForceFeedbackComponent);

/** How a rumble fades with distance. */
UCLASS(BlueprintType, hidecategories = Object, editinlinenew)
class ENGINE_API UForceFeedbackAttenuation : public UObject
{
	GENERATED_BODY()
};

/** A rumble in the world. */
UCLASS(ClassGroup = Utility, hidecategories = (Object, ActorComponent, Physics, Rendering, Mobility, LOD),
	meta = (BlueprintSpawnableComponent))
class ENGINE_API UForceFeedbackComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ForceFeedback")
	TObjectPtr<UForceFeedbackEffect> ForceFeedbackEffect;

	UPROPERTY(BlueprintAssignable, Category = "ForceFeedback")
	FOnForceFeedbackFinished OnForceFeedbackFinished;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ForceFeedback")
	float IntensityMultiplier = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ForceFeedback")
	uint8 bLooping : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "ForceFeedback")
	uint8 bAutoDestroy : 1;

	/** Sets the force feedback effect. */
	UFUNCTION(BlueprintCallable, Category = "ForceFeedback|Components")
	void SetForceFeedbackEffect(UForceFeedbackEffect* NewForceFeedbackEffect);

	UFUNCTION(BlueprintCallable, Category = "ForceFeedback|Components")
	void Play(float StartTime = 0.f);

	UFUNCTION(BlueprintCallable, Category = "ForceFeedback|Components")
	void Stop();

	/** Sets the intensity multiplier. */
	UFUNCTION(BlueprintCallable, Category = "ForceFeedback|Components")
	void SetIntensityMultiplier(float NewIntensityMultiplier);
};

// Package: /Script/AudioMixer
#pragma once

#include "SceneComponent.h"
#include "AudioMixer.generated.h"

/** A sound that code makes. */
UCLASS(Abstract, ClassGroup = Synth, hidecategories = (Object, ActorComponent, Physics, Rendering, Mobility, LOD))
class AUDIOMIXER_API USynthComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	uint8 bAutoDestroy : 1;

	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Start();

	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Stop();

	/** True if it is playing. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	bool IsPlaying() const;

	/** Sets the volume multiplier. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetVolumeMultiplier(float VolumeMultiplier);

	/** Sets the submix send. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetSubmixSend(USoundSubmixBase* Submix, float SendLevel);
};

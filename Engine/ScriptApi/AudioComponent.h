// Package: /Script/Engine
#pragma once

#include "SceneComponent.h"
#include "AudioComponent.generated.h"

/** How a sound fades. */
UENUM(BlueprintType)
enum class EAudioFaderCurve : uint8
{
	Linear,
	Logarithmic,
	SCurve UMETA(DisplayName = "Sin (S-Curve)"),
	Sin UMETA(DisplayName = "Equal Power")
};

/** How a sound fades with distance. */
USTRUCT(BlueprintType)
struct FSoundAttenuationSettings
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FSoundModulationDefaultSettings
{
	GENERATED_BODY()
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnAudioPlaybackPercent, const USoundWave*, PlayingSoundWave, const float, PlaybackPercent);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnAudioSingleEnvelopeValue, const USoundWave*, PlayingSoundWave, const float, EnvelopeValue);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_ThreeParams(
	FOnAudioMultiEnvelopeValue, const float, AverageEnvelopeValue, const float, MaxEnvelope, const int32, NumWaveInstances);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnAudioPlayStateChanged, EAudioComponentPlayState, PlayState);
DECLARE_DYNAMIC_MULTICAST_DELEGATE_OneParam(FOnAudioVirtualizationChanged, bool, bIsVirtualized);
DECLARE_DYNAMIC_DELEGATE_TwoParams(FOnQueueSubtitles, const TArray<FSubtitleCue>&, Subtitles, float, CueDuration);

/** Plays a sound. */
UCLASS(BlueprintType, Blueprintable, meta = (BlueprintSpawnableComponent))
class ENGINE_API UAudioComponent : public USceneComponent
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable)
	FOnAudioFinished OnAudioFinished;

	/** Plays from a place in seconds. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Play(float StartTime = 0.0f);

	/** Stops. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void Stop();

	/** True while it plays. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	bool IsPlaying() const;

	/** What the component is doing. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	EAudioComponentPlayState GetPlayState() const;

	/** Sets the sound. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetSound(USoundBase* NewSound);

	/** Sets the volume. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetVolumeMultiplier(float NewVolumeMultiplier);

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	TObjectPtr<USoundBase> Sound;

	UPROPERTY(BlueprintAssignable, Category = "Audio")
	FOnAudioPlayStateChanged OnAudioPlayStateChanged;

	UPROPERTY(BlueprintAssignable, Category = "Audio")
	FOnAudioVirtualizationChanged OnAudioVirtualizationChanged;

	UPROPERTY(BlueprintAssignable, Category = "Audio")
	FOnAudioPlaybackPercent OnAudioPlaybackPercent;

	UPROPERTY(BlueprintAssignable, Category = "Audio")
	FOnAudioSingleEnvelopeValue OnAudioSingleEnvelopeValue;

	UPROPERTY(BlueprintAssignable, Category = "Audio")
	FOnAudioMultiEnvelopeValue OnAudioMultiEnvelopeValue;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float VolumeMultiplier = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float PitchMultiplier = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Attenuation")
	uint8 bOverrideAttenuation : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Attenuation")
	TObjectPtr<USoundAttenuation> AttenuationSettings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Attenuation")
	uint8 bAllowSpatialization : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	uint8 bIsUISound : 1;

	/** Plays and grows louder. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void FadeIn(float FadeInDuration, float FadeVolumeLevel = 1.0f, float StartTime = 0.0f,
		const EAudioFaderCurve FadeCurve = EAudioFaderCurve::Linear);

	/** Grows quieter and stops. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void FadeOut(float FadeOutDuration, float FadeVolumeLevel, const EAudioFaderCurve FadeCurve = EAudioFaderCurve::Linear);

	/** Changes the volume over time. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void AdjustVolume(float AdjustVolumeDuration, float AdjustVolumeLevel, const EAudioFaderCurve FadeCurve = EAudioFaderCurve::Linear);

	/** Stops after some seconds. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void StopDelayed(float DelayTime);

	/** Sets the paused. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetPaused(bool bPause);

	/** Sets the pitch multiplier. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetPitchMultiplier(float NewPitchMultiplier);

	/** Sets the UI sound. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetUISound(bool bInUISound);

	/** Sets the float parameter. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetFloatParameter(const FName InName, const float InFloat);

	/** Sets the bool parameter. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetBoolParameter(const FName InName, const bool InBool);

	/** Sets the int parameter. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetIntParameter(const FName InName, const int32 InInt);

	/** Sets the wave parameter. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetWaveParameter(const FName InName, USoundWave* InWave);

	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void AdjustAttenuation(const FSoundAttenuationSettings& InAttenuationSettings);

	/** Sets the attenuation settings. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetAttenuationSettings(USoundAttenuation* InAttenuationSettings);

	/** The attenuation settings to apply. */
	UFUNCTION(BlueprintPure, Category = "Audio|Components|Audio", meta = (DisplayName = "Get Attenuation Settings To Apply"))
	bool BP_GetAttenuationSettingsToApply(FSoundAttenuationSettings& OutAttenuationSettings);

	/** Sets the submix send. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetSubmixSend(USoundSubmixBase* Submix, float SendLevel);

	/** Sets the low pass filter enabled. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetLowPassFilterEnabled(bool InLowPassFilterEnabled);

	/** Sets the low pass filter frequency. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetLowPassFilterFrequency(float InLowPassFilterFrequency);

	/** Sets the high pass filter enabled. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetHighPassFilterEnabled(bool InHighPassFilterEnabled);

	/** Sets the high pass filter frequency. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetHighPassFilterFrequency(float InHighPassFilterFrequency);

	/** Sets the output to bus only. */
	UFUNCTION(BlueprintCallable, Category = "Audio|Components|Audio")
	void SetOutputToBusOnly(bool bInOutputToBusOnly);

	/** True if it is virtualized. */
	UFUNCTION(BlueprintPure, Category = "Audio|Components|Audio")
	bool IsVirtualized() const;
};

// Package: /Script/Engine
#pragma once

#include "ActorComponent.h"
#include "TimelineComponent.generated.h"

DECLARE_DYNAMIC_DELEGATE(FOnTimelineEvent);
DECLARE_DYNAMIC_DELEGATE_OneParam(FOnTimelineFloat, float, Output);
DECLARE_DYNAMIC_DELEGATE_OneParam(FOnTimelineVector, FVector, Output);
DECLARE_DYNAMIC_DELEGATE_OneParam(FOnTimelineLinearColor, FLinearColor, Output);

/** Plays tracks of values over time. */
UCLASS()
class ENGINE_API UTimelineComponent : public UActorComponent
{
	GENERATED_BODY()

public:
	/** Plays forward from where it is. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void Play();

	/** Plays forward from the start. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void PlayFromStart();

	/** Plays backward from where it is. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void Reverse();

	/** Plays backward from the end. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void ReverseFromEnd();

	/** Stops where it is. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void Stop();

	/** True while the time line plays. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	bool IsPlaying() const;

	/** True if it plays backward. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	bool IsReversing() const;

	/** Sets the place on the time line. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetPlaybackPosition(float NewPosition, bool bFireEvents, bool bFireUpdate = true);

	/** The playback position. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	float GetPlaybackPosition() const;

	/** Sets the looping. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetLooping(bool bNewLooping);

	/** True if it is looping. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	bool IsLooping() const;

	/** Sets the play rate. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetPlayRate(float NewRate);

	/** The play rate. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	float GetPlayRate() const;

	/** Sets the new time. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetNewTime(float NewTime);

	/** The timeline length. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	float GetTimelineLength() const;

	/** Sets the timeline length. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetTimelineLength(float NewLength);

	/** Sets the timeline length mode. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetTimelineLengthMode(ETimelineLengthMode NewLengthMode);

	/** Sets the ignore time dilation. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetIgnoreTimeDilation(bool bNewIgnoreTimeDilation);

	/** The ignore time dilation. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	bool GetIgnoreTimeDilation() const;

	/** Sets the float curve. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetFloatCurve(UCurveFloat* NewFloatCurve, FName FloatTrackName);

	/** Sets the vector curve. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetVectorCurve(UCurveVector* NewVectorCurve, FName VectorTrackName);

	/** Sets the linear color curve. */
	UFUNCTION(BlueprintCallable, Category = "Components|Timeline")
	void SetLinearColorCurve(UCurveLinearColor* NewLinearColorCurve, FName LinearColorTrackName);
};

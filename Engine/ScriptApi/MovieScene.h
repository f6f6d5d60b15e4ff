// Package: /Script/MovieScene
#pragma once

#include "CoreMinimal.h"
#include "MovieScene.generated.h"

/** How often a film is played. */
USTRUCT(BlueprintType)
struct FMovieSceneSequenceLoopCount
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "General")
	int32 Value = 0;
};

/** How a film is played. */
USTRUCT(BlueprintType)
struct FMovieSceneSequencePlaybackSettings
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	uint8 bAutoPlay : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	FMovieSceneSequenceLoopCount LoopCount;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	float PlayRate = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	float StartTime = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	uint8 bRandomStartTime : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cinematic")
	uint8 bDisableMovementInput : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cinematic")
	uint8 bDisableLookAtInput : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cinematic")
	uint8 bHidePlayer : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cinematic")
	uint8 bHideHud : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Cinematic")
	uint8 bDisableCameraCuts : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	uint8 bPauseAtEnd : 1;
};

DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnMovieSceneSequencePlayerEvent);

/** A film. */
UCLASS(Abstract, BlueprintType)
class MOVIESCENE_API UMovieSceneSequence : public UObject
{
	GENERATED_BODY()
};

/** Plays a film. */
UCLASS(Abstract, BlueprintType)
class MOVIESCENE_API UMovieSceneSequencePlayer : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY(BlueprintAssignable, Category = "Sequencer|Player")
	FOnMovieSceneSequencePlayerEvent OnPlay;

	UPROPERTY(BlueprintAssignable, Category = "Sequencer|Player")
	FOnMovieSceneSequencePlayerEvent OnPlayReverse;

	UPROPERTY(BlueprintAssignable, Category = "Sequencer|Player")
	FOnMovieSceneSequencePlayerEvent OnStop;

	UPROPERTY(BlueprintAssignable, Category = "Sequencer|Player")
	FOnMovieSceneSequencePlayerEvent OnPause;

	UPROPERTY(BlueprintAssignable, Category = "Sequencer|Player")
	FOnMovieSceneSequencePlayerEvent OnFinished;

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void Play();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void PlayReverse();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void ChangePlaybackDirection();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void PlayLooping(int32 NumLoops = -1);

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void Pause();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void Scrub();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void Stop();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void StopAtCurrentTime();

	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void GoToEndAndStop();

	/** True if it is playing. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	bool IsPlaying() const;

	/** True if it is paused. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	bool IsPaused() const;

	/** True if it is reversed. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	bool IsReversed() const;

	/** The play rate. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	float GetPlayRate() const;

	/** Sets the play rate. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void SetPlayRate(float PlayRate);

	/** The current time. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	FQualifiedFrameTime GetCurrentTime() const;

	/** The duration. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	FQualifiedFrameTime GetDuration() const;

	/** The frame rate. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	FFrameRate GetFrameRate() const;

	/** Sets the frame rate. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void SetFrameRate(FFrameRate FrameRate);

	/** The start time. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	FQualifiedFrameTime GetStartTime() const;

	/** The end time. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	FQualifiedFrameTime GetEndTime() const;

	/** Sets the hide hud. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void SetHideHud(bool HideHud);

	/** The sequence. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	UMovieSceneSequence* GetSequence() const;
};

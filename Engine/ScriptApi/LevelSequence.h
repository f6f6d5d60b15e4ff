// Package: /Script/LevelSequence
#pragma once

#include "Actor.h"
#include "MovieScene.h"
#include "LevelSequence.generated.h"

/** A film of a level. */
UCLASS(BlueprintType)
class LEVELSEQUENCE_API ULevelSequence : public UMovieSceneSequence
{
	GENERATED_BODY()
};

/** Plays a film of a level. */
UCLASS()
class LEVELSEQUENCE_API ULevelSequencePlayer : public UMovieSceneSequencePlayer
{
	GENERATED_BODY()

public:
	/** Makes a player of a film. */
	UFUNCTION(
		BlueprintCallable, Category = "Sequencer|Player", meta = (WorldContext = "WorldContextObject", DynamicOutputParam = "OutActor"))
	static ULevelSequencePlayer* CreateLevelSequencePlayer(UObject* WorldContextObject, ULevelSequence* LevelSequence,
		FMovieSceneSequencePlaybackSettings Settings, ALevelSequenceActor*& OutActor);

	/** The active camera component. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	UCameraComponent* GetActiveCameraComponent() const;
};

/** A film in the level. */
UCLASS(hideCategories = (Rendering, Physics, HLOD, Activation, Input))
class LEVELSEQUENCE_API ALevelSequenceActor : public AActor
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Playback")
	FMovieSceneSequencePlaybackSettings PlaybackSettings;

	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "General")
	TObjectPtr<ULevelSequence> LevelSequenceAsset;

	/** The sequence. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	ULevelSequence* GetSequence() const;

	/** Sets the sequence. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	void SetSequence(ULevelSequence* InSequence);

	/** The sequence player. */
	UFUNCTION(BlueprintCallable, Category = "Sequencer|Player")
	ULevelSequencePlayer* GetSequencePlayer() const;
};

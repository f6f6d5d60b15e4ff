// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "Sounds.generated.h"

/** A sound. */
UCLASS(BlueprintType)
class ENGINE_API USoundBase : public UObject
{
	GENERATED_BODY()

public:
	/** The duration. */
	UFUNCTION(BlueprintPure, Category = "Audio|Sound")
	float GetDuration() const;
};

/** A recorded sound. */
UCLASS(hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API USoundWave : public USoundBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	uint8 bLooping : 1;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float Volume = 1.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float Pitch = 1.f;
};

/** A sound that code makes. */
UCLASS()
class ENGINE_API USoundWaveProcedural : public USoundWave
{
	GENERATED_BODY()
};

/** A sound put together of others. */
UCLASS(hidecategories = object, BlueprintType)
class ENGINE_API USoundCue : public USoundBase
{
	GENERATED_BODY()

public:
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float VolumeMultiplier = 0.75f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Sound")
	float PitchMultiplier = 1.f;
};

/** A kind of sound. */
UCLASS(config = Engine, hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API USoundClass : public UObject
{
	GENERATED_BODY()
};

/** How loud kinds of sound are. */
UCLASS(hidecategories = object, BlueprintType)
class ENGINE_API USoundMix : public UObject
{
	GENERATED_BODY()
};

/** Where sounds flow together. */
UCLASS(Abstract, config = Engine, hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API USoundSubmixBase : public UObject
{
	GENERATED_BODY()
};

/** Where sounds flow together. */
UCLASS(config = Engine, hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API USoundSubmix : public USoundSubmixBase
{
	GENERATED_BODY()
};

/** Echo of a room. */
UCLASS(hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API UReverbEffect : public UObject
{
	GENERATED_BODY()
};

/** Who speaks. */
UCLASS(hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API UDialogueVoice : public UObject
{
	GENERATED_BODY()
};

/** Speech. */
UCLASS(hidecategories = Object, editinlinenew, BlueprintType)
class ENGINE_API UDialogueWave : public UObject
{
	GENERATED_BODY()
};

#pragma once

#include "Templates/Function.h"
#include "UObject/Interface.h"
#include "UObject/ObjectInitializer.h"
#include "UObject/UObjectGlobals.h"

#include "ReflectedTestTypes.generated.h"

UENUM()
enum class EReflectedMood : uint8
{
	Calm,
	Angry UMETA(DisplayName = "Very Angry")
};

USTRUCT()
struct FReflectedLink
{
	GENERATED_BODY()

	UPROPERTY()
	TObjectPtr<UObject> Target = nullptr;

	UPROPERTY()
	int32 Weight = 1;
};

/** Flags that share a byte. */
USTRUCT()
struct FReflectedBits
{
	GENERATED_BODY()

	UPROPERTY()
	uint8 bFirst : 1 = false;

	UPROPERTY()
	uint8 bSecond : 1 = false;

	UPROPERTY()
	uint8 bThird : 1 = false;

	UPROPERTY()
	int32 Count = 5;
};

UINTERFACE()
class UReflectedSpeaker : public UInterface
{
	GENERATED_BODY()
};

class IReflectedSpeaker
{
	GENERATED_BODY()

public:
	virtual int32 Speak() const = 0;
};

/** A part that its owner makes. */
UCLASS(DefaultToInstanced, EditInlineNew)
class UReflectedPart : public UObject
{
	GENERATED_BODY()

public:
	UPROPERTY()
	int32 Strength = 3;
};

UCLASS()
class UReflectedStrongPart : public UReflectedPart
{
	GENERATED_BODY()

public:
	UReflectedStrongPart() { Strength = 9; }
};

/** Has one reference of every shape. */
UCLASS()
class UReflectedThing : public UObject, public IReflectedSpeaker
{
	GENERATED_BODY()

public:
	UReflectedThing(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())
		: Super(ObjectInitializer)
	{
		Part = ObjectInitializer.CreateDefaultSubobject<UReflectedPart>(this, TEXT("Part"));
	}

	int32 Speak() const override { return Number; }
	void BeginDestroy() override
	{
		++NumDestroyed;
		Super::BeginDestroy();
	}

	UPROPERTY()
	int32 Number = 7;

	UPROPERTY()
	TObjectPtr<UObject> Single = nullptr;

	UPROPERTY()
	TArray<TObjectPtr<UObject>> List;

	UPROPERTY()
	TMap<FName, TObjectPtr<UObject>> ByName;

	UPROPERTY()
	TArray<FReflectedLink> Links;

	UPROPERTY()
	TWeakObjectPtr<UObject> Weak;

	UPROPERTY()
	TObjectPtr<UReflectedPart> Part;

	UPROPERTY()
	EReflectedMood Mood = EReflectedMood::Calm;

	UFUNCTION(BlueprintCallable)
	int32 Add(int32 Left, const FString& Right);

	UObject* Unreflected = nullptr;
	static inline int32 NumDestroyed = 0;
};

inline int32 UReflectedThing::Add(int32 Left, const FString& Right)
{
	return Left + Right.Len();
}

/** Tells how it dies. */
UCLASS()
class UReflectedMortal : public UObject
{
	GENERATED_BODY()

public:
	void BeginDestroy() override
	{
		// Whoever dies with this one is still whole.
		Log += !Watched || Watched->IsA<UReflectedMortal>() ? TEXT("B") : TEXT("?");
		if (OnBeginDestroy)
		{
			OnBeginDestroy(this);
		}
		Super::BeginDestroy();
	}
	void FinishDestroy() override
	{
		Log += TEXT("F");
		Super::FinishDestroy();
	}

	UPROPERTY()
	TObjectPtr<UReflectedMortal> Watched = nullptr;

	static inline FString Log;
	static inline TFunction<void(UReflectedMortal*)> OnBeginDestroy;
};

UCLASS()
class UReflectedDerivedThing : public UReflectedThing
{
	GENERATED_BODY()

public:
	UReflectedDerivedThing(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get())
		: Super(ObjectInitializer.SetDefaultSubobjectClass<UReflectedStrongPart>(TEXT("Part")))
	{
		Number = 8;
	}
};

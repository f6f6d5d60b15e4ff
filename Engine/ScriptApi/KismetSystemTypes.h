// Package: /Script/Engine
#pragma once

#include "CoreMinimal.h"
#include "KismetSystemTypes.generated.h"

USTRUCT(BlueprintType)
struct FGenericStruct
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Data = 0;
};

/** What the player does, for the platform to show. */
USTRUCT(BlueprintType)
struct FUserActivity
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FString ActionName;
};

/** Numbers of a graph that is drawn for development. */
USTRUCT(BlueprintType)
struct FDebugFloatHistory
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float MaxSamples = 100;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float MinValue = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float MaxValue = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	bool bAutoAdjustMinMax = true;
};

/** An asset was loaded. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FOnAssetLoaded, UObject*, Loaded);

/** A class was loaded. */
DECLARE_DYNAMIC_DELEGATE_OneParam(FOnAssetClassLoaded, UClass*, Loaded);

// Package: /Script/Engine
#pragma once

#include "Textures.h"
#include "Curves.generated.h"

/** How a curve goes between its keys. */
UENUM(BlueprintType)
enum ERichCurveInterpMode : int
{
	RCIM_Linear UMETA(DisplayName = "Linear"),
	RCIM_Constant UMETA(DisplayName = "Constant"),
	RCIM_Cubic UMETA(DisplayName = "Cubic"),
	RCIM_None UMETA(DisplayName = "None")
};

/** What curves a table has. */
UENUM(BlueprintType)
enum class ECurveTableMode : uint8
{
	Empty,
	SimpleCurves,
	RichCurves
};

/** A curve of an asset, or one of its own. */
USTRUCT(BlueprintType)
struct FRuntimeFloatCurve
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere)
	TObjectPtr<UCurveFloat> ExternalCurve;
};

// Extends native
UCLASS()
class ENGINE_API UCurveBase : public UObject
{
	GENERATED_BODY()

public:
	/** Time of the first and the last key. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	void GetTimeRange(float& MinTime, float& MaxTime) const;

	/** Smallest and largest value. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	void GetValueRange(float& MinValue, float& MaxValue) const;
};

// Extends native
UCLASS()
class ENGINE_API UCurveFloat : public UCurveBase
{
	GENERATED_BODY()

public:
	/** Value of the curve at a time. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	float GetFloatValue(float InTime) const;
};

// Extends native
UCLASS()
class ENGINE_API UCurveVector : public UCurveBase
{
	GENERATED_BODY()

public:
	/** Value of the curve at a time. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	FVector GetVectorValue(float InTime) const;
};

// Extends native
UCLASS()
class ENGINE_API UCurveLinearColor : public UCurveBase
{
	GENERATED_BODY()

public:
	/** Colour of the curve at a time. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	FLinearColor GetLinearColorValue(float InTime) const;

	/** Colour of the curve at a time, held in range. */
	UFUNCTION(BlueprintPure, Category = "Math|Curves")
	FLinearColor GetClampedLinearColorValue(float InTime) const;

	/** Colour of the curve at a time without corrections. */
	UFUNCTION(BlueprintPure, Category = "Math|Curves")
	FLinearColor GetUnadjustedLinearColorValue(float InTime) const;
};

/** Colour curves in one texture. */
UCLASS(BlueprintType)
class ENGINE_API UCurveLinearColorAtlas : public UTexture2D
{
	GENERATED_BODY()

public:
	/** Place of a curve in the texture. */
	UFUNCTION(BlueprintCallable, Category = "Math|Curves")
	bool GetCurvePosition(UCurveLinearColor* InCurve, float& Position);
};

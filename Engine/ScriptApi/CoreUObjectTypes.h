// Package: /Script/CoreUObject
#pragma once

#include "CoreMinimal.h"
#include "CoreUObjectTypes.generated.h"

/** An axis of space. */
UENUM(BlueprintType)
namespace EAxis
{
enum Type : int
{
	None,
	X,
	Y,
	Z
};
}

/** How a curve goes from one of its points to the next. */
UENUM(BlueprintType)
enum EInterpCurveMode : int
{
	CIM_Linear UMETA(DisplayName = "Linear"),
	CIM_CurveAuto UMETA(DisplayName = "Curve Auto"),
	CIM_Constant UMETA(DisplayName = "Constant"),
	CIM_CurveUser UMETA(DisplayName = "Curve User"),
	CIM_CurveBreak UMETA(DisplayName = "Curve Break"),
	CIM_CurveAutoClamped UMETA(DisplayName = "Curve Auto Clamped")
};

/** Whether the end of a range belongs to it. */
UENUM(BlueprintType)
namespace ERangeBoundTypes
{
enum Type : int
{
	Exclusive,
	Inclusive,
	Open
};
}

/** Look of the mouse pointer. */
UENUM(BlueprintType)
namespace EMouseCursor
{
enum Type : int
{
	None,
	Default,
	TextEditBeam,
	ResizeLeftRight,
	ResizeUpDown,
	ResizeSouthEast,
	ResizeSouthWest,
	CardinalCross,
	Crosshairs,
	Hand,
	GrabHand,
	GrabHandClosed,
	SlashedCircle,
	EyeDropper,
	Custom
};
}

/** A point or vector in 2-D space, in single precision. */
USTRUCT(BlueprintType)
struct FVector2f
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float X = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Y = 0.f;
};

/** A vector in 4-D space, in single precision. */
USTRUCT(BlueprintType)
struct FVector4f
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float X = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Y = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Z = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float W = 0.f;
};

/** A rotation as a quaternion, in single precision. */
USTRUCT(BlueprintType)
struct FQuat4f
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float X = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Y = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Z = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float W = 1.f;
};

/** A rectangle along the axes. */
USTRUCT(BlueprintType)
struct FBox2D
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FVector2D Min;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FVector2D Max;

	UPROPERTY(EditAnywhere)
	bool bIsValid = false;
};

/** A frame of a time line, by number. */
USTRUCT(BlueprintType)
struct FFrameNumber
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Value = 0;
};

/** Frames in a second, as a fraction. */
USTRUCT(BlueprintType)
struct FFrameRate
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Numerator = 60;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Denominator = 1;
};

/** A frame and how far into it. */
USTRUCT(BlueprintType)
struct FFrameTime
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FFrameNumber FrameNumber;
};

/** A time code of hours, minutes, seconds and frames. */
USTRUCT(BlueprintType)
struct FTimecode
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Hours = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Minutes = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Seconds = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Frames = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Subframe = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	bool bDropFrameFormat = false;
};

/** A frame with the rate that it is counted in. */
USTRUCT(BlueprintType)
struct FQualifiedFrameTime
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FFrameTime Time;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FFrameRate Rate;
};

/** An end of a range of numbers. */
USTRUCT(BlueprintType)
struct FFloatRangeBound
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	TEnumAsByte<ERangeBoundTypes::Type> Type;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Value = 0.f;
};

/** A range of numbers. */
USTRUCT(BlueprintType)
struct FFloatRange
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FFloatRangeBound LowerBound;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FFloatRangeBound UpperBound;
};

/** Two numbers, the smaller and the larger. */
USTRUCT(BlueprintType)
struct FFloatInterval
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Min = 0.f;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	float Max = 0.f;
};

/** Two whole numbers, the smaller and the larger. */
USTRUCT(BlueprintType)
struct FInt32Interval
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Min = 0;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	int32 Max = 0;
};

USTRUCT(BlueprintType)
struct FAssetBundleData
{
	GENERATED_BODY()
};

USTRUCT(BlueprintType)
struct FPolyglotTextData
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FString NativeCulture;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FString Namespace;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FString Key;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FString NativeString;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	TMap<FString, FString> LocalizedStrings;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	bool bIsMinimalPatch = false;
};

/** What is known of an asset without loading it. */
USTRUCT(BlueprintType)
struct FAssetData
{
	GENERATED_BODY()

	UPROPERTY(BlueprintReadOnly)
	FName PackageName;

	UPROPERTY(BlueprintReadOnly)
	FName PackagePath;

	UPROPERTY(BlueprintReadOnly)
	FName AssetName;

	UPROPERTY(BlueprintReadOnly)
	FName AssetClass;

	UPROPERTY(BlueprintReadOnly)
	FTopLevelAssetPath AssetClassPath;
};

/** A box and a sphere around something. */
USTRUCT(BlueprintType)
struct FBoxSphereBounds
{
	GENERATED_BODY()

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FVector Origin;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	FVector BoxExtent;

	UPROPERTY(EditAnywhere, BlueprintReadWrite)
	double SphereRadius = 0.0;
};

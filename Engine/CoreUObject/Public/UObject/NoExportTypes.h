#pragma once

// Reflection of Core's plain structs. HeaderTool reads the declarations below; the compiler sees the structs themselves.

#include "Math/Axis.h"
#include "Math/Box.h"
#include "Math/Box2D.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntVector.h"
#include "Math/Matrix.h"
#include "Math/Plane.h"
#include "Math/Quat.h"
#include "Math/RandomStream.h"
#include "Math/Rotator.h"
#include "Math/Transform.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Timespan.h"
#include "UObject/CoreStructTraits.h"
#include "UObject/PrimaryAssetId.h"
#include "UObject/SoftObjectPath.h"
#include "UObject/TopLevelAssetPath.h"

#include "NoExportTypes.generated.h"

#if !CPP // What follows stands in Core.

/** A globally unique identifier. */
USTRUCT(noexport, BlueprintType, Atomic, immutable)
struct FGuid
{
	UPROPERTY(EditAnywhere, SaveGame, Category = Guid)
	int32 A;
	UPROPERTY(EditAnywhere, SaveGame, Category = Guid)
	int32 B;
	UPROPERTY(EditAnywhere, SaveGame, Category = Guid)
	int32 C;
	UPROPERTY(EditAnywhere, SaveGame, Category = Guid)
	int32 D;
};

/** A point or vector in 3-D space. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector"))
struct FVector
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector, SaveGame)
	double X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector, SaveGame)
	double Y;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector, SaveGame)
	double Z;
};

/** A point or vector in 3-D space, in single precision. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector3f",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector3f"))
struct FVector3f
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector3f, SaveGame)
	float X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector3f, SaveGame)
	float Y;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector3f, SaveGame)
	float Z;
};

/** A vector in 4-D space. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector4",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector4"))
struct FVector4
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector4, SaveGame)
	double X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector4, SaveGame)
	double Y;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector4, SaveGame)
	double Z;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector4, SaveGame)
	double W;
};

/** A point or vector in 2-D space. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeVector2D",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakVector2D"))
struct FVector2D
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector2D, SaveGame)
	double X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Vector2D, SaveGame)
	double Y;
};

/** A plane in 3-D space: its normal, and its distance from the origin in W. */
USTRUCT(immutable, noexport, BlueprintType)
struct FPlane : public FVector
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Plane, SaveGame)
	double W;
};

/** A rotation around the three axes, in degrees. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeRotator",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakRotator"))
struct FRotator
{
	/** Rotation around the right axis: looking up and down. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator, SaveGame, meta = (DisplayName = "Y"))
	double Pitch;
	/** Rotation around the up axis: looking left and right. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator, SaveGame, meta = (DisplayName = "Z"))
	double Yaw;
	/** Rotation around the forward axis: tilting the head. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Rotator, SaveGame, meta = (DisplayName = "X"))
	double Roll;
};

/** A rotation as a quaternion. */
USTRUCT(immutable, noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeQuat", HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakQuat"))
struct FQuat
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Quat, SaveGame)
	double X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Quat, SaveGame)
	double Y;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Quat, SaveGame)
	double Z;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Quat, SaveGame)
	double W;
};

/** A matrix of four rows. */
USTRUCT(immutable, noexport, BlueprintType)
struct FMatrix
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Matrix, SaveGame)
	FPlane XPlane;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Matrix, SaveGame)
	FPlane YPlane;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Matrix, SaveGame)
	FPlane ZPlane;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Matrix, SaveGame)
	FPlane WPlane;
};

/** A rotation, a translation and a scale, applied scale first. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeTransform",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakTransform"))
struct FTransform
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Transform, SaveGame)
	FQuat Rotation;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Transform, SaveGame)
	FVector Translation;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Transform, SaveGame)
	FVector Scale3D;
};

/** A point on a grid of whole numbers. */
USTRUCT(immutable, noexport, BlueprintType)
struct FIntPoint
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntPoint, SaveGame)
	int32 X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntPoint, SaveGame)
	int32 Y;
};

/** A vector of whole numbers. */
USTRUCT(immutable, noexport, BlueprintType)
struct FIntVector
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntVector, SaveGame)
	int32 X;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntVector, SaveGame)
	int32 Y;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = IntVector, SaveGame)
	int32 Z;
};

/** A colour of four bytes. */
USTRUCT(immutable, noexport, BlueprintType)
struct FColor
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color, SaveGame, meta = (ClampMin = "0", ClampMax = "255"))
	uint8 B;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color, SaveGame, meta = (ClampMin = "0", ClampMax = "255"))
	uint8 G;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color, SaveGame, meta = (ClampMin = "0", ClampMax = "255"))
	uint8 R;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Color, SaveGame, meta = (ClampMin = "0", ClampMax = "255"))
	uint8 A;
};

/** A linear colour of four floats. */
USTRUCT(immutable, noexport, BlueprintType)
struct FLinearColor
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor, SaveGame)
	float R;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor, SaveGame)
	float G;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor, SaveGame)
	float B;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = LinearColor, SaveGame)
	float A;
};

/** A box whose sides are along the axes. */
USTRUCT(noexport, BlueprintType, meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeBox"))
struct FBox
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Box, SaveGame)
	FVector Min;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = Box, SaveGame)
	FVector Max;
	UPROPERTY()
	uint8 IsValid;
};

/** A stream of random numbers that a seed repeats. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeRandomStream",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakRandomStream"))
struct FRandomStream
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = RandomStream, SaveGame)
	int32 InitialSeed;
	UPROPERTY()
	int32 Seed;
};

/** A date and time. */
USTRUCT(noexport, immutable, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeDateTime",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakDateTime"))
struct FDateTime
{
	int64 Ticks;
};

/** A span of time. */
USTRUCT(noexport, immutable, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetMathLibrary.MakeTimespan",
		HasNativeBreak = "/Script/Engine.KismetMathLibrary.BreakTimespan"))
struct FTimespan
{
	int64 Ticks;
};

/** The path of an asset or class that stands directly in its package. */
USTRUCT(noexport, BlueprintType)
struct FTopLevelAssetPath
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = TopLevelAssetPath, SaveGame)
	FName PackageName;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = TopLevelAssetPath, SaveGame)
	FName AssetName;
};

/** The path of an object that need not be loaded. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetSystemLibrary.MakeSoftObjectPath",
		HasNativeBreak = "/Script/Engine.KismetSystemLibrary.BreakSoftObjectPath"))
struct FSoftObjectPath
{
	UPROPERTY()
	FTopLevelAssetPath AssetPath;
	UPROPERTY()
	FString SubPathString;
};

/** The path of a class that need not be loaded. */
USTRUCT(noexport, BlueprintType,
	meta = (HasNativeMake = "/Script/Engine.KismetSystemLibrary.MakeSoftClassPath",
		HasNativeBreak = "/Script/Engine.KismetSystemLibrary.BreakSoftClassPath"))
struct FSoftClassPath : public FSoftObjectPath
{
};

/** The kind of a primary asset. */
USTRUCT(noexport, BlueprintType)
struct FPrimaryAssetType
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = PrimaryAssetType, SaveGame)
	FName Name;
};

/** A primary asset by kind and name. */
USTRUCT(noexport, BlueprintType)
struct FPrimaryAssetId
{
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = PrimaryAssetId, SaveGame)
	FPrimaryAssetType PrimaryAssetType;
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = PrimaryAssetId, SaveGame)
	FName PrimaryAssetName;
};

#endif

UScriptStruct* Z_Construct_UScriptStruct_FGuid();
UScriptStruct* Z_Construct_UScriptStruct_FVector();
UScriptStruct* Z_Construct_UScriptStruct_FVector3f();
UScriptStruct* Z_Construct_UScriptStruct_FVector4();
UScriptStruct* Z_Construct_UScriptStruct_FVector2D();
UScriptStruct* Z_Construct_UScriptStruct_FPlane();
UScriptStruct* Z_Construct_UScriptStruct_FRotator();
UScriptStruct* Z_Construct_UScriptStruct_FQuat();
UScriptStruct* Z_Construct_UScriptStruct_FMatrix();
UScriptStruct* Z_Construct_UScriptStruct_FTransform();
UScriptStruct* Z_Construct_UScriptStruct_FIntPoint();
UScriptStruct* Z_Construct_UScriptStruct_FIntVector();
UScriptStruct* Z_Construct_UScriptStruct_FColor();
UScriptStruct* Z_Construct_UScriptStruct_FLinearColor();
UScriptStruct* Z_Construct_UScriptStruct_FBox();
UScriptStruct* Z_Construct_UScriptStruct_FRandomStream();
UScriptStruct* Z_Construct_UScriptStruct_FDateTime();
UScriptStruct* Z_Construct_UScriptStruct_FTimespan();
UScriptStruct* Z_Construct_UScriptStruct_FTopLevelAssetPath();
UScriptStruct* Z_Construct_UScriptStruct_FSoftObjectPath();
UScriptStruct* Z_Construct_UScriptStruct_FSoftClassPath();
UScriptStruct* Z_Construct_UScriptStruct_FPrimaryAssetType();
UScriptStruct* Z_Construct_UScriptStruct_FPrimaryAssetId();

#define DEFINE_BASE_STRUCTURE(Type) \
	template <> \
	struct TBaseStructure<Type> \
	{ \
		static UScriptStruct* Get() { return Z_Construct_UScriptStruct_##Type(); } \
	};
DEFINE_BASE_STRUCTURE(FGuid)
DEFINE_BASE_STRUCTURE(FVector)
DEFINE_BASE_STRUCTURE(FVector4)
DEFINE_BASE_STRUCTURE(FVector2D)
DEFINE_BASE_STRUCTURE(FPlane)
DEFINE_BASE_STRUCTURE(FRotator)
DEFINE_BASE_STRUCTURE(FQuat)
DEFINE_BASE_STRUCTURE(FMatrix)
DEFINE_BASE_STRUCTURE(FTransform)
DEFINE_BASE_STRUCTURE(FIntPoint)
DEFINE_BASE_STRUCTURE(FIntVector)
DEFINE_BASE_STRUCTURE(FColor)
DEFINE_BASE_STRUCTURE(FLinearColor)
DEFINE_BASE_STRUCTURE(FBox)
DEFINE_BASE_STRUCTURE(FRandomStream)
DEFINE_BASE_STRUCTURE(FDateTime)
DEFINE_BASE_STRUCTURE(FTimespan)
DEFINE_BASE_STRUCTURE(FTopLevelAssetPath)
DEFINE_BASE_STRUCTURE(FSoftObjectPath)
DEFINE_BASE_STRUCTURE(FSoftClassPath)
DEFINE_BASE_STRUCTURE(FPrimaryAssetType)
DEFINE_BASE_STRUCTURE(FPrimaryAssetId)
#undef DEFINE_BASE_STRUCTURE

// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathConversions.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Random true or false, each half of the time. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBool();

	/** Random true or false. @param Weight Chance of true, from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBoolWithWeight(float Weight);

	/** Random number from 0 to Max - 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer"))
	static int32 RandomInteger(int32 Max);

	/** Random number from 0 to Max - 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer64"))
	static int64 RandomInteger64(int64 Max);

	/** Random number from Min to Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer In Range"))
	static int32 RandomIntegerInRange(int32 Min, int32 Max);

	/** Random number from 0 to 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Float"))
	static double RandomFloat();

	/** Random number from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Float In Range"))
	static double RandomFloatInRange(double Min, double Max);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities|String", meta = (DisplayName = "Select String"))
	static FString SelectString(const FString& A, const FString& B, bool bPickA);

	/** A if bSelectA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Select Object"))
	static UObject* SelectObject(UObject* A, UObject* B, bool bSelectA);

	/** A if bSelectA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Select Class"))
	static UClass* SelectClass(UClass* A, UClass* B, bool bSelectA);

	/** Random direction of length 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Unit Vector"))
	static FVector RandomUnitVector();

	/** Random point in a box */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomPointInBoundingBox(const FVector Center, const FVector HalfSize);

	/** Rotation that looks along a vector, without roll */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Rotator (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Conv_VectorToRotator(FVector InVec);

	/** Colour of X, Y and Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To LinearColor (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_VectorToLinearColor(FVector InVec);

	/** Transform at a place */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Transform (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FTransform Conv_VectorToTransform(FVector InLocation);

	/** X and Y of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector2D (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector2D Conv_VectorToVector2D(FVector InVector);

	/** Converts float to vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_DoubleToVector(double InDouble);

	/** Converts byte to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer (Byte)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_ByteToInt(uint8 InByte);

	/** Converts byte to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Float (Byte)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_ByteToDouble(uint8 InByte);

	/** Converts integer to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Float (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_IntToDouble(int32 InInt);

	/** Converts integer to integer64 */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer64 (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int64 Conv_IntToInt64(int32 InInt);

	/** Converts integer to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Byte (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_IntToByte(int32 InInt);

	/** Converts integer to boolean */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Boolean (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static bool Conv_IntToBool(int32 InInt);

	/** Converts integer64 to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_Int64ToInt(int64 InInt);

	/** Converts integer64 to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Float (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_Int64ToDouble(int64 InInt);

	/** Converts integer64 to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Byte (Integer64)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_Int64ToByte(int64 InInt);

	/** Converts float to integer64 */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer64 (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int64 Conv_DoubleToInt64(double InDouble);

	/** Converts boolean to integer */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int32 Conv_BoolToInt(bool InBool);

	/** Converts boolean to float */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Float (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static double Conv_BoolToDouble(bool InBool);

	/** Converts boolean to byte */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Byte (Boolean)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static uint8 Conv_BoolToByte(bool InBool);

	/** Converts integer to vector */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_IntToVector(int32 InInt);

	/** Converts float to linearcolor */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To LinearColor (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_DoubleToLinearColor(double InDouble);

	/** Vector of X, Y and a given Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (Vector2D)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_Vector2DToVector(FVector2D InVector2D, float Z = 0);

	/** Random rotation; with roll only when asked for */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Rotator", Keywords = "rotate rotation"))
	static FRotator RandomRotator(bool bRoll = false);

	/** Direction that the rotation looks in */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "Get Rotation X Vector", Keywords = "rotation rotate cast convert", BlueprintAutocast))
	static FVector Conv_RotatorToVector(FRotator InRot);

	/** Transform of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Transform (Rotator)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FTransform Conv_RotatorToTransform(const FRotator& InRotator);

	/** Red, green and blue as X, Y and Z */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_LinearColorToVector(FLinearColor InLinearColor);

	/** Colour of 8 bits a part */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Color (LinearColor)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FColor Conv_LinearColorToColor(FLinearColor InLinearColor, bool InUseSRGB = true);

	/** Colour of floating-point parts */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To LinearColor (Color)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FLinearColor Conv_ColorToLinearColor(FColor InColor);

	/** Returns true if A and B are the same object (A == B) */
	UFUNCTION(
		BlueprintPure, Category = "Utilities", meta = (DisplayName = "Equal (Object)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ObjectObject(const UObject* A, const UObject* B);

	/** Returns true if A and B are not the same object (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Not Equal (Object)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ObjectObject(const UObject* A, const UObject* B);

	/** Returns true if A and B are the same class (A == B) */
	UFUNCTION(BlueprintPure, Category = "Utilities", meta = (DisplayName = "Equal (Class)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_ClassClass(UClass* A, UClass* B);

	/** Returns true if A and B are not the same class (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities",
		meta = (DisplayName = "Not Equal (Class)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_ClassClass(UClass* A, UClass* B);

	/** Returns true if a class is another or is derived from it */
	UFUNCTION(BlueprintPure, Category = "Utilities")
	static bool ClassIsChildOf(TSubclassOf<UObject> TestClass, TSubclassOf<UObject> ParentClass);

	/** Returns true if the names are equal (A == B) */
	UFUNCTION(
		BlueprintPure, Category = "Utilities|Name", meta = (DisplayName = "Equal (Name)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_NameName(FName A, FName B);

	/** Returns true if the names are not equal (A != B) */
	UFUNCTION(BlueprintPure, Category = "Utilities|Name",
		meta = (DisplayName = "Not Equal (Name)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_NameName(FName A, FName B);

	/** Angles of a quaternion */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Rotator (Quat)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Quat_Rotator(const FQuat& Q);

	/** Quaternion of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Quaternion (Rotator)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FQuat Conv_RotatorToQuaternion(FRotator InRot);

	/** A source of random numbers that repeats by its seed */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (Keywords = "construct build", NativeMakeFunc))
	static FRandomStream MakeRandomStream(int32 InitialSeed);

	/** Random number of a stream from Min to Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static int32 RandomIntegerInRangeFromStream(const FRandomStream& Stream, int32 Min, int32 Max);

	/** Random number of a stream from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static float RandomFloatInRangeFromStream(const FRandomStream& Stream, float Min, float Max);

	/** Random true or false of a stream */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBoolFromStream(const FRandomStream& Stream);

	/** Random true or false of a stream, true with the given chance. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static bool RandomBoolWithWeightFromStream(const FRandomStream& RandomStream, float Weight);

	/** Random number of a stream from 0 to Max - 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static int32 RandomIntegerFromStream(const FRandomStream& Stream, int32 Max);

	/** Random number of a stream from 0 to 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static float RandomFloatFromStream(const FRandomStream& Stream);

	/** Random direction of a stream. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorFromStream(const FRandomStream& Stream);

	/** Random point of a stream in a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomPointInBoundingBoxFromStream(const FRandomStream& Stream, const FVector Center, const FVector HalfSize);

	/** Random point of a stream in a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Point In Bounding Box From Stream (Box)"))
	static FVector RandomPointInBoundingBoxFromStream_Box(const FRandomStream& Stream, const FBox Box);

	/** Random point in a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Point In Bounding Box (Box)"))
	static FVector RandomPointInBoundingBox_Box(const FBox Box);

	/** Random rotation of a stream. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FRotator RandomRotatorFromStream(const FRandomStream& Stream, bool bRoll);

	/** Begins a stream anew from its first seed. */
	UFUNCTION(BlueprintCallable, Category = "Math|Random")
	static void ResetRandomStream(const FRandomStream& Stream);

	/** Gives a stream a new random seed. */
	UFUNCTION(BlueprintCallable, Category = "Math|Random")
	static void SeedRandomStream(UPARAM(ref) FRandomStream& Stream);

	/** Gives a stream a seed. */
	UFUNCTION(BlueprintCallable, Category = "Math|Random")
	static void SetRandomStreamSeed(UPARAM(ref) FRandomStream& Stream, int32 NewSeed);

	/** The first seed of a stream. */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (NativeBreakFunc))
	static void BreakRandomStream(const FRandomStream& InRandomStream, int32& InitialSeed);

	/** Random number from Min to Max, both included. */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (DisplayName = "Random Integer64 In Range"))
	static int64 RandomInteger64InRange(int64 Min, int64 Max);

	/** Random direction in a cone, uniformly. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInConeInRadians(FVector ConeDir, float ConeHalfAngleInRadians);

	/** Random direction in a cone, uniformly. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInConeInDegrees(FVector ConeDir, float ConeHalfAngleInDegrees);

	/** Random direction in a cone that is wider one way. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInEllipticalConeInRadians(FVector ConeDir, float MaxYawInRadians, float MaxPitchInRadians);

	/** Random direction in a cone that is wider one way. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInEllipticalConeInDegrees(FVector ConeDir, float MaxYawInDegrees, float MaxPitchInDegrees);

	/** Random direction of a stream in a cone. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInConeInRadiansFromStream(
		const FRandomStream& Stream, const FVector& ConeDir, float ConeHalfAngleInRadians);

	/** Random direction of a stream in a cone. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInConeInDegreesFromStream(
		const FRandomStream& Stream, const FVector& ConeDir, float ConeHalfAngleInDegrees);

	/** Random direction of a stream in a cone that is wider one way. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInEllipticalConeInRadiansFromStream(
		const FRandomStream& Stream, const FVector& ConeDir, float MaxYawInRadians, float MaxPitchInRadians);

	/** Random direction of a stream in a cone that is wider one way. */
	UFUNCTION(BlueprintPure, Category = "Math|Random")
	static FVector RandomUnitVectorInEllipticalConeInDegreesFromStream(
		const FRandomStream& Stream, const FVector& ConeDir, float MaxYawInDegrees, float MaxPitchInDegrees);

	/** Smooth noise from -1 to 1 at a place on a line. */
	UFUNCTION(BlueprintPure, Category = "Math|Random", meta = (Keywords = "noise"))
	static float PerlinNoise1D(const float Value);

	/** Rotation that looks along a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Quaternion (Vector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FQuat Conv_VectorToQuaternion(FVector InVec);

	/** The first three parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (Vector4)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_Vector4ToVector(const FVector4& InVector4);

	/** Rotation that looks along a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Rotator (Vector4)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Conv_Vector4ToRotator(const FVector4& InVec);

	/** Rotation that looks along a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Quaternion (Vector4)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FQuat Conv_Vector4ToQuaternion(const FVector4& InVec);

	/** The parts cut to whole numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To IntPoint (Vector2D)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FIntPoint Conv_Vector2DToIntPoint(FVector2D InVector2D);

	/** The parts as numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector2D (IntPoint)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector2D Conv_IntPointToVector2D(FIntPoint InIntPoint);

	/** A vector of two equal parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector2D (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector2D Conv_DoubleToVector2D(double InDouble);

	/** A vector of three equal parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To IntVector (Integer)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FIntVector Conv_IntToIntVector(int32 InInt);

	/** The parts as numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Vector (IntVector)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FVector Conv_IntVectorToVector(const FIntVector& InIntVector);

	/** The same number. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Integer64 (Byte)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static int64 Conv_ByteToInt64(uint8 InByte);

	/** The same number. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Double (Float)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintInternalUseOnly = "true"))
	static double Conv_FloatToDouble(float InFloat);

	/** The nearest number of single precision. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Float (Double)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast,
			BlueprintInternalUseOnly = "true"))
	static float Conv_DoubleToFloat(double InDouble);

	/** The matrix that does the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Matrix (Transform)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FMatrix Conv_TransformToMatrix(const FTransform& Transform);

	/** The transform that does the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Transform (Matrix)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FTransform Conv_MatrixToTransform(const FMatrix& InMatrix);

	/** The rotation of a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions",
		meta = (DisplayName = "To Rotator (Matrix)", CompactNodeTitle = "->", Keywords = "cast convert", BlueprintAutocast))
	static FRotator Conv_MatrixToRotator(const FMatrix& InMatrix);

	/** The parts cut to whole numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Conversions", meta = (DisplayName = "Truncate Vector", BlueprintAutocast))
	static FIntVector FTruncVector(const FVector& InVector);
};

// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathVector2D.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** A vector of two numbers */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector2D MakeVector2D(double X, double Y);

	/** The two numbers of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (NativeBreakFunc))
	static void BreakVector2D(FVector2D InVec, double& X, double& Y);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d + vector2d", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static FVector2D Add_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d - vector2d", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector2D Subtract_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d * vector2d", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static FVector2D Multiply_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d / vector2d", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector2D Divide_Vector2DVector2D(FVector2D A, FVector2D B);

	/** Scales a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d * float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector2D Multiply_Vector2DFloat(FVector2D A, double B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "vector2d / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector2D Divide_Vector2DFloat(FVector2D A, double B = 1.0);

	/** Length of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Vector2d Length", Keywords = "magnitude"))
	static double VSize2D(FVector2D A);

	/** Dot product */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Dot Product (2D)", CompactNodeTitle = "dot"))
	static double DotProduct2D(FVector2D A, FVector2D B);

	/** Vector of length 1 in the same direction */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Normalize 2D", Keywords = "unit vector"))
	static FVector2D Normal2D(FVector2D A);

	/** Distance between two points */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Distance2D (Vector2D)", Keywords = "magnitude"))
	static double Distance2D(FVector2D V1, FVector2D V2);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Equal (Vector2D)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance = 1.e-4f);

	/** (0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "Zero (IntPoint)"))
	static FIntPoint IntPoint_Zero();

	/** (1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "One (IntPoint)"))
	static FIntPoint IntPoint_One();

	/** (0, -1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "Up (IntPoint)"))
	static FIntPoint IntPoint_Up();

	/** (-1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "Left (IntPoint)"))
	static FIntPoint IntPoint_Left();

	/** (1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "Right (IntPoint)"))
	static FIntPoint IntPoint_Right();

	/** (0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint", meta = (DisplayName = "Down (IntPoint)"))
	static FIntPoint IntPoint_Down();

	/** (1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "One (Vector2D)"))
	static FVector2D Vector2D_One();

	/** (0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Zero (Vector2D)"))
	static FVector2D Vector2D_Zero();

	/** The direction halfway between X and Y. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Unit 45 Degrees (Vector2D)"))
	static FVector2D Vector2D_Unit45Deg();

	/** Adds a number to both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Vector2D + Float", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector2D Add_Vector2DFloat(FVector2D A, double B);

	/** Takes a number from both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Vector2D - Float", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector2D Subtract_Vector2DFloat(FVector2D A, double B);

	/** True if the parts are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Equal Exactly (Vector2D)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualExactly_Vector2DVector2D(FVector2D A, FVector2D B);

	/** True if a part differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Not Equal Exactly (Vector2D)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqualExactly_Vector2DVector2D(FVector2D A, FVector2D B);

	/** True if a part differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D",
		meta = (DisplayName = "Not Equal (Vector2D)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_Vector2DVector2D(FVector2D A, FVector2D B, float ErrorTolerance = 1.e-4f);

	/** The vector the other way. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Negate Vector 2D", CompactNodeTitle = "-", Keywords = "inverse"))
	static FVector2D Negated2D(const FVector2D& A);

	/** Sets the parts of a vector. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector2D", meta = (DisplayName = "Set (Vector2D)"))
	static void Set2D(UPARAM(ref) FVector2D& A, double X, double Y);

	/** The vector with each part held between two numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Clamp Axes (Vector2D)"))
	static FVector2D ClampAxes2D(FVector2D A, double MinAxisVal, double MaxAxisVal);

	/** Cross product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Cross Product (Vector2D)", CompactNodeTitle = "cross"))
	static double CrossProduct2D(FVector2D A, FVector2D B);

	/** Square of the distance of two points. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Distance Squared (Vector2D)"))
	static double DistanceSquared2D(FVector2D V1, FVector2D V2);

	/** The parts without signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Get Absolute (Vector2D)"))
	static FVector2D GetAbs2D(FVector2D A);

	/** The larger part without signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Get Absolute Max (Vector2D)"))
	static double GetAbsMax2D(FVector2D A);

	/** The larger part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Max Element (Vector2D)"))
	static double GetMax2D(FVector2D A);

	/** The smaller part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Min Element (Vector2D)"))
	static double GetMin2D(FVector2D A);

	/** The vector turned by an angle. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Get Rotated (Vector2D)"))
	static FVector2D GetRotated2D(FVector2D A, float AngleDeg);

	/** True if both parts are nearly 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Is Nearly Zero (Vector2D)"))
	static bool IsNearlyZero2D(const FVector2D& A, float Tolerance = 1.e-4f);

	/** True if both parts are 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Is Zero (Vector2D)"))
	static bool IsZero2D(const FVector2D& A);

	/** Makes a vector's length 1, or 0 if it is too short. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector2D", meta = (DisplayName = "Normalize In Place (Vector2D)"))
	static void Normalize2D(UPARAM(ref) FVector2D& A, float Tolerance = 1.e-8f);

	/** The vector with a length of 1, or 0 if it is too short. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Normalize Safe (Vector2D)", Keywords = "Unit Vector"))
	static FVector2D NormalSafe2D(FVector2D A, float Tolerance = 1.e-8f);

	/** Direction of two angles. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Spherical2D To Unit Cartesian (Vector2D)"))
	static FVector Spherical2DToUnitCartesian(FVector2D A);

	/** Direction and length of a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "To Direction And Length (Vector2D)"))
	static void ToDirectionAndLength2D(FVector2D A, FVector2D& OutDir, double& OutLength);

	/** The parts rounded. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "To Rounded (Vector2D)"))
	static FVector2D ToRounded2D(FVector2D A);

	/** 1 or -1 for each part by its sign. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "To Sign (+1/-1) 2D"))
	static FVector2D ToSign2D(FVector2D A);

	/** Square of the length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector2D", meta = (DisplayName = "Vector2d Length Squared", Keywords = "magnitude"))
	static double VSize2DSquared(FVector2D A);

	/** (0, 0, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Zero (Vector4)"))
	static FVector4 Vector4_Zero();

	/** A vector of its parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector4 MakeVector4(double X, double Y, double Z, double W);

	/** The parts of a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (NativeBreakFunc))
	static void BreakVector4(const FVector4& InVec, double& X, double& Y, double& Z, double& W);

	/** The vector the other way. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Negate Vector4", CompactNodeTitle = "-"))
	static FVector4 Vector4_Negated(const FVector4& A);

	/** Copies a vector. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector4", meta = (DisplayName = "Assign (Vector4)"))
	static void Vector4_Assign(UPARAM(ref) FVector4& A, const FVector4& InVector);

	/** Sets the parts of a vector. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector4", meta = (DisplayName = "Set (Vector4)"))
	static void Vector4_Set(UPARAM(ref) FVector4& A, double X, double Y, double Z, double W);

	/** Cross product of the first three parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Cross Product XYZ (Vector4)", CompactNodeTitle = "cross3"))
	static FVector4 Vector4_CrossProduct3(const FVector4& A, const FVector4& B);

	/** Dot product. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Dot Product (Vector4)", CompactNodeTitle = "dot"))
	static double Vector4_DotProduct(const FVector4& A, const FVector4& B);

	/** Dot product of the first three parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Dot Product XYZ (Vector4)", CompactNodeTitle = "dot3"))
	static double Vector4_DotProduct3(const FVector4& A, const FVector4& B);

	/** True if a part is not a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Is NAN (Vector4)"))
	static bool Vector4_IsNAN(const FVector4& A);

	/** True if the first three parts are nearly 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Is Nearly Zero XYZ (Vector4)"))
	static bool Vector4_IsNearlyZero3(const FVector4& A, float Tolerance = 1.e-4f);

	/** True if all parts are 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Is Zero (Vector4)"))
	static bool Vector4_IsZero(const FVector4& A);

	/** Length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Length (Vector4)", Keywords = "magnitude"))
	static double Vector4_Size(const FVector4& A);

	/** Square of the length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Length Squared (Vector4)", Keywords = "magnitude"))
	static double Vector4_SizeSquared(const FVector4& A);

	/** Length of the first three parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Length XYZ (Vector4)", Keywords = "magnitude"))
	static double Vector4_Size3(const FVector4& A);

	/** Square of the length of the first three parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Length Squared XYZ (Vector4)", Keywords = "magnitude"))
	static double Vector4_SizeSquared3(const FVector4& A);

	/** True if the first three parts have a length of 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Is Normal XYZ (Vector4)", Keywords = "Unit Vector"))
	static bool Vector4_IsNormal3(const FVector4& A);

	/** The first three parts with a length of 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Normalize XYZ (Vector4)", Keywords = "Unit Vector"))
	static FVector4 Vector4_Normal3(const FVector4& A, float Tolerance = 1.e-8f);

	/** The first three parts with a length of 1; they must not be zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Normalize Unsafe XYZ (Vector4)", Keywords = "Unit Vector"))
	static FVector4 Vector4_NormalUnsafe3(const FVector4& A);

	/** Makes the length of the first three parts 1. */
	UFUNCTION(
		BlueprintCallable, Category = "Math|Vector4", meta = (DisplayName = "Normalize In Place XYZ (Vector4)", Keywords = "Unit Vector"))
	static void Vector4_Normalize3(UPARAM(ref) FVector4& A, float Tolerance = 1.e-8f);

	/** A direction that bounced from a surface. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Mirror By Vector (Vector4)", Keywords = "reflection"))
	static FVector4 Vector4_MirrorByVector3(const FVector4& Direction, const FVector4& SurfaceNormal);

	/** A vector through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Transform Vector4 by Matrix"))
	static FVector4 TransformVector4(const FMatrix& Matrix, const FVector4& Vec4);

	/** Addition (A + B) of both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint + IntPoint", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FIntPoint Add_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Addition (A + B) with a number, for both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint + Integer", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FIntPoint Add_IntPointInt(FIntPoint A, int32 B);

	/** Subtraction (A - B) of both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint - IntPoint", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FIntPoint Subtract_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Subtraction (A - B) with a number, for both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint - Integer", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FIntPoint Subtract_IntPointInt(FIntPoint A, int32 B);

	/** Multiplication (A * B) of both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint * IntPoint", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FIntPoint Multiply_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Multiplication (A * B) with a number, for both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint * Integer", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FIntPoint Multiply_IntPointInt(FIntPoint A, int32 B);

	/** Division (A / B) of both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint / IntPoint", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FIntPoint Divide_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Division (A / B) with a number, for both parts. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "IntPoint / Integer", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FIntPoint Divide_IntPointInt(FIntPoint A, int32 B);

	/** True if the parts are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "Equal (IntPoint)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool Equal_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** True if a part differs. */
	UFUNCTION(BlueprintPure, Category = "Math|IntPoint",
		meta = (DisplayName = "Not Equal (IntPoint)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_IntPointIntPoint(FIntPoint A, FIntPoint B);

	/** Addition (A + B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Vector4 + Vector4", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector4 Add_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** Subtraction (A - B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Vector4 - Vector4", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector4 Subtract_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** Multiplication (A * B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Vector4 * Vector4", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector4 Multiply_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** Division (A / B) of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Vector4 / Vector4", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector4 Divide_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** True if the parts are the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Equal Exactly (Vector4)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualExactly_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** True if the parts are nearly the same. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector4", meta = (DisplayName = "Equal (Vector4)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_Vector4Vector4(const FVector4& A, const FVector4& B, float ErrorTolerance = 1.e-4f);

	/** True if a part differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Not Equal Exactly (Vector4)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqualExactly_Vector4Vector4(const FVector4& A, const FVector4& B);

	/** True if a part differs by more than the tolerance. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector4",
		meta = (DisplayName = "Not Equal (Vector4)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_Vector4Vector4(const FVector4& A, const FVector4& B, float ErrorTolerance = 1.e-4f);
};

// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathVector.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Select Vector"))
	static FVector SelectVector(FVector A, FVector B, bool bPickA);

	/** A vector of three numbers */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector MakeVector(double X, double Y, double Z);

	/** The three numbers of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (NativeBreakFunc))
	static void BreakVector(FVector InVec, double& X, double& Y, double& Z);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector + vector", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static FVector Add_VectorVector(FVector A, FVector B);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector - vector", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorVector(FVector A, FVector B);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector * vector", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static FVector Multiply_VectorVector(FVector A, FVector B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector / vector", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorVector(FVector A, FVector B);

	/** Adds a number to each component */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector + float", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector Add_VectorFloat(FVector A, double B);

	/** Subtracts a number from each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector - float", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorFloat(FVector A, double B);

	/** Scales a vector by a number */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector * float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector Multiply_VectorFloat(FVector A, double B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorFloat(FVector A, double B = 1.0);

	/** Adds a number to each component */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector + integer", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FVector Add_VectorInt(FVector A, int32 B);

	/** Subtracts a number from each component */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector - integer", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FVector Subtract_VectorInt(FVector A, int32 B);

	/** Scales a vector by a number */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "vector * integer", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FVector Multiply_VectorInt(FVector A, int32 B);

	/** Divides a vector by a number */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "vector / integer", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static FVector Divide_VectorInt(FVector A, int32 B = 1);

	/** The vector that points the other way */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Negate Vector", CompactNodeTitle = "-"))
	static FVector NegateVector(FVector A);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(
		BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Equal (Vector)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is not equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "Not Equal (Vector)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_VectorVector(FVector A, FVector B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is exactly equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "Equal Exactly (Vector)", CompactNodeTitle = "===", Keywords = "== equal"))
	static bool EqualExactly_VectorVector(FVector A, FVector B);

	/** Returns true if A is not exactly equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Vector",
		meta = (DisplayName = "Not Equal Exactly (Vector)", CompactNodeTitle = "!==", Keywords = "!= not equal"))
	static bool NotEqualExactly_VectorVector(FVector A, FVector B);

	/** Dot product, |A| * |B| * cos(angle) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Dot Product", CompactNodeTitle = "dot"))
	static double Dot_VectorVector(FVector A, FVector B);

	/** Cross product, which stands on both vectors */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Cross Product", CompactNodeTitle = "cross"))
	static FVector Cross_VectorVector(FVector A, FVector B);

	/** Vector turned by a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Rotate Vector", Keywords = "rotate rotation >>"))
	static FVector GreaterGreater_VectorRotator(FVector A, FRotator B);

	/** Vector turned back by a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Unrotate Vector", Keywords = "unrotate rotation <<"))
	static FVector LessLess_VectorRotator(FVector A, FRotator B);

	/** Vector turned around an axis by an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Rotate Vector Around Axis"))
	static FVector RotateAngleAxis(FVector InVect, float AngleDeg, FVector Axis);

	/** Length of a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length", Keywords = "magnitude"))
	static double VSize(FVector A);

	/** Length of a vector, squared */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length Squared", Keywords = "magnitude"))
	static double VSizeSquared(FVector A);

	/** Length of a vector without its Z */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length XY", Keywords = "magnitude"))
	static double VSizeXY(FVector A);

	/** Vector of length 1 in the same direction, or zero for one that is shorter than the tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Normalize", Keywords = "unit vector"))
	static FVector Normal(FVector A, float Tolerance = 1.e-4f);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Lerp (Vector)"))
	static FVector VLerp(FVector A, FVector B, float Alpha);

	/** Distance between two points */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance (Vector)", Keywords = "magnitude"))
	static double Vector_Distance(FVector V1, FVector V2);

	/** Distance between two points, squared */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance Squared (Vector)", Keywords = "magnitude"))
	static double Vector_DistanceSquared(FVector V1, FVector V2);

	/** Distance between two points without their Z */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance 2D (Vector)"))
	static double Vector_Distance2D(FVector V1, FVector V2);

	/** (0, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Zero Vector"))
	static FVector Vector_Zero();

	/** (1, 1, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "One Vector"))
	static FVector Vector_One();

	/** (1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Forward Vector"))
	static FVector Vector_Forward();

	/** (-1, 0, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Backward Vector"))
	static FVector Vector_Backward();

	/** (0, 0, 1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Up Vector"))
	static FVector Vector_Up();

	/** (0, 0, -1) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Down Vector"))
	static FVector Vector_Down();

	/** (0, 1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Right Vector"))
	static FVector Vector_Right();

	/** (0, -1, 0) */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Left Vector"))
	static FVector Vector_Left();

	/** True if all components are exactly 0 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Zero (Vector)"))
	static bool Vector_IsZero(const FVector& A);

	/** True if all components are within the tolerance of 0 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Nearly Zero (Vector)"))
	static bool Vector_IsNearlyZero(const FVector& A, float Tolerance = 1.e-4f);

	/** True if the length is 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Normal (Vector)"))
	static bool Vector_IsNormal(const FVector& A);

	/** Vector of the components without their signs */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Absolute (Vector)"))
	static FVector Vector_GetAbs(const FVector& A);

	/** Largest of the components */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Max Element (Vector)"))
	static double GetMaxElement(FVector A);

	/** Smallest of the components */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Min Element (Vector)"))
	static double GetMinElement(FVector A);

	/** Vector with its length held between two lengths */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector ClampVectorSize(FVector A, double Min, double Max);

	/** Part of a vector along another */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "project onto"))
	static FVector ProjectVectorOnToVector(FVector V, FVector Target);

	/** Part of a vector in a plane */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "project onto"))
	static FVector ProjectVectorOnToPlane(FVector V, FVector PlaneNormal);

	/** Vector mirrored by a plane */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "reflection"))
	static FVector MirrorVectorByNormal(FVector InVect, FVector InNormal);

	/** Direction after a bounce off a surface */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "reflection"))
	static FVector GetReflectionVector(FVector Direction, FVector SurfaceNormal);

	/** Direction from one point to another, of length 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Unit Direction (Vector)", Keywords = "unit vector"))
	static FVector GetDirectionUnitVector(FVector From, FVector To);

	/** Sets the parts of a vector. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (DisplayName = "Set (Vector)"))
	static void Vector_Set(UPARAM(ref) FVector& A, double X, double Y, double Z);

	/** Copies a vector. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (DisplayName = "Assign (Vector)"))
	static void Vector_Assign(UPARAM(ref) FVector& A, const FVector& InVector);

	/** Adds a vector and keeps the sum in a cube. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (DisplayName = "Add Bounded (Vector)"))
	static void Vector_AddBounded(UPARAM(ref) FVector& A, FVector InAddVect, double InRadius);

	/** Makes a vector's length 1, or 0 if it is too short. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (DisplayName = "Normalize In Place (Vector)"))
	static void Vector_Normalize(UPARAM(ref) FVector& A, float Tolerance = 1.e-8f);

	/** Brings the angles of a vector between -180 and 180. */
	UFUNCTION(BlueprintCallable, Category = "Math|Vector", meta = (DisplayName = "Unwind Euler In Place (Vector)"))
	static void Vector_UnwindEuler(UPARAM(ref) FVector& A);

	/** The vector held in a cube around the origin. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Bounded To Cube (Vector)"))
	static FVector Vector_BoundedToCube(FVector InVect, double InRadius);

	/** The vector held in a box. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Bounded To Box (Vector)"))
	static FVector Vector_BoundedToBox(FVector InVect, FVector InBoxMin, FVector InBoxMax);

	/** The vector with its length in X and Y held between two numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Clamp Vector Size 2D (Vector)"))
	static FVector Vector_ClampSize2D(FVector A, double Min, double Max);

	/** The vector with a length of Max at the most. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Clamp Vector Max Size (Vector)"))
	static FVector Vector_ClampSizeMax(FVector A, double Max);

	/** The vector with a length in X and Y of Max at the most. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Clamp Vector Max Size 2D (Vector)"))
	static FVector Vector_ClampSizeMax2D(FVector A, double Max);

	/** The larger of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Component Max (Vector)"))
	static FVector Vector_ComponentMax(FVector A, FVector B);

	/** The smaller of each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Component Min (Vector)"))
	static FVector Vector_ComponentMin(FVector A, FVector B);

	/** Cosine of the angle between two vectors, without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Cosine Angle 2D (Vector)"))
	static double Vector_CosineAngle2D(FVector A, FVector B);

	/** Square of the distance without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Distance 2D Squared (Vector)", Keywords = "magnitude"))
	static double Vector_Distance2DSquared(FVector V1, FVector V2);

	/** Angle in radians that a vector's X and Y turn to. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Heading Angle (Vector)"))
	static double Vector_HeadingAngle(FVector A);

	/** The largest part without signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Absolute Max Element (Vector)"))
	static double Vector_GetAbsMax(FVector A);

	/** The smallest part without signs. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Absolute Min Element (Vector)"))
	static double Vector_GetAbsMin(FVector A);

	/** 1 or -1 for each part by its sign. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Sign (Vector)"))
	static FVector Vector_GetSignVector(FVector A);

	/** The vector divided by its Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Get Projection (Vector)"))
	static FVector Vector_GetProjection(FVector A);

	/** True if a part is not a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is NAN (Vector)"))
	static bool Vector_IsNAN(const FVector& A);

	/** True if the parts are nearly equal. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Is Uniform (Vector)"))
	static bool Vector_IsUniform(FVector A, float Tolerance = 1.e-4f);

	/** The vector on the other side of a plane. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Mirror By Plane (Vector)"))
	static FVector Vector_MirrorByPlane(FVector A, const FPlane& InPlane);

	/** The vector with a length of 1; it must not be zero. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Normal Unsafe (Vector)"))
	static FVector Vector_NormalUnsafe(const FVector& A);

	/** The vector with a length of 1 in X and Y and no Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Normalize 2D (Vector)", Keywords = "Unit Vector"))
	static FVector Vector_Normal2D(FVector A, float Tolerance = 1.e-8f);

	/** The part of a vector along a direction of length 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Project Vector on to Normal"))
	static FVector Vector_ProjectOnToNormal(FVector V, FVector InNormal);

	/** 1 divided by each part. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Reciprocal (Vector)"))
	static FVector Vector_Reciprocal(const FVector& A);

	/** Turns a vector towards a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Slerp Vector to Direction"))
	static FVector Vector_SlerpVectorToDirection(FVector Vector, FVector Direction, double Alpha);

	/** A direction between two, on the arc. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Slerp Normals"))
	static FVector Vector_SlerpNormals(FVector NormalA, FVector NormalB, double Alpha);

	/** The nearest point of a grid. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Snapped To Grid (Vector)"))
	static FVector Vector_SnappedToGrid(FVector InVect, float InGridSize);

	/** Each part turned from radians to degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Radians To Degrees (Vector)"))
	static FVector Vector_ToDegrees(FVector A);

	/** Each part turned from degrees to radians. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Degrees To Radians (Vector)"))
	static FVector Vector_ToRadians(FVector A);

	/** The two angles of a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Unit Cartesian To Spherical (Vector)"))
	static FVector2D Vector_UnitCartesianToSpherical(FVector A);

	/** Square of the length without Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Vector Length XY Squared", Keywords = "magnitude"))
	static double VSizeXYSquared(FVector A);

	/** The average of vectors. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector GetVectorArrayAverage(const TArray<FVector>& Vectors);

	/** A vector of two angles and a length. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "rotation rotate"))
	static FVector CreateVectorFromYawPitch(float Yaw, float Pitch, float Length = 1.0f);

	/** The two angles of a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (Keywords = "rotation rotate"))
	static void GetYawPitchFromVector(FVector InVec, float& Yaw, float& Pitch);

	/** The two angles of a direction as seen from a frame. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static void GetAzimuthAndElevation(FVector InDirection, const FTransform& ReferenceFrame, double& Azimuth, double& Elevation);

	/** Smooths a series of vectors. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Weighted Moving Average Vector"))
	static FVector WeightedMovingAverage_FVector(FVector CurrentSample, FVector PreviousSample, float Weight);

	/** Smooths a series of vectors, less the further they jump. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector", meta = (DisplayName = "Dynamic Weighted Moving Average Vector"))
	static FVector DynamicWeightedMovingAverage_FVector(
		FVector CurrentSample, FVector PreviousSample, float MaxDistance, float MinWeight, float MaxWeight);

	/** How steep a floor is along and across a direction. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static void GetSlopeDegreeAngles(const FVector& MyRightYAxis, const FVector& FloorNormal, const FVector& UpVector,
		double& OutSlopePitchDegreeAngle, double& OutSlopeRollDegreeAngle);

	/** True if a box along the axes holds a point. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static bool IsPointInBox(FVector Point, FVector BoxOrigin, FVector BoxExtent);

	/** True if a turned box holds a point. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static bool IsPointInBoxWithTransform(FVector Point, const FTransform& BoxWorldTransform, FVector BoxExtent);

	/** The point of a segment that is nearest. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector FindClosestPointOnSegment(FVector Point, FVector SegmentStart, FVector SegmentEnd);

	/** The point of an endless line that is nearest. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector FindClosestPointOnLine(FVector Point, FVector LineOrigin, FVector LineDirection);

	/** Distance from a point to a segment. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static double GetPointDistanceToSegment(FVector Point, FVector SegmentStart, FVector SegmentEnd);

	/** Distance from a point to an endless line. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static double GetPointDistanceToLine(FVector Point, FVector LineOrigin, FVector LineDirection);

	/** Where two segments come nearest. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static void FindNearestPointsOnLineSegments(FVector Segment1Start, FVector Segment1End, FVector Segment2Start, FVector Segment2End,
		FVector& Segment1Point, FVector& Segment2Point);

	/** The point of a plane that is nearest. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector")
	static FVector ProjectPointOnToPlane(FVector Point, FVector PlaneBase, FVector PlaneNormal);

	/** A vector of its parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector3f", meta = (Keywords = "construct build", NativeMakeFunc))
	static FVector3f MakeVector3f(float X, float Y, float Z);

	/** The parts of a vector. */
	UFUNCTION(BlueprintPure, Category = "Math|Vector3f", meta = (NativeBreakFunc))
	static void BreakVector3f(FVector3f InVec, float& X, float& Y, float& Z);
};

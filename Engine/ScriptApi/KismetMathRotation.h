// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathRotation.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Angle between 0 and 360 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator")
	static double ClampAxis(double Angle);

	/** Angle above -180 and up to 180 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator")
	static double NormalizeAxis(double Angle);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Select Rotator"))
	static FRotator SelectRotator(FRotator A, FRotator B, bool bPickA);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Select Transform"))
	static FTransform SelectTransform(const FTransform& A, const FTransform& B, bool bPickA);

	/** A rotation of three angles in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator", NativeMakeFunc))
	static FRotator MakeRotator(UPARAM(DisplayName = "X (Roll)") float Roll, UPARAM(DisplayName = "Y (Pitch)") float Pitch,
		UPARAM(DisplayName = "Z (Yaw)") float Yaw);

	/** The three angles of a rotation, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate rotator breakrotator", NativeBreakFunc))
	static void BreakRotator(UPARAM(DisplayName = "Rotation") FRotator InRot, UPARAM(DisplayName = "X (Roll)") float& Roll,
		UPARAM(DisplayName = "Y (Pitch)") float& Pitch, UPARAM(DisplayName = "Z (Yaw)") float& Yaw);

	/** Rotation whose X axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromX(const FVector& X);

	/** Rotation whose X axis points along a vector, and whose Y axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromXY(const FVector& X, const FVector& Y);

	/** Rotation whose X axis points along a vector, and whose Z axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromXZ(const FVector& X, const FVector& Z);

	/** Rotation whose Y axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromY(const FVector& Y);

	/** Rotation whose Y axis points along a vector, and whose X axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromYX(const FVector& Y, const FVector& X);

	/** Rotation whose Y axis points along a vector, and whose Z axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromYZ(const FVector& Y, const FVector& Z);

	/** Rotation whose Z axis points along a vector */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZ(const FVector& Z);

	/** Rotation whose Z axis points along a vector, and whose X axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZX(const FVector& Z, const FVector& X);

	/** Rotation whose Z axis points along a vector, and whose Y axis is as near to another as it can be */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotation rotate rotator"))
	static FRotator MakeRotFromZY(const FVector& Z, const FVector& Y);

	/** Rotation that looks from one point at another */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FRotator FindLookAtRotation(const FVector& Start, const FVector& Target);

	/** Returns true if A is equal to B within a tolerance */
	UFUNCTION(
		BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Equal (Rotator)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Returns true if A is not equal to B within a tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator",
		meta = (DisplayName = "Not Equal (Rotator)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_RotatorRotator(FRotator A, FRotator B, float ErrorTolerance = 1.e-4f);

	/** Each angle times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator",
		meta = (DisplayName = "Scale Rotator", CompactNodeTitle = "*", Keywords = "* multiply rotate rotation"))
	static FRotator Multiply_RotatorFloat(FRotator A, float B);

	/** Each angle times a number */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator",
		meta = (DisplayName = "Scale Rotator (Integer)", CompactNodeTitle = "*", Keywords = "* multiply rotate rotation"))
	static FRotator Multiply_RotatorInt(FRotator A, int32 B);

	/** Rotation A, then rotation B */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Combine Rotators", Keywords = "rotate rotation add"))
	static FRotator ComposeRotators(FRotator A, FRotator B);

	/** The rotation back */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Invert Rotator", Keywords = "rotate rotation"))
	static FRotator NegateRotator(FRotator A);

	/** Direction that the rotation looks in */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetForwardVector(FRotator InRot);

	/** Direction to the right of the rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetRightVector(FRotator InRot);

	/** Direction above the rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FVector GetUpVector(FRotator InRot);

	/** The three axes of a rotation */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Get Rotation Axes", Keywords = "rotate rotation"))
	static void GetAxes(FRotator A, FVector& X, FVector& Y, FVector& Z);

	/** A at Alpha 0 and B at Alpha 1 */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Lerp (Rotator)"))
	static FRotator RLerp(FRotator A, FRotator B, float Alpha, bool bShortestPath);

	/** Difference of two rotations, each angle above -180 and up to 180 degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Delta (Rotator)", Keywords = "rotate rotation"))
	static FRotator NormalizedDeltaRotator(FRotator A, FRotator B);

	/** Rotation around an axis by an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator",
		meta = (DisplayName = "Rotator from Axis and Angle", Keywords = "make construct build rotate rotation"))
	static FRotator RotatorFromAxisAndAngle(FVector Axis, float Angle);

	/** A transform of its parts */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (Keywords = "construct build", NativeMakeFunc))
	static FTransform MakeTransform(FVector Location, FRotator Rotation, FVector Scale = FVector(1.0, 1.0, 1.0));

	/** The parts of a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (NativeBreakFunc))
	static void BreakTransform(const FTransform& InTransform, FVector& Location, FRotator& Rotation, FVector& Scale);

	/** Transform A, then transform B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform",
		meta = (DisplayName = "Compose Transforms", CompactNodeTitle = "*", Keywords = "multiply *"))
	static FTransform ComposeTransforms(const FTransform& A, const FTransform& B);

	/** The transform back */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Invert Transform", Keywords = "inverse"))
	static FTransform InvertTransform(const FTransform& T);

	/** Point moved by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Location", Keywords = "location"))
	static FVector TransformLocation(const FTransform& T, FVector Location);

	/** Direction turned by a transform, without scale */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Direction"))
	static FVector TransformDirection(const FTransform& T, FVector Direction);

	/** Rotation turned by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Transform Rotation"))
	static FRotator TransformRotation(const FTransform& T, FRotator Rotation);

	/** Point moved back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Location"))
	static FVector InverseTransformLocation(const FTransform& T, FVector Location);

	/** Direction turned back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Direction"))
	static FVector InverseTransformDirection(const FTransform& T, FVector Direction);

	/** Rotation turned back by a transform */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Inverse Transform Rotation"))
	static FRotator InverseTransformRotation(const FTransform& T, FRotator Rotation);

	/** Transform A as it is seen from another */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (Keywords = "convert torelative"))
	static FTransform MakeRelativeTransform(const FTransform& A, const FTransform& RelativeTo);

	/** Returns true if A is equal to B */
	UFUNCTION(BlueprintPure, Category = "Math|Transform",
		meta = (DisplayName = "Equal (Transform)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_TransformTransform(const FTransform& A, const FTransform& B);

	/** Rotation B, then rotation A */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Quat * Quat", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FQuat Multiply_QuatQuat(const FQuat& A, const FQuat& B);

	/** The rotation back */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Inversed (Quat)"))
	static FQuat Quat_Inversed(const FQuat& Q);

	/** Vector turned by a quaternion */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Rotate Vector (Quat)"))
	static FVector Quat_RotateVector(const FQuat& Q, const FVector& V);

	/** The three directions of a rotation. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Break Rotator Into Axes", Keywords = "rotate rotation break"))
	static void BreakRotIntoAxes(const FRotator& InRot, FVector& X, FVector& Y, FVector& Z);

	/** Rotation of three directions. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "construct build rotate rotation"))
	static FRotator MakeRotationFromAxes(FVector Forward, FVector Right, FVector Up);

	/** Rotation in a transform's space that looks at a point. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (Keywords = "rotation rotate"))
	static FRotator FindRelativeLookAtRotation(const FTransform& StartTransform, const FVector& TargetLocation);

	/** Smooths a series of rotations. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Weighted Moving Average Rotator"))
	static FRotator WeightedMovingAverage_FRotator(FRotator CurrentSample, FRotator PreviousSample, float Weight);

	/** Smooths a series of rotations, less the further they jump. */
	UFUNCTION(BlueprintPure, Category = "Math|Rotator", meta = (DisplayName = "Dynamic Weighted Moving Average Rotator"))
	static FRotator DynamicWeightedMovingAverage_FRotator(
		FRotator CurrentSample, FRotator PreviousSample, float MaxDistance, float MinWeight, float MaxWeight);

	/** The matrix that changes nothing. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Identity (Matrix)"))
	static FMatrix Matrix_Identity();

	/** The translation of a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Origin (Matrix)"))
	static FVector Matrix_GetOrigin(const FMatrix& InMatrix);

	/** The first matrix, then the second. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Matrix * Matrix", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FMatrix Multiply_MatrixMatrix(const FMatrix& A, const FMatrix& B);

	/** Sum of two matrices. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Matrix + Matrix", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FMatrix Add_MatrixMatrix(const FMatrix& A, const FMatrix& B);

	/** Each part times a number. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Matrix * Float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static FMatrix Multiply_MatrixFloat(const FMatrix& A, double B);

	/** True if all parts are nearly equal. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Equal (Matrix)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_MatrixMatrix(const FMatrix& A, const FMatrix& B, float Tolerance = 1.e-4f);

	/** True if a part differs. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix",
		meta = (DisplayName = "Not Equal (Matrix)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_MatrixMatrix(const FMatrix& A, const FMatrix& B, float Tolerance = 1.e-4f);

	/** A vector through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Transform Vector4 (Matrix)"))
	static FVector4 Matrix_TransformVector4(const FMatrix& M, FVector4 V);

	/** A point through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Transform Position (Matrix)"))
	static FVector4 Matrix_TransformPosition(const FMatrix& M, FVector V);

	/** A point back through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Inverse Transform Position (Matrix)"))
	static FVector Matrix_InverseTransformPosition(const FMatrix& M, FVector V);

	/** A direction through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Transform Vector (Matrix)"))
	static FVector4 Matrix_TransformVector(const FMatrix& M, FVector V);

	/** A direction back through a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Inverse Transform Vector (Matrix)"))
	static FVector Matrix_InverseTransformVector(const FMatrix& M, FVector V);

	/** The matrix with rows and columns swapped. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Transposed (Matrix)"))
	static FMatrix Matrix_GetTransposed(const FMatrix& M);

	/** Determinant. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Determinant (Matrix)"))
	static float Matrix_GetDeterminant(const FMatrix& M);

	/** Determinant of the part that rotates and scales. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Rotation Determinant (Matrix)"))
	static float Matrix_GetRotDeterminant(const FMatrix& M);

	/** The matrix back. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Inverse (Matrix)"))
	static FMatrix Matrix_GetInverse(const FMatrix& M);

	/** The transposed adjoint. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Transpose Adjoint (Matrix)"))
	static FMatrix Matrix_GetTransposeAdjoint(const FMatrix& M);

	/** Takes the scale out of a matrix. */
	UFUNCTION(BlueprintCallable, Category = "Math|Matrix", meta = (DisplayName = "Remove Scaling (Matrix)"))
	static void Matrix_RemoveScaling(UPARAM(ref) FMatrix& M, float Tolerance = 1.e-8f);

	/** The matrix without its scale. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Matrix Without Scale (Matrix)"))
	static FMatrix Matrix_GetMatrixWithoutScale(const FMatrix& M, float Tolerance = 1.e-8f);

	/** The scale of a matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Scale Vector (Matrix)"))
	static FVector Matrix_GetScaleVector(const FMatrix& M, float Tolerance = 1.e-8f);

	/** The matrix without its translation. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Remove Translation (Matrix)"))
	static FMatrix Matrix_RemoveTranslation(const FMatrix& M);

	/** The matrix, then a translation. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Concatenate Translation (Matrix)"))
	static FMatrix Matrix_ConcatenateTranslation(const FMatrix& M, FVector Translation);

	/** True if a part is not a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Contains NaN (Matrix)"))
	static bool Matrix_ContainsNaN(const FMatrix& M);

	/** The matrix with its translation scaled. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Scale Translation (Matrix)"))
	static FMatrix Matrix_ScaleTranslation(const FMatrix& M, FVector Scale3D);

	/** The largest scale. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Maximum Axis Scale (Matrix)"))
	static float Matrix_GetMaximumAxisScale(const FMatrix& M);

	/** The matrix scaled. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Apply Scale (Matrix)"))
	static FMatrix Matrix_ApplyScale(const FMatrix& M, float Scale);

	/** An axis with its scale. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Scaled Axis (Matrix)"))
	static FVector Matrix_GetScaledAxis(const FMatrix& M, TEnumAsByte<EAxis::Type> Axis);

	/** The axes with their scale. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Scaled Axes (Matrix)"))
	static void Matrix_GetScaledAxes(const FMatrix& M, FVector& X, FVector& Y, FVector& Z);

	/** An axis with a length of 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Unit Axis (Matrix)"))
	static FVector Matrix_GetUnitAxis(const FMatrix& M, TEnumAsByte<EAxis::Type> Axis);

	/** The axes with a length of 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Unit Axes (Matrix)"))
	static void Matrix_GetUnitAxes(const FMatrix& M, FVector& X, FVector& Y, FVector& Z);

	/** Sets an axis. */
	UFUNCTION(BlueprintCallable, Category = "Math|Matrix", meta = (DisplayName = "Set Axis (Matrix)"))
	static void Matrix_SetAxis(UPARAM(ref) FMatrix& M, TEnumAsByte<EAxis::Type> Axis, FVector AxisVector);

	/** Sets the translation. */
	UFUNCTION(BlueprintCallable, Category = "Math|Matrix", meta = (DisplayName = "Set Origin (Matrix)"))
	static void Matrix_SetOrigin(UPARAM(ref) FMatrix& M, FVector NewOrigin);

	/** A column. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Column (Matrix)"))
	static FVector Matrix_GetColumn(const FMatrix& M, TEnumAsByte<EMatrixColumns::Type> Column);

	/** Sets a column. */
	UFUNCTION(BlueprintCallable, Category = "Math|Matrix", meta = (DisplayName = "Set Column (Matrix)"))
	static void Matrix_SetColumn(UPARAM(ref) FMatrix& M, TEnumAsByte<EMatrixColumns::Type> Column, FVector Value);

	/** The rotation. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Rotator (Matrix)"))
	static FRotator Matrix_GetRotator(const FMatrix& M);

	/** The rotation as a quaternion. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "To Quat (Matrix)"))
	static FQuat Matrix_ToQuat(const FMatrix& M);

	/** The nearest plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Near Plane (Matrix)"))
	static bool Matrix_GetFrustumNearPlane(const FMatrix& M, FPlane& OutPlane);

	/** The farthest plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Far Plane (Matrix)"))
	static bool Matrix_GetFrustumFarPlane(const FMatrix& M, FPlane& OutPlane);

	/** The left plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Left Plane (Matrix)"))
	static bool Matrix_GetFrustumLeftPlane(const FMatrix& M, FPlane& OutPlane);

	/** The right plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Right Plane (Matrix)"))
	static bool Matrix_GetFrustumRightPlane(const FMatrix& M, FPlane& OutPlane);

	/** The top plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Top Plane (Matrix)"))
	static bool Matrix_GetFrustumTopPlane(const FMatrix& M, FPlane& OutPlane);

	/** The bottom plane of a view. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Get Frustum Bottom Plane (Matrix)"))
	static bool Matrix_GetFrustumBottomPlane(const FMatrix& M, FPlane& OutPlane);

	/** The matrix mirrored. */
	UFUNCTION(BlueprintPure, Category = "Math|Matrix", meta = (DisplayName = "Mirror (Matrix)"))
	static FMatrix Matrix_Mirror(const FMatrix& M, TEnumAsByte<EAxis::Type> MirrorAxis, TEnumAsByte<EAxis::Type> FlipAxis);

	/** The rotation that turns nothing. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Identity (Quat)"))
	static FQuat Quat_Identity();

	/** True if the rotations are nearly the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Equal (Quat)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_QuatQuat(const FQuat& A, const FQuat& B, float Tolerance = 1.e-4f);

	/** True if the rotations differ. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat",
		meta = (DisplayName = "Not Equal (Quat)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_QuatQuat(const FQuat& A, const FQuat& B, float ErrorTolerance = 1.e-4f);

	/** Sum of the parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Quat + Quat", CompactNodeTitle = "+", Keywords = "+ add plus"))
	static FQuat Add_QuatQuat(const FQuat& A, const FQuat& B);

	/** Difference of the parts. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Quat - Quat", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static FQuat Subtract_QuatQuat(const FQuat& A, const FQuat& B);

	/** A quaternion of its parts. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (Keywords = "construct build", NativeMakeFunc, BlueprintThreadSafe))
	static FQuat MakeQuat(float X, float Y, float Z, float W);

	/** The parts of a quaternion. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (NativeBreakFunc, BlueprintThreadSafe))
	static void BreakQuat(const FQuat& InQuat, float& X, float& Y, float& Z, float& W);

	/** True if the rotation turns nearly nothing. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Is Identity (Quat)"))
	static bool Quat_IsIdentity(const FQuat& Q, float Tolerance = 1.e-4f);

	/** True if the length is nearly 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Is Normalized (Quat)"))
	static bool Quat_IsNormalized(const FQuat& Q);

	/** True if all parts are numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Is Finite (Quat)"))
	static bool Quat_IsFinite(const FQuat& Q);

	/** True if a part is not a number. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Is Non-Finite (Quat)"))
	static bool Quat_IsNonFinite(const FQuat& Q);

	/** Angle in radians between two rotations. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Angular Distance (Quat)"))
	static double Quat_AngularDistance(const FQuat& A, const FQuat& B);

	/** Makes the way to another rotation the short one. */
	UFUNCTION(BlueprintCallable, Category = "Math|Quat", meta = (DisplayName = "Ensure Shortest Arc To (Quat)"))
	static void Quat_EnforceShortestArcWith(UPARAM(ref) FQuat& A, const FQuat& B);

	/** Angles in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Euler (Quat)"))
	static FVector Quat_Euler(const FQuat& Q);

	/** Exponential of a quaternion without W. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Exp (Quat)"))
	static FQuat Quat_Exp(const FQuat& Q);

	/** Angle in radians. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Get Angle (Quat)"))
	static double Quat_GetAngle(const FQuat& Q);

	/** Direction of X. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Get Axis X (Quat)"))
	static FVector Quat_GetAxisX(const FQuat& Q);

	/** Direction of Y. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Get Axis Y (Quat)"))
	static FVector Quat_GetAxisY(const FQuat& Q);

	/** Direction of Z. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Get Axis Z (Quat)"))
	static FVector Quat_GetAxisZ(const FQuat& Q);

	/** Direction forward. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Vector Forward (Quat)"))
	static FVector Quat_VectorForward(const FQuat& Q);

	/** Direction to the right. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Vector Right (Quat)"))
	static FVector Quat_VectorRight(const FQuat& Q);

	/** Direction above. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Vector Up (Quat)"))
	static FVector Quat_VectorUp(const FQuat& Q);

	/** Makes the length 1. */
	UFUNCTION(BlueprintCallable, Category = "Math|Quat", meta = (DisplayName = "Normalize (Quat)"))
	static void Quat_Normalize(UPARAM(ref) FQuat& Q, float Tolerance = 1.e-4f);

	/** The quaternion with a length of 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Normalized (Quat)"))
	static FQuat Quat_Normalized(const FQuat& Q, float Tolerance = 1.e-4f);

	/** Axis that a quaternion turns around. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Get Rotation Axis (Quat)"))
	static FVector Quat_GetRotationAxis(const FQuat& Q);

	/** Logarithm of a quaternion of length 1. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Log (Quat)"))
	static FQuat Quat_Log(const FQuat& Q);

	/** Sets the parts. */
	UFUNCTION(BlueprintCallable, Category = "Math|Quat", meta = (DisplayName = "Set Components (Quat)"))
	static void Quat_SetComponents(UPARAM(ref) FQuat& Q, double X, double Y, double Z, double W);

	/** Sets the rotation of angles in degrees. */
	UFUNCTION(BlueprintCallable, Category = "Math|Quat", meta = (DisplayName = "Set from Euler (Quat)"))
	static void Quat_SetFromEuler(UPARAM(ref) FQuat& Q, const FVector& Euler);

	/** Rotation of angles in degrees. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Make from Euler (Quat)"))
	static FQuat Quat_MakeFromEuler(const FVector& Euler);

	/** Length. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Size (Quat)"))
	static double Quat_Size(const FQuat& Q);

	/** Square of the length. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Size Squared (Quat)"))
	static double Quat_SizeSquared(const FQuat& Q);

	/** Vector turned back by a quaternion. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Unrotate Vector (Quat)"))
	static FVector Quat_UnrotateVector(const FQuat& Q, const FVector& V);

	/** A rotation between two, on the arc. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Lerp (Quat)"))
	static FQuat Quat_Slerp(const FQuat& A, const FQuat& B, double Alpha);

	/** The rotation that turns one vector to another. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Find Quat Between Vectors"))
	static FQuat Quat_FindBetweenVectors(FVector Start, FVector End);

	/** The rotation that turns one direction to another. */
	UFUNCTION(BlueprintPure, Category = "Math|Quat", meta = (DisplayName = "Find Quat Between Normals"))
	static FQuat Quat_FindBetweenNormals(FVector StartNormal, FVector EndNormal);

	/** A transform between two. */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Lerp (Transform)", AdvancedDisplay = "3"))
	static FTransform TLerp(const FTransform& A, const FTransform& B, float Alpha,
		TEnumAsByte<ELerpInterpolationMode::Type> LerpInterpolationMode = ELerpInterpolationMode::QuatInterp);

	/** True if the transforms are nearly the same. */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Nearly Equal (Transform)"))
	static bool NearlyEqual_TransformTransform(const FTransform& A, const FTransform& B, float LocationTolerance = 1.e-4f,
		float RotationTolerance = 1.e-4f, float Scale3DTolerance = 1.e-4f);

	/** Determinant of the transform's matrix. */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (DisplayName = "Determinant"))
	static float Transform_Determinant(const FTransform& Transform);

	/** The transform in the parent's space. */
	UFUNCTION(BlueprintPure, Category = "Math|Transform", meta = (Keywords = "cast convert", DeprecatedFunction))
	static FTransform ConvertTransformToRelative(const FTransform& Transform, const FTransform& ParentTransform);
};

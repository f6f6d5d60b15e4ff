// Package: /Script/Engine
#pragma once

#include "Kismet/BlueprintFunctionLibrary.h"
#include "KismetMathFloat.generated.h"

// Continues
UCLASS()
class ENGINE_API UKismetMathLibrary : public UBlueprintFunctionLibrary
{
	GENERATED_BODY()

public:
	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "float * float", CompactNodeTitle = "*", Keywords = "* multiply",
			CommutativeAssociativeBinaryOperator = "true"))
	static double Multiply_DoubleDouble(double A, double B);

	/** Division (A / B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "float / float", CompactNodeTitle = "/", Keywords = "/ divide division"))
	static double Divide_DoubleDouble(double A, double B = 1.0);

	/** Addition (A + B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "float + float", CompactNodeTitle = "+", Keywords = "+ add plus",
			CommutativeAssociativeBinaryOperator = "true"))
	static double Add_DoubleDouble(double A, double B = 1.0);

	/** Subtraction (A - B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "float - float", CompactNodeTitle = "-", Keywords = "- subtract minus"))
	static double Subtract_DoubleDouble(double A, double B = 1.0);

	/** Remainder of a division (A % B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "% (Float)", CompactNodeTitle = "%", Keywords = "% modulus"))
	static double Percent_FloatFloat(double A, double B = 1.0);

	/** Returns true if A is less than B (A < B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float < Float", CompactNodeTitle = "<", Keywords = "< less"))
	static bool Less_DoubleDouble(double A, double B);

	/** Returns true if A is greater than B (A > B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float > Float", CompactNodeTitle = ">", Keywords = "> greater"))
	static bool Greater_DoubleDouble(double A, double B);

	/** Returns true if A is less than or equal to B (A <= B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float <= Float", CompactNodeTitle = "<=", Keywords = "<= less"))
	static bool LessEqual_DoubleDouble(double A, double B);

	/** Returns true if A is greater than or equal to B (A >= B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Float >= Float", CompactNodeTitle = ">=", Keywords = ">= greater"))
	static bool GreaterEqual_DoubleDouble(double A, double B);

	/** Returns true if A is exactly equal to B (A == B) */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Equal (Float)", CompactNodeTitle = "==", Keywords = "== equal"))
	static bool EqualEqual_DoubleDouble(double A, double B);

	/** Returns true if A does not equal B (A != B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "Not Equal (Float)", CompactNodeTitle = "!=", Keywords = "!= not equal"))
	static bool NotEqual_DoubleDouble(double A, double B);

	/** True if the values differ by no more than the tolerance */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Nearly Equal (Float)", Keywords = "== equal"))
	static bool NearlyEqual_FloatFloat(double A, double B, double ErrorTolerance = 1.e-6);

	/** True if the value is between Min and Max */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "In Range (Float)"))
	static bool InRange_FloatFloat(double Value, double Min, double Max, bool InclusiveMin = true, bool InclusiveMax = true);

	/** Length of a right triangle's long side */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (Keywords = "pythagorean theorem"))
	static double Hypotenuse(double Width, double Height);

	/** Base to the power of Exp */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Power", CompactNodeTitle = "POWER"))
	static double MultiplyMultiply_FloatFloat(double Base, double Exp);

	/** Value without its sign */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Absolute (Float)", CompactNodeTitle = "ABS"))
	static double Abs(double A);

	/** Sine of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Sin (Radians)", CompactNodeTitle = "SIN"))
	static double Sin(double A);

	/** Inverse sine, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Asin (Radians)", CompactNodeTitle = "ASIN"))
	static double Asin(double A);

	/** Cosine of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Cos (Radians)", CompactNodeTitle = "COS"))
	static double Cos(double A);

	/** Inverse cosine, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Acos (Radians)", CompactNodeTitle = "ACOS"))
	static double Acos(double A);

	/** Tangent of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Tan (Radians)", CompactNodeTitle = "TAN"))
	static double Tan(double A);

	/** Inverse tangent, in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan (Radians)", CompactNodeTitle = "ATAN"))
	static double Atan(double A);

	/** Sine of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Sin (Degrees)", CompactNodeTitle = "SINd"))
	static double DegSin(double A);

	/** Inverse sine, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Asin (Degrees)", CompactNodeTitle = "ASINd"))
	static double DegAsin(double A);

	/** Cosine of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Cos (Degrees)", CompactNodeTitle = "COSd"))
	static double DegCos(double A);

	/** Inverse cosine, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Acos (Degrees)", CompactNodeTitle = "ACOSd"))
	static double DegAcos(double A);

	/** Tangent of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Tan (Degrees)", CompactNodeTitle = "TANd"))
	static double DegTan(double A);

	/** Inverse tangent, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan (Degrees)", CompactNodeTitle = "ATANd"))
	static double DegAtan(double A);

	/** Inverse tangent of Y / X, in radians, in the right quadrant */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan2 (Radians)"))
	static double Atan2(double Y, double X);

	/** Inverse tangent of Y / X, in degrees, in the right quadrant */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Atan2 (Degrees)"))
	static double DegAtan2(double Y, double X);

	/** Radians of an angle in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Degrees To Radians", CompactNodeTitle = "D2R"))
	static double DegreesToRadians(double A);

	/** Degrees of an angle in radians */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Radians To Degrees", CompactNodeTitle = "R2D"))
	static double RadiansToDegrees(double A);

	/** Half the circumference of a unit circle */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Get PI", CompactNodeTitle = "PI"))
	static double GetPI();

	/** The circumference of a unit circle */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Get TAU", CompactNodeTitle = "TAU"))
	static double GetTAU();

	/** Angle held between two angles, all in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Trig")
	static double ClampAngle(double AngleDegrees, double MinAngleDegrees, double MaxAngleDegrees);

	/** e to the power of A */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Exponent", CompactNodeTitle = "e"))
	static double Exp(double A);

	/** Logarithm of A to a base */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double Log(double A, double Base = 1.0);

	/** Natural logarithm */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Log e", CompactNodeTitle = "LOGe"))
	static double Loge(double A);

	/** Square root */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Square Root", CompactNodeTitle = "SQRT", Keywords = "square root"))
	static double Sqrt(double A);

	/** A * A */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Square", CompactNodeTitle = "^2"))
	static double Square(double A);

	/** Angle turned towards another by no more than a rate, in degrees */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double FixedTurn(double InCurrent, double InDesired, double InDeltaRate);

	/** The smaller value */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "Min (Float)", CompactNodeTitle = "MIN", CommutativeAssociativeBinaryOperator = "true"))
	static double FMin(double A, double B);

	/** The larger value */
	UFUNCTION(BlueprintPure, Category = "Math|Float",
		meta = (DisplayName = "Max (Float)", CompactNodeTitle = "MAX", CommutativeAssociativeBinaryOperator = "true"))
	static double FMax(double A, double B);

	/** Value held between Min and Max, both included */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Clamp (Float)"))
	static double FClamp(double Value, double Min, double Max);

	/** Value wrapped into the range from Min to Max */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Wrap (Float)"))
	static double FWrap(double Value, double Min, double Max);

	/** Value moved towards a target by a share of the distance, so that it slows down. A speed of 0 jumps. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "FInterp To"))
	static double FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed);

	/** Value moved towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "FInterp To Constant"))
	static double FInterpTo_Constant(double Current, double Target, double DeltaTime, double InterpSpeed);

	/** Value between A and B that starts and ends slowly */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "Ease In Out", BlueprintInternalUseOnly = "true"))
	static double FInterpEaseInOut(double A, double B, double Alpha, double Exponent);

	/** A at Alpha 0, B at Alpha 1, and along the curve between them */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (BlueprintInternalUseOnly = "true"))
	static double Ease(double A, double B, double Alpha, TEnumAsByte<EEasingFunc::Type> EasingFunc, double BlendExp = 2, int32 Steps = 2);

	/** A at Alpha 0, B at Alpha 1, and straight between them */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Lerp"))
	static double Lerp(double A, double B, double Alpha);

	/** Alpha for which Lerp gives the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double InverseLerp(double A, double B, double Value);

	/** Place of a value in a range, where 0 is RangeMin and 1 is RangeMax */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static double NormalizeToRange(double Value, double RangeMin, double RangeMax);

	/** Value of one range put into another */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (Keywords = "get mapped value"))
	static double MapRangeUnclamped(double Value, double InRangeA, double InRangeB, double OutRangeA, double OutRangeB);

	/** Value of one range put into another and held there */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (Keywords = "get mapped value"))
	static double MapRangeClamped(double Value, double InRangeA, double InRangeB, double OutRangeA, double OutRangeB);

	/** Value times PI */
	UFUNCTION(BlueprintPure, Category = "Math|Trig", meta = (DisplayName = "Multiply By Pi", CompactNodeTitle = "* Pi"))
	static double MultiplyByPi(double Value);

	/** -1, 0 or 1 by the sign of the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Sign (Float)"))
	static double SignOfFloat(double A);

	/** The nearest whole number */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static int32 Round(double A);

	/** The largest whole number that is not above the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Floor"))
	static int32 FFloor(double A);

	/** The whole number towards zero */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Truncate", BlueprintAutocast))
	static int32 FTrunc(double A);

	/** The smallest whole number that is not below the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Ceil"))
	static int32 FCeil(double A);

	/** The nearest whole number */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Round to Integer64"))
	static int64 Round64(double A);

	/** The largest whole number that is not above the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Floor to Integer64"))
	static int64 FFloor64(double A);

	/** The whole number towards zero */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Truncate to Integer64", BlueprintAutocast))
	static int64 FTrunc64(double A);

	/** The smallest whole number that is not below the value */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Ceil to Integer64"))
	static int64 FCeil64(double A);

	/** How often a divisor fits, and what remains */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Division (whole and remainder)", Keywords = "%"))
	static int32 FMod(double Dividend, double Divisor, double& Remainder);

	/** A if bPickA is true, otherwise B */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Select Float"))
	static double SelectFloat(double A, double B, bool bPickA);

	/** Vector moved towards a target by a share of the distance */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "VInterp To"))
	static FVector VInterpTo(FVector Current, FVector Target, float DeltaTime, float InterpSpeed);

	/** Vector moved towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "VInterp To Constant"))
	static FVector VInterpTo_Constant(FVector Current, FVector Target, float DeltaTime, float InterpSpeed);

	/** Rotation turned towards a target by a share of the way */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "RInterp To", Keywords = "rotate rotation"))
	static FRotator RInterpTo(FRotator Current, FRotator Target, float DeltaTime, float InterpSpeed);

	/** Rotation turned towards a target at a constant speed */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "RInterp To Constant", Keywords = "rotate rotation"))
	static FRotator RInterpTo_Constant(FRotator Current, FRotator Target, float DeltaTime, float InterpSpeed);

	/** Transform moved towards a target by a share of the way */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "TInterp To"))
	static FTransform TInterpTo(const FTransform& Current, const FTransform& Target, float DeltaTime, float InterpSpeed);

	/** The largest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Float")
	static void MaxOfFloatArray(const TArray<float>& FloatArray, int32& IndexOfMaxValue, float& MaxValue);

	/** The smallest number of an array and its place; -1 if the array is empty. */
	UFUNCTION(BlueprintCallable, Category = "Math|Float")
	static void MinOfFloatArray(const TArray<float>& FloatArray, int32& IndexOfMinValue, float& MinValue);

	/** Multiplication (A * B) */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "int * float", CompactNodeTitle = "*", Keywords = "* multiply"))
	static double Multiply_IntFloat(int32 A, double B);

	/** Division that answers 0 where B is 0. */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (Keywords = "divide division"))
	static double SafeDivide(double A, double B);

	/** A number that swings between 0 and 1 with time. */
	UFUNCTION(BlueprintPure, Category = "Math|Float")
	static float MakePulsatingValue(float InCurrentTime, float InPulsesPerSecond = 1.0f, float InPhase = 0.0f);

	/** The nearest multiple of the grid size. */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Snap to grid (Float)"))
	static double GridSnap_Float(double Location, double GridSize);

	/** Whole number of times that the divisor fits, and what remains. */
	UFUNCTION(
		BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Division (whole and remainder, Integer64)", Keywords = "modulus"))
	static int64 FMod64(double Dividend, double Divisor, double& Remainder);

	/** Smooths a series of numbers. */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Weighted Moving Average Float"))
	static float WeightedMovingAverage_Float(float CurrentSample, float PreviousSample, float Weight);

	/** Smooths a series of numbers, less the further they jump. */
	UFUNCTION(BlueprintPure, Category = "Math|Float", meta = (DisplayName = "Dynamic Weighted Moving Average Float"))
	static float DynamicWeightedMovingAverage_Float(
		float CurrentSample, float PreviousSample, float MaxDistance, float MinWeight, float MaxWeight);

	/** Follows a target as if a spring pulled. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation", meta = (AdvancedDisplay = "8"))
	static float FloatSpringInterp(float Current, float Target, UPARAM(ref) FFloatSpringState& SpringState, float Stiffness,
		float CriticalDampingFactor, float DeltaTime, float Mass = 1.f, float TargetVelocityAmount = 1.f, bool bClamp = false,
		float MinValue = -1.f, float MaxValue = 1.f, bool bInitializeFromTarget = false);

	/** Follows a target as if a spring pulled. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation", meta = (AdvancedDisplay = "8"))
	static FVector VectorSpringInterp(FVector Current, FVector Target, UPARAM(ref) FVectorSpringState& SpringState, float Stiffness,
		float CriticalDampingFactor, float DeltaTime, float Mass = 1.f, float TargetVelocityAmount = 1.f, bool bClamp = false,
		FVector MinValue = FVector(-1.f), FVector MaxValue = FVector(1.f), bool bInitializeFromTarget = false);

	/** Follows a rotation as if a spring pulled. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation", meta = (AdvancedDisplay = "8"))
	static FQuat QuaternionSpringInterp(FQuat Current, FQuat Target, UPARAM(ref) FQuaternionSpringState& SpringState, float Stiffness,
		float CriticalDampingFactor, float DeltaTime, float Mass = 1.f, float TargetVelocityAmount = 1.f,
		bool bInitializeFromTarget = false);

	/** Lets a spring forget what it did; call it when its target jumps. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void ResetFloatSpringState(UPARAM(ref) FFloatSpringState& SpringState);

	/** Lets a spring forget what it did; call it when its target jumps. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void ResetVectorSpringState(UPARAM(ref) FVectorSpringState& SpringState);

	/** Lets a spring forget what it did; call it when its target jumps. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void ResetQuaternionSpringState(UPARAM(ref) FQuaternionSpringState& SpringState);

	/** Sets how fast a spring moves. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void SetFloatSpringStateVelocity(UPARAM(ref) FFloatSpringState& SpringState, float Velocity);

	/** Sets how fast a spring moves. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void SetVectorSpringStateVelocity(UPARAM(ref) FVectorSpringState& SpringState, FVector Velocity);

	/** Sets how fast a spring turns. */
	UFUNCTION(BlueprintCallable, Category = "Math|Interpolation")
	static void SetQuaternionSpringStateAngularVelocity(UPARAM(ref) FQuaternionSpringState& SpringState, FVector AngularVelocity);

	/** Goes from a colour towards another, slower the nearer it is. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (Keywords = "color"))
	static FLinearColor CInterpTo(FLinearColor Current, FLinearColor Target, float DeltaTime, float InterpSpeed);

	/** Goes from a vector towards another, slower the nearer it is. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (Keywords = "position"))
	static FVector2D Vector2DInterpTo(FVector2D Current, FVector2D Target, float DeltaTime, float InterpSpeed);

	/** Goes from a vector towards another at one speed. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (Keywords = "position"))
	static FVector2D Vector2DInterpTo_Constant(FVector2D Current, FVector2D Target, float DeltaTime, float InterpSpeed);

	/** A vector between two, on an easing curve. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "Ease (Vector)", BlueprintInternalUseOnly = "true"))
	static FVector VEase(FVector A, FVector B, float Alpha, TEnumAsByte<EEasingFunc::Type> EasingFunc, float BlendExp = 2, int32 Steps = 2);

	/** A rotation between two, on an easing curve. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "Ease (Rotator)", BlueprintInternalUseOnly = "true"))
	static FRotator REase(FRotator A, FRotator B, float Alpha, bool bShortestPath, TEnumAsByte<EEasingFunc::Type> EasingFunc,
		float BlendExp = 2, int32 Steps = 2);

	/** A transform between two, on an easing curve. */
	UFUNCTION(BlueprintPure, Category = "Math|Interpolation", meta = (DisplayName = "Ease (Transform)", BlueprintInternalUseOnly = "true"))
	static FTransform TEase(const FTransform& A, const FTransform& B, float Alpha, TEnumAsByte<EEasingFunc::Type> EasingFunc,
		float BlendExp = 2, int32 Steps = 2);
};

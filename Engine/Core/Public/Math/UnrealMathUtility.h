#pragma once

#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/NumericLimits.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstdlib>
#include <numeric>

#define UE_PI (3.1415926535897932f)
#define UE_DOUBLE_PI (3.141592653589793238462643383279502884197169399)
#define UE_TWO_PI (6.28318530717f)
#define UE_HALF_PI (1.57079632679f)
#define UE_DOUBLE_HALF_PI (1.5707963267948966)
#define UE_SMALL_NUMBER (1.e-8f)
#define UE_DOUBLE_SMALL_NUMBER (1.e-8)
#define UE_KINDA_SMALL_NUMBER (1.e-4f)
#define UE_DOUBLE_KINDA_SMALL_NUMBER (1.e-4)
#define UE_BIG_NUMBER (3.4e+38f)
#define UE_MAX_FLT 3.402823466e+38F
#ifndef PI
#define PI UE_PI
#endif
#define HALF_PI UE_HALF_PI
#define TWO_PI UE_TWO_PI
#define SMALL_NUMBER UE_SMALL_NUMBER
#define KINDA_SMALL_NUMBER UE_KINDA_SMALL_NUMBER
#define BIG_NUMBER UE_BIG_NUMBER
#define THRESH_VECTOR_NORMALIZED (0.01f)
#define THRESH_NORMALS_ARE_PARALLEL (0.999845f)
#define THRESH_NORMALS_ARE_ORTHOGONAL (0.017455f)

/** Mathematics on numbers. Angles are in radians unless a name says degrees. */
struct CORE_API FMath
{
	template <typename T>
	static constexpr T Abs(const T A)
	{
		return A < T(0) ? -A : A;
	}
	template <typename T>
	static constexpr T Sign(const T A)
	{
		return static_cast<T>((A > T(0)) - (A < T(0)));
	}
	template <typename A, typename B>
	static constexpr auto Max(const A First, const B Second) -> std::common_type_t<A, B>
	{
		return Second > First ? Second : First;
	}
	template <typename A, typename B>
	static constexpr auto Min(const A First, const B Second) -> std::common_type_t<A, B>
	{
		return Second < First ? Second : First;
	}
	template <typename T>
	static constexpr T Max3(const T A, const T B, const T C)
	{
		return Max(Max(A, B), C);
	}
	template <typename T>
	static constexpr T Min3(const T A, const T B, const T C)
	{
		return Min(Min(A, B), C);
	}
	template <typename T, typename MinType, typename MaxType>
	static constexpr auto Clamp(const T X, const MinType MinValue, const MaxType MaxValue) -> std::common_type_t<T, MinType, MaxType>
	{
		using Result = std::common_type_t<T, MinType, MaxType>;
		return Max(Min(static_cast<Result>(X), static_cast<Result>(MaxValue)), static_cast<Result>(MinValue));
	}
	template <typename T>
	static constexpr T Square(const T A)
	{
		return A * A;
	}
	template <typename T>
	static constexpr T Cube(const T A)
	{
		return A * A * A;
	}
	template <typename T>
	static constexpr T DivideAndRoundUp(T Dividend, T Divisor)
	{
		return (Dividend + Divisor - 1) / Divisor;
	}
	template <typename T>
	static constexpr T DivideAndRoundDown(T Dividend, T Divisor)
	{
		return Dividend / Divisor;
	}
	template <typename T>
	static constexpr T DivideAndRoundNearest(T Dividend, T Divisor)
	{
		return Dividend >= 0 ? (Dividend + Divisor / 2) / Divisor : (Dividend - Divisor / 2 + 1) / Divisor;
	}
	template <typename T>
	static constexpr T GreatestCommonDivisor(T A, T B)
	{
		return std::gcd(A, B);
	}
	template <typename T>
	static constexpr T LeastCommonMultiplier(T A, T B)
	{
		return std::lcm(A, B);
	}
	template <typename T, typename U>
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A + Alpha * (B - A));
	}
	/** Of rotators, the shorter way round. */
	template <typename T, typename U>
	static UE::Math::TRotator<T> Lerp(const UE::Math::TRotator<T>& A, const UE::Math::TRotator<T>& B, const U& Alpha);
	/** Of quaternions, along the arc. */
	template <typename T, typename U>
	static UE::Math::TQuat<T> Lerp(const UE::Math::TQuat<T>& A, const UE::Math::TQuat<T>& B, const U& Alpha);
	/** Exactly A at 0 and exactly B at 1. */
	template <typename T, typename U>
	static constexpr T LerpStable(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A * (U(1) - Alpha) + B * Alpha);
	}
	template <typename T, typename U>
	static constexpr T BiLerp(const T& P00, const T& P10, const T& P01, const T& P11, const U& FracX, const U& FracY)
	{
		return Lerp(Lerp(P00, P10, FracX), Lerp(P01, P11, FracX), FracY);
	}
	/** Between two values with a tangent at each. */
	template <typename T, typename U>
	static constexpr T CubicInterp(const T& P0, const T& T0, const T& P1, const T& T1, const U& A)
	{
		const U A2 = A * A;
		const U A3 = A2 * A;
		return static_cast<T>(P0 * (2 * A3 - 3 * A2 + 1) + T0 * (A3 - 2 * A2 + A) + T1 * (A3 - A2) + P1 * (3 * A2 - 2 * A3));
	}
	/** The eases go from A to B as Alpha goes from 0 to 1; a higher exponent is steeper. */
	template <typename T>
	static T InterpEaseIn(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp(A, B, std::pow(Alpha, Exp));
	}
	template <typename T>
	static T InterpEaseOut(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp(A, B, 1.0f - std::pow(1.0f - Alpha, Exp));
	}
	template <typename T>
	static T InterpEaseInOut(const T& A, const T& B, float Alpha, float Exp)
	{
		return Lerp(A, B, Alpha < 0.5f ? std::pow(Alpha * 2.0f, Exp) * 0.5f : 1.0f - std::pow((1.0f - Alpha) * 2.0f, Exp) * 0.5f);
	}
	template <typename T>
	static T InterpStep(const T& A, const T& B, float Alpha, int32 Steps)
	{
		if (Steps <= 1 || Alpha <= 0.0f)
		{
			return A;
		}
		return Alpha >= 1.0f ? B : Lerp(A, B, std::floor(Alpha * static_cast<float>(Steps)) / static_cast<float>(Steps - 1));
	}
	/** 0 up to A, 1 from B on, and a curve without corners between. */
	template <std::floating_point T>
	static constexpr T SmoothStep(T A, T B, T X)
	{
		if (X < A)
		{
			return T(0);
		}
		if (X >= B)
		{
			return T(1);
		}
		const T Fraction = (X - A) / (B - A);
		return Fraction * Fraction * (T(3) - T(2) * Fraction);
	}
	/** The value moved by whole widths of the range into it. */
	template <typename T>
	static constexpr T Wrap(T X, T MinValue, T MaxValue)
	{
		const T Width = MaxValue - MinValue;
		if (Width == T(0))
		{
			return MaxValue;
		}
		while (X < MinValue)
		{
			X += Width * (T(1) + static_cast<T>(static_cast<int64>((MinValue - X) / Width / 2)));
		}
		while (X > MaxValue)
		{
			X -= Width * (T(1) + static_cast<T>(static_cast<int64>((X - MaxValue) / Width / 2)));
		}
		return X;
	}
	template <typename T, typename U>
	static constexpr T FloatSelect(const T& Comparand, const U& ValueGEZero, const U& ValueLTZero)
	{
		return Comparand >= T(0) ? ValueGEZero : ValueLTZero;
	}
	template <typename T>
	static constexpr bool IsWithin(const T& Value, const T& MinValue, const T& MaxValue)
	{
		return Value >= MinValue && Value < MaxValue;
	}
	template <typename T>
	static constexpr bool IsWithinInclusive(const T& Value, const T& MinValue, const T& MaxValue)
	{
		return Value >= MinValue && Value <= MaxValue;
	}
	template <typename T>
	static constexpr bool IsPowerOfTwo(T Value)
	{
		return (Value & (Value - 1)) == T(0);
	}

#define VEXEL_FMATH_UNARY(Name, Function) \
	static float Name(float Value) { return Function(Value); } \
	static double Name(double Value) { return Function(Value); } \
	template <std::integral T> \
	static double Name(T Value) \
	{ \
		return Function(static_cast<double>(Value)); \
	}
	VEXEL_FMATH_UNARY(Sqrt, std::sqrt)
	VEXEL_FMATH_UNARY(Sin, std::sin)
	VEXEL_FMATH_UNARY(Cos, std::cos)
	VEXEL_FMATH_UNARY(Tan, std::tan)
	VEXEL_FMATH_UNARY(Atan, std::atan)
	VEXEL_FMATH_UNARY(Sinh, std::sinh)
	VEXEL_FMATH_UNARY(Cosh, std::cosh)
	VEXEL_FMATH_UNARY(Tanh, std::tanh)
	VEXEL_FMATH_UNARY(Exp, std::exp)
	VEXEL_FMATH_UNARY(Exp2, std::exp2)
	VEXEL_FMATH_UNARY(Loge, std::log)
	VEXEL_FMATH_UNARY(Log2, std::log2)
	VEXEL_FMATH_UNARY(FloorToFloat, std::floor)
	VEXEL_FMATH_UNARY(CeilToFloat, std::ceil)
	VEXEL_FMATH_UNARY(TruncToFloat, std::trunc)
	VEXEL_FMATH_UNARY(Frac, FractionAboveFloor)
#undef VEXEL_FMATH_UNARY
	template <std::floating_point T>
	static T Asin(T Value)
	{
		return std::asin(Clamp(Value, T(-1), T(1)));
	}
	template <std::floating_point T>
	static T Acos(T Value)
	{
		return std::acos(Clamp(Value, T(-1), T(1)));
	}
	/** A negative zero counts as zero, so that no angle prints as "-0.000000" and none of half a turn is negative. */
	template <typename A, typename B>
	static auto Atan2(A Y, B X)
	{
		return std::atan2(Y + A(0), X + B(0));
	}
	template <typename A, typename B>
	static auto Pow(A Base, B Exponent)
	{
		return std::pow(Base, Exponent);
	}
	template <typename A, typename B>
	static auto LogX(A Base, B Value)
	{
		return std::log(Value) / std::log(Base);
	}
	template <typename A, typename B>
	static auto Fmod(A X, B Y)
	{
		return Y == B(0) ? decltype(std::fmod(X, Y))(0) : std::fmod(X, Y);
	}
	/** What is behind the point, with the sign of the value. */
	template <std::floating_point T>
	static T Fractional(T Value)
	{
		return Value - std::trunc(Value);
	}
	template <std::floating_point T>
	static T Modf(T Value, T* OutIntPart)
	{
		return std::modf(Value, OutIntPart);
	}
	/** Halves go to the even neighbour. */
	template <std::floating_point T>
	static T RoundHalfToEven(T Value)
	{
		return Value - std::remainder(Value, T(1));
	}
	template <std::floating_point T>
	static T RoundHalfFromZero(T Value)
	{
		return std::round(Value);
	}
	template <std::floating_point T>
	static T RoundHalfToZero(T Value)
	{
		return Value < T(0) ? std::floor(Value + T(0.5)) : std::ceil(Value - T(0.5));
	}
	template <std::floating_point T>
	static T RoundFromZero(T Value)
	{
		return Value < T(0) ? std::floor(Value) : std::ceil(Value);
	}
	template <std::floating_point T>
	static T RoundToZero(T Value)
	{
		return std::trunc(Value);
	}
	template <std::floating_point T>
	static T InvSqrt(T Value)
	{
		return T(1) / std::sqrt(Value);
	}
	template <std::floating_point T>
	static void SinCos(T* Sine, T* Cosine, T Value)
	{
		*Sine = std::sin(Value);
		*Cosine = std::cos(Value);
	}

	/** Conversions to integers saturate; what is not a number gives 0. */
	static int32 TruncToInt(double Value) { return ToInteger<int32>(std::trunc(Value)); }
	static int32 TruncToInt32(double Value) { return TruncToInt(Value); }
	static int64 TruncToInt64(double Value) { return ToInteger<int64>(std::trunc(Value)); }
	static int32 FloorToInt(double Value) { return ToInteger<int32>(std::floor(Value)); }
	static int32 FloorToInt32(double Value) { return FloorToInt(Value); }
	static int64 FloorToInt64(double Value) { return ToInteger<int64>(std::floor(Value)); }
	static int32 CeilToInt(double Value) { return ToInteger<int32>(std::ceil(Value)); }
	static int32 CeilToInt32(double Value) { return CeilToInt(Value); }
	static int64 CeilToInt64(double Value) { return ToInteger<int64>(std::ceil(Value)); }
	/** Halves go up: -1.5 gives -1. */
	static int32 RoundToInt(double Value) { return FloorToInt(Value + 0.5); }
	static int32 RoundToInt32(double Value) { return RoundToInt(Value); }
	static int64 RoundToInt64(double Value) { return FloorToInt64(Value + 0.5); }
	static float RoundToFloat(float Value) { return std::floor(Value + 0.5f); }
	static double RoundToDouble(double Value) { return std::floor(Value + 0.5); }
	static float FloorToDouble(float Value) { return std::floor(Value); }
	static double FloorToDouble(double Value) { return std::floor(Value); }

	static bool IsNaN(double Value) { return std::isnan(Value); }
	static bool IsFinite(double Value) { return std::isfinite(Value); }
	template <std::floating_point T>
	static bool IsNearlyEqual(T A, T B, T ErrorTolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		return Abs(A - B) <= ErrorTolerance;
	}
	static bool IsNearlyEqual(double A, float B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	static bool IsNearlyEqual(float A, double B, double ErrorTolerance = UE_DOUBLE_SMALL_NUMBER) { return Abs(A - B) <= ErrorTolerance; }
	template <std::floating_point T>
	static bool IsNearlyZero(T Value, T ErrorTolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		return Abs(Value) <= ErrorTolerance;
	}

	template <typename T>
	static constexpr auto RadiansToDegrees(const T Radians)
	{
		return Radians * (T(180) / T(UE_DOUBLE_PI));
	}
	template <typename T>
	static constexpr auto DegreesToRadians(const T Degrees)
	{
		return Degrees * (T(UE_DOUBLE_PI) / T(180));
	}
	/** The angle in degrees brought into [-180, 180]. */
	template <std::floating_point T>
	static T UnwindDegrees(T Degrees)
	{
		T Result = std::fmod(Degrees, T(360));
		if (Result > T(180))
		{
			Result -= T(360);
		}
		else if (Result < T(-180))
		{
			Result += T(360);
		}
		return Result;
	}
	template <std::floating_point T>
	static T FindDeltaAngleDegrees(T From, T To)
	{
		return UnwindDegrees(To - From);
	}
	template <std::floating_point T>
	static T GridSnap(T Location, T Grid)
	{
		return Grid == T(0) ? Location : std::floor((Location + Grid / T(2)) / Grid) * Grid;
	}
	template <std::floating_point T>
	static T UnwindRadians(T Radians)
	{
		return std::remainder(Radians, T(2) * T(UE_DOUBLE_PI));
	}
	template <std::floating_point T>
	static T FindDeltaAngleRadians(T From, T To)
	{
		return UnwindRadians(To - From);
	}
	/** The angle in degrees, or the nearer of the limits between which it is not; the range goes up from the least to the largest. */
	static double ClampAngle(double AngleDegrees, double MinAngleDegrees, double MaxAngleDegrees);

	/** Where Value stands in the range: 0 at its start, 1 at its end. */
	static double GetRangePct(double MinValue, double MaxValue, double Value);
	static double GetRangePct(const FVector2D& Range, double Value);
	static double GetRangeValue(const FVector2D& Range, double Pct);
	static double GetMappedRangeValueClamped(const FVector2D& InputRange, const FVector2D& OutputRange, double Value);
	static double GetMappedRangeValueUnclamped(const FVector2D& InputRange, const FVector2D& OutputRange, double Value);

	/** Steps of a tick towards a target: by a part of the distance, or at a constant speed. A speed of 0 or less arrives at once. */
	static double FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed);
	static double FInterpConstantTo(double Current, double Target, double DeltaTime, double InterpSpeed);
	static FVector VInterpTo(const FVector& Current, const FVector& Target, double DeltaTime, double InterpSpeed);
	static FVector VInterpConstantTo(const FVector& Current, const FVector& Target, double DeltaTime, double InterpSpeed);
	static FVector2D Vector2DInterpTo(const FVector2D& Current, const FVector2D& Target, double DeltaTime, double InterpSpeed);
	static FRotator RInterpTo(const FRotator& Current, const FRotator& Target, double DeltaTime, double InterpSpeed);
	static FRotator RInterpConstantTo(const FRotator& Current, const FRotator& Target, double DeltaTime, double InterpSpeed);

	/** The point of a segment that is nearest to another point, and the distances to a segment and to an endless line. */
	static FVector ClosestPointOnSegment(const FVector& Point, const FVector& StartPoint, const FVector& EndPoint);
	static double PointDistToSegment(const FVector& Point, const FVector& StartPoint, const FVector& EndPoint);
	static double PointDistToLine(const FVector& Point, const FVector& Direction, const FVector& Origin);
	/** Where the line through both points meets the plane; the line must not be parallel to it. */
	static FVector LinePlaneIntersection(
		const FVector& Point1, const FVector& Point2, const FVector& PlaneOrigin, const FVector& PlaneNormal);

	static uint32 FloorLog2(uint32 Value) { return Value == 0 ? 0 : 31 - std::countl_zero(Value); }
	static uint64 FloorLog2_64(uint64 Value) { return Value == 0 ? 0 : 63 - std::countl_zero(Value); }
	static uint32 CeilLogTwo(uint32 Value) { return Value <= 1 ? 0 : FloorLog2(Value - 1) + 1; }
	static uint64 CeilLogTwo64(uint64 Value) { return Value <= 1 ? 0 : FloorLog2_64(Value - 1) + 1; }
	static uint32 CountLeadingZeros(uint32 Value) { return std::countl_zero(Value); }
	static uint64 CountLeadingZeros64(uint64 Value) { return std::countl_zero(Value); }
	static uint32 CountTrailingZeros(uint32 Value) { return std::countr_zero(Value); }
	static uint64 CountTrailingZeros64(uint64 Value) { return std::countr_zero(Value); }
	static int32 CountBits(uint64 Value) { return std::popcount(Value); }
	static uint32 RoundUpToPowerOfTwo(uint32 Value) { return 1u << CeilLogTwo(Value); }
	static uint64 RoundUpToPowerOfTwo64(uint64 Value) { return uint64(1) << CeilLogTwo64(Value); }

	/** Pseudo-random numbers, of one sequence a thread. Not for secrets. */
	static void RandInit(int32 Seed);
	static int32 Rand();
	static float FRand();
	static int32 Rand32();
	static bool RandBool() { return (Rand() & 1) != 0; }
	/** In [0, A), 0 if A is not positive. */
	static int32 RandHelper(int32 A);
	/** In [Min, Max]. */
	static int32 RandRange(int32 Min, int32 Max);
	static int64 RandRange(int64 Min, int64 Max);
	static double FRandRange(double Min, double Max);
	static double RandRange(double Min, double Max) { return FRandRange(Min, Max); }
	static float RandRange(float Min, float Max) { return static_cast<float>(FRandRange(Min, Max)); }
	/** A direction, all of them as likely. */
	static FVector VRand();
	/** A direction that is at most that far (in radians) from another. */
	static FVector VRandCone(const FVector& Direction, double ConeHalfAngleRadians);
	static FVector RandPointInBox(const FBox& Box);

private:
	template <std::floating_point T>
	static T FractionAboveFloor(T Value)
	{
		return Value - std::floor(Value);
	}
	template <typename IntegerType>
	static IntegerType ToInteger(double Value)
	{
		constexpr double Lowest = static_cast<double>(std::numeric_limits<IntegerType>::min());
		if (std::isnan(Value))
		{
			return 0;
		}
		if (Value <= Lowest)
		{
			return std::numeric_limits<IntegerType>::min();
		}
		return Value >= -Lowest ? std::numeric_limits<IntegerType>::max() : static_cast<IntegerType>(Value);
	}
};

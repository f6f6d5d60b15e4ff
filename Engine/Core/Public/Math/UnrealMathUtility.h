#pragma once

#include "CoreTypes.h"
#include "Math/MathFwd.h"
#include "Math/NumericLimits.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstdlib>

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
	template <typename T, typename U>
	static constexpr T Lerp(const T& A, const T& B, const U& Alpha)
	{
		return static_cast<T>(A + Alpha * (B - A));
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
	template <typename A, typename B>
	static auto Atan2(A Y, B X)
	{
		return std::atan2(Y, X);
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
	/** The angle in degrees brought into (-180, 180]. */
	template <std::floating_point T>
	static T UnwindDegrees(T Degrees)
	{
		T Result = std::fmod(Degrees, T(360));
		if (Result > T(180))
		{
			Result -= T(360);
		}
		else if (Result <= T(-180))
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
	static double GetMappedRangeValueClamped(const FVector2D& InputRange, const FVector2D& OutputRange, double Value);
	static double FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed);

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

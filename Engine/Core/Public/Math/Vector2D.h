#pragma once

#include "Math/IntPoint.h"
#include "Math/Vector.h"

namespace UE::Math
{
/** Two real numbers: a place on a plane, such as a graph's canvas. */
template <typename T>
struct TVector2
{
	using FReal = T;

	T X;
	T Y;

	TVector2() = default;
	constexpr TVector2(T InX, T InY)
		: X(InX)
		, Y(InY)
	{
	}
	explicit constexpr TVector2(T InF)
		: X(InF)
		, Y(InF)
	{
	}
	explicit constexpr TVector2(EForceInit)
		: X(0)
		, Y(0)
	{
	}
	explicit TVector2(const TVector<T>& V)
		: X(V.X)
		, Y(V.Y)
	{
	}
	TVector2(const FIntPoint& Point)
		: X(static_cast<T>(Point.X))
		, Y(static_cast<T>(Point.Y))
	{
	}
	template <typename OtherType>
	requires(!std::is_same_v<OtherType, T>) explicit constexpr TVector2(const TVector2<OtherType>& V)
		: X(static_cast<T>(V.X))
		, Y(static_cast<T>(V.Y))
	{
	}

	static const TVector2 ZeroVector;
	static const TVector2 UnitVector;
	static constexpr TVector2 Zero() { return TVector2(0, 0); }
	static constexpr TVector2 One() { return TVector2(1, 1); }

	constexpr TVector2 operator+(const TVector2& V) const { return TVector2(X + V.X, Y + V.Y); }
	constexpr TVector2 operator-(const TVector2& V) const { return TVector2(X - V.X, Y - V.Y); }
	constexpr TVector2 operator*(const TVector2& V) const { return TVector2(X * V.X, Y * V.Y); }
	constexpr TVector2 operator/(const TVector2& V) const { return TVector2(X / V.X, Y / V.Y); }
	constexpr TVector2 operator+(T Bias) const { return TVector2(X + Bias, Y + Bias); }
	constexpr TVector2 operator-(T Bias) const { return TVector2(X - Bias, Y - Bias); }
	constexpr TVector2 operator*(T Scale) const { return TVector2(X * Scale, Y * Scale); }
	constexpr TVector2 operator/(T Scale) const { return TVector2(X / Scale, Y / Scale); }
	constexpr TVector2 operator-() const { return TVector2(-X, -Y); }
	friend constexpr TVector2 operator*(T Scale, const TVector2& V) { return V * Scale; }
	TVector2& operator+=(const TVector2& V) { return *this = *this + V; }
	TVector2& operator-=(const TVector2& V) { return *this = *this - V; }
	TVector2& operator*=(T Scale) { return *this = *this * Scale; }
	TVector2& operator/=(T Scale) { return *this = *this / Scale; }
	constexpr bool operator==(const TVector2&) const = default;
	constexpr T operator|(const TVector2& V) const { return X * V.X + Y * V.Y; }
	constexpr T operator^(const TVector2& V) const { return X * V.Y - Y * V.X; }
	static constexpr T DotProduct(const TVector2& A, const TVector2& B) { return A | B; }
	static constexpr T CrossProduct(const TVector2& A, const TVector2& B) { return A ^ B; }

	bool Equals(const TVector2& V, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance;
	}
	bool IsZero() const { return X == 0 && Y == 0; }
	bool IsNearlyZero(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X) <= Tolerance && FMath::Abs(Y) <= Tolerance;
	}
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y); }
	void Set(T InX, T InY) { *this = TVector2(InX, InY); }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	T Length() const { return Size(); }
	T SizeSquared() const { return X * X + Y * Y; }
	T GetMax() const { return FMath::Max(X, Y); }
	T GetMin() const { return FMath::Min(X, Y); }
	static T Distance(const TVector2& A, const TVector2& B) { return (A - B).Size(); }
	static T DistSquared(const TVector2& A, const TVector2& B) { return (A - B).SizeSquared(); }
	TVector2 GetSafeNormal(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER)) const
	{
		const T Squared = SizeSquared();
		return Squared > Tolerance ? *this * FMath::InvSqrt(Squared) : TVector2(0);
	}
	bool Normalize(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		const T Squared = SizeSquared();
		*this = Squared > Tolerance ? *this * FMath::InvSqrt(Squared) : TVector2(0);
		return Squared > Tolerance;
	}
	void ToDirectionAndLength(TVector2& OutDirection, T& OutLength) const
	{
		OutLength = Size();
		OutDirection = OutLength > static_cast<T>(UE_DOUBLE_SMALL_NUMBER) ? *this / OutLength : TVector2(0);
	}
	/** Turned from X towards Y. */
	TVector2 GetRotated(T AngleDegrees) const
	{
		T Sine;
		T Cosine;
		FMath::SinCos(&Sine, &Cosine, FMath::DegreesToRadians(AngleDegrees));
		return TVector2(Cosine * X - Sine * Y, Sine * X + Cosine * Y);
	}
	TVector2 GetAbs() const { return TVector2(FMath::Abs(X), FMath::Abs(Y)); }
	T GetAbsMax() const { return GetAbs().GetMax(); }
	TVector2 GetSignVector() const { return TVector2(X >= 0 ? T(1) : T(-1), Y >= 0 ? T(1) : T(-1)); }
	TVector2 RoundToVector() const { return TVector2(FMath::RoundToInt(X), FMath::RoundToInt(Y)); }
	TVector2 ClampAxes(T MinAxisVal, T MaxAxisVal) const
	{
		return TVector2(FMath::Clamp(X, MinAxisVal, MaxAxisVal), FMath::Clamp(Y, MinAxisVal, MaxAxisVal));
	}
	T& operator[](int32 Index)
	{
		check(Index >= 0 && Index < 2);
		return Index == 0 ? X : Y;
	}
	T operator[](int32 Index) const { return const_cast<TVector2&>(*this)[Index]; }
	static TVector2 Max(const TVector2& A, const TVector2& B) { return TVector2(FMath::Max(A.X, B.X), FMath::Max(A.Y, B.Y)); }
	static TVector2 Min(const TVector2& A, const TVector2& B) { return TVector2(FMath::Min(A.X, B.X), FMath::Min(A.Y, B.Y)); }
	FIntPoint IntPoint() const { return FIntPoint(FMath::RoundToInt(X), FMath::RoundToInt(Y)); }

	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), X, Y); }
	bool InitFromString(const FString& Text)
	{
		X = Y = 0;
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		return bHasX && bHasY;
	}
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, X, Y);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TVector2& V) { return Private::SerializeReals(Ar, V.X, V.Y); }
	friend uint32 GetTypeHash(const TVector2& V) { return HashCombineFast(::GetTypeHash(V.X), ::GetTypeHash(V.Y)); }
};

template <typename T>
const TVector2<T> TVector2<T>::ZeroVector(0, 0);
template <typename T>
const TVector2<T> TVector2<T>::UnitVector(1, 1);
}

#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
/** A plane of the points P with P | (X, Y, Z) = W; also a row of a matrix. */
template <typename T>
struct TPlane : TVector<T>
{
	T W;

	using TVector<T>::X;
	using TVector<T>::Y;
	using TVector<T>::Z;

	TPlane() = default;
	constexpr TPlane(T InX, T InY, T InZ, T InW)
		: TVector<T>(InX, InY, InZ)
		, W(InW)
	{
	}
	constexpr TPlane(const TVector<T>& InNormal, T InW)
		: TVector<T>(InNormal)
		, W(InW)
	{
	}
	constexpr TPlane(const TVector<T>& InBase, const TVector<T>& InNormal)
		: TVector<T>(InNormal)
		, W(InBase | InNormal)
	{
	}
	explicit constexpr TPlane(EForceInit)
		: TVector<T>(ForceInit)
		, W(0)
	{
	}

	constexpr bool operator==(const TPlane&) const = default;
	/** Signed distance of a point, positive on the side of the normal. */
	constexpr T PlaneDot(const TVector<T>& P) const { return X * P.X + Y * P.Y + Z * P.Z - W; }
	const TVector<T>& GetNormal() const { return *this; }
	TVector<T> GetOrigin() const { return GetNormal() * W; }
	/** Through three points; the normal is to the side from which they go clockwise. */
	TPlane(const TVector<T>& A, const TVector<T>& B, const TVector<T>& C)
		: TVector<T>(((B - A) ^ (C - A)).GetSafeNormal())
		, W(A | static_cast<const TVector<T>&>(*this))
	{
	}
	TPlane Flip() const { return TPlane(-X, -Y, -Z, -W); }
	/** Makes the normal of length 1; false for a plane without a direction. */
	bool Normalize(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		const T Squared = this->SizeSquared();
		if (Squared <= Tolerance)
		{
			return false;
		}
		const T Scale = FMath::InvSqrt(Squared);
		*this = TPlane(X * Scale, Y * Scale, Z * Scale, W * Scale);
		return true;
	}
	bool Equals(const TPlane& V, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return TVector<T>::Equals(V, Tolerance) && FMath::Abs(W - V.W) <= Tolerance;
	}

	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f W=%3.3f"), X, Y, Z, W); }
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, X, Y, Z, W);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TPlane& P) { return Private::SerializeReals(Ar, P.X, P.Y, P.Z, P.W); }
};
}

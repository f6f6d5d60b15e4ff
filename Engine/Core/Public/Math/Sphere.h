#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
template <typename T>
struct TSphere
{
	TVector<T> Center;
	/** The radius. */
	T W;

	TSphere() = default;
	TSphere(const TVector<T>& InCenter, T InRadius)
		: Center(InCenter)
		, W(InRadius)
	{
	}
	explicit TSphere(EForceInit)
		: Center(0)
		, W(0)
	{
	}

	bool operator==(const TSphere&) const = default;
	bool Equals(const TSphere& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return Center.Equals(Other.Center, Tolerance) && FMath::Abs(W - Other.W) <= Tolerance;
	}
	bool IsInside(const TVector<T>& Point, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return TVector<T>::DistSquared(Center, Point) <= FMath::Square(W + Tolerance);
	}
	/** Whether all of this sphere is in the other. */
	bool IsInside(const TSphere& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return W <= Other.W + Tolerance && TVector<T>::Dist(Center, Other.Center) <= Other.W + Tolerance - W;
	}
	bool Intersects(const TSphere& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return TVector<T>::DistSquared(Center, Other.Center) <= FMath::Square(FMath::Max(T(0), Other.W + W + Tolerance));
	}
	T GetVolume() const { return T(4) / T(3) * static_cast<T>(UE_DOUBLE_PI) * W * W * W; }
	friend FArchive& operator<<(FArchive& Ar, TSphere& Sphere)
	{
		Ar << Sphere.Center;
		return Private::SerializeReals(Ar, Sphere.W);
	}
};
}

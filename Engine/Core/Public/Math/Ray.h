#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
/** A half line. */
template <typename T>
struct TRay
{
	TVector<T> Origin;
	/** Of length 1. */
	TVector<T> Direction;

	TRay()
		: Origin(0)
		, Direction(0, 0, 1)
	{
	}
	TRay(const TVector<T>& InOrigin, const TVector<T>& InDirection, bool bDirectionIsNormalized = false)
		: Origin(InOrigin)
		, Direction(bDirectionIsNormalized ? InDirection : InDirection.GetSafeNormal())
	{
	}

	bool operator==(const TRay&) const = default;
	TVector<T> PointAt(T Distance) const { return Origin + Direction * Distance; }
	/** Where along the ray's line the point stands; negative behind its origin. */
	T GetParameter(const TVector<T>& Point) const { return (Point - Origin) | Direction; }
	TVector<T> ClosestPoint(const TVector<T>& Point) const { return PointAt(FMath::Max(T(0), GetParameter(Point))); }
	T SquaredDist(const TVector<T>& Point) const { return TVector<T>::DistSquared(ClosestPoint(Point), Point); }
	T Dist(const TVector<T>& Point) const { return FMath::Sqrt(SquaredDist(Point)); }
	friend FArchive& operator<<(FArchive& Ar, TRay& Ray) { return Ar << Ray.Origin << Ray.Direction; }
};
}

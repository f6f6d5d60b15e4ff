#pragma once

#include "Math/Box.h"
#include "Math/Sphere.h"
#include "Math/Transform.h"

namespace UE::Math
{
/** A box along the axes and a sphere about the same middle. */
template <typename T>
struct TBoxSphereBounds
{
	TVector<T> Origin;
	TVector<T> BoxExtent;
	T SphereRadius;

	TBoxSphereBounds() = default;
	explicit TBoxSphereBounds(EForceInit)
		: TBoxSphereBounds(TVector<T>(0), TVector<T>(0), 0)
	{
	}
	TBoxSphereBounds(const TVector<T>& InOrigin, const TVector<T>& InBoxExtent, T InSphereRadius)
		: Origin(InOrigin)
		, BoxExtent(InBoxExtent)
		, SphereRadius(InSphereRadius)
	{
	}
	/** The sphere goes through the corners. */
	explicit TBoxSphereBounds(const TBox<T>& Box)
		: TBoxSphereBounds(Box.GetCenter(), Box.GetExtent(), Box.GetExtent().Size())
	{
	}
	explicit TBoxSphereBounds(const TSphere<T>& Sphere)
		: TBoxSphereBounds(Sphere.Center, TVector<T>(Sphere.W), Sphere.W)
	{
	}
	/** About the middle of the box around all points. */
	TBoxSphereBounds(const TVector<T>* Points, uint32 NumPoints)
		: TBoxSphereBounds(TBox<T>(Points, static_cast<int32>(NumPoints)))
	{
		T Squared = 0;
		for (uint32 Index = 0; Index < NumPoints; ++Index)
		{
			Squared = FMath::Max(Squared, TVector<T>::DistSquared(Points[Index], Origin));
		}
		SphereRadius = FMath::Sqrt(Squared);
	}

	bool operator==(const TBoxSphereBounds&) const = default;
	/** Around both. */
	TBoxSphereBounds operator+(const TBoxSphereBounds& Other) const
	{
		TBoxSphereBounds Result(GetBox() + Other.GetBox());
		const T Mine = (Origin - Result.Origin).Size() + SphereRadius;
		const T Theirs = (Other.Origin - Result.Origin).Size() + Other.SphereRadius;
		Result.SphereRadius = FMath::Min(Result.SphereRadius, FMath::Max(Mine, Theirs));
		return Result;
	}
	TBox<T> GetBox() const { return TBox<T>(Origin - BoxExtent, Origin + BoxExtent); }
	TSphere<T> GetSphere() const { return TSphere<T>(Origin, SphereRadius); }
	TBoxSphereBounds ExpandBy(T Amount) const { return TBoxSphereBounds(Origin, BoxExtent + Amount, SphereRadius + Amount); }
	TBoxSphereBounds TransformBy(const TTransform<T>& Transform) const
	{
		TBoxSphereBounds Result(GetBox().TransformBy(Transform));
		Result.SphereRadius = FMath::Min(Result.SphereRadius, SphereRadius * Transform.GetMaximumAxisScale());
		return Result;
	}
	/** 0 inside. */
	T ComputeSquaredDistanceFromBoxToPoint(const TVector<T>& Point) const { return GetBox().ComputeSquaredDistanceToPoint(Point); }
	static bool SpheresIntersect(
		const TBoxSphereBounds& A, const TBoxSphereBounds& B, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER))
	{
		return A.GetSphere().Intersects(B.GetSphere(), Tolerance);
	}
	static bool BoxesIntersect(const TBoxSphereBounds& A, const TBoxSphereBounds& B) { return A.GetBox().Intersect(B.GetBox()); }
	bool ContainsNaN() const { return Origin.ContainsNaN() || BoxExtent.ContainsNaN() || !FMath::IsFinite(SphereRadius); }

	FString ToString() const
	{
		return FString::Printf(
			TEXT("Origin=%s, BoxExtent=(%s), SphereRadius=(%f)"), *Origin.ToString(), *BoxExtent.ToString(), SphereRadius);
	}
	friend FArchive& operator<<(FArchive& Ar, TBoxSphereBounds& Bounds)
	{
		Ar << Bounds.Origin << Bounds.BoxExtent;
		return Private::SerializeReals(Ar, Bounds.SphereRadius);
	}
};
}

#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
/** A box along the axes. Until a point is added it is not valid, whatever its corners. */
template <typename T>
struct TBox
{
	TVector<T> Min;
	TVector<T> Max;
	uint8 IsValid;

	TBox()
		: Min(0)
		, Max(0)
		, IsValid(0)
	{
	}
	explicit TBox(EForceInit)
		: TBox()
	{
	}
	TBox(const TVector<T>& InMin, const TVector<T>& InMax)
		: Min(InMin)
		, Max(InMax)
		, IsValid(1)
	{
	}
	explicit TBox(const TArray<TVector<T>>& Points)
		: TBox(Points.GetData(), Points.Num())
	{
	}
	TBox(const TVector<T>* Points, int32 Count)
		: TBox()
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			*this += Points[Index];
		}
	}
	static TBox BuildAABB(const TVector<T>& Origin, const TVector<T>& Extent) { return TBox(Origin - Extent, Origin + Extent); }

	bool operator==(const TBox& Other) const { return IsValid == Other.IsValid && (!IsValid || (Min == Other.Min && Max == Other.Max)); }
	TBox& operator+=(const TVector<T>& Point)
	{
		Min = IsValid ? Min.ComponentMin(Point) : Point;
		Max = IsValid ? Max.ComponentMax(Point) : Point;
		IsValid = 1;
		return *this;
	}
	TBox& operator+=(const TBox& Other)
	{
		if (Other.IsValid)
		{
			*this += Other.Min;
			*this += Other.Max;
		}
		return *this;
	}
	TBox operator+(const TBox& Other) const { return TBox(*this) += Other; }
	TVector<T> GetCenter() const { return (Min + Max) * T(0.5); }
	TVector<T> GetExtent() const { return (Max - Min) * T(0.5); }
	TVector<T> GetSize() const { return Max - Min; }
	void GetCenterAndExtents(TVector<T>& OutCenter, TVector<T>& OutExtent) const
	{
		OutCenter = GetCenter();
		OutExtent = GetExtent();
	}
	T GetVolume() const
	{
		const TVector<T> Size = GetSize();
		return Size.X * Size.Y * Size.Z;
	}
	TBox ExpandBy(T Width) const { return TBox(Min - Width, Max + Width); }
	TBox ExpandBy(const TVector<T>& V) const { return TBox(Min - V, Max + V); }
	TBox ShiftBy(const TVector<T>& Offset) const { return TBox(Min + Offset, Max + Offset); }
	/** With its centre there. */
	TBox MoveTo(const TVector<T>& Destination) const { return ShiftBy(Destination - GetCenter()); }
	/** What both have in common; not valid when that is nothing. */
	TBox Overlap(const TBox& Other) const
	{
		return Intersect(Other) ? TBox(Min.ComponentMax(Other.Min), Max.ComponentMin(Other.Max)) : TBox();
	}
	TVector<T> GetClosestPointTo(const TVector<T>& Point) const { return Point.BoundToBox(Min, Max); }
	T ComputeSquaredDistanceToPoint(const TVector<T>& Point) const { return TVector<T>::DistSquared(GetClosestPointTo(Point), Point); }
	/** The box along the axes around this one's corners after the transform. */
	template <typename TransformType>
	TBox TransformBy(const TransformType& Transform) const
	{
		TBox Result;
		for (int32 Corner = 0; IsValid && Corner < 8; ++Corner)
		{
			const TVector<T> Point((Corner & 1) != 0 ? Max.X : Min.X, (Corner & 2) != 0 ? Max.Y : Min.Y, (Corner & 4) != 0 ? Max.Z : Min.Z);
			Result += TVector<T>(Transform.TransformPosition(Point));
		}
		return Result;
	}
	bool Equals(const TBox& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return Min.Equals(Other.Min, Tolerance) && Max.Equals(Other.Max, Tolerance);
	}
	bool IsInside(const TBox& Other) const { return IsInside(Other.Min) && IsInside(Other.Max); }
	bool IsInsideOrOn(const TVector<T>& P) const { return GetClosestPointTo(P) == P; }
	bool IsInside(const TVector<T>& P) const
	{
		return P.X > Min.X && P.X < Max.X && P.Y > Min.Y && P.Y < Max.Y && P.Z > Min.Z && P.Z < Max.Z;
	}
	bool Intersect(const TBox& Other) const
	{
		return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y && Min.Z <= Other.Max.Z &&
			Other.Min.Z <= Max.Z;
	}
	void Init() { *this = TBox(); }
	FString ToString() const
	{
		return FString::Printf(
			TEXT("IsValid=%s, Min=(%s), Max=(%s)"), IsValid ? TEXT("true") : TEXT("false"), *Min.ToString(), *Max.ToString());
	}
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TBox& Box) { return Ar << Box.Min << Box.Max << Box.IsValid; }
};
}

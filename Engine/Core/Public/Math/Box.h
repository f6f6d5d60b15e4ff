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
	TBox ExpandBy(T Width) const { return TBox(Min - Width, Max + Width); }
	bool IsInside(const TVector<T>& P) const { return P.X > Min.X && P.X < Max.X && P.Y > Min.Y && P.Y < Max.Y && P.Z > Min.Z && P.Z < Max.Z; }
	bool Intersect(const TBox& Other) const
	{
		return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y && Min.Z <= Other.Max.Z && Other.Min.Z <= Max.Z;
	}
	void Init() { *this = TBox(); }
	FString ToString() const { return FString::Printf(TEXT("IsValid=%s, Min=(%s), Max=(%s)"), IsValid ? TEXT("true") : TEXT("false"), *Min.ToString(), *Max.ToString()); }
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TBox& Box) { return Ar << Box.Min << Box.Max << Box.IsValid; }
};
}

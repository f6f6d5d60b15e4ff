#pragma once

#include "Math/Vector2D.h"

namespace UE::Math
{
/** A rectangle along the axes. Until a point is added it is not valid, whatever its corners. */
template <typename T>
struct TBox2
{
	TVector2<T> Min;
	TVector2<T> Max;
	uint8 bIsValid;

	TBox2()
		: Min(0)
		, Max(0)
		, bIsValid(0)
	{
	}
	explicit TBox2(EForceInit)
		: TBox2()
	{
	}
	TBox2(const TVector2<T>& InMin, const TVector2<T>& InMax)
		: Min(InMin)
		, Max(InMax)
		, bIsValid(1)
	{
	}

	bool operator==(const TBox2& Other) const
	{
		return bIsValid == Other.bIsValid && (!bIsValid || (Min == Other.Min && Max == Other.Max));
	}
	TBox2& operator+=(const TVector2<T>& Point)
	{
		Min = bIsValid ? TVector2<T>(FMath::Min(Min.X, Point.X), FMath::Min(Min.Y, Point.Y)) : Point;
		Max = bIsValid ? TVector2<T>(FMath::Max(Max.X, Point.X), FMath::Max(Max.Y, Point.Y)) : Point;
		bIsValid = 1;
		return *this;
	}
	TVector2<T> GetCenter() const { return (Min + Max) * T(0.5); }
	TBox2& operator+=(const TBox2& Other)
	{
		if (Other.bIsValid)
		{
			*this += Other.Min;
			*this += Other.Max;
		}
		return *this;
	}
	TBox2 operator+(const TBox2& Other) const { return TBox2(*this) += Other; }
	TVector2<T> GetExtent() const { return (Max - Min) * T(0.5); }
	T GetArea() const { return (Max.X - Min.X) * (Max.Y - Min.Y); }
	TBox2 ExpandBy(T Width) const { return TBox2(Min - Width, Max + Width); }
	TBox2 ShiftBy(const TVector2<T>& Offset) const { return TBox2(Min + Offset, Max + Offset); }
	void Init() { *this = TBox2(); }
	TVector2<T> GetSize() const { return Max - Min; }
	bool IsInside(const TVector2<T>& P) const { return P.X > Min.X && P.X < Max.X && P.Y > Min.Y && P.Y < Max.Y; }
	bool Intersect(const TBox2& Other) const
	{
		return Min.X <= Other.Max.X && Other.Min.X <= Max.X && Min.Y <= Other.Max.Y && Other.Min.Y <= Max.Y;
	}
	FString ToString() const
	{
		return FString::Printf(
			TEXT("bIsValid=%s, Min=(%s), Max=(%s)"), bIsValid ? TEXT("true") : TEXT("false"), *Min.ToString(), *Max.ToString());
	}
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TBox2& Box) { return Ar << Box.Min << Box.Max << Box.bIsValid; }
};
}

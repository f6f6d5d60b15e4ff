#pragma once

#include "Math/IntPoint.h"

namespace UE::Math
{
/** A rectangle of whole numbers: Min is in it, Max is not. */
template <typename IntType>
struct TIntRect
{
	TIntPoint<IntType> Min;
	TIntPoint<IntType> Max;

	TIntRect()
		: Min(0, 0)
		, Max(0, 0)
	{
	}
	TIntRect(IntType X0, IntType Y0, IntType X1, IntType Y1)
		: Min(X0, Y0)
		, Max(X1, Y1)
	{
	}
	TIntRect(const TIntPoint<IntType>& InMin, const TIntPoint<IntType>& InMax)
		: Min(InMin)
		, Max(InMax)
	{
	}

	bool operator==(const TIntRect&) const = default;
	IntType Width() const { return Max.X - Min.X; }
	IntType Height() const { return Max.Y - Min.Y; }
	IntType Area() const { return Width() * Height(); }
	TIntPoint<IntType> Size() const { return Max - Min; }
	bool IsEmpty() const { return Width() == 0 && Height() == 0; }
	bool Contains(const TIntPoint<IntType>& P) const { return P.X >= Min.X && P.X < Max.X && P.Y >= Min.Y && P.Y < Max.Y; }
	bool Intersect(const TIntRect& Other) const
	{
		return Other.Min.X < Max.X && Other.Max.X > Min.X && Other.Min.Y < Max.Y && Other.Max.Y > Min.Y;
	}
	/** Cuts this rectangle to the other; empty when they have nothing in common. */
	void Clip(const TIntRect& Other)
	{
		Min = Min.ComponentMax(Other.Min);
		Max = Max.ComponentMin(Other.Max).ComponentMax(Min);
	}
	void Union(const TIntRect& Other)
	{
		Min = Min.ComponentMin(Other.Min);
		Max = Max.ComponentMax(Other.Max);
	}
	FString ToString() const { return FString::Printf(TEXT("Min=(%s) Max=(%s)"), *Min.ToString(), *Max.ToString()); }
	friend FArchive& operator<<(FArchive& Ar, TIntRect& Rect) { return Ar << Rect.Min << Rect.Max; }
};
}

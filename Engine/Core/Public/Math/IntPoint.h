#pragma once

#include "Containers/UnrealString.h"
#include "Math/MathFwd.h"
#include "Misc/Parse.h"
#include "Serialization/Archive.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{
template <typename IntType>
struct TIntPoint
{
	using IntPointComponentType = IntType;

	IntType X;
	IntType Y;

	TIntPoint() = default;
	constexpr TIntPoint(IntType InX, IntType InY)
		: X(InX)
		, Y(InY)
	{
	}
	explicit constexpr TIntPoint(IntType InXY)
		: X(InXY)
		, Y(InXY)
	{
	}
	explicit constexpr TIntPoint(EForceInit)
		: X(0)
		, Y(0)
	{
	}

	static const TIntPoint ZeroValue;
	static const TIntPoint NoneValue;

	constexpr bool operator==(const TIntPoint&) const = default;
	constexpr TIntPoint operator+(const TIntPoint& Other) const { return TIntPoint(X + Other.X, Y + Other.Y); }
	constexpr TIntPoint operator-(const TIntPoint& Other) const { return TIntPoint(X - Other.X, Y - Other.Y); }
	constexpr TIntPoint operator*(IntType Scale) const { return TIntPoint(X * Scale, Y * Scale); }
	constexpr TIntPoint operator/(IntType Divisor) const { return TIntPoint(X / Divisor, Y / Divisor); }
	TIntPoint& operator+=(const TIntPoint& Other) { return *this = *this + Other; }
	TIntPoint& operator-=(const TIntPoint& Other) { return *this = *this - Other; }
	constexpr IntType GetMax() const { return X > Y ? X : Y; }
	constexpr IntType GetMin() const { return X < Y ? X : Y; }
	constexpr TIntPoint ComponentMin(const TIntPoint& Other) const
	{
		return TIntPoint(X < Other.X ? X : Other.X, Y < Other.Y ? Y : Other.Y);
	}
	constexpr TIntPoint ComponentMax(const TIntPoint& Other) const
	{
		return TIntPoint(X > Other.X ? X : Other.X, Y > Other.Y ? Y : Other.Y);
	}

	FString ToString() const { return FString::Printf(TEXT("X=%d Y=%d"), X, Y); }
	bool InitFromString(const FString& Text)
	{
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		return bHasX && bHasY;
	}
	friend FArchive& operator<<(FArchive& Ar, TIntPoint& Point) { return Ar << Point.X << Point.Y; }
	friend uint32 GetTypeHash(const TIntPoint& Point) { return HashCombineFast(::GetTypeHash(Point.X), ::GetTypeHash(Point.Y)); }
};

template <typename IntType>
const TIntPoint<IntType> TIntPoint<IntType>::ZeroValue(0, 0);
template <typename IntType>
const TIntPoint<IntType> TIntPoint<IntType>::NoneValue(INDEX_NONE, INDEX_NONE);
}

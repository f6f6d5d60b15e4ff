#pragma once

#include "Containers/UnrealString.h"
#include "Math/MathFwd.h"
#include "Misc/Parse.h"
#include "Serialization/Archive.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{
template <typename IntType>
struct TIntVector3
{
	using IntVectorComponentType = IntType;

	IntType X;
	IntType Y;
	IntType Z;

	TIntVector3() = default;
	constexpr TIntVector3(IntType InX, IntType InY, IntType InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}
	explicit constexpr TIntVector3(IntType InValue)
		: X(InValue)
		, Y(InValue)
		, Z(InValue)
	{
	}
	explicit constexpr TIntVector3(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
	{
	}

	static const TIntVector3 ZeroValue;
	static const TIntVector3 NoneValue;

	constexpr bool operator==(const TIntVector3&) const = default;
	constexpr TIntVector3 operator+(const TIntVector3& V) const { return TIntVector3(X + V.X, Y + V.Y, Z + V.Z); }
	constexpr TIntVector3 operator-(const TIntVector3& V) const { return TIntVector3(X - V.X, Y - V.Y, Z - V.Z); }
	constexpr TIntVector3 operator*(IntType Scale) const { return TIntVector3(X * Scale, Y * Scale, Z * Scale); }
	constexpr TIntVector3 operator/(IntType Divisor) const { return TIntVector3(X / Divisor, Y / Divisor, Z / Divisor); }
	TIntVector3& operator+=(const TIntVector3& V) { return *this = *this + V; }
	TIntVector3& operator-=(const TIntVector3& V) { return *this = *this - V; }
	constexpr bool IsZero() const { return X == 0 && Y == 0 && Z == 0; }

	FString ToString() const { return FString::Printf(TEXT("X=%d Y=%d Z=%d"), X, Y, Z); }
	bool InitFromString(const FString& Text)
	{
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		const bool bHasZ = FParse::Value(*Text, TEXT("Z="), Z);
		return bHasX && bHasY && bHasZ;
	}
	friend FArchive& operator<<(FArchive& Ar, TIntVector3& V) { return Ar << V.X << V.Y << V.Z; }
	friend uint32 GetTypeHash(const TIntVector3& V)
	{
		return HashCombineFast(HashCombineFast(::GetTypeHash(V.X), ::GetTypeHash(V.Y)), ::GetTypeHash(V.Z));
	}
};

template <typename IntType>
const TIntVector3<IntType> TIntVector3<IntType>::ZeroValue(0, 0, 0);
template <typename IntType>
const TIntVector3<IntType> TIntVector3<IntType>::NoneValue(INDEX_NONE, INDEX_NONE, INDEX_NONE);
}

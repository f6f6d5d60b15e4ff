#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
template <typename T>
struct TVector4
{
	using FReal = T;

	T X;
	T Y;
	T Z;
	T W;

	constexpr TVector4(T InX = 0, T InY = 0, T InZ = 0, T InW = 1)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}
	constexpr TVector4(const TVector<T>& V, T InW = 1)
		: X(V.X)
		, Y(V.Y)
		, Z(V.Z)
		, W(InW)
	{
	}
	explicit constexpr TVector4(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
		, W(0)
	{
	}
	template <typename OtherType>
	requires(!std::is_same_v<OtherType, T>) explicit constexpr TVector4(const TVector4<OtherType>& V)
		: X(static_cast<T>(V.X))
		, Y(static_cast<T>(V.Y))
		, Z(static_cast<T>(V.Z))
		, W(static_cast<T>(V.W))
	{
	}

	constexpr TVector4 operator+(const TVector4& V) const { return TVector4(X + V.X, Y + V.Y, Z + V.Z, W + V.W); }
	constexpr TVector4 operator-(const TVector4& V) const { return TVector4(X - V.X, Y - V.Y, Z - V.Z, W - V.W); }
	constexpr TVector4 operator*(T Scale) const { return TVector4(X * Scale, Y * Scale, Z * Scale, W * Scale); }
	constexpr TVector4 operator*(const TVector4& V) const { return TVector4(X * V.X, Y * V.Y, Z * V.Z, W * V.W); }
	constexpr TVector4 operator/(T Scale) const { return TVector4(X / Scale, Y / Scale, Z / Scale, W / Scale); }
	constexpr TVector4 operator-() const { return TVector4(-X, -Y, -Z, -W); }
	constexpr bool operator==(const TVector4&) const = default;
	static constexpr TVector4 Zero() { return TVector4(0, 0, 0, 0); }
	static constexpr TVector4 One() { return TVector4(1, 1, 1, 1); }
	bool Equals(const TVector4& V, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance &&
			FMath::Abs(W - V.W) <= Tolerance;
	}
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W); }

	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f W=%3.3f"), X, Y, Z, W); }
	/** Reads "X= Y= Z= W=", where W may be missing and is 1 then. */
	bool InitFromString(const FString& Text)
	{
		X = Y = Z = 0;
		W = 1;
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		const bool bHasZ = FParse::Value(*Text, TEXT("Z="), Z);
		FParse::Value(*Text, TEXT("W="), W);
		return bHasX && bHasY && bHasZ;
	}
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, X, Y, Z, W);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TVector4& V) { return Private::SerializeReals(Ar, V.X, V.Y, V.Z, V.W); }
	friend uint32 GetTypeHash(const TVector4& V) { return HashCombineFast(GetTypeHash(TVector<T>(V)), ::GetTypeHash(V.W)); }
};
}

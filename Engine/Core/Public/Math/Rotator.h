#pragma once

#include "Math/Vector.h"

namespace UE::Math
{
/** A rotation by angles in degrees: Pitch looks up, Yaw turns right, Roll tilts clockwise. */
template <typename T>
struct TRotator
{
	using FReal = T;

	T Pitch;
	T Yaw;
	T Roll;

	TRotator() = default;
	explicit constexpr TRotator(T InF)
		: Pitch(InF)
		, Yaw(InF)
		, Roll(InF)
	{
	}
	constexpr TRotator(T InPitch, T InYaw, T InRoll)
		: Pitch(InPitch)
		, Yaw(InYaw)
		, Roll(InRoll)
	{
	}
	explicit constexpr TRotator(EForceInit)
		: Pitch(0)
		, Yaw(0)
		, Roll(0)
	{
	}
	explicit TRotator(const TQuat<T>& Quat);
	template <typename OtherType>
	requires(!std::is_same_v<OtherType, T>) explicit constexpr TRotator(const TRotator<OtherType>& R)
		: Pitch(static_cast<T>(R.Pitch))
		, Yaw(static_cast<T>(R.Yaw))
		, Roll(static_cast<T>(R.Roll))
	{
	}

	static const TRotator ZeroRotator;

	constexpr TRotator operator+(const TRotator& R) const { return TRotator(Pitch + R.Pitch, Yaw + R.Yaw, Roll + R.Roll); }
	constexpr TRotator operator-(const TRotator& R) const { return TRotator(Pitch - R.Pitch, Yaw - R.Yaw, Roll - R.Roll); }
	constexpr TRotator operator*(T Scale) const { return TRotator(Pitch * Scale, Yaw * Scale, Roll * Scale); }
	TRotator& operator+=(const TRotator& R) { return *this = *this + R; }
	TRotator& operator-=(const TRotator& R) { return *this = *this - R; }
	TRotator& operator*=(T Scale) { return *this = *this * Scale; }
	constexpr TRotator operator-() const { return TRotator(-Pitch, -Yaw, -Roll); }
	TRotator Add(T DeltaPitch, T DeltaYaw, T DeltaRoll) { return *this += TRotator(DeltaPitch, DeltaYaw, DeltaRoll); }
	constexpr bool operator==(const TRotator&) const = default;

	bool IsZero() const { return ClampAxis(Pitch) == 0 && ClampAxis(Yaw) == 0 && ClampAxis(Roll) == 0; }
	bool IsNearlyZero(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const { return Equals(TRotator(0), Tolerance); }
	/** Compares angles, so that 360 equals 0. */
	bool Equals(const TRotator& R, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(NormalizeAxis(Pitch - R.Pitch)) <= Tolerance && FMath::Abs(NormalizeAxis(Yaw - R.Yaw)) <= Tolerance &&
			FMath::Abs(NormalizeAxis(Roll - R.Roll)) <= Tolerance;
	}
	bool ContainsNaN() const { return !FMath::IsFinite(Pitch) || !FMath::IsFinite(Yaw) || !FMath::IsFinite(Roll); }
	/** The forward direction after the rotation. */
	TVector<T> Vector() const
	{
		const T PitchRadians = FMath::DegreesToRadians(Pitch);
		const T YawRadians = FMath::DegreesToRadians(Yaw);
		const T Horizontal = FMath::Cos(PitchRadians);
		return TVector<T>(Horizontal * FMath::Cos(YawRadians), Horizontal * FMath::Sin(YawRadians), FMath::Sin(PitchRadians));
	}
	TQuat<T> Quaternion() const;
	TVector<T> Euler() const { return TVector<T>(Roll, Pitch, Yaw); }
	static TRotator MakeFromEuler(const TVector<T>& Euler) { return TRotator(Euler.Y, Euler.Z, Euler.X); }
	TVector<T> RotateVector(const TVector<T>& V) const;
	TVector<T> UnrotateVector(const TVector<T>& V) const;
	TRotator GetInverse() const;
	/** The angle in [0, 360). */
	static T ClampAxis(T Angle)
	{
		const T Result = FMath::Fmod(Angle, T(360));
		return Result < 0 ? Result + T(360) : Result;
	}
	/** The angle in (-180, 180]. */
	static T NormalizeAxis(T Angle)
	{
		const T Result = ClampAxis(Angle);
		return Result > T(180) ? Result - T(360) : Result;
	}
	TRotator Clamp() const { return TRotator(ClampAxis(Pitch), ClampAxis(Yaw), ClampAxis(Roll)); }
	TRotator GetNormalized() const { return TRotator(NormalizeAxis(Pitch), NormalizeAxis(Yaw), NormalizeAxis(Roll)); }
	TRotator GetDenormalized() const { return Clamp(); }
	void Normalize() { *this = GetNormalized(); }
	/** The other angles that give the same rotation. */
	TRotator GetEquivalentRotator() const { return TRotator(T(180) - Pitch, Yaw + T(180), Roll + T(180)); }
	T GetManhattanDistance(const TRotator& R) const
	{
		return FMath::Abs(Yaw - R.Yaw) + FMath::Abs(Pitch - R.Pitch) + FMath::Abs(Roll - R.Roll);
	}
	/** A multiple of the grid's angles that is nearest; an angle of 0 in the grid leaves that one alone. */
	TRotator GridSnap(const TRotator& Grid) const
	{
		return TRotator(FMath::GridSnap(Pitch, Grid.Pitch), FMath::GridSnap(Yaw, Grid.Yaw), FMath::GridSnap(Roll, Grid.Roll));
	}

	FString ToString() const { return FString::Printf(TEXT("P=%f Y=%f R=%f"), Pitch, Yaw, Roll); }
	FString ToCompactString() const { return FString::Printf(TEXT("R(P=%.2f, Y=%.2f, R=%.2f)"), Pitch, Yaw, Roll); }
	bool InitFromString(const FString& Text)
	{
		Pitch = Yaw = Roll = 0;
		const bool bHasPitch = FParse::Value(*Text, TEXT("P="), Pitch);
		const bool bHasYaw = FParse::Value(*Text, TEXT("Y="), Yaw);
		const bool bHasRoll = FParse::Value(*Text, TEXT("R="), Roll);
		return bHasPitch && bHasYaw && bHasRoll;
	}
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, Pitch, Yaw, Roll);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TRotator& R) { return Private::SerializeReals(Ar, R.Pitch, R.Yaw, R.Roll); }
	friend uint32 GetTypeHash(const TRotator& R)
	{
		return HashCombineFast(HashCombineFast(::GetTypeHash(R.Pitch), ::GetTypeHash(R.Yaw)), ::GetTypeHash(R.Roll));
	}
};

template <typename T>
const TRotator<T> TRotator<T>::ZeroRotator(0, 0, 0);

template <typename T, typename U>
TRotator<T> operator*(U Scale, const TRotator<T>& R) requires std::is_arithmetic_v<U>
{
	return R * static_cast<T>(Scale);
}

template <typename T>
TRotator<T> TVector<T>::ToOrientationRotator() const
{
	return TRotator<T>(
		FMath::RadiansToDegrees(FMath::Atan2(Z, FMath::Sqrt(X * X + Y * Y))), FMath::RadiansToDegrees(FMath::Atan2(Y, X)), 0);
}
}

template <typename T, typename U>
UE::Math::TRotator<T> FMath::Lerp(const UE::Math::TRotator<T>& A, const UE::Math::TRotator<T>& B, const U& Alpha)
{
	return A + (B - A).GetNormalized() * static_cast<T>(Alpha);
}

#include "Math/Quat.h"

#pragma once

#include "Math/Rotator.h"

namespace UE::Math
{
/** A rotation as a unit quaternion. A * B turns by B first and then by A. */
template <typename T>
struct TQuat
{
	using FReal = T;

	T X;
	T Y;
	T Z;
	T W;

	TQuat() = default;
	constexpr TQuat(T InX, T InY, T InZ, T InW)
		: X(InX)
		, Y(InY)
		, Z(InZ)
		, W(InW)
	{
	}
	/** Zero with ForceInitToZero, no rotation with ForceInit. */
	explicit constexpr TQuat(EForceInit ZeroOrNot)
		: X(0)
		, Y(0)
		, Z(0)
		, W(ZeroOrNot == ForceInitToZero ? T(0) : T(1))
	{
	}
	explicit TQuat(const TRotator<T>& R)
		: TQuat(R.Quaternion())
	{
	}
	/** By an angle in radians about an axis of length 1. */
	TQuat(const TVector<T>& Axis, T AngleRad)
	{
		const T Sine = FMath::Sin(AngleRad / 2);
		*this = TQuat(Axis.X * Sine, Axis.Y * Sine, Axis.Z * Sine, FMath::Cos(AngleRad / 2));
	}
	template <typename OtherType>
	requires(!std::is_same_v<OtherType, T>) explicit constexpr TQuat(const TQuat<OtherType>& Q)
		: X(static_cast<T>(Q.X))
		, Y(static_cast<T>(Q.Y))
		, Z(static_cast<T>(Q.Z))
		, W(static_cast<T>(Q.W))
	{
	}

	static const TQuat Identity;

	constexpr TQuat operator*(const TQuat& Q) const
	{
		return TQuat(W * Q.X + X * Q.W + Y * Q.Z - Z * Q.Y,
			W * Q.Y - X * Q.Z + Y * Q.W + Z * Q.X,
			W * Q.Z + X * Q.Y - Y * Q.X + Z * Q.W,
			W * Q.W - X * Q.X - Y * Q.Y - Z * Q.Z);
	}
	TQuat& operator*=(const TQuat& Q) { return *this = *this * Q; }
	constexpr TQuat operator*(T Scale) const { return TQuat(X * Scale, Y * Scale, Z * Scale, W * Scale); }
	constexpr TQuat operator+(const TQuat& Q) const { return TQuat(X + Q.X, Y + Q.Y, Z + Q.Z, W + Q.W); }
	constexpr TQuat operator-(const TQuat& Q) const { return TQuat(X - Q.X, Y - Q.Y, Z - Q.Z, W - Q.W); }
	constexpr TQuat operator-() const { return TQuat(-X, -Y, -Z, -W); }
	constexpr T operator|(const TQuat& Q) const { return X * Q.X + Y * Q.Y + Z * Q.Z + W * Q.W; }
	TVector<T> operator*(const TVector<T>& V) const { return RotateVector(V); }
	constexpr bool operator==(const TQuat&) const = default;

	/** Compares rotations: a quaternion and its negative are the same. */
	bool Equals(const TQuat& Q, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		const auto Near = [Tolerance](const TQuat& D)
		{ return FMath::Max(FMath::Max(FMath::Abs(D.X), FMath::Abs(D.Y)), FMath::Max(FMath::Abs(D.Z), FMath::Abs(D.W))) <= Tolerance; };
		return Near(*this - Q) || Near(*this + Q);
	}
	bool IsIdentity(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER)) const { return Equals(Identity, Tolerance); }
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z) || !FMath::IsFinite(W); }
	T SizeSquared() const { return *this | *this; }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	bool IsNormalized() const { return FMath::Abs(T(1) - SizeSquared()) < static_cast<T>(THRESH_VECTOR_NORMALIZED); }
	void Normalize(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		const T Squared = SizeSquared();
		*this = Squared >= Tolerance ? *this * FMath::InvSqrt(Squared) : Identity;
	}
	TQuat GetNormalized() const
	{
		TQuat Result(*this);
		Result.Normalize();
		return Result;
	}
	constexpr TQuat Inverse() const { return TQuat(-X, -Y, -Z, W); }
	TVector<T> RotateVector(const TVector<T>& V) const
	{
		const TVector<T> Axis(X, Y, Z);
		const TVector<T> Twice = (Axis ^ V) * T(2);
		return V + Twice * W + (Axis ^ Twice);
	}
	TVector<T> UnrotateVector(const TVector<T>& V) const { return Inverse().RotateVector(V); }
	T GetAngle() const { return T(2) * FMath::Acos(W); }
	/** Between both rotations, in radians. */
	T AngularDistance(const TQuat& Q) const
	{
		const T Inner = *this | Q;
		return FMath::Acos(T(2) * Inner * Inner - T(1));
	}
	void ToAxisAndAngle(TVector<T>& OutAxis, T& OutAngleRadians) const
	{
		OutAxis = GetRotationAxis();
		OutAngleRadians = GetAngle();
	}
	TVector<T> GetAxisX() const { return GetForwardVector(); }
	TVector<T> GetAxisY() const { return GetRightVector(); }
	TVector<T> GetAxisZ() const { return GetUpVector(); }
	/** The shortest rotation that turns one direction to the other; neither needs to be of length 1. */
	static TQuat FindBetween(const TVector<T>& A, const TVector<T>& B) { return FindBetweenVectors(A, B); }
	static TQuat FindBetweenNormals(const TVector<T>& A, const TVector<T>& B) { return FindBetweenVectors(A, B); }
	static TQuat FindBetweenVectors(const TVector<T>& A, const TVector<T>& B)
	{
		const T Norm = FMath::Sqrt(A.SizeSquared() * B.SizeSquared());
		const T HalfWay = Norm + (A | B);
		if (HalfWay > T(1e-6) * Norm)
		{
			const TVector<T> Axis = A ^ B;
			return TQuat(Axis.X, Axis.Y, Axis.Z, HalfWay).GetNormalized();
		}
		// Opposite directions: any axis at a right angle will do.
		return (FMath::Abs(A.X) > FMath::Abs(A.Y) ? TQuat(-A.Z, 0, A.X, 0) : TQuat(0, -A.Z, A.Y, 0)).GetNormalized();
	}
	static TQuat MakeFromEuler(const TVector<T>& Euler) { return TRotator<T>::MakeFromEuler(Euler).Quaternion(); }
	TVector<T> GetRotationAxis() const
	{
		const TVector<T> Axis(X, Y, Z);
		return Axis.GetSafeNormal(static_cast<T>(UE_DOUBLE_SMALL_NUMBER), TVector<T>(1, 0, 0));
	}
	TVector<T> GetForwardVector() const { return RotateVector(TVector<T>(1, 0, 0)); }
	TVector<T> GetRightVector() const { return RotateVector(TVector<T>(0, 1, 0)); }
	TVector<T> GetUpVector() const { return RotateVector(TVector<T>(0, 0, 1)); }
	TVector<T> Vector() const { return GetForwardVector(); }
	TVector<T> Euler() const { return Rotator().Euler(); }

	TRotator<T> Rotator() const
	{
		// Straight up and straight down, yaw and roll turn about the same axis, and all of it counts as yaw.
		constexpr T Threshold = T(0.4999995);
		const T SinHalfPitch = Z * X - W * Y;
		const T Yaw = FMath::RadiansToDegrees(FMath::Atan2(T(2) * (W * Z + X * Y), T(1) - T(2) * (Y * Y + Z * Z)));
		const T TwiceXAngle = T(2) * FMath::RadiansToDegrees(FMath::Atan2(X, W));
		if (SinHalfPitch < -Threshold)
		{
			return TRotator<T>(-90, Yaw, TRotator<T>::NormalizeAxis(-Yaw - TwiceXAngle));
		}
		if (SinHalfPitch > Threshold)
		{
			return TRotator<T>(90, Yaw, TRotator<T>::NormalizeAxis(Yaw - TwiceXAngle));
		}
		const T Roll = FMath::Atan2(T(-2) * (W * X + Y * Z), T(1) - T(2) * (X * X + Y * Y));
		return TRotator<T>(FMath::RadiansToDegrees(FMath::Asin(T(2) * SinHalfPitch)), Yaw, FMath::RadiansToDegrees(Roll));
	}
	explicit TQuat(const TMatrix<T>& M);
	static TQuat MakeFromRotator(const TRotator<T>& R) { return R.Quaternion(); }
	/** The way between two rotations at a constant speed, the shorter way round. */
	static TQuat Slerp(const TQuat& From, const TQuat& To, T Alpha)
	{
		const T RawCosine = From | To;
		const T Cosine = FMath::Abs(RawCosine);
		T ScaleFrom = T(1) - Alpha;
		T ScaleTo = Alpha;
		if (Cosine < T(0.9999))
		{
			const T Omega = FMath::Acos(Cosine);
			const T InverseSine = T(1) / FMath::Sin(Omega);
			ScaleFrom = FMath::Sin((T(1) - Alpha) * Omega) * InverseSine;
			ScaleTo = FMath::Sin(Alpha * Omega) * InverseSine;
		}
		return (From * ScaleFrom + To * (RawCosine >= 0 ? ScaleTo : -ScaleTo)).GetNormalized();
	}

	FString ToString() const { return FString::Printf(TEXT("X=%.9f Y=%.9f Z=%.9f W=%.9f"), X, Y, Z, W); }
	bool InitFromString(const FString& Text)
	{
		X = Y = Z = 0;
		W = 1;
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		const bool bHasZ = FParse::Value(*Text, TEXT("Z="), Z);
		const bool bHasW = FParse::Value(*Text, TEXT("W="), W);
		return bHasX && bHasY && bHasZ && bHasW;
	}
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, X, Y, Z, W);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TQuat& Q) { return Private::SerializeReals(Ar, Q.X, Q.Y, Q.Z, Q.W); }
	friend uint32 GetTypeHash(const TQuat& Q)
	{
		return HashCombineFast(
			HashCombineFast(::GetTypeHash(Q.X), ::GetTypeHash(Q.Y)), HashCombineFast(::GetTypeHash(Q.Z), ::GetTypeHash(Q.W)));
	}
};

template <typename T>
const TQuat<T> TQuat<T>::Identity(0, 0, 0, 1);

template <typename T>
TQuat<T> TRotator<T>::Quaternion() const
{
	T SinPitch, CosPitch, SinYaw, CosYaw, SinRoll, CosRoll;
	FMath::SinCos(&SinPitch, &CosPitch, FMath::DegreesToRadians(Pitch) / 2);
	FMath::SinCos(&SinYaw, &CosYaw, FMath::DegreesToRadians(Yaw) / 2);
	FMath::SinCos(&SinRoll, &CosRoll, FMath::DegreesToRadians(Roll) / 2);
	return TQuat<T>(CosRoll * SinPitch * SinYaw - SinRoll * CosPitch * CosYaw,
		-CosRoll * SinPitch * CosYaw - SinRoll * CosPitch * SinYaw,
		CosRoll * CosPitch * SinYaw - SinRoll * SinPitch * CosYaw,
		CosRoll * CosPitch * CosYaw + SinRoll * SinPitch * SinYaw);
}

template <typename T>
TRotator<T>::TRotator(const TQuat<T>& Quat)
	: TRotator(Quat.Rotator())
{
}

template <typename T>
TVector<T> TRotator<T>::RotateVector(const TVector<T>& V) const
{
	return Quaternion().RotateVector(V);
}

template <typename T>
TVector<T> TRotator<T>::UnrotateVector(const TVector<T>& V) const
{
	return Quaternion().UnrotateVector(V);
}

template <typename T>
TRotator<T> TRotator<T>::GetInverse() const
{
	return Quaternion().Inverse().Rotator();
}

template <typename T>
TQuat<T> TVector<T>::ToOrientationQuat() const
{
	return ToOrientationRotator().Quaternion();
}
}

template <typename T, typename U>
UE::Math::TQuat<T> FMath::Lerp(const UE::Math::TQuat<T>& A, const UE::Math::TQuat<T>& B, const U& Alpha)
{
	return UE::Math::TQuat<T>::Slerp(A, B, static_cast<T>(Alpha));
}

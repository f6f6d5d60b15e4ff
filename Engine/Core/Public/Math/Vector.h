#pragma once

#include "Math/IntVector.h"
#include "Math/RealSerialization.h"
#include "Math/UnrealMathUtility.h"
#include "Templates/TypeHash.h"

namespace UE::Math
{
/** Three real numbers: a place or a direction. Lengths are centimetres in the world; X is forward, Y right, Z up. */
template <typename T>
struct TVector
{
	using FReal = T;

	T X;
	T Y;
	T Z;

	TVector() = default;
	explicit constexpr TVector(T InF)
		: X(InF)
		, Y(InF)
		, Z(InF)
	{
	}
	constexpr TVector(T InX, T InY, T InZ)
		: X(InX)
		, Y(InY)
		, Z(InZ)
	{
	}
	explicit TVector(const TVector2<T>& V, T InZ = 0)
		: X(V.X)
		, Y(V.Y)
		, Z(InZ)
	{
	}
	explicit TVector(const TVector4<T>& V)
		: X(V.X)
		, Y(V.Y)
		, Z(V.Z)
	{
	}
	explicit TVector(const FIntVector& V)
		: X(static_cast<T>(V.X))
		, Y(static_cast<T>(V.Y))
		, Z(static_cast<T>(V.Z))
	{
	}
	explicit constexpr TVector(EForceInit)
		: X(0)
		, Y(0)
		, Z(0)
	{
	}
	template <typename OtherType>
	requires(!std::is_same_v<OtherType, T>) explicit constexpr TVector(const TVector<OtherType>& V)
		: X(static_cast<T>(V.X))
		, Y(static_cast<T>(V.Y))
		, Z(static_cast<T>(V.Z))
	{
	}

	static const TVector ZeroVector;
	static const TVector OneVector;
	static const TVector UpVector;
	static const TVector DownVector;
	static const TVector ForwardVector;
	static const TVector BackwardVector;
	static const TVector RightVector;
	static const TVector LeftVector;
	static const TVector XAxisVector;
	static const TVector YAxisVector;
	static const TVector ZAxisVector;
	static constexpr TVector Zero() { return TVector(0, 0, 0); }
	static constexpr TVector One() { return TVector(1, 1, 1); }
	static constexpr TVector UnitX() { return TVector(1, 0, 0); }
	static constexpr TVector UnitY() { return TVector(0, 1, 0); }
	static constexpr TVector UnitZ() { return TVector(0, 0, 1); }

	constexpr TVector operator+(const TVector& V) const { return TVector(X + V.X, Y + V.Y, Z + V.Z); }
	constexpr TVector operator-(const TVector& V) const { return TVector(X - V.X, Y - V.Y, Z - V.Z); }
	constexpr TVector operator*(const TVector& V) const { return TVector(X * V.X, Y * V.Y, Z * V.Z); }
	constexpr TVector operator/(const TVector& V) const { return TVector(X / V.X, Y / V.Y, Z / V.Z); }
	constexpr TVector operator+(T Bias) const { return TVector(X + Bias, Y + Bias, Z + Bias); }
	constexpr TVector operator-(T Bias) const { return TVector(X - Bias, Y - Bias, Z - Bias); }
	constexpr TVector operator*(T Scale) const { return TVector(X * Scale, Y * Scale, Z * Scale); }
	constexpr TVector operator/(T Scale) const { return TVector(X / Scale, Y / Scale, Z / Scale); }
	constexpr TVector operator-() const { return TVector(-X, -Y, -Z); }
	friend constexpr TVector operator*(T Scale, const TVector& V) { return V * Scale; }
	TVector& operator+=(const TVector& V) { return *this = *this + V; }
	TVector& operator-=(const TVector& V) { return *this = *this - V; }
	TVector& operator*=(const TVector& V) { return *this = *this * V; }
	TVector& operator/=(const TVector& V) { return *this = *this / V; }
	TVector& operator*=(T Scale) { return *this = *this * Scale; }
	TVector& operator/=(T Scale) { return *this = *this / Scale; }
	constexpr bool operator==(const TVector& V) const = default;
	T& operator[](int32 Index) { return Component(Index); }
	T operator[](int32 Index) const { return const_cast<TVector*>(this)->Component(Index); }
	T& Component(int32 Index)
	{
		check(Index >= 0 && Index < 3);
		T* const Components[] = {&X, &Y, &Z};
		return *Components[Index];
	}
	/** Cross product. */
	constexpr TVector operator^(const TVector& V) const { return TVector(Y * V.Z - Z * V.Y, Z * V.X - X * V.Z, X * V.Y - Y * V.X); }
	/** Dot product. */
	constexpr T operator|(const TVector& V) const { return X * V.X + Y * V.Y + Z * V.Z; }
	constexpr TVector Cross(const TVector& V) const { return *this ^ V; }
	constexpr T Dot(const TVector& V) const { return *this | V; }
	static constexpr TVector CrossProduct(const TVector& A, const TVector& B) { return A ^ B; }
	static constexpr T DotProduct(const TVector& A, const TVector& B) { return A | B; }

	bool Equals(const TVector& V, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - V.X) <= Tolerance && FMath::Abs(Y - V.Y) <= Tolerance && FMath::Abs(Z - V.Z) <= Tolerance;
	}
	bool AllComponentsEqual(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Abs(X - Y) <= Tolerance && FMath::Abs(X - Z) <= Tolerance && FMath::Abs(Y - Z) <= Tolerance;
	}
	bool IsZero() const { return X == 0 && Y == 0 && Z == 0; }
	bool IsNearlyZero(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return FMath::Max3(FMath::Abs(X), FMath::Abs(Y), FMath::Abs(Z)) <= Tolerance;
	}
	bool ContainsNaN() const { return !FMath::IsFinite(X) || !FMath::IsFinite(Y) || !FMath::IsFinite(Z); }
	void Set(T InX, T InY, T InZ) { *this = TVector(InX, InY, InZ); }
	T GetMax() const { return FMath::Max3(X, Y, Z); }
	T GetMin() const { return FMath::Min3(X, Y, Z); }
	T GetAbsMax() const { return GetAbs().GetMax(); }
	TVector GetAbs() const { return TVector(FMath::Abs(X), FMath::Abs(Y), FMath::Abs(Z)); }
	TVector ComponentMin(const TVector& V) const { return TVector(FMath::Min(X, V.X), FMath::Min(Y, V.Y), FMath::Min(Z, V.Z)); }
	TVector ComponentMax(const TVector& V) const { return TVector(FMath::Max(X, V.X), FMath::Max(Y, V.Y), FMath::Max(Z, V.Z)); }
	T Size() const { return FMath::Sqrt(SizeSquared()); }
	T Length() const { return Size(); }
	T SizeSquared() const { return *this | *this; }
	T SquaredLength() const { return SizeSquared(); }
	T Size2D() const { return FMath::Sqrt(X * X + Y * Y); }
	T SizeSquared2D() const { return X * X + Y * Y; }
	static T Dist(const TVector& A, const TVector& B) { return (A - B).Size(); }
	static T Distance(const TVector& A, const TVector& B) { return (A - B).Size(); }
	static T DistSquared(const TVector& A, const TVector& B) { return (A - B).SizeSquared(); }
	static T Dist2D(const TVector& A, const TVector& B) { return (A - B).Size2D(); }
	bool Normalize(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		const T Squared = SizeSquared();
		if (Squared <= Tolerance)
		{
			return false;
		}
		*this *= FMath::InvSqrt(Squared);
		return true;
	}
	bool IsNormalized() const { return FMath::Abs(T(1) - SizeSquared()) < static_cast<T>(THRESH_VECTOR_NORMALIZED); }
	bool IsUnit(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const { return FMath::Abs(T(1) - SizeSquared()) < Tolerance; }
	TVector GetUnsafeNormal() const { return *this * FMath::InvSqrt(SizeSquared()); }
	/** The direction, or the zero vector if there is none to tell. */
	TVector GetSafeNormal(T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER), const TVector& ResultIfZero = TVector(0)) const
	{
		TVector Result(*this);
		return Result.Normalize(Tolerance) ? Result : ResultIfZero;
	}
	TVector GetSafeNormal2D() const { return TVector(X, Y, 0).GetSafeNormal(); }
	/** A zero vector gives the zero direction and no length. */
	void ToDirectionAndLength(TVector& OutDirection, T& OutLength) const
	{
		OutLength = Size();
		OutDirection = OutLength > static_cast<T>(UE_DOUBLE_SMALL_NUMBER) ? *this / OutLength : TVector(0);
	}
	TVector GetClampedToMaxSize(T MaxSize) const { return GetClampedToSize(0, MaxSize); }
	TVector GetClampedToSize(T MinSize, T MaxSize) const
	{
		TVector Direction;
		T Length;
		ToDirectionAndLength(Direction, Length);
		return Direction * FMath::Clamp(Length, MinSize, MaxSize);
	}
	TVector GetSignVector() const { return TVector(X >= 0 ? T(1) : T(-1), Y >= 0 ? T(1) : T(-1), Z >= 0 ? T(1) : T(-1)); }
	/** One through each component; 0 gives the largest number that there is room for. */
	TVector Reciprocal() const
	{
		const auto Inverse = [](T Value)
		{ return Value != 0 ? T(1) / Value : static_cast<T>(UE_BIG_NUMBER); };
		return TVector(Inverse(X), Inverse(Y), Inverse(Z));
	}
	T GetAbsMin() const { return GetAbs().GetMin(); }
	bool IsUniform(T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const { return AllComponentsEqual(Tolerance); }
	TVector GridSnap(T Grid) const { return TVector(FMath::GridSnap(X, Grid), FMath::GridSnap(Y, Grid), FMath::GridSnap(Z, Grid)); }
	TVector BoundToCube(T Radius) const { return BoundToBox(TVector(-Radius), TVector(Radius)); }
	TVector BoundToBox(const TVector& Min, const TVector& Max) const { return ComponentMax(Min).ComponentMin(Max); }
	/** The angle in radians about Z, from forward to right. */
	T HeadingAngle() const { return FMath::Atan2(Y, X); }
	/** Turned about an axis of length 1. */
	TVector RotateAngleAxisRad(T AngleRadians, const TVector& Axis) const
	{
		const T Cosine = FMath::Cos(AngleRadians);
		return *this * Cosine + (Axis ^ *this) * FMath::Sin(AngleRadians) + Axis * ((Axis | *this) * (T(1) - Cosine));
	}
	TVector RotateAngleAxis(T AngleDegrees, const TVector& Axis) const
	{
		return RotateAngleAxisRad(FMath::DegreesToRadians(AngleDegrees), Axis);
	}
	/** As a mirror with that normal throws it back. */
	TVector MirrorByVector(const TVector& Normal) const { return *this - Normal * (T(2) * (*this | Normal)); }
	TVector ProjectOnTo(const TVector& A) const { return A * ((*this | A) / (A | A)); }
	TVector ProjectOnToNormal(const TVector& Normal) const { return Normal * (*this | Normal); }
	/** What is left without the part along the normal. */
	static TVector VectorPlaneProject(const TVector& V, const TVector& Normal) { return V - V.ProjectOnToNormal(Normal); }
	/** Signed, positive on the side of the normal. */
	static T PointPlaneDist(const TVector& Point, const TVector& Base, const TVector& Normal) { return (Point - Base) | Normal; }
	static TVector PointPlaneProject(const TVector& Point, const TVector& Base, const TVector& Normal)
	{
		return Point - Normal * PointPlaneDist(Point, Base, Normal);
	}
	static T DistSquared2D(const TVector& A, const TVector& B) { return (A - B).SizeSquared2D(); }
	static T DistXY(const TVector& A, const TVector& B) { return (A - B).Size2D(); }
	static TVector Max(const TVector& A, const TVector& B) { return A.ComponentMax(B); }
	static TVector Min(const TVector& A, const TVector& B) { return A.ComponentMin(B); }
	/** Of two directions of length 1: whether they are the same line, the same direction, or at a right angle. */
	static bool Parallel(const TVector& A, const TVector& B, T CosineThreshold = static_cast<T>(THRESH_NORMALS_ARE_PARALLEL))
	{
		return FMath::Abs(A | B) >= CosineThreshold;
	}
	static bool Coincident(const TVector& A, const TVector& B, T CosineThreshold = static_cast<T>(THRESH_NORMALS_ARE_PARALLEL))
	{
		return (A | B) >= CosineThreshold;
	}
	static bool Orthogonal(const TVector& A, const TVector& B, T CosineThreshold = static_cast<T>(THRESH_NORMALS_ARE_ORTHOGONAL))
	{
		return FMath::Abs(A | B) <= CosineThreshold;
	}
	/** The rotation that turns forward to this direction, without roll. */
	TRotator<T> ToOrientationRotator() const;
	TRotator<T> Rotation() const { return ToOrientationRotator(); }
	TQuat<T> ToOrientationQuat() const;

	FString ToString() const { return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), X, Y, Z); }
	FString ToCompactString() const { return FString::Printf(TEXT("V(X=%.2f, Y=%.2f, Z=%.2f)"), X, Y, Z); }
	/** Reads "X= Y= Z=". Answers false, with zeros for what was missing, unless all three were there. */
	bool InitFromString(const FString& Text)
	{
		X = Y = Z = 0;
		const bool bHasX = FParse::Value(*Text, TEXT("X="), X);
		const bool bHasY = FParse::Value(*Text, TEXT("Y="), Y);
		const bool bHasZ = FParse::Value(*Text, TEXT("Z="), Z);
		return bHasX && bHasY && bHasZ;
	}
	bool Serialize(FArchive& Ar)
	{
		Private::SerializeReals(Ar, X, Y, Z);
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TVector& V) { return Private::SerializeReals(Ar, V.X, V.Y, V.Z); }
	friend uint32 GetTypeHash(const TVector& V)
	{
		return HashCombineFast(HashCombineFast(::GetTypeHash(V.X), ::GetTypeHash(V.Y)), ::GetTypeHash(V.Z));
	}
};

template <typename T>
const TVector<T> TVector<T>::ZeroVector(0, 0, 0);
template <typename T>
const TVector<T> TVector<T>::OneVector(1, 1, 1);
template <typename T>
const TVector<T> TVector<T>::UpVector(0, 0, 1);
template <typename T>
const TVector<T> TVector<T>::DownVector(0, 0, -1);
template <typename T>
const TVector<T> TVector<T>::ForwardVector(1, 0, 0);
template <typename T>
const TVector<T> TVector<T>::BackwardVector(-1, 0, 0);
template <typename T>
const TVector<T> TVector<T>::RightVector(0, 1, 0);
template <typename T>
const TVector<T> TVector<T>::LeftVector(0, -1, 0);
template <typename T>
const TVector<T> TVector<T>::XAxisVector(1, 0, 0);
template <typename T>
const TVector<T> TVector<T>::YAxisVector(0, 1, 0);
template <typename T>
const TVector<T> TVector<T>::ZAxisVector(0, 0, 1);
}

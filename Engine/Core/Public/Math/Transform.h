#pragma once

#include "Math/Matrix.h"
#include "Math/Quat.h"

namespace UE::Math
{
/** Scales, then turns, then moves. A * B goes through A first, then through B. */
template <typename T>
struct TTransform
{
	TQuat<T> Rotation;
	TVector<T> Translation;
	TVector<T> Scale3D;

	constexpr TTransform()
		: Rotation(0, 0, 0, 1)
		, Translation(0)
		, Scale3D(1)
	{
	}
	explicit TTransform(const TVector<T>& InTranslation)
		: Rotation(0, 0, 0, 1)
		, Translation(InTranslation)
		, Scale3D(1)
	{
	}
	explicit TTransform(const TQuat<T>& InRotation)
		: Rotation(InRotation)
		, Translation(0)
		, Scale3D(1)
	{
	}
	explicit TTransform(const TRotator<T>& InRotation)
		: Rotation(InRotation)
		, Translation(0)
		, Scale3D(1)
	{
	}
	TTransform(const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1))
		: Rotation(InRotation)
		, Translation(InTranslation)
		, Scale3D(InScale3D)
	{
	}
	TTransform(const TRotator<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D = TVector<T>(1))
		: Rotation(InRotation)
		, Translation(InTranslation)
		, Scale3D(InScale3D)
	{
	}

	/** A matrix that mirrors gives a negative scale of X. */
	explicit TTransform(const TMatrix<T>& M)
		: Translation(M.GetOrigin())
		, Scale3D(M.GetScaleVector())
	{
		TMatrix<T> Unmirrored = M;
		if (M.RotDeterminant() < 0)
		{
			Scale3D.X = -Scale3D.X;
			Unmirrored.SetAxis(0, -M.GetScaledAxis(EAxis::X));
		}
		Rotation = TQuat<T>(Unmirrored);
	}

	static const TTransform Identity;

	TQuat<T> GetRotation() const { return Rotation; }
	TRotator<T> Rotator() const { return Rotation.Rotator(); }
	TVector<T> GetTranslation() const { return Translation; }
	TVector<T> GetLocation() const { return Translation; }
	TVector<T> GetScale3D() const { return Scale3D; }
	void SetRotation(const TQuat<T>& NewRotation) { Rotation = NewRotation; }
	void SetTranslation(const TVector<T>& NewTranslation) { Translation = NewTranslation; }
	void SetLocation(const TVector<T>& NewLocation) { Translation = NewLocation; }
	void SetScale3D(const TVector<T>& NewScale3D) { Scale3D = NewScale3D; }
	void SetComponents(const TQuat<T>& InRotation, const TVector<T>& InTranslation, const TVector<T>& InScale3D)
	{
		*this = TTransform(InRotation, InTranslation, InScale3D);
	}
	void SetIdentity() { *this = TTransform(); }
	void AddToTranslation(const TVector<T>& Delta) { Translation += Delta; }
	void NormalizeRotation() { Rotation.Normalize(); }
	bool IsRotationNormalized() const { return Rotation.IsNormalized(); }
	bool ContainsNaN() const { return Rotation.ContainsNaN() || Translation.ContainsNaN() || Scale3D.ContainsNaN(); }
	bool IsValid() const { return !ContainsNaN() && Rotation.IsNormalized(); }

	TTransform operator*(const TTransform& Other) const
	{
		return TTransform(Other.Rotation * Rotation, Other.TransformPosition(Translation), Scale3D * Other.Scale3D);
	}
	TTransform& operator*=(const TTransform& Other) { return *this = *this * Other; }
	TVector<T> TransformPosition(const TVector<T>& V) const { return Rotation.RotateVector(Scale3D * V) + Translation; }
	TVector<T> TransformPositionNoScale(const TVector<T>& V) const { return Rotation.RotateVector(V) + Translation; }
	TVector<T> TransformVector(const TVector<T>& V) const { return Rotation.RotateVector(Scale3D * V); }
	TVector<T> TransformVectorNoScale(const TVector<T>& V) const { return Rotation.RotateVector(V); }
	TVector<T> InverseTransformPosition(const TVector<T>& V) const
	{
		return Rotation.UnrotateVector(V - Translation) * GetSafeScaleReciprocal(Scale3D);
	}
	TVector<T> InverseTransformVector(const TVector<T>& V) const { return Rotation.UnrotateVector(V) * GetSafeScaleReciprocal(Scale3D); }
	TVector<T> InverseTransformPositionNoScale(const TVector<T>& V) const { return Rotation.UnrotateVector(V - Translation); }
	TVector<T> InverseTransformVectorNoScale(const TVector<T>& V) const { return Rotation.UnrotateVector(V); }
	TQuat<T> TransformRotation(const TQuat<T>& Q) const { return Rotation * Q; }
	TQuat<T> InverseTransformRotation(const TQuat<T>& Q) const { return Rotation.Inverse() * Q; }
	TVector<T> GetScaledAxis(EAxis::Type Axis) const
	{
		check(Axis != EAxis::None);
		return GetUnitAxis(Axis) * Scale3D[Axis - EAxis::X];
	}
	TVector<T> GetUnitAxis(EAxis::Type Axis) const
	{
		check(Axis != EAxis::None);
		return Axis == EAxis::X ? Rotation.GetForwardVector() : (Axis == EAxis::Y ? Rotation.GetRightVector() : Rotation.GetUpVector());
	}
	T GetMaximumAxisScale() const { return Scale3D.GetAbsMax(); }
	T GetMinimumAxisScale() const { return Scale3D.GetAbsMin(); }
	void ConcatenateRotation(const TQuat<T>& DeltaRotation) { Rotation = Rotation * DeltaRotation; }
	void ScaleTranslation(T Scale) { Translation *= Scale; }
	void RemoveScaling() { Scale3D = TVector<T>(1); }
	void MultiplyScale3D(const TVector<T>& Scale) { Scale3D *= Scale; }
	/** This transform at 0 of Alpha, the other at 1. */
	void BlendWith(const TTransform& Other, T Alpha) { Blend(*this, Other, Alpha); }
	void Blend(const TTransform& A, const TTransform& B, T Alpha)
	{
		*this = TTransform(TQuat<T>::Slerp(A.Rotation, B.Rotation, Alpha), FMath::Lerp(A.Translation, B.Translation, Alpha),
			FMath::Lerp(A.Scale3D, B.Scale3D, Alpha));
	}
	TTransform Inverse() const
	{
		const TQuat<T> InverseRotation = Rotation.Inverse();
		const TVector<T> InverseScale = GetSafeScaleReciprocal(Scale3D);
		return TTransform(InverseRotation, InverseRotation.RotateVector(InverseScale * -Translation), InverseScale);
	}
	/** The transform that, followed by Other, gives this one. */
	TTransform GetRelativeTransform(const TTransform& Other) const
	{
		const TVector<T> Reciprocal = GetSafeScaleReciprocal(Other.Scale3D);
		return TTransform(Other.Rotation.Inverse() * Rotation,
			Other.Rotation.UnrotateVector(Translation - Other.Translation) * Reciprocal, Scale3D * Reciprocal);
	}
	/** One through each component; 0 stays 0. */
	static TVector<T> GetSafeScaleReciprocal(const TVector<T>& InScale, T Tolerance = static_cast<T>(UE_DOUBLE_SMALL_NUMBER))
	{
		const auto Reciprocal = [Tolerance](T Value)
		{ return FMath::Abs(Value) <= Tolerance ? T(0) : T(1) / Value; };
		return TVector<T>(Reciprocal(InScale.X), Reciprocal(InScale.Y), Reciprocal(InScale.Z));
	}

	bool Equals(const TTransform& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance) &&
			Scale3D.Equals(Other.Scale3D, Tolerance);
	}
	bool EqualsNoScale(const TTransform& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		return Rotation.Equals(Other.Rotation, Tolerance) && Translation.Equals(Other.Translation, Tolerance);
	}
	bool operator==(const TTransform&) const = default;

	TMatrix<T> ToMatrixWithScale() const
	{
		return TMatrix<T>(GetScaledAxis(EAxis::X), GetScaledAxis(EAxis::Y), GetScaledAxis(EAxis::Z), Translation);
	}
	TMatrix<T> ToMatrixNoScale() const
	{
		return TMatrix<T>(GetUnitAxis(EAxis::X), GetUnitAxis(EAxis::Y), GetUnitAxis(EAxis::Z), Translation);
	}

	/** Translation, then pitch, yaw and roll, then scale: "X,Y,Z|P,Y,R|X,Y,Z". */
	FString ToString() const
	{
		const TRotator<T> Angles = Rotator();
		return FString::Printf(TEXT("%f,%f,%f|%f,%f,%f|%f,%f,%f"), Translation.X, Translation.Y, Translation.Z, Angles.Pitch, Angles.Yaw,
			Angles.Roll, Scale3D.X, Scale3D.Y, Scale3D.Z);
	}
	/** Reads what ToString writes; leaves the transform alone if it cannot. */
	bool InitFromString(const FString& Text)
	{
		TArray<FString> Parts;
		Text.ParseIntoArray(Parts, TEXT("|"), true);
		TVector<T> Read[3];
		if (Parts.Num() != 3)
		{
			return false;
		}
		for (int32 Part = 0; Part < 3; ++Part)
		{
			TArray<FString> Numbers;
			Parts[Part].ParseIntoArray(Numbers, TEXT(","), true);
			if (Numbers.Num() != 3)
			{
				return false;
			}
			for (int32 Index = 0; Index < 3; ++Index)
			{
				if (!Numbers[Index].IsNumeric())
				{
					return false;
				}
				Read[Part][Index] = static_cast<T>(FCString::Atod(*Numbers[Index]));
			}
		}
		*this = TTransform(TRotator<T>(Read[1].X, Read[1].Y, Read[1].Z), Read[0], Read[2]);
		return true;
	}
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TTransform& Transform)
	{
		return Ar << Transform.Rotation << Transform.Translation << Transform.Scale3D;
	}
	friend uint32 GetTypeHash(const TTransform& Transform)
	{
		return HashCombineFast(
			HashCombineFast(GetTypeHash(Transform.Rotation), GetTypeHash(Transform.Translation)), GetTypeHash(Transform.Scale3D));
	}
};

template <typename T>
const TTransform<T> TTransform<T>::Identity;
}

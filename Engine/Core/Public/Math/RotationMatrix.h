#pragma once

#include "Math/Matrix.h"

namespace UE::Math
{
template <typename T>
struct TScaleMatrix : TMatrix<T>
{
	explicit TScaleMatrix(T Scale)
		: TScaleMatrix(TVector<T>(Scale))
	{
	}
	explicit TScaleMatrix(const TVector<T>& Scale)
		: TMatrix<T>(TVector<T>(Scale.X, 0, 0), TVector<T>(0, Scale.Y, 0), TVector<T>(0, 0, Scale.Z), TVector<T>(0))
	{
	}
	static TMatrix<T> Make(const TVector<T>& Scale) { return TScaleMatrix(Scale); }
};

template <typename T>
struct TTranslationMatrix : TMatrix<T>
{
	explicit TTranslationMatrix(const TVector<T>& Delta)
		: TMatrix<T>(TVector<T>(1, 0, 0), TVector<T>(0, 1, 0), TVector<T>(0, 0, 1), Delta)
	{
	}
	static TMatrix<T> Make(const TVector<T>& Delta) { return TTranslationMatrix(Delta); }
};

template <typename T>
struct TQuatRotationTranslationMatrix : TMatrix<T>
{
	TQuatRotationTranslationMatrix(const TQuat<T>& Q, const TVector<T>& Origin)
		: TMatrix<T>(Q.GetForwardVector(), Q.GetRightVector(), Q.GetUpVector(), Origin)
	{
	}
	static TMatrix<T> Make(const TQuat<T>& Q, const TVector<T>& Origin) { return TQuatRotationTranslationMatrix(Q, Origin); }
};

template <typename T>
struct TRotationMatrix : TMatrix<T>
{
	explicit TRotationMatrix(const TRotator<T>& Rotation)
		: TMatrix<T>(TQuatRotationTranslationMatrix<T>(Rotation.Quaternion(), TVector<T>(0)))
	{
	}
	static TMatrix<T> Make(const TRotator<T>& Rotation) { return TRotationMatrix(Rotation); }
	static TMatrix<T> Make(const TQuat<T>& Rotation) { return TQuatRotationTranslationMatrix<T>(Rotation, TVector<T>(0)); }
	/** Rotations whose forward (or up) axis is the given one; the rest is as upright as can be. */
	static TMatrix<T> MakeFromX(const TVector<T>& XAxis)
	{
		const TVector<T> X = XAxis.GetSafeNormal();
		const TVector<T> Up =
			FMath::Abs(X.Z) < T(1) - static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER) ? TVector<T>(0, 0, 1) : TVector<T>(1, 0, 0);
		return MakeFromXZ(X, Up);
	}
	static TMatrix<T> MakeFromXZ(const TVector<T>& XAxis, const TVector<T>& ZAxis)
	{
		const TVector<T> X = XAxis.GetSafeNormal();
		const TVector<T> Y = (ZAxis ^ X).GetSafeNormal();
		return TMatrix<T>(X, Y, X ^ Y, TVector<T>(0));
	}
	static TMatrix<T> MakeFromXY(const TVector<T>& XAxis, const TVector<T>& YAxis)
	{
		const TVector<T> X = XAxis.GetSafeNormal();
		const TVector<T> Z = (X ^ YAxis).GetSafeNormal();
		return TMatrix<T>(X, Z ^ X, Z, TVector<T>(0));
	}
	static TMatrix<T> MakeFromZ(const TVector<T>& ZAxis)
	{
		const TVector<T> Z = ZAxis.GetSafeNormal();
		const TVector<T> Up =
			FMath::Abs(Z.Z) < T(1) - static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER) ? TVector<T>(0, 0, 1) : TVector<T>(1, 0, 0);
		const TVector<T> X = (Up ^ Z).GetSafeNormal();
		return TMatrix<T>(X, Z ^ X, Z, TVector<T>(0));
	}
};

template <typename T>
struct TRotationTranslationMatrix : TMatrix<T>
{
	TRotationTranslationMatrix(const TRotator<T>& Rotation, const TVector<T>& Origin)
		: TMatrix<T>(TQuatRotationTranslationMatrix<T>(Rotation.Quaternion(), Origin))
	{
	}
	static TMatrix<T> Make(const TRotator<T>& Rotation, const TVector<T>& Origin) { return TRotationTranslationMatrix(Rotation, Origin); }
};
}

using FScaleMatrix = UE::Math::TScaleMatrix<double>;
using FTranslationMatrix = UE::Math::TTranslationMatrix<double>;
using FRotationMatrix = UE::Math::TRotationMatrix<double>;
using FRotationTranslationMatrix = UE::Math::TRotationTranslationMatrix<double>;
using FQuatRotationTranslationMatrix = UE::Math::TQuatRotationTranslationMatrix<double>;

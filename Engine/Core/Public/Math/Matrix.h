#pragma once

#include "Math/Plane.h"
#include "Math/Quat.h"
#include "Math/Vector4.h"

namespace UE::Math
{
/** Four rows of four numbers. Vectors stand to the left: V * A * B goes through A first. The last row is the translation. */
template <typename T>
struct TMatrix
{
	using FReal = T;

	T M[4][4];

	TMatrix() = default;
	TMatrix(const TPlane<T>& InX, const TPlane<T>& InY, const TPlane<T>& InZ, const TPlane<T>& InW)
	{
		SetRow(0, InX);
		SetRow(1, InY);
		SetRow(2, InZ);
		SetRow(3, InW);
	}
	TMatrix(const TVector<T>& InX, const TVector<T>& InY, const TVector<T>& InZ, const TVector<T>& InW)
		: TMatrix(TPlane<T>(InX, T(0)), TPlane<T>(InY, T(0)), TPlane<T>(InZ, T(0)), TPlane<T>(InW, T(1)))
	{
	}

	static const TMatrix Identity;

	TPlane<T> GetRow(int32 Row) const { return TPlane<T>(M[Row][0], M[Row][1], M[Row][2], M[Row][3]); }
	void SetRow(int32 Row, const TPlane<T>& Values)
	{
		M[Row][0] = Values.X;
		M[Row][1] = Values.Y;
		M[Row][2] = Values.Z;
		M[Row][3] = Values.W;
	}
	void SetIdentity() { *this = Identity; }
	TMatrix operator*(const TMatrix& Other) const
	{
		TMatrix Result;
		for (int32 Row = 0; Row < 4; ++Row)
		{
			for (int32 Column = 0; Column < 4; ++Column)
			{
				Result.M[Row][Column] = M[Row][0] * Other.M[0][Column] + M[Row][1] * Other.M[1][Column] + M[Row][2] * Other.M[2][Column] +
					M[Row][3] * Other.M[3][Column];
			}
		}
		return Result;
	}
	bool operator==(const TMatrix& Other) const { return Equals(Other, 0); }
	bool Equals(const TMatrix& Other, T Tolerance = static_cast<T>(UE_DOUBLE_KINDA_SMALL_NUMBER)) const
	{
		for (int32 Index = 0; Index < 16; ++Index)
		{
			if (FMath::Abs(M[Index / 4][Index % 4] - Other.M[Index / 4][Index % 4]) > Tolerance)
			{
				return false;
			}
		}
		return true;
	}
	TVector4<T> TransformFVector4(const TVector4<T>& V) const
	{
		const auto Column = [&](int32 Index)
		{ return V.X * M[0][Index] + V.Y * M[1][Index] + V.Z * M[2][Index] + V.W * M[3][Index]; };
		return TVector4<T>(Column(0), Column(1), Column(2), Column(3));
	}
	TVector4<T> TransformPosition(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V, 1)); }
	TVector4<T> TransformVector(const TVector<T>& V) const { return TransformFVector4(TVector4<T>(V, 0)); }
	TMatrix operator+(const TMatrix& Other) const
	{
		TMatrix Result;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Result.M[Index / 4][Index % 4] = M[Index / 4][Index % 4] + Other.M[Index / 4][Index % 4];
		}
		return Result;
	}
	TMatrix operator*(T Scale) const
	{
		TMatrix Result;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Result.M[Index / 4][Index % 4] = M[Index / 4][Index % 4] * Scale;
		}
		return Result;
	}
	TMatrix& operator*=(const TMatrix& Other) { return *this = *this * Other; }
	T Determinant() const
	{
		T Result = 0;
		for (int32 Column = 0; Column < 4; ++Column)
		{
			Result += M[0][Column] * Cofactor(0, Column);
		}
		return Result;
	}
	/** Of the upper left three rows and columns: negative when the matrix mirrors. */
	T RotDeterminant() const { return GetScaledAxis(EAxis::X) | (GetScaledAxis(EAxis::Y) ^ GetScaledAxis(EAxis::Z)); }
	/** The identity when there is no inverse. */
	TMatrix Inverse() const
	{
		const T Whole = Determinant();
		if (Whole == 0 || !FMath::IsFinite(Whole))
		{
			return Identity;
		}
		TMatrix Result;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Result.M[Index / 4][Index % 4] = Cofactor(Index % 4, Index / 4) / Whole;
		}
		return Result;
	}
	TVector<T> InverseTransformPosition(const TVector<T>& V) const { return TVector<T>(Inverse().TransformPosition(V)); }
	TVector<T> InverseTransformVector(const TVector<T>& V) const { return TVector<T>(Inverse().TransformVector(V)); }
	TVector<T> GetUnitAxis(EAxis::Type Axis) const { return GetScaledAxis(Axis).GetSafeNormal(); }
	void GetUnitAxes(TVector<T>& X, TVector<T>& Y, TVector<T>& Z) const
	{
		X = GetUnitAxis(EAxis::X);
		Y = GetUnitAxis(EAxis::Y);
		Z = GetUnitAxis(EAxis::Z);
	}
	void SetAxis(int32 Row, const TVector<T>& Axis)
	{
		M[Row][0] = Axis.X;
		M[Row][1] = Axis.Y;
		M[Row][2] = Axis.Z;
	}
	void SetOrigin(const TVector<T>& Origin) { SetAxis(3, Origin); }
	TVector<T> GetScaleVector() const
	{
		return TVector<T>(GetScaledAxis(EAxis::X).Size(), GetScaledAxis(EAxis::Y).Size(), GetScaledAxis(EAxis::Z).Size());
	}
	TMatrix GetMatrixWithoutScale() const
	{
		TMatrix Result = *this;
		for (const EAxis::Type Axis : {EAxis::X, EAxis::Y, EAxis::Z})
		{
			Result.SetAxis(Axis - EAxis::X, GetUnitAxis(Axis));
		}
		return Result;
	}
	bool ContainsNaN() const
	{
		for (int32 Index = 0; Index < 16; ++Index)
		{
			if (!FMath::IsFinite(M[Index / 4][Index % 4]))
			{
				return true;
			}
		}
		return false;
	}
	/** The rotation of a matrix, whose scale is left out of account. */
	TQuat<T> ToQuat() const { return TQuat<T>(*this); }
	TRotator<T> Rotator() const { return ToQuat().Rotator(); }
	TVector<T> GetOrigin() const { return TVector<T>(M[3][0], M[3][1], M[3][2]); }
	TVector<T> GetScaledAxis(EAxis::Type Axis) const
	{
		check(Axis != EAxis::None);
		const int32 Row = Axis - EAxis::X;
		return TVector<T>(M[Row][0], M[Row][1], M[Row][2]);
	}
	TMatrix GetTransposed() const
	{
		TMatrix Result;
		for (int32 Index = 0; Index < 16; ++Index)
		{
			Result.M[Index / 4][Index % 4] = M[Index % 4][Index / 4];
		}
		return Result;
	}

	FString ToString() const
	{
		FString Result;
		for (int32 Row = 0; Row < 4; ++Row)
		{
			Result += FString::Printf(TEXT("[%g %g %g %g] "), M[Row][0], M[Row][1], M[Row][2], M[Row][3]);
		}
		return Result;
	}
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, TMatrix& Matrix)
	{
		for (T(&Row)[4] : Matrix.M)
		{
			Private::SerializeReals(Ar, Row[0], Row[1], Row[2], Row[3]);
		}
		return Ar;
	}

private:
	T Cofactor(int32 Row, int32 Column) const
	{
		const auto At = [&](int32 DownBy, int32 RightBy)
		{ return M[(Row + DownBy) & 3][(Column + RightBy) & 3]; };
		const T Minor = At(1, 1) * (At(2, 2) * At(3, 3) - At(2, 3) * At(3, 2)) - At(1, 2) * (At(2, 1) * At(3, 3) - At(2, 3) * At(3, 1)) +
			At(1, 3) * (At(2, 1) * At(3, 2) - At(2, 2) * At(3, 1));
		return ((Row + Column) & 1) != 0 ? -Minor : Minor;
	}
};

template <typename T>
const TMatrix<T> TMatrix<T>::Identity(TPlane<T>(1, 0, 0, 0), TPlane<T>(0, 1, 0, 0), TPlane<T>(0, 0, 1, 0), TPlane<T>(0, 0, 0, 1));

template <typename T>
TQuat<T>::TQuat(const TMatrix<T>& Source)
{
	const TMatrix<T> Matrix = Source.GetMatrixWithoutScale();
	const auto& M = Matrix.M;
	const T Trace = M[0][0] + M[1][1] + M[2][2];
	if (Trace > 0)
	{
		const T Root = FMath::Sqrt(Trace + T(1));
		const T Scale = T(0.5) / Root;
		*this = TQuat((M[1][2] - M[2][1]) * Scale, (M[2][0] - M[0][2]) * Scale, (M[0][1] - M[1][0]) * Scale, Root * T(0.5));
		return;
	}
	// The largest part of the diagonal keeps the root away from zero.
	const int32 I = M[1][1] > M[0][0] ? (M[2][2] > M[1][1] ? 2 : 1) : (M[2][2] > M[0][0] ? 2 : 0);
	const int32 J = (I + 1) % 3;
	const int32 K = (I + 2) % 3;
	const T Root = FMath::Sqrt(M[I][I] - M[J][J] - M[K][K] + T(1));
	const T Scale = T(0.5) / Root;
	T Parts[3];
	Parts[I] = Root * T(0.5);
	Parts[J] = (M[I][J] + M[J][I]) * Scale;
	Parts[K] = (M[I][K] + M[K][I]) * Scale;
	*this = TQuat(Parts[0], Parts[1], Parts[2], (M[J][K] - M[K][J]) * Scale);
}
}

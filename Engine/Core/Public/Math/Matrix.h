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
				Result.M[Row][Column] = M[Row][0] * Other.M[0][Column] + M[Row][1] * Other.M[1][Column] + M[Row][2] * Other.M[2][Column] + M[Row][3] * Other.M[3][Column];
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
};

template <typename T>
const TMatrix<T> TMatrix<T>::Identity(TPlane<T>(1, 0, 0, 0), TPlane<T>(0, 1, 0, 0), TPlane<T>(0, 0, 1, 0), TPlane<T>(0, 0, 0, 1));
}

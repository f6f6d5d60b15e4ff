#include "Containers/UnrealString.h"
#include "Math/UnrealMath.h"

#include <gtest/gtest.h>

namespace
{
void ExpectNear(const FVector& Actual, const FVector& Expected)
{
	EXPECT_TRUE(Actual.Equals(Expected, 1e-9)) << TCHAR_TO_UTF8(*Actual.ToString()) << " is not " << TCHAR_TO_UTF8(*Expected.ToString());
}
}

TEST(Rotator, TurnsAsTheAxesSay)
{
	ExpectNear(FRotator(0, 90, 0).RotateVector(FVector::ForwardVector), FVector::RightVector);
	ExpectNear(FRotator(90, 0, 0).RotateVector(FVector::ForwardVector), FVector::UpVector);
	ExpectNear(FRotator(0, 0, 90).RotateVector(FVector::RightVector), FVector::DownVector);
	const FRotator Any(20, -130, 75);
	ExpectNear(Any.RotateVector(FVector::ForwardVector), Any.Vector());
	ExpectNear(Any.UnrotateVector(Any.RotateVector(FVector(1, 2, 3))), FVector(1, 2, 3));
}

TEST(Quat, GivesBackTheRotatorItWasMadeOf)
{
	for (double Pitch = -90; Pitch <= 90; Pitch += 15)
	{
		for (double Yaw = -175; Yaw <= 180; Yaw += 35.5)
		{
			for (double Roll = -175; Roll <= 180; Roll += 35.5)
			{
				const FQuat Quat = FRotator(Pitch, Yaw, Roll).Quaternion();
				// At the poles yaw and roll are one angle, so the rotation is compared, not the angles.
				EXPECT_TRUE(Quat.Rotator().Quaternion().Equals(Quat, 1e-6));
				if (FMath::Abs(Pitch) < 90)
				{
					EXPECT_TRUE(Quat.Rotator().Equals(FRotator(Pitch, Yaw, Roll), 1e-6));
				}
			}
		}
	}
}

TEST(Quat, ProductTurnsByTheRightOneFirst)
{
	const FQuat Yaw = FRotator(0, 90, 0).Quaternion();
	const FQuat Pitch = FRotator(90, 0, 0).Quaternion();
	ExpectNear((Yaw * Pitch).RotateVector(FVector::ForwardVector), Yaw.RotateVector(Pitch.RotateVector(FVector::ForwardVector)));
	EXPECT_TRUE(FQuat(FVector::UpVector, UE_DOUBLE_HALF_PI).Equals(Yaw, 1e-9));
	EXPECT_TRUE(FQuat::Slerp(FQuat::Identity, Yaw, 0.5).Equals(FRotator(0, 45, 0).Quaternion(), 1e-9));
}

TEST(Transform, ProductGoesThroughTheLeftOneFirst)
{
	const FTransform A(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(2));
	const FTransform B(FRotator(-40, 50, 60), FVector(-4, 5, 6), FVector(0.5));
	const FVector Point(7, -8, 9);
	ExpectNear((A * B).TransformPosition(Point), B.TransformPosition(A.TransformPosition(Point)));
	ExpectNear(A.InverseTransformPosition(A.TransformPosition(Point)), Point);
	EXPECT_TRUE((A * A.Inverse()).Equals(FTransform::Identity, 1e-9));
	EXPECT_TRUE((A.GetRelativeTransform(B) * B).Equals(A, 1e-9));
}

TEST(MathText, ReadsWhatItWrites)
{
	EXPECT_EQ(FVector(1, 2, 3).ToString(), TEXT("X=1.000 Y=2.000 Z=3.000"));
	EXPECT_EQ(FRotator(1, 2, 3).ToString(), TEXT("P=1.000000 Y=2.000000 R=3.000000"));
	EXPECT_EQ(FLinearColor(1, 0.5f, 0).ToString(), TEXT("(R=1.000000,G=0.500000,B=0.000000,A=1.000000)"));

	FVector Vector;
	EXPECT_TRUE(Vector.InitFromString(TEXT("X=1.5 Y=-2 Z=3e2")));
	EXPECT_EQ(Vector, FVector(1.5, -2, 300));
	EXPECT_FALSE(Vector.InitFromString(TEXT("X=1 Y=2")));
	FTransform Transform;
	EXPECT_TRUE(Transform.InitFromString(FTransform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(4, 5, 6)).ToString()));
	EXPECT_TRUE(Transform.Equals(FTransform(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(4, 5, 6))));
	EXPECT_FALSE(Transform.InitFromString(TEXT("1,2,3|4,5|6,7,8")));
	FColor Color;
	EXPECT_TRUE(Color.InitFromString(FColor(1, 2, 3, 4).ToString()));
	EXPECT_EQ(Color, FColor(1, 2, 3, 4));
}

TEST(Color, HexFormsAndCurve)
{
	EXPECT_EQ(FColor::FromHex(TEXT("#12AbCD")), FColor(0x12, 0xab, 0xcd, 0xff));
	EXPECT_EQ(FColor::FromHex(TEXT("F80")), FColor(0xff, 0x88, 0x00, 0xff));
	EXPECT_EQ(FColor::FromHex(TEXT("12345678")).ToHex(), TEXT("12345678"));
	EXPECT_EQ(FColor::FromHex(TEXT("12345")), FColor(0, 0, 0, 0));
	EXPECT_EQ(FColor::FromHex(TEXT("GG0000")), FColor(0, 0, 0, 0));
	for (int32 Byte = 0; Byte < 256; ++Byte)
	{
		const FColor Gray(static_cast<uint8>(Byte), static_cast<uint8>(Byte), static_cast<uint8>(Byte));
		EXPECT_EQ(FLinearColor(Gray).ToFColorSRGB(), Gray);
	}
	EXPECT_EQ(FLinearColor(NAN, -1, 2, 0.5f).QuantizeRound(), FColor(0, 0, 255, 128));
}

TEST(Math, ConversionsToIntegersSaturate)
{
	EXPECT_EQ(FMath::RoundToInt(-1.5), -1);
	EXPECT_EQ(FMath::RoundToInt(2.5), 3);
	EXPECT_EQ(FMath::FloorToInt(1e300), MAX_int32);
	EXPECT_EQ(FMath::TruncToInt64(-1e300), MIN_int64);
	EXPECT_EQ(FMath::CeilToInt(NAN), 0);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(5), 8u);
	EXPECT_EQ(FMath::RoundUpToPowerOfTwo(8), 8u);
}

TEST(RandomStream, TheSameSeedGivesTheSameNumbers)
{
	const FRandomStream First(42);
	const FRandomStream Second(42);
	for (int32 Count = 0; Count < 1000; ++Count)
	{
		const int32 Number = First.RandRange(-5, 5);
		EXPECT_EQ(Number, Second.RandRange(-5, 5));
		EXPECT_TRUE(Number >= -5 && Number <= 5);
	}
}

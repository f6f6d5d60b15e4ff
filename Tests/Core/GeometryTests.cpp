#include "Containers/UnrealString.h"
#include "Math/UnrealMath.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace
{
void ExpectNear(const FVector& Actual, const FVector& Expected, double Tolerance = 1e-6)
{
	EXPECT_TRUE(Actual.Equals(Expected, Tolerance))
		<< TCHAR_TO_UTF8(*Actual.ToString()) << " is not " << TCHAR_TO_UTF8(*Expected.ToString());
}

class FGeometryTest : public testing::Test
{
protected:
	double Number(double Least = -10.0, double Largest = 10.0) { return std::uniform_real_distribution<double>(Least, Largest)(Random); }
	FVector Vector() { return FVector(Number(), Number(), Number()); }
	FRotator Rotator() { return FRotator(Number(-89, 89), Number(-180, 180), Number(-180, 180)); }
	FTransform Transform() { return FTransform(Rotator(), Vector(), FVector(Number(0.5, 2), Number(0.5, 2), Number(0.5, 2))); }

	std::mt19937 Random{1};
};
}

TEST_F(FGeometryTest, MatricesMoveAsTheTransformsTheyAreMadeOf)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const FTransform A = Transform();
		const FTransform B(Rotator(), Vector());
		const FMatrix Matrix = A.ToMatrixWithScale();
		const FVector Point = Vector();
		ExpectNear(FVector(Matrix.TransformPosition(Point)), A.TransformPosition(Point));
		ExpectNear(FVector(Matrix.TransformVector(Point)), A.TransformVector(Point));
		ExpectNear(Matrix.InverseTransformPosition(A.TransformPosition(Point)), Point);
		ExpectNear(FVector((Matrix * B.ToMatrixWithScale()).TransformPosition(Point)), (A * B).TransformPosition(Point));
		EXPECT_TRUE(FTransform(Matrix).Equals(A, 1e-6));
		EXPECT_TRUE((Matrix * Matrix.Inverse()).Equals(FMatrix::Identity, 1e-9));
		EXPECT_NEAR(Matrix.Determinant(), A.Scale3D.X * A.Scale3D.Y * A.Scale3D.Z, 1e-9);
		EXPECT_NEAR(Matrix.Determinant(), Matrix.RotDeterminant(), 1e-9);
	}
}

TEST_F(FGeometryTest, MirroringAndFlatMatricesHaveTheirAnswers)
{
	const FTransform Mirrored(FRotator(10, 20, 30), FVector(1, 2, 3), FVector(-2, 3, 4));
	EXPECT_LT(Mirrored.ToMatrixWithScale().RotDeterminant(), 0.0);
	EXPECT_TRUE(FTransform(Mirrored.ToMatrixWithScale()).Equals(Mirrored, 1e-9));
	EXPECT_TRUE(FScaleMatrix(FVector(1, 0, 1)).Inverse() == FMatrix::Identity);
}

TEST_F(FGeometryTest, QuaternionsComeBackFromTheirMatricesWhicheverPartIsLargest)
{
	for (const FRotator& Rotation :
		{FRotator(0, 0, 0), FRotator(0, 180, 0), FRotator(180, 0, 0), FRotator(0, 0, 180), FRotator(10, 170, -160)})
	{
		EXPECT_TRUE(FRotationMatrix(Rotation).ToQuat().Equals(Rotation.Quaternion(), 1e-9)) << TCHAR_TO_UTF8(*Rotation.ToString());
	}
}

TEST_F(FGeometryTest, MatricesFromAxesPointThere)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const FVector Axis = Vector();
		const FMatrix FromX = FRotationMatrix::MakeFromX(Axis);
		ExpectNear(FromX.GetUnitAxis(EAxis::X), Axis.GetSafeNormal());
		EXPECT_NEAR(FromX.Determinant(), 1.0, 1e-9);
		EXPECT_TRUE(FromX.Rotator().Equals(Axis.Rotation(), 1e-5));
		ExpectNear(FRotationMatrix::MakeFromZ(Axis).GetUnitAxis(EAxis::Z), Axis.GetSafeNormal());
		EXPECT_NEAR(FRotationMatrix::MakeFromXY(Axis, Vector()).Determinant(), 1.0, 1e-9);
	}
	EXPECT_NEAR(FRotationMatrix::MakeFromX(FVector::UpVector).Determinant(), 1.0, 1e-9);
	EXPECT_NEAR(FRotationMatrix::MakeFromZ(FVector::DownVector).Determinant(), 1.0, 1e-9);
}

TEST_F(FGeometryTest, ShortestRotationTurnsOneDirectionToTheOther)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const FVector A = Vector();
		const FVector B = Round % 5 == 0 ? A * -2.0 : Vector();
		const FQuat Turn = FQuat::FindBetween(A, B);
		ExpectNear(Turn.RotateVector(A.GetSafeNormal()), B.GetSafeNormal(), 1e-5);
		EXPECT_NEAR(Turn.AngularDistance(FQuat::Identity), FMath::Acos(A.GetSafeNormal() | B.GetSafeNormal()), 1e-4);
	}
}

TEST_F(FGeometryTest, TurningAboutAnAxisIsWhatItsQuaternionDoes)
{
	for (int32 Round = 0; Round < 200; ++Round)
	{
		const FVector Axis = Vector().GetSafeNormal();
		const FVector V = Vector();
		const double Angle = Number(-360, 360);
		ExpectNear(V.RotateAngleAxis(Angle, Axis), FQuat(Axis, FMath::DegreesToRadians(Angle)).RotateVector(V));
		ExpectNear(V.MirrorByVector(Axis).MirrorByVector(Axis), V);
		EXPECT_NEAR(FVector::VectorPlaneProject(V, Axis) | Axis, 0.0, 1e-9);
	}
	ExpectNear(FVector::ForwardVector.RotateAngleAxis(90, FVector::UpVector), FVector::RightVector);
	EXPECT_TRUE(FVector2D(1, 0).GetRotated(90).Equals(FVector2D(0, 1), 1e-9));
}

TEST_F(FGeometryTest, BoxesAroundTransformedPointsHoldThem)
{
	for (int32 Round = 0; Round < 100; ++Round)
	{
		TArray<FVector> Points;
		for (int32 Index = 0; Index < 6; ++Index)
		{
			Points.Add(Vector());
		}
		const FBox Box(Points);
		const FTransform Moved = Transform();
		const FBoxSphereBounds Bounds(Points.GetData(), static_cast<uint32>(Points.Num()));
		const FBox MovedBox = Box.TransformBy(Moved).ExpandBy(1e-6);
		const FBoxSphereBounds MovedBounds = Bounds.TransformBy(Moved);
		const FVector Stranger = Vector() * 2.0;
		const FBoxSphereBounds Both = Bounds + FBoxSphereBounds(FSphere(Stranger, 1.0));
		for (const FVector& Point : Points)
		{
			EXPECT_TRUE(Box.IsInsideOrOn(Point));
			EXPECT_TRUE(MovedBox.IsInsideOrOn(Moved.TransformPosition(Point)));
			EXPECT_TRUE(Bounds.GetSphere().IsInside(Point));
			EXPECT_TRUE(MovedBounds.GetSphere().IsInside(Moved.TransformPosition(Point)));
			EXPECT_TRUE(Both.GetSphere().IsInside(Point));
			EXPECT_TRUE(Both.GetBox().ExpandBy(1e-9).IsInsideOrOn(Point));
		}
		const FVector Closest = Box.GetClosestPointTo(Stranger);
		EXPECT_TRUE(Box.IsInsideOrOn(Closest));
		EXPECT_NEAR(Box.ComputeSquaredDistanceToPoint(Stranger), FVector::DistSquared(Closest, Stranger), 1e-9);
		EXPECT_EQ(Box.ComputeSquaredDistanceToPoint(Box.GetCenter()), 0.0);
	}
	EXPECT_FALSE(FBox(FVector(0), FVector(1)).Overlap(FBox(FVector(2), FVector(3))).IsValid);
	EXPECT_EQ(FBox(FVector(0), FVector(2)).Overlap(FBox(FVector(1), FVector(3))).GetVolume(), 1.0);
	EXPECT_FALSE(FBox(ForceInit).TransformBy(FTransform::Identity).IsValid);
}

TEST_F(FGeometryTest, LinesPlanesAndRays)
{
	const FVector Start(0, 0, 0);
	const FVector End(10, 0, 0);
	EXPECT_EQ(FMath::PointDistToSegment(FVector(5, 3, 4), Start, End), 5.0);
	EXPECT_EQ(FMath::PointDistToSegment(FVector(13, 4, 0), Start, End), 5.0);
	EXPECT_EQ(FMath::PointDistToSegment(FVector(3, 4, 0), Start, Start), 5.0);
	EXPECT_EQ(FMath::PointDistToLine(FVector(13, 4, 0), FVector(7, 0, 0), Start), 4.0);
	ExpectNear(FMath::LinePlaneIntersection(FVector(1, 2, 5), FVector(1, 2, 3), FVector(9, 9, 1), FVector::UpVector), FVector(1, 2, 1));
	const FPlane Plane(FVector(0, 0, 2), FVector(1, 0, 2), FVector(0, 1, 2));
	EXPECT_NEAR(FMath::Abs(Plane.PlaneDot(FVector(5, 5, 5))), 3.0, 1e-9);
	EXPECT_NEAR(Plane.PlaneDot(Plane.GetOrigin()), 0.0, 1e-9);
	const FRay Ray(FVector(1, 0, 0), FVector(0, 5, 0));
	ExpectNear(Ray.ClosestPoint(FVector(3, 4, 0)), FVector(1, 4, 0));
	ExpectNear(Ray.ClosestPoint(FVector(3, -4, 0)), FVector(1, 0, 0));
}

TEST_F(FGeometryTest, RandomDirectionsStayInTheirCone)
{
	const FVector Direction = FVector(1, 2, -3).GetSafeNormal();
	FVector Sum(0);
	for (int32 Round = 0; Round < 500; ++Round)
	{
		const FVector V = FMath::VRandCone(Direction, 0.3);
		EXPECT_NEAR(V.Size(), 1.0, 1e-6);
		EXPECT_GE(V | Direction, FMath::Cos(0.3) - 1e-6);
		EXPECT_NEAR(FMath::VRand().Size(), 1.0, 1e-6);
		EXPECT_TRUE(FBox(FVector(-1), FVector(2)).IsInsideOrOn(FMath::RandPointInBox(FBox(FVector(-1), FVector(2)))));
		Sum += V;
	}
	EXPECT_GT(Sum.GetSafeNormal() | Direction, 0.99);
}

TEST(Interpolation, ArrivesAndNeverPasses)
{
	FVector Place(0);
	FRotator Rotation(0, 170, 0);
	double Value = 0.0;
	for (int32 Tick = 0; Tick < 100; ++Tick)
	{
		Place = FMath::VInterpConstantTo(Place, FVector(10, 0, 0), 0.1, 20.0);
		Rotation = FMath::RInterpConstantTo(Rotation, FRotator(0, -170, 0), 0.1, 10.0);
		Value = FMath::FInterpConstantTo(Value, -3.0, 0.1, 7.0);
		EXPECT_LE(Place.X, 10.0);
		EXPECT_GE(Value, -3.0);
		EXPECT_GE(FMath::Abs(Rotation.Yaw), 170.0) << "it goes the shorter way round";
	}
	EXPECT_EQ(Place.X, 10.0);
	EXPECT_EQ(Value, -3.0);
	EXPECT_TRUE(Rotation.Equals(FRotator(0, -170, 0)));
	EXPECT_TRUE(FMath::VInterpTo(FVector(0), FVector(8, 0, 0), 0.25, 2.0).Equals(FVector(4, 0, 0)));
	EXPECT_TRUE(FMath::VInterpTo(FVector(0), FVector(8, 0, 0), 0.25, 0.0).Equals(FVector(8, 0, 0)));
	EXPECT_NEAR(FMath::Lerp(FRotator(0, 170, 0), FRotator(0, -170, 0), 0.5).Yaw, 180.0, 1e-9);
	EXPECT_TRUE(FMath::Lerp(FQuat::Identity, FRotator(0, 90, 0).Quaternion(), 0.5).Rotator().Equals(FRotator(0, 45, 0), 1e-6));
}

TEST(Interpolation, CurvesMeetTheirEnds)
{
	for (const float Exponent : {1.0f, 2.0f, 3.5f})
	{
		EXPECT_FLOAT_EQ(FMath::InterpEaseIn(2.0f, 6.0f, 0.0f, Exponent), 2.0f);
		EXPECT_FLOAT_EQ(FMath::InterpEaseOut(2.0f, 6.0f, 1.0f, Exponent), 6.0f);
		EXPECT_FLOAT_EQ(FMath::InterpEaseInOut(2.0f, 6.0f, 0.5f, Exponent), 4.0f);
		EXPECT_LE(FMath::InterpEaseIn(2.0f, 6.0f, 0.3f, Exponent), FMath::InterpEaseOut(2.0f, 6.0f, 0.3f, Exponent) + 1e-6f);
	}
	EXPECT_EQ(FMath::SmoothStep(1.0, 3.0, 2.0), 0.5);
	EXPECT_EQ(FMath::SmoothStep(1.0, 3.0, 0.0), 0.0);
	EXPECT_EQ(FMath::SmoothStep(1.0, 3.0, 3.0), 1.0);
	EXPECT_EQ(FMath::CubicInterp(1.0, 5.0, 9.0, -2.0, 0.0), 1.0);
	EXPECT_EQ(FMath::CubicInterp(1.0, 5.0, 9.0, -2.0, 1.0), 9.0);
}

TEST(Numbers, RangesAndAngles)
{
	EXPECT_EQ(FMath::GetMappedRangeValueClamped(FVector2D(0, 10), FVector2D(100, 200), 15.0), 200.0);
	EXPECT_EQ(FMath::GetMappedRangeValueUnclamped(FVector2D(0, 10), FVector2D(100, 200), 15.0), 250.0);
	EXPECT_EQ(FMath::GetMappedRangeValueClamped(FVector2D(5, 5), FVector2D(100, 200), 5.0), 200.0);
	struct FCase
	{
		double Angle, Least, Largest, Expected;
	};
	for (const FCase& Case : {FCase{0, -45, 45, 0}, FCase{90, -45, 45, 45}, FCase{-90, -45, 45, -45}, FCase{180, 170, -170, 180},
			 FCase{100, 170, -170, 170}, FCase{720 + 10, -45, 45, 10}})
	{
		EXPECT_NEAR(FMath::ClampAngle(Case.Angle, Case.Least, Case.Largest), Case.Expected, 1e-9);
	}
	EXPECT_EQ(FMath::UnwindDegrees(540.0), 180.0);
	EXPECT_EQ(FMath::UnwindDegrees(-540.0), -180.0);
	EXPECT_NEAR(FMath::UnwindRadians(3 * UE_DOUBLE_PI + 0.5), -UE_DOUBLE_PI + 0.5, 1e-9);
	EXPECT_EQ(FMath::Wrap(7, 0, 5), 2);
	EXPECT_EQ(FMath::Wrap(-1.5, 0.0, 1.0), 0.5);
	EXPECT_EQ(FMath::Wrap(1e15, 0.0, 3.0) <= 3.0, true) << "and does not take a step for every width";
}

TEST(Numbers, RoundingOfHalves)
{
	for (const double Value : {-2.5, -1.5, -0.5, 0.5, 1.5, 2.5})
	{
		EXPECT_EQ(FMath::Fmod(FMath::RoundHalfToEven(Value), 2.0), 0.0) << Value;
		EXPECT_EQ(FMath::Abs(FMath::RoundHalfFromZero(Value)), FMath::Abs(Value) + 0.5);
		EXPECT_EQ(FMath::Abs(FMath::RoundHalfToZero(Value)), FMath::Abs(Value) - 0.5);
	}
	EXPECT_EQ(FMath::RoundHalfToEven(2.4), 2.0);
	EXPECT_EQ(FMath::RoundFromZero(-1.2), -2.0);
	EXPECT_EQ(FMath::RoundToZero(-1.8), -1.0);
	EXPECT_EQ(FMath::DivideAndRoundNearest(7, 2), 4);
	EXPECT_EQ(FMath::GreatestCommonDivisor(12, 18), 6);
	EXPECT_EQ(FMath::LeastCommonMultiplier(4, 6), 12);
	EXPECT_EQ(FMath::Fractional(-1.25), -0.25);
	EXPECT_EQ(FMath::Frac(-1.25), 0.75);
}

TEST(Colours, HueSaturationAndValueRoundTrip)
{
	for (float Red = 0.0f; Red <= 1.0f; Red += 0.2f)
	{
		for (float Green = 0.0f; Green <= 1.0f; Green += 0.25f)
		{
			for (float Blue = 0.0f; Blue <= 1.0f; Blue += 0.5f)
			{
				const FLinearColor Color(Red, Green, Blue, 0.5f);
				EXPECT_TRUE(Color.LinearRGBToHSV().HSVToLinearRGB().Equals(Color, 1e-5f)) << TCHAR_TO_UTF8(*Color.ToString());
			}
		}
	}
	EXPECT_FLOAT_EQ(FLinearColor(0, 1, 0).LinearRGBToHSV().R, 120.0f);
	EXPECT_FLOAT_EQ(FLinearColor(1, 0, 0.5f).LinearRGBToHSV().R, 330.0f);
	EXPECT_TRUE(FLinearColor::Red.Desaturate(1.0f).Equals(FLinearColor(0.3f, 0.3f, 0.3f, 0.0f), 1e-5f));
}

TEST(Rotator, ZeroIsNeverNegative)
{
	EXPECT_FALSE(std::signbit(FQuat::Identity.Rotator().Roll));
	EXPECT_FALSE(std::signbit(FMath::Atan2(-0.0, 1.0)));
	EXPECT_EQ(FMath::Atan2(-0.0, -1.0), UE_DOUBLE_PI);
	EXPECT_EQ(FMath::Atan2(0.0, -0.0), 0.0);
	EXPECT_EQ(FVector(-1, -0.0, 0).Rotation().Yaw, 180.0);
}

TEST(GeometryText, IsTheEngines)
{
	const auto Expect = [](const FString& Actual, const char* Expected)
	{ EXPECT_STREQ(TCHAR_TO_UTF8(*Actual), Expected); };
	Expect(FVector(1, -2.5, 1000).ToString(), "X=1.000 Y=-2.500 Z=1000.000");
	Expect(FVector2D(1, 2).ToString(), "X=1.000 Y=2.000");
	Expect(FVector4(1, 2, 3, 4).ToString(), "X=1.000 Y=2.000 Z=3.000 W=4.000");
	Expect(FRotator(10, 20, 30).ToString(), "P=10.000000 Y=20.000000 R=30.000000");
	Expect(FQuat::Identity.ToString(), "X=0.000000000 Y=0.000000000 Z=0.000000000 W=1.000000000");
	Expect(FTransform(FVector(1, 2, 3)).ToString(), "1.000000,2.000000,3.000000|0.000000,0.000000,0.000000|1.000000,1.000000,1.000000");
	Expect(FMatrix::Identity.ToString(), "[1 0 0 0] [0 1 0 0] [0 0 1 0] [0 0 0 1] ");
	Expect(FBox(FVector(0), FVector(1)).ToString(), "IsValid=true, Min=(X=0.000 Y=0.000 Z=0.000), Max=(X=1.000 Y=1.000 Z=1.000)");
	Expect(FBoxSphereBounds(FVector(0), FVector(1), 2).ToString(),
		"Origin=X=0.000 Y=0.000 Z=0.000, BoxExtent=(X=1.000 Y=1.000 Z=1.000), SphereRadius=(2.000000)");
	Expect(FIntPoint(1, -2).ToString(), "X=1 Y=-2");
	Expect(FIntVector(1, -2, 3).ToString(), "X=1 Y=-2 Z=3");
	Expect(FIntRect(1, 2, 3, 4).ToString(), "Min=(X=1 Y=2) Max=(X=3 Y=4)");
	Expect(FLinearColor(1, 0.5f, 0, 1).ToString(), "(R=1.000000,G=0.500000,B=0.000000,A=1.000000)");
	Expect(FColor(1, 2, 3, 4).ToString(), "(R=1,G=2,B=3,A=4)");
	Expect(FColor(0x12, 0xAB, 0, 0xFF).ToHex(), "12AB00FF");
}

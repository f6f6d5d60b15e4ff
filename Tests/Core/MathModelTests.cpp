#include "Containers/UnrealString.h"
#include "Math/UnrealMath.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
class FMathModelTest : public testing::Test
{
protected:
	double In(double Min, double Max) { return std::uniform_real_distribution<double>(Min, Max)(Random); }
	FRotator AnyRotator() { return FRotator(In(-720, 720), In(-720, 720), In(-720, 720)); }
	FVector AnyVector() { return FVector(In(-100, 100), In(-100, 100), In(-100, 100)); }
	FQuat AnyQuat() { return FQuat(In(-1, 1), In(-1, 1), In(-1, 1), In(-1, 1)).GetNormalized(); }
	FTransform AnyTransform()
	{
		const double Scale = In(0.1, 10);
		return FTransform(AnyQuat(), AnyVector(), FVector(Scale));
	}

	std::mt19937 Random{7};
	static constexpr int32 NumRounds = 5000;
};
}

TEST_F(FMathModelTest, RotatorsOfAnyWindingTurnAsTheirNormalFormDoes)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FRotator Rotator = AnyRotator();
		const FVector Point = AnyVector();
		const FVector Turned = Rotator.RotateVector(Point);
		EXPECT_TRUE(Rotator.GetNormalized().RotateVector(Point).Equals(Turned, 1e-6)) << TCHAR_TO_UTF8(*Rotator.ToString());
		EXPECT_TRUE(Rotator.Clamp().RotateVector(Point).Equals(Turned, 1e-6));
		// Within a tenth of a degree of the poles, a quaternion's pitch becomes the pole's.
		const auto Loss = [](const FQuat& Q)
		{ return FMath::Abs(Q.Z * Q.X - Q.W * Q.Y) > 0.4999995 ? 0.3 : 1e-5; };
		const FQuat Quat = Rotator.Quaternion();
		EXPECT_TRUE(Quat.Rotator().RotateVector(Point).Equals(Turned, Loss(Quat))) << TCHAR_TO_UTF8(*Rotator.ToString());
		EXPECT_TRUE(Rotator.GetInverse().RotateVector(Turned).Equals(Point, Loss(Quat.Inverse())));
		EXPECT_TRUE(Rotator.UnrotateVector(Turned).Equals(Point, 1e-6));
		EXPECT_NEAR(Turned.Size(), Point.Size(), 1e-6);
		const double Normal = FRotator::NormalizeAxis(Rotator.Yaw);
		EXPECT_TRUE(Normal > -180 && Normal <= 180) << Normal;
	}
}

TEST_F(FMathModelTest, DirectionsBecomeRotatorsThatPointThere)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FVector Direction = AnyVector().GetSafeNormal();
		EXPECT_TRUE(Direction.ToOrientationRotator().Vector().Equals(Direction, 1e-9));
		EXPECT_TRUE(Direction.ToOrientationQuat().GetForwardVector().Equals(Direction, 1e-9));
	}
	EXPECT_TRUE(FVector::UpVector.ToOrientationRotator().Equals(FRotator(90, 0, 0), 1e-9));
}

TEST_F(FMathModelTest, QuaternionsFormAGroup)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FQuat A = AnyQuat();
		const FQuat B = AnyQuat();
		const FQuat C = AnyQuat();
		const FVector Point = AnyVector();
		EXPECT_TRUE(((A * B) * C).Equals(A * (B * C), 1e-9));
		EXPECT_TRUE((A * A.Inverse()).IsIdentity(1e-9));
		EXPECT_TRUE((A * B).Inverse().Equals(B.Inverse() * A.Inverse(), 1e-9));
		EXPECT_TRUE((-A).RotateVector(Point).Equals(A.RotateVector(Point), 1e-9));
		EXPECT_TRUE(FQuat(A.GetRotationAxis(), A.GetAngle()).Equals(A, 1e-6));
		EXPECT_TRUE((A.GetForwardVector() ^ A.GetRightVector()).Equals(A.GetUpVector(), 1e-9));
	}
}

TEST_F(FMathModelTest, SlerpGoesTheShorterWayAtConstantSpeed)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FQuat From = AnyQuat();
		const FQuat To = AnyQuat();
		EXPECT_TRUE(FQuat::Slerp(From, To, 0.0).Equals(From, 1e-9));
		EXPECT_TRUE(FQuat::Slerp(From, To, 1.0).Equals(To, 1e-9));
		const double Alpha = In(0, 1);
		const FQuat Between = FQuat::Slerp(From, To, Alpha);
		const auto Distance = [](const FQuat& A, const FQuat& B)
		{ return std::acos(std::min(1.0, std::abs(A | B))); };
		EXPECT_NEAR(Distance(From, Between), Alpha * Distance(From, To), 1e-6);
		EXPECT_TRUE(FQuat::Slerp(From, -To, Alpha).Equals(Between, 1e-9));
	}
}

TEST_F(FMathModelTest, TransformsComposeAndInvert)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FTransform A = AnyTransform();
		const FTransform B = AnyTransform();
		const FTransform C = AnyTransform();
		const FVector Point = AnyVector();
		EXPECT_TRUE((A * B).TransformPosition(Point).Equals(B.TransformPosition(A.TransformPosition(Point)), 1e-6));
		EXPECT_TRUE(((A * B) * C).Equals(A * (B * C), 1e-5));
		EXPECT_TRUE((A * A.Inverse()).Equals(FTransform::Identity, 1e-6));
		EXPECT_TRUE((A.GetRelativeTransform(B) * B).Equals(A, 1e-5));
		EXPECT_TRUE(A.Inverse().TransformPosition(Point).Equals(A.InverseTransformPosition(Point), 1e-6));
		EXPECT_TRUE(A.TransformVector(Point).Equals(A.TransformPosition(Point) - A.GetTranslation(), 1e-6));
		FTransform Read;
		ASSERT_TRUE(Read.InitFromString(A.ToString()));
		EXPECT_TRUE(Read.Equals(A, 1e-3)) << TCHAR_TO_UTF8(*A.ToString());
	}
	const FTransform Flat(FQuat::Identity, FVector(1, 2, 3), FVector(2, 0, 1));
	EXPECT_TRUE(Flat.InverseTransformPosition(FVector(5, 6, 7)).Equals(FVector(2, 0, 4)))
		<< "a lost axis comes back as zero, not as infinity";
	EXPECT_FALSE(Flat.Inverse().ContainsNaN());
}

TEST_F(FMathModelTest, ColoursRoundTripInEveryForm)
{
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const FColor Color(static_cast<uint32>(Random()));
		EXPECT_EQ(FColor::FromHex(Color.ToHex()), Color);
		EXPECT_EQ(FColor::FromHex(TEXT("#") + Color.ToHex().ToLower()), Color);
		EXPECT_EQ(FColor(Color.ToPackedARGB()), Color);
		EXPECT_EQ(FLinearColor(Color).ToFColorSRGB(), Color);
		EXPECT_EQ(Color.ReinterpretAsLinear().QuantizeRound(), Color);
		FColor Read;
		EXPECT_TRUE(Read.InitFromString(Color.ToString()));
		EXPECT_EQ(Read, Color);
	}
	EXPECT_EQ(FLinearColor(INFINITY, -INFINITY, NAN, 1e30f).ToFColor(true), FColor(255, 0, 0, 255));
	for (const TCHAR* const Bad : {TEXT(""), TEXT("#"), TEXT("1"), TEXT("12"), TEXT("##123456"), TEXT("12345G"), TEXT("1234567"),
			 TEXT("123456789"), TEXT("-12345")})
	{
		EXPECT_EQ(FColor::FromHex(Bad), FColor(0, 0, 0, 0)) << TCHAR_TO_UTF8(Bad);
	}
}

#include "Math/UnrealMath.h"

#include <random>

namespace
{
std::mt19937& GetGenerator()
{
	thread_local std::mt19937 Generator{std::random_device{}()};
	return Generator;
}

/** Part of a distance that a tick goes. */
double GetInterpAlpha(double DeltaTime, double InterpSpeed)
{
	return FMath::Clamp(DeltaTime * InterpSpeed, 0.0, 1.0);
}

template <typename VectorType>
VectorType InterpVectorTo(const VectorType& Current, const VectorType& Target, double DeltaTime, double InterpSpeed)
{
	const VectorType Distance = Target - Current;
	if (InterpSpeed <= 0.0 || Distance.SizeSquared() < UE_DOUBLE_KINDA_SMALL_NUMBER)
	{
		return Target;
	}
	return Current + Distance * GetInterpAlpha(DeltaTime, InterpSpeed);
}
}

void FMath::RandInit(int32 Seed)
{
	GetGenerator().seed(static_cast<uint32>(Seed));
}

int32 FMath::Rand()
{
	return static_cast<int32>(GetGenerator()() & 0x7fff);
}

int32 FMath::Rand32()
{
	return static_cast<int32>(GetGenerator()());
}

float FMath::FRand()
{
	return static_cast<float>(GetGenerator()() >> 8) / static_cast<float>(1 << 24);
}

int32 FMath::RandHelper(int32 A)
{
	return A > 0 ? RandRange(0, A - 1) : 0;
}

int32 FMath::RandRange(int32 Min, int32 Max)
{
	return Min < Max ? std::uniform_int_distribution<int32>(Min, Max)(GetGenerator()) : Min;
}

int64 FMath::RandRange(int64 Min, int64 Max)
{
	return Min < Max ? std::uniform_int_distribution<int64>(Min, Max)(GetGenerator()) : Min;
}

double FMath::FRandRange(double Min, double Max)
{
	return Min + (Max - Min) * static_cast<double>(FRand());
}

double FMath::GetMappedRangeValueClamped(const FVector2D& InputRange, const FVector2D& OutputRange, double Value)
{
	return GetRangeValue(OutputRange, Clamp(GetRangePct(InputRange, Value), 0.0, 1.0));
}

double FMath::GetMappedRangeValueUnclamped(const FVector2D& InputRange, const FVector2D& OutputRange, double Value)
{
	return GetRangeValue(OutputRange, GetRangePct(InputRange, Value));
}

double FMath::GetRangePct(double MinValue, double MaxValue, double Value)
{
	const double Width = MaxValue - MinValue;
	return IsNearlyZero(Width) ? (Value >= MaxValue ? 1.0 : 0.0) : (Value - MinValue) / Width;
}

double FMath::GetRangePct(const FVector2D& Range, double Value)
{
	return GetRangePct(Range.X, Range.Y, Value);
}

double FMath::GetRangeValue(const FVector2D& Range, double Pct)
{
	return Lerp(Range.X, Range.Y, Pct);
}

double FMath::ClampAngle(double AngleDegrees, double MinAngleDegrees, double MaxAngleDegrees)
{
	const double HalfWidth = FRotator::ClampAxis(MaxAngleDegrees - MinAngleDegrees) * 0.5;
	const double Middle = FRotator::ClampAxis(MinAngleDegrees + HalfWidth);
	const double FromMiddle = FRotator::NormalizeAxis(AngleDegrees - Middle);
	if (FromMiddle > HalfWidth)
	{
		return FRotator::NormalizeAxis(Middle + HalfWidth);
	}
	return FRotator::NormalizeAxis(FromMiddle < -HalfWidth ? Middle - HalfWidth : AngleDegrees);
}

double FMath::FInterpConstantTo(double Current, double Target, double DeltaTime, double InterpSpeed)
{
	const double Distance = Target - Current;
	if (Square(Distance) < UE_DOUBLE_SMALL_NUMBER)
	{
		return Target;
	}
	const double Step = InterpSpeed * DeltaTime;
	return Current + Clamp(Distance, -Step, Step);
}

FVector FMath::VInterpTo(const FVector& Current, const FVector& Target, double DeltaTime, double InterpSpeed)
{
	return InterpVectorTo(Current, Target, DeltaTime, InterpSpeed);
}

FVector2D FMath::Vector2DInterpTo(const FVector2D& Current, const FVector2D& Target, double DeltaTime, double InterpSpeed)
{
	return InterpVectorTo(Current, Target, DeltaTime, InterpSpeed);
}

FVector FMath::VInterpConstantTo(const FVector& Current, const FVector& Target, double DeltaTime, double InterpSpeed)
{
	const FVector Distance = Target - Current;
	const double Step = InterpSpeed * DeltaTime;
	return Distance.Size() > Step && Step > 0.0 ? Current + Distance.GetUnsafeNormal() * Step : Target;
}

FRotator FMath::RInterpTo(const FRotator& Current, const FRotator& Target, double DeltaTime, double InterpSpeed)
{
	if (DeltaTime == 0.0 || Current == Target)
	{
		return Current;
	}
	const FRotator Distance = (Target - Current).GetNormalized();
	if (InterpSpeed <= 0.0 || Distance.IsNearlyZero())
	{
		return Target;
	}
	return (Current + Distance * GetInterpAlpha(DeltaTime, InterpSpeed)).GetNormalized();
}

FRotator FMath::RInterpConstantTo(const FRotator& Current, const FRotator& Target, double DeltaTime, double InterpSpeed)
{
	if (DeltaTime == 0.0 || Current == Target)
	{
		return Current;
	}
	if (InterpSpeed <= 0.0)
	{
		return Target;
	}
	const double Step = InterpSpeed * DeltaTime;
	const FRotator Distance = (Target - Current).GetNormalized();
	const FRotator Moved(Clamp(Distance.Pitch, -Step, Step), Clamp(Distance.Yaw, -Step, Step), Clamp(Distance.Roll, -Step, Step));
	return (Current + Moved).GetNormalized();
}

FVector FMath::ClosestPointOnSegment(const FVector& Point, const FVector& StartPoint, const FVector& EndPoint)
{
	const FVector Segment = EndPoint - StartPoint;
	const double Squared = Segment.SizeSquared();
	return Squared == 0.0 ? StartPoint : StartPoint + Segment * Clamp(((Point - StartPoint) | Segment) / Squared, 0.0, 1.0);
}

double FMath::PointDistToSegment(const FVector& Point, const FVector& StartPoint, const FVector& EndPoint)
{
	return FVector::Dist(Point, ClosestPointOnSegment(Point, StartPoint, EndPoint));
}

double FMath::PointDistToLine(const FVector& Point, const FVector& Direction, const FVector& Origin)
{
	const FVector SafeDirection = Direction.GetSafeNormal();
	return FVector::VectorPlaneProject(Point - Origin, SafeDirection).Size();
}

FVector FMath::LinePlaneIntersection(const FVector& Point1, const FVector& Point2, const FVector& PlaneOrigin, const FVector& PlaneNormal)
{
	const FVector Line = Point2 - Point1;
	return Point1 + Line * (((PlaneOrigin - Point1) | PlaneNormal) / (Line | PlaneNormal));
}

FVector FMath::VRand()
{
	const FRandomStream Stream(Rand32());
	return Stream.VRand();
}

FVector FMath::VRandCone(const FVector& Direction, double ConeHalfAngleRadians)
{
	// The part of a sphere between two heights has an area in proportion to their difference.
	const double Cosine = FRandRange(Cos(Clamp(ConeHalfAngleRadians, 0.0, UE_DOUBLE_PI)), 1.0);
	const double Sine = Sqrt(Max(0.0, 1.0 - Cosine * Cosine));
	const double Turn = FRandRange(0.0, 2.0 * UE_DOUBLE_PI);
	const FVector AboutForward(Cosine, Sine * Cos(Turn), Sine * Sin(Turn));
	return FQuat::FindBetweenVectors(FVector::ForwardVector, Direction).RotateVector(AboutForward);
}

FVector FMath::RandPointInBox(const FBox& Box)
{
	return FVector(FRandRange(Box.Min.X, Box.Max.X), FRandRange(Box.Min.Y, Box.Max.Y), FRandRange(Box.Min.Z, Box.Max.Z));
}

double FMath::FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed)
{
	const double Distance = Target - Current;
	if (InterpSpeed <= 0.0 || Square(Distance) < UE_DOUBLE_SMALL_NUMBER)
	{
		return Target;
	}
	return Current + Distance * GetInterpAlpha(DeltaTime, InterpSpeed);
}

void FRandomStream::Initialize(FName InName)
{
	Initialize(static_cast<int32>(GetTypeHash(InName.ToString())));
}

void FRandomStream::GenerateNewSeed()
{
	Initialize(FMath::Rand32());
}

void FRandomStream::MutateSeed() const
{
	Seed = static_cast<int32>(static_cast<uint32>(Seed) * 196314165u + 907633515u);
}

float FRandomStream::GetFraction() const
{
	MutateSeed();
	// The high bits of the seed as the fraction of a number from 1 to 2.
	return std::bit_cast<float>(0x3f800000u | (static_cast<uint32>(Seed) >> 9)) - 1.0f;
}

uint32 FRandomStream::GetUnsignedInt() const
{
	MutateSeed();
	return static_cast<uint32>(Seed);
}

FVector FRandomStream::VRand() const
{
	// Points outside the ball would make the corners of the cube likelier.
	for (;;)
	{
		const double X = GetFraction() * 2.0 - 1.0;
		const double Y = GetFraction() * 2.0 - 1.0;
		const double Z = GetFraction() * 2.0 - 1.0;
		const FVector Point(X, Y, Z);
		if (Point.SizeSquared() <= 1.0 && Point.SizeSquared() >= UE_DOUBLE_KINDA_SMALL_NUMBER)
		{
			return Point.GetUnsafeNormal();
		}
	}
}

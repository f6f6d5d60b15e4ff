#include "Math/UnrealMath.h"

#include <random>

namespace
{
std::mt19937& GetGenerator()
{
	thread_local std::mt19937 Generator{std::random_device{}()};
	return Generator;
}

float LinearToSRGB(float Value)
{
	return Value <= 0.0031308f ? Value * 12.92f : std::pow(Value, 1.0f / 2.4f) * 1.055f - 0.055f;
}

float SRGBToLinear(uint8 Byte)
{
	const float Value = static_cast<float>(Byte) / 255.0f;
	return Value <= 0.04045f ? Value / 12.92f : std::pow((Value + 0.055f) / 1.055f, 2.4f);
}

uint8 ToByte(float Value)
{
	// What is not a number compares false and becomes 0.
	return Value > 0.0f ? static_cast<uint8>(FMath::Min(Value, 1.0f) * 255.0f + 0.5f) : 0;
}

int32 HexValue(TCHAR Char)
{
	return FChar::IsHexDigit(Char) ? FParse::HexDigit(Char) : static_cast<int32>(INDEX_NONE);
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
	const double Width = InputRange.Y - InputRange.X;
	const double Alpha = IsNearlyZero(Width) ? (Value >= InputRange.Y ? 1.0 : 0.0) : Clamp((Value - InputRange.X) / Width, 0.0, 1.0);
	return Lerp(OutputRange.X, OutputRange.Y, Alpha);
}

double FMath::FInterpTo(double Current, double Target, double DeltaTime, double InterpSpeed)
{
	const double Distance = Target - Current;
	if (InterpSpeed <= 0.0 || Square(Distance) < UE_DOUBLE_SMALL_NUMBER)
	{
		return Target;
	}
	return Current + Distance * Clamp(DeltaTime * InterpSpeed, 0.0, 1.0);
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

const FLinearColor FLinearColor::White(1, 1, 1);
const FLinearColor FLinearColor::Gray(0.5f, 0.5f, 0.5f);
const FLinearColor FLinearColor::Black(0, 0, 0);
const FLinearColor FLinearColor::Transparent(0, 0, 0, 0);
const FLinearColor FLinearColor::Red(1, 0, 0);
const FLinearColor FLinearColor::Green(0, 1, 0);
const FLinearColor FLinearColor::Blue(0, 0, 1);
const FLinearColor FLinearColor::Yellow(1, 1, 0);

const FColor FColor::White(255, 255, 255);
const FColor FColor::Black(0, 0, 0);
const FColor FColor::Transparent(0, 0, 0, 0);
const FColor FColor::Red(255, 0, 0);
const FColor FColor::Green(0, 255, 0);
const FColor FColor::Blue(0, 0, 255);
const FColor FColor::Yellow(255, 255, 0);

FLinearColor::FLinearColor(const FColor& Color)
	: R(SRGBToLinear(Color.R))
	, G(SRGBToLinear(Color.G))
	, B(SRGBToLinear(Color.B))
	, A(static_cast<float>(Color.A) / 255.0f)
{
}

FLinearColor FLinearColor::FromSRGBColor(const FColor& Color)
{
	return FLinearColor(Color);
}

FColor FLinearColor::ToFColorSRGB() const
{
	const FLinearColor Clamped = GetClamped();
	return FColor(ToByte(LinearToSRGB(Clamped.R)), ToByte(LinearToSRGB(Clamped.G)), ToByte(LinearToSRGB(Clamped.B)), ToByte(Clamped.A));
}

FColor FLinearColor::ToFColor(bool bSRGB) const
{
	return bSRGB ? ToFColorSRGB() : QuantizeRound();
}

FColor FLinearColor::QuantizeRound() const
{
	return FColor(ToByte(R), ToByte(G), ToByte(B), ToByte(A));
}

FString FLinearColor::ToString() const
{
	return FString::Printf(TEXT("(R=%f,G=%f,B=%f,A=%f)"), R, G, B, A);
}

bool FLinearColor::InitFromString(const FString& Text)
{
	R = G = B = 0.0f;
	A = 1.0f;
	const bool bHasR = FParse::Value(*Text, TEXT("R="), R);
	const bool bHasG = FParse::Value(*Text, TEXT("G="), G);
	const bool bHasB = FParse::Value(*Text, TEXT("B="), B);
	FParse::Value(*Text, TEXT("A="), A);
	return bHasR && bHasG && bHasB;
}

FColor FColor::FromHex(const FString& HexString)
{
	const int32 Start = HexString.StartsWith(TEXT("#")) ? 1 : 0;
	const int32 NumDigits = HexString.Len() - Start;
	const bool bIsShort = NumDigits == 3 || NumDigits == 4;
	if (!bIsShort && NumDigits != 6 && NumDigits != 8)
	{
		return FColor(ForceInit);
	}
	uint8 Components[4] = {0, 0, 0, 255};
	const int32 DigitsPerComponent = bIsShort ? 1 : 2;
	for (int32 Component = 0; Component < NumDigits / DigitsPerComponent; ++Component)
	{
		const int32 High = HexValue(HexString[Start + Component * DigitsPerComponent]);
		const int32 Low = HexValue(HexString[Start + Component * DigitsPerComponent + DigitsPerComponent - 1]);
		if (High == INDEX_NONE || Low == INDEX_NONE)
		{
			return FColor(ForceInit);
		}
		Components[Component] = static_cast<uint8>(High * 16 + Low);
	}
	return FColor(Components[0], Components[1], Components[2], Components[3]);
}

FString FColor::ToHex() const
{
	return FString::Printf(TEXT("%02X%02X%02X%02X"), R, G, B, A);
}

FString FColor::ToString() const
{
	return FString::Printf(TEXT("(R=%i,G=%i,B=%i,A=%i)"), R, G, B, A);
}

bool FColor::InitFromString(const FString& Text)
{
	R = G = B = 0;
	A = 255;
	const bool bHasR = FParse::Value(*Text, TEXT("R="), R);
	const bool bHasG = FParse::Value(*Text, TEXT("G="), G);
	const bool bHasB = FParse::Value(*Text, TEXT("B="), B);
	FParse::Value(*Text, TEXT("A="), A);
	return bHasR && bHasG && bHasB;
}

#include "Math/Color.h"

#include "Misc/Char.h"
#include "Misc/Parse.h"

#include <cmath>

namespace
{
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
const FColor FColor::Cyan(0, 255, 255);
const FColor FColor::Magenta(255, 0, 255);
const FColor FColor::Orange(243, 156, 18);
const FColor FColor::Purple(169, 7, 228);
const FColor FColor::Turquoise(26, 188, 156);
const FColor FColor::Silver(189, 195, 199);
const FColor FColor::Emerald(46, 204, 113);

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

FLinearColor FLinearColor::LinearRGBToHSV() const
{
	const float Least = FMath::Min3(R, G, B);
	const float Value = FMath::Max3(R, G, B);
	const float Range = Value - Least;
	float Hue = 0.0f;
	if (Range > 0.0f)
	{
		Hue = Value == R ? FMath::Fmod((G - B) / Range * 60.0f + 360.0f, 360.0f)
						 : (Value == G ? (B - R) / Range * 60.0f + 120.0f : (R - G) / Range * 60.0f + 240.0f);
	}
	return FLinearColor(Hue, Value == 0.0f ? 0.0f : Range / Value, Value, A);
}

FLinearColor FLinearColor::HSVToLinearRGB() const
{
	const float Sector = R / 60.0f;
	const float Fraction = Sector - std::floor(Sector);
	const float Values[4] = {B, B * (1.0f - G), B * (1.0f - Fraction * G), B * (1.0f - (1.0f - Fraction) * G)};
	static constexpr int32 Components[6][3] = {{0, 3, 1}, {2, 0, 1}, {1, 0, 3}, {1, 2, 0}, {3, 1, 0}, {0, 1, 2}};
	const int32 Index = (FMath::FloorToInt(Sector) % 6 + 6) % 6;
	return FLinearColor(Values[Components[Index][0]], Values[Components[Index][1]], Values[Components[Index][2]], A);
}

FLinearColor FLinearColor::Desaturate(float Desaturation) const
{
	const float Luminance = GetLuminance();
	return FMath::Lerp(*this, FLinearColor(Luminance, Luminance, Luminance, 0.0f), Desaturation);
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

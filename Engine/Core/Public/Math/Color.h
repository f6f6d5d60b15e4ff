#pragma once

#include "Math/UnrealMathUtility.h"
#include "Math/RealSerialization.h"
#include "Templates/TypeHash.h"

struct FColor;

/** A colour of four linear components, of which 1 is full. */
struct CORE_API FLinearColor
{
	float R;
	float G;
	float B;
	float A;

	FLinearColor() = default;
	constexpr FLinearColor(float InR, float InG, float InB, float InA = 1.0f)
		: R(InR)
		, G(InG)
		, B(InB)
		, A(InA)
	{
	}
	explicit constexpr FLinearColor(EForceInit)
		: R(0)
		, G(0)
		, B(0)
		, A(0)
	{
	}
	/** From sRGB bytes, as colours on the screen are kept. */
	FLinearColor(const FColor& Color);

	static const FLinearColor White;
	static const FLinearColor Gray;
	static const FLinearColor Black;
	static const FLinearColor Transparent;
	static const FLinearColor Red;
	static const FLinearColor Green;
	static const FLinearColor Blue;
	static const FLinearColor Yellow;

	static FLinearColor FromSRGBColor(const FColor& Color);
	FColor ToFColorSRGB() const;
	FColor ToFColor(bool bSRGB) const;
	/** The components times 255, without a curve. */
	FColor QuantizeRound() const;

	constexpr FLinearColor operator+(const FLinearColor& C) const { return FLinearColor(R + C.R, G + C.G, B + C.B, A + C.A); }
	constexpr FLinearColor operator-(const FLinearColor& C) const { return FLinearColor(R - C.R, G - C.G, B - C.B, A - C.A); }
	constexpr FLinearColor operator*(const FLinearColor& C) const { return FLinearColor(R * C.R, G * C.G, B * C.B, A * C.A); }
	constexpr FLinearColor operator*(float Scale) const { return FLinearColor(R * Scale, G * Scale, B * Scale, A * Scale); }
	friend constexpr FLinearColor operator*(float Scale, const FLinearColor& C) { return C * Scale; }
	constexpr FLinearColor operator/(float Scale) const { return FLinearColor(R / Scale, G / Scale, B / Scale, A / Scale); }
	constexpr bool operator==(const FLinearColor&) const = default;
	bool Equals(const FLinearColor& C, float Tolerance = UE_KINDA_SMALL_NUMBER) const
	{
		return FMath::Abs(R - C.R) < Tolerance && FMath::Abs(G - C.G) < Tolerance && FMath::Abs(B - C.B) < Tolerance &&
			FMath::Abs(A - C.A) < Tolerance;
	}
	FLinearColor GetClamped(float InMin = 0.0f, float InMax = 1.0f) const
	{
		return FLinearColor(
			FMath::Clamp(R, InMin, InMax), FMath::Clamp(G, InMin, InMax), FMath::Clamp(B, InMin, InMax), FMath::Clamp(A, InMin, InMax));
	}
	FLinearColor CopyWithNewOpacity(float NewOpacity) const { return FLinearColor(R, G, B, NewOpacity); }
	float GetMax() const { return FMath::Max(FMath::Max(R, G), FMath::Max(B, A)); }
	float GetMin() const { return FMath::Min(FMath::Min(R, G), FMath::Min(B, A)); }
	/** R is then the hue in degrees, G the saturation and B the value. */
	FLinearColor LinearRGBToHSV() const;
	FLinearColor HSVToLinearRGB() const;
	/** 1 makes it grey. */
	FLinearColor Desaturate(float Desaturation) const;
	FLinearColor& operator+=(const FLinearColor& C) { return *this = *this + C; }
	FLinearColor& operator*=(float Scale) { return *this = *this * Scale; }
	float GetLuminance() const { return R * 0.3f + G * 0.59f + B * 0.11f; }

	/** "(R=1.000000,G=1.000000,B=1.000000,A=1.000000)" */
	FString ToString() const;
	/** Reads what ToString writes; A may be missing. */
	bool InitFromString(const FString& Text);
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, FLinearColor& C) { return Ar << C.R << C.G << C.B << C.A; }
	friend uint32 GetTypeHash(const FLinearColor& C)
	{
		return HashCombineFast(
			HashCombineFast(::GetTypeHash(C.R), ::GetTypeHash(C.G)), HashCombineFast(::GetTypeHash(C.B), ::GetTypeHash(C.A)));
	}
};

/** A colour of four bytes, in memory blue, green, red, alpha. */
struct CORE_API FColor
{
	union
	{
		struct
		{
			uint8 B;
			uint8 G;
			uint8 R;
			uint8 A;
		};
		uint32 Bits;
	};

	FColor() = default;
	constexpr FColor(uint8 InR, uint8 InG, uint8 InB, uint8 InA = 255)
		: B(InB)
		, G(InG)
		, R(InR)
		, A(InA)
	{
	}
	explicit constexpr FColor(EForceInit)
		: B(0)
		, G(0)
		, R(0)
		, A(0)
	{
	}
	/** From 0xAARRGGBB. */
	explicit constexpr FColor(uint32 InColor)
		: Bits(InColor)
	{
	}

	static const FColor White;
	static const FColor Black;
	static const FColor Transparent;
	static const FColor Red;
	static const FColor Green;
	static const FColor Blue;
	static const FColor Yellow;
	static const FColor Cyan;
	static const FColor Magenta;
	static const FColor Orange;
	static const FColor Purple;
	static const FColor Turquoise;
	static const FColor Silver;
	static const FColor Emerald;

	uint32& DWColor() { return Bits; }
	uint32 DWColor() const { return Bits; }
	uint32 ToPackedARGB() const
	{
		return (static_cast<uint32>(A) << 24) | (static_cast<uint32>(R) << 16) | (static_cast<uint32>(G) << 8) | B;
	}
	uint32 ToPackedRGBA() const
	{
		return (static_cast<uint32>(R) << 24) | (static_cast<uint32>(G) << 16) | (static_cast<uint32>(B) << 8) | A;
	}
	FLinearColor ReinterpretAsLinear() const { return FLinearColor(R / 255.f, G / 255.f, B / 255.f, A / 255.f); }
	friend bool operator==(const FColor& X, const FColor& Y) { return X.Bits == Y.Bits; }

	/** Reads RGB, RRGGBB, RGBA or RRGGBBAA with or without '#'; black and transparent if it is none of them. */
	static FColor FromHex(const FString& HexString);
	/** "RRGGBBAA" */
	FString ToHex() const;
	/** "(R=255,G=255,B=255,A=255)" */
	FString ToString() const;
	bool InitFromString(const FString& Text);
	bool Serialize(FArchive& Ar)
	{
		Ar << *this;
		return true;
	}
	friend FArchive& operator<<(FArchive& Ar, FColor& Color) { return Ar << Color.Bits; }
	friend uint32 GetTypeHash(const FColor& Color) { return Color.Bits; }
};

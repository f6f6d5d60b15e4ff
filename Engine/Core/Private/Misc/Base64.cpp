#include "Misc/Base64.h"

#include "Containers/StringConv.h"

namespace
{
constexpr char StandardAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr char UrlSafeAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";

int32 DigitValue(TCHAR Char, EBase64Mode Mode)
{
	if (Char >= 'A' && Char <= 'Z')
	{
		return Char - 'A';
	}
	if (Char >= 'a' && Char <= 'z')
	{
		return Char - 'a' + 26;
	}
	if (Char >= '0' && Char <= '9')
	{
		return Char - '0' + 52;
	}
	const bool bIsUrlSafe = Mode == EBase64Mode::UrlSafe;
	if (Char == (bIsUrlSafe ? '-' : '+'))
	{
		return 62;
	}
	return Char == (bIsUrlSafe ? '_' : '/') ? 63 : static_cast<int32>(INDEX_NONE);
}
}

FString FBase64::Encode(const uint8* Source, uint32 Length, EBase64Mode Mode)
{
	const char* const Alphabet = Mode == EBase64Mode::UrlSafe ? UrlSafeAlphabet : StandardAlphabet;
	FString Result;
	Result.Reserve(static_cast<int32>(GetEncodedDataSize(Length)));
	for (uint32 Index = 0; Index < Length; Index += 3)
	{
		const uint32 NumBytes = Length - Index < 3 ? Length - Index : 3;
		uint32 Bits = static_cast<uint32>(Source[Index]) << 16;
		Bits |= NumBytes > 1 ? static_cast<uint32>(Source[Index + 1]) << 8 : 0;
		Bits |= NumBytes > 2 ? Source[Index + 2] : 0;
		for (uint32 Digit = 0; Digit < 4; ++Digit)
		{
			if (Digit <= NumBytes)
			{
				Result.AppendChar(static_cast<TCHAR>(Alphabet[(Bits >> (18 - 6 * Digit)) & 63]));
			}
			else if (Mode == EBase64Mode::Standard)
			{
				Result.AppendChar(TEXT('='));
			}
		}
	}
	return Result;
}

FString FBase64::Encode(const TArray<uint8>& Source, EBase64Mode Mode)
{
	return Encode(Source.GetData(), static_cast<uint32>(Source.Num()), Mode);
}

FString FBase64::Encode(const FString& Source, EBase64Mode Mode)
{
	const FTCHARToUTF8 Converted(*Source);
	return Encode(reinterpret_cast<const uint8*>(Converted.Get()), static_cast<uint32>(Converted.Length()), Mode);
}

bool FBase64::Decode(const FString& Source, TArray<uint8>& OutDest, EBase64Mode Mode)
{
	OutDest.Reset();
	int32 NumDigits = Source.Len();
	while (NumDigits > 0 && Source[NumDigits - 1] == '=')
	{
		--NumDigits;
	}
	const int32 NumPadding = Source.Len() - NumDigits;
	const bool bNeedsPadding = Mode == EBase64Mode::Standard || NumPadding > 0;
	if (NumPadding > 2 || NumDigits % 4 == 1 || (bNeedsPadding && Source.Len() % 4 != 0))
	{
		return false;
	}
	OutDest.Reserve(NumDigits * 3 / 4);
	uint32 Bits = 0;
	int32 NumBits = 0;
	for (int32 Index = 0; Index < NumDigits; ++Index)
	{
		const int32 Digit = DigitValue(Source[Index], Mode);
		if (Digit == INDEX_NONE)
		{
			OutDest.Reset();
			return false;
		}
		Bits = (Bits << 6) | static_cast<uint32>(Digit);
		NumBits += 6;
		if (NumBits >= 8)
		{
			NumBits -= 8;
			OutDest.Add(static_cast<uint8>(Bits >> NumBits));
		}
	}
	return true;
}

bool FBase64::Decode(const FString& Source, FString& OutDest, EBase64Mode Mode)
{
	TArray<uint8> Bytes;
	OutDest.Reset();
	if (!Decode(Source, Bytes, Mode))
	{
		return false;
	}
	const FUTF8ToTCHAR Converted(reinterpret_cast<const ANSICHAR*>(Bytes.GetData()), Bytes.Num());
	OutDest.AppendChars(Converted.Get(), Converted.Length());
	return true;
}

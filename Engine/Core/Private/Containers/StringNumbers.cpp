#include "Containers/UnrealString.h"
#include "Misc/StringFormatArg.h"

#include <algorithm>
#include <cmath>
#include <limits>

FString FString::FromInt(int32 Number)
{
	return Printf(TEXT("%d"), Number);
}

FString FString::FormatAsNumber(int32 Number)
{
	FString Result = FromInt(Number);
	const int32 NumSigns = Number < 0 ? 1 : 0;
	for (int32 Index = Result.Len() - 3; Index > NumSigns; Index -= 3)
	{
		Result.InsertAt(Index, TEXT(','));
	}
	return Result;
}

FString FString::SanitizeFloat(double InFloat, int32 InMinFractionalDigits)
{
	// Negative zero shows no sign.
	FString Result = Printf(TEXT("%f"), InFloat == 0 ? 0.0 : InFloat);
	if (!std::isfinite(InFloat))
	{
		return Result;
	}
	// "%f" always gives six digits behind the point.
	const int32 Point = Result.Len() - 7;
	int32 NumFractional = 6;
	while (NumFractional > 0 && Result[Point + NumFractional] == '0')
	{
		--NumFractional;
	}
	NumFractional = std::max(NumFractional, InMinFractionalDigits);
	Result += ChrN(NumFractional - 6, TEXT('0'));
	Result.LeftInline(NumFractional > 0 ? Point + 1 + NumFractional : Point);
	return Result;
}

FString FString::FromHexBlob(const uint8* SrcBuffer, uint32 SrcSize)
{
	return BytesToHex(SrcBuffer, static_cast<int32>(SrcSize));
}

bool FString::ToHexBlob(const FString& Source, uint8* DestBuffer, uint32 DestSize)
{
	const bool bFits = static_cast<uint64>(Source.Len()) == static_cast<uint64>(DestSize) * 2;
	if (!bFits || !std::all_of(Source.begin(), Source.end(), [](TCHAR Char)
					  { return CheckTCharIsHex(Char); }))
	{
		return false;
	}
	HexToBytes(Source, DestBuffer);
	return true;
}

FString FString::FromBlob(const uint8* SrcBuffer, uint32 SrcSize)
{
	FString Result;
	Result.Reserve(static_cast<int32>(SrcSize) * 3);
	for (uint32 Index = 0; Index < SrcSize; ++Index)
	{
		Result.Appendf(TEXT("%03d"), SrcBuffer[Index]);
	}
	return Result;
}

bool FString::ToBlob(const FString& Source, uint8* DestBuffer, uint32 DestSize)
{
	if (static_cast<uint64>(Source.Len()) != static_cast<uint64>(DestSize) * 3)
	{
		return false;
	}
	for (uint32 Index = 0; Index < DestSize; ++Index)
	{
		const FString Digits = Source.Mid(static_cast<int32>(Index) * 3, 3);
		const int32 Value = FCString::Atoi(*Digits);
		if (!std::all_of(Digits.begin(), Digits.end(), [](TCHAR Char)
				{ return FChar::IsDigit(Char); }) ||
			Value > 255)
		{
			return false;
		}
		DestBuffer[Index] = static_cast<uint8>(Value);
	}
	return true;
}

TCHAR NibbleToTChar(uint8 Num)
{
	return static_cast<TCHAR>(Num > 9 ? 'A' + (Num - 10) : '0' + Num);
}

void ByteToHex(uint8 In, FString& Result)
{
	Result += NibbleToTChar(In >> 4);
	Result += NibbleToTChar(In & 15);
}

FString BytesToHex(const uint8* In, int32 Count)
{
	FString Result;
	Result.Reserve(Count * 2);
	for (int32 Index = 0; Index < Count; ++Index)
	{
		ByteToHex(In[Index], Result);
	}
	return Result;
}

FString BytesToHexLower(const uint8* In, int32 Count)
{
	return BytesToHex(In, Count).ToLower();
}

uint8 TCharToNibble(TCHAR Hex)
{
	if (FChar::IsDigit(Hex))
	{
		return static_cast<uint8>(Hex - '0');
	}
	return CheckTCharIsHex(Hex) ? static_cast<uint8>(FChar::ToLower(Hex) - 'a' + 10) : uint8(0);
}

bool CheckTCharIsHex(TCHAR Char)
{
	return FChar::IsHexDigit(Char);
}

int32 HexToBytes(const FString& HexString, uint8* OutBytes)
{
	// With an odd count, the first digit is a byte of its own.
	int32 NumBytes = 0;
	int32 Index = 0;
	if (HexString.Len() % 2 == 1)
	{
		OutBytes[NumBytes++] = TCharToNibble(HexString[Index++]);
	}
	for (; Index < HexString.Len(); Index += 2)
	{
		OutBytes[NumBytes++] = static_cast<uint8>(TCharToNibble(HexString[Index]) << 4 | TCharToNibble(HexString[Index + 1]));
	}
	return NumBytes;
}

namespace
{
template <typename T>
T ReadSigned(const TCHAR* Buffer)
{
	const int64 Value = FCString::Atoi64(Buffer);
	return static_cast<T>(std::clamp<int64>(Value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

template <typename T>
T ReadUnsigned(const TCHAR* Buffer)
{
	return static_cast<T>(FCString::Strtoui64(Buffer, nullptr, 10));
}
}

FString LexToString(bool Value)
{
	return Value ? TEXT("true") : TEXT("false");
}

#define UE_DEFINE_LEX_NUMBER(Type, Format, Read) \
	FString LexToString(Type Value) \
	{ \
		return FString::Printf(TEXT(Format), Value); \
	} \
	void LexFromString(Type& OutValue, const TCHAR* Buffer) \
	{ \
		OutValue = static_cast<Type>(Read(Buffer)); \
	}

UE_DEFINE_LEX_NUMBER(int8, "%d", ReadSigned<int8>)
UE_DEFINE_LEX_NUMBER(int16, "%d", ReadSigned<int16>)
UE_DEFINE_LEX_NUMBER(int32, "%d", ReadSigned<int32>)
UE_DEFINE_LEX_NUMBER(long, "%ld", ReadSigned<int64>)
UE_DEFINE_LEX_NUMBER(int64, "%lld", ReadSigned<int64>)
UE_DEFINE_LEX_NUMBER(uint8, "%u", ReadUnsigned<uint8>)
UE_DEFINE_LEX_NUMBER(uint16, "%u", ReadUnsigned<uint16>)
UE_DEFINE_LEX_NUMBER(uint32, "%u", ReadUnsigned<uint32>)
UE_DEFINE_LEX_NUMBER(unsigned long, "%lu", ReadUnsigned<uint64>)
UE_DEFINE_LEX_NUMBER(uint64, "%llu", ReadUnsigned<uint64>)
UE_DEFINE_LEX_NUMBER(float, "%f", FCString::Atof)
UE_DEFINE_LEX_NUMBER(double, "%f", FCString::Atod)

#undef UE_DEFINE_LEX_NUMBER

FString LexToSanitizedString(double Value)
{
	return FString::SanitizeFloat(Value);
}

void LexFromString(bool& OutValue, const TCHAR* Buffer)
{
	OutValue = FCString::ToBool(Buffer);
}

FStringFormatArg::FStringFormatArg(int32 Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(uint32 Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(int64 Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(uint64 Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(float Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(double Value)
	: Text(LexToString(Value))
{
}

FStringFormatArg::FStringFormatArg(FString Value)
	: Text(MoveTemp(Value))
{
}

FStringFormatArg::FStringFormatArg(FStringView Value)
	: Text(Value)
{
}

FStringFormatArg::FStringFormatArg(const TCHAR* Value)
	: Text(Value)
{
}

FStringFormatArg::FStringFormatArg(const ANSICHAR* Value)
	: Text(Value)
{
}

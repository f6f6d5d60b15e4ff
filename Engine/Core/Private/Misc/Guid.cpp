#include "Misc/Guid.h"

#include "Containers/UnrealString.h"
#include "Hash/CityHash.h"
#include "Misc/AssertionMacros.h"
#include "Serialization/Archive.h"

#include <sys/random.h>

#include <cerrno>
#include <cstring>

namespace
{
int32 HexDigit(TCHAR Char)
{
	if (Char >= '0' && Char <= '9')
	{
		return Char - '0';
	}
	if (Char >= 'a' && Char <= 'f')
	{
		return Char - 'a' + 10;
	}
	return Char >= 'A' && Char <= 'F' ? Char - 'A' + 10 : static_cast<int32>(INDEX_NONE);
}

/** A format of hexadecimal digits: '#' stands for one, any other character for itself. */
struct FGuidPattern
{
	EGuidFormats Format;
	const TCHAR* Pattern;
	bool bIsLower;
};

// Parse tries them in this order.
constexpr FGuidPattern Patterns[] = {
	{EGuidFormats::Digits, TEXT("################################"), false},
	{EGuidFormats::DigitsLower, TEXT("################################"), true},
	{EGuidFormats::DigitsWithHyphens, TEXT("########-####-####-####-############"), false},
	{EGuidFormats::DigitsWithHyphensLower, TEXT("########-####-####-####-############"), true},
	{EGuidFormats::DigitsWithHyphensInBraces, TEXT("{########-####-####-####-############}"), false},
	{EGuidFormats::DigitsWithHyphensInParentheses, TEXT("(########-####-####-####-############)"), false},
	{EGuidFormats::HexValuesInBraces, TEXT("{0x########,0x####,0x####,{0x##,0x##,0x##,0x##,0x##,0x##,0x##,0x##}}"), true},
	{EGuidFormats::UniqueObjectGuid, TEXT("########-########-########-########"), false},
};

const FGuidPattern* FindPattern(EGuidFormats Format)
{
	for (const FGuidPattern& Pattern : Patterns)
	{
		if (Pattern.Format == Format)
		{
			return &Pattern;
		}
	}
	return nullptr;
}

FString FormatPattern(const FGuid& Guid, const FGuidPattern& Pattern)
{
	const char* const Digits = Pattern.bIsLower ? "0123456789abcdef" : "0123456789ABCDEF";
	FString Result(Pattern.Pattern);
	int32 Digit = 0;
	for (TCHAR& Char : Result)
	{
		if (Char == '#')
		{
			Char = static_cast<TCHAR>(Digits[(Guid[Digit / 8] >> (28 - 4 * (Digit % 8))) & 15]);
			++Digit;
		}
	}
	return Result;
}

bool ParsePattern(const FString& Text, const FGuidPattern& Pattern, FGuid& OutGuid)
{
	FGuid Result;
	int32 Digit = 0;
	int32 Index = 0;
	for (const TCHAR* Char = Pattern.Pattern; *Char != 0; ++Char, ++Index)
	{
		if (Index >= Text.Len())
		{
			return false;
		}
		if (*Char != '#')
		{
			if (Text[Index] != *Char)
			{
				return false;
			}
			continue;
		}
		const int32 Value = HexDigit(Text[Index]);
		if (Value == INDEX_NONE)
		{
			return false;
		}
		Result[Digit / 8] |= static_cast<uint32>(Value) << (28 - 4 * (Digit % 8));
		++Digit;
	}
	if (Index != Text.Len())
	{
		return false;
	}
	OutGuid = Result;
	return true;
}

using FUInt128 = unsigned __int128;

FUInt128 ToNumber(const FGuid& Guid)
{
	return (static_cast<FUInt128>((static_cast<uint64>(Guid.A) << 32) | Guid.B) << 64) | ((static_cast<uint64>(Guid.C) << 32) | Guid.D);
}

FGuid FromNumber(FUInt128 Number)
{
	return FGuid(static_cast<uint32>(Number >> 96), static_cast<uint32>(Number >> 64), static_cast<uint32>(Number >> 32),
		static_cast<uint32>(Number));
}

constexpr int32 NumBase36Digits = 25;

FString FormatBase36(const FGuid& Guid)
{
	TCHAR Text[NumBase36Digits + 1] = {};
	FUInt128 Number = ToNumber(Guid);
	for (int32 Index = NumBase36Digits - 1; Index >= 0; --Index, Number /= 36)
	{
		const int32 Digit = static_cast<int32>(Number % 36);
		Text[Index] = static_cast<TCHAR>(Digit < 10 ? '0' + Digit : 'A' + Digit - 10);
	}
	return FString(Text);
}

bool ParseBase36(const FString& Text, FGuid& OutGuid)
{
	if (Text.Len() != NumBase36Digits)
	{
		return false;
	}
	FUInt128 Number = 0;
	for (int32 Index = 0; Index < NumBase36Digits; ++Index)
	{
		const TCHAR Char = Text[Index];
		const bool bIsDigit = Char >= '0' && Char <= '9';
		const bool bIsLetter = (Char >= 'A' && Char <= 'Z') || (Char >= 'a' && Char <= 'z');
		if (!bIsDigit && !bIsLetter)
		{
			return false;
		}
		const uint32 Digit = bIsDigit ? Char - '0' : (Char | 0x20) - 'a' + 10;
		const FUInt128 Next = Number * 36 + Digit;
		if (Number > (~static_cast<FUInt128>(0)) / 36 || Next < Digit)
		{
			return false;
		}
		Number = Next;
	}
	OutGuid = FromNumber(Number);
	return true;
}

// Base 64 over the four numbers' bytes as they lie in memory, with the two characters that are safe in a URL.
constexpr char ShortAlphabet[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
constexpr int32 NumShortDigits = 22;

FString FormatShort(const FGuid& Guid)
{
	uint8 Bytes[18] = {};
	FMemory::Memcpy(Bytes, &Guid, sizeof(Guid));
	FString Result;
	for (int32 Index = 0; Index < NumShortDigits; ++Index)
	{
		const int32 Bit = Index * 6;
		const uint32 Pair = (static_cast<uint32>(Bytes[Bit / 8]) << 8) | Bytes[Bit / 8 + 1];
		Result.AppendChar(static_cast<TCHAR>(ShortAlphabet[(Pair >> (10 - Bit % 8)) & 63]));
	}
	return Result;
}

bool ParseShort(const FString& Text, FGuid& OutGuid)
{
	if (Text.Len() != NumShortDigits)
	{
		return false;
	}
	uint8 Bytes[18] = {};
	for (int32 Index = 0; Index < NumShortDigits; ++Index)
	{
		const TCHAR Char = Text[Index];
		const char* const Found = Char > 0 && Char < 128 ? std::strchr(ShortAlphabet, static_cast<char>(Char)) : nullptr;
		if (Found == nullptr)
		{
			return false;
		}
		const int32 Bit = Index * 6;
		const uint32 Pair = static_cast<uint32>(Found - ShortAlphabet) << (10 - Bit % 8);
		Bytes[Bit / 8] |= static_cast<uint8>(Pair >> 8);
		Bytes[Bit / 8 + 1] |= static_cast<uint8>(Pair);
	}
	FMemory::Memcpy(&OutGuid, Bytes, sizeof(OutGuid));
	return true;
}

/** Marks random or hashed bits as a GUID of a version, of the usual variant. */
void SetVersionAndVariant(FGuid& Guid, uint32 Version)
{
	Guid.B = (Guid.B & 0xffff0fffu) | (Version << 12);
	Guid.C = (Guid.C & 0x3fffffffu) | 0x80000000u;
}

void FillWithRandomBytes(uint8* Bytes, SIZE_T Size)
{
	for (SIZE_T Done = 0; Done < Size;)
	{
		const ssize_t Count = getrandom(Bytes + Done, Size - Done, 0);
		checkf(Count > 0 || errno == EINTR, TEXT("The system gives no random bytes: error %d"), errno);
		Done += Count > 0 ? static_cast<SIZE_T>(Count) : 0;
	}
}
}

FGuid::FGuid(const FString& InGuidStr)
	: FGuid()
{
	Parse(InGuidStr, *this);
}

FGuid FGuid::NewGuid()
{
	// A graph's nodes and pins take ten thousands at once: the system is asked for many at a time.
	constexpr int32 NumAtATime = 64;
	thread_local FGuid Drawn[NumAtATime];
	thread_local int32 NumLeft = 0;
	if (NumLeft == 0)
	{
		FillWithRandomBytes(reinterpret_cast<uint8*>(Drawn), sizeof(Drawn));
		NumLeft = NumAtATime;
	}
	FGuid Result = Drawn[--NumLeft];
	// What was given away is not kept.
	Drawn[NumLeft].Invalidate();
	SetVersionAndVariant(Result, 4);
	return Result;
}

FGuid FGuid::NewDeterministicGuid(FStringView ObjectPath, uint64 Seed)
{
	const char* const Bytes = reinterpret_cast<const char*>(ObjectPath.GetData());
	const uint32 Length = static_cast<uint32>(ObjectPath.Len()) * sizeof(TCHAR);
	const uint64 High = CityHash64WithSeed(Bytes, Length, Seed);
	const uint64 Low = CityHash64WithSeed(Bytes, Length, High);
	FGuid Result(static_cast<uint32>(High >> 32), static_cast<uint32>(High), static_cast<uint32>(Low >> 32), static_cast<uint32>(Low));
	SetVersionAndVariant(Result, 8);
	return Result;
}

FGuid FGuid::Combine(const FGuid& GuidA, const FGuid& GuidB)
{
	return FGuid(
		HashCombine(GuidA.A, GuidB.A), HashCombine(GuidA.B, GuidB.B), HashCombine(GuidA.C, GuidB.C), HashCombine(GuidA.D, GuidB.D));
}

uint32& FGuid::operator[](int32 Index)
{
	check(Index >= 0 && Index < 4);
	return (&A)[Index];
}

const uint32& FGuid::operator[](int32 Index) const
{
	return const_cast<FGuid&>(*this)[Index];
}

FString FGuid::ToString(EGuidFormats Format) const
{
	if (const FGuidPattern* const Pattern = FindPattern(Format))
	{
		return FormatPattern(*this, *Pattern);
	}
	return Format == EGuidFormats::Short ? FormatShort(*this) : FormatBase36(*this);
}

bool FGuid::Parse(const FString& GuidString, FGuid& OutGuid)
{
	for (const FGuidPattern& Pattern : Patterns)
	{
		if (ParsePattern(GuidString, Pattern, OutGuid))
		{
			return true;
		}
	}
	return ParseShort(GuidString, OutGuid) || ParseBase36(GuidString, OutGuid);
}

bool FGuid::ParseExact(const FString& GuidString, EGuidFormats Format, FGuid& OutGuid)
{
	if (const FGuidPattern* const Pattern = FindPattern(Format))
	{
		return ParsePattern(GuidString, *Pattern, OutGuid);
	}
	return Format == EGuidFormats::Short ? ParseShort(GuidString, OutGuid) : ParseBase36(GuidString, OutGuid);
}

bool FGuid::Serialize(FArchive& Ar)
{
	Ar << *this;
	return true;
}

FArchive& operator<<(FArchive& Ar, FGuid& Guid)
{
	return Ar << Guid.A << Guid.B << Guid.C << Guid.D;
}

bool FGuid::ExportTextItem(FString& ValueStr, const FGuid& DefaultValue, UObject* Parent, int32 PortFlags, UObject* ExportRootScope) const
{
	ValueStr += ToString();
	return true;
}

bool FGuid::ImportTextItem(const TCHAR*& Buffer, int32 PortFlags, UObject* Parent, FOutputDevice* ErrorText)
{
	// "(A=1,B=2,...)", the form of the members, is no format of this type's own.
	const TCHAR* End = Buffer;
	while (HexDigit(*End) >= 0 || *End == '-' || (End == Buffer && *End == '{') || *End == '}')
	{
		++End;
	}
	if (End == Buffer || !Parse(FString(FStringView(Buffer, static_cast<int32>(End - Buffer))), *this))
	{
		return false;
	}
	Buffer = End;
	return true;
}

#include "Containers/StringConv.h"

#include <utf8.h>

#if PLATFORM_ENABLE_VECTORINTRINSICS
#include <emmintrin.h>
#endif

namespace
{
constexpr TCHAR ReplacementCharacter = 0xFFFD;

constexpr bool IsHighSurrogate(TCHAR Unit)
{
	return Unit >= 0xD800 && Unit <= 0xDBFF;
}

constexpr bool IsLowSurrogate(TCHAR Unit)
{
	return Unit >= 0xDC00 && Unit <= 0xDFFF;
}

/** Widens the ASCII at the start of `Source` and answers how much there was. */
int32 WidenAscii(TCHAR* Dest, const UTF8CHAR* Source, int32 Len)
{
	int32 Index = 0;
#if PLATFORM_ENABLE_VECTORINTRINSICS
	const __m128i Zero = _mm_setzero_si128();
	for (; Index + 16 <= Len; Index += 16)
	{
		const __m128i Bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Source + Index));
		if (_mm_movemask_epi8(Bytes) != 0)
		{
			break;
		}
		_mm_storeu_si128(reinterpret_cast<__m128i*>(Dest + Index), _mm_unpacklo_epi8(Bytes, Zero));
		_mm_storeu_si128(reinterpret_cast<__m128i*>(Dest + Index + 8), _mm_unpackhi_epi8(Bytes, Zero));
	}
#endif
	for (; Index < Len && Source[Index] < 0x80; ++Index)
	{
		Dest[Index] = Source[Index];
	}
	return Index;
}

#if PLATFORM_ENABLE_VECTORINTRINSICS
/** True when all 16 units from `Source` on are ASCII; `OutBytes` are they. */
bool NarrowBlock(const TCHAR* Source, __m128i& OutBytes)
{
	const __m128i First = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Source));
	const __m128i Second = _mm_loadu_si128(reinterpret_cast<const __m128i*>(Source + 8));
	const __m128i Beyond = _mm_and_si128(_mm_or_si128(First, Second), _mm_set1_epi16(static_cast<short>(0xFF80)));
	OutBytes = _mm_packus_epi16(First, Second);
	return _mm_movemask_epi8(_mm_cmpeq_epi16(Beyond, _mm_setzero_si128())) == 0xFFFF;
}
#endif

/** Length of the ASCII at the start of `Source`; written to `Dest` too, unless that is null. */
int32 NarrowAscii(UTF8CHAR* Dest, const TCHAR* Source, int32 Len)
{
	int32 Index = 0;
#if PLATFORM_ENABLE_VECTORINTRINSICS
	__m128i Bytes;
	for (; Index + 16 <= Len && NarrowBlock(Source + Index, Bytes); Index += 16)
	{
		if (Dest != nullptr)
		{
			_mm_storeu_si128(reinterpret_cast<__m128i*>(Dest + Index), Bytes);
		}
	}
#endif
	for (; Index < Len && Source[Index] < 0x80; ++Index)
	{
		if (Dest != nullptr)
		{
			Dest[Index] = static_cast<UTF8CHAR>(Source[Index]);
		}
	}
	return Index;
}

/** Reads one code point of well-formed UTF-8, or U+FFFD for one byte that is not. */
uint32 NextUtf8(const UTF8CHAR*& Source, const UTF8CHAR* End)
{
	const UTF8CHAR Lead = *Source;
	const std::ptrdiff_t Len = Lead < 0x80 ? 1 : (Lead >= 0xF0 ? 4 : (Lead >= 0xE0 ? 3 : 2));
	if (End - Source >= Len && utf8::is_valid(Source, Source + Len))
	{
		return utf8::unchecked::next(Source);
	}
	++Source;
	return ReplacementCharacter;
}

/** Reads one code point of UTF-16, or U+FFFD for a surrogate without its partner. */
uint32 NextUtf16(const TCHAR*& Source, const TCHAR* End)
{
	const TCHAR Unit = *Source++;
	if (IsHighSurrogate(Unit) && Source < End && IsLowSurrogate(*Source))
	{
		return 0x10000 + ((static_cast<uint32>(Unit) - 0xD800) << 10) + (static_cast<uint32>(*Source++) - 0xDC00);
	}
	return IsHighSurrogate(Unit) || IsLowSurrogate(Unit) ? ReplacementCharacter : Unit;
}

TCHAR* WriteUtf16(TCHAR* Dest, uint32 Code)
{
	if (Code > 0x10FFFF || (Code >= 0xD800 && Code <= 0xDFFF))
	{
		Code = ReplacementCharacter;
	}
	if (Code < 0x10000)
	{
		*Dest++ = static_cast<TCHAR>(Code);
		return Dest;
	}
	*Dest++ = static_cast<TCHAR>(0xD800 + ((Code - 0x10000) >> 10));
	*Dest++ = static_cast<TCHAR>(0xDC00 + ((Code - 0x10000) & 0x3FF));
	return Dest;
}
}

namespace UE::Core::Private
{
int32 ConvertUtf8ToTChar(TCHAR* Dest, const UTF8CHAR* Source, int32 SourceLen)
{
	TCHAR* Out = Dest;
	const UTF8CHAR* const End = Source + SourceLen;
	while (Source < End)
	{
		const int32 NumAscii = WidenAscii(Out, Source, static_cast<int32>(End - Source));
		Source += NumAscii;
		Out += NumAscii;
		while (Source < End && *Source >= 0x80)
		{
			Out = WriteUtf16(Out, NextUtf8(Source, End));
		}
	}
	return static_cast<int32>(Out - Dest);
}

int32 GetUtf16Length(const UTF8CHAR* Source, int32 SourceLen)
{
	int32 Length = 0;
	for (const UTF8CHAR* const End = Source + SourceLen; Source < End;)
	{
		Length += NextUtf8(Source, End) >= 0x10000 ? 2 : 1;
	}
	return Length;
}

int32 ConvertTCharToUtf8(UTF8CHAR* Dest, const TCHAR* Source, int32 SourceLen)
{
	UTF8CHAR* Out = Dest;
	const TCHAR* const End = Source + SourceLen;
	while (Source < End)
	{
		const int32 NumAscii = NarrowAscii(Out, Source, static_cast<int32>(End - Source));
		Source += NumAscii;
		Out += NumAscii;
		while (Source < End && *Source >= 0x80)
		{
			Out = utf8::unchecked::append(NextUtf16(Source, End), Out);
		}
	}
	return static_cast<int32>(Out - Dest);
}

int32 GetUtf8Length(const TCHAR* Source, int32 SourceLen)
{
	int32 Length = 0;
	const TCHAR* const End = Source + SourceLen;
	while (Source < End)
	{
		const int32 NumAscii = NarrowAscii(nullptr, Source, static_cast<int32>(End - Source));
		Source += NumAscii;
		Length += NumAscii;
		while (Source < End && *Source >= 0x80)
		{
			const uint32 Code = NextUtf16(Source, End);
			Length += Code < 0x800 ? 2 : (Code < 0x10000 ? 3 : 4);
		}
	}
	return Length;
}

void ConvertAnsiToTChar(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLen)
{
	const UTF8CHAR* const Bytes = reinterpret_cast<const UTF8CHAR*>(Source);
	for (int32 Index = 0; Index < SourceLen; ++Index)
	{
		Index += WidenAscii(Dest + Index, Bytes + Index, SourceLen - Index);
		if (Index < SourceLen)
		{
			Dest[Index] = '?';
		}
	}
}

void ConvertTCharToAnsi(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen)
{
	UTF8CHAR* const Bytes = reinterpret_cast<UTF8CHAR*>(Dest);
	for (int32 Index = 0; Index < SourceLen; ++Index)
	{
		Index += NarrowAscii(Bytes + Index, Source + Index, SourceLen - Index);
		if (Index < SourceLen)
		{
			Dest[Index] = '?';
		}
	}
}

int32 ConvertUtf32ToTChar(TCHAR* Dest, const UTF32CHAR* Source, int32 SourceLen)
{
	TCHAR* Out = Dest;
	for (int32 Index = 0; Index < SourceLen; ++Index)
	{
		Out = WriteUtf16(Out, Source[Index]);
	}
	return static_cast<int32>(Out - Dest);
}

int32 ConvertTCharToUtf32(UTF32CHAR* Dest, const TCHAR* Source, int32 SourceLen)
{
	int32 Length = 0;
	for (const TCHAR* const End = Source + SourceLen; Source < End;)
	{
		Dest[Length++] = NextUtf16(Source, End);
	}
	return Length;
}
}

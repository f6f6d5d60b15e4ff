#pragma once

#include "CoreTypes.h"

namespace UE::Core::Private
{
/** Simple case mapping of Latin, Greek, Cyrillic and Armenian letters beyond ASCII; any other character is answered as it is. */
CORE_API char16_t ToLowerBeyondAscii(char16_t Char);
CORE_API char16_t ToUpperBeyondAscii(char16_t Char);
}

/** Classes and case of single characters. No rule depends on the process's locale. */
template <typename InCharType>
struct TChar
{
	using CharType = InCharType;

	static constexpr CharType LineFeed = 0x0A;
	static constexpr CharType VerticalTab = 0x0B;
	static constexpr CharType FormFeed = 0x0C;
	static constexpr CharType CarriageReturn = 0x0D;
	static constexpr bool bWide = sizeof(CharType) > 1;

	static constexpr bool IsAscii(CharType Char) { return static_cast<uint32>(Char) < 0x80; }

	static CharType ToUpper(CharType Char)
	{
		if (IsAscii(Char))
		{
			return static_cast<CharType>(Char - ((Char >= 'a' && Char <= 'z') ? 32 : 0));
		}
		if constexpr (bWide)
		{
			return UE::Core::Private::ToUpperBeyondAscii(Char);
		}
		return Char;
	}

	static CharType ToLower(CharType Char)
	{
		if (IsAscii(Char))
		{
			return static_cast<CharType>(Char + ((Char >= 'A' && Char <= 'Z') ? 32 : 0));
		}
		if constexpr (bWide)
		{
			return UE::Core::Private::ToLowerBeyondAscii(Char);
		}
		return Char;
	}

	static bool IsUpper(CharType Char) { return IsAscii(Char) ? (Char >= 'A' && Char <= 'Z') : ToLower(Char) != Char; }
	static bool IsLower(CharType Char) { return IsAscii(Char) ? (Char >= 'a' && Char <= 'z') : ToUpper(Char) != Char; }
	static bool IsAlpha(CharType Char)
	{
		if (IsAscii(Char))
		{
			return (Char >= 'a' && Char <= 'z') || (Char >= 'A' && Char <= 'Z');
		}
		// Letters without case (Han, Kana, Hangul and the rest) are letters too; the punctuation blocks are not.
		const uint32 Code = static_cast<uint32>(Char);
		return bWide && Code >= 0xC0 && Code != 0xD7 && Code != 0xF7 && !(Code >= 0x2000 && Code <= 0x2BFF) &&
			!(Code >= 0x3000 && Code <= 0x3004) && !(Code >= 0x3007 && Code <= 0x3030) && !(Code >= 0xD800 && Code <= 0xF8FF) &&
			!(Code >= 0xFE10 && Code <= 0xFE6F) && !(Code >= 0xFF00 && Code <= 0xFF20) && Code < 0xFFF0;
	}
	static constexpr bool IsDigit(CharType Char) { return Char >= '0' && Char <= '9'; }
	static constexpr bool IsHexDigit(CharType Char)
	{
		return IsDigit(Char) || (Char >= 'a' && Char <= 'f') || (Char >= 'A' && Char <= 'F');
	}
	static constexpr bool IsOctDigit(CharType Char) { return Char >= '0' && Char <= '7'; }
	static bool IsAlnum(CharType Char) { return IsDigit(Char) || IsAlpha(Char); }
	static bool IsIdentifier(CharType Char) { return IsAlnum(Char) || IsUnderscore(Char); }
	static constexpr bool IsUnderscore(CharType Char) { return Char == '_'; }
	static constexpr bool IsControl(CharType Char)
	{
		return static_cast<uint32>(Char) < 0x20 || Char == 0x7F ||
			(bWide && static_cast<uint32>(Char) >= 0x80 && static_cast<uint32>(Char) < 0xA0);
	}
	static constexpr bool IsPrint(CharType Char) { return !IsControl(Char); }
	static constexpr bool IsGraph(CharType Char) { return IsPrint(Char) && !IsWhitespace(Char); }
	static bool IsPunct(CharType Char) { return IsAscii(Char) ? IsGraph(Char) && !IsAlnum(Char) : IsGraph(Char) && !IsAlpha(Char); }
	static constexpr bool IsWhitespace(CharType Char)
	{
		const uint32 Code = static_cast<uint32>(Char);
		return Code == ' ' || (Code >= 9 && Code <= 13) ||
			(bWide &&
				(Code == 0x85 || Code == 0xA0 || Code == 0x1680 || (Code >= 0x2000 && Code <= 0x200A) || Code == 0x2028 ||
					Code == 0x2029 || Code == 0x202F || Code == 0x205F || Code == 0x3000));
	}
	static constexpr bool IsLinebreak(CharType Char)
	{
		const uint32 Code = static_cast<uint32>(Char);
		return (Code >= LineFeed && Code <= CarriageReturn) || (bWide && (Code == 0x85 || Code == 0x2028 || Code == 0x2029));
	}
	static constexpr uint32 ToUnsigned(CharType Char) { return static_cast<uint32>(Char); }
	/** Value of a decimal digit; anything else gives a meaningless number. */
	static constexpr int32 ConvertCharDigitToInt(CharType Char) { return static_cast<int32>(Char) - static_cast<int32>('0'); }
};

using FChar = TChar<TCHAR>;
using FCharWide = TChar<WIDECHAR>;
using FCharAnsi = TChar<ANSICHAR>;

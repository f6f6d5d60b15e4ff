#pragma once

#include "CoreTypes.h"
#include "Misc/Char.h"
#include "String/FormatStringSan.h"

/** Whether letters that differ in case alone are the same. */
namespace ESearchCase
{
enum Type
{
	CaseSensitive,
	IgnoreCase
};
}

namespace ESearchDir
{
enum Type
{
	FromStart,
	FromEnd
};
}

/** C's string functions for one character type. Strings end with 0 and are not null unless a function says so. */
template <typename T>
struct TCString
{
	using CharType = T;

	/** 0 for null. */
	static constexpr int32 Strlen(const CharType* String)
	{
		int32 Length = 0;
		if (String != nullptr)
		{
			while (String[Length] != 0)
			{
				++Length;
			}
		}
		return Length;
	}

	static int32 Strnlen(const CharType* String, SIZE_T StringSize)
	{
		SIZE_T Length = 0;
		while (Length < StringSize && String[Length] != 0)
		{
			++Length;
		}
		return static_cast<int32>(Length);
	}

	static int32 Strcmp(const CharType* First, const CharType* Second)
	{
		return CompareUpTo<false>(First, Second, ~static_cast<SIZE_T>(0));
	}
	static int32 Strncmp(const CharType* First, const CharType* Second, SIZE_T Count) { return CompareUpTo<false>(First, Second, Count); }
	static int32 Stricmp(const CharType* First, const CharType* Second)
	{
		return CompareUpTo<true>(First, Second, ~static_cast<SIZE_T>(0));
	}
	static int32 Strnicmp(const CharType* First, const CharType* Second, SIZE_T Count) { return CompareUpTo<true>(First, Second, Count); }

	/** Copies with the terminator; the destination must have room. */
	static CharType* Strcpy(CharType* Dest, const CharType* Src)
	{
		return Strncpy(Dest, Src, static_cast<SIZE_T>(Strlen(Src)) + 1);
	}

	/** Copies at most `MaxLen` - 1 characters and always writes the terminator. `MaxLen` is at least 1. */
	static CharType* Strncpy(CharType* Dest, const CharType* Src, SIZE_T MaxLen)
	{
		SIZE_T Index = 0;
		for (; Index + 1 < MaxLen && Src[Index] != 0; ++Index)
		{
			Dest[Index] = Src[Index];
		}
		Dest[Index] = 0;
		return Dest;
	}

	static CharType* Strcat(CharType* Dest, const CharType* Src)
	{
		Strcpy(Dest + Strlen(Dest), Src);
		return Dest;
	}

	/** Formats at most `DestSize` - 1 characters and the terminator. Answers the length, or -1 when not all of it had room. */
	template <typename... Types>
	requires std::is_same_v<CharType, TCHAR>
	static int32 Snprintf(CharType* Dest, SIZE_T DestSize, UE::Core::TCheckedFormatString<CharType, Types...> Format, Types... Args)
	{
		const UE::Core::FFormatArgument Arguments[] = {UE::Core::FFormatArgument(Args)..., UE::Core::FFormatArgument()};
		return UE::Core::FormatToBuffer(Dest, DestSize, Format.GetFormatString(), Arguments, static_cast<int32>(sizeof...(Types)));
	}

	/** First place of `Find`, or null. An empty `Find` is found at once. */
	static const CharType* Strstr(const CharType* String, const CharType* Find) { return FindString<false>(String, Find); }
	static CharType* Strstr(CharType* String, const CharType* Find) { return const_cast<CharType*>(FindString<false>(String, Find)); }
	/** Null arguments are allowed and find nothing. */
	static const CharType* Stristr(const CharType* String, const CharType* Find) { return FindString<true>(String, Find); }
	static CharType* Stristr(CharType* String, const CharType* Find) { return const_cast<CharType*>(FindString<true>(String, Find)); }

	static const CharType* Strchr(const CharType* String, CharType Char)
	{
		for (; *String != Char; ++String)
		{
			if (*String == 0)
			{
				return nullptr;
			}
		}
		return String;
	}

	static const CharType* Strrchr(const CharType* String, CharType Char)
	{
		const CharType* Last = nullptr;
		for (;; ++String)
		{
			Last = *String == Char ? String : Last;
			if (*String == 0)
			{
				return Last;
			}
		}
	}

	static int32 Strspn(const CharType* String, const CharType* Mask)
	{
		int32 Length = 0;
		while (String[Length] != 0 && Strchr(Mask, String[Length]) != nullptr)
		{
			++Length;
		}
		return Length;
	}

	static int32 Strcspn(const CharType* String, const CharType* Mask)
	{
		int32 Length = 0;
		while (String[Length] != 0 && Strchr(Mask, String[Length]) == nullptr)
		{
			++Length;
		}
		return Length;
	}

	static CharType* Strupr(CharType* String)
	{
		for (CharType* Char = String; *Char != 0; ++Char)
		{
			*Char = TChar<CharType>::ToUpper(*Char);
		}
		return String;
	}

	// Numbers skip leading white space and stop at the first character that does not belong; out of range saturates. None reads the locale.
	static int32 Atoi(const CharType* String);
	static int64 Atoi64(const CharType* String);
	static float Atof(const CharType* String);
	static double Atod(const CharType* String);
	/** `Base` 2 to 36, or 0 to read it from a 0x or 0 prefix. `End`, where given, is set behind the number. */
	static int32 Strtoi(const CharType* Start, CharType** End, int32 Base);
	static int64 Strtoi64(const CharType* Start, CharType** End, int32 Base);
	static uint64 Strtoui64(const CharType* Start, CharType** End, int32 Base);

	/** "True", "Yes", "On" in any case, and any number but 0. */
	static bool ToBool(const CharType* String);
	/** A sign, digits, and at most one point; at least one character. */
	static bool IsNumeric(const CharType* String);
	static bool IsPureAnsi(const CharType* String)
	{
		for (; *String != 0; ++String)
		{
			if (!TChar<CharType>::IsAscii(*String))
			{
				return false;
			}
		}
		return true;
	}

	/** `NumChars` spaces, up to 255. */
	static const CharType* Spc(int32 NumChars);
	static const CharType* Tab(int32 NumTabs);

private:
	template <bool bIgnoreCase>
	static int32 CompareUpTo(const CharType* First, const CharType* Second, SIZE_T Count)
	{
		for (; Count > 0; --Count, ++First, ++Second)
		{
			uint32 A = TChar<CharType>::ToUnsigned(*First);
			uint32 B = TChar<CharType>::ToUnsigned(*Second);
			if (A != B)
			{
				if constexpr (bIgnoreCase)
				{
					A = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(*First));
					B = TChar<CharType>::ToUnsigned(TChar<CharType>::ToLower(*Second));
				}
				if (A != B)
				{
					return A < B ? -1 : 1;
				}
			}
			if (*First == 0)
			{
				return 0;
			}
		}
		return 0;
	}

	template <bool bIgnoreCase>
	static const CharType* FindString(const CharType* String, const CharType* Find)
	{
		if (String == nullptr || Find == nullptr)
		{
			return nullptr;
		}
		const SIZE_T FindLength = static_cast<SIZE_T>(Strlen(Find));
		for (;; ++String)
		{
			if (CompareUpTo<bIgnoreCase>(String, Find, FindLength) == 0)
			{
				return String;
			}
			if (*String == 0)
			{
				return nullptr;
			}
		}
	}
};

using FCString = TCString<TCHAR>;
using FCStringWide = TCString<WIDECHAR>;
using FCStringAnsi = TCString<ANSICHAR>;
using FCStringUtf8 = TCString<UTF8CHAR>;

extern template struct TCString<TCHAR>;
extern template struct TCString<ANSICHAR>;
extern template struct TCString<UTF8CHAR>;

#pragma once

#include "Containers/StringFwd.h"
#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Misc/CString.h"

#include <concepts>
#include <type_traits>

/**
 * Conversions between encodings. Bytes that are not UTF-8 and surrogates without a partner become U+FFFD, one for each bad unit;
 * characters that ANSI cannot hold, and ANSI bytes beyond 0x7F, become '?'.
 */
namespace UE::Core::Private
{
/** Writes UTF-16 to `Dest`, which has room for `SourceLen` units, and answers how many were written. */
CORE_API int32 ConvertUtf8ToTChar(TCHAR* Dest, const UTF8CHAR* Source, int32 SourceLen);
/** Writes UTF-8 to `Dest`, which has room for GetUtf8Length(), and answers how many bytes were written. */
CORE_API int32 ConvertTCharToUtf8(UTF8CHAR* Dest, const TCHAR* Source, int32 SourceLen);
/** Exact bytes that the UTF-8 of a text needs. */
CORE_API int32 GetUtf8Length(const TCHAR* Source, int32 SourceLen);
/** Exact units that the UTF-16 of a UTF-8 text needs. */
CORE_API int32 GetUtf16Length(const UTF8CHAR* Source, int32 SourceLen);
CORE_API void ConvertAnsiToTChar(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLen);
CORE_API void ConvertTCharToAnsi(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen);
CORE_API int32 ConvertUtf32ToTChar(TCHAR* Dest, const UTF32CHAR* Source, int32 SourceLen);
CORE_API int32 ConvertTCharToUtf32(UTF32CHAR* Dest, const TCHAR* Source, int32 SourceLen);
}

/** A converter has FromType, ToType, a bound of the units it needs, and the conversion itself. */
struct FTCHARToUTF8_Convert
{
	using FromType = TCHAR;
	using ToType = ANSICHAR;
	static int32 Bound(const TCHAR* Source, int32 SourceLen) { return UE::Core::Private::GetUtf8Length(Source, SourceLen); }
	static int32 Convert(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen)
	{
		return UE::Core::Private::ConvertTCharToUtf8(reinterpret_cast<UTF8CHAR*>(Dest), Source, SourceLen);
	}
};

struct FTCHARToUtf8Char_Convert
{
	using FromType = TCHAR;
	using ToType = UTF8CHAR;
	static int32 Bound(const TCHAR* Source, int32 SourceLen) { return UE::Core::Private::GetUtf8Length(Source, SourceLen); }
	static int32 Convert(UTF8CHAR* Dest, const TCHAR* Source, int32 SourceLen)
	{
		return UE::Core::Private::ConvertTCharToUtf8(Dest, Source, SourceLen);
	}
};

struct FUTF8ToTCHAR_Convert
{
	using FromType = UTF8CHAR;
	using ToType = TCHAR;
	static int32 Bound(const UTF8CHAR* Source, int32 SourceLen) { return SourceLen; }
	static int32 Convert(TCHAR* Dest, const UTF8CHAR* Source, int32 SourceLen)
	{
		return UE::Core::Private::ConvertUtf8ToTChar(Dest, Source, SourceLen);
	}
};

struct FANSIToTCHAR_Convert
{
	using FromType = ANSICHAR;
	using ToType = TCHAR;
	static int32 Bound(const ANSICHAR* Source, int32 SourceLen) { return SourceLen; }
	static int32 Convert(TCHAR* Dest, const ANSICHAR* Source, int32 SourceLen)
	{
		UE::Core::Private::ConvertAnsiToTChar(Dest, Source, SourceLen);
		return SourceLen;
	}
};

struct FTCHARToANSI_Convert
{
	using FromType = TCHAR;
	using ToType = ANSICHAR;
	static int32 Bound(const TCHAR* Source, int32 SourceLen) { return SourceLen; }
	static int32 Convert(ANSICHAR* Dest, const TCHAR* Source, int32 SourceLen)
	{
		UE::Core::Private::ConvertTCharToAnsi(Dest, Source, SourceLen);
		return SourceLen;
	}
};

struct FUTF32ToTCHAR_Convert
{
	using FromType = UTF32CHAR;
	using ToType = TCHAR;
	static int32 Bound(const UTF32CHAR* Source, int32 SourceLen) { return SourceLen * 2; }
	static int32 Convert(TCHAR* Dest, const UTF32CHAR* Source, int32 SourceLen)
	{
		return UE::Core::Private::ConvertUtf32ToTChar(Dest, Source, SourceLen);
	}
};

struct FTCHARToUTF32_Convert
{
	using FromType = TCHAR;
	using ToType = UTF32CHAR;
	static int32 Bound(const TCHAR* Source, int32 SourceLen) { return SourceLen; }
	static int32 Convert(UTF32CHAR* Dest, const TCHAR* Source, int32 SourceLen)
	{
		return UE::Core::Private::ConvertTCharToUtf32(Dest, Source, SourceLen);
	}
};

/** Holds a converted copy of a text, with a terminator. Get() of a null pointer is null. Short texts need no allocation. */
template <typename Converter, int32 DefaultConversionSize = 128>
class TStringConversion
{
public:
	using FromType = typename Converter::FromType;
	using ToType = typename Converter::ToType;

	explicit TStringConversion(const FromType* Source)
	{
		if (Source != nullptr)
		{
			Init(Source, TCString<FromType>::Strlen(Source));
		}
	}

	TStringConversion(const FromType* Source, int32 SourceLen)
	{
		if (Source != nullptr)
		{
			Init(Source, SourceLen);
		}
		else
		{
			Init(Inline_EmptySource(), 0);
		}
	}

	/** UTF-8 arrives as `char` as often as it does as `char8_t`. */
	template <typename ByteType>
	requires(std::is_same_v<ByteType, ANSICHAR>&& std::is_same_v<FromType, UTF8CHAR>) explicit TStringConversion(const ByteType* Source)
		: TStringConversion(reinterpret_cast<const UTF8CHAR*>(Source))
	{
	}

	template <typename ByteType>
	requires(std::is_same_v<ByteType, ANSICHAR>&& std::is_same_v<FromType, UTF8CHAR>)
		TStringConversion(const ByteType* Source, int32 SourceLen)
		: TStringConversion(reinterpret_cast<const UTF8CHAR*>(Source), SourceLen)
	{
	}

	/** From an FString. */
	template <typename StringType>
	requires(!std::is_pointer_v<std::decay_t<StringType>> && requires(const StringType& String) {
		{
			*String
			} -> std::convertible_to<const FromType*>;
		{
			String.Len()
			} -> std::convertible_to<int32>;
	}) explicit TStringConversion(const StringType& String)
		: TStringConversion(*String, String.Len())
	{
	}

	/** From a view or a string builder. */
	template <typename ViewType>
	requires(
		!std::is_pointer_v<std::decay_t<ViewType>> && !requires(const ViewType& View) { *View; } && requires(const ViewType& View) {
			{ View.GetData() } -> std::convertible_to<const FromType*>;
			{ View.Len() } -> std::convertible_to<int32>; }) explicit TStringConversion(const ViewType& View)
		: TStringConversion(View.GetData(), View.Len())
	{
	}

	TStringConversion(TStringConversion&& Other) = delete;
	TStringConversion& operator=(TStringConversion&& Other) = delete;

	~TStringConversion()
	{
		if (Ptr != Inline)
		{
			FMemory::Free(Ptr);
		}
	}

	const ToType* Get() const { return Ptr; }
	/** For macros that hand the text to C functions. */
	ToType* GetMutable() { return Ptr; }
	const ToType* operator*() const { return Ptr; }
	/** Units without the terminator. */
	int32 Length() const { return StringLength; }
	int32 Len() const { return StringLength; }
	const ToType* GetData() const { return Ptr; }

private:
	static const FromType* Inline_EmptySource()
	{
		static constexpr FromType Empty[1] = {};
		return Empty;
	}

	void Init(const FromType* Source, int32 SourceLen)
	{
		const int32 Capacity = Converter::Bound(Source, SourceLen) + 1;
		Ptr = Capacity <= DefaultConversionSize
			? Inline
			: static_cast<ToType*>(FMemory::Malloc(static_cast<SIZE_T>(Capacity) * sizeof(ToType)));
		StringLength = Converter::Convert(Ptr, Source, SourceLen);
		Ptr[StringLength] = 0;
	}

	ToType Inline[DefaultConversionSize];
	ToType* Ptr = nullptr;
	int32 StringLength = 0;
};

using FTCHARToUTF8 = TStringConversion<FTCHARToUTF8_Convert>;
using FUTF8ToTCHAR = TStringConversion<FUTF8ToTCHAR_Convert>;
using FTCHARToANSI = TStringConversion<FTCHARToANSI_Convert>;
using FANSIToTCHAR = TStringConversion<FANSIToTCHAR_Convert>;
using FUTF32ToTCHAR = TStringConversion<FUTF32ToTCHAR_Convert>;
using FTCHARToUTF32 = TStringConversion<FTCHARToUTF32_Convert>;

/** A conversion between equal encodings: the pointer itself. */
template <typename CharType>
class TStringPointer
{
public:
	explicit TStringPointer(const CharType* InPtr)
		: Ptr(InPtr)
		, StringLength(TCString<CharType>::Strlen(InPtr))
	{
	}
	TStringPointer(const CharType* InPtr, int32 InLength)
		: Ptr(InPtr)
		, StringLength(InLength)
	{
	}
	const CharType* Get() const { return Ptr; }
	const CharType* operator*() const { return Ptr; }
	int32 Length() const { return StringLength; }
	int32 Len() const { return StringLength; }
	const CharType* GetData() const { return Ptr; }

private:
	const CharType* Ptr;
	int32 StringLength;
};

namespace UE::Core::Private
{
template <typename From, typename To>
struct TStringCastSelector;
template <typename Char>
struct TStringCastSelector<Char, Char>
{
	using Type = TStringPointer<Char>;
};
template <>
struct TStringCastSelector<TCHAR, ANSICHAR>
{
	using Type = FTCHARToANSI;
};
template <>
struct TStringCastSelector<ANSICHAR, TCHAR>
{
	using Type = FANSIToTCHAR;
};
template <>
struct TStringCastSelector<TCHAR, UTF8CHAR>
{
	using Type = TStringConversion<FTCHARToUtf8Char_Convert>;
};
template <>
struct TStringCastSelector<UTF8CHAR, TCHAR>
{
	using Type = FUTF8ToTCHAR;
};
template <>
struct TStringCastSelector<TCHAR, UTF32CHAR>
{
	using Type = FTCHARToUTF32;
};
template <>
struct TStringCastSelector<UTF32CHAR, TCHAR>
{
	using Type = FUTF32ToTCHAR;
};
}

/** A converted copy, or the pointer itself where nothing is to convert. Lives as long as the answered object. */
template <typename To, typename From>
typename UE::Core::Private::TStringCastSelector<From, To>::Type StringCast(const From* Text)
{
	return typename UE::Core::Private::TStringCastSelector<From, To>::Type(Text);
}

template <typename To, typename From>
typename UE::Core::Private::TStringCastSelector<From, To>::Type StringCast(const From* Text, int32 Len)
{
	return typename UE::Core::Private::TStringCastSelector<From, To>::Type(Text, Len);
}

/** The character in another encoding, or '?' where one unit cannot hold it. */
template <typename To, typename From>
To CharCast(From Char)
{
	const uint32 Code = static_cast<uint32>(static_cast<std::make_unsigned_t<From>>(Char));
	return sizeof(To) >= sizeof(From) || Code < 0x80 ? static_cast<To>(Code) : static_cast<To>('?');
}

// These live until the end of the full expression: use them as arguments, never to initialise a pointer.
#define TCHAR_TO_ANSI(str) (FTCHARToANSI(static_cast<const TCHAR*>(str)).GetMutable())
#define ANSI_TO_TCHAR(str) (FANSIToTCHAR(static_cast<const ANSICHAR*>(str)).GetMutable())
#define TCHAR_TO_UTF8(str) (FTCHARToUTF8(static_cast<const TCHAR*>(str)).GetMutable())
#define UTF8_TO_TCHAR(str) (FUTF8ToTCHAR(reinterpret_cast<const UTF8CHAR*>(str)).GetMutable())
#define TCHAR_TO_WCHAR(str) (static_cast<const TCHAR*>(str))
#define WCHAR_TO_TCHAR(str) (static_cast<const TCHAR*>(str))
#define TCHAR_TO_UTF16(str) (static_cast<const TCHAR*>(str))
#define UTF16_TO_TCHAR(str) (static_cast<const TCHAR*>(str))
#define TCHAR_TO_UTF32(str) (FTCHARToUTF32(static_cast<const TCHAR*>(str)).GetMutable())
#define UTF32_TO_TCHAR(str) (FUTF32ToTCHAR(static_cast<const UTF32CHAR*>(str)).GetMutable())

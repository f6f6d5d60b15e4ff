#pragma once

#include <cstddef>
#include <cstdint>

#include "Misc/Build.h"

#define PLATFORM_LINUX 1
#define PLATFORM_UNIX 1
#define PLATFORM_WINDOWS 0
#define PLATFORM_MAC 0
#define PLATFORM_APPLE 0
#define PLATFORM_IOS 0
#define PLATFORM_ANDROID 0
#define PLATFORM_DESKTOP 1
#define PLATFORM_64BITS 1
#define PLATFORM_LITTLE_ENDIAN 1
#define PLATFORM_SUPPORTS_UNALIGNED_LOADS 1
#define PLATFORM_CACHE_LINE_SIZE 64
#define PLATFORM_TCHAR_IS_CHAR16 1
#define PLATFORM_TCHAR_IS_UTF8CHAR 0
#define PLATFORM_TCHAR_IS_4_BYTES 0

#if defined(__SSE2__)
#define PLATFORM_ENABLE_VECTORINTRINSICS 1
#else
#define PLATFORM_ENABLE_VECTORINTRINSICS 0
#endif

using uint8 = std::uint8_t;
using uint16 = std::uint16_t;
using uint32 = std::uint32_t;
using uint64 = unsigned long long;
using int8 = std::int8_t;
using int16 = std::int16_t;
using int32 = std::int32_t;
using int64 = long long;

using ANSICHAR = char;
using WIDECHAR = char16_t;
using UTF8CHAR = char8_t;
using UTF16CHAR = char16_t;
using UTF32CHAR = char32_t;
using UCS2CHAR = char16_t;
using CHAR16 = char16_t;
using TCHAR = char16_t;

using UPTRINT = std::uintptr_t;
using PTRINT = std::intptr_t;
using SIZE_T = std::size_t;
using SSIZE_T = std::ptrdiff_t;
using TYPE_OF_NULL = int32;
using TYPE_OF_NULLPTR = std::nullptr_t;

static_assert(sizeof(int64) == 8 && sizeof(uint64) == 8 && sizeof(void*) == 8 && sizeof(TCHAR) == 2);

#define TEXT_PASTE(x) u##x
#define TEXT(x) TEXT_PASTE(x)
#define UTF8TEXT_PASTE(x) u8##x
#define UTF8TEXT(x) UTF8TEXT_PASTE(x)
#define UTF16TEXT_PASTE(x) u##x
#define UTF16TEXT(x) UTF16TEXT_PASTE(x)
#define WIDETEXT_PASTE(x) u##x
#define WIDETEXT(x) WIDETEXT_PASTE(x)

#define FORCEINLINE inline __attribute__((always_inline))
#define FORCENOINLINE __attribute__((noinline))
#define UE_FORCEINLINE_HINT inline
#define FORCEINLINE_DEBUGGABLE FORCEINLINE
#define FORCEINLINE_DEBUGGABLE_ACTUAL FORCEINLINE
#define FUNCTION_NO_RETURN_START [[noreturn]]
#define FUNCTION_NO_RETURN_END
#define UE_NORETURN [[noreturn]]
#define UE_NODISCARD [[nodiscard]]
#define UE_NODISCARD_CTOR [[nodiscard]]
#define UE_NO_UNIQUE_ADDRESS [[no_unique_address]]
#define FUNCTION_CHECK_RETURN_START
#define FUNCTION_CHECK_RETURN_END __attribute__((warn_unused_result))
#define RESTRICT __restrict
#define UE_RESTRICT __restrict
#define ABSTRACT
#define VARARGS
#define CDECL
#define STDCALL
#define DLLEXPORT __attribute__((visibility("default")))
#define DLLIMPORT __attribute__((visibility("default")))
#define MS_ALIGN(n)
#define GCC_ALIGN(n) __attribute__((aligned(n)))
#define LIKELY(x) __builtin_expect(!!(x), 1)
#define UNLIKELY(x) __builtin_expect(!!(x), 0)
#define UE_ASSUME(x) \
	do \
	{ \
		if (!(x)) \
		{ \
			__builtin_unreachable(); \
		} \
	} while (false)
#define ASSUME(x) UE_ASSUME(x)
#define UE_UNREACHABLE() __builtin_unreachable()
#define PLATFORM_BREAK() __builtin_trap()
#define UE_DEBUG_BREAK() ((void)0)
#define PREPROCESSOR_JOIN_INNER(x, y) x##y
#define PREPROCESSOR_JOIN(x, y) PREPROCESSOR_JOIN_INNER(x, y)
#define PREPROCESSOR_TO_STRING_INNER(x) #x
#define PREPROCESSOR_TO_STRING(x) PREPROCESSOR_TO_STRING_INNER(x)
#define UE_JOIN(x, y) PREPROCESSOR_JOIN(x, y)
#define UE_STRINGIZE(x) PREPROCESSOR_TO_STRING(x)
#define STRUCT_OFFSET(StructName, Member) offsetof(StructName, Member)

#if defined(__clang__)
#define UE_LIFETIMEBOUND [[clang::lifetimebound]]
#define PRAGMA_DISABLE_DEPRECATION_WARNINGS \
	_Pragma("clang diagnostic push") _Pragma("clang diagnostic ignored \"-Wdeprecated-declarations\"")
#define PRAGMA_ENABLE_DEPRECATION_WARNINGS _Pragma("clang diagnostic pop")
#else
#define UE_LIFETIMEBOUND
#define PRAGMA_DISABLE_DEPRECATION_WARNINGS \
	_Pragma("GCC diagnostic push") _Pragma("GCC diagnostic ignored \"-Wdeprecated-declarations\"")
#define PRAGMA_ENABLE_DEPRECATION_WARNINGS _Pragma("GCC diagnostic pop")
#endif
#define THIRD_PARTY_INCLUDES_START
#define THIRD_PARTY_INCLUDES_END
#define UE_PUSH_MACRO(name) _Pragma(PREPROCESSOR_TO_STRING(push_macro(name)))
#define UE_POP_MACRO(name) _Pragma(PREPROCESSOR_TO_STRING(pop_macro(name)))

#define LINE_TERMINATOR TEXT("\n")
#define LINE_TERMINATOR_ANSI "\n"

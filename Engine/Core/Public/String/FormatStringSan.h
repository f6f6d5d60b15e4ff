#pragma once

#include "CoreTypes.h"

#include <type_traits>

template <typename CharType>
class TStringBuilderBase;

/**
 * Format strings in printf's language, checked against their arguments when they are compiled.
 *
 * `%s` takes `const TCHAR*` (for an FString: `*String`), `%hs` takes `const ANSICHAR*` or `const UTF8CHAR*`. Integers take `%d %i %u
 * %x %X %o` up to 32 bits and the same with `ll` (or `l z j t`) for 64 bits; enums and bool count as integers. `%f %e %g %a`, `%c`,
 * `%p` and `%%` are as in C; width and precision may be `*`. There is no `%n`.
 */
namespace UE::Core
{
enum class EFormatArgumentKind : uint8
{
	Invalid,
	Signed,
	Unsigned,
	Floating,
	Pointer,
	TCharString,
	Utf8String
};

/** One argument of a format, without its C++ type. Refers to the caller's string, so it must not outlive the call. */
struct FFormatArgument
{
	EFormatArgumentKind Kind = EFormatArgumentKind::Invalid;
	/** sizeof the C++ type, which decides how a negative number looks in hexadecimal. */
	uint8 Size = 0;
	union
	{
		int64 Signed;
		uint64 Unsigned;
		double Floating;
		const void* Pointer;
	};

	FFormatArgument()
		: Unsigned(0)
	{
	}

	template <typename T>
	explicit FFormatArgument(T Value);
};

struct FFormatArgumentType
{
	EFormatArgumentKind Kind;
	uint8 Size;
};

template <typename T>
constexpr FFormatArgumentType FormatArgumentTypeOf()
{
	using Type = std::decay_t<T>;
	if constexpr (std::is_enum_v<Type>)
	{
		return FormatArgumentTypeOf<std::underlying_type_t<Type>>();
	}
	else if constexpr (std::is_integral_v<Type>)
	{
		return {std::is_signed_v<Type> ? EFormatArgumentKind::Signed : EFormatArgumentKind::Unsigned, sizeof(Type)};
	}
	else if constexpr (std::is_floating_point_v<Type> && sizeof(Type) <= sizeof(double))
	{
		return {EFormatArgumentKind::Floating, sizeof(Type)};
	}
	else if constexpr (std::is_null_pointer_v<Type>)
	{
		return {EFormatArgumentKind::Pointer, sizeof(Type)};
	}
	else if constexpr (std::is_pointer_v<Type>)
	{
		using Pointee = std::remove_cv_t<std::remove_pointer_t<Type>>;
		if constexpr (std::is_same_v<Pointee, TCHAR>)
		{
			return {EFormatArgumentKind::TCharString, sizeof(Type)};
		}
		else if constexpr (std::is_same_v<Pointee, ANSICHAR> || std::is_same_v<Pointee, UTF8CHAR>)
		{
			return {EFormatArgumentKind::Utf8String, sizeof(Type)};
		}
		else
		{
			return {EFormatArgumentKind::Pointer, sizeof(Type)};
		}
	}
	else
	{
		return {EFormatArgumentKind::Invalid, 0};
	}
}

template <typename T>
FFormatArgument::FFormatArgument(T Value)
	: Kind(FormatArgumentTypeOf<T>().Kind)
	, Size(FormatArgumentTypeOf<T>().Size)
{
	constexpr EFormatArgumentKind ValueKind = FormatArgumentTypeOf<T>().Kind;
	static_assert(ValueKind != EFormatArgumentKind::Invalid,
		"This type cannot be formatted; pass *String for an FString and *Name.ToString() for an FName.");
	if constexpr (ValueKind == EFormatArgumentKind::Signed)
	{
		Signed = static_cast<int64>(Value);
	}
	else if constexpr (ValueKind == EFormatArgumentKind::Unsigned)
	{
		Unsigned = static_cast<uint64>(Value);
	}
	else if constexpr (ValueKind == EFormatArgumentKind::Floating)
	{
		Floating = static_cast<double>(Value);
	}
	else if constexpr (std::is_function_v<std::remove_pointer_t<T>>)
	{
		Pointer = reinterpret_cast<const void*>(Value);
	}
	else
	{
		Pointer = const_cast<const void*>(static_cast<const volatile void*>(Value));
	}
}

/** Why a format does not fit its arguments. */
enum class EFormatStringError : uint8
{
	None,
	TooFewArguments,
	TooManyArguments,
	UnknownSpecifier,
	IncompleteSpecifier,
	WidthMustBeInteger,
	ExpectsInteger,
	ExpectsIntegerOfUpTo32Bits,
	ExpectsIntegerOf64Bits,
	ExpectsFloatingPoint,
	ExpectsTCharString,
	ExpectsAnsiString,
	ExpectsPointer,
	ExpectsCharacter
};

/** One `%` specifier, read from a format. The compile-time check and the formatter share this reader. */
struct FFormatSpecifier
{
	bool bLeftAlign = false;
	bool bPlus = false;
	bool bSpace = false;
	bool bAlternate = false;
	bool bZeroPad = false;
	bool bWidthFromArgument = false;
	bool bPrecisionFromArgument = false;
	int32 Width = 0;
	/** -1 when the specifier has none. */
	int32 Precision = -1;
	/** Bits that the length modifier promises for an integer: 8, 16, 32 or 64. */
	int32 IntegerBits = 32;
	bool bHalf = false;
	TCHAR Conversion = 0;

	/** Reads from the character after `%`. Answers the character after the specifier; Conversion stays 0 where the text ends first. */
	template <typename CharType>
	constexpr const CharType* Read(const CharType* Text)
	{
		Text = ReadFlags(Text);
		Text = ReadNumber(Text, Width, bWidthFromArgument);
		if (*Text == '.')
		{
			Precision = 0;
			Text = ReadNumber(Text + 1, Precision, bPrecisionFromArgument);
		}
		Text = ReadLength(Text);
		if (*Text != 0)
		{
			Conversion = static_cast<TCHAR>(*Text);
			++Text;
		}
		return Text;
	}

private:
	template <typename CharType>
	constexpr const CharType* ReadFlags(const CharType* Text)
	{
		for (;; ++Text)
		{
			switch (*Text)
			{
				case '-':
					bLeftAlign = true;
					break;
				case '+':
					bPlus = true;
					break;
				case ' ':
					bSpace = true;
					break;
				case '#':
					bAlternate = true;
					break;
				case '0':
					bZeroPad = true;
					break;
				default:
					return Text;
			}
		}
	}

	template <typename CharType>
	static constexpr const CharType* ReadNumber(const CharType* Text, int32& OutValue, bool& bOutFromArgument)
	{
		if (*Text == '*')
		{
			bOutFromArgument = true;
			return Text + 1;
		}
		for (; *Text >= '0' && *Text <= '9'; ++Text)
		{
			// Larger fields than this help nobody and could be made to exhaust memory.
			OutValue = OutValue < 100000 ? OutValue * 10 + static_cast<int32>(*Text - '0') : OutValue;
		}
		return Text;
	}

	template <typename CharType>
	constexpr const CharType* ReadLength(const CharType* Text)
	{
		switch (*Text)
		{
			case 'h':
				bHalf = true;
				IntegerBits = Text[1] == 'h' ? 8 : 16;
				return Text + (Text[1] == 'h' ? 2 : 1);
			case 'l':
				IntegerBits = 64;
				return Text + (Text[1] == 'l' ? 2 : 1);
			case 'z':
			case 'j':
			case 't':
				IntegerBits = 64;
				return Text + 1;
			default:
				return Text;
		}
	}
};

namespace Private
{
constexpr bool IsIntegerKind(EFormatArgumentKind Kind)
{
	return Kind == EFormatArgumentKind::Signed || Kind == EFormatArgumentKind::Unsigned;
}

constexpr EFormatStringError CheckFormatInteger(const FFormatSpecifier& Specifier, FFormatArgumentType Type)
{
	if (!IsIntegerKind(Type.Kind))
	{
		return EFormatStringError::ExpectsInteger;
	}
	if (Specifier.IntegerBits == 64)
	{
		return Type.Size == 8 ? EFormatStringError::None : EFormatStringError::ExpectsIntegerOf64Bits;
	}
	return Type.Size <= 4 ? EFormatStringError::None : EFormatStringError::ExpectsIntegerOfUpTo32Bits;
}

constexpr bool IsPointerKind(EFormatArgumentKind Kind)
{
	return Kind == EFormatArgumentKind::Pointer || Kind == EFormatArgumentKind::TCharString || Kind == EFormatArgumentKind::Utf8String;
}

constexpr EFormatStringError CheckFormatArgument(const FFormatSpecifier& Specifier, FFormatArgumentType Type)
{
	switch (Specifier.Conversion)
	{
		case 'd':
		case 'i':
		case 'u':
		case 'x':
		case 'X':
		case 'o':
			return CheckFormatInteger(Specifier, Type);
		case 'f':
		case 'F':
		case 'e':
		case 'E':
		case 'g':
		case 'G':
		case 'a':
		case 'A':
			return Type.Kind == EFormatArgumentKind::Floating ? EFormatStringError::None : EFormatStringError::ExpectsFloatingPoint;
		case 'c':
			return IsIntegerKind(Type.Kind) && Type.Size <= 4 ? EFormatStringError::None : EFormatStringError::ExpectsCharacter;
		case 'p':
			return IsPointerKind(Type.Kind) ? EFormatStringError::None : EFormatStringError::ExpectsPointer;
		case 's':
			if (Specifier.bHalf)
			{
				return Type.Kind == EFormatArgumentKind::Utf8String ? EFormatStringError::None : EFormatStringError::ExpectsAnsiString;
			}
			return Type.Kind == EFormatArgumentKind::TCharString ? EFormatStringError::None : EFormatStringError::ExpectsTCharString;
		default:
			return EFormatStringError::UnknownSpecifier;
	}
}

/** The walk over a whole format; `Types` has `NumTypes` entries. */
template <typename CharType>
constexpr EFormatStringError CheckFormat(const CharType* Format, const FFormatArgumentType* Types, int32 NumTypes)
{
	int32 NextType = 0;
	while (*Format != 0)
	{
		if (*Format++ != '%')
		{
			continue;
		}
		if (*Format == '%')
		{
			++Format;
			continue;
		}
		FFormatSpecifier Specifier;
		Format = Specifier.Read(Format);
		if (Specifier.Conversion == 0)
		{
			return EFormatStringError::IncompleteSpecifier;
		}
		const int32 NumStars = (Specifier.bWidthFromArgument ? 1 : 0) + (Specifier.bPrecisionFromArgument ? 1 : 0);
		for (int32 Star = 0; Star < NumStars; ++Star, ++NextType)
		{
			if (NextType >= NumTypes)
			{
				return EFormatStringError::TooFewArguments;
			}
			if (!IsIntegerKind(Types[NextType].Kind) || Types[NextType].Size > 4)
			{
				return EFormatStringError::WidthMustBeInteger;
			}
		}
		if (NextType >= NumTypes)
		{
			return EFormatStringError::TooFewArguments;
		}
		if (const EFormatStringError Error = CheckFormatArgument(Specifier, Types[NextType++]); Error != EFormatStringError::None)
		{
			return Error;
		}
	}
	return NextType == NumTypes ? EFormatStringError::None : EFormatStringError::TooManyArguments;
}

// Reaching one of these in a constant expression is the compile error; its name is what the compiler shows.
void FormatStringHasTooFewArguments();
void FormatStringHasTooManyArguments();
void FormatStringHasUnknownOrIncompleteSpecifier();
void FormatStringWidthOrPrecisionMustBeInteger();
void FormatStringExpectsIntegerOfUpTo32Bits_UseLldForInt64();
void FormatStringExpectsIntegerOf64Bits();
void FormatStringExpectsFloatingPoint();
void FormatStringExpectsTCharString_DereferenceFStringWithStar();
void FormatStringExpectsAnsiString();
void FormatStringExpectsPointer();
void FormatStringExpectsCharacter();

constexpr void RefuseFormat(EFormatStringError Error)
{
	switch (Error)
	{
		case EFormatStringError::None:
			return;
		case EFormatStringError::TooFewArguments:
			return FormatStringHasTooFewArguments();
		case EFormatStringError::TooManyArguments:
			return FormatStringHasTooManyArguments();
		case EFormatStringError::UnknownSpecifier:
		case EFormatStringError::IncompleteSpecifier:
			return FormatStringHasUnknownOrIncompleteSpecifier();
		case EFormatStringError::WidthMustBeInteger:
			return FormatStringWidthOrPrecisionMustBeInteger();
		case EFormatStringError::ExpectsInteger:
		case EFormatStringError::ExpectsIntegerOfUpTo32Bits:
			return FormatStringExpectsIntegerOfUpTo32Bits_UseLldForInt64();
		case EFormatStringError::ExpectsIntegerOf64Bits:
			return FormatStringExpectsIntegerOf64Bits();
		case EFormatStringError::ExpectsFloatingPoint:
			return FormatStringExpectsFloatingPoint();
		case EFormatStringError::ExpectsTCharString:
			return FormatStringExpectsTCharString_DereferenceFStringWithStar();
		case EFormatStringError::ExpectsAnsiString:
			return FormatStringExpectsAnsiString();
		case EFormatStringError::ExpectsPointer:
			return FormatStringExpectsPointer();
		case EFormatStringError::ExpectsCharacter:
			return FormatStringExpectsCharacter();
	}
}
}

/** What a format and argument types have against each other; the rule that TCheckedFormatString enforces. */
template <typename... Types, typename CharType>
constexpr EFormatStringError ValidateFormatString(const CharType* Format)
{
	const FFormatArgumentType ArgumentTypes[] = {FormatArgumentTypeOf<Types>()..., FFormatArgumentType{EFormatArgumentKind::Invalid, 0}};
	return Private::CheckFormat(Format, ArgumentTypes, static_cast<int32>(sizeof...(Types)));
}

/** A format that is known to fit arguments of `Types`. Made from a literal alone; a literal that does not fit does not compile. */
template <typename CharType, typename... Types>
class TCheckedFormatStringBase
{
public:
	template <SIZE_T N>
	consteval TCheckedFormatStringBase(const CharType (&InFormat)[N])
		: Format(InFormat)
	{
		Private::RefuseFormat(ValidateFormatString<Types...>(InFormat));
	}

	constexpr const CharType* GetFormatString() const { return Format; }

private:
	const CharType* Format;
};

template <typename CharType, typename... Types>
using TCheckedFormatString = TCheckedFormatStringBase<CharType, std::type_identity_t<Types>...>;

/** Appends the formatted text. A null string gives "(null)". Arguments that do not fit give nothing instead of undefined behaviour. */
/** See FCString::Snprintf. */
CORE_API int32 FormatToBuffer(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, const FFormatArgument* Arguments, int32 NumArguments);
CORE_API void FormatTo(TStringBuilderBase<TCHAR>& Builder, const TCHAR* Format, const FFormatArgument* Arguments, int32 NumArguments);
}

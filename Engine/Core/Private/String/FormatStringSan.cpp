#include "String/FormatStringSan.h"

#include "Containers/StringConv.h"
#include "Misc/StringBuilder.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <iterator>

namespace UE::Core
{
namespace
{
/** Most digits behind the point that a float is written with; no double has more that mean anything. */
constexpr int32 MaxFloatPrecision = 1000;

/** A number in characters: sign and prefix stand before the zeros that pad it. */
struct FNumberParts
{
	const char* Prefix;
	int32 PrefixLen;
	const char* Digits;
	int32 DigitsLen;
	int32 LeadingZeros;
};

class FFormatter
{
public:
	FFormatter(FStringBuilderBase& InBuilder, const FFormatArgument* InArguments, int32 InNumArguments)
		: Builder(InBuilder)
		, Arguments(InArguments)
		, NumArguments(InNumArguments)
	{
	}

	void Run(const TCHAR* Format)
	{
		while (*Format != 0)
		{
			const TCHAR* const Begin = Format;
			while (*Format != 0 && *Format != '%')
			{
				++Format;
			}
			Builder.Append(Begin, static_cast<int32>(Format - Begin));
			if (*Format == 0)
			{
				return;
			}
			++Format;
			if (*Format == '%')
			{
				Builder.AppendChar('%');
				++Format;
				continue;
			}
			FFormatSpecifier Specifier;
			Format = Specifier.Read(Format);
			TakeStars(Specifier);
			Write(Specifier, Take());
		}
	}

private:
	FFormatArgument Take()
	{
		return Next < NumArguments ? Arguments[Next++] : FFormatArgument();
	}

	void TakeStars(FFormatSpecifier& Specifier)
	{
		constexpr int64 MaxField = 100000;
		if (Specifier.bWidthFromArgument)
		{
			const int64 Width = std::clamp<int64>(Take().Signed, -MaxField, MaxField);
			Specifier.bLeftAlign |= Width < 0;
			Specifier.Width = static_cast<int32>(Width < 0 ? -Width : Width);
		}
		if (Specifier.bPrecisionFromArgument)
		{
			// A negative precision counts as none, as in C. No upper limit: with %.*s it is a length.
			Specifier.Precision = static_cast<int32>(std::clamp<int64>(Take().Signed, -1, 0x7fffffff));
		}
	}

	void Write(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		// Formats that were checked at compile time always pass.
		if (Private::CheckFormatArgument(Specifier, {Argument.Kind, Argument.Size}) != EFormatStringError::None)
		{
			return;
		}
		switch (Specifier.Conversion)
		{
			case 's':
				return Specifier.bHalf ? WriteUtf8(Specifier, Argument)
									   : WriteTChars(Specifier, static_cast<const TCHAR*>(Argument.Pointer));
			case 'c':
				return WriteCharacter(Specifier, Argument);
			case 'p':
				return WritePointer(Specifier, Argument);
			case 'd':
			case 'i':
				return WriteSigned(Specifier, Argument);
			case 'u':
			case 'x':
			case 'X':
			case 'o':
				return WriteUnsigned(Specifier, Argument);
			default:
				return WriteFloat(Specifier, Argument.Floating);
		}
	}

	void Pad(int32 Count, TCHAR Char)
	{
		for (; Count > 0; --Count)
		{
			Builder.AppendChar(Char);
		}
	}

	void WritePadded(const FFormatSpecifier& Specifier, const TCHAR* Text, int32 Len)
	{
		const int32 Padding = Specifier.Width - Len;
		Pad(Specifier.bLeftAlign ? 0 : Padding, ' ');
		Builder.Append(Text, Len);
		Pad(Specifier.bLeftAlign ? Padding : 0, ' ');
	}

	void WriteTChars(const FFormatSpecifier& Specifier, const TCHAR* Text)
	{
		Text = Text != nullptr ? Text : TEXT("(null)");
		const int32 Len =
			Specifier.Precision < 0 ? FCString::Strlen(Text) : FCString::Strnlen(Text, static_cast<SIZE_T>(Specifier.Precision));
		WritePadded(Specifier, Text, Len);
	}

	void WriteUtf8(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		const UTF8CHAR* Text = Argument.Pointer != nullptr ? static_cast<const UTF8CHAR*>(Argument.Pointer) : u8"(null)";
		const int32 Len = Specifier.Precision < 0 ? FCStringUtf8::Strlen(Text)
												  : FCStringUtf8::Strnlen(Text, static_cast<SIZE_T>(Specifier.Precision));
		const FUTF8ToTCHAR Converted(Text, Len);
		WritePadded(Specifier, Converted.Get(), Converted.Length());
	}

	void WriteCharacter(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		const UTF32CHAR Code = static_cast<UTF32CHAR>(Argument.Unsigned);
		TCHAR Units[2];
		const int32 Len = Private::ConvertUtf32ToTChar(Units, &Code, 1);
		WritePadded(Specifier, Units, Len);
	}

	void WriteParts(const FFormatSpecifier& Specifier, FNumberParts Parts, bool bMayZeroPad)
	{
		const int32 Len = Parts.PrefixLen + Parts.LeadingZeros + Parts.DigitsLen;
		int32 Padding = std::max(Specifier.Width - Len, 0);
		if (Specifier.bZeroPad && !Specifier.bLeftAlign && bMayZeroPad)
		{
			Parts.LeadingZeros += Padding;
			Padding = 0;
		}
		Pad(Specifier.bLeftAlign ? 0 : Padding, ' ');
		Builder.AppendAnsi(Parts.Prefix, Parts.PrefixLen);
		Pad(Parts.LeadingZeros, '0');
		Builder.AppendAnsi(Parts.Digits, Parts.DigitsLen);
		Pad(Specifier.bLeftAlign ? Padding : 0, ' ');
	}

	static const char* SignOf(const FFormatSpecifier& Specifier, bool bNegative)
	{
		return bNegative ? "-" : (Specifier.bPlus ? "+" : (Specifier.bSpace ? " " : ""));
	}

	void WriteInteger(const FFormatSpecifier& Specifier, uint64 Magnitude, int32 Base, const char* Prefix)
	{
		char Digits[66];
		char* End = Digits;
		if (Magnitude != 0 || Specifier.Precision != 0)
		{
			End = std::to_chars(Digits, std::end(Digits), Magnitude, Base).ptr;
		}
		if (Specifier.Conversion == 'X')
		{
			std::transform(Digits, End, Digits, [](char Digit)
				{ return FCharAnsi::ToUpper(Digit); });
		}
		const int32 DigitsLen = static_cast<int32>(End - Digits);
		const int32 LeadingZeros = std::clamp(Specifier.Precision - DigitsLen, 0, 100000);
		WriteParts(Specifier, {Prefix, FCStringAnsi::Strlen(Prefix), Digits, DigitsLen, LeadingZeros}, Specifier.Precision < 0);
	}

	void WriteSigned(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		int64 Value = Argument.Signed;
		switch (Specifier.IntegerBits)
		{
			case 8:
				Value = static_cast<int8>(Value);
				break;
			case 16:
				Value = static_cast<int16>(Value);
				break;
			case 32:
				Value = static_cast<int32>(Value);
				break;
			default:
				break;
		}
		const uint64 Magnitude = Value < 0 ? 0 - static_cast<uint64>(Value) : static_cast<uint64>(Value);
		WriteInteger(Specifier, Magnitude, 10, SignOf(Specifier, Value < 0));
	}

	void WriteUnsigned(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		const int32 Shift = 64 - Specifier.IntegerBits;
		const uint64 Value = Argument.Unsigned << Shift >> Shift;
		const bool bPrefix = Specifier.bAlternate && Value != 0;
		switch (Specifier.Conversion)
		{
			case 'x':
				return WriteInteger(Specifier, Value, 16, bPrefix ? "0x" : "");
			case 'X':
				return WriteInteger(Specifier, Value, 16, bPrefix ? "0X" : "");
			case 'o':
				return WriteInteger(Specifier, Value, 8, bPrefix ? "0" : "");
			default:
				return WriteInteger(Specifier, Value, 10, "");
		}
	}

	void WritePointer(const FFormatSpecifier& Specifier, const FFormatArgument& Argument)
	{
		WriteInteger(Specifier, reinterpret_cast<uint64>(Argument.Pointer), 16, "0x");
	}

	void WriteFloat(const FFormatSpecifier& Specifier, double Value)
	{
		// Room for 309 digits before the point.
		char Digits[MaxFloatPrecision + 512];
		const TCHAR Conversion = FChar::ToLower(Specifier.Conversion);
		const int32 Precision = Specifier.Precision < 0 ? 6 : std::min(Specifier.Precision, MaxFloatPrecision);
		const double Magnitude = std::abs(Value);
		char* End = Digits;
		if (Specifier.bAlternate || Conversion == 'a')
		{
			End = WriteFloatWithC(Digits, sizeof(Digits), Specifier, Conversion, Magnitude);
		}
		else
		{
			const std::chars_format Style = Conversion == 'f'
				? std::chars_format::fixed
				: (Conversion == 'e' ? std::chars_format::scientific : std::chars_format::general);
			End = std::to_chars(Digits, std::end(Digits), Magnitude, Style, Precision).ptr;
		}
		if (Conversion != Specifier.Conversion)
		{
			std::transform(Digits, End, Digits, [](char Digit)
				{ return FCharAnsi::ToUpper(Digit); });
		}
		const char* const Sign = SignOf(Specifier, std::signbit(Value) && !std::isnan(Value));
		WriteParts(Specifier, {Sign, FCStringAnsi::Strlen(Sign), Digits, static_cast<int32>(End - Digits), 0}, std::isfinite(Value));
	}

	/** The forms that to_chars does not have: hexadecimal with its prefix, and `#`. */
	static char* WriteFloatWithC(char* Digits, SIZE_T Size, const FFormatSpecifier& Specifier, TCHAR Conversion, double Magnitude)
	{
		char Format[8];
		std::snprintf(Format, sizeof(Format), Specifier.bAlternate ? "%%#.*%c" : "%%.*%c", static_cast<char>(Conversion));
		const int32 Precision = std::min(Specifier.Precision, MaxFloatPrecision);
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
		return Digits + std::snprintf(Digits, Size, Format, Precision, Magnitude);
#pragma GCC diagnostic pop
	}

	FStringBuilderBase& Builder;
	const FFormatArgument* Arguments;
	int32 NumArguments;
	int32 Next = 0;
};
}

void FormatTo(TStringBuilderBase<TCHAR>& Builder, const TCHAR* Format, const FFormatArgument* Arguments, int32 NumArguments)
{
	FFormatter(Builder, Arguments, NumArguments).Run(Format);
}

int32 FormatToBuffer(TCHAR* Dest, SIZE_T DestSize, const TCHAR* Format, const FFormatArgument* Arguments, int32 NumArguments)
{
	TStringBuilder<512> Builder;
	FormatTo(Builder, Format, Arguments, NumArguments);
	FCString::Strncpy(Dest, Builder.ToString(), DestSize);
	return static_cast<SIZE_T>(Builder.Len()) < DestSize ? Builder.Len() : -1;
}
}

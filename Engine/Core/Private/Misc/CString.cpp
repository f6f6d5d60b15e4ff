#include "Misc/CString.h"

#include <charconv>
#include <cmath>
#include <initializer_list>
#include <limits>

namespace
{
/** The ASCII characters of a text that could belong to a number, and how many units of the text stand before them. */
struct FNumberText
{
	template <typename CharType>
	explicit FNumberText(const CharType* String)
	{
		while (TChar<CharType>::IsWhitespace(String[Skipped]))
		{
			++Skipped;
		}
		const CharType* Char = String + Skipped;
		if (*Char == '+' || *Char == '-')
		{
			bNegative = *Char == '-';
			++Char;
			++Skipped;
		}
		while (Length < MaxLength &&
			(TChar<CharType>::IsAscii(*Char) && (TChar<CharType>::IsAlnum(*Char) || *Char == '.' || *Char == '+' || *Char == '-')))
		{
			Text[Length++] = static_cast<char>(*Char++);
		}
	}

	static constexpr int32 MaxLength = 512;
	char Text[MaxLength];
	int32 Length = 0;
	int32 Skipped = 0;
	bool bNegative = false;
};

struct FParsedInteger
{
	uint64 Magnitude;
	bool bNegative;
	/** Units of the text that belong to the number; 0 when there is none. */
	int32 NumRead;
};

template <typename CharType>
FParsedInteger ParseInteger(const CharType* String, int32 Base)
{
	const FNumberText Number(String);
	const char* First = Number.Text;
	const char* const Last = Number.Text + Number.Length;
	const bool bHasHexPrefix =
		Number.Length > 2 && First[0] == '0' && (First[1] == 'x' || First[1] == 'X') && FCharAnsi::IsHexDigit(First[2]);
	if ((Base == 0 || Base == 16) && bHasHexPrefix)
	{
		First += 2;
		Base = 16;
	}
	else if (Base == 0)
	{
		Base = Number.Length > 0 && First[0] == '0' ? 8 : 10;
	}
	uint64 Value = 0;
	const std::from_chars_result Result = std::from_chars(First, Last, Value, Base);
	if (Result.ec == std::errc::result_out_of_range)
	{
		Value = std::numeric_limits<uint64>::max();
	}
	const bool bNone = Result.ptr == First;
	return {Value, Number.bNegative, bNone ? 0 : Number.Skipped + static_cast<int32>(Result.ptr - Number.Text)};
}

int64 Saturate(const FParsedInteger& Integer, int64 Min, int64 Max)
{
	if (Integer.bNegative)
	{
		const uint64 Limit = static_cast<uint64>(-(Min + 1)) + 1;
		return Integer.Magnitude >= Limit ? Min : -static_cast<int64>(Integer.Magnitude);
	}
	return Integer.Magnitude > static_cast<uint64>(Max) ? Max : static_cast<int64>(Integer.Magnitude);
}

template <typename CharType>
void SetEnd(CharType** End, const CharType* Start, int32 NumRead)
{
	if (End != nullptr)
	{
		*End = const_cast<CharType*>(Start + NumRead);
	}
}

template <typename FloatType, typename CharType>
FloatType ParseFloating(const CharType* String)
{
	const FNumberText Number(String);
	FloatType Value = 0;
	const std::from_chars_result Result = std::from_chars(Number.Text, Number.Text + Number.Length, Value);
	if (Result.ec == std::errc::result_out_of_range)
	{
		double Wide = 0;
		const bool bFitsDouble = std::from_chars(Number.Text, Number.Text + Number.Length, Wide).ec == std::errc();
		bool bTiny = bFitsDouble && std::abs(Wide) < 1;
		for (const char* Char = Number.Text; Char + 1 < Result.ptr && !bFitsDouble; ++Char)
		{
			bTiny |= (Char[0] == 'e' || Char[0] == 'E') && Char[1] == '-';
		}
		Value = bTiny ? static_cast<FloatType>(0) : std::numeric_limits<FloatType>::infinity();
	}
	return Number.bNegative ? -Value : Value;
}

template <typename CharType>
bool EqualsWord(const CharType* String, const char* LowerWord)
{
	for (; *String != 0 && *LowerWord != 0; ++String, ++LowerWord)
	{
		if (TChar<CharType>::ToLower(*String) != static_cast<CharType>(*LowerWord))
		{
			return false;
		}
	}
	return *String == 0 && *LowerWord == 0;
}

template <typename CharType, int32 N>
struct TFilledText
{
	explicit TFilledText(CharType Fill)
	{
		for (int32 Index = 0; Index < N; ++Index)
		{
			Text[Index] = Fill;
		}
		Text[N] = 0;
	}
	CharType Text[N + 1];
};

template <typename CharType>
const CharType* TailOfFill(CharType Fill, int32 Count)
{
	constexpr int32 MaxFill = 255;
	static const TFilledText<CharType, MaxFill> Spaces(' ');
	static const TFilledText<CharType, MaxFill> Tabs('\t');
	const int32 Used = Count < 0 ? 0 : (Count < MaxFill ? Count : MaxFill);
	return (Fill == ' ' ? Spaces : Tabs).Text + MaxFill - Used;
}
}

template <typename T>
int32 TCString<T>::Atoi(const CharType* String)
{
	return Strtoi(String, nullptr, 10);
}

template <typename T>
int64 TCString<T>::Atoi64(const CharType* String)
{
	return Strtoi64(String, nullptr, 10);
}

template <typename T>
float TCString<T>::Atof(const CharType* String)
{
	return ParseFloating<float>(String);
}

template <typename T>
double TCString<T>::Atod(const CharType* String)
{
	return ParseFloating<double>(String);
}

template <typename T>
int32 TCString<T>::Strtoi(const CharType* Start, CharType** End, int32 Base)
{
	const FParsedInteger Integer = ParseInteger(Start, Base);
	SetEnd(End, Start, Integer.NumRead);
	return static_cast<int32>(Saturate(Integer, std::numeric_limits<int32>::min(), std::numeric_limits<int32>::max()));
}

template <typename T>
int64 TCString<T>::Strtoi64(const CharType* Start, CharType** End, int32 Base)
{
	const FParsedInteger Integer = ParseInteger(Start, Base);
	SetEnd(End, Start, Integer.NumRead);
	return Saturate(Integer, std::numeric_limits<int64>::min(), std::numeric_limits<int64>::max());
}

template <typename T>
uint64 TCString<T>::Strtoui64(const CharType* Start, CharType** End, int32 Base)
{
	const FParsedInteger Integer = ParseInteger(Start, Base);
	SetEnd(End, Start, Integer.NumRead);
	return Integer.bNegative ? 0 - Integer.Magnitude : Integer.Magnitude;
}

template <typename T>
bool TCString<T>::ToBool(const CharType* String)
{
	for (const char* Word : {"true", "yes", "on"})
	{
		if (EqualsWord(String, Word))
		{
			return true;
		}
	}
	return Atoi(String) != 0;
}

template <typename T>
bool TCString<T>::IsNumeric(const CharType* String)
{
	if (*String == '-' || *String == '+')
	{
		++String;
	}
	bool bHasPoint = false;
	const CharType* const First = String;
	for (; *String != 0; ++String)
	{
		if (*String == '.' && !bHasPoint)
		{
			bHasPoint = true;
		}
		else if (!TChar<CharType>::IsDigit(*String))
		{
			return false;
		}
	}
	return String != First;
}

template <typename T>
const T* TCString<T>::Spc(int32 NumChars)
{
	return TailOfFill<CharType>(' ', NumChars);
}

template <typename T>
const T* TCString<T>::Tab(int32 NumTabs)
{
	return TailOfFill<CharType>('\t', NumTabs);
}

template struct TCString<TCHAR>;
template struct TCString<ANSICHAR>;
template struct TCString<UTF8CHAR>;

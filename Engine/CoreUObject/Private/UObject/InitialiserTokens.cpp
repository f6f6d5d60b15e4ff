#include "InitialiserReader.h"

#include "UObject/Class.h"
#include "UObject/PropertyHelper.h"

#include <cfloat>
#include <cmath>
#include <string>
#include <string_view>

namespace
{
struct FNamedNumber
{
	const TCHAR* Name;
	long double Value;
};

constexpr long double Pi = 3.1415926535897932384626433832795L;

const FNamedNumber NamedNumbers[] = {
	{TEXT("INDEX_NONE"), -1},
	{TEXT("MIN_int8"), MIN_int8},
	{TEXT("MAX_int8"), MAX_int8},
	{TEXT("MAX_uint8"), MAX_uint8},
	{TEXT("MIN_int16"), MIN_int16},
	{TEXT("MAX_int16"), MAX_int16},
	{TEXT("MAX_uint16"), MAX_uint16},
	{TEXT("MIN_int32"), MIN_int32},
	{TEXT("MAX_int32"), MAX_int32},
	{TEXT("MAX_uint32"), MAX_uint32},
	{TEXT("MIN_int64"), static_cast<long double>(MIN_int64)},
	{TEXT("MAX_int64"), static_cast<long double>(MAX_int64)},
	{TEXT("MAX_uint64"), static_cast<long double>(MAX_uint64)},
	{TEXT("MAX_flt"), FLT_MAX},
	{TEXT("MAX_FLT"), FLT_MAX},
	{TEXT("FLT_MAX"), FLT_MAX},
	{TEXT("MAX_dbl"), DBL_MAX},
	{TEXT("DBL_MAX"), DBL_MAX},
	{TEXT("PI"), Pi},
	{TEXT("HALF_PI"), Pi / 2},
	{TEXT("TWO_PI"), Pi * 2},
	{TEXT("SMALL_NUMBER"), 1.e-8L},
	{TEXT("KINDA_SMALL_NUMBER"), 1.e-4L},
	{TEXT("BIG_NUMBER"), 3.4e+38L},
	{TEXT("WORLD_MAX"), 2097152},
};

bool IsNameChar(TCHAR Char)
{
	return FChar::IsAlnum(Char) || Char == TEXT('_');
}

TCHAR Unescape(TCHAR Char)
{
	switch (Char)
	{
		case TEXT('n'):
			return TEXT('\n');
		case TEXT('t'):
			return TEXT('\t');
		case TEXT('r'):
			return TEXT('\r');
		default:
			return Char;
	}
}
}

void FInitialiserReader::SkipBlanks()
{
	Position = FPropertyHelpers::SkipWhitespace(Position);
}

bool FInitialiserReader::Peek(const TCHAR* Symbol)
{
	SkipBlanks();
	return FCString::Strncmp(Position, Symbol, FCString::Strlen(Symbol)) == 0;
}

bool FInitialiserReader::TakeIf(const TCHAR* Symbol)
{
	if (!Peek(Symbol))
	{
		return false;
	}
	Position += FCString::Strlen(Symbol);
	return true;
}

FString FInitialiserReader::TakeName()
{
	SkipBlanks();
	FString Name;
	if (FChar::IsDigit(*Position))
	{
		return Name;
	}
	while (true)
	{
		const TCHAR* const Start = Position;
		while (IsNameChar(*Position))
		{
			++Position;
		}
		Name += FString(static_cast<int32>(Position - Start), Start);
		if (Position == Start)
		{
			return Name;
		}
		if (Peek(TEXT("<")) && !Peek(TEXT("<<")))
		{
			int32 NumOpen = 0;
			do
			{
				NumOpen += *Position == TEXT('<') ? 1 : *Position == TEXT('>') ? -1
																			   : 0;
				Position += *Position ? 1 : 0;
			} while (*Position && NumOpen > 0);
		}
		if (!TakeIf(TEXT("::")))
		{
			return Name;
		}
		SkipBlanks();
		Name += TEXT("::");
	}
}

bool FInitialiserReader::TakeQuoted(FString& Out)
{
	bool bFound = false;
	while (TakeIf(TEXT("\"")))
	{
		while (*Position && *Position != TEXT('"'))
		{
			const bool bEscaped = *Position == TEXT('\\') && Position[1];
			Position += bEscaped ? 1 : 0;
			Out.AppendChar(bEscaped ? Unescape(*Position) : *Position);
			++Position;
		}
		if (!*Position)
		{
			return false;
		}
		++Position;
		bFound = true;
	}
	return bFound;
}

bool FInitialiserReader::ReadSum(long double& Out)
{
	if (!ReadProduct(Out))
	{
		return false;
	}
	while (Peek(TEXT("+")) || Peek(TEXT("-")))
	{
		const bool bMinus = *Position++ == TEXT('-');
		long double Right = 0;
		if (!ReadProduct(Right))
		{
			return false;
		}
		Out += bMinus ? -Right : Right;
	}
	constexpr long double MaxShift = 63;
	while (TakeIf(TEXT("<<")))
	{
		long double Right = 0;
		if (!ReadProduct(Right) || Right < 0 || Right > MaxShift)
		{
			return false;
		}
		Out = std::ldexp(Out, static_cast<int>(Right));
	}
	return true;
}

bool FInitialiserReader::ReadProduct(long double& Out)
{
	if (!ReadOperand(Out))
	{
		return false;
	}
	while (Peek(TEXT("*")) || Peek(TEXT("/")))
	{
		const bool bDivide = *Position++ == TEXT('/');
		long double Right = 0;
		if (!ReadOperand(Right) || (bDivide && Right == 0))
		{
			return false;
		}
		// Integers divide otherwise in C++ than here.
		if (bDivide && !bHasFloat && std::fmod(Out, Right) != 0)
		{
			return false;
		}
		Out = bDivide ? Out / Right : Out * Right;
	}
	return true;
}

bool FInitialiserReader::ReadOperand(long double& Out)
{
	if (++Depth > MaxDepth)
	{
		return false;
	}
	bool bRead = false;
	if (TakeIf(TEXT("-")))
	{
		bRead = ReadOperand(Out);
		Out = -Out;
	}
	else if (TakeIf(TEXT("+")))
	{
		bRead = ReadOperand(Out);
	}
	else if (TakeIf(TEXT("(")))
	{
		bRead = ReadNumber(Out) && TakeIf(TEXT(")"));
	}
	else
	{
		bRead = ReadLiteral(Out);
	}
	--Depth;
	return bRead;
}

bool FInitialiserReader::ReadLiteral(long double& Out)
{
	SkipBlanks();
	if (!FChar::IsDigit(*Position) && *Position != TEXT('.'))
	{
		FString Name = TakeName();
		Name.RemoveFromStart(TEXT("UE_"));
		for (const FNamedNumber& Row : NamedNumbers)
		{
			if (Name.Equals(Row.Name, ESearchCase::CaseSensitive))
			{
				bHasFloat = bHasFloat || std::trunc(Row.Value) != Row.Value;
				Out = Row.Value;
				return true;
			}
		}
		const int64 Enumerator = Name.Contains(TEXT("::")) ? UEnum::LookupEnumNameSlow(*Name) : static_cast<int64>(INDEX_NONE);
		Out = static_cast<long double>(Enumerator);
		return Enumerator != INDEX_NONE;
	}
	std::string Digits;
	const bool bHex = Position[0] == TEXT('0') && (Position[1] == TEXT('x') || Position[1] == TEXT('X'));
	while (IsNameChar(*Position) || *Position == TEXT('.') || *Position == TEXT('\'') ||
		(!bHex && (*Position == TEXT('-') || *Position == TEXT('+')) && (Digits.back() == 'e' || Digits.back() == 'E')))
	{
		if (*Position > 0x7f)
		{
			return false;
		}
		if (*Position != TEXT('\''))
		{
			Digits += static_cast<char>(*Position);
		}
		++Position;
	}
	char* End = nullptr;
	Out = std::strtold(Digits.c_str(), &End);
	const std::string_view Suffix = End;
	const bool bFloat = Suffix == "f" || Suffix == "F";
	bHasFloat = bHasFloat || bFloat || (!bHex && Digits.find_first_of(".eE") != std::string::npos);
	return End != Digits.c_str() && (bFloat || Suffix.find_first_not_of("uUlL") == std::string_view::npos);
}

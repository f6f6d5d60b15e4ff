#include "Containers/UnrealString.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>

using UE::Core::EFormatStringError;
using UE::Core::ValidateFormatString;

// What the compiler refuses in FString::Printf and UE_LOG, by the very function that they ask.
static_assert(ValidateFormatString<int32, const TCHAR*>(TEXT("%d of %s: 100%%")) == EFormatStringError::None);
static_assert(ValidateFormatString<const TCHAR*>(TEXT("%d")) == EFormatStringError::ExpectsInteger);
static_assert(ValidateFormatString<FString>(TEXT("%s")) == EFormatStringError::ExpectsTCharString);
static_assert(ValidateFormatString<const ANSICHAR*>(TEXT("%s")) == EFormatStringError::ExpectsTCharString);
static_assert(ValidateFormatString<const TCHAR*>(TEXT("%hs")) == EFormatStringError::ExpectsAnsiString);
static_assert(ValidateFormatString<int64>(TEXT("%d")) == EFormatStringError::ExpectsIntegerOfUpTo32Bits);
static_assert(ValidateFormatString<int32>(TEXT("%lld")) == EFormatStringError::ExpectsIntegerOf64Bits);
static_assert(ValidateFormatString<SIZE_T>(TEXT("%llu")) == EFormatStringError::None);
static_assert(ValidateFormatString<int32>(TEXT("%f")) == EFormatStringError::ExpectsFloatingPoint);
static_assert(ValidateFormatString<double>(TEXT("%d")) == EFormatStringError::ExpectsInteger);
static_assert(ValidateFormatString<int32>(TEXT("%p")) == EFormatStringError::ExpectsPointer);
static_assert(ValidateFormatString<>(TEXT("%d")) == EFormatStringError::TooFewArguments);
static_assert(ValidateFormatString<int32, int32>(TEXT("%d")) == EFormatStringError::TooManyArguments);
static_assert(ValidateFormatString<double, int32>(TEXT("%*d")) == EFormatStringError::WidthMustBeInteger);
static_assert(ValidateFormatString<int32>(TEXT("%*d")) == EFormatStringError::TooFewArguments);
static_assert(ValidateFormatString<int32*>(TEXT("%n")) == EFormatStringError::UnknownSpecifier);
static_assert(ValidateFormatString<int32>(TEXT("50%")) == EFormatStringError::IncompleteSpecifier);
static_assert(ValidateFormatString<bool, EFormatStringError, uint8>(TEXT("%d %u %x")) == EFormatStringError::None);

namespace
{
std::u16string Text(const FString& String)
{
	return std::u16string(*String, static_cast<size_t>(String.Len()));
}
}

TEST(Format, IntegersFollowC)
{
	EXPECT_EQ(Text(FString::Printf(TEXT("%d|%5d|%-5d|%05d|%+d|% d"), 42, 42, 42, -42, 42, 42)), u"42|   42|42   |-0042|+42| 42");
	EXPECT_EQ(Text(FString::Printf(TEXT("%u %x %X %#x %08x %o"), -1, 255, 255, 255, 0xBEEF, 8)), u"4294967295 ff FF 0xff 0000beef 10");
	EXPECT_EQ(Text(FString::Printf(TEXT("%.3d|%6.3d|%.0d|"), 7, 7, 0)), u"007|   007||");
	EXPECT_EQ(
		Text(FString::Printf(TEXT("%lld %llu %llx"), std::numeric_limits<int64>::min(), std::numeric_limits<uint64>::max(), int64(-1))),
		u"-9223372036854775808 18446744073709551615 ffffffffffffffff");
	EXPECT_EQ(Text(FString::Printf(TEXT("%x %hhx"), int8(-1), -1)), u"ffffffff ff");
	EXPECT_EQ(Text(FString::Printf(TEXT("%d %d"), true, false)), u"1 0");
	EXPECT_EQ(Text(FString::Printf(TEXT("%*d|%-*d|%*d"), 4, 1, 4, 2, -4, 3)), u"   1|2   |3   ");
}

TEST(Format, FloatsFollowC)
{
	EXPECT_EQ(Text(FString::Printf(TEXT("%f %.2f %8.3f %-8.1f| %08.2f %+.1f"), 1.0, 2.345f, 3.14159, 2.0, -1.5, 1.0)),
		u"1.000000 2.35    3.142 2.0     | -0001.50 +1.0");
	EXPECT_EQ(Text(FString::Printf(TEXT("%g %g %g %e %E"), 0.0001, 1e-5, 1e20, 12345.678, 1.0)),
		u"0.0001 1e-05 1e+20 1.234568e+04 1.000000E+00");
	EXPECT_EQ(Text(FString::Printf(TEXT("%f %5.1f %F"), std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN(),
				  -std::numeric_limits<double>::infinity())),
		u"inf   nan -INF");
	EXPECT_EQ(FString::Printf(TEXT("%f"), std::numeric_limits<double>::max()).Len(), 316);
	EXPECT_EQ(Text(FString::Printf(TEXT("%.17g"), 0.1)), u"0.10000000000000001");
}

TEST(Format, StringsRespectPrecisionAndNull)
{
	const TCHAR NotTerminated[] = {'a', 'b', 'c'};
	EXPECT_EQ(Text(FString::Printf(TEXT("%.*s|%5.2s|%-4s|"), 3, NotTerminated, TEXT("xyz"), TEXT("z"))), u"abc|   xy|z   |");
	EXPECT_EQ(Text(FString::Printf(TEXT("%s %hs"), static_cast<const TCHAR*>(nullptr), static_cast<const ANSICHAR*>(nullptr))),
		u"(null) (null)");
	EXPECT_EQ(Text(FString::Printf(TEXT("%hs %c%c"), "T\xC3\xBCr", TEXT('漢'), 'x')), u"Tür 漢x");
	EXPECT_EQ(Text(FString::Printf(TEXT("%p"), reinterpret_cast<void*>(0x1234))), u"0x1234");
}

TEST(Format, AppendfMayReadTheStringItAppendsTo)
{
	FString String(TEXT("ab"));
	String.Appendf(TEXT("%s%s"), *String, *String);
	EXPECT_EQ(Text(String), u"ababab");
	EXPECT_EQ(FString::Printf(TEXT("%s"), *FString::ChrN(5000, TEXT('x'))).Len(), 5000);
}

TEST(Format, BufferGetsWhatFitsAndItsTerminator)
{
	TCHAR Buffer[8];
	for (TCHAR& Char : Buffer)
	{
		Char = 'x';
	}
	EXPECT_EQ(FCString::Snprintf(Buffer, 6, TEXT("%d-%s"), 12, TEXT("ab")), 5);
	EXPECT_EQ(FCString::Strcmp(Buffer, TEXT("12-ab")), 0);
	EXPECT_EQ(FCString::Snprintf(Buffer, 5, TEXT("%d-%s"), 12, TEXT("ab")), -1);
	EXPECT_EQ(FCString::Strcmp(Buffer, TEXT("12-a")), 0);
	EXPECT_EQ(Buffer[6], u'x') << "nothing is written behind the given size";
	EXPECT_EQ(FCString::Snprintf(Buffer, 1, TEXT("")), 0);
	EXPECT_EQ(Buffer[0], 0);
}

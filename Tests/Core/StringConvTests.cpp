#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"

#include <gtest/gtest.h>
#include <string>

namespace
{
std::u16string Decode(const std::string& Bytes)
{
	const FUTF8ToTCHAR Converted(Bytes.data(), static_cast<int32>(Bytes.size()));
	return std::u16string(Converted.Get(), static_cast<size_t>(Converted.Length()));
}

std::string Encode(const std::u16string& Text)
{
	const FTCHARToUTF8 Converted(Text.data(), static_cast<int32>(Text.size()));
	return std::string(Converted.Get(), static_cast<size_t>(Converted.Length()));
}
}

TEST(StringConv, WellFormedTextRoundTripsAtEveryLength)
{
	// Lengths around the width of the vector loop, with the character that ends it at every place.
	for (size_t Len = 0; Len < 70; ++Len)
	{
		for (size_t At = 0; At <= Len; ++At)
		{
			std::u16string Text(Len, u'a');
			Text.insert(At, u"é漢\U0001F600");
			EXPECT_EQ(Decode(Encode(Text)), Text);
		}
	}
	EXPECT_EQ(Encode(u"\U0001F600"), "\xF0\x9F\x98\x80");
}

TEST(StringConv, BadBytesBecomeReplacementCharacters)
{
	struct FCase
	{
		std::string Bytes;
		std::u16string Expected;
	};
	const FCase Cases[] = {
		{"\x80", u"\uFFFD"}, // a continuation with nothing before it
		{"a\xC3", u"a\uFFFD"}, // cut inside a character
		{"\xE2\x82", u"\uFFFD\uFFFD"},
		{"\xF0\x9F\x98", u"\uFFFD\uFFFD\uFFFD"},
		{"\xC0\x80z", u"\uFFFD\uFFFDz"}, // overlong
		{"\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"}, // a surrogate
		{"\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"}, // beyond the last code point
		{"\xFF\xFEok", u"\uFFFD\uFFFDok"},
		{std::string(15, 'x') + "\xC3", std::u16string(15, u'x') + u"\uFFFD"}, // at the vector's edge
		{std::string(16, 'x') + "\xC3", std::u16string(16, u'x') + u"\uFFFD"},
		{"\xC3(", u"\uFFFD("}, // the byte after a cut character is not lost
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Decode(Case.Bytes), Case.Expected);
	}
}

TEST(StringConv, LoneSurrogatesBecomeReplacementCharacters)
{
	EXPECT_EQ(Encode({0xD800}), "\xEF\xBF\xBD");
	EXPECT_EQ(Encode({0xDC00, u'a'}), "\xEF\xBF\xBD"
									  "a");
	EXPECT_EQ(Encode({0xD83D, 0xD83D, 0xDE00}), "\xEF\xBF\xBD\xF0\x9F\x98\x80");
}

TEST(StringConv, EveryByteValueConvertsWithoutGrowingPastItsBound)
{
	for (int32 First = 0; First < 256; ++First)
	{
		for (int32 Second = 0; Second < 256; ++Second)
		{
			const std::string Bytes = {static_cast<char>(First), static_cast<char>(Second), 'x'};
			const std::u16string Text = Decode(Bytes);
			EXPECT_LE(Text.size(), Bytes.size());
			EXPECT_EQ(Text.back(), u'x');
			EXPECT_EQ(
				static_cast<size_t>(UE::Core::Private::GetUtf16Length(reinterpret_cast<const UTF8CHAR*>(Bytes.data()), 3)), Text.size());
		}
	}
}

TEST(StringConv, AnsiHoldsAsciiAlone)
{
	EXPECT_STREQ(TCHAR_TO_ANSI(TEXT("Tür")), "T?r");
	EXPECT_TRUE(FString(ANSI_TO_TCHAR("T\xFCr")).Equals(TEXT("T?r")));
	EXPECT_STREQ(TCHAR_TO_UTF8(TEXT("Tür")), "T\xC3\xBCr");
	EXPECT_EQ(FTCHARToUTF8(static_cast<const TCHAR*>(nullptr)).Get(), nullptr);
}

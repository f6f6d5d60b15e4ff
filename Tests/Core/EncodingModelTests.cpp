#include "Containers/StringConv.h"
#include "Containers/UnrealString.h"
#include "Misc/Base64.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utf8.h>

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

TEST(EncodingModel, RandomBytesDecodeToTheirValidPartsAndOneMarkPerBadByte)
{
	std::mt19937 Random(1);
	// Bytes that begin and continue characters of every length, and those that never may.
	static const unsigned char Bytes[] = {
		'a', 0x7F, 0x80, 0xBF, 0xC0, 0xC3, 0xDF, 0xE0, 0xE2, 0xED, 0xEF, 0xF0, 0xF4, 0xF5, 0xFF, 0x9F, 0xA0, 0x90, 0x8F};
	for (int32 Round = 0; Round < 30000; ++Round)
	{
		std::string Text;
		for (uint32 Count = Random() % 40; Count > 0; --Count)
		{
			Text += static_cast<char>(Random() % 3 == 0 ? 'a' : Bytes[Random() % UE_ARRAY_COUNT(Bytes)]);
		}
		std::u16string Expected;
		for (auto At = Text.begin(); At != Text.end();)
		{
			const auto Bad = utf8::find_invalid(At, Text.end());
			utf8::utf8to16(At, Bad, std::back_inserter(Expected));
			At = Bad;
			if (At != Text.end())
			{
				Expected += u'\uFFFD';
				++At;
			}
		}
		ASSERT_EQ(Decode(Text), Expected) << testing::PrintToString(Text);
		ASSERT_EQ(FString(reinterpret_cast<const UTF8CHAR*>(Text.c_str())).Len(), static_cast<int32>(Expected.size()));
		ASSERT_TRUE(utf8::is_valid(Encode(Expected)));
		ASSERT_EQ(Decode(Encode(Expected)), Expected);
	}
}

TEST(EncodingModel, RandomUnitsEncodeToValidUtf8)
{
	std::mt19937 Random(2);
	static const char16_t Units[] = {u'a', 0x7F, 0x80, 0x7FF, 0x800, 0xD7FF, 0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0xE000, 0xFFFD, 0xFFFF};
	for (int32 Round = 0; Round < 30000; ++Round)
	{
		std::u16string Text;
		for (uint32 Count = Random() % 40; Count > 0; --Count)
		{
			Text += Random() % 3 == 0 ? u'a' : Units[Random() % UE_ARRAY_COUNT(Units)];
		}
		std::u16string Mended = Text;
		for (size_t Index = 0; Index < Mended.size(); ++Index)
		{
			const bool bHigh = (Mended[Index] & 0xFC00) == 0xD800;
			const bool bPair = bHigh && Index + 1 < Mended.size() && (Mended[Index + 1] & 0xFC00) == 0xDC00;
			if (bPair)
			{
				++Index;
			}
			else if ((Mended[Index] & 0xF800) == 0xD800)
			{
				Mended[Index] = u'\uFFFD';
			}
		}
		std::string Expected;
		utf8::utf16to8(Mended.begin(), Mended.end(), std::back_inserter(Expected));
		ASSERT_EQ(Encode(Text), Expected);
	}
}

TEST(EncodingModel, Base64RoundTripsAndRefusesEveryBrokenLength)
{
	std::mt19937 Random(3);
	for (const EBase64Mode Mode : {EBase64Mode::Standard, EBase64Mode::UrlSafe})
	{
		for (int32 Len = 0; Len < 70; ++Len)
		{
			TArray<uint8> Bytes;
			for (int32 Index = 0; Index < Len; ++Index)
			{
				Bytes.Add(static_cast<uint8>(Random()));
			}
			const FString Text = FBase64::Encode(Bytes, Mode);
			TArray<uint8> Decoded = {1, 2, 3};
			ASSERT_TRUE(FBase64::Decode(Text, Decoded, Mode));
			ASSERT_TRUE(Decoded == Bytes);
			for (int32 Cut = 0; Cut < Text.Len(); ++Cut)
			{
				const bool bWhole = Cut % 4 == 0 || (Mode == EBase64Mode::UrlSafe && Cut % 4 != 1);
				ASSERT_EQ(FBase64::Decode(Text.Left(Cut), Decoded, Mode), bWhole) << TCHAR_TO_UTF8(*Text.Left(Cut));
			}
			if (Len > 0)
			{
				for (const TCHAR Bad : {u' ', u'\n', u'!', u'\u0141', Mode == EBase64Mode::Standard ? u'-' : u'+',
						 Mode == EBase64Mode::Standard ? u'_' : u'/'})
				{
					FString Broken = Text;
					Broken[static_cast<int32>(Random() % 2)] = Bad;
					ASSERT_FALSE(FBase64::Decode(Broken, Decoded, Mode)) << TCHAR_TO_UTF8(*Broken);
				}
			}
		}
	}
	TArray<uint8> Decoded;
	for (const TCHAR* const Bad :
		{TEXT("="), TEXT("=="), TEXT("===="), TEXT("A==="), TEXT("AA=A"), TEXT("AAAA===="), TEXT("AAA=AAAA"), TEXT("AA==AA==")})
	{
		EXPECT_FALSE(FBase64::Decode(Bad, Decoded)) << TCHAR_TO_UTF8(Bad);
	}
}

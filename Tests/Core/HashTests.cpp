#include "Containers/Set.h"
#include "Containers/UnrealString.h"
#include "Hash/CityHash.h"
#include "Misc/Base64.h"
#include "Misc/Crc.h"
#include "Misc/Guid.h"
#include "Misc/SecureHash.h"

#include <gtest/gtest.h>

#include <string>
#include <thread>
#include <vector>

TEST(CityHash, GivesThePublishedValues)
{
	EXPECT_EQ(CityHash64("", 0), 0x9ae16a3b2f90404full);
	EXPECT_EQ(CityHash64("hello", 5), 13009744463427800296ull);
}

TEST(Crc, GivesThePublishedCheckValue)
{
	EXPECT_EQ(FCrc::MemCrc32("123456789", 9), 0xcbf43926u);
	EXPECT_EQ(FCrc::MemCrc32("6789", 4, FCrc::MemCrc32("12345", 5)), 0xcbf43926u);
}

TEST(Crc, GivesTheNameHashesThatPackagesHold)
{
	// As a package of the editor has them behind the name.
	EXPECT_EQ(FCrc::Strihash_DEPRECATED("/Script/CoreUObject") & 0xffff, 0x49f8u);
	EXPECT_EQ(FCrc::StrCrc32("/Script/CoreUObject") & 0xffff, 0x3e2du);
	EXPECT_EQ(FCrc::StrCrc32(TEXT("/Script/CoreUObject")) & 0xffff, 0x3e2du);
}

TEST(SecureHash, GivesThePublishedDigests)
{
	EXPECT_EQ(FMD5::HashAnsiString(TEXT("abc")), TEXT("900150983cd24fb0d6963f7d28e17f72"));
	const FSHAHash Hash = FSHA1::HashBuffer("abc", 3);
	EXPECT_EQ(Hash.ToString(), TEXT("A9993E364706816ABA3E25717850C26C9CD0D89D"));
	FSHAHash Read;
	EXPECT_TRUE(Read.FromString(Hash.ToString()));
	EXPECT_EQ(Read, Hash);
	EXPECT_FALSE(Read.FromString(TEXT("A9")));
}

TEST(Base64, EncodesAndDecodesEveryLengthInBothModes)
{
	EXPECT_EQ(FBase64::Encode(FString(TEXT("any carnal pleas"))), TEXT("YW55IGNhcm5hbCBwbGVhcw=="));
	for (const EBase64Mode Mode : {EBase64Mode::Standard, EBase64Mode::UrlSafe})
	{
		TArray<uint8> Bytes;
		for (int32 Length = 0; Length < 20; ++Length)
		{
			TArray<uint8> Decoded;
			EXPECT_TRUE(FBase64::Decode(FBase64::Encode(Bytes, Mode), Decoded, Mode));
			EXPECT_EQ(Decoded, Bytes);
			Bytes.Add(static_cast<uint8>(255 - Length * 3));
		}
	}
}

TEST(Base64, RefusesWhatIsNotBase64)
{
	TArray<uint8> Bytes;
	for (const TCHAR* const Text : {TEXT("A"), TEXT("AAA"), TEXT("A==="), TEXT("AA=A"), TEXT("AA*A"), TEXT("AAAA=")})
	{
		EXPECT_FALSE(FBase64::Decode(Text, Bytes));
		EXPECT_TRUE(Bytes.IsEmpty());
	}
}

TEST(Guid, WritesAndReadsEveryFormat)
{
	const FGuid Guid(0x01234567, 0x89abcdef, 0x01234567, 0x89abcdef);
	const struct
	{
		EGuidFormats Format;
		const TCHAR* Text;
	} Cases[] = {
		{EGuidFormats::Digits, TEXT("0123456789ABCDEF0123456789ABCDEF")},
		{EGuidFormats::DigitsLower, TEXT("0123456789abcdef0123456789abcdef")},
		{EGuidFormats::DigitsWithHyphens, TEXT("01234567-89AB-CDEF-0123-456789ABCDEF")},
		{EGuidFormats::DigitsWithHyphensLower, TEXT("01234567-89ab-cdef-0123-456789abcdef")},
		{EGuidFormats::DigitsWithHyphensInBraces, TEXT("{01234567-89AB-CDEF-0123-456789ABCDEF}")},
		{EGuidFormats::DigitsWithHyphensInParentheses, TEXT("(01234567-89AB-CDEF-0123-456789ABCDEF)")},
		{EGuidFormats::HexValuesInBraces, TEXT("{0x01234567,0x89ab,0xcdef,{0x01,0x23,0x45,0x67,0x89,0xab,0xcd,0xef}}")},
		{EGuidFormats::UniqueObjectGuid, TEXT("01234567-89ABCDEF-01234567-89ABCDEF")},
	};
	for (const auto& Case : Cases)
	{
		EXPECT_TRUE(Guid.ToString(Case.Format).Equals(Case.Text, ESearchCase::CaseSensitive));
		FGuid Read;
		EXPECT_TRUE(FGuid::Parse(Case.Text, Read));
		EXPECT_EQ(Read, Guid);
		EXPECT_TRUE(FGuid::ParseExact(Case.Text, Case.Format, Read));
	}
	for (const EGuidFormats Format : {EGuidFormats::Short, EGuidFormats::Base36Encoded})
	{
		const FGuid Random = FGuid::NewGuid();
		EXPECT_EQ(FGuid(Random.ToString(Format)), Random);
		EXPECT_EQ(FGuid(FGuid(~0u, ~0u, ~0u, ~0u).ToString(Format)), FGuid(~0u, ~0u, ~0u, ~0u));
	}
}

TEST(Guid, RefusesWhatIsNoGuid)
{
	FGuid Guid(1, 2, 3, 4);
	for (const TCHAR* const Text : {TEXT(""), TEXT("0123456789ABCDEF0123456789ABCDE"), TEXT("0123456789ABCDEF0123456789ABCDEF0"),
			 TEXT("G123456789ABCDEF0123456789ABCDEF"), TEXT("01234567-89AB-CDEF-0123-456789ABCDEF}"), TEXT("ZZZZZZZZZZZZZZZZZZZZZZZZZ")})
	{
		EXPECT_FALSE(FGuid::Parse(Text, Guid));
	}
	EXPECT_EQ(Guid, FGuid(1, 2, 3, 4));
}

TEST(Guid, NewOnesDifferAcrossThreadsAndAreOfTheRandomVersion)
{
	constexpr int32 NumPerThread = 1000;
	std::vector<std::vector<FGuid>> OfThreads(4);
	std::vector<std::thread> Threads;
	for (std::vector<FGuid>& Guids : OfThreads)
	{
		Threads.emplace_back([&Guids]
			{
				for (int32 Index = 0; Index < NumPerThread; ++Index)
				{
					Guids.push_back(FGuid::NewGuid());
				} });
	}
	TSet<FGuid> All;
	for (size_t Index = 0; Index < Threads.size(); ++Index)
	{
		Threads[Index].join();
		for (const FGuid& Guid : OfThreads[Index])
		{
			EXPECT_EQ((Guid.B >> 12) & 0xfu, 4u);
			EXPECT_EQ(Guid.C >> 30, 2u);
			All.Add(Guid);
		}
	}
	EXPECT_EQ(All.Num(), static_cast<int32>(OfThreads.size()) * NumPerThread);
}

TEST(Guid, NewOnesDifferAndAreValid)
{
	const FGuid First = FGuid::NewGuid();
	EXPECT_TRUE(First.IsValid());
	EXPECT_NE(First, FGuid::NewGuid());
	EXPECT_EQ(FGuid::NewDeterministicGuid(TEXT("/Game/A"), 1), FGuid::NewDeterministicGuid(TEXT("/Game/A"), 1));
	EXPECT_NE(FGuid::NewDeterministicGuid(TEXT("/Game/A"), 1), FGuid::NewDeterministicGuid(TEXT("/Game/B"), 1));
}

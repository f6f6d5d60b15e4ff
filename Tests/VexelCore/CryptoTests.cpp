#include "TaskFixture.h"
#include "VexelCrypto.h"
#include "VexelStringUtil.h"

#include <set>

namespace
{
TArray<uint8> ToBytes(const std::string& Text)
{
	return TArray<uint8>(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size()));
}

std::string ToHex(const TArray<uint8>& Bytes)
{
	std::string Text;
	for (const uint8 Byte : Bytes)
	{
		char Digits[3];
		std::snprintf(Digits, sizeof(Digits), "%02x", Byte);
		Text += Digits;
	}
	return Text;
}
}

TEST(Crypto, Sha256GivesTheStandardsDigests)
{
	EXPECT_EQ(ToHex(FVexelCrypto::Sha256(TArray<uint8>())), "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855");
	EXPECT_EQ(ToHex(FVexelCrypto::Sha256(ToBytes("abc"))), "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
	EXPECT_EQ(ToHex(FVexelCrypto::Sha256(ToBytes("abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq"))),
		"248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1");
}

TEST(Crypto, Base64UrlHasNoPaddingAndItsOwnTwoCharacters)
{
	// RFC 4648, section 10.
	const std::pair<const char*, const char*> Cases[] = {{"", ""}, {"f", "Zg"}, {"fo", "Zm8"}, {"foo", "Zm9v"}, {"foob", "Zm9vYg"},
		{"fooba", "Zm9vYmE"}, {"foobar", "Zm9vYmFy"}, {"\xfb\xff\xfe", "-__-"}};
	for (const auto& [Plain, Encoded] : Cases)
	{
		EXPECT_EQ(ToUtf8(FVexelCrypto::Base64UrlEncode(ToBytes(Plain))), Encoded);
		TArray<uint8> Decoded;
		EXPECT_TRUE(FVexelCrypto::Base64UrlDecode(UTF8_TO_TCHAR(Encoded), Decoded)) << Encoded;
		EXPECT_EQ(Decoded, ToBytes(Plain)) << Encoded;
	}
}

TEST(Crypto, ChallengeOfAKnownVerifier)
{
	// RFC 7636, appendix B.
	EXPECT_EQ(ToUtf8(FVexelCrypto::Base64UrlEncode(FVexelCrypto::Sha256(ToBytes("dBjftJeZ4CVP-mB92K27uhbUJU1p1r_wW1gFWFOEjXk")))),
		"E9Melhoa2OwvFrEMTJguCHaoeK1t8URWbuGJSstw-cM");
}

TEST(Crypto, Base64UrlDecodeTakesPaddingAndRefusesWhatNoEncoderWrites)
{
	TArray<uint8> Out;
	EXPECT_TRUE(FVexelCrypto::Base64UrlDecode(TEXT("Zg=="), Out));
	EXPECT_EQ(Out, ToBytes("f"));
	for (const TCHAR* const Bad :
		{TEXT("Z"), TEXT("Zg="), TEXT("Zm9v="), TEXT("Z==="), TEXT("Zm+v"), TEXT("Zm/v"), TEXT("Zm 9v"), TEXT("Zh"), TEXT("=")})
	{
		EXPECT_FALSE(FVexelCrypto::Base64UrlDecode(Bad, Out)) << TCHAR_TO_UTF8(Bad);
		EXPECT_TRUE(Out.IsEmpty());
	}
}

TEST(Crypto, RandomBytesHaveTheirNumberAndDiffer)
{
	std::set<std::string> Seen;
	for (int32 Round = 0; Round < 50; ++Round)
	{
		TArray<uint8> Bytes;
		ASSERT_TRUE(FVexelCrypto::SecureRandomBytes(Bytes, 16));
		ASSERT_EQ(Bytes.Num(), 16);
		Seen.insert(ToHex(Bytes));
		FGuid Guid;
		ASSERT_TRUE(FVexelCrypto::SecureRandomGuid(Guid));
		const std::string Text = ToUtf8(Guid.ToString(EGuidFormats::DigitsWithHyphens));
		EXPECT_EQ(Text[14], '4') << Text;
		EXPECT_THAT("89ABab", testing::HasSubstr(Text.substr(19, 1))) << Text;
		Seen.insert(Text);
	}
	EXPECT_EQ(Seen.size(), 100u);
	TArray<uint8> None = ToBytes("old");
	EXPECT_TRUE(FVexelCrypto::SecureRandomBytes(None, 0));
	EXPECT_TRUE(None.IsEmpty());
	EXPECT_FALSE(FVexelCrypto::SecureRandomBytes(None, -1));
}

TEST(StringUtil, SourceOfATextAndUtf8OfAString)
{
	FString Source;
	EXPECT_TRUE(FVexelStringUtil::TryGetTextSource(NSLOCTEXT("ns", "key", "Open the door"), Source));
	EXPECT_EQ(ToUtf8(Source), "Open the door");
	EXPECT_FALSE(FVexelStringUtil::TryGetTextSource(FText::Format(FText::FromString(TEXT("{0}!")), FText::FromString(TEXT("a"))), Source));
	EXPECT_EQ(FVexelStringUtil::ToStdStringUtf8(TEXT("Tür 門 \U0001F6AA")), "Tür 門 \U0001F6AA");
	EXPECT_EQ(FVexelStringUtil::ToStdStringUtf8(FString()), "");
}

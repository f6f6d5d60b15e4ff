#include "Containers/StringConv.h"
#include "VexelSecretFields.h"
#include "VexelSecrets.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace
{
TConstArrayView<uint8> ToBytes(std::string_view Text)
{
	return TConstArrayView<uint8>(reinterpret_cast<const uint8*>(Text.data()), int32(Text.size()));
}

std::string GetText(const FVexelSecretFields& Fields, const TCHAR* Key)
{
	FString Value = TEXT("(none)");
	const bool bFound = Fields.TryGetString(Key, Value);
	return bFound ? std::string(TCHAR_TO_UTF8(*Value)) : "(none)";
}

std::string Redact(const FString& Text)
{
	return std::string(TCHAR_TO_UTF8(*FVexelSecrets::Redact(Text)));
}
}

TEST(SecretFields, TextsAndNumbersOfTheOutermostObjectAreRead)
{
	const TOptional<FVexelSecretFields> Fields = FVexelSecretFields::FromJson(ToBytes(
		R"( {"token":"a\"\u00e9\n","count":3.5e1,"text":"120","no":null,"yes":true,"in":{"token":"x","deep":[{"token":"y"}]},"list":["z"],"twice":"1","twice":"2"} )"));
	ASSERT_TRUE(Fields.IsSet());
	EXPECT_EQ(GetText(*Fields, TEXT("token")), "a\"\xc3\xa9\n");
	EXPECT_EQ(GetText(*Fields, TEXT("twice")), "2");
	for (const TCHAR* const Absent : {TEXT("no"), TEXT("in"), TEXT("list"), TEXT("deep"), TEXT("count"), TEXT("yes"), TEXT("Token")})
	{
		EXPECT_EQ(GetText(*Fields, Absent), "(none)");
	}
	double Number = 0.0;
	EXPECT_TRUE(Fields->TryGetNumber(TEXT("count"), Number));
	EXPECT_EQ(Number, 35.0);
	EXPECT_TRUE(Fields->TryGetNumber(TEXT("text"), Number));
	EXPECT_EQ(Number, 120.0);
	EXPECT_FALSE(Fields->TryGetNumber(TEXT("token"), Number));
	EXPECT_FALSE(Fields->TryGetNumber(TEXT("yes"), Number));
}

TEST(SecretFields, WhatIsNotOneObjectIsNone)
{
	const std::string Deep = std::string(100'000, '[') + std::string(100'000, ']');
	for (const std::string& Text : {std::string(), std::string("[]"), std::string("[{\"a\":\"b\"}]"), std::string("\"a\""), std::string("7"),
			 std::string("{"), std::string("{\"a\":\"b\""), std::string("{\"a\":\"b\"} x"), std::string("{\"a\":\"b\"}{}"),
			 std::string("{}\0{}", 5), std::string("{\"a\":\"\xff\"}"), std::string("{\"a\":\"b\\\"}"), Deep})
	{
		EXPECT_FALSE(FVexelSecretFields::FromJson(ToBytes(Text)).IsSet()) << Text.substr(0, 40);
	}
	const TOptional<FVexelSecretFields> Inside = FVexelSecretFields::FromJson(ToBytes("{\"in\":" + Deep + ",\"a\":\"b\"}"));
	ASSERT_TRUE(Inside.IsSet());
	EXPECT_EQ(GetText(*Inside, TEXT("a")), "b");
	double Number = 0.0;
	const TOptional<FVexelSecretFields> Huge = FVexelSecretFields::FromJson(ToBytes("{\"n\":1e999}"));
	EXPECT_FALSE(Huge && Huge->TryGetNumber(TEXT("n"), Number));
}

TEST(SecretFields, WhatIsWrittenIsReadAgain)
{
	FVexelSecretFields Fields;
	Fields.AddText(TEXT("a\"b"), TEXT("x\u00e9\U0001F511\n\"\\")).AddBoolean(TEXT("yes"), true).AddText(TEXT("empty"), TEXT(""));
	const TArray<uint8> Json = Fields.ToJson();
	EXPECT_EQ(std::string(reinterpret_cast<const char*>(Json.GetData()), size_t(Json.Num())),
		"{\"a\\\"b\":\"x\xc3\xa9\xf0\x9f\x94\x91\\n\\\"\\\\\",\"yes\":true,\"empty\":\"\"}");
	const TOptional<FVexelSecretFields> Read = FVexelSecretFields::FromJson(Json);
	ASSERT_TRUE(Read.IsSet());
	EXPECT_EQ(GetText(*Read, TEXT("a\"b")), "x\xc3\xa9\xf0\x9f\x94\x91\n\"\\");
	EXPECT_EQ(GetText(*Read, TEXT("empty")), "");
}

TEST(Secrets, EachIsFoundWhereverItStandsAndHoweverTheyOverlap)
{
	FVexelSecrets::Add(TEXT("abcdefgh"));
	FVexelSecrets::Add(TEXT("efghijklmn"));
	FVexelSecrets::Add(TEXT("cdefghij"));
	EXPECT_EQ(Redact(TEXT("abcdefgh")), "[secret]");
	EXPECT_EQ(Redact(TEXT("<abcdefghijklmn>")), "<[secret]>") << "what overlaps goes as one";
	EXPECT_EQ(Redact(TEXT("abcdefghabcdefgh.")), "[secret][secret].");
	EXPECT_EQ(Redact(TEXT("abcdefg ijklmn bcdefgh")), "abcdefg ijklmn bcdefgh");
	FString Long;
	for (int32 Index = 0; Index < 10'000; ++Index)
	{
		Long += TEXT("0123456789");
	}
	EXPECT_EQ(Redact(Long + TEXT("efghijklmn") + Long).size(), 200'008u);
}

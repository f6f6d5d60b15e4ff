#include "CoreMinimal.h"

#include "Misc/DefaultValueHelper.h"
#include "Misc/Parse.h"

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <vector>

namespace
{
std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::vector<std::string> Tokens(const TCHAR* Text, bool bUseEscape)
{
	std::vector<std::string> Result;
	FString Token;
	while (FParse::Token(Text, Token, bUseEscape))
	{
		Result.push_back(Utf8(Token));
	}
	return Result;
}
}

TEST(ParseTables, TokensEndWhereTheTextDoes)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bUseEscape;
		std::vector<std::string> Expected;
	};
	const FCase Cases[] = {
		{TEXT(""), false, {}},
		{TEXT(" \t\r\n"), false, {}},
		{TEXT("a\nb"), false, {"a", "b"}},
		{TEXT("\"never closed"), false, {"never closed"}},
		{TEXT("\"ends in \\"), true, {"ends in \\"}},
		{TEXT("\"a\"b"), false, {"a", "b"}},
		{TEXT("-x=\"a b"), false, {"-x=\"a b"}},
		{TEXT("\"q \\\" q\" z"), true, {"q \" q", "z"}},
		{TEXT("\"q \\\" z"), false, {"q \\", "z"}},
		{TEXT("a=\"b \\\" c\" d"), true, {"a=\"b \\\" c\"", "d"}},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Tokens(Case.Text, Case.bUseEscape), Case.Expected) << Utf8(Case.Text);
	}
}

TEST(ParseTables, TokenIsCutToItsBuffer)
{
	const TCHAR* Text = TEXT("abcdefgh ij");
	TCHAR Buffer[4] = {'z', 'z', 'z', 'z'};
	EXPECT_TRUE(FParse::Token(Text, Buffer, 4, false));
	EXPECT_EQ(Utf8(Buffer), "abc");
	EXPECT_TRUE(FParse::Token(Text, Buffer, 4, false));
	EXPECT_EQ(Utf8(Buffer), "ij");
}

TEST(ParseTables, ValuesStopWhereTheyShould)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bStopOnSeparator;
		bool bFound;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT("Key=a,b)c d"), true, true, "a"},
		{TEXT("Key=a,b)c d"), false, true, "a,b)c"},
		{TEXT("Key="), true, true, ""},
		{TEXT("Key= x"), true, true, ""},
		{TEXT("Key=\"a,b) c\"d"), true, true, "a,b) c"},
		{TEXT("Key=\"\""), true, true, ""},
		{TEXT("MonKey=1"), true, false, "old"},
		{TEXT("MonKey=1,key=2"), true, true, "2"},
		{TEXT("(Key=1)"), true, true, "1"},
		{TEXT("\"Key=1\""), true, false, "old"},
		{TEXT("\"a\\\"Key=1\" Key=2"), true, true, "2"},
		{TEXT("Key"), true, false, "old"},
		{nullptr, true, false, "old"},
	};
	for (const FCase& Case : Cases)
	{
		FString Value = TEXT("old");
		EXPECT_EQ(FParse::Value(Case.Text, TEXT("Key="), Value, Case.bStopOnSeparator), Case.bFound)
			<< (Case.Text != nullptr ? Utf8(Case.Text) : "null");
		EXPECT_EQ(Utf8(Value), Case.Expected) << (Case.Text != nullptr ? Utf8(Case.Text) : "null");
	}
	FGuid Guid(1, 2, 3, 4);
	EXPECT_FALSE(FParse::Value(TEXT("Guid=no-guid"), TEXT("Guid="), Guid));
	EXPECT_EQ(Guid, FGuid(1, 2, 3, 4));
}

TEST(ParseTables, EscapesOfQuotedStrings)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Expected;
	};
	const FCase Cases[] = {
		{TEXT("\"\""), TEXT("")},
		{TEXT("\"\\q\\'\""), TEXT("q'")},
		{TEXT("\"\\x4G\""), TEXT("\u0004G")},
		{TEXT("\"\\xE9\\u00e9\""), TEXT("\u00E9\u00E9")},
		{TEXT("\"\\xBEEF\""), TEXT("\uBEEF")},
		{TEXT("\"\\u0041B\""), TEXT("AB")},
		{TEXT("\"\\uD83D\\uDE00\""), TEXT("\U0001F600")},
		{TEXT("\"\\101\\0601\""), TEXT("A01")},
		{TEXT("\"\\UFFFFFFFF\""), TEXT("\uFFFD")},
		// An escape that lacks its digits stands for its letter, so that no terminator gets into the text.
		{TEXT("\"\\xyz\""), TEXT("xyz")},
		{TEXT("\"\\u\""), TEXT("u")},
		{TEXT("\"\\Uz\""), TEXT("Uz")},
	};
	for (const FCase& Case : Cases)
	{
		FString Value;
		int32 NumRead = 0;
		EXPECT_TRUE(FParse::QuotedString(Case.Text, Value, &NumRead)) << Utf8(Case.Text);
		EXPECT_EQ(Utf8(Value), Utf8(Case.Expected)) << Utf8(Case.Text);
		EXPECT_EQ(Value.Len(), FCString::Strlen(*Value)) << Utf8(Case.Text);
		EXPECT_EQ(NumRead, FCString::Strlen(Case.Text)) << Utf8(Case.Text);
	}
}

TEST(ParseTables, EscapedTextIsReadBackFromQuotesAndNoCutOfItIs)
{
	std::mt19937 Random(1);
	static const TCHAR Alphabet[] = {'\\', '"', '\n', '\r', '\t', '\'', 'x', 'u', '7', u'\u6F22'};
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		FString Text;
		for (uint32 Count = Random() % 10; Count > 0; --Count)
		{
			Text += Alphabet[Random() % UE_ARRAY_COUNT(Alphabet)];
		}
		const FString Quoted = TEXT("\"") + Text.ReplaceCharWithEscapedChar() + TEXT("\"");
		FString Value;
		ASSERT_TRUE(FParse::QuotedString(*Quoted, Value)) << Utf8(Quoted);
		ASSERT_EQ(Utf8(Value), Utf8(Text)) << Utf8(Quoted);
		for (int32 Len = 0; Len < Quoted.Len(); ++Len)
		{
			ASSERT_FALSE(FParse::QuotedString(*Quoted.Left(Len), Value)) << Utf8(Quoted.Left(Len));
		}
	}
}

TEST(ParseTables, ParametersAreWords)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bFound;
	};
	const FCase Cases[] = {
		{TEXT("-Log"), true},
		{TEXT("/LOG"), true},
		{TEXT("x -log y"), true},
		{TEXT("log"), false},
		{TEXT("x-log"), false},
		{TEXT("--log"), false},
		{TEXT("-log=1"), false},
		{TEXT("-logs -xlog -log"), true},
		{TEXT(""), false},
		{nullptr, false},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(FParse::Param(Case.Text, TEXT("log")), Case.bFound) << (Case.Text != nullptr ? Utf8(Case.Text) : "null");
	}
}

TEST(DefaultValueTables, NumbersAreAsCppWritesThem)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bInteger;
		bool bFloat;
	};
	const FCase Cases[] = {
		{TEXT("0"), true, true},
		{TEXT(" 12 "), true, true},
		{TEXT("+3"), true, true},
		{TEXT("-0xfF"), true, false},
		{TEXT("0x"), false, false},
		{TEXT("0xG"), false, false},
		{TEXT("1."), false, true},
		{TEXT(".5"), false, true},
		{TEXT("."), false, false},
		{TEXT("1.f"), false, true},
		{TEXT("f"), false, false},
		{TEXT("1ff"), false, false},
		{TEXT("1e5"), false, true},
		{TEXT("1E-5F"), false, true},
		{TEXT("1e+"), false, false},
		{TEXT("e5"), false, false},
		{TEXT("1 2"), false, false},
		{TEXT("- 1"), false, false},
		{TEXT("--1"), false, false},
		{TEXT("nan"), false, false},
		{TEXT("inf"), false, false},
		{TEXT(""), false, false},
		{TEXT("1.0.0"), false, false},
		{TEXT("1,0"), false, false},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(FDefaultValueHelper::IsStringValidInteger(Case.Text), Case.bInteger) << Utf8(Case.Text);
		EXPECT_EQ(FDefaultValueHelper::IsStringValidFloat(Case.Text), Case.bFloat) << Utf8(Case.Text);
		int64 Integer = -77;
		EXPECT_EQ(FDefaultValueHelper::ParseInt64(Case.Text, Integer), Case.bInteger) << Utf8(Case.Text);
		EXPECT_EQ(Integer == -77, !Case.bInteger) << Utf8(Case.Text);
		double Number = -77;
		EXPECT_EQ(FDefaultValueHelper::ParseDouble(Case.Text, Number), Case.bFloat) << Utf8(Case.Text);
		EXPECT_EQ(Number == -77, !Case.bFloat) << Utf8(Case.Text);
	}
}

TEST(DefaultValueTables, ColoursTakeThreeOrFourNumbers)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bLinear;
		bool bBytes;
	};
	const FCase Cases[] = {
		{TEXT("1,2,3"), true, true},
		{TEXT("1,2,3,4"), true, true},
		{TEXT("1,2"), false, false},
		{TEXT("1,2,3,"), false, false},
		{TEXT(",1,2,3"), false, false},
		{TEXT("1,2,3,4,5"), false, false},
		{TEXT("1,2,3,x"), false, false},
		{TEXT("256,0,0"), true, false},
		{TEXT("-1,0,0"), true, false},
		{TEXT("1e999,0,0"), true, false},
	};
	for (const FCase& Case : Cases)
	{
		FLinearColor Linear(9, 9, 9, 9);
		EXPECT_EQ(FDefaultValueHelper::ParseLinearColor(Case.Text, Linear), Case.bLinear) << Utf8(Case.Text);
		EXPECT_EQ(Linear == FLinearColor(9, 9, 9, 9), !Case.bLinear) << Utf8(Case.Text);
		FColor Color(9, 9, 9, 9);
		EXPECT_EQ(FDefaultValueHelper::ParseColor(Case.Text, Color), Case.bBytes) << Utf8(Case.Text);
		EXPECT_EQ(Color == FColor(9, 9, 9, 9), !Case.bBytes) << Utf8(Case.Text);
	}
	FLinearColor Opaque;
	EXPECT_TRUE(FDefaultValueHelper::ParseLinearColor(TEXT("0.5, 0.25, 1"), Opaque));
	EXPECT_EQ(Opaque, FLinearColor(0.5f, 0.25f, 1, 1));
}

TEST(DefaultValueTables, CppTextsGiveTheirInside)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Type;
		bool bFound;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT("FName(TEXT(\"a\"))"), TEXT("FName"), true, "a"},
		{TEXT("\"plain\""), TEXT("FString"), true, "plain"},
		{TEXT("TEXT(\"q\\\"q\\n\")"), TEXT("FString"), true, "q\"q\n"},
		{TEXT("/* c */ FString ( \"x\" )"), TEXT("FString"), true, "x"},
		{TEXT("FString(\"\")"), TEXT("FString"), true, ""},
		{TEXT("FString(x)"), TEXT("FString"), false, "old"},
		{TEXT("FString(\"x\""), TEXT("FString"), false, "old"},
		{TEXT("\""), TEXT("FString"), false, "old"},
		{TEXT(""), TEXT("FString"), false, "old"},
		{TEXT("/* never closed"), TEXT("FString"), false, "old"},
	};
	for (const FCase& Case : Cases)
	{
		FString Inside = TEXT("old");
		EXPECT_EQ(FDefaultValueHelper::StringFromCppString(Case.Text, Case.Type, Inside), Case.bFound) << Utf8(Case.Text);
		EXPECT_EQ(Utf8(Inside), Case.Expected) << Utf8(Case.Text);
	}
	FString Form;
	EXPECT_FALSE(FDefaultValueHelper::GetParameters(TEXT("FVectorX(1)"), TEXT("FVector"), Form));
	EXPECT_TRUE(FDefaultValueHelper::GetParameters(TEXT("F()"), TEXT("F"), Form) && Form.IsEmpty());
	EXPECT_EQ(Utf8(FDefaultValueHelper::GetUnqualifiedEnumValue(TEXT("A::B::C"))), "C");
}

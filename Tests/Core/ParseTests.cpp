#include "CoreMinimal.h"

#include "Misc/DefaultValueHelper.h"
#include "Misc/Parse.h"

#include <gtest/gtest.h>

TEST(Parse, TokensKeepQuotedPartsTogether)
{
	const TCHAR* Text = TEXT("  first \"two words\" -Name=\"a b\" last");
	FString Token;
	const TCHAR* const Expected[] = {TEXT("first"), TEXT("two words"), TEXT("-Name=\"a b\""), TEXT("last")};
	for (const TCHAR* const Word : Expected)
	{
		ASSERT_TRUE(FParse::Token(Text, Token, false));
		EXPECT_TRUE(Token.Equals(Word)) << TCHAR_TO_UTF8(*Token);
	}
	EXPECT_FALSE(FParse::Token(Text, Token, false));
}

TEST(Parse, ValuesAreFoundAsWholeWordsOutsideQuotes)
{
	const TCHAR* const Text = TEXT(
		"Begin Object Class=/Script/Engine.Actor MyName=\"wrong\" Comment=\"Name=inner\" Name=\"K2Node_0\" Pos=(X=-12,Y=3.5) bOn=True");
	FString Value;
	EXPECT_TRUE(FParse::Value(Text, TEXT("NAME="), Value));
	EXPECT_TRUE(Value.Equals(TEXT("K2Node_0")));
	EXPECT_TRUE(FParse::Value(Text, TEXT("Class="), Value));
	EXPECT_TRUE(Value.Equals(TEXT("/Script/Engine.Actor")));
	int32 X = 0;
	double Y = 0;
	bool bOn = false;
	EXPECT_TRUE(FParse::Value(Text, TEXT("X="), X) && X == -12);
	EXPECT_TRUE(FParse::Value(Text, TEXT("Y="), Y) && Y == 3.5);
	EXPECT_TRUE(FParse::Bool(Text, TEXT("bOn="), bOn) && bOn);
	EXPECT_FALSE(FParse::Value(Text, TEXT("Missing="), Value));
	EXPECT_TRUE(FParse::Value(Text, TEXT("Class="), Value)) << "a failed search changes nothing";
}

TEST(Parse, QuotedStringsReadTheirEscapes)
{
	FString Value;
	int32 NumRead = 0;
	EXPECT_TRUE(FParse::QuotedString(TEXT("\"a\\\"b\\\\c\\n\\t\\x41\\u00e9\\101\\U0001F600\" rest"), Value, &NumRead));
	EXPECT_TRUE(Value.Equals(TEXT("a\"b\\c\n\tA\u00e9A\U0001F600")));
	EXPECT_EQ(NumRead, 37);
	Value = TEXT("old");
	EXPECT_FALSE(FParse::QuotedString(TEXT("\"never closed\\"), Value, &NumRead));
	EXPECT_FALSE(FParse::QuotedString(TEXT("bare"), Value));
	EXPECT_TRUE(Value.Equals(TEXT("old")));
}

TEST(Parse, CommandsAndLines)
{
	const TCHAR* Text = TEXT(" BEGIN Object");
	EXPECT_FALSE(FParse::Command(&Text, TEXT("BEG")));
	EXPECT_TRUE(FParse::Command(&Text, TEXT("begin")));
	EXPECT_TRUE(FString(Text).Equals(TEXT("Object")));
	const TCHAR* Lines = TEXT("one // comment\r\n\"// kept\"\n\ntwo|three");
	FString Line;
	for (const TCHAR* const Expected : {TEXT("one "), TEXT("\"// kept\""), TEXT("two"), TEXT("three")})
	{
		ASSERT_TRUE(FParse::Line(&Lines, Line));
		EXPECT_TRUE(Line.Equals(Expected)) << TCHAR_TO_UTF8(*Line);
	}
	EXPECT_FALSE(FParse::Line(&Lines, Line));
	const TCHAR* Exact = TEXT("a|b // c\n\nd");
	EXPECT_TRUE(FParse::Line(&Exact, Line, true) && Line.Equals(TEXT("a|b // c")));
	EXPECT_TRUE(FParse::Line(&Exact, Line, true) && Line.IsEmpty());
	EXPECT_TRUE(FParse::Param(TEXT("prog -Headless -log=x"), TEXT("headless")));
	EXPECT_FALSE(FParse::Param(TEXT("prog -Headlessly no-Headless"), TEXT("headless")));
}

TEST(DefaultValues, PinTextsParseOrAreRefused)
{
	FVector Vector(9, 9, 9);
	EXPECT_TRUE(FDefaultValueHelper::ParseVector(TEXT("1.000000, -2.5,3e1"), Vector));
	EXPECT_TRUE(Vector == FVector(1, -2.5, 30));
	for (const TCHAR* const Bad : {TEXT("1,2"), TEXT("1,2,3,4"), TEXT("1,,3"), TEXT("1,2,x"), TEXT(""), TEXT("(X=1,Y=2,Z=3)")})
	{
		EXPECT_FALSE(FDefaultValueHelper::ParseVector(Bad, Vector)) << TCHAR_TO_UTF8(Bad);
	}
	EXPECT_TRUE(Vector == FVector(1, -2.5, 30)) << "a refused text changes nothing";
	FRotator Rotator;
	EXPECT_TRUE(FDefaultValueHelper::ParseRotator(TEXT("10,20,30"), Rotator));
	EXPECT_EQ(Rotator.Yaw, 20);
	int32 Int = 0;
	EXPECT_TRUE(FDefaultValueHelper::ParseInt(TEXT(" -0x10 "), Int) && Int == -16);
	EXPECT_FALSE(FDefaultValueHelper::ParseInt(TEXT("1.5"), Int));
	float Float = 0;
	EXPECT_TRUE(FDefaultValueHelper::ParseFloat(TEXT("-.5f"), Float) && Float == -0.5f);
	EXPECT_FALSE(FDefaultValueHelper::ParseFloat(TEXT("1e"), Float));
	FString Form;
	EXPECT_TRUE(FDefaultValueHelper::GetParameters(TEXT(" FVector ( 1.f, 2.f ) "), TEXT("FVector"), Form) && Form.Equals(TEXT("1.f, 2.f")));
}

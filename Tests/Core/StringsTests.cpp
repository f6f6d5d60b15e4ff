#include "Containers/UnrealString.h"
#include "Misc/StringFormatArg.h"

#include "Containers/Map.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <cmath>
#include <gtest/gtest.h>

namespace
{
bool Same(const FString& String, const TCHAR* Expected)
{
	return String.Equals(Expected, ESearchCase::CaseSensitive);
}
}

TEST(Strings, OperatorsIgnoreCaseWhileEqualsSeesIt)
{
	const FString Lower(TEXT("straße äöя"));
	const FString Upper(TEXT("STRAßE ÄÖЯ"));
	EXPECT_TRUE(Lower == Upper);
	EXPECT_EQ(GetTypeHash(Lower), GetTypeHash(Upper));
	EXPECT_EQ(GetTypeHash(FStringView(Lower)), GetTypeHash(Upper));
	EXPECT_FALSE(Lower.Equals(Upper));
	EXPECT_NE(Lower.Compare(Upper), 0);
	EXPECT_TRUE(FString(TEXT("[")) != FString(TEXT("{"))) << "these differ by the bit that letters' case differs by";
	EXPECT_NE(GetTypeHash(FString(TEXT("[[[["))), GetTypeHash(FString(TEXT("{{{{"))));
}

TEST(Strings, AppendOfOwnPartSurvivesReallocation)
{
	FString String(TEXT("0123456789"));
	for (int32 Round = 0; Round < 5; ++Round)
	{
		const int32 OldLen = String.Len();
		String.Append(FStringView(String).RightChop(1));
		EXPECT_EQ(String.Len(), OldLen * 2 - 1);
	}
	EXPECT_TRUE(String.StartsWith(TEXT("0123456789123456789123456789")));
	String = FStringView(String).Mid(3, 4);
	EXPECT_TRUE(Same(String, TEXT("3456")));
	String.Split(TEXT("45"), &String, nullptr);
	EXPECT_TRUE(Same(String, TEXT("3")));
}

TEST(Strings, PartsClampTheirBounds)
{
	const FString String(TEXT("abcdef"));
	EXPECT_TRUE(Same(String.Left(99), TEXT("abcdef")));
	EXPECT_TRUE(String.Left(-1).IsEmpty());
	EXPECT_TRUE(Same(String.Right(2), TEXT("ef")));
	EXPECT_TRUE(Same(String.LeftChop(2), TEXT("abcd")));
	EXPECT_TRUE(String.RightChop(7).IsEmpty());
	EXPECT_TRUE(Same(String.Mid(-2, 5), TEXT("abc")));
	EXPECT_TRUE(Same(String.Mid(4, 0x7fffffff), TEXT("ef")));
	EXPECT_TRUE(FString().Mid(3).IsEmpty());
}

TEST(Strings, FindFromEndEndsAtItsStartPosition)
{
	const FString String(TEXT("/Game/Dir/Asset.Asset"));
	EXPECT_EQ(String.Find(TEXT("asset")), 10);
	EXPECT_EQ(String.Find(TEXT("asset"), ESearchCase::CaseSensitive), INDEX_NONE);
	EXPECT_EQ(String.Find(TEXT("Asset"), ESearchCase::CaseSensitive, ESearchDir::FromEnd), 16);
	EXPECT_EQ(String.Find(TEXT("/"), ESearchCase::CaseSensitive, ESearchDir::FromEnd, 9), 5);
	EXPECT_EQ(String.Find(TEXT("Asset"), ESearchCase::CaseSensitive, ESearchDir::FromStart, 11), 16);
	EXPECT_EQ(String.Find(TEXT("longer than the whole of the text"), ESearchCase::IgnoreCase, ESearchDir::FromEnd), INDEX_NONE);
}

TEST(Strings, SplitAndParseKeepWhatTheyAreTold)
{
	FString Left;
	FString Right;
	EXPECT_TRUE(FString(TEXT("a.b.c")).Split(TEXT("."), &Left, &Right, ESearchCase::IgnoreCase, ESearchDir::FromEnd));
	EXPECT_TRUE(Same(Left, TEXT("a.b")) && Same(Right, TEXT("c")));
	EXPECT_FALSE(FString(TEXT("abc")).Split(TEXT("."), &Left, &Right));
	EXPECT_TRUE(Same(Left, TEXT("a.b"))) << "untouched when there is nothing to split at";

	TArray<FString> Parts;
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(",")), 2);
	EXPECT_EQ(FString(TEXT(",a,,b,")).ParseIntoArray(Parts, TEXT(","), false), 5);
	EXPECT_TRUE(Parts[4].IsEmpty());
	EXPECT_EQ(FString(TEXT("one\r\ntwo\n\nthree\r")).ParseIntoArrayLines(Parts, false), 5);
	EXPECT_TRUE(Same(Parts[3], TEXT("three")));
	EXPECT_EQ(FString(TEXT(" a\tb;c ")).ParseIntoArrayWS(Parts, TEXT(";")), 3);
	EXPECT_TRUE(Same(FString::Join(Parts, TEXT("+")), TEXT("a+b+c")));
}

TEST(Strings, ReplaceFindsInAnyCaseAndDoesNotReadItsOwnOutput)
{
	FString String(TEXT("aAa"));
	EXPECT_EQ(String.ReplaceInline(TEXT("a"), TEXT("aa")), 3);
	EXPECT_TRUE(Same(String, TEXT("aaaaaa")));
	EXPECT_TRUE(Same(FString(TEXT("Foo foo")).Replace(TEXT("foo"), TEXT("x"), ESearchCase::CaseSensitive), TEXT("Foo x")));
	EXPECT_TRUE(Same(FString(TEXT("abc")).Replace(TEXT(""), TEXT("x")), TEXT("abc")));
}

TEST(Strings, EscapesRoundTrip)
{
	const FString Plain(TEXT("tab\t line\n\r quote\" 'single' back\\slash \\n not a line"));
	const FString Escaped = Plain.ReplaceCharWithEscapedChar();
	EXPECT_TRUE(Same(Escaped, TEXT("tab\\t line\\n\\r quote\\\" \\'single\\' back\\\\slash \\\\n not a line")));
	EXPECT_TRUE(Escaped.ReplaceEscapedCharWithChar().Equals(Plain));
	EXPECT_TRUE(Same(FString(TEXT("a \"b\" \\\"c\\\"")).ReplaceQuotesWithEscapedQuotes(), TEXT("a \\\"b\\\" \\\"c\\\"")));
	EXPECT_TRUE(Same(FString(TEXT("ends with \\")).ReplaceEscapedCharWithChar(), TEXT("ends with \\")));
}

TEST(Strings, WildcardsMatchWithoutExploding)
{
	EXPECT_TRUE(FString(TEXT("BP_Door_C")).MatchesWildcard(TEXT("bp_*_?")));
	EXPECT_FALSE(FString(TEXT("BP_Door")).MatchesWildcard(TEXT("BP_*_?")));
	const FString Many = FString::ChrN(4000, TEXT('a'));
	EXPECT_FALSE(Many.MatchesWildcard(TEXT("*a*a*a*a*a*a*a*a*a*a*b")));
}

TEST(Strings, NumbersReadAndWriteAsTheEngineDoes)
{
	EXPECT_TRUE(Same(FString::SanitizeFloat(1.0), TEXT("1.0")));
	EXPECT_TRUE(Same(FString::SanitizeFloat(-0.0), TEXT("0.0")));
	EXPECT_TRUE(Same(FString::SanitizeFloat(2.5, 3), TEXT("2.500")));
	EXPECT_TRUE(Same(FString::SanitizeFloat(100.0, 0), TEXT("100")));
	EXPECT_TRUE(Same(FString::SanitizeFloat(0.125, 8), TEXT("0.12500000")));
	EXPECT_EQ(FCString::Atoi(TEXT(" -12abc")), -12);
	EXPECT_EQ(FCString::Atoi(TEXT("99999999999")), 2147483647);
	EXPECT_EQ(FCString::Atoi64(TEXT("-9223372036854775808")), -9223372036854775807ll - 1);
	EXPECT_EQ(FCString::Strtoi(TEXT("0x1F"), nullptr, 16), 31);
	EXPECT_DOUBLE_EQ(FCString::Atod(TEXT("+1.5e3x")), 1500.0);
	EXPECT_TRUE(std::isinf(FCString::Atof(TEXT("1e99"))));
	EXPECT_EQ(FCString::Atof(TEXT("1e-99")), 0.0f);
	EXPECT_TRUE(FString(TEXT("-1.5")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("1.5.2")).IsNumeric());
	EXPECT_FALSE(FString(TEXT("-")).IsNumeric());
	EXPECT_TRUE(FCString::ToBool(TEXT("tRuE")) && FCString::ToBool(TEXT("2")) && !FCString::ToBool(TEXT("no")));
}

TEST(Strings, HexBlobsRefuseWrongText)
{
	const uint8 Bytes[] = {0x00, 0xAB, 0xFF};
	const FString Hex = FString::FromHexBlob(Bytes, 3);
	EXPECT_TRUE(Same(Hex, TEXT("00ABFF")));
	uint8 Read[3] = {};
	EXPECT_TRUE(FString::ToHexBlob(TEXT("00abFF"), Read, 3));
	EXPECT_EQ(FMemory::Memcmp(Read, Bytes, 3), 0);
	EXPECT_FALSE(FString::ToHexBlob(TEXT("00abF"), Read, 3));
	EXPECT_FALSE(FString::ToHexBlob(TEXT("00abFg"), Read, 3));
}

TEST(Strings, FormatReplacesNamesAndIndices)
{
	FStringFormatNamedArguments Named;
	Named.Add(TEXT("Name"), FStringFormatArg(TEXT("door")));
	EXPECT_TRUE(Same(FString::Format(TEXT("{Name} `{Name} {Other} {"), Named), TEXT("door {Name} {Other} {")));
	EXPECT_TRUE(Same(FString::Format(TEXT("{1}-{0}-{7}"), {FStringFormatArg(1), FStringFormatArg(TEXT("x"))}), TEXT("x-1-{7}")));
}

TEST(Strings, PathsJoinWithOneSlash)
{
	EXPECT_TRUE(Same(FString(TEXT("a/")) / TEXT("/b") / TEXT("c"), TEXT("a/b/c")));
	EXPECT_TRUE(Same(FString() / TEXT("b"), TEXT("b")));
}

TEST(Strings, BinaryFormIsTheEnginesAndRoundTrips)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	FString Ascii(TEXT("Ab"));
	FString Wide(TEXT("Ä"));
	FString Empty;
	Writer << Ascii << Wide << Empty;
	const TArray<uint8> Expected = {3, 0, 0, 0, 'A', 'b', 0, 0xFE, 0xFF, 0xFF, 0xFF, 0xC4, 0, 0, 0, 0, 0, 0, 0};
	EXPECT_TRUE(Bytes == Expected);

	FMemoryReader Reader(Bytes);
	FString First;
	FString Second;
	FString Third(TEXT("old"));
	Reader << First << Second << Third;
	EXPECT_TRUE(First.Equals(Ascii) && Second.Equals(Wide) && Third.IsEmpty());
	EXPECT_FALSE(Reader.IsError());
}

TEST(Strings, HostileBinaryFormsSetTheArchivesError)
{
	const TArray<uint8> Cases[] = {
		{0xFF, 0xFF, 0xFF, 0x7F, 'a', 0}, // longer than the archive
		{0x00, 0x00, 0x00, 0x80, 'a', 0}, // the one int32 without a positive counterpart
		{0x02, 0x00, 0x00, 0x00, 'a', 'b'}, // no terminator
		{0x02, 0x00}, // cut inside the count
	};
	for (const TArray<uint8>& Bytes : Cases)
	{
		FMemoryReader Reader(Bytes);
		FString String(TEXT("old"));
		Reader << String;
		EXPECT_TRUE(Reader.IsError());
		EXPECT_TRUE(String.IsEmpty());
	}
}

TEST(StringViews, MembersWorkOnPartsWithoutTerminator)
{
	const FStringView View = TEXTVIEW("  Hello World  ").TrimStartAndEnd();
	EXPECT_EQ(View.Len(), 11);
	EXPECT_TRUE(View.StartsWith(TEXT("hello")));
	EXPECT_FALSE(View.StartsWith(TEXT("hello"), ESearchCase::CaseSensitive));
	EXPECT_EQ(View.Left(5).Find(TEXT("World")), INDEX_NONE);
	int32 Index;
	EXPECT_TRUE(View.FindLastChar('o', Index));
	EXPECT_EQ(Index, 7);
	EXPECT_TRUE(View.Left(5) == TEXT("HELLO"));
	EXPECT_LT(View.Compare(TEXT("hello world")), 0);
}

TEST(StringBuilders, GrowPastTheirBufferAndConvert)
{
	TStringBuilder<8> Builder;
	for (int32 Index = 0; Index < 20; ++Index)
	{
		Builder << Index << TEXT(',');
	}
	Builder << "ansi" << true;
	Builder.Appendf(TEXT("|%s"), TEXT("end"));
	EXPECT_TRUE(Same(FString(Builder.ToView()), TEXT("0,1,2,3,4,5,6,7,8,9,10,11,12,13,14,15,16,17,18,19,ansitrue|end")));
	Builder.ReplaceAt(0, 4, TEXT("<new>"));
	EXPECT_TRUE(Builder.ToView().StartsWith(TEXT("<new>2,3")));
	EXPECT_EQ(FCString::Strlen(Builder.ToString()), Builder.Len());
}

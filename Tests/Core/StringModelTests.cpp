#include "Containers/UnrealString.h"

#include "Math/UnrealMathUtility.h"
#include "Misc/StringBuilder.h"
#include "Misc/StringFormatArg.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <random>
#include <string>
#include <vector>

namespace
{
std::string Utf8(const FString& Text)
{
	return TCHAR_TO_UTF8(*Text);
}

std::vector<std::string> Utf8(const TArray<FString>& Parts)
{
	std::vector<std::string> Result;
	for (const FString& Part : Parts)
	{
		Result.push_back(Utf8(Part));
	}
	return Result;
}

std::u16string ToModel(const FString& Text)
{
	return std::u16string(*Text, static_cast<size_t>(Text.Len()));
}

FString RandomText(std::mt19937& Random, int32 MaxLen)
{
	// A small alphabet, so that searches find, overlap and repeat; both cases, and letters beyond ASCII.
	static const TCHAR Alphabet[] = {'a', 'A', 'b', 'B', '.', u'\u00E4', u'\u00C4'};
	FString Result;
	for (int32 Count = static_cast<int32>(Random() % static_cast<uint32>(MaxLen + 1)); Count > 0; --Count)
	{
		Result += Alphabet[Random() % UE_ARRAY_COUNT(Alphabet)];
	}
	return Result;
}
}

TEST(StringModel, SearchesAgreeWithTheStandardLibrary)
{
	std::mt19937 Random(1);
	for (int32 Round = 0; Round < 4000; ++Round)
	{
		const FString Text = RandomText(Random, 24);
		const FString Search = RandomText(Random, 3);
		if (Search.IsEmpty())
		{
			continue;
		}
		const std::u16string Model = ToModel(Text);
		const std::u16string Needle = ToModel(Search);
		const int32 Start = static_cast<int32>(Random() % 26);
		const auto Place = [](size_t Found)
		{ return Found == std::u16string::npos ? static_cast<int32>(INDEX_NONE) : static_cast<int32>(Found); };
		const auto Context = [&]
		{ return Utf8(Search) + " in " + Utf8(Text) + " from " + std::to_string(Start); };

		EXPECT_EQ(Text.Find(Search, ESearchCase::CaseSensitive), Place(Model.find(Needle))) << Context();
		EXPECT_EQ(Text.Find(Search, ESearchCase::CaseSensitive, ESearchDir::FromEnd), Place(Model.rfind(Needle))) << Context();
		EXPECT_EQ(Text.Find(Search, ESearchCase::IgnoreCase), Place(ToModel(Text.ToLower()).find(ToModel(Search.ToLower())))) << Context();
		if (Start <= Text.Len())
		{
			EXPECT_EQ(Text.Find(Search, ESearchCase::CaseSensitive, ESearchDir::FromStart, Start),
				Place(Model.find(Needle, static_cast<size_t>(Start))))
				<< Context();
			const std::u16string Head = Model.substr(0, static_cast<size_t>(Start));
			EXPECT_EQ(Text.Find(Search, ESearchCase::CaseSensitive, ESearchDir::FromEnd, Start), Place(Head.rfind(Needle))) << Context();
		}
		EXPECT_EQ(Text.Compare(Search) < 0, Model < Needle) << Context();
		EXPECT_EQ(Text == Search, Text.ToLower().Equals(Search.ToLower())) << Context();
		if (Text == Search)
		{
			EXPECT_EQ(GetTypeHash(Text), GetTypeHash(Search)) << Context();
		}
	}
}

TEST(StringModel, ReplacingAndSplittingAreInverseToJoining)
{
	std::mt19937 Random(2);
	for (int32 Round = 0; Round < 3000; ++Round)
	{
		const FString Text = RandomText(Random, 24);
		const FString Search = RandomText(Random, 2);
		const FString Replacement = RandomText(Random, 3);
		if (Search.IsEmpty())
		{
			continue;
		}
		std::u16string Expected;
		const std::u16string Model = ToModel(Text);
		int32 ExpectedCount = 0;
		size_t At = 0;
		for (size_t Found = Model.find(ToModel(Search)); Found != std::u16string::npos;
			 Found = Model.find(ToModel(Search), At), ++ExpectedCount)
		{
			Expected += Model.substr(At, Found - At) + ToModel(Replacement);
			At = Found + static_cast<size_t>(Search.Len());
		}
		Expected += Model.substr(At);
		FString Replaced = Text;
		EXPECT_EQ(Replaced.ReplaceInline(*Search, *Replacement, ESearchCase::CaseSensitive), ExpectedCount);
		EXPECT_EQ(ToModel(Replaced), Expected) << Utf8(Text) << " " << Utf8(Search) << " " << Utf8(Replacement);

		TArray<FString> Parts;
		EXPECT_EQ(Text.ParseIntoArray(Parts, *Search, false), ExpectedCount + 1);
		EXPECT_EQ(ToModel(FString::Join(Parts, *Search)), Model);
		EXPECT_EQ(ToModel(FString::Join(Parts, *Replacement)), Expected);
		Text.ParseIntoArray(Parts, *Search, true);
		EXPECT_FALSE(Parts.ContainsByPredicate([](const FString& Part)
			{ return Part.IsEmpty(); }));

		FString Left;
		FString Right;
		const bool bSplit = Text.Split(Search, &Left, &Right, ESearchCase::CaseSensitive, ESearchDir::FromEnd);
		EXPECT_EQ(bSplit, ExpectedCount > 0);
		if (bSplit)
		{
			EXPECT_EQ(ToModel(Left + Search + Right), Model);
			EXPECT_FALSE(Right.Contains(Search, ESearchCase::CaseSensitive)) << Utf8(Text) << " " << Utf8(Search);
		}
	}
}

TEST(StringModel, EditsInPlaceAgreeWithTheStandardLibrary)
{
	std::mt19937 Random(3);
	FString Text;
	std::u16string Model;
	for (int32 Step = 0; Step < 20000; ++Step)
	{
		const int32 Index = static_cast<int32>(Random() % (Model.size() + 1));
		const int32 Count = static_cast<int32>(Random() % 5);
		const FString Part = RandomText(Random, 4);
		switch (Random() % 7)
		{
			case 0:
				Text.InsertAt(Index, Part);
				Model.insert(static_cast<size_t>(Index), ToModel(Part));
				break;
			case 1:
				Text.RemoveAt(Index, Count);
				Model.erase(static_cast<size_t>(Index), static_cast<size_t>(Count));
				break;
			case 2:
				Text.AppendChars(*Text + Index, FMath::Min(Count, Text.Len() - Index));
				Model += Model.substr(static_cast<size_t>(Index), static_cast<size_t>(Count));
				break;
			case 3:
				Text.LeftChopInline(Count);
				Model.resize(Model.size() > static_cast<size_t>(Count) ? Model.size() - static_cast<size_t>(Count) : 0);
				break;
			case 4:
				Text.RightChopInline(Count);
				Model.erase(0, static_cast<size_t>(Count));
				break;
			case 5:
				Text += Part;
				Model += ToModel(Part);
				break;
			default:
				Text = FStringView(Text).Mid(Index / 8);
				Model = Model.substr(static_cast<size_t>(Index / 8));
				break;
		}
		ASSERT_EQ(ToModel(Text), Model) << Step;
		ASSERT_EQ(FCString::Strlen(*Text), Text.Len()) << Step;
	}
}

TEST(StringTables, PartsAreBroughtInsideTheText)
{
	struct FCase
	{
		int32 Start;
		int32 Count;
		const char* Expected;
	};
	const FCase Cases[] = {
		{0, 0, ""},
		{2, 2, "cd"},
		{5, 1, "f"},
		{6, 1, ""},
		{INT_MAX, INT_MAX, ""},
		{INT_MIN, INT_MAX, ""},
		{-1, 1, ""},
		{-1, 2, "a"},
		{3, -1, ""},
		{3, INT_MIN, ""},
		{0, INT_MAX, "abcdef"},
		{1, INT_MAX, "bcdef"},
	};
	const FString Text(TEXT("abcdef"));
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Utf8(Text.Mid(Case.Start, Case.Count)), Case.Expected) << Case.Start << ", " << Case.Count;
	}
	for (const int32 Count : {INT_MIN, -1, 0})
	{
		EXPECT_EQ(Utf8(Text.Left(Count) + TEXT("|") + Text.Right(Count)), "|") << Count;
		EXPECT_EQ(Utf8(Text.RightChop(Count)), "abcdef") << Count;
	}
	EXPECT_EQ(Utf8(Text.LeftChop(-1)), "abcdef");
	EXPECT_EQ(Utf8(Text.LeftChop(INT_MAX)), "");
	FString Empty;
	Empty.RemoveAt(0, 5);
	Empty.MidInline(3, 4);
	Empty.TrimStartAndEndInline();
	Empty.ReverseString();
	EXPECT_EQ(Utf8(Empty + Empty.LeftPad(2) + Empty.ToUpper()), "  ");
}

TEST(StringTables, TextsParseIntoLinesAndWords)
{
	struct FCase
	{
		const TCHAR* Text;
		std::vector<std::string> Lines;
		std::vector<std::string> Words;
	};
	const FCase Cases[] = {
		{TEXT(""), {""}, {}},
		{TEXT("\n"), {"", ""}, {}},
		{TEXT("\r\n"), {"", ""}, {}},
		{TEXT("\n\r"), {"", "", ""}, {}},
		{TEXT("a\r\n\r\nb"), {"a", "", "b"}, {"a", "b"}},
		{TEXT("a b\rc"), {"a b", "c"}, {"a", "b", "c"}},
		{TEXT("\t a \n"), {"\t a ", ""}, {"a"}},
	};
	for (const FCase& Case : Cases)
	{
		TArray<FString> Parts = {TEXT("left from before")};
		FString(Case.Text).ParseIntoArrayLines(Parts, false);
		EXPECT_EQ(Utf8(Parts), Case.Lines) << Utf8(Case.Text);
		FString(Case.Text).ParseIntoArrayWS(Parts);
		EXPECT_EQ(Utf8(Parts), Case.Words) << Utf8(Case.Text);
	}
	// Of delimiters at the same place the first in the list counts, and an element of the output may be the text itself.
	const TCHAR* const Delimiters[] = {TEXT("::"), TEXT(":"), TEXT("")};
	TArray<FString> Parts = {TEXT("A::B:C:::D")};
	Parts[0].ParseIntoArray(Parts, TEXT(""), false);
	EXPECT_EQ(FString(TEXT("A::B:C:::D")).ParseIntoArray(Parts, Delimiters, 3, false), 5);
	EXPECT_EQ(Utf8(Parts), (std::vector<std::string>{"A", "B", "C", "", "D"}));
}

TEST(StringTables, NumbersParseAtTheirLimits)
{
	struct FCase
	{
		const TCHAR* Text;
		bool bNumeric;
		int64 Value;
	};
	const FCase Cases[] = {
		{TEXT("9223372036854775807"), true, MAX_int64},
		{TEXT("9223372036854775808"), true, MAX_int64},
		{TEXT("-9223372036854775808"), true, MIN_int64},
		{TEXT("-99999999999999999999999"), true, MIN_int64},
		{TEXT("+7"), true, 7},
		{TEXT("007"), true, 7},
		{TEXT("-0"), true, 0},
		{TEXT("7."), true, 7},
		{TEXT(""), false, -1},
		{TEXT("+"), false, -1},
		{TEXT("--7"), false, -1},
		{TEXT("7 "), false, -1},
		{TEXT(" 7"), false, -1},
		{TEXT("0x10"), false, -1},
		{TEXT("1e3"), false, -1},
		{TEXT("1,000"), false, -1},
		{TEXT("\u0661"), false, -1}, // a digit of another script
		{TEXT("nan"), false, -1},
	};
	for (const FCase& Case : Cases)
	{
		int64 Value = -1;
		EXPECT_EQ(LexTryParseString(Value, Case.Text), Case.bNumeric) << Utf8(Case.Text);
		EXPECT_EQ(Value, Case.Value) << Utf8(Case.Text);
		EXPECT_EQ(FString(Case.Text).IsNumeric(), Case.bNumeric) << Utf8(Case.Text);
	}
	uint64 Unsigned = 0;
	EXPECT_TRUE(LexTryParseString(Unsigned, TEXT("18446744073709551615")));
	EXPECT_EQ(Unsigned, MAX_uint64);
	EXPECT_EQ(Utf8(LexToString(MIN_int64)), "-9223372036854775808");
	EXPECT_EQ(Utf8(FString::FormatAsNumber(MIN_int32)), "-2,147,483,648");
	EXPECT_EQ(Utf8(FString::FormatAsNumber(-999)), "-999");
	EXPECT_EQ(Utf8(FString::FormatAsNumber(1000)), "1,000");
}

TEST(StringTables, WordsAndNumbersBecomeBools)
{
	const TCHAR* const Trues[] = {TEXT("true"), TEXT("TRUE"), TEXT("yes"), TEXT("Yes"), TEXT("on"), TEXT("1"), TEXT("-1"), TEXT("42")};
	const TCHAR* const Falses[] = {TEXT("false"), TEXT("no"), TEXT("off"), TEXT("0"), TEXT(""), TEXT("truely"), TEXT("maybe"), TEXT("00")};
	for (const TCHAR* const Text : Trues)
	{
		EXPECT_TRUE(FString(Text).ToBool()) << Utf8(Text);
	}
	for (const TCHAR* const Text : Falses)
	{
		EXPECT_FALSE(FString(Text).ToBool()) << Utf8(Text);
	}
}

TEST(StringTables, SanitizedFloatsKeepWhatSixDigitsHold)
{
	struct FCase
	{
		double Value;
		int32 MinDigits;
		const char* Expected;
	};
	const FCase Cases[] = {
		{0.0, 1, "0.0"},
		{0.0, 0, "0"},
		{10.0, 1, "10.0"},
		{1000000.0, 0, "1000000"},
		{-1.5, 1, "-1.5"},
		{1e-6, 1, "0.000001"},
		{0.1 + 0.2, 1, "0.3"},
		{123456789.125, 2, "123456789.125"},
		{0.9999999, 1, "1.0"},
		{1e15, 1, "1000000000000000.0"},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Utf8(FString::SanitizeFloat(Case.Value, Case.MinDigits)), Case.Expected);
	}
	std::mt19937 Random(4);
	for (int32 Round = 0; Round < 2000; ++Round)
	{
		const double Value = std::uniform_real_distribution<double>(-1e6, 1e6)(Random);
		const FString Text = FString::SanitizeFloat(Value);
		EXPECT_NEAR(FCString::Atod(*Text), Value, 5.1e-7) << Utf8(Text);
		EXPECT_TRUE(Text.EndsWith(TEXT(".0")) || !Text.EndsWith(TEXT("0"))) << Utf8(Text);
	}
}

TEST(StringTables, EscapesOfRandomTextsRoundTrip)
{
	std::mt19937 Random(5);
	static const TCHAR Alphabet[] = {'\\', 'n', '\n', '\r', 'r', '\t', 't', '"', '\'', 'x'};
	for (int32 Round = 0; Round < 5000; ++Round)
	{
		FString Text;
		for (uint32 Count = Random() % 12; Count > 0; --Count)
		{
			Text += Alphabet[Random() % UE_ARRAY_COUNT(Alphabet)];
		}
		const FString Escaped = Text.ReplaceCharWithEscapedChar();
		ASSERT_EQ(ToModel(Escaped.ReplaceEscapedCharWithChar()), ToModel(Text)) << Utf8(Escaped);
		int32 Unused;
		EXPECT_FALSE(Escaped.FindChar('\n', Unused) || Escaped.FindChar('\r', Unused) || Escaped.FindChar('\t', Unused));
		// What was escaped once has no quote left to escape.
		EXPECT_EQ(ToModel(Escaped.ReplaceQuotesWithEscapedQuotes()), ToModel(Escaped));
	}
}

TEST(StringTables, HexDigitsBecomeBytesFromTheLeft)
{
	uint8 Bytes[4] = {};
	EXPECT_EQ(HexToBytes(TEXT("aBc"), Bytes), 2);
	EXPECT_EQ(Bytes[0], 0x0A);
	EXPECT_EQ(Bytes[1], 0xBC);
	EXPECT_EQ(HexToBytes(TEXT(""), Bytes), 0);
	for (const TCHAR Char : {u'g', u'G', u'/', u':', u'@', u'`', u' ', u'\u0661', u'\uFF11'})
	{
		EXPECT_FALSE(CheckTCharIsHex(Char)) << static_cast<int32>(Char);
	}
	for (int32 Value = 0; Value < 256; ++Value)
	{
		const uint8 Byte = static_cast<uint8>(Value);
		EXPECT_EQ(HexToBytes(BytesToHexLower(&Byte, 1), Bytes), 1);
		EXPECT_EQ(Bytes[0], Byte);
		EXPECT_TRUE(FString::ToBlob(FString::FromBlob(&Byte, 1), Bytes + 1, 1));
		EXPECT_EQ(Bytes[1], Byte);
	}
	for (const TCHAR* const Bad : {TEXT("256"), TEXT("-01"), TEXT("1 2"), TEXT("01"), TEXT("0010")})
	{
		EXPECT_FALSE(FString::ToBlob(Bad, Bytes, 1)) << Utf8(Bad);
	}
}

TEST(StringTables, WildcardsAgreeWithARecursiveModel)
{
	struct FModel
	{
		static bool Matches(const char16_t* Text, const char16_t* Pattern)
		{
			if (*Pattern == 0)
			{
				return *Text == 0;
			}
			if (*Pattern == '*')
			{
				return Matches(Text, Pattern + 1) || (*Text != 0 && Matches(Text + 1, Pattern));
			}
			return *Text != 0 && (*Pattern == '?' || *Pattern == *Text) && Matches(Text + 1, Pattern + 1);
		}
	};
	std::mt19937 Random(6);
	for (int32 Round = 0; Round < 20000; ++Round)
	{
		FString Text;
		FString Pattern;
		for (uint32 Count = Random() % 8; Count > 0; --Count)
		{
			Text += TEXT("ab")[Random() % 2];
		}
		for (uint32 Count = Random() % 7; Count > 0; --Count)
		{
			Pattern += TEXT("ab*?")[Random() % 4];
		}
		ASSERT_EQ(Text.MatchesWildcard(Pattern, ESearchCase::CaseSensitive), FModel::Matches(*Text, *Pattern))
			<< Utf8(Text) << " " << Utf8(Pattern);
	}
}

TEST(StringTables, HostileFormatPatternsTakeLinearTime)
{
	// Looking for the missing brace anew at each of these would take hours.
	const FString Open = FString::ChrN(3000000, '{');
	EXPECT_EQ(FString::Format(*Open, FStringFormatOrderedArguments()).Len(), Open.Len());
}

TEST(StringBuilders, EditsAgreeWithTheStandardLibrary)
{
	std::mt19937 Random(7);
	TStringBuilder<16> Builder;
	std::u16string Model;
	for (int32 Step = 0; Step < 10000; ++Step)
	{
		const FString Part = RandomText(Random, 5);
		const int32 At = static_cast<int32>(Random() % (Model.size() + 1));
		const int32 Count = static_cast<int32>(Random() % (Model.size() - static_cast<size_t>(At) + 1)) % 6;
		switch (Random() % 4)
		{
			case 0:
				Builder.ReplaceAt(At, Count, Part);
				Model.replace(static_cast<size_t>(At), static_cast<size_t>(Count), ToModel(Part));
				break;
			case 1:
				Builder.Prepend(Part);
				Model.insert(0, ToModel(Part));
				break;
			case 2:
				Builder.RemoveAt(At, Count);
				Model.erase(static_cast<size_t>(At), static_cast<size_t>(Count));
				break;
			default:
				Builder.RemoveSuffix(Count);
				Model.resize(Model.size() - static_cast<size_t>(Count));
				break;
		}
		ASSERT_EQ(std::u16string(Builder.ToString(), static_cast<size_t>(Builder.Len())), Model) << Step;
		ASSERT_EQ(FCString::Strlen(Builder.ToString()), Builder.Len()) << Step;
	}
}

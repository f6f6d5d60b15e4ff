#include "Internationalization/Text.h"
#include "Misc/DateTime.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

#include <string>

namespace
{
std::string Utf8(const FText& Text)
{
	return TCHAR_TO_UTF8(*Text.ToString());
}

template <typename... ArgumentTypes>
std::string Formatted(const TCHAR* Pattern, ArgumentTypes&&... Arguments)
{
	return Utf8(FText::Format(FText::AsCultureInvariant(Pattern), Forward<ArgumentTypes>(Arguments)...));
}
}

TEST(TextForms, PluralsFollowTheNumber)
{
	const TCHAR* const Pattern = TEXT("{0} {0}|plural(one=cat,other=cats)");
	EXPECT_EQ(Formatted(Pattern, 0), "0 cats");
	EXPECT_EQ(Formatted(Pattern, 1), "1 cat");
	EXPECT_EQ(Formatted(Pattern, -1), "-1 cat");
	EXPECT_EQ(Formatted(Pattern, 1.5), "1.5 cats");
	EXPECT_EQ(Formatted(Pattern, uint64(1)), "1 cat");
	FFormatNamedArguments Named;
	Named.Add(TEXT("Num"), 2);
	Named.Add(TEXT("Name"), INVTEXT("Ada"));
	const FText Quoted =
		FText::Format(INVTEXT("There {Num}|plural( one = \"is, (just) {Name}\" , other = \"are {Num}, {Name}\" )!"), Named);
	EXPECT_EQ(Utf8(Quoted), "There are 2, Ada!");
	Named.Add(TEXT("Num"), 1);
	EXPECT_EQ(Utf8(FText::Format(INVTEXT("{Num}|plural(one=\"{Name}|plural(other=nested) {Name}\",other=x)"), Named)), "nested Ada");
}

TEST(TextForms, OrdinalsFollowEnglish)
{
	const std::pair<int32, const char*> Cases[] = {{1, "1st"}, {2, "2nd"}, {3, "3rd"}, {4, "4th"}, {10, "10th"}, {11, "11th"}, {12, "12th"},
		{13, "13th"}, {21, "21st"}, {111, "111th"}, {122, "122nd"}, {0, "0th"}};
	for (const auto& [Number, Expected] : Cases)
	{
		EXPECT_EQ(Formatted(TEXT("{0}{0}|ordinal(one=st,two=nd,few=rd,other=th)"), Number), Expected);
	}
}

TEST(TextForms, GendersChooseByPlace)
{
	const TCHAR* const Pattern = TEXT("{0}|gender(le,la,l')");
	EXPECT_EQ(Formatted(Pattern, ETextGender::Masculine), "le");
	EXPECT_EQ(Formatted(Pattern, ETextGender::Feminine), "la");
	EXPECT_EQ(Formatted(Pattern, ETextGender::Neuter), "l'");
	EXPECT_EQ(Formatted(TEXT("{0}|gender(le,la)."), ETextGender::Neuter), ".");
	EXPECT_EQ(Formatted(Pattern, 1), "") << "a number has no gender";
}

TEST(TextForms, GenderSurvivesBothForms)
{
	FText Text = FText::Format(INVTEXT("{0}|gender(le,la) {1}"), ETextGender::Feminine, 5);
	FString Exported;
	FTextStringHelper::WriteToBuffer(Exported, Text, true);
	EXPECT_STREQ(TCHAR_TO_UTF8(*Exported), "LOCGEN_FORMAT_ORDERED(INVTEXT(\"{0}|gender(le,la) {1}\"), ETextGender::Feminine, 5)");
	FText Read;
	ASSERT_NE(FTextStringHelper::ReadFromBuffer(*Exported, Read, nullptr, nullptr, true), nullptr);
	EXPECT_EQ(Utf8(Read), "la 5");
	EXPECT_EQ(
		FTextStringHelper::ReadFromBuffer(TEXT("LOCGEN_FORMAT_ORDERED(INVTEXT(\"\"), ETextGender::Other)"), Read, nullptr, nullptr, true),
		nullptr);

	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Text;
	FMemoryReader Reader(Bytes);
	Reader << Read;
	EXPECT_FALSE(Reader.IsError());
	EXPECT_TRUE(Reader.AtEnd());
	EXPECT_EQ(Utf8(Read), "la 5");
}

TEST(TextForms, WhatIsNoModifierStaysText)
{
	for (const TCHAR* const Tail :
		{TEXT("|plural"), TEXT("|plural("), TEXT("|plural(one=a"), TEXT("|plural(one=\"a"), TEXT("|plural(one=\"a\"b)"),
			TEXT("|Plural(one=a)"), TEXT("|other(one=a)"), TEXT("| plural(one=a)"), TEXT("||plural(one=a)")})
	{
		const std::string Expected = std::string("1") + TCHAR_TO_UTF8(Tail);
		EXPECT_EQ(Formatted(*(FString(TEXT("{0}")) + Tail), 1), Expected);
	}
	EXPECT_EQ(Formatted(TEXT("{1}|plural(one=a)"), 1), "{1}|plural(one=a)") << "an argument that is missing leaves all as it was";
	EXPECT_EQ(Formatted(TEXT("{0}|plural(few=a)"), 1), "") << "no choice fits";
}

TEST(TextForms, BrokenModifiersTakeLinearTime)
{
	FString Hostile;
	for (int32 Index = 0; Index < 20000; ++Index)
	{
		Hostile += TEXT("{0}|plural(a,{0}|plural(\"");
	}
	EXPECT_GT(FText::Format(FText::AsCultureInvariant(Hostile + TEXT("\"x\"y)")), 1).ToString().Len(), 20000);
}

TEST(TextForms, PatternsNameTheirParameters)
{
	TArray<FString> Names;
	FTextFormat(INVTEXT("{A} `{No`} {B}|plural(one=x) { A } {a} {unclosed")).GetFormatArgumentNames(Names);
	ASSERT_EQ(Names.Num(), 3);
	EXPECT_TRUE(Names[0].Equals(TEXT("A")));
	EXPECT_TRUE(Names[1].Equals(TEXT("B")));
	EXPECT_TRUE(Names[2].Equals(TEXT("a")));
}

TEST(TextForms, DatesAndTimesInEveryStyle)
{
	const FDateTime Leap(2024, 2, 29, 13, 5, 9);
	EXPECT_EQ(Utf8(FText::AsDate(Leap)), "Feb 29, 2024");
	EXPECT_EQ(Utf8(FText::AsDate(Leap, EDateTimeStyle::Short)), "2/29/24");
	EXPECT_EQ(Utf8(FText::AsDate(Leap, EDateTimeStyle::Long)), "February 29, 2024");
	EXPECT_EQ(Utf8(FText::AsDate(Leap, EDateTimeStyle::Full)), "Thursday, February 29, 2024");
	EXPECT_EQ(Utf8(FText::AsTime(Leap)), "1:05:09 PM");
	EXPECT_EQ(Utf8(FText::AsTime(FDateTime(2024, 1, 1), EDateTimeStyle::Short)), "12:00 AM");
	EXPECT_EQ(Utf8(FText::AsDateTime(Leap)), "Feb 29, 2024, 1:05:09 PM");
	EXPECT_EQ(Utf8(FText::AsDateTime(Leap, EDateTimeStyle::Full, EDateTimeStyle::Long)), "Thursday, February 29, 2024 at 1:05:09 PM GMT");
	EXPECT_EQ(Utf8(FText::AsTimespan(FTimespan(1, 1, 3, 9))), "25:03:09");
	EXPECT_EQ(Utf8(FText::AsTimespan(FTimespan(-90 * ETimespan::TicksPerSecond))), "-00:01:30");
}

TEST(TextForms, MemoryInBothStandards)
{
	EXPECT_EQ(Utf8(FText::AsMemory(1023)), "1,023 B");
	EXPECT_EQ(Utf8(FText::AsMemory(1536)), "1.5 KiB");
	EXPECT_EQ(Utf8(FText::AsMemory(1500, nullptr, EMemoryUnitStandard::SI)), "1.5 kB");
	EXPECT_EQ(Utf8(FText::AsMemory(uint64(3) << 30)), "3 GiB");
	EXPECT_EQ(Utf8(FText::AsMemory(~uint64(0))), "16 EiB");
}

TEST(TextForms, BuilderIndentsItsLines)
{
	FTextBuilder Builder;
	EXPECT_TRUE(Builder.IsEmpty());
	Builder.AppendLine(INVTEXT("Outer"));
	Builder.Indent();
	Builder.AppendLineFormat(INVTEXT("{0} of {1}"), 1, 2);
	Builder.Unindent();
	Builder.AppendLine();
	Builder.AppendLine(FName(TEXT("Last_3")));
	EXPECT_EQ(Utf8(Builder.ToText()), "Outer\n    1 of 2\n\nLast_3");
}

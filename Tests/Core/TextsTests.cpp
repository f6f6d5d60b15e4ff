#include "Internationalization/Text.h"

#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"

#include <gtest/gtest.h>

namespace
{
FString Exported(const FText& Text, bool bRequiresQuotes = true)
{
	FString Result;
	FTextStringHelper::WriteToBuffer(Result, Text, bRequiresQuotes);
	return Result;
}

FText SavedAndLoaded(FText Text)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << Text;
	FMemoryReader Reader(Bytes);
	FText Result;
	Reader << Result;
	EXPECT_FALSE(Reader.IsError());
	EXPECT_TRUE(Reader.AtEnd());
	return Result;
}
}

TEST(Texts, FormsReadAndWriteToTheLetter)
{
	const TCHAR* const Forms[] = {
		TEXT("NSLOCTEXT(\"K2Node\", \"true\", \"true\")"),
		TEXT("NSLOCTEXT(\"\", \"16C4E377C2E74CE5BA25165971FD45EF\", \"bool\")"),
		TEXT("NSLOCTEXT(\"[9C9868C74FCF3E7AFDEB778F8C9EA988]\", \"4807\", \"Only used if \\'X\\' \\\"y\\\"\\n\")"),
		TEXT("LOCTABLE(\"/Game/Table.Table\", \"Key\")"),
		TEXT("INVTEXT(\"as \\\"is\\\"\")"),
		TEXT("LOCGEN_FORMAT_ORDERED(NSLOCTEXT(\"PCGSettings\", \"Tip\", \"{0}Attribute type is \\\"{1}\\\"\"), \"\", NSLOCTEXT(\"\", "
			 "\"16C4\", \"bool\"), \"int32\", 5, 1.5f)"),
		TEXT("LOCGEN_FORMAT_NAMED(INVTEXT(\"{A}\"), \"A\", \"x\")"),
		TEXT("\"plain \\\\ text\""),
	};
	for (const TCHAR* const Form : Forms)
	{
		FText Text;
		const TCHAR* const End = FTextStringHelper::ReadFromBuffer(Form, Text, nullptr, nullptr, true);
		ASSERT_NE(End, nullptr) << TCHAR_TO_UTF8(Form);
		EXPECT_EQ(*End, 0);
		EXPECT_STREQ(TCHAR_TO_UTF8(*Exported(Text)), TCHAR_TO_UTF8(Form));
	}
}

TEST(Texts, ReadingStopsBehindTheFormAndRefusesBrokenOnes)
{
	FText Text;
	const TCHAR* const Buffer = TEXT("NSLOCTEXT( \"a\" ,\"b\",TEXT(\"c\") ),Next=1");
	const TCHAR* const End = FTextStringHelper::ReadFromBuffer(Buffer, Text, nullptr, nullptr, true);
	ASSERT_NE(End, nullptr);
	EXPECT_TRUE(FString(End).Equals(TEXT(",Next=1")));
	EXPECT_TRUE(Text.ToString().Equals(TEXT("c")));

	for (const TCHAR* const Broken :
		{TEXT("NSLOCTEXT(\"a\", \"b\""), TEXT("NSLOCTEXT(a, b, c)"), TEXT("\"open"), TEXT("LOCTABLE()"), TEXT("bare")})
	{
		EXPECT_EQ(FTextStringHelper::ReadFromBuffer(Broken, Text, nullptr, nullptr, true), nullptr) << TCHAR_TO_UTF8(Broken);
	}
	FString Deep;
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Deep += TEXT("LOCGEN_FORMAT_ORDERED(");
	}
	EXPECT_EQ(FTextStringHelper::ReadFromBuffer(*Deep, Text, nullptr, nullptr, true), nullptr);
	EXPECT_TRUE(FTextStringHelper::CreateFromBuffer(TEXT("bare text")).ToString().Equals(TEXT("bare text")));
}

TEST(Texts, PackageNamespaceIsStrippedAndReplaced)
{
	const FText Own = FText::FromNamespaceKeySource(TEXT("Door [OLD]"), TEXT("Key"), TEXT("Open"));
	FString Stripped;
	FTextStringHelper::WriteToBuffer(Stripped, Own, true, true);
	EXPECT_TRUE(Stripped.Equals(TEXT("NSLOCTEXT(\"Door\", \"Key\", \"Open\")")));
	FText Moved;
	FTextStringHelper::ReadFromBuffer(*Exported(Own), Moved, nullptr, TEXT("NEW"), true);
	EXPECT_TRUE(FTextInspector::GetNamespace(Moved).GetValue().Equals(TEXT("Door [NEW]")));
}

TEST(Texts, FormatFillsInAndRemembersItsParts)
{
	const FText Ordered = FText::Format(INVTEXT("{1} of {0}: `{0}` {9}"), 1234567, FText::FromString(TEXT("x")));
	EXPECT_TRUE(Ordered.ToString().Equals(TEXT("x of 1,234,567: {0}` {9}")));
	FFormatNamedArguments Named;
	Named.Add(TEXT("Name"), FText::FromString(TEXT("{0}")));
	const FText NamedText = FText::Format(NSLOCTEXT("N", "K", "<{Name}>"), Named);
	EXPECT_TRUE(NamedText.ToString().Equals(TEXT("<{0}>"))) << "an argument's own braces stay";
	EXPECT_EQ(FTextInspector::GetSourceString(NamedText), nullptr);
	EXPECT_TRUE(FText::FormatNamed(INVTEXT("{A}{B}"), TEXT("A"), 1, TEXT("B"), 2.5).ToString().Equals(TEXT("12.5")));
}

TEST(Texts, NumbersGroupAndRound)
{
	EXPECT_TRUE(FText::AsNumber(-1234).ToString().Equals(TEXT("-1,234")));
	EXPECT_TRUE(FText::AsNumber(999).ToString().Equals(TEXT("999")));
	EXPECT_TRUE(FText::AsNumber(1.00049).ToString().Equals(TEXT("1")));
	EXPECT_TRUE(FText::AsNumber(2.5).ToString().Equals(TEXT("2.5")));
	const FNumberFormattingOptions Options =
		FNumberFormattingOptions().SetMinimumFractionalDigits(2).SetMaximumFractionalDigits(2).SetUseGrouping(false);
	EXPECT_TRUE(FText::AsNumber(12345.0, &Options).ToString().Equals(TEXT("12345.00")));
	EXPECT_TRUE(FText::AsPercent(0.25).ToString().Equals(TEXT("25%")));
}

TEST(Texts, BinaryFormRoundTripsEveryHistory)
{
	const FText Base = SavedAndLoaded(NSLOCTEXT("Space", "Key", "Töxt"));
	EXPECT_TRUE(FTextInspector::GetNamespace(Base).GetValue().Equals(TEXT("Space")));
	EXPECT_TRUE(FTextInspector::GetKey(Base).GetValue().Equals(TEXT("Key")));
	EXPECT_TRUE(FTextInspector::GetSourceString(Base)->Equals(TEXT("Töxt")));
	EXPECT_TRUE(SavedAndLoaded(INVTEXT("as is")).IsCultureInvariant());
	EXPECT_TRUE(SavedAndLoaded(FText::FromString(TEXT("free"))).ToString().Equals(TEXT("free")));
	EXPECT_TRUE(SavedAndLoaded(FText::GetEmpty()).IsEmpty());
	const FText Format = FText::Format(NSLOCTEXT("N", "K", "{0} {1} {2}"), 3, 1.5f, INVTEXT("t"));
	EXPECT_TRUE(Exported(SavedAndLoaded(Format)).Equals(Exported(Format)));
	EXPECT_TRUE(SavedAndLoaded(Format).ToString().Equals(TEXT("3 1.5 t")));
}

TEST(Texts, BinaryFormIsTheEngines)
{
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	FText Text = NSLOCTEXT("N", "K", "S");
	Writer << Text;
	// A text of the code says that it is immutable.
	const TArray<uint8> Expected = {ETextFlag::Immutable, 0, 0, 0, 0, 2, 0, 0, 0, 'N', 0, 2, 0, 0, 0, 'K', 0, 2, 0, 0, 0, 'S', 0};
	EXPECT_TRUE(Bytes == Expected);
}

TEST(Texts, UnknownHistoriesAndEndlessNestingSetTheArchivesError)
{
	TArray<uint8> Unknown = {0, 0, 0, 0, 77};
	FMemoryReader UnknownReader(Unknown);
	FText Text;
	UnknownReader << Text;
	EXPECT_TRUE(UnknownReader.IsError());

	TArray<uint8> Nested;
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Nested.Append({0, 0, 0, 0, 2});
	}
	FMemoryReader NestedReader(Nested);
	NestedReader << Text;
	EXPECT_TRUE(NestedReader.IsError());

	TArray<uint8> LyingCount = {0, 0, 0, 0, 2, 0, 0, 0, 0, 0xFF, 0, 0, 0, 0, 0xFF, 0xFF, 0xFF, 0x7F};
	FMemoryReader LyingReader(LyingCount);
	LyingReader << Text;
	EXPECT_TRUE(LyingReader.IsError());
}

TEST(Texts, IdentityIsWhatMakesThemIdentical)
{
	EXPECT_TRUE(NSLOCTEXT("N", "K", "S").IdenticalTo(NSLOCTEXT("N", "K", "S")));
	EXPECT_FALSE(NSLOCTEXT("N", "K", "S").IdenticalTo(NSLOCTEXT("N", "Other", "S")));
	EXPECT_TRUE(NSLOCTEXT("N", "K", "S").EqualTo(NSLOCTEXT("N", "Other", "S")));
	const FText Copy = FText::FromString(TEXT("x"));
	const FText Same = Copy;
	EXPECT_TRUE(Copy.IdenticalTo(Same));
	EXPECT_FALSE(Copy.IdenticalTo(FText::FromString(TEXT("x"))));
	EXPECT_TRUE(Copy.IdenticalTo(FText::FromString(TEXT("x")), ETextIdenticalModeFlags::LexicalCompareInvariants));
}

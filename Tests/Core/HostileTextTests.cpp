#include "TextTestSupport.h"

#include "Math/NumericLimits.h"
#include "Serialization/MemoryReader.h"

#include <gtest/gtest.h>

#include <random>

namespace
{
FText MakeRandomText(std::mt19937& Random, int32 Depth)
{
	static const TCHAR Alphabet[] = {'a', '"', '\\', '\n', '{', '}', '`', '0', ',', ')', u'\u00E4'};
	FString Source;
	for (uint32 Count = Random() % 8; Count > 0; --Count)
	{
		Source += Alphabet[Random() % UE_ARRAY_COUNT(Alphabet)];
	}
	switch (Random() % (Depth > 0 ? 5 : 3))
	{
		case 0:
			return FText::FromNamespaceKeySource(TEXT("Space [PKG]"), TEXT("Key\"1\""), Source);
		case 1:
			return FText::AsCultureInvariant(Source);
		case 2:
			return FText::FromString(Source);
		case 3:
		{
			FFormatNamedArguments Named;
			Named.Add(TEXT("N\"ame"), MakeRandomText(Random, Depth - 1));
			Named.Add(TEXT("Number"), static_cast<int64>(Random()) - 5);
			return FText::Format(MakeRandomText(Random, Depth - 1), MoveTemp(Named));
		}
		default:
		{
			FFormatOrderedArguments Ordered;
			Ordered.Add(MakeRandomText(Random, Depth - 1));
			Ordered.Add(0.5);
			Ordered.Add(7u);
			return FText::Format(MakeRandomText(Random, Depth - 1), MoveTemp(Ordered));
		}
	}
}
}

TEST(HostileTexts, PatternsFormatToTheLetter)
{
	FFormatNamedArguments Named;
	Named.Add(TEXT("A"), INVTEXT("x"));
	Named.Add(TEXT(" B "), INVTEXT("never found, since names are trimmed"));
	Named.Add(TEXT(""), INVTEXT("nothing"));
	struct FCase
	{
		const TCHAR* Pattern;
		const char* Expected;
	};
	const FCase Cases[] = {
		{TEXT(""), ""},
		{TEXT("{A}{A}"), "xx"},
		{TEXT("{ A }"), "x"},
		{TEXT("{a}"), "x"},
		{TEXT("{}"), "nothing"},
		{TEXT("{"), "{"},
		{TEXT("}"), "}"},
		{TEXT("}{"), "}{"},
		{TEXT("{A"), "{A"},
		{TEXT("A}"), "A}"},
		{TEXT("{C}"), "{C}"},
		{TEXT("{0}"), "{0}"},
		{TEXT("`{A}"), "{A}"},
		{TEXT("``{A}"), "`x"},
		{TEXT("```{A}"), "`{A}"},
		{TEXT("`A"), "`A"},
		{TEXT("{A}`"), "x`"},
		{TEXT("{A}{"), "x{"},
	};
	for (const FCase& Case : Cases)
	{
		EXPECT_EQ(Utf8(FText::Format(FText::FromString(Case.Pattern), Named).ToString()), Case.Expected) << Utf8(Case.Pattern);
	}
	for (const TCHAR* const Index :
		{TEXT("{-1}"), TEXT("{2}"), TEXT("{4294967296}"), TEXT("{99999999999999999999}"), TEXT("{0x0}"), TEXT("{1.0}"), TEXT("{\u0660}")})
	{
		EXPECT_EQ(Utf8(FText::Format(FText::FromString(Index), 1, 2).ToString()), Utf8(Index));
	}
}

TEST(HostileTexts, UnclosedBracesTakeLinearTime)
{
	const FString Open = FString::ChrN(3000000, '{');
	EXPECT_EQ(FText::Format(FText::FromString(Open), 1).ToString().Len(), Open.Len());
}

TEST(HostileTexts, FormatsThatMultiplyEachOtherStayBounded)
{
	FString Pattern;
	for (int32 Count = 0; Count < 50; ++Count)
	{
		Pattern += TEXT("{0}");
	}
	FText Bomb = FText::FromString(TEXT("0123456789"));
	for (int32 Depth = 0; Depth < 14; ++Depth)
	{
		Bomb = FText::Format(FText::FromString(Pattern), Bomb);
		EXPECT_LT(Bomb.ToString().Len(), 4 << 20);
	}
	const FString Form = Exported(Bomb);
	FText Read;
	ASSERT_NE(FTextStringHelper::ReadFromBuffer(*Form, Read, nullptr, nullptr, true), nullptr);
	EXPECT_EQ(Read.ToString().Len(), Bomb.ToString().Len());
	const TArray<uint8> Bytes = Saved(Bomb);
	FMemoryReader Reader(Bytes);
	FText Loaded;
	Reader << Loaded;
	EXPECT_EQ(Loaded.ToString().Len(), Bomb.ToString().Len());
}

TEST(HostileTexts, RandomTextsRoundTripInBothForms)
{
	std::mt19937 Random(3);
	for (int32 Round = 0; Round < 1500; ++Round)
	{
		const FText Text = MakeRandomText(Random, 3);
		const FString Form = Exported(Text);
		FText Read;
		const TCHAR* const End = FTextStringHelper::ReadFromBuffer(*Form, Read, nullptr, nullptr, true);
		ASSERT_NE(End, nullptr) << Utf8(Form);
		ASSERT_EQ(*End, 0) << Utf8(Form);
		ASSERT_EQ(Utf8(Exported(Read)), Utf8(Form));
		ASSERT_EQ(Utf8(Read.ToString()), Utf8(Text.ToString())) << Utf8(Form);

		const TArray<uint8> Bytes = Saved(Text);
		FMemoryReader Reader(Bytes);
		FText Loaded;
		Reader << Loaded;
		ASSERT_FALSE(Reader.IsError());
		ASSERT_EQ(Utf8(Exported(Loaded)), Utf8(Form));
	}
}

TEST(HostileTexts, EveryCutOfAFormIsRefusedOrEndsInsideIt)
{
	std::mt19937 Random(4);
	for (int32 Round = 0; Round < 150; ++Round)
	{
		const FText Text = MakeRandomText(Random, 2);
		const FString Form = Exported(Text);
		for (int32 Len = 0; Len < Form.Len(); ++Len)
		{
			const FString Cut = Form.Left(Len);
			FText Read;
			EXPECT_EQ(FTextStringHelper::ReadFromBuffer(*Cut, Read, nullptr, nullptr, true), nullptr) << Utf8(Cut);
		}
		const TArray<uint8> Bytes = Saved(Text);
		for (int32 Len = 0; Len < Bytes.Num(); ++Len)
		{
			const TArray<uint8> Cut(Bytes.GetData(), Len);
			FMemoryReader Reader(Cut);
			FText Loaded;
			Reader << Loaded;
			EXPECT_TRUE(Reader.IsError()) << Len << " of " << Utf8(Form);
		}
	}
}

TEST(HostileTexts, StrippingThePackageReachesTheArguments)
{
	const FText Own = FText::FromNamespaceKeySource(TEXT("Door [PKG]"), TEXT("K"), TEXT("S"));
	FFormatNamedArguments Named;
	Named.Add(TEXT("A"), FText::Format(INVTEXT("{0}"), Own));
	EXPECT_EQ(Utf8(Exported(FText::Format(Own, MoveTemp(Named)), true)),
		"LOCGEN_FORMAT_NAMED(NSLOCTEXT(\"Door\", \"K\", \"S\"), \"A\", LOCGEN_FORMAT_ORDERED(INVTEXT(\"{0}\"), NSLOCTEXT(\"Door\", "
		"\"K\", \"S\")))");
}

TEST(HostileTexts, NumbersAtTheirLimits)
{
	EXPECT_EQ(Utf8(FText::AsNumber(MIN_int64).ToString()), "-9,223,372,036,854,775,808");
	EXPECT_EQ(Utf8(FText::AsNumber(MAX_uint64).ToString()), "18,446,744,073,709,551,615");
	EXPECT_EQ(Utf8(FText::AsNumber(0).ToString()), "0");
	EXPECT_EQ(Utf8(FText::AsNumber(-1000000).ToString()), "-1,000,000");
	EXPECT_EQ(Utf8(FText::AsNumber(999.9996).ToString()), "1,000");
	EXPECT_EQ(Utf8(FText::AsPercent(1.0).ToString()), "100%");
	const FNumberFormattingOptions Padded = FNumberFormattingOptions().SetMinimumIntegralDigits(5).SetAlwaysSign(true);
	EXPECT_EQ(Utf8(FText::AsNumber(42, &Padded).ToString()), "+00,042");
}

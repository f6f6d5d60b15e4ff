#include "TextTestSupport.h"

#include "Misc/DateTime.h"
#include "Serialization/MemoryReader.h"
#include "Serialization/MemoryWriter.h"
#include "UObject/EditorObjectVersion.h"
#include "UObject/ObjectVersion.h"
#include "UObject/UE5ReleaseStreamObjectVersion.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace
{
constexpr ETextIdenticalModeFlags Deep = ETextIdenticalModeFlags::DeepCompare | ETextIdenticalModeFlags::LexicalCompareInvariants;

/** The kinds as the binary form numbers them. */
enum EKind : uint8
{
	ArgumentFormat = 3,
	AsNumber = 4,
	AsPercent = 5,
	AsCurrency = 6,
	AsDate = 7,
	AsTime = 8,
	AsDateTime = 9,
	Transform = 10
};

FText ReadWhole(const FString& Form)
{
	FText Text;
	const TCHAR* const End = FTextStringHelper::ReadFromBuffer(*Form, Text, nullptr, nullptr, true);
	EXPECT_TRUE(End != nullptr && *End == 0) << Utf8(Form);
	return Text;
}

bool IsRefused(const FString& Form)
{
	FText Text;
	return FTextStringHelper::ReadFromBuffer(*Form, Text, nullptr, nullptr, true) == nullptr;
}

/** What is read of the bytes; none when they are refused. */
TOptional<FText> Loaded(const TArray<uint8>& Bytes)
{
	FMemoryReader Reader(Bytes);
	FText Text;
	Reader << Text;
	return Reader.IsError() || !Reader.AtEnd() ? TOptional<FText>() : TOptional<FText>(Text);
}

/** Puts a text's bytes together as a package would hold them. */
struct FBytes
{
	explicit FBytes(uint8 Kind)
	{
		uint32 Flags = 0;
		Writer << Flags << Kind;
	}
	template <typename ValueType>
	FBytes& operator<<(ValueType Value)
	{
		Writer << Value;
		return *this;
	}
	FBytes& operator<<(const TCHAR* Text)
	{
		FString String(Text);
		Writer << String;
		return *this;
	}

	TArray<uint8> Bytes;
	FMemoryWriter Writer{Bytes};
};

TArray<uint8> DoubleBytes(double Value, uint8 Kind = AsNumber)
{
	return (FBytes(Kind) << uint8(EFormatArgumentType::Double) << Value << false << TEXT("de")).Bytes;
}

TArray<uint8> OptionBytes(
	bool bHasAlwaysSign, int8 Mode, double Value, int32 MinIntegral, int32 MaxIntegral, int32 MinFraction, int32 MaxFraction)
{
	FBytes Result(AsNumber);
	Result << uint8(EFormatArgumentType::Double) << Value << true;
	if (bHasAlwaysSign)
	{
		Result << true;
	}
	return (Result << true << Mode << MinIntegral << MaxIntegral << MinFraction << MaxFraction << TEXT("")).Bytes;
}

std::string Rounded(int8 Mode, double Value, int32 NumFractional = 0)
{
	const TOptional<FText> Text = Loaded(OptionBytes(true, Mode, Value, 1, 324, 0, NumFractional));
	return Text.IsSet() ? Utf8(Text->ToString()) : "refused";
}

/** Loads as a package of the given versions does, and expects that writing for it gives the bytes back. */
FText LoadedAsPackage(const TArray<uint8>& Bytes, int32 EditorVersion, int32 ReleaseVersion, int32 UE4Version = VER_UE4_AUTOMATIC_VERSION)
{
	const auto Prepare = [=](FArchive& Ar)
	{
		Ar.SetIsPersistent(true);
		Ar.SetUEVer(FPackageFileVersion::CreateUE4Version(UE4Version));
		Ar.SetCustomVersion(FEditorObjectVersion::GUID, EditorVersion, NAME_None);
		Ar.SetCustomVersion(FUE5ReleaseStreamObjectVersion::GUID, ReleaseVersion, NAME_None);
	};
	FMemoryReader Reader(Bytes);
	Prepare(Reader);
	FText Text;
	Reader << Text;
	EXPECT_FALSE(Reader.IsError());
	EXPECT_TRUE(Reader.AtEnd());
	TArray<uint8> Again;
	FMemoryWriter Writer(Again);
	Prepare(Writer);
	Writer << Text;
	EXPECT_TRUE(Again == Bytes);
	return Text;
}

struct FFormCase
{
	const TCHAR* Form;
	const char* Shown;
};

const FFormCase FormCases[] = {
	{TEXT("LOCGEN_NUMBER_GROUPED(1234, \"\")"), "1,234"},
	{TEXT("LOCGEN_NUMBER_GROUPED(18446744073709551615u, \"\")"), "18,446,744,073,709,551,615"},
	{TEXT("LOCGEN_NUMBER_GROUPED(-1.5f, \"de-DE\")"), "-1.5"},
	{TEXT("LOCGEN_NUMBER_GROUPED(5.0, \"\")"), "5"},
	{TEXT("LOCGEN_NUMBER_GROUPED(nan, \"\")"), "NaN"},
	{TEXT("LOCGEN_NUMBER_GROUPED(-inff, \"\")"), "-\u221E"},
	{TEXT("LOCGEN_NUMBER_UNGROUPED(1234, \"\")"), "1234"},
	{TEXT("LOCGEN_NUMBER_CUSTOM(1234.5, SetAlwaysSign(true).SetUseGrouping(false).SetRoundingMode(ERoundingMode::HalfToZero)."
		  "SetMinimumIntegralDigits(6).SetMaximumIntegralDigits(7).SetMinimumFractionalDigits(-1).SetMaximumFractionalDigits(0), \"\")"),
		"+001234"},
	{TEXT("LOCGEN_PERCENT_GROUPED(0.125, \"\")"), "12%"},
	{TEXT("LOCGEN_PERCENT_UNGROUPED(12.5, \"\")"), "1250%"},
	{TEXT("LOCGEN_PERCENT_CUSTOM(0.125, SetUseGrouping(true), \"\")"), "12.5%"},
	{TEXT("LOCGEN_CURRENCY(-123456, \"USD\", \"en\")"), "-$1,234.56"},
	{TEXT("LOCGEN_CURRENCY(29, \"EUR\", \"\")"), "\u20AC0.29"},
	{TEXT("LOCGEN_CURRENCY(1234, \"JPY\", \"\")"), "\u00A51,234"},
	{TEXT("LOCGEN_CURRENCY(1, \"KWD\", \"\")"), "KWD\u00A00.001"},
	{TEXT("LOCGEN_CURRENCY(100, \"\\\"\", \"\")"), "\"\u00A01.00"},
	{TEXT("LOCGEN_DATE_UTC(1709211909, EDateTimeStyle::Short, \"\", \"en-GB\")"), "2/29/24"},
	{TEXT("LOCGEN_DATE_LOCAL(-62135596800, EDateTimeStyle::Full, \"\")"), "Monday, January 1, 1"},
	{TEXT("LOCGEN_TIME_UTC(1709211909, EDateTimeStyle::Default, \"Europe/Paris\", \"\")"), "1:05:09 PM"},
	{TEXT("LOCGEN_TIME_LOCAL(253402300799, EDateTimeStyle::Short, \"\")"), "11:59 PM"},
	{TEXT("LOCGEN_DATETIME_UTC(1709211909, EDateTimeStyle::Long, EDateTimeStyle::Medium, \"\", \"\")"), "February 29, 2024 at 1:05:09 PM"},
	{TEXT("LOCGEN_DATETIME_LOCAL(1709211909, EDateTimeStyle::Medium, EDateTimeStyle::Short, \"fr\")"), "Feb 29, 2024, 1:05 PM"},
	{TEXT("LOCGEN_TOLOWER(NSLOCTEXT(\"N\", \"K\", \"Open (A)\"))"), "open (a)"},
	{TEXT("LOCGEN_TOUPPER(LOCGEN_FORMAT_ORDERED(INVTEXT(\"{0} of {1}\"), LOCGEN_NUMBER_UNGROUPED(1000, \"\"), \"x\"))"), "1000 OF X"},
};
}

TEST(TextHistories, FormsReadWriteSaveAndShow)
{
	for (const FFormCase& Case : FormCases)
	{
		const FText Text = ReadWhole(Case.Form);
		EXPECT_EQ(Utf8(Text.ToString()), Case.Shown);
		EXPECT_EQ(Utf8(Exported(Text)), Utf8(Case.Form));
		EXPECT_TRUE(FTextStringHelper::IsComplexText(Case.Form));
		EXPECT_FALSE(Text.IsCultureInvariant());
		EXPECT_EQ(FTextInspector::GetSourceString(Text), nullptr);
		const TOptional<FText> Again = Loaded(Saved(Text));
		ASSERT_TRUE(Again.IsSet()) << Utf8(Case.Form);
		EXPECT_EQ(Utf8(Exported(*Again)), Utf8(Case.Form));
		EXPECT_EQ(Utf8(Again->ToString()), Case.Shown);
		EXPECT_TRUE(Saved(*Again) == Saved(Text));
	}
}

TEST(TextHistories, EveryCutOfAFormIsRefused)
{
	for (const FFormCase& Case : FormCases)
	{
		const FString Form = Case.Form;
		for (int32 Len = 0; Len < Form.Len(); ++Len)
		{
			EXPECT_TRUE(IsRefused(Form.Left(Len))) << Utf8(Form.Left(Len));
		}
		const TArray<uint8> Bytes = Saved(ReadWhole(Form));
		for (int32 Len = 0; Len < Bytes.Num(); ++Len)
		{
			EXPECT_FALSE(Loaded(TArray<uint8>(Bytes.GetData(), Len)).IsSet()) << Len << " of " << Utf8(Form);
		}
	}
}

TEST(TextHistories, BrokenFormsAreRefused)
{
	for (const TCHAR* const Broken : {TEXT("LOCGEN_NUMBER(1, \"\")"), TEXT("LOCGEN_NUMBER_GROUPED(\"1\", \"\")"),
			 TEXT("LOCGEN_NUMBER_GROUPED(1)"), TEXT("LOCGEN_NUMBER_GROUPED(1.5.5, \"\")"), TEXT("LOCGEN_NUMBER_GROUPED(, \"\")"),
			 TEXT("LOCGEN_NUMBER_GROUPED(infinite, \"\")"), TEXT("LOCGEN_NUMBER_GROUPED(1, \"\", \"\")"),
			 TEXT("LOCGEN_NUMBER_GROUPED(LOCGEN_NUMBER_GROUPED(1, \"\"), \"\")"), TEXT("LOCGEN_NUMBER_CUSTOM(1, , \"\")"),
			 TEXT("LOCGEN_NUMBER_CUSTOM(1, SetUseGrouping(maybe), \"\")"), TEXT("LOCGEN_NUMBER_CUSTOM(1, SetUseGrouping(true)., \"\")"),
			 TEXT("LOCGEN_NUMBER_CUSTOM(1, SetColor(1), \"\")"), TEXT("LOCGEN_NUMBER_CUSTOM(1, SetMinimumIntegralDigits(1.5), \"\")"),
			 TEXT("LOCGEN_NUMBER_CUSTOM(1, SetMinimumIntegralDigits(2147483648), \"\")"),
			 TEXT("LOCGEN_NUMBER_CUSTOM(1, SetRoundingMode(ERoundingMode::Sideways), \"\")"), TEXT("LOCGEN_CURRENCY(1.5, \"USD\", \"\")"),
			 TEXT("LOCGEN_CURRENCY(1, USD, \"\")"), TEXT("LOCGEN_DATE_UTC(0, EDateTimeStyle::Huge, \"\", \"\")"),
			 TEXT("LOCGEN_DATE_UTC(0, Short, \"\", \"\")"), TEXT("LOCGEN_DATE_UTC(0, EDateTimeStyle::Short, \"\")"),
			 TEXT("LOCGEN_DATE_LOCAL(0, EDateTimeStyle::Short, \"\", \"\")"),
			 TEXT("LOCGEN_DATE_LOCAL(253402300800, EDateTimeStyle::Short, \"\")"),
			 TEXT("LOCGEN_DATE_LOCAL(-62135596801, EDateTimeStyle::Short, \"\")"),
			 TEXT("LOCGEN_DATE_LOCAL(99999999999999999999, EDateTimeStyle::Short, \"\")"),
			 TEXT("LOCGEN_DATETIME_LOCAL(0, EDateTimeStyle::Short, \"\")"), TEXT("LOCGEN_TOLOWER()"), TEXT("LOCGEN_TOLOWER(\"a\", \"b\")"),
			 TEXT("LOCGEN_TOLOWER(5)"), TEXT("NSLOCTEXT(\"a\", INVTEXT(\"b\")")})
	{
		EXPECT_TRUE(IsRefused(Broken)) << Utf8(Broken);
	}
}

TEST(TextHistories, TransformsNestAsDeepAsFormats)
{
	const auto Nest = [](int32 Depth)
	{
		FString Form = TEXT("\"a\"");
		for (int32 Level = 0; Level < Depth; ++Level)
		{
			Form = TEXT("LOCGEN_TOUPPER(") + Form + TEXT(")");
		}
		return Form;
	};
	EXPECT_EQ(Utf8(ReadWhole(Nest(16)).ToString()), "A");
	EXPECT_TRUE(IsRefused(Nest(17)));
	EXPECT_TRUE(IsRefused(Nest(3000)));

	TArray<uint8> Nested;
	for (int32 Depth = 0; Depth < 100000; ++Depth)
	{
		Nested.Append({0, 0, 0, 0, Transform});
	}
	EXPECT_FALSE(Loaded(Nested).IsSet());
	FText TooDeep = INVTEXT("a");
	for (int32 Depth = 0; Depth < 40; ++Depth)
	{
		TooDeep = TooDeep.ToUpper();
	}
	TArray<uint8> Bytes;
	FMemoryWriter Writer(Bytes);
	Writer << TooDeep;
	EXPECT_TRUE(Writer.IsError());
}

TEST(TextHistories, WhatProgramsMakeKeepsItsParts)
{
	const FDateTime Leap(2024, 2, 29, 13, 5, 9);
	const FNumberFormattingOptions Signed = FNumberFormattingOptions().SetAlwaysSign(true);
	const FNumberFormattingOptions Usual;
	EXPECT_EQ(Utf8(Exported(FText::AsNumber(5))), "LOCGEN_NUMBER_GROUPED(5, \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsNumber(5u))), "LOCGEN_NUMBER_GROUPED(5u, \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsNumber(0.5f))), "LOCGEN_NUMBER_GROUPED(0.5f, \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsNumber(5, &Usual))), "LOCGEN_NUMBER_GROUPED(5, \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsNumber(5, &Signed))), "LOCGEN_NUMBER_CUSTOM(5, SetAlwaysSign(true), \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsPercent(0.5, &Usual))), "LOCGEN_PERCENT_CUSTOM(0.5, SetUseGrouping(true), \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsDate(Leap, EDateTimeStyle::Long))),
		"LOCGEN_DATE_UTC(1709211909, EDateTimeStyle::Long, \"\", \"\")");
	EXPECT_EQ(Utf8(Exported(FText::AsTime(Leap))), "LOCGEN_TIME_UTC(1709211909, EDateTimeStyle::Default, \"\", \"\")");
	EXPECT_EQ(Utf8(Exported(NSLOCTEXT("N", "K", "Ab").ToLower())), "LOCGEN_TOLOWER(NSLOCTEXT(\"N\", \"K\", \"Ab\"))");
}

TEST(TextHistories, IdenticalAreThoseOfTheSameParts)
{
	const FNumberFormattingOptions Signed = FNumberFormattingOptions().SetAlwaysSign(true);
	const FNumberFormattingOptions Usual;
	EXPECT_TRUE(FText::AsNumber(5).IdenticalTo(FText::AsNumber(5), Deep));
	EXPECT_FALSE(FText::AsNumber(5).IdenticalTo(FText::AsNumber(5))) << "only in depth";
	EXPECT_FALSE(FText::AsNumber(5).IdenticalTo(FText::AsNumber(5.0), Deep)) << "another type";
	EXPECT_FALSE(FText::AsNumber(1.0001).IdenticalTo(FText::AsNumber(1.0002), Deep)) << "they look the same";
	EXPECT_FALSE(FText::AsNumber(-5, &Usual).IdenticalTo(FText::AsNumber(-5, &Signed), Deep));
	EXPECT_FALSE(FText::AsNumber(5).IdenticalTo(INVTEXT("5"), Deep));
	const FDateTime Date(2024, 2, 29);
	EXPECT_TRUE(FText::AsDate(Date).IdenticalTo(FText::AsDate(Date), Deep));
	EXPECT_FALSE(FText::AsDate(Date).IdenticalTo(FText::AsDate(Date + FTimespan(1, 0, 0)), Deep));
	EXPECT_FALSE(FText::AsDate(Date).IdenticalTo(FText::AsDate(Date, EDateTimeStyle::Medium), Deep));
	EXPECT_TRUE(INVTEXT("1").ToLower().IdenticalTo(INVTEXT("1").ToLower(), Deep));
	EXPECT_FALSE(INVTEXT("1").ToLower().IdenticalTo(INVTEXT("1").ToUpper(), Deep));
	EXPECT_FALSE(NSLOCTEXT("N", "A", "1").ToLower().IdenticalTo(NSLOCTEXT("N", "B", "1").ToLower(), Deep));
	const FText Pattern = INVTEXT("{0}");
	EXPECT_TRUE(FText::Format(Pattern, 1).IdenticalTo(FText::Format(Pattern, 1), Deep));
	EXPECT_FALSE(FText::Format(Pattern, NSLOCTEXT("N", "A", "1")).IdenticalTo(FText::Format(Pattern, NSLOCTEXT("N", "B", "1")), Deep));
	EXPECT_TRUE(FText::FormatNamed(Pattern, TEXT("A"), 1).IdenticalTo(FText::FormatNamed(Pattern, TEXT("A"), 1), Deep));
	EXPECT_FALSE(FText::FormatNamed(Pattern, TEXT("A"), 1).IdenticalTo(FText::FormatNamed(Pattern, TEXT("B"), 1), Deep));
}

TEST(TextHistories, BinaryFormsAreTheEngines)
{
	const TOptional<FText> Number = Loaded((FBytes(AsNumber) << uint8(EFormatArgumentType::Int) << int64(-1234) << false << TEXT("en")).Bytes);
	ASSERT_TRUE(Number.IsSet());
	EXPECT_EQ(Utf8(Exported(*Number)), "LOCGEN_NUMBER_GROUPED(-1234, \"en\")");
	const int64 Ticks = FDateTime(2024, 2, 29, 13, 5, 9).GetTicks() + 1234567;
	const TArray<uint8> Bytes = (FBytes(AsDateTime) << Ticks << int8(3) << int8(1) << TEXT("Etc/Unknown") << TEXT("en")).Bytes;
	const TOptional<FText> DateTime = Loaded(Bytes);
	ASSERT_TRUE(DateTime.IsSet());
	EXPECT_EQ(Utf8(Exported(*DateTime)), "LOCGEN_DATETIME_LOCAL(1709211909, EDateTimeStyle::Long, EDateTimeStyle::Short, \"en\")");
	EXPECT_TRUE(Saved(*DateTime) == Bytes) << "with the part of a second that the text form does not have";
	EXPECT_EQ(Utf8(Exported(*Loaded((FBytes(AsTime) << Ticks << int8(1) << TEXT("") << TEXT("")).Bytes))),
		"LOCGEN_TIME_UTC(1709211909, EDateTimeStyle::Short, \"\", \"\")");
	const TOptional<FText> Currency =
		Loaded((FBytes(AsCurrency) << TEXT("GBP") << uint8(EFormatArgumentType::Double) << 1.5 << false << TEXT("en")).Bytes);
	ASSERT_TRUE(Currency.IsSet());
	EXPECT_EQ(Utf8(Currency->ToString()), "\u00A31.50");
	const TArray<uint8> Upper = (FBytes(Transform) << INVTEXT("a") << uint8(1)).Bytes;
	EXPECT_EQ(Utf8(Loaded(Upper)->ToString()), "A");
	EXPECT_TRUE(Saved(*Loaded(Upper)) == Upper);
}

TEST(TextHistories, ArgumentsOfAFormatStayInTheirOrder)
{
	const TArray<uint8> Bytes = (FBytes(ArgumentFormat)
		<< INVTEXT("{B} {A}") << int32(4) << TEXT("B") << uint8(EFormatArgumentType::Int) << int64(5000000000) << TEXT("A")
		<< uint8(EFormatArgumentType::Text) << INVTEXT("x") << TEXT("G") << uint8(EFormatArgumentType::Gender) << uint8(1) << TEXT("A")
		<< uint8(EFormatArgumentType::Float) << 1.5f)
									.Bytes;
	const TOptional<FText> Text = Loaded(Bytes);
	ASSERT_TRUE(Text.IsSet());
	EXPECT_EQ(Utf8(Text->ToString()), "5,000,000,000 1.5");
	EXPECT_TRUE(Saved(*Text) == Bytes) << "with the argument that it names twice";
	EXPECT_EQ(Utf8(Exported(*Text)),
		"LOCGEN_FORMAT_NAMED(INVTEXT(\"{B} {A}\"), \"B\", 5000000000, \"A\", INVTEXT(\"x\"), \"G\", ETextGender::Feminine, \"A\", 1.5f)");
	EXPECT_TRUE(Text->IdenticalTo(*Loaded(Bytes), Deep));
	for (int32 Len = 0; Len < Bytes.Num(); ++Len)
	{
		EXPECT_FALSE(Loaded(TArray<uint8>(Bytes.GetData(), Len)).IsSet());
	}
	EXPECT_FALSE(Loaded((FBytes(ArgumentFormat) << INVTEXT("") << MAX_int32).Bytes).IsSet()) << "a count that lies";
}

TEST(TextHistories, OldPackagesKeepTheirForms)
{
	constexpr int32 Today = FUE5ReleaseStreamObjectVersion::LatestVersion;
	constexpr int32 SignVersion = FEditorObjectVersion::AddedAlwaysSignNumberFormattingOption;
	const TArray<uint8> NoSign = OptionBytes(false, 0, 5, 2, 324, 0, 3);
	EXPECT_EQ(Utf8(LoadedAsPackage(NoSign, SignVersion - 1, Today).ToString()), "05");
	const TArray<uint8> WithSign = OptionBytes(true, 0, 5, 2, 324, 0, 3);
	EXPECT_EQ(Utf8(LoadedAsPackage(WithSign, SignVersion, Today).ToString()), "+05");

	const auto Integers = [](int32 Value)
	{ return (FBytes(ArgumentFormat) << FText::FromNamespaceKeySource(TEXT(""), TEXT("K"), TEXT("{A}")) << int32(1) << TEXT("A")
									 << uint8(EFormatArgumentType::Int) << Value)
		  .Bytes; };
	EXPECT_EQ(Utf8(LoadedAsPackage(Integers(-7), FEditorObjectVersion::LatestVersion, 11).ToString()), "-7");
	const FText Key = FText::FromNamespaceKeySource(TEXT(""), TEXT("K"), TEXT("<{A}>"));
	const TArray<uint8> TextsAlone = (FBytes(ArgumentFormat) << Key << int32(1) << TEXT("A") << Key).Bytes;
	EXPECT_EQ(Utf8(LoadedAsPackage(TextsAlone, 4, 0).ToString()), "<<{A}>>");

	const TArray<uint8> NoZone = (FBytes(AsDate) << FDateTime(2014, 5, 6).GetTicks() << int8(2) << TEXT("en")).Bytes;
	EXPECT_EQ(Utf8(LoadedAsPackage(NoZone, 0, 0, VER_UE4_FTEXT_HISTORY_DATE_TIMEZONE - 1).ToString()), "May 6, 2014");
	EXPECT_EQ(Utf8(LoadedAsPackage(DoubleBytes(1, AsCurrency), 0, 0, VER_UE4_ADDED_CURRENCY_CODE_TO_FTEXT - 1).ToString()), "\u00A01.00");
}

TEST(TextHistories, HostileNumbersShowAndKeepTheirBytes)
{
	constexpr double Infinity = std::numeric_limits<double>::infinity();
	for (const double Value : {Infinity, -Infinity, std::nan(""), -std::nan(""), 1.7e308, -0.0})
	{
		for (const uint8 Kind : {AsNumber, AsPercent})
		{
			const TArray<uint8> Bytes = DoubleBytes(Value, Kind);
			const TOptional<FText> Text = Loaded(Bytes);
			ASSERT_TRUE(Text.IsSet());
			EXPECT_TRUE(Saved(*Text) == Bytes);
			EXPECT_EQ(Utf8(Exported(ReadWhole(Exported(*Text)))), Utf8(Exported(*Text)));
		}
		const TOptional<FText> Money =
			Loaded((FBytes(AsCurrency) << TEXT("USD") << uint8(EFormatArgumentType::Double) << Value << false << TEXT("")).Bytes);
		ASSERT_TRUE(Money.IsSet());
		EXPECT_FALSE(IsRefused(Exported(*Money))) << Value;
	}
	const TArray<uint8> Tiny = DoubleBytes(-5e-324);
	EXPECT_TRUE(Saved(*Loaded(Tiny)) == Tiny);
	EXPECT_EQ(Utf8(Exported(ReadWhole(Exported(*Loaded(Tiny))))), "LOCGEN_NUMBER_GROUPED(0.0, \"de\")") << "the form has six digits";
	for (const int32 Digits : {MIN_int32, -1, 0, 325, MAX_int32})
	{
		const TArray<uint8> Bytes = OptionBytes(true, 0, 12.5, Digits, Digits, Digits, Digits);
		const TOptional<FText> Text = Loaded(Bytes);
		ASSERT_TRUE(Text.IsSet());
		EXPECT_TRUE(Saved(*Text) == Bytes);
		EXPECT_LT(Text->ToString().Len(), 1000);
		EXPECT_EQ(Utf8(Exported(ReadWhole(Exported(*Text)))), Utf8(Exported(*Text)));
	}
}

TEST(TextHistories, HostileTicksShowADateOfTheCalendar)
{
	const int64 Hostile[] = {MIN_int64, -1, FDateTime::MaxValue().GetTicks() + 1, MAX_int64};
	for (const int64 Ticks : Hostile)
	{
		const TArray<uint8> Bytes = (FBytes(AsDateTime) << Ticks << int8(4) << int8(4) << TEXT("") << TEXT("")).Bytes;
		const TOptional<FText> Text = Loaded(Bytes);
		ASSERT_TRUE(Text.IsSet());
		EXPECT_EQ(Utf8(Text->ToString()),
			Ticks < 0 ? "Monday, January 1, 1 at 12:00:00 AM GMT" : "Friday, December 31, 9999 at 11:59:59 PM GMT");
		EXPECT_TRUE(Saved(*Text) == Bytes);
		EXPECT_EQ(Utf8(ReadWhole(Exported(*Text)).ToString()), Utf8(Text->ToString()));
	}
}

TEST(TextHistories, ValuesWithoutAMeaningAreRefused)
{
	for (const uint8 Type :
		{uint8(EFormatArgumentType::Text), uint8(EFormatArgumentType::Gender), uint8(EFormatArgumentType::None), uint8(99)})
	{
		FBytes Bytes(AsNumber);
		Bytes << Type;
		Type == EFormatArgumentType::Text ? Bytes << INVTEXT("1") : Bytes << uint8(1);
		EXPECT_FALSE(Loaded((Bytes << false << TEXT("")).Bytes).IsSet()) << int32(Type);
	}
	for (const int8 Mode : {int8(-1), int8(7)})
	{
		EXPECT_EQ(Rounded(Mode, 1.5), "refused");
	}
	for (const int8 Style : {int8(-1), int8(5)})
	{
		EXPECT_FALSE(Loaded((FBytes(AsDate) << int64(0) << Style << TEXT("") << TEXT("")).Bytes).IsSet());
		EXPECT_FALSE(Loaded((FBytes(AsDateTime) << int64(0) << int8(0) << Style << TEXT("") << TEXT("")).Bytes).IsSet());
	}
	EXPECT_FALSE(Loaded((FBytes(Transform) << INVTEXT("a") << uint8(2)).Bytes).IsSet());
	for (const uint8 Type : {uint8(EFormatArgumentType::UInt), uint8(EFormatArgumentType::None)})
	{
		EXPECT_FALSE(Loaded((FBytes(ArgumentFormat) << INVTEXT("") << int32(1) << TEXT("A") << Type << int64(1)).Bytes).IsSet());
	}
}

TEST(TextHistories, EveryModeRoundsInItsWay)
{
	struct FCase
	{
		double Value;
		const char* Expected[7];
	};
	// To even, half from zero, half to zero, from zero, to zero, to negative infinity, to positive infinity.
	const FCase Cases[] = {
		{2.5, {"+2", "+3", "+2", "+3", "+2", "+2", "+3"}},
		{-2.5, {"-2", "-3", "-2", "-3", "-2", "-3", "-2"}},
		{2.500001, {"+3", "+3", "+3", "+3", "+2", "+2", "+3"}},
		{2.25, {"+2", "+2", "+2", "+3", "+2", "+2", "+3"}},
		{999.75, {"+1,000", "+1,000", "+1,000", "+1,000", "+999", "+999", "+1,000"}},
		{7, {"+7", "+7", "+7", "+7", "+7", "+7", "+7"}},
	};
	for (const FCase& Case : Cases)
	{
		for (int8 Mode = 0; Mode < 7; ++Mode)
		{
			EXPECT_EQ(Rounded(Mode, Case.Value), Case.Expected[Mode]) << Case.Value << " in mode " << int32(Mode);
		}
	}
	EXPECT_EQ(Rounded(1, 0.125, 2), "+0.13");
	EXPECT_EQ(Rounded(0, 0.125, 2), "+0.12");
	EXPECT_EQ(Rounded(3, 9.9901, 2), "+10");
	EXPECT_EQ(Rounded(3, 1e300, 2).size(), 1u + 301 + 100);
}

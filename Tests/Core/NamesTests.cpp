#include "UObject/NameTypes.h"

#include "Internationalization/Text.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace
{
bool Shows(const FName& Name, const TCHAR* Expected)
{
	return Name.ToString().Equals(Expected, ESearchCase::CaseSensitive);
}
}

TEST(Names, CompareIgnoringCaseAndShowTheirOwn)
{
	const FName First(TEXT("NamesTest_Casing"));
	const FName Second(TEXT("NAMESTEST_casing"));
	EXPECT_EQ(First, Second);
	EXPECT_EQ(GetTypeHash(First), GetTypeHash(Second));
	EXPECT_TRUE(Shows(First, TEXT("NamesTest_Casing")));
	EXPECT_TRUE(Shows(Second, TEXT("NAMESTEST_casing")));
	EXPECT_FALSE(First.IsEqual(Second, ENameCase::CaseSensitive));
	EXPECT_EQ(FName(TEXT("Тест")), FName(TEXT("тЕСТ")));
}

TEST(Names, NumericSuffixIsSplitOffUnlessItWouldNotPrintBack)
{
	struct FCase
	{
		const TCHAR* Text;
		const TCHAR* Plain;
		int32 Number;
	};
	const FCase Cases[] = {
		{TEXT("Foo_12"), TEXT("Foo"), 13},
		{TEXT("Foo_0"), TEXT("Foo"), 1},
		{TEXT("Foo_07"), TEXT("Foo_07"), 0},
		{TEXT("Foo_00"), TEXT("Foo_00"), 0},
		{TEXT("Foo12"), TEXT("Foo12"), 0},
		{TEXT("Foo_"), TEXT("Foo_"), 0},
		{TEXT("_5"), TEXT("_5"), 0},
		{TEXT("Foo_1_2"), TEXT("Foo_1"), 3},
		{TEXT("Foo_2147483646"), TEXT("Foo"), 2147483647},
		{TEXT("Foo_2147483647"), TEXT("Foo_2147483647"), 0},
		{TEXT("Foo_99999999999"), TEXT("Foo_99999999999"), 0},
	};
	for (const FCase& Case : Cases)
	{
		const FName Name(Case.Text);
		EXPECT_TRUE(Name.GetPlainNameString().Equals(Case.Plain)) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_EQ(Name.GetNumber(), Case.Number) << TCHAR_TO_UTF8(Case.Text);
		EXPECT_TRUE(Shows(Name, Case.Text));
	}
	EXPECT_NE(FName(TEXT("Foo_1")), FName(TEXT("Foo_01")));
}

TEST(Names, NoneIsNoneInEverySpelling)
{
	EXPECT_TRUE(FName().IsNone());
	EXPECT_TRUE(FName(TEXT("none")).IsNone());
	EXPECT_TRUE(FName(TEXT("")).IsNone());
	EXPECT_TRUE(FName(NAME_None) == FName());
	EXPECT_FALSE(FName(TEXT("None_3")).IsNone());
	EXPECT_TRUE(Shows(FName(), TEXT("None")));
	EXPECT_EQ(FName(TEXT("strproperty")), FName(NAME_StrProperty));
}

TEST(Names, FindDoesNotAdd)
{
	EXPECT_TRUE(FName(TEXT("NamesTest_NeverAdded_X"), FNAME_Find).IsNone());
	EXPECT_TRUE(FName(TEXT("NamesTest_NeverAdded_X"), FNAME_Find).IsNone());
	const FName Added(TEXT("NamesTest_NowAdded_X"));
	EXPECT_EQ(FName(TEXT("namestest_nowadded_x"), FNAME_Find), Added);
}

TEST(Names, OrderOfTextThenOfNumber)
{
	EXPECT_TRUE(FName(TEXT("alpha")).LexicalLess(FName(TEXT("Beta"))));
	EXPECT_LT(FName(TEXT("Item_2")).Compare(FName(TEXT("Item_10"))), 0);
	EXPECT_TRUE(FName(TEXT("Item_2")) == TEXT("ITEM_2"));
	EXPECT_FALSE(FName(TEXT("Item_2")) == TEXT("Item"));
}

TEST(Names, TooLongBecomesTheErrorName)
{
	EXPECT_EQ(FName(FString::ChrN(1023, TEXT('n'))).GetStringLength(), 1023u);
	EXPECT_TRUE(Shows(FName(FString::ChrN(1024, TEXT('n'))), TEXT("ERROR_NAME_SIZE_EXCEEDED")));
}

TEST(Names, ThreadsAgreeOnNamesTheyMakeTogether)
{
	constexpr int32 NumThreads = 4;
	constexpr int32 NumNames = 2000;
	std::vector<std::vector<FName>> Made(NumThreads);
	std::vector<std::thread> Threads;
	for (std::vector<FName>& Names : Made)
	{
		Threads.emplace_back([&Names]
			{
			for (int32 Index = 0; Index < NumNames; ++Index)
			{
				Names.push_back(FName(FString::Printf(TEXT("NamesTest_Thread%dX"), Index)));
			} });
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	for (const std::vector<FName>& Names : Made)
	{
		EXPECT_TRUE(Names == Made[0]);
	}
	EXPECT_TRUE(Shows(Made[3][1999], TEXT("NamesTest_Thread1999X")));
}

TEST(Names, InvalidCharactersAreNamedInTheReason)
{
	FText Reason;
	EXPECT_TRUE(FName(TEXT("Good")).IsValidObjectName(Reason));
	EXPECT_FALSE(FName(TEXT("a.b:c")).IsValidObjectName(Reason));
	EXPECT_TRUE(Reason.ToString().Equals(TEXT("Name may not contain the following characters: .:")));
}

TEST(Names, DisplayStringsSplitWords)
{
	struct FCase
	{
		const TCHAR* Name;
		bool bIsBool;
		const TCHAR* Shown;
	};
	for (const FCase& Case : {
			 FCase{TEXT("bIsOpen"), true, TEXT("Is Open")},
			 FCase{TEXT("bIsOpen"), false, TEXT("B Is Open")},
			 FCase{TEXT("bold"), true, TEXT("Bold")},
			 FCase{TEXT("b"), true, TEXT("B")},
			 FCase{TEXT(""), true, TEXT("")},
			 FCase{TEXT("max_speed"), false, TEXT("Max Speed")},
			 FCase{TEXT("Already Apart"), false, TEXT("Already Apart")},
			 FCase{TEXT("MyHTTPServer"), false, TEXT("My HTTPServer")},
			 FCase{TEXT("Vector2D"), false, TEXT("Vector 2D")},
			 FCase{TEXT("DrawScale3D"), false, TEXT("Draw Scale 3D")},
			 FCase{TEXT("Slot12Name"), false, TEXT("Slot 12Name")},
			 FCase{TEXT("Range(Min)"), false, TEXT("Range(Min)")},
			 FCase{TEXT("range(min)"), false, TEXT("Range(Min)")},
			 FCase{TEXT("-1.25"), false, TEXT("-1.25")},
			 FCase{TEXT("SpawnActorFromClass"), false, TEXT("Spawn Actor from Class")},
			 FCase{TEXT("SetTimerByEvent"), false, TEXT("Set Timer by Event")},
			 FCase{TEXT("GetAllActorsOfClass"), false, TEXT("Get All Actors Of Class")},
			 FCase{TEXT("FadeIn"), false, TEXT("Fade In")},
			 FCase{TEXT("MaxInstances"), false, TEXT("Max Instances")},
			 FCase{TEXT("OnBeginOverlap"), false, TEXT("On Begin Overlap")}})
	{
		EXPECT_STREQ(TCHAR_TO_UTF8(*FName::NameToDisplayString(Case.Name, Case.bIsBool)), TCHAR_TO_UTF8(Case.Shown));
	}
}

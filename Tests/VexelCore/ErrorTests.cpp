#include "LogCapture.h"
#include "TaskFixture.h"
#include "VexelErrorKinds.h"
#include "VexelExpected.h"
#include "VexelSentry.h"

#include <thread>

namespace
{
const FVexelErrorKind& RegisterElsewhere()
{
	return FVexelErrorKind::Register(TEXT("FVexelError_HttpUnauthorized"), &FVexelError_HttpStatusClientError::StaticKind(), TEXT("other"));
}

TVexelExpected<int32> Parse(const FString& Text)
{
	if (!Text.IsNumeric())
	{
		return VEXEL_ERROR(FVexelError_ToolInvalidInput, "'%s' is no number", *Text);
	}
	return FCString::Atoi(*Text);
}

TVexelExpected<FString> DoubleOf(const FString& Text)
{
	VEXEL_TRY(const int32 Number, Parse(Text), "while doubling '%s'", *Text);
	return FString::FromInt(2 * Number);
}

TVexelExpected<void> CheckAll(const TArray<FString>& Texts, int32& OutNumChecked)
{
	for (const FString& Text : Texts)
	{
		VEXEL_TRY_VOID(DoubleOf(Text), "while checking item at index %d", OutNumChecked);
		++OutNumChecked;
	}
	return TVexelExpected<void>();
}
}

TEST(ErrorKinds, HandlerOfAKindAlsoTakesWhatLiesBelowIt)
{
	const FVexelError Unauthorized = VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "t", "m");
	const FVexelError Cancelled = VEXEL_ERROR_TITLED(FVexelError_HttpCancelled, "t", "m");
	EXPECT_TRUE(Unauthorized.IsA<FVexelError_HttpUnauthorized>());
	EXPECT_TRUE(Unauthorized.IsA<FVexelError_HttpStatusClientError>());
	EXPECT_TRUE(Unauthorized.IsA<FVexelError_Http>());
	EXPECT_TRUE(Unauthorized.IsA<FVexelError>());
	EXPECT_FALSE(Unauthorized.IsA<FVexelError_Auth>());
	EXPECT_TRUE(Cancelled.IsA<FVexelError_Http>());
	EXPECT_FALSE(Cancelled.IsA<FVexelError_HttpStatusClientError>());
	EXPECT_FALSE(VEXEL_ERROR_TITLED(FVexelError_Http, "t", "m").IsA<FVexelError_HttpCancelled>());
}

TEST(ErrorKinds, OneNameIsOneKindWhereverItIsRegistered)
{
	EXPECT_EQ(&RegisterElsewhere(), &FVexelError_HttpUnauthorized::StaticKind());
	EXPECT_EQ(ToUtf8(FVexelError_HttpUnauthorized::StaticKind().GetName()), "FVexelError_HttpUnauthorized");
	EXPECT_EQ(ToUtf8(FVexelError_HttpUnauthorized::StaticKind().GetTitle()), "");
	EXPECT_EQ(FVexelError_Http::StaticKind().GetParent(), &FVexelError::StaticKind());
}

TEST(ErrorKinds, ThreadsThatRegisterAtOnceGetOneKind)
{
	constexpr size_t NumThreads = 8;
	const FVexelErrorKind* Kinds[NumThreads] = {};
	std::vector<std::thread> Threads;
	for (size_t Index = 0; Index < NumThreads; ++Index)
	{
		Threads.emplace_back(
			[&Kinds, Index]
			{ Kinds[Index] = &FVexelErrorKind::Register(TEXT("FVexelError_MadeByThreads"), &FVexelError::StaticKind(), TEXT("")); });
	}
	for (std::thread& Thread : Threads)
	{
		Thread.join();
	}
	EXPECT_THAT(Kinds, testing::Each(Kinds[0]));
}

TEST(ErrorKindsDeathTest, OneNameBelowTwoParentsIsAFault)
{
	ASSERT_NE(FVexelError_Http::StaticKind().GetParent(), &FVexelError_Tool::StaticKind());
	EXPECT_DEATH(
		FVexelErrorKind::Register(TEXT("FVexelError_Http"), &FVexelError_Tool::StaticKind(), TEXT("")), "registered below two parents");
}

TEST(Errors, CarryTheirPlaceAndTheKindsOwnTitle)
{
	const FVexelError Error = VEXEL_ERROR(FVexelError_ToolNotFound, "Tool '%s' not found", TEXT("fly"));
	const int32 Line = __LINE__ - 1;
	EXPECT_EQ(ToUtf8(Error.GetTitle()), "Tool not found");
	EXPECT_EQ(ToUtf8(Error.GetMessage()), "Tool 'fly' not found");
	EXPECT_EQ(ToUtf8(Error.GetSourceFile()), "ErrorTests");
	EXPECT_EQ(Error.GetSourceLine(), Line);
	EXPECT_THAT(ToUtf8(Error.GetFunction()), testing::HasSubstr("CarryTheirPlaceAndTheKindsOwnTitle"));
	EXPECT_EQ(ToUtf8(Error.ToShortString()), "Tool not found: Tool 'fly' not found");
}

TEST(Errors, ChainOfCausesKeepsEachKindAndIsPrintedFromTheOutsideIn)
{
	const FVexelError Inner = VEXEL_ERROR(FVexelError_EmbedLoadFileCorrupted, "bad magic");
	const FVexelError Outer = VEXEL_ERROR_CAUSED(FVexelError_EmbedLoad, Inner, "cache lost");
	ASSERT_NE(Outer.GetCause(), nullptr);
	EXPECT_TRUE(Outer.GetCause()->IsA<FVexelError_EmbedLoadFileCorrupted>());
	EXPECT_EQ(Outer.GetCause()->GetCause(), nullptr);
	EXPECT_THAT(ToUtf8(Outer.ToString()),
		testing::MatchesRegex("Embed Load Error: cache lost \\[FVexelError_EmbedLoad at ErrorTests:[0-9]+\\]\n"
							  "  caused by Embed database file is corrupted: bad magic \\[FVexelError_EmbedLoadFileCorrupted at ErrorTests:[0-9]+\\]"));
}

TEST(Errors, CarryTheScopesThatWereOpenWhereTheyWereRaised)
{
	TOptional<FVexelError> Inside;
	{
		const FVexelErrorContextScope Chat(TEXT("chat"));
		{
			const FVexelErrorContextScope Tool(TEXT("tool_execution"));
			Inside = VEXEL_ERROR(FVexelError_Tool, "m");
		}
		EXPECT_EQ(ToUtf8(VEXEL_ERROR(FVexelError_Tool, "m").GetContext().ToString()), "chat");
	}
	EXPECT_EQ(ToUtf8(Inside->GetContext().ToString()), "chat > tool_execution");
	EXPECT_EQ(ToUtf8(VEXEL_ERROR(FVexelError_Tool, "m").GetContext().ToString()), "");
}

TEST(Errors, AreReportedWithTheirChainOnTheClientChannel)
{
	FLogCapture Log;
	FVexelSentry::CaptureError(VEXEL_ERROR(FVexelError_ToolCallFailed, "no luck"), VEXEL_HERE);
	FVexelSentry::CaptureErrorSoft(VEXEL_ERROR(FVexelError_ToolCallFailed, "less luck"), VEXEL_HERE);
	const std::vector<FLogCapture::FLine> Lines = Log.GetLines();
	ASSERT_EQ(Lines.size(), 2u);
	EXPECT_EQ(Lines[0].Category, "Client");
	EXPECT_EQ(Lines[0].Verbosity, ELogVerbosity::Error);
	EXPECT_THAT(Lines[0].Text, testing::HasSubstr("Tool call failed: no luck [FVexelError_ToolCallFailed at ErrorTests:"));
	EXPECT_EQ(Lines[1].Verbosity, ELogVerbosity::Warning);
}

TEST(Expected, TryPassesValuesOnAndGrowsTheMessageOnTheWayOut)
{
	EXPECT_EQ(ToUtf8(DoubleOf(TEXT("21")).GetValue()), "42");
	int32 NumChecked = 0;
	const TVexelExpected<void> Checked = CheckAll({TEXT("1"), TEXT("x"), TEXT("3")}, NumChecked);
	ASSERT_TRUE(Checked.HasError());
	EXPECT_EQ(NumChecked, 1);
	EXPECT_TRUE(Checked.GetError().IsA<FVexelError_ToolInvalidInput>());
	EXPECT_EQ(ToUtf8(Checked.GetError().GetMessage()), "'x' is no number\nwhile doubling 'x'\nwhile checking item at index 1");
}

TEST(Expected, ValuesConvertAndErrorsStayWhatTheyAre)
{
	TVexelExpected<TSharedPtr<const FString>> Value = TVexelExpected<TSharedRef<FString>>(MakeShared<FString>(TEXT("a")));
	ASSERT_TRUE(Value.HasValue());
	EXPECT_EQ(ToUtf8(*Value.GetValue()), "a");
	TVexelExpected<TSharedPtr<const FString>> Error = TVexelExpected<TSharedRef<FString>>(VEXEL_ERROR(FVexelError_Embed, "m"));
	EXPECT_TRUE(Error.GetError().IsA<FVexelError_Embed>());
}

TEST(Expected, HoldsValuesThatOnlyMove)
{
	TVexelExpected<TUniquePtr<int32>> Owner = MakeUnique<int32>(5);
	const TUniquePtr<int32> Taken = MoveTemp(Owner).GetValue();
	EXPECT_EQ(*Taken, 5);
}

static_assert(!std::is_constructible_v<TVexelExpected<TSharedPtr<FString>>, FString*>, "a raw pointer would be owned twice");
static_assert(std::is_constructible_v<TVexelExpected<FString>, const TCHAR*>);

TEST(ExpectedDeathTest, ReadingTheSideThatIsNotThereIsAFault)
{
	const TVexelExpected<int32> Failed = VEXEL_ERROR(FVexelError_Tool, "no value here");
	const TVexelExpected<int32> Good = 1;
	const TVexelExpected<void> Done;
	EXPECT_DEATH(Failed.GetValue(), "The value of a failed result was read.*no value here");
	EXPECT_DEATH(Good.GetError(), "The error of a successful result was read");
	EXPECT_DEATH(Done.GetError(), "The error of a successful result was read");
}

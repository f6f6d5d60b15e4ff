#include "TaskFixture.h"
#include "VexelTry.h"

namespace
{
using FTryTest = FTaskTest;

TVexelExpected<int32> Fail(const TCHAR* Message)
{
	return VEXEL_ERROR_TITLED(FVexelError_HttpUnauthorized, "First", "%s", Message);
}
}

TEST(TryChain, StepsAnswerPlainValuesExpectedValuesOrNothing)
{
	FString Seen;
	const TVexelExpected<FString> Result = Try(20)
											   .Then([](int32 Value)
												   { return Value + 1; })
											   .Then([](int32 Value)
												   { return TVexelExpected<FString>(FString::FromInt(2 * Value)); })
											   .Then([&](const FString& Text)
												   { Seen = Text; })
											   .Then([&]
												   { return Seen + TEXT("!"); });
	EXPECT_EQ(ToUtf8(Result.GetValue()), "42!");
}

TEST(TryChain, StepsAfterAFailureAreNeverCalledAndTheFirstErrorComesOut)
{
	int32 NumCalls = 0;
	const TVexelExpected<FString> Result = Try(Fail(TEXT("first")))
											   .Then([&](int32)
												   { ++NumCalls; return 1; })
											   .Then([&](int32)
												   { ++NumCalls; return Fail(TEXT("second")); })
											   .Then([&](int32)
												   { ++NumCalls; return FString(); });
	EXPECT_EQ(NumCalls, 0);
	EXPECT_EQ(&Result.GetError().GetKind(), &FVexelError_HttpUnauthorized::StaticKind());
	EXPECT_EQ(ToUtf8(Result.GetError().GetTitle()), "First");
	EXPECT_EQ(ToUtf8(Result.GetError().GetMessage()), "first");
}

TEST(TryChain, StartsFromAnErrorToo)
{
	const TVexelExpected<FString> Result = Try<FString>(VEXEL_ERROR(FVexelError_Embed, "m")).Then([](const FString& Text)
		{ return Text; });
	EXPECT_TRUE(Result.GetError().IsA<FVexelError_Embed>());
}

TEST(TryChain, FirstMatchingCatchWinsAndItsErrorIsNotCaughtAgain)
{
	std::string Handlers;
	const TVexelExpected<int32> Result = Try(Fail(TEXT("m")))
											 .Catch<FVexelError_HttpCancelled>([&](const FVexelError_HttpCancelled&)
												 { Handlers += "a"; return 1; })
											 .Catch<FVexelError_HttpStatusClientError>([&](const FVexelError_HttpStatusClientError& Error)
												 {
													 Handlers += "b";
													 return VEXEL_ERROR_CAUSED(FVexelError_Auth_PollCancel, Error, "mapped"); })
											 .Catch<FVexelError_Http>([&](const FVexelError_Http&)
												 { Handlers += "c"; return 3; })
											 .Catch<FVexelError>([&](const FVexelError&)
												 { Handlers += "d"; return 4; });
	EXPECT_EQ(Handlers, "b");
	EXPECT_TRUE(Result.GetError().IsA<FVexelError_Auth_PollCancel>());
	EXPECT_TRUE(Result.GetError().GetCause()->IsA<FVexelError_HttpUnauthorized>());
}

TEST(TryChain, StepsGoOnWithWhatACatchPutInThePlaceOfAnError)
{
	const TVexelExpected<int32> Result = Try(Fail(TEXT("m")))
											 .Catch<FVexelError_Http>([](const FVexelError_Http&)
												 { return 20; })
											 .Then([](int32 Value)
												 { return Value + 1; })
											 .Then([](int32)
												 { return Fail(TEXT("later")); })
											 .Catch<FVexelError_Http>([](const FVexelError_Http& Error)
												 { return Error.GetMessage().Len(); });
	EXPECT_EQ(Result.GetValue(), 5) << "a catch after a step is a new one";
}

TEST(TryChain, ErrorThatNoCatchMatchesPassesUnchanged)
{
	const TVexelExpected<int32> Result = Try(Fail(TEXT("m"))).Catch<FVexelError_Embed>([](const FVexelError_Embed&)
		{ return 1; });
	EXPECT_EQ(&Result.GetError().GetKind(), &FVexelError_HttpUnauthorized::StaticKind());
}

TEST(TryChainDeathTest, ValueIsTakenOnce)
{
	const auto TakeTwice = [](auto&& Builder)
	{
		const TVexelExpected<int32> First = Builder;
		const TVexelExpected<int32> Second = Builder;
	};
	EXPECT_DEATH(TakeTwice(Try(1)), "Value already finalized!");
	EXPECT_DEATH(TakeTwice(Try(1).Catch<FVexelError>([](const FVexelError&)
					 { return 2; })),
		"Value already finalized!");
	EXPECT_DEATH(
		{
			auto Builder = Try(1);
			const TVexelExpected<int32> Next = Builder.Then([](int32 Value)
				{ return Value; });
			const TVexelExpected<int32> Again = Builder.Catch<FVexelError>([](const FVexelError&)
				{ return 2; });
		},
		"Value already finalized!");
	EXPECT_DEATH(
		{
			auto Builder = Try(TVexelTaskResult<int32>(1));
			const TVexelTaskResult<int32> First = Builder;
			const TVexelTaskResult<int32> Second = Builder;
		},
		"Value already finalized!");
}

TEST_F(FTryTest, AsynchronousStepsReadAsSynchronousOnesDo)
{
	const TVexelTaskResult<int32> Start = TVexelTaskResult<int32>::MakePending();
	bool bOnGameThread = false;
	const TVexelTaskResult<FString> Result =
		Try(Start)
			.Then([](int32 Value)
				{ return VexelTask(EVexelTaskThread::BackgroundThread, [Value]
					  { return Value + 1; }); })
			.ThenOn(EVexelTaskThread::GameThread, [&](int32 Value)
				{ bOnGameThread = IsInGameThread(); return Value * 2; })
			.Then([](int32 Value)
				{ return FString::FromInt(Value); });
	EXPECT_FALSE(Result.IsComplete());
	Start.Complete(20);
	EXPECT_EQ(ToUtf8(Await(Result).GetValue()), "42");
	EXPECT_TRUE(bOnGameThread);
}

TEST_F(FTryTest, SynchronousChainBecomesAsynchronousWhereAStepAnswersATask)
{
	const TVexelTaskResult<int32> Result =
		Try(20).Then([](int32 Value)
				   { return Value + 1; })
			.Then([](int32 Value)
				{ return TVexelTaskResult<int32>(2 * Value); });
	EXPECT_EQ(Result.Value().GetValue(), 42);
	int32 NumCalls = 0;
	const TVexelTaskResult<int32> Failed = Try(Fail(TEXT("m"))).Then([&](int32 Value)
		{ ++NumCalls; return TVexelTaskResult<int32>(Value); });
	EXPECT_TRUE(Failed.Value().GetError().IsA<FVexelError_HttpUnauthorized>());
	const TVexelTaskResult<int32> AsTask = Try(7);
	EXPECT_EQ(AsTask.Value().GetValue(), 7);
	EXPECT_EQ(NumCalls, 0);
}

TEST_F(FTryTest, AsynchronousCatchesFollowTheSameRules)
{
	const TVexelTaskResult<int32> Start = TVexelTaskResult<int32>::MakePending();
	std::string Handlers;
	const TVexelTaskResult<int32> Result =
		Try(Start)
			.Then([&](int32 Value)
				{ Handlers += "never"; return Value; })
			.Catch<FVexelError_HttpCancelled>([&](const FVexelError_HttpCancelled&)
				{ Handlers += "a"; return 1; })
			.Catch<FVexelError_Http>([&](const FVexelError_Http& Error)
				{
					Handlers += "b";
					return VexelTask(EVexelTaskThread::BackgroundThread, [Length = Error.GetMessage().Len()] { return Length; }); })
			.Catch<FVexelError>([&](const FVexelError&)
				{ Handlers += "c"; return 3; })
			.Then([](int32 Length)
				{ return Length * 10; });
	Start.Complete(Fail(TEXT("four")));
	EXPECT_EQ(Await(Result).GetValue(), 40);
	EXPECT_EQ(Handlers, "b");
}

TEST_F(FTryTest, AsynchronousCatchLeavesOtherErrorsAndValuesAlone)
{
	const TVexelTaskResult<int32> Error =
		Try(TVexelTaskResult<int32>(Fail(TEXT("m")))).Catch<FVexelError_Embed>([](const FVexelError_Embed&)
			{ return 1; });
	EXPECT_TRUE(Error.Value().GetError().IsA<FVexelError_HttpUnauthorized>());
	const TVexelTaskResult<int32> Value = Try(TVexelTaskResult<int32>(5)).Catch<FVexelError>([](const FVexelError&)
		{ return 1; });
	EXPECT_EQ(Value.Value().GetValue(), 5);
}

#include "Containers/Ticker.h"
#include "HAL/Event.h"
#include "TaskFixture.h"
#include "VexelRepeat.h"
#include "VexelTask.h"

#include <thread>

namespace
{
using FTasks = FTaskTest;

FVexelError MakeError(const TCHAR* Message)
{
	return VEXEL_ERROR(FVexelError_Embed, "%s", Message);
}

/** Counts the copies of itself that are alive. */
struct FLifeCount
{
	explicit FLifeCount(std::atomic<int32>& InNumAlive)
		: NumAlive(&InNumAlive)
	{
		++*NumAlive;
	}
	FLifeCount(const FLifeCount& Other)
		: NumAlive(Other.NumAlive)
	{
		++*NumAlive;
	}
	~FLifeCount() { --*NumAlive; }

	std::atomic<int32>* NumAlive;
};

void Tick(float Seconds)
{
	FTSTicker::GetCoreTicker().Tick(Seconds);
}
}

TEST(Task, SecondCallerIsToldThatItRunsAndTheFirstIsUndisturbed)
{
	FEventRef Begun;
	FEventRef MayEnd;
	int32 NumRuns = 0;
	TVexelTask<int32> Task([&]() -> TVexelExpected<int32>
		{
			++NumRuns;
			Begun->Trigger();
			MayEnd->Wait();
			return 42; });
	TOptional<TVexelExpected<int32>> First;
	std::thread Thread([&]
		{ First.Emplace(Task.Execute()); });
	Begun->Wait();
	const TVexelExpected<int32> Second = Task.Execute();
	MayEnd->Trigger();
	Thread.join();
	ASSERT_TRUE(Second.HasError());
	EXPECT_TRUE(Second.GetError().IsA<FVexelError_TaskAlreadyRunning>());
	EXPECT_EQ(ToUtf8(Second.GetError().GetTitle()), "Task already running!");
	EXPECT_EQ(First->GetValue(), 42);
	EXPECT_EQ(NumRuns, 1);

	MayEnd->Trigger();
	EXPECT_EQ(Task.Execute().GetValue(), 42) << "a task that has ended can run again";
}

TEST(TaskResult, IsCompletedOnce)
{
	const TVexelTaskResult<int32> Result = TVexelTaskResult<int32>::MakePending();
	std::vector<int32> Seen;
	Result.OnComplete([&](const TVexelExpected<int32>& Value)
		{ Seen.push_back(Value.GetValue()); });
	Result.OnComplete([&](const TVexelExpected<int32>& Value)
		{ Seen.push_back(10 * Value.GetValue()); });
	EXPECT_TRUE(Result.Complete(1));
	EXPECT_FALSE(Result.Complete(2));
	EXPECT_FALSE(Result.Complete(MakeError(TEXT("late"))));
	Result.OnComplete([&](const TVexelExpected<int32>& Value)
		{ Seen.push_back(100 * Value.GetValue()); });
	EXPECT_EQ(Seen, (std::vector<int32>{1, 10, 100})) << "one that is attached afterwards is called at once";
	EXPECT_EQ(Result.Value().GetValue(), 1);
}

TEST(TaskResult, ValueOfNoneAndOfAnUnfinishedOneAreErrors)
{
	const TVexelExpected<int32> None = TVexelTaskResult<int32>().Value();
	EXPECT_TRUE(None.GetError().IsA<FVexelError_TaskInvalid>());
	EXPECT_EQ(ToUtf8(None.GetError().GetTitle()), "Task is invalid!");
	const TVexelExpected<int32> Pending = TVexelTaskResult<int32>::MakePending().Value();
	EXPECT_TRUE(Pending.GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_EQ(ToUtf8(Pending.GetError().GetTitle()), "Task not finished!");
	const TVexelTaskResult<int32> Next = TVexelTaskResult<int32>().Then([](int32 Value)
		{ return Value; });
	EXPECT_TRUE(Next.Value().GetError().IsA<FVexelError_TaskInvalid>());
}

TEST(TaskResult, RacingCompletionsAndContinuationsMeetExactlyOnce)
{
	constexpr int32 NumRounds = 300;
	constexpr int32 NumThreads = 3;
	for (int32 Round = 0; Round < NumRounds; ++Round)
	{
		const TVexelTaskResult<int32> Result = TVexelTaskResult<int32>::MakePending();
		std::atomic<int32> NumWon = 0;
		std::atomic<int32> NumCalled = 0;
		std::atomic<int32> NumReady = 0;
		std::vector<std::thread> Threads;
		for (int32 Index = 0; Index < NumThreads; ++Index)
		{
			Threads.emplace_back([&, Index]
				{
					++NumReady;
					while (NumReady < NumThreads)
					{
					}
					Result.OnComplete([&](const TVexelExpected<int32>&) { ++NumCalled; });
					NumWon += Result.Complete(Index) ? 1 : 0;
					Result.OnComplete([&](const TVexelExpected<int32>&) { ++NumCalled; }); });
		}
		for (std::thread& Thread : Threads)
		{
			Thread.join();
		}
		ASSERT_EQ(NumWon, 1);
		ASSERT_EQ(NumCalled, 2 * NumThreads);
	}
}

TEST(TaskResult, StepThatWillNeverRunFailsAndLetsGoOfWhatItCaptured)
{
	std::atomic<int32> NumAlive = 0;
	TVexelTaskResult<int32> Pending = TVexelTaskResult<int32>::MakePending();
	const TVexelTaskResult<int32> Next = Pending.Then([Life = FLifeCount(NumAlive)](int32 Value)
		{ return Value; });
	TOptional<FVexelErrorKind const*> Seen;
	Pending.OnComplete([&](const TVexelExpected<int32>& Value)
		{ Seen = &Value.GetError().GetKind(); });
	EXPECT_EQ(NumAlive, 1);
	Pending = TVexelTaskResult<int32>();
	EXPECT_TRUE(Next.Value().GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_EQ(Seen, &FVexelError_TaskNotFinished::StaticKind());
	EXPECT_EQ(NumAlive, 0);
}

TEST(TaskResult, StepLetsGoOfWhatItCapturedOnceItRan)
{
	std::atomic<int32> NumAlive = 0;
	const TVexelTaskResult<int32> Pending = TVexelTaskResult<int32>::MakePending();
	const TVexelTaskResult<int32> Next = Pending.Then([Life = FLifeCount(NumAlive)](int32 Value)
		{ return Value + 1; });
	Pending.Complete(1);
	EXPECT_EQ(Next.Value().GetValue(), 2);
	EXPECT_EQ(NumAlive, 0);
}

TEST(TaskResult, ContinuationMayDropTheLastHandle)
{
	TVexelTaskResult<FString> Result = TVexelTaskResult<FString>::MakePending();
	std::string Seen;
	Result.OnComplete([&](const TVexelExpected<FString>& Value)
		{
			Result = TVexelTaskResult<FString>();
			Seen = ToUtf8(Value.GetValue()); });
	Result.Complete(FString(TEXT("a text long enough to live on the heap")));
	EXPECT_EQ(Seen, "a text long enough to live on the heap");
}

TEST(TaskResultDeathTest, CompletingNoneIsAFault)
{
	EXPECT_DEATH(TVexelTaskResult<int32>().Complete(1), "refers to no task was completed");
}

TEST_F(FTasks, ContinuationsRunInTheScopeInWhichTheyWereAttached)
{
	const TVexelTaskResult<int32> Result = TVexelTaskResult<int32>::MakePending();
	std::vector<std::string> Scopes;
	const auto Note = [&]
	{ Scopes.push_back(ToUtf8(FVexelErrorContext::Capture().ToString())); };
	TVexelTaskResult<void> Last;
	{
		const FVexelErrorContextScope Scope(TEXT("chat"));
		Result.OnComplete([&](const TVexelExpected<int32>&)
			{ Note(); });
		Last = Result.Then([&](int32)
						 { Note(); })
				   .ThenOn(EVexelTaskThread::BackgroundThread, [&]
					   { Note(); });
	}
	{
		const FVexelErrorContextScope Scope(TEXT("elsewhere"));
		Result.Complete(1);
		EXPECT_EQ(ToUtf8(FVexelErrorContext::Capture().ToString()), "elsewhere") << "the completing thread's own scope is back";
	}
	EXPECT_TRUE(Await(Last).HasValue());
	EXPECT_THAT(Scopes, testing::ElementsAre("chat", "chat", "chat"));
}

TEST_F(FTasks, WorkRunsOnTheThreadThatIsNamed)
{
	const TVexelTaskResult<bool> Background = VexelTask(EVexelTaskThread::BackgroundThread, []
		{ return IsInGameThread(); });
	EXPECT_FALSE(Await(Background).GetValue());
	const TVexelTaskResult<bool> Game = Background.ThenOn(EVexelTaskThread::GameThread, [](bool)
		{ return IsInGameThread(); });
	EXPECT_FALSE(Game.IsComplete()) << "never before the call returns";
	EXPECT_TRUE(Await(Game).GetValue());
}

TEST(TasksAtTheEnd, WorkThatTheThreadsDropIsToldToThoseWhoWait)
{
	FTaskGraphInterface::Startup();
	const TVexelTaskResult<int32> Dropped = VexelTask(EVexelTaskThread::GameThread, []
		{ return 1; });
	const TVexelTaskResult<int32> After = Dropped.Then([](int32 Value)
		{ return Value; });
	FTaskGraphInterface::Shutdown();
	EXPECT_TRUE(Dropped.Value().GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_TRUE(After.Value().GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_TRUE(VexelTask(EVexelTaskThread::BackgroundThread, []
		{ return 1; })
					.Value()
					.GetError()
					.IsA<FVexelError_TaskNotFinished>());
}

TEST_F(FTasks, CollectionHoldsEachResultInTheOrderOfTheInputs)
{
	const TVexelTaskResult<int32> Slow = TVexelTaskResult<int32>::MakePending();
	const TVexelTaskResult<TArray<TVexelExpected<int32>>> All =
		VexelTaskCollectAll(TArray<TVexelTaskResult<int32>>{Slow, TVexelTaskResult<int32>(MakeError(TEXT("bad"))), TVexelTaskResult<int32>(3)});
	EXPECT_FALSE(All.IsComplete());
	Slow.Complete(1);
	const TVexelExpected<TArray<TVexelExpected<int32>>> Collected = All.Value();
	ASSERT_EQ(Collected.GetValue().Num(), 3);
	EXPECT_EQ(Collected.GetValue()[0].GetValue(), 1);
	EXPECT_TRUE(Collected.GetValue()[1].GetError().IsA<FVexelError_Embed>());
	EXPECT_EQ(Collected.GetValue()[2].GetValue(), 3);
}

TEST_F(FTasks, CollectionOfInputsThatNeverCompleteHoldsErrorsAndLogsThem)
{
	const FLogCapture Log;
	TVexelTaskResult<int32> Dropped = TVexelTaskResult<int32>::MakePending();
	const auto All = TVexelTaskResult<int32>::OnCompleteAll({TVexelTaskResult<int32>(), Dropped, TVexelTaskResult<int32>(3)});
	EXPECT_FALSE(All.IsComplete());
	Dropped = TVexelTaskResult<int32>();
	ASSERT_TRUE(All.IsComplete());
	const TVexelExpected<TArray<TVexelExpected<int32>>> Collected = All.Value();
	EXPECT_TRUE(Collected.GetValue()[0].GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_TRUE(Collected.GetValue()[1].GetError().IsA<FVexelError_TaskNotFinished>());
	EXPECT_EQ(Collected.GetValue()[2].GetValue(), 3);
	const std::vector<FLogCapture::FLine> Lines = Log.GetLines();
	ASSERT_EQ(Lines.size(), 2u) << Log.ToText();
	EXPECT_THAT(Lines[0].Text, testing::MatchesRegex("\\[VexelTask:[0-9]+\\] Warning: `OnCompleteAll` Task did not complete properly!"));
}

TEST_F(FTasks, CollectionSlotOutsideTheInputsIsLoggedAndChangesNothing)
{
	const FLogCapture Log;
	VexelInternal::TCollection<TArray<int32>> Collection(2, {0, 0});
	Collection.CompleteSlot(2, [](TArray<int32>& Slots)
		{ Slots[0] = 9; });
	Collection.CompleteSlot(-1, [](TArray<int32>& Slots)
		{ Slots[0] = 9; });
	Collection.CompleteSlot(0, [](TArray<int32>& Slots)
		{ Slots[0] = 1; });
	Collection.CompleteSlot(0, [](TArray<int32>& Slots)
		{ Slots[0] = 9; });
	EXPECT_FALSE(Collection.Result.IsComplete());
	Collection.CompleteSlot(1, [](TArray<int32>& Slots)
		{ Slots[1] = 2; });
	EXPECT_EQ(Collection.Result.Value().GetValue(), (TArray<int32>{1, 2}));
	ASSERT_EQ(Log.GetLines().size(), 2u);
	EXPECT_THAT(Log.GetLines()[0].Text, testing::MatchesRegex("\\[VexelTask:[0-9]+\\] CRITICAL: `OnCompleteAll` Invalid task index 2"));
}

TEST_F(FTasks, CollectionOfNothingIsCompleteAndEmpty)
{
	const auto All = VexelTaskCollectAll(TArray<TVexelTaskResult<int32>>());
	ASSERT_TRUE(All.IsComplete());
	EXPECT_TRUE(All.Value().GetValue().IsEmpty());
}

TEST_F(FTasks, CollectionOfSeveralTypesIsATuple)
{
	const TVexelTaskResult<int32> Number = VexelTask(EVexelTaskThread::BackgroundThread, []
		{ return 7; });
	const TVexelTaskResult<FString> Text = MakeError(TEXT("no text"));
	const TVexelTaskResult<void> Nothing = VexelTask(EVexelTaskThread::GameThread, [] {});
	const auto Collected = Await(VexelTaskCollectAll(Number, Text, Nothing));
	EXPECT_EQ(Collected.GetValue().Get<0>().GetValue(), 7);
	EXPECT_EQ(ToUtf8(Collected.GetValue().Get<1>().GetError().GetMessage()), "no text");
	EXPECT_TRUE(Collected.GetValue().Get<2>().HasValue());
}

TEST_F(FTasks, CollectionTakesInputsFromManyThreads)
{
	constexpr int32 NumInputs = 200;
	TArray<TVexelTaskResult<int32>> Inputs;
	for (int32 Index = 0; Index < NumInputs; ++Index)
	{
		Inputs.Add(VexelTask(EVexelTaskThread::BackgroundThread, [Index]
			{ return Index * Index; }));
	}
	const auto Collected = Await(VexelTaskCollectAll(Inputs));
	ASSERT_EQ(Collected.GetValue().Num(), NumInputs);
	for (int32 Index = 0; Index < NumInputs; ++Index)
	{
		ASSERT_EQ(Collected.GetValue()[Index].GetValue(), Index * Index);
	}
}

TEST_F(FTasks, RepetitionGoesOnWhileItsPredicateHolds)
{
	int32 NumRuns = 0;
	int32 NumRepeats = 0;
	const TVexelTaskResult<int32> Result = VexelRepeat<int32>([&]
		{ return TVexelTaskResult<int32>(++NumRuns); })
											   .While([](const TVexelExpected<int32>& Latest)
												   { return Latest.GetValue() < 100'000; })
											   .OnRepeat([&]
												   { ++NumRepeats; })
											   .Flush();
	EXPECT_EQ(Result.Value().GetValue(), 100'000) << "runs that complete at once do not pile up on the stack";
	EXPECT_EQ(NumRepeats, 99'999);
}

TEST_F(FTasks, RepetitionWithoutATraitRunsOnce)
{
	int32 NumRuns = 0;
	const TVexelTaskResult<int32> Result = VexelRepeat<int32>([&]
		{ return TVexelTaskResult<int32>(++NumRuns); });
	EXPECT_EQ(Result.Value().GetValue(), 1);
}

TEST_F(FTasks, RepetitionMayGoOnThroughErrorsAndAcrossThreads)
{
	std::atomic<int32> NumRuns = 0;
	const TVexelTaskResult<int32> Result = VexelRepeat<int32>([&]
		{ return VexelTask(EVexelTaskThread::BackgroundThread,
			  [&]() -> TVexelExpected<int32>
			  {
				  if (++NumRuns < 50)
				  {
					  return MakeError(TEXT("not yet"));
				  }
				  return 5;
			  }); })
											   .While([](const TVexelExpected<int32>& Latest)
												   { return Latest.HasError(); })
											   .Flush();
	EXPECT_EQ(Await(Result).GetValue(), 5);
	EXPECT_EQ(NumRuns, 50);
}

TEST_F(FTasks, RepetitionWaitsOnTheTicksClock)
{
	int32 NumRuns = 0;
	std::vector<std::string> Scopes;
	TVexelTaskResult<int32> Result;
	{
		const FVexelErrorContextScope Scope(TEXT("polling"));
		Result = VexelRepeat<int32>([&]
			{
				Scopes.push_back(ToUtf8(FVexelErrorContext::Capture().ToString()));
				return TVexelTaskResult<int32>(++NumRuns); })
					 .While([](const TVexelExpected<int32>& Latest)
						 { return Latest.GetValue() < 3; })
					 .DelayRepeat(5.0f)
					 .Flush();
	}
	EXPECT_EQ(NumRuns, 1) << "the first run does not wait";
	Tick(4.9f);
	EXPECT_EQ(NumRuns, 1);
	Tick(0.2f);
	EXPECT_EQ(NumRuns, 2);
	Tick(4.5f);
	EXPECT_EQ(NumRuns, 2) << "the time counts from the result before";
	Tick(0.6f);
	EXPECT_EQ(NumRuns, 3);
	EXPECT_EQ(Result.Value().GetValue(), 3);
	Tick(60.0f);
	EXPECT_EQ(NumRuns, 3);
	EXPECT_THAT(Scopes, testing::Each("polling"));
}

TEST_F(FTasks, RepetitionWhoseTickerIsDroppedFails)
{
	const TVexelTaskResult<int32> Result = VexelRepeat<int32>([]
		{ return TVexelTaskResult<int32>(1); })
											   .While([](const TVexelExpected<int32>&)
												   { return true; })
											   .DelayRepeat(5.0f)
											   .Flush();
	FTSTicker::GetCoreTicker().Reset();
	EXPECT_TRUE(Result.Value().GetError().IsA<FVexelError_TaskNotFinished>());
}

TEST(RepeatDeathTest, BuilderIsFlushedOnce)
{
	const auto FlushTwice = []
	{
		auto Builder = VexelRepeat<int32>([]
			{ return TVexelTaskResult<int32>(1); });
		const TVexelTaskResult<int32> First = Builder.Flush();
		const TVexelTaskResult<int32> Second = Builder.Flush();
	};
	EXPECT_DEATH(FlushTwice(), "Already flushed");
}

#include "TimerManager.h"

#include <gtest/gtest.h>

namespace
{
TEST(TimerManager, ATimerFiresOnceWhenItsTimeIsOver)
{
	FTimerManager Timers;
	FTimerHandle Handle;
	int32 Calls = 0;
	Timers.SetTimer(
		Handle, [&Calls]
		{ ++Calls; },
		1.0f);
	Timers.Tick(0.5f);
	EXPECT_EQ(Calls, 0);
	EXPECT_FLOAT_EQ(Timers.GetTimerRemaining(Handle), 0.5f);
	Timers.Tick(0.5f);
	EXPECT_EQ(Calls, 1);
	EXPECT_FALSE(Timers.IsTimerActive(Handle));
	Timers.Tick(5.0f);
	EXPECT_EQ(Calls, 1);
}

TEST(TimerManager, ALoopingTimerFiresOnceForEachPeriodOfALongTick)
{
	FTimerManager Timers;
	FTimerHandle Handle;
	int32 Calls = 0;
	Timers.SetTimer(
		Handle, [&Calls]
		{ ++Calls; },
		1.0f, true);
	Timers.Tick(3.5f);
	EXPECT_EQ(Calls, 3);
}

TEST(TimerManager, TimersFireInTheOrderOfTheirTimes)
{
	FTimerManager Timers;
	FTimerHandle Late;
	FTimerHandle Early;
	TArray<int32> Order;
	Timers.SetTimer(
		Late, [&Order]
		{ Order.Add(2); },
		2.0f);
	Timers.SetTimer(
		Early, [&Order]
		{ Order.Add(1); },
		1.0f);
	Timers.Tick(3.0f);
	EXPECT_EQ(Order, (TArray<int32>{1, 2}));
}

TEST(TimerManager, ATimerMayClearItselfAndOthersWhileItRuns)
{
	FTimerManager Timers;
	FTimerHandle Looping;
	FTimerHandle Other;
	int32 Calls = 0;
	Timers.SetTimer(
		Other, [&Calls]
		{ Calls += 100; },
		2.0f);
	Timers.SetTimer(
		Looping,
		[&]
		{
			++Calls;
			Timers.ClearTimer(Looping);
			Timers.ClearTimer(Other);
		},
		1.0f, true);
	Timers.Tick(5.0f);
	EXPECT_EQ(Calls, 1);
}

TEST(TimerManager, ATimerForTheNextTickThatAsksAgainWaitsForTheTickAfter)
{
	FTimerManager Timers;
	int32 Calls = 0;
	TFunction<void()> Again = [&]
	{
		++Calls;
		Timers.SetTimerForNextTick(TFunction<void()>(Again));
	};
	Timers.SetTimerForNextTick(TFunction<void()>(Again));
	Timers.Tick(0.0f);
	EXPECT_EQ(Calls, 1);
	Timers.Tick(0.0f);
	EXPECT_EQ(Calls, 2);
}
}

#include "VexelErrorKinds.h"
#include "VexelTask.h"
#include "VexelTry.h"

#include <benchmark/benchmark.h>
#include <future>

namespace
{
constexpr int32 NumSteps = 10;

/** What each step of every chain does: too little to matter, too much to be folded away. */
__attribute__((noinline)) int32 Step(int32 Value)
{
	benchmark::DoNotOptimize(Value);
	return Value + 1;
}

/** A pending result with ten continuations, one of the other, and then its completion. */
void ChainOfContinuations(benchmark::State& State)
{
	for (auto _ : State)
	{
		const TVexelTaskResult<int32> Start = TVexelTaskResult<int32>::MakePending();
		TVexelTaskResult<int32> Last = Start;
		for (int32 Index = 0; Index < NumSteps; ++Index)
		{
			Last = Last.Then([](int32 Value)
				{ return Step(Value); });
		}
		Start.Complete(0);
		benchmark::DoNotOptimize(Last.Value().GetValue());
	}
}

/** The peer has no continuations: each step waits on the future before it, which is complete, and completes the promise of the next. */
void ChainOfFutures(benchmark::State& State)
{
	for (auto _ : State)
	{
		std::promise<int32> Start;
		std::future<int32> Last = Start.get_future();
		Start.set_value(0);
		for (int32 Index = 0; Index < NumSteps; ++Index)
		{
			std::promise<int32> Next;
			std::future<int32> NextFuture = Next.get_future();
			Next.set_value(Step(Last.get()));
			Last = std::move(NextFuture);
		}
		benchmark::DoNotOptimize(Last.get());
	}
}

void ChainOfCalls(benchmark::State& State)
{
	for (auto _ : State)
	{
		int32 Value = 0;
		for (int32 Index = 0; Index < NumSteps; ++Index)
		{
			Value = Step(Value);
		}
		benchmark::DoNotOptimize(Value);
	}
}

__attribute__((noinline)) TVexelExpected<int32> FallibleStep(int32 Value)
{
	if (Value < 0)
	{
		return VEXEL_ERROR(FVexelError_Task, "%d is negative", Value);
	}
	return Step(Value);
}

TVexelExpected<int32> TenFallibleSteps(int32 Start)
{
	VEXEL_TRY(const int32 Value1, FallibleStep(Start));
	VEXEL_TRY(const int32 Value2, FallibleStep(Value1));
	VEXEL_TRY(const int32 Value3, FallibleStep(Value2));
	VEXEL_TRY(const int32 Value4, FallibleStep(Value3));
	VEXEL_TRY(const int32 Value5, FallibleStep(Value4), "while running step %d", 5);
	VEXEL_TRY(const int32 Value6, FallibleStep(Value5));
	VEXEL_TRY(const int32 Value7, FallibleStep(Value6));
	VEXEL_TRY(const int32 Value8, FallibleStep(Value7));
	VEXEL_TRY(const int32 Value9, FallibleStep(Value8));
	return FallibleStep(Value9);
}

void ChainOfExpected(benchmark::State& State)
{
	for (auto _ : State)
	{
		benchmark::DoNotOptimize(TenFallibleSteps(0).GetValue());
	}
}

/** The peer's step: an error code, and the value through a reference. */
__attribute__((noinline)) int32 CodedStep(int32 Value, int32& OutValue)
{
	if (Value < 0)
	{
		return 1;
	}
	OutValue = Step(Value);
	return 0;
}

void ChainOfErrorCodes(benchmark::State& State)
{
	for (auto _ : State)
	{
		int32 Value = 0;
		for (int32 Index = 0; Index < NumSteps; ++Index)
		{
			if (CodedStep(Value, Value) != 0)
			{
				State.SkipWithError("a step failed");
				return;
			}
		}
		benchmark::DoNotOptimize(Value);
	}
}
}

BENCHMARK(ChainOfContinuations)->Name("TaskChain/Ours");
BENCHMARK(ChainOfFutures)->Name("TaskChain/Peer:std_future");
BENCHMARK(ChainOfCalls)->Name("TaskChain/Peer:plain_calls");
BENCHMARK(ChainOfExpected)->Name("ExpectedChain/Ours");
BENCHMARK(ChainOfErrorCodes)->Name("ExpectedChain/Peer:error_codes");

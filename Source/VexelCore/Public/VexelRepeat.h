#pragma once

#include "CoreMinimal.h"
#include "Containers/Ticker.h"
#include "VexelTask.h"

#include <atomic>

/** Ends after the first run. */
struct FVexelRepeatOnceTrait
{
	template <typename T>
	bool ShouldRepeat(const TVexelExpected<T>&)
	{
		return false;
	}
	void OnRepeat() {}
};

/** Repeats while a predicate holds for the latest result, an error too. */
template <typename PredicateType, typename InnerTrait>
struct TWhileTrait
{
	PredicateType Predicate;
	InnerTrait Inner;

	template <typename T>
	bool ShouldRepeat(const TVexelExpected<T>& Latest)
	{
		return Predicate(Latest);
	}
	void OnRepeat() { Inner.OnRepeat(); }
};

/** Calls a function before each repetition. */
template <typename CallbackType, typename InnerTrait>
struct TOnRepeatTrait
{
	CallbackType Callback;
	InnerTrait Inner;

	template <typename T>
	bool ShouldRepeat(const TVexelExpected<T>& Latest)
	{
		return Inner.ShouldRepeat(Latest);
	}
	void OnRepeat()
	{
		Inner.OnRepeat();
		Callback();
	}
};

namespace VexelInternal
{
/** One repetition under way, kept alive by whatever it waits for: a run's result or a ticker. */
template <typename T, typename TraitType>
class TRepetition : public TSharedFromThis<TRepetition<T, TraitType>>
{
public:
	TRepetition(TUniqueFunction<TVexelTaskResult<T>()>&& InFunction, TraitType&& InTrait, float InDelaySeconds)
		: Function(MoveTemp(InFunction))
		, Trait(MoveTemp(InTrait))
		, DelaySeconds(InDelaySeconds)
		, Result(TVexelTaskResult<T>::MakePending())
		, Context(FVexelErrorContext::Capture())
	{
	}

	/** Nothing will start the next run: a ticker was dropped. Whoever waits for the result is told so. */
	~TRepetition()
	{
		if (!Result.IsComplete())
		{
			Result.Complete(MakeDroppedError());
		}
	}

	UE_NONCOPYABLE(TRepetition)

	/** Runs until a run does not complete at once. A loop, because runs that do complete at once must not pile up on the stack. */
	void Run()
	{
		EState Reached = EState::Running;
		do
		{
			State = EState::Running;
			Reached = EState::Running;
			Function().OnComplete([This = this->AsShared()](const TVexelExpected<T>& Latest)
				{ This->OnRunComplete(Latest); });
			// Only a run that completed at once and wants another is this loop's; after any other, State belongs to its completion.
			if (State.compare_exchange_strong(Reached, EState::Waiting))
			{
				return;
			}
		} while (Reached == EState::RunAgain);
	}

	TVexelTaskResult<T> GetResult() const { return Result; }

private:
	enum class EState : uint8
	{
		Running,
		/** The run did not complete at once; its completion starts the next one. */
		Waiting,
		RunAgain,
		Finished
	};

	void OnRunComplete(const TVexelExpected<T>& Latest)
	{
		if (!Trait.ShouldRepeat(Latest))
		{
			State = EState::Finished;
			Result.Complete(Latest);
			return;
		}
		if (DelaySeconds > 0.0f)
		{
			State = EState::Finished;
			FTSTicker::GetCoreTicker().AddTicker(FTickerDelegate::CreateLambda([This = this->AsShared()](float)
													 {
					FVexelErrorContextRestore Restore(This->Context);
					This->Trait.OnRepeat();
					This->Run();
					return false; }),
				DelaySeconds);
			return;
		}
		Trait.OnRepeat();
		if (State.exchange(EState::RunAgain) == EState::Waiting)
		{
			Run();
		}
	}

	TUniqueFunction<TVexelTaskResult<T>()> Function;
	TraitType Trait;
	float DelaySeconds;
	TVexelTaskResult<T> Result;
	FVexelErrorContext Context;
	std::atomic<EState> State = EState::Running;
};
}

/**
 * Repeats a function that starts a task until its trait is content, as polling does:
 *
 *     VexelRepeat<FStatus>([] { return FetchStatus(); })
 *         .While([](const TVexelExpected<FStatus>& Latest) { return Latest && Latest.GetValue().bPending; })
 *         .DelayRepeat(5.0f)
 *         .Flush();
 *
 * There is no limit on the number of runs but the trait's. Repetitions without a delay run on the thread that completes the run
 * before; with a delay they run on the game thread, on the tick's clock.
 */
template <typename T, typename Trait>
class [[nodiscard]] TVexelRepeatBuilder
{
public:
	TVexelRepeatBuilder(TUniqueFunction<TVexelTaskResult<T>()>&& InFunction, Trait&& InTrait, float InDelaySeconds)
		: Function(MoveTemp(InFunction))
		, RepeatTrait(MoveTemp(InTrait))
		, DelaySeconds(InDelaySeconds)
	{
	}

	template <typename PredicateType>
	auto While(PredicateType&& Predicate)
	{
		return WithTrait(TWhileTrait<std::decay_t<PredicateType>, Trait>{Forward<PredicateType>(Predicate), TakeTrait()});
	}

	template <typename CallbackType>
	auto OnRepeat(CallbackType&& Callback)
	{
		return WithTrait(TOnRepeatTrait<std::decay_t<CallbackType>, Trait>{Forward<CallbackType>(Callback), TakeTrait()});
	}

	/** Waits that long after a result before the next run. */
	TVexelRepeatBuilder DelayRepeat(float Seconds)
	{
		return TVexelRepeatBuilder(MoveTemp(Function), TakeTrait(), Seconds);
	}

	/** Starts the first run on this thread. Once. */
	TVexelTaskResult<T> Flush()
	{
		const auto Repetition = MakeShared<VexelInternal::TRepetition<T, Trait>>(MoveTemp(Function), TakeTrait(), DelaySeconds);
		const TVexelTaskResult<T> Result = Repetition->GetResult();
		Repetition->Run();
		return Result;
	}

	operator TVexelTaskResult<T>() { return Flush(); }

private:
	Trait&& TakeTrait()
	{
		checkf(!bFlushed, TEXT("Already flushed"));
		bFlushed = true;
		return MoveTemp(RepeatTrait);
	}

	template <typename NextTrait>
	TVexelRepeatBuilder<T, NextTrait> WithTrait(NextTrait&& Next)
	{
		return TVexelRepeatBuilder<T, NextTrait>(MoveTemp(Function), MoveTemp(Next), DelaySeconds);
	}

	TUniqueFunction<TVexelTaskResult<T>()> Function;
	Trait RepeatTrait;
	float DelaySeconds;
	bool bFlushed = false;
};

template <typename T>
TVexelRepeatBuilder<T, FVexelRepeatOnceTrait> VexelRepeat(TUniqueFunction<TVexelTaskResult<T>()> Function)
{
	return TVexelRepeatBuilder<T, FVexelRepeatOnceTrait>(MoveTemp(Function), FVexelRepeatOnceTrait(), 0.0f);
}

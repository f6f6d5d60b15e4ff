#pragma once

#include "CoreMinimal.h"
#include "Containers/Array.h"
#include "HAL/CriticalSection.h"
#include "Misc/Optional.h"
#include "Misc/ScopeLock.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "VexelErrorContext.h"
#include "VexelErrorKinds.h"
#include "VexelExpected.h"
#include "VexelTaskManager.h"

#include <atomic>

template <typename T>
class TVexelTaskResult;

namespace VexelInternal
{
/** What a step may answer (U, TVexelExpected<U>, TVexelTaskResult<U>, nothing), and the U that the chain goes on with. */
template <typename R>
struct TStepAnswer
{
	using ValueType = R;
	static constexpr bool bAsynchronous = false;
	static_assert(!CVexelError<R>, "A step that always fails has no value type: answer TVexelExpected<T> with the error in it");
};
template <typename U>
struct TStepAnswer<TVexelExpected<U>>
{
	using ValueType = U;
	static constexpr bool bAsynchronous = false;
};
template <typename U>
struct TStepAnswer<TVexelTaskResult<U>>
{
	using ValueType = U;
	static constexpr bool bAsynchronous = true;
};

template <typename T, typename FunctionType>
struct TStepTraits
{
	using Answer = TStepAnswer<std::remove_cvref_t<std::invoke_result_t<FunctionType&, const T&>>>;
};
template <typename FunctionType>
struct TStepTraits<void, FunctionType>
{
	using Answer = TStepAnswer<std::remove_cvref_t<std::invoke_result_t<FunctionType&>>>;
};

/** Calls a step with the value of a successful result; what it answers comes back unchanged. */
template <typename T, typename FunctionType>
decltype(auto) InvokeStep(FunctionType& Function, const TVexelExpected<T>& Input)
{
	if constexpr (std::is_void_v<T>)
	{
		return Function();
	}
	else
	{
		return Function(Input.GetValue());
	}
}

/** The step's answer as an expected value; a step without a value answers success. Not for asynchronous steps. */
template <typename U, typename CallType>
TVexelExpected<U> ToExpected(CallType&& Call)
{
	if constexpr (std::is_void_v<decltype(Call())>)
	{
		Call();
		return TVexelExpected<void>();
	}
	else
	{
		return TVexelExpected<U>(Call());
	}
}

/** One who waits for a value. The state that is waited for owns it. */
template <typename T>
class TContinuation
{
public:
	virtual ~TContinuation() = default;
	/** Called once, with the value or with why none comes. Self is what keeps this alive. */
	virtual void Run(const TSharedPtr<TContinuation>& Self, const TVexelExpected<T>& Value) = 0;
};

/** Told to those who wait for work that will not be done. */
inline FVexelError MakeDroppedError()
{
	return VEXEL_ERROR(FVexelError_TaskNotFinished, "The task was dropped before it finished");
}

/** The value, its lock and those who wait for it; shared by all copies of a result. */
template <typename T>
class TVexelTaskState
{
public:
	using FExpected = TVexelExpected<T>;
	using FContinuationPtr = TSharedPtr<TContinuation<T>>;

	TVexelTaskState() = default;
	explicit TVexelTaskState(FExpected&& InValue)
		: Value(MoveTemp(InValue))
		, bComplete(true)
	{
	}

	/** Whoever still waits for work that was dropped unfinished is told so. */
	~TVexelTaskState()
	{
		if (First)
		{
			Run(First, Others, MakeDroppedError());
		}
	}

	UE_NONCOPYABLE(TVexelTaskState)

	bool Complete(FExpected&& InValue)
	{
		FContinuationPtr ReadyFirst;
		TArray<FContinuationPtr> ReadyOthers;
		{
			FScopeLock Guard(&Lock);
			if (bComplete.load(std::memory_order_relaxed))
			{
				return false;
			}
			Value.Emplace(MoveTemp(InValue));
			ReadyFirst = MoveTemp(First);
			ReadyOthers = MoveTemp(Others);
			// From here on the value never changes, so that whoever sees the flag reads it without the lock.
			bComplete.store(true, std::memory_order_release);
		}
		if (ReadyFirst)
		{
			Run(ReadyFirst, ReadyOthers, *Value);
		}
		return true;
	}

	void OnComplete(FContinuationPtr&& Continuation)
	{
		if (!Enqueue(Continuation))
		{
			Continuation->Run(Continuation, *Value);
		}
	}

	/** Null until the value is there. */
	const FExpected* Peek() const { return bComplete.load(std::memory_order_acquire) ? &*Value : nullptr; }

private:
	/** False, and the continuation still the caller's, when the value is there already. */
	bool Enqueue(FContinuationPtr& Continuation)
	{
		if (Peek())
		{
			return false;
		}
		FScopeLock Guard(&Lock);
		if (bComplete.load(std::memory_order_relaxed))
		{
			return false;
		}
		if (First)
		{
			Others.Add(MoveTemp(Continuation));
		}
		else
		{
			First = MoveTemp(Continuation);
		}
		return true;
	}

	static void Run(const FContinuationPtr& ReadyFirst, const TArray<FContinuationPtr>& ReadyOthers, const FExpected& Value)
	{
		ReadyFirst->Run(ReadyFirst, Value);
		for (const FContinuationPtr& Continuation : ReadyOthers)
		{
			Continuation->Run(Continuation, Value);
		}
	}

	FCriticalSection Lock;
	TOptional<FExpected> Value;
	std::atomic<bool> bComplete = false;
	/** Most results have one continuation, which needs no array. */
	FContinuationPtr First;
	TArray<FContinuationPtr> Others;
};

/** A function that waits for a value. */
template <typename T, typename FunctionType>
class TFunctionContinuation final : public TContinuation<T>
{
public:
	template <typename ArgumentType>
	explicit TFunctionContinuation(ArgumentType&& InFunction)
		: Function(Forward<ArgumentType>(InFunction))
		, Context(FVexelErrorContext::Capture())
	{
	}

	virtual void Run(const TSharedPtr<TContinuation<T>>&, const TVexelExpected<T>& Value) override
	{
		FVexelErrorContextRestore Restore(Context);
		Function(Value);
	}

private:
	FunctionType Function;
	FVexelErrorContext Context;
};

/**
 * A step of a chain: waits for a T and is, in the same allocation, the state of the U that its function makes of it. The function
 * is destroyed as soon as it was called or can no longer be, so that what it captured does not live as long as the result.
 */
template <typename T, typename U, typename FunctionType>
class TStep final : public TContinuation<T>, public TVexelTaskState<U>
{
public:
	template <typename ArgumentType>
	TStep(TOptional<EVexelTaskThread> InThread, ArgumentType&& InFunction)
		: Function(InPlace, Forward<ArgumentType>(InFunction))
		, Context(FVexelErrorContext::Capture())
		, Thread(InThread)
	{
	}

	virtual void Run(const TSharedPtr<TContinuation<T>>& Self, const TVexelExpected<T>& Input) override
	{
		const TSharedPtr<TStep> This = StaticCastSharedPtr<TStep>(Self);
		if (Input.HasError())
		{
			Fail(Input.GetError());
		}
		else if (Thread)
		{
			FVexelTaskManager::ScheduleFunc(*Thread, [Scheduled = FScheduled(This, Input)]() mutable
				{ Scheduled.Run(); });
		}
		else
		{
			Call(This, Input);
		}
	}

private:
	/** A call on its way to another thread. When it is dropped on the way, the step fails. */
	class FScheduled
	{
	public:
		FScheduled(const TSharedPtr<TStep>& InStep, const TVexelExpected<T>& InInput)
			: Step(InStep)
			, Input(InInput)
		{
		}
		FScheduled(FScheduled&&) = default;
		~FScheduled()
		{
			if (Step)
			{
				Step->Fail(MakeDroppedError());
			}
		}

		void Run()
		{
			const TSharedPtr<TStep> Called = MoveTemp(Step);
			Called->Call(Called, Input);
		}

	private:
		TSharedPtr<TStep> Step;
		TVexelExpected<T> Input;
	};

	void Fail(const FVexelError& Error)
	{
		Function.Reset();
		this->Complete(TVexelExpected<U>(Error));
	}

	void Call(const TSharedPtr<TStep>& This, const TVexelExpected<T>& Input)
	{
		if constexpr (TStepTraits<T, FunctionType>::Answer::bAsynchronous)
		{
			const TVexelTaskResult<U> Answer = CallInContext([&]
				{ return InvokeStep<T>(*Function, Input); });
			Answer.ForwardTo(TVexelTaskResult<U>::FromState(This));
		}
		else
		{
			this->Complete(CallInContext([&]
				{ return ToExpected<U>([&]() -> decltype(auto)
					  { return InvokeStep<T>(*Function, Input); }); }));
		}
	}

	template <typename CallType>
	auto CallInContext(CallType&& DoCall)
	{
		FVexelErrorContextRestore Restore(Context);
		auto Answer = DoCall();
		Function.Reset();
		return Answer;
	}

	TOptional<FunctionType> Function;
	FVexelErrorContext Context;
	TOptional<EVexelTaskThread> Thread;
};
}

/**
 * The one future value of asynchronous work. Copies share it; any thread may complete it, wait on it or read it. A result made
 * by the default constructor refers to no task. A continuation runs once: where it names a thread, there; else on the thread
 * that completes the result, or in the call that attaches it when the result is complete already. A continuation attached
 * inside an error-context scope runs in that scope. Work dropped unfinished completes its waiters with
 * FVexelError_TaskNotFinished, so no chain waits for ever.
 */
template <typename T>
class [[nodiscard]] TVexelTaskResult
{
public:
	using ValueType = T;
	using FExpected = TVexelExpected<T>;

	TVexelTaskResult() = default;

	/** Complete from the start. */
	template <typename U>
	requires(std::is_constructible_v<FExpected, U&&> && !std::is_same_v<std::remove_cvref_t<U>, TVexelTaskResult>)
		TVexelTaskResult(U&& Value)
		: State(MakeShared<FState>(FExpected(Forward<U>(Value))))
	{
	}

	/** A result that waits for Complete(). */
	static TVexelTaskResult MakePending()
	{
		return FromState(MakeShared<FState>());
	}

	bool IsValid() const { return State.IsValid(); }
	bool IsComplete() const { return State && State->Peek(); }

	/** Fills the value. The first call wins; a later one changes nothing and answers false. */
	bool Complete(FExpected Value) const
	{
		checkf(State, TEXT("A task result that refers to no task was completed"));
		// Those who wait may drop the last handle, this one too.
		const TSharedPtr<FState> Completed = State;
		return Completed->Complete(MoveTemp(Value));
	}

	/** Calls the function with the value, an error too. */
	template <typename FunctionType>
	requires(std::is_invocable_v<std::decay_t<FunctionType>&, const FExpected&>) void OnComplete(FunctionType&& Function) const
	{
		const TSharedPtr<FState> Waited = State;
		if (const FExpected* const Found = Waited ? Waited->Peek() : nullptr)
		{
			Function(*Found);
			return;
		}
		Attach(MakeShared<VexelInternal::TFunctionContinuation<T, std::decay_t<FunctionType>>>(Forward<FunctionType>(Function)));
	}

	/** A copy of the value, or FVexelError_TaskInvalid, or FVexelError_TaskNotFinished. Does not wait. */
	FExpected Value() const
	{
		if (!State)
		{
			return MakeInvalid();
		}
		if (const FExpected* Found = State->Peek())
		{
			return *Found;
		}
		return VEXEL_ERROR(FVexelError_TaskNotFinished, "");
	}

	/**
	 * Goes on with a function of the value, which answers a plain value, a TVexelExpected, a TVexelTaskResult or nothing.
	 * An error skips the function and passes on unchanged.
	 */
	template <typename FunctionType>
	auto Then(FunctionType&& Function) const
	{
		return AttachStep(NullOpt, Forward<FunctionType>(Function));
	}

	/** The same, with the function run on a thread. It is given a copy of the value. */
	template <typename FunctionType>
	auto ThenOn(EVexelTaskThread Thread, FunctionType&& Function) const
	{
		return AttachStep(Thread, Forward<FunctionType>(Function));
	}

	/** Collects several results into one, as VexelTaskCollectAll in VexelTask.h does, where it is defined. */
	static TVexelTaskResult<TArray<FExpected>> OnCompleteAll(const TArray<TVexelTaskResult>& Inputs);

	/** Completes Target with this result's value. */
	void ForwardTo(const TVexelTaskResult& Target) const
	{
		OnComplete([Target](const FExpected& Value)
			{ Target.Complete(Value); });
	}

private:
	template <typename U>
	friend class TVexelTaskResult;

	template <typename InputType, typename U, typename FunctionType>
	friend class VexelInternal::TStep;

	using FState = VexelInternal::TVexelTaskState<T>;

	static FExpected MakeInvalid() { return VEXEL_ERROR(FVexelError_TaskInvalid, ""); }

	static TVexelTaskResult FromState(TSharedPtr<FState> InState)
	{
		TVexelTaskResult Result;
		Result.State = MoveTemp(InState);
		return Result;
	}

	void Attach(TSharedPtr<VexelInternal::TContinuation<T>> Continuation) const
	{
		if (const TSharedPtr<FState> Waited = State)
		{
			Waited->OnComplete(MoveTemp(Continuation));
		}
		else
		{
			Continuation->Run(Continuation, MakeInvalid());
		}
	}

	template <typename FunctionType>
	auto AttachStep(TOptional<EVexelTaskThread> Thread, FunctionType&& Function) const
	{
		using U = typename VexelInternal::TStepTraits<T, std::decay_t<FunctionType>>::Answer::ValueType;
		using FStep = VexelInternal::TStep<T, U, std::decay_t<FunctionType>>;
		const TSharedRef<FStep> Step = MakeShared<FStep>(Thread, Forward<FunctionType>(Function));
		Attach(Step);
		return TVexelTaskResult<U>::FromState(Step);
	}

	TSharedPtr<FState, ESPMode::ThreadSafe> State;
};

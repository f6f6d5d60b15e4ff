#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Misc/Timespan.h"
#include "Templates/Function.h"
#include "Templates/SharedPointer.h"
#include "Templates/UnrealTemplate.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <type_traits>

template <class ResultType>
class TFuture;
template <class ResultType>
class TSharedFuture;

namespace UE::Core::Private::Future
{
struct FVoidResult
{
};

template <class ResultType>
using TStored = std::conditional_t<std::is_void_v<ResultType>, FVoidResult, std::decay_t<ResultType>>;

template <class ResultType>
class TState
{
public:
	explicit TState(TUniqueFunction<void()> InCallback = nullptr)
		: Callback(MoveTemp(InCallback))
	{
	}

	template <class... ArgTypes>
	void Emplace(ArgTypes&&... Args)
	{
		TUniqueFunction<void()> ToCall;
		{
			const std::lock_guard Lock(Mutex);
			checkf(!Result.has_value(), TEXT("A promise was fulfilled twice"));
			Result.emplace(Forward<ArgTypes>(Args)...);
			ToCall = MoveTemp(Callback);
			Completed.notify_all();
		}
		if (ToCall)
		{
			ToCall();
		}
	}

	bool IsComplete() const
	{
		const std::lock_guard Lock(Mutex);
		return Result.has_value();
	}

	bool WaitFor(const FTimespan& Duration) const
	{
		std::unique_lock Lock(Mutex);
		const auto IsDone = [this]
		{ return Result.has_value(); };
		if (Duration >= FTimespan::FromDays(365.0))
		{
			Completed.wait(Lock, IsDone);
			return true;
		}
		return Completed.wait_for(Lock, std::chrono::microseconds(Duration.GetTicks() / ETimespan::TicksPerMicrosecond), IsDone);
	}

	TStored<ResultType>& WaitForResult()
	{
		std::unique_lock Lock(Mutex);
		Completed.wait(Lock, [this]
			{ return Result.has_value(); });
		return *Result;
	}

	/** Called once the result is there: at once on this thread, or later on the one that sets it. */
	void SetContinuation(TUniqueFunction<void()> Continuation)
	{
		{
			const std::lock_guard Lock(Mutex);
			if (!Result.has_value())
			{
				Callback = MoveTemp(Continuation);
				return;
			}
		}
		Continuation();
	}

private:
	mutable std::mutex Mutex;
	mutable std::condition_variable Completed;
	std::optional<TStored<ResultType>> Result;
	TUniqueFunction<void()> Callback;
};
}

template <class ResultType>
class TPromise;

/** The one reader's side of a promise. */
template <class ResultType>
class TFuture
{
	using FState = UE::Core::Private::Future::TState<ResultType>;

public:
	TFuture() = default;
	explicit TFuture(TSharedPtr<FState> InState)
		: State(MoveTemp(InState))
	{
	}
	TFuture(TFuture&&) = default;
	TFuture& operator=(TFuture&&) = default;
	TFuture(const TFuture&) = delete;
	TFuture& operator=(const TFuture&) = delete;

	bool IsValid() const { return State.IsValid(); }
	bool IsReady() const { return State.IsValid() && State->IsComplete(); }
	void Wait() const { State->WaitFor(FTimespan::MaxValue()); }
	bool WaitFor(const FTimespan& Duration) const { return State->WaitFor(Duration); }

	/** Waits for the result and answers it; the future keeps it. */
	std::conditional_t<std::is_void_v<ResultType>, void, const UE::Core::Private::Future::TStored<ResultType>&> Get() const
	{
		if constexpr (std::is_void_v<ResultType>)
		{
			State->WaitForResult();
		}
		else
		{
			return State->WaitForResult();
		}
	}

	/** Waits for the result and takes it; the future is then invalid. */
	ResultType Consume()
	{
		const TSharedPtr<FState> Taken = MoveTemp(State);
		State.Reset();
		if constexpr (std::is_void_v<ResultType>)
		{
			Taken->WaitForResult();
		}
		else
		{
			return MoveTemp(Taken->WaitForResult());
		}
	}

	TSharedFuture<ResultType> Share() { return TSharedFuture<ResultType>(MoveTemp(State)); }

	/** Goes on with Continuation(TFuture) once the result is there, on the thread that sets it. This future is then invalid. */
	template <class FuncType>
	auto Then(FuncType Continuation)
	{
		using FNext = std::invoke_result_t<FuncType&, TFuture>;
		TPromise<FNext> Promise;
		TFuture<FNext> Result = Promise.GetFuture();
		const TSharedPtr<FState> Taken = MoveTemp(State);
		State.Reset();
		// The state must not hold itself until the end: the reference goes when the continuation has run.
		Taken->SetContinuation(
			[Promise = MoveTemp(Promise), Continuation = MoveTemp(Continuation), Held = Taken]() mutable
			{ Promise.SetFromCall([&]
				  { return Continuation(TFuture(MoveTemp(Held))); }); });
		return Result;
	}

	/** The same with the result itself: Continuation(Result). */
	template <class FuncType>
	auto Next(FuncType Continuation)
	{
		return Then(
			[Continuation = MoveTemp(Continuation)](TFuture Self) mutable
			{
				if constexpr (std::is_void_v<ResultType>)
				{
					Self.Consume();
					return Continuation();
				}
				else
				{
					return Continuation(Self.Consume());
				}
			});
	}

	void Reset() { State.Reset(); }

private:
	TSharedPtr<FState> State;
};

/** A future that may be copied and read by many. */
template <class ResultType>
class TSharedFuture
{
	using FState = UE::Core::Private::Future::TState<ResultType>;

public:
	TSharedFuture() = default;
	explicit TSharedFuture(TSharedPtr<FState> InState)
		: State(MoveTemp(InState))
	{
	}

	bool IsValid() const { return State.IsValid(); }
	bool IsReady() const { return State.IsValid() && State->IsComplete(); }
	void Wait() const { State->WaitFor(FTimespan::MaxValue()); }
	bool WaitFor(const FTimespan& Duration) const { return State->WaitFor(Duration); }
	std::conditional_t<std::is_void_v<ResultType>, void, const UE::Core::Private::Future::TStored<ResultType>&> Get() const
	{
		if constexpr (std::is_void_v<ResultType>)
		{
			State->WaitForResult();
		}
		else
		{
			return State->WaitForResult();
		}
	}

private:
	TSharedPtr<FState> State;
};

/** The writer's side: fulfilled exactly once, on any thread. */
template <class ResultType>
class TPromise
{
	using FState = UE::Core::Private::Future::TState<ResultType>;

public:
	TPromise()
		: State(MakeShared<FState>())
	{
	}
	/** CompletionCallback is called on the fulfilling thread, after the result is there. */
	explicit TPromise(TUniqueFunction<void()> CompletionCallback)
		: State(MakeShared<FState>(MoveTemp(CompletionCallback)))
	{
	}
	TPromise(TPromise&&) = default;
	TPromise& operator=(TPromise&&) = default;
	TPromise(const TPromise&) = delete;
	TPromise& operator=(const TPromise&) = delete;

	TFuture<ResultType> GetFuture()
	{
		checkf(!bFutureTaken, TEXT("A promise has one future"));
		bFutureTaken = true;
		return TFuture<ResultType>(State);
	}

	template <class... ArgTypes>
	void EmplaceValue(ArgTypes&&... Args)
	{
		// The promise may be destroyed by the one who waits for it.
		const TSharedPtr<FState> Kept = State;
		Kept->Emplace(Forward<ArgTypes>(Args)...);
	}
	template <class ValueType>
	void SetValue(ValueType&& Value)
	{
		EmplaceValue(Forward<ValueType>(Value));
	}
	void SetValue() requires std::is_void_v<ResultType>
	{
		EmplaceValue();
	}

	/** Fulfils the promise with what the function answers. */
	template <class FuncType>
	void SetFromCall(FuncType&& Func)
	{
		if constexpr (std::is_void_v<ResultType>)
		{
			Func();
			EmplaceValue();
		}
		else
		{
			EmplaceValue(Func());
		}
	}

private:
	TSharedPtr<FState> State;
	bool bFutureTaken = false;
};

template <class ResultType, class... ArgTypes>
[[nodiscard]] TPromise<ResultType> MakeFulfilledPromise(ArgTypes&&... Args)
{
	TPromise<ResultType> Promise;
	Promise.EmplaceValue(Forward<ArgTypes>(Args)...);
	return Promise;
}

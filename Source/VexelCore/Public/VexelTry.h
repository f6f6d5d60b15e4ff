#pragma once

#include "CoreMinimal.h"
#include "VexelTask.h"

/**
 * Chains of fallible steps, read from top to bottom:
 *
 *     return Try(FindUser(Name))
 *         .Then([](const FUser& User) { return LoadProfile(User); })
 *         .ThenOn(EVexelTaskThread::GameThread, [](const FProfile& Profile) { Show(Profile); })
 *         .Catch<FVexelError_HttpCancelled>([](const FVexelError_HttpCancelled& Error) { return TVexelExpected<void>(); });
 *
 * A step answers a plain value, a TVexelExpected, a TVexelTaskResult or nothing. After a failure the steps are skipped until a
 * catch takes the error. A chain is synchronous, and converts to TVexelExpected, until a step answers a task result or names a
 * thread; from there on it converts to TVexelTaskResult alone. A builder's result is taken once.
 */
template <typename T, bool bAsync>
class TVexelTryBuilder;
template <typename T, bool bAsync>
class TVexelTryCatchBuilder;

namespace VexelInternal
{
/** What a builder holds between two steps. */
template <typename T, bool bAsync>
using TTryCarrier = std::conditional_t<bAsync, TVexelTaskResult<T>, TVexelExpected<T>>;

/** The steps that both builders offer. DerivedType::TakeCarrier() hands over what the next step starts from. */
template <typename DerivedType, typename T, bool bAsync>
class TTrySteps
{
public:
	template <typename FunctionType>
	auto Then(FunctionType&& Function)
	{
		using FAnswer = typename TStepTraits<T, FunctionType>::Answer;
		using U = typename FAnswer::ValueType;
		TTryCarrier<T, bAsync> Carrier = Take();
		if constexpr (bAsync)
		{
			return TVexelTryBuilder<U, true>(Carrier.Then(Forward<FunctionType>(Function)));
		}
		else if constexpr (FAnswer::bAsynchronous)
		{
			return TVexelTryBuilder<U, true>(
				Carrier.HasError() ? TVexelTaskResult<U>(MoveTemp(Carrier).GetError()) : InvokeStep<T>(Function, Carrier));
		}
		else
		{
			return TVexelTryBuilder<U, false>(Carrier.HasError()
					? TVexelExpected<U>(MoveTemp(Carrier).GetError())
					: ToExpected<U>([&]() -> decltype(auto)
						  { return InvokeStep<T>(Function, Carrier); }));
		}
	}

	template <typename FunctionType>
	auto ThenOn(EVexelTaskThread Thread, FunctionType&& Function)
	{
		using U = typename TStepTraits<T, FunctionType>::Answer::ValueType;
		return TVexelTryBuilder<U, true>(TVexelTaskResult<T>(Take()).ThenOn(Thread, Forward<FunctionType>(Function)));
	}

	operator TVexelTaskResult<T>() { return TVexelTaskResult<T>(Take()); }

	operator TVexelExpected<T>() requires(!bAsync)
	{
		return Take();
	}

protected:
	TTrySteps() = default;
	/** A builder that is moved from hands its value over, as one that is converted does. */
	TTrySteps(TTrySteps&& Other)
		: bFinalized(Other.bFinalized)
	{
		Other.bFinalized = true;
	}

	TTryCarrier<T, bAsync> Take()
	{
		checkf(!bFinalized, TEXT("Value already finalized!"));
		bFinalized = true;
		return static_cast<DerivedType*>(this)->TakeCarrier();
	}

private:
	bool bFinalized = false;
};

/** Gives an error to a handler as the kind that it catches. Every kind has FVexelError's layout and no more, so the cast is sound. */
template <typename KindType, typename T, typename HandlerType>
TVexelTaskResult<T> HandleAsync(HandlerType& Handler, const FVexelError& Error)
{
	static_assert(sizeof(KindType) == sizeof(FVexelError), "An error kind adds no members of its own");
	using R = std::remove_cvref_t<std::invoke_result_t<HandlerType&, const KindType&>>;
	if constexpr (std::is_void_v<R>)
	{
		Handler(static_cast<const KindType&>(Error));
		return TVexelTaskResult<T>(TVexelExpected<void>());
	}
	else
	{
		return TVexelTaskResult<T>(Handler(static_cast<const KindType&>(Error)));
	}
}

template <typename KindType, typename T, typename HandlerType>
TVexelExpected<T> HandleNow(HandlerType& Handler, const FVexelError& Error)
{
	static_assert(sizeof(KindType) == sizeof(FVexelError), "An error kind adds no members of its own");
	using R = std::remove_cvref_t<std::invoke_result_t<HandlerType&, const KindType&>>;
	static_assert(!TStepAnswer<std::conditional_t<CVexelError<R>, void, R>>::bAsynchronous,
		"A handler of a synchronous chain answers a value or an error: make the chain asynchronous with ThenOn, or start it from a task result");
	if constexpr (std::is_void_v<R>)
	{
		Handler(static_cast<const KindType&>(Error));
		return TVexelExpected<void>();
	}
	else
	{
		return TVexelExpected<T>(Handler(static_cast<const KindType&>(Error)));
	}
}
}

/** A chain whose last part was a step. Made by Try(). */
template <typename T, bool bAsync>
class [[nodiscard]] TVexelTryBuilder : public VexelInternal::TTrySteps<TVexelTryBuilder<T, bAsync>, T, bAsync>
{
public:
	explicit TVexelTryBuilder(VexelInternal::TTryCarrier<T, bAsync>&& InCarrier)
		: Carrier(MoveTemp(InCarrier))
	{
	}

	/**
	 * Gives errors of the kind and of the kinds below it to a handler, which answers a replacement: a value, or another error.
	 * Of several catches in a row the first that matches wins.
	 */
	template <typename KindType, typename HandlerType>
	TVexelTryCatchBuilder<T, bAsync> Catch(HandlerType&& Handler)
	{
		return TVexelTryCatchBuilder<T, bAsync>(this->Take()).template Catch<KindType>(Forward<HandlerType>(Handler));
	}

private:
	friend class VexelInternal::TTrySteps<TVexelTryBuilder, T, bAsync>;

	VexelInternal::TTryCarrier<T, bAsync> TakeCarrier() { return MoveTemp(Carrier); }

	VexelInternal::TTryCarrier<T, bAsync> Carrier;
};

/** A synchronous chain whose last part was a catch. */
template <typename T>
class [[nodiscard]] TVexelTryCatchBuilder<T, false> : public VexelInternal::TTrySteps<TVexelTryCatchBuilder<T, false>, T, false>
{
public:
	explicit TVexelTryCatchBuilder(TVexelExpected<T>&& InCarrier)
		: Carrier(MoveTemp(InCarrier))
	{
	}

	template <typename KindType, typename HandlerType>
	TVexelTryCatchBuilder Catch(HandlerType&& Handler)
	{
		if (!bCaught && Carrier.HasError() && Carrier.GetError().template IsA<KindType>())
		{
			const FVexelError Error = MoveTemp(Carrier).GetError();
			Carrier = VexelInternal::HandleNow<KindType, T>(Handler, Error);
			bCaught = true;
		}
		return MoveTemp(*this);
	}

private:
	friend class VexelInternal::TTrySteps<TVexelTryCatchBuilder, T, false>;

	TVexelExpected<T> TakeCarrier() { return MoveTemp(Carrier); }

	TVexelExpected<T> Carrier;
	bool bCaught = false;
};

/** An asynchronous chain whose last part was a catch. The handlers run on the thread that completes the step before them. */
template <typename T>
class [[nodiscard]] TVexelTryCatchBuilder<T, true> : public VexelInternal::TTrySteps<TVexelTryCatchBuilder<T, true>, T, true>
{
public:
	explicit TVexelTryCatchBuilder(TVexelTaskResult<T>&& InCarrier)
		: Carrier(MoveTemp(InCarrier))
	{
	}

	template <typename KindType, typename HandlerType>
	TVexelTryCatchBuilder Catch(HandlerType&& Handler)
	{
		Handlers.Add({&KindType::StaticKind(), [Handler = Forward<HandlerType>(Handler)](const FVexelError& Error) mutable
			{ return VexelInternal::HandleAsync<KindType, T>(Handler, Error); }});
		return MoveTemp(*this);
	}

private:
	friend class VexelInternal::TTrySteps<TVexelTryCatchBuilder, T, true>;

	struct FHandler
	{
		const FVexelErrorKind* Kind;
		TUniqueFunction<TVexelTaskResult<T>(const FVexelError&)> Handle;
	};

	TVexelTaskResult<T> TakeCarrier()
	{
		const TVexelTaskResult<T> Next = TVexelTaskResult<T>::MakePending();
		Carrier.OnComplete([Next, Handlers = MoveTemp(Handlers)](const TVexelExpected<T>& Value) mutable
			{
				FHandler* const Found = Value.HasError()
					? Handlers.FindByPredicate([&](const FHandler& Handler) { return Value.GetError().IsA(*Handler.Kind); })
					: nullptr;
				if (Found)
				{
					Found->Handle(Value.GetError()).ForwardTo(Next);
				}
				else
				{
					Next.Complete(Value);
				} });
		return Next;
	}

	TVexelTaskResult<T> Carrier;
	TArray<FHandler> Handlers;
};

/** Starts a chain from a value. */
template <typename T>
requires(!VexelInternal::CVexelError<T>) auto Try(T&& Value)
{
	using U = std::remove_cvref_t<T>;
	return TVexelTryBuilder<U, false>(TVexelExpected<U>(Forward<T>(Value)));
}

/** Starts a chain from an expected value. */
template <typename T>
TVexelTryBuilder<T, false> Try(TVexelExpected<T> Value)
{
	return TVexelTryBuilder<T, false>(MoveTemp(Value));
}

/** Starts a chain from the result of a task. */
template <typename T>
TVexelTryBuilder<T, true> Try(TVexelTaskResult<T> Result)
{
	return TVexelTryBuilder<T, true>(MoveTemp(Result));
}

/** Starts a chain from an error: Try<FString>(Error). */
template <typename T>
TVexelTryBuilder<T, false> Try(FVexelError Error)
{
	return TVexelTryBuilder<T, false>(TVexelExpected<T>(MoveTemp(Error)));
}

#pragma once

#include "CoreMinimal.h"
#include "Templates/Tuple.h"
#include "VexelLog.h"
#include "VexelTaskResult.h"

/** A unit of work that runs once at a time. Any thread may execute it; the work runs on the calling thread. */
template <typename T>
class TVexelTask
{
public:
	explicit TVexelTask(TUniqueFunction<TVexelExpected<T>()> InWork)
		: Work(MoveTemp(InWork))
	{
	}

	UE_NONCOPYABLE(TVexelTask)

	/** Runs the work. While another call runs it, answers FVexelError_TaskAlreadyRunning and leaves that call alone. */
	TVexelExpected<T> Execute()
	{
		{
			FScopeLock Guard(&Lock);
			if (bRunning)
			{
				return VEXEL_ERROR(FVexelError_TaskAlreadyRunning, "");
			}
			bRunning = true;
		}
		TVexelExpected<T> Result = Work();
		FScopeLock Guard(&Lock);
		bRunning = false;
		return Result;
	}

private:
	TUniqueFunction<TVexelExpected<T>()> Work;
	FCriticalSection Lock;
	bool bRunning = false;
};

/** Runs a function on a thread; the answered result completes with what the function answers. */
template <typename FunctionType>
auto VexelTask(EVexelTaskThread Thread, FunctionType&& Function)
{
	return TVexelTaskResult<void>(TVexelExpected<void>()).ThenOn(Thread, Forward<FunctionType>(Function));
}

namespace VexelInternal
{
/** Shared by the inputs of one collection. Slots are filled from any thread; the last one completes the result. */
template <typename SlotsType>
class TCollection
{
public:
	TCollection(int32 InNum, SlotsType&& InSlots)
		: Slots(MoveTemp(InSlots))
		, Num(InNum)
	{
		Filled.Init(false, InNum);
		Result = TVexelTaskResult<SlotsType>::MakePending();
		if (Num == 0)
		{
			Result.Complete(MoveTemp(Slots));
		}
	}

	/** Fill is called with the slots, under the collection's lock. */
	template <typename FillType>
	void CompleteSlot(int32 Index, FillType&& Fill)
	{
		{
			FScopeLock Guard(&Lock);
			if (Index < 0 || Index >= Num)
			{
				VEXEL_LOG(Error, "CRITICAL: `OnCompleteAll` Invalid task index %d", Index);
				return;
			}
			if (Filled[Index])
			{
				return;
			}
			Filled[Index] = true;
			Fill(Slots);
			if (++NumFilled < Num)
			{
				return;
			}
		}
		Result.Complete(MoveTemp(Slots));
	}

	TVexelTaskResult<SlotsType> Result;

private:
	FCriticalSection Lock;
	SlotsType Slots;
	TArray<bool> Filled;
	int32 Num;
	int32 NumFilled = 0;
};

inline FVexelError MakeUncollectedError()
{
	return VEXEL_ERROR(FVexelError_TaskNotFinished, "");
}

/** Lets one input fill its slot; an input that refers to no task leaves the error that stands there already. */
template <typename T, typename CollectionType, typename FillType>
void CollectInput(const TVexelTaskResult<T>& Input, int32 Index, const TSharedRef<CollectionType>& Collection, FillType&& Fill)
{
	if (!Input.IsValid())
	{
		VEXEL_LOG(Warning, "Warning: `OnCompleteAll` Task did not complete properly!");
		Collection->CompleteSlot(Index, [](auto&) {});
		return;
	}
	Input.OnComplete([Index, Collection, Fill = Forward<FillType>(Fill)](const TVexelExpected<T>& Value)
		{
			if (Value.HasError() && Value.GetError().template IsA<FVexelError_TaskNotFinished>())
			{
				VEXEL_LOG(Warning, "Warning: `OnCompleteAll` Task did not complete properly!");
			}
			Collection->CompleteSlot(Index, [&](auto& Slots) { Fill(Slots, Value); }); });
}
}

/** One result of all, in the order of the inputs. An input that fails puts its error in its slot and disturbs no other. */
template <typename T>
TVexelTaskResult<TArray<TVexelExpected<T>>> VexelTaskCollectAll(const TArray<TVexelTaskResult<T>>& Inputs)
{
	using FSlots = TArray<TVexelExpected<T>>;
	FSlots Slots;
	Slots.Reserve(Inputs.Num());
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		Slots.Emplace(VexelInternal::MakeUncollectedError());
	}
	const auto Collection = MakeShared<VexelInternal::TCollection<FSlots>>(Inputs.Num(), MoveTemp(Slots));
	for (int32 Index = 0; Index < Inputs.Num(); ++Index)
	{
		VexelInternal::CollectInput(
			Inputs[Index], Index, Collection, [Index](FSlots& Filled, const TVexelExpected<T>& Value)
			{ Filled[Index] = Value; });
	}
	return Collection->Result;
}

/** The same for results of several types. */
template <typename... Types>
requires(sizeof...(Types) > 1)
	TVexelTaskResult<TTuple<TVexelExpected<Types>...>> VexelTaskCollectAll(const TVexelTaskResult<Types>&... Inputs)
{
	using FSlots = TTuple<TVexelExpected<Types>...>;
	const auto Collection = MakeShared<VexelInternal::TCollection<FSlots>>(
		int32(sizeof...(Types)), FSlots(TVexelExpected<Types>(VexelInternal::MakeUncollectedError())...));
	const auto CollectAt = [&]<size_t... Indices>(std::index_sequence<Indices...>)
	{
		(VexelInternal::CollectInput(Inputs, int32(Indices), Collection,
			 [](FSlots& Filled, const TVexelExpected<Types>& Value)
			 { Filled.template Get<Indices>() = Value; }),
			...);
	};
	CollectAt(std::index_sequence_for<Types...>());
	return Collection->Result;
}

template <typename T>
TVexelTaskResult<TArray<TVexelExpected<T>>> TVexelTaskResult<T>::OnCompleteAll(const TArray<TVexelTaskResult>& Inputs)
{
	return VexelTaskCollectAll(Inputs);
}

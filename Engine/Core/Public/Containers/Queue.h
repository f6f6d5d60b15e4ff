#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

#include <atomic>

enum class EQueueMode
{
	/** Several producers, one consumer. */
	Mpsc,
	/** One producer, one consumer. */
	Spsc,
	/** One thread. */
	SingleThreaded
};

/** First in, first out, without locks. An item is a node of its own; the queue is never full. */
template <typename T, EQueueMode Mode = EQueueMode::Spsc>
class TQueue
{
public:
	using FElementType = T;

	TQueue()
		: Head(new FNode)
		, Tail(Head.load())
	{
	}
	TQueue(const TQueue&) = delete;
	TQueue& operator=(const TQueue&) = delete;
	~TQueue()
	{
		Empty();
		delete Tail;
	}

	/** By a producer. */
	bool Enqueue(const T& Item) { return Append(new FNode(Item)); }
	bool Enqueue(T&& Item) { return Append(new FNode(MoveTempIfPossible(Item))); }
	template <typename... ArgTypes>
	bool Enqueue(EInPlace, ArgTypes&&... Args)
	{
		return Append(new FNode(T(Forward<ArgTypes>(Args)...)));
	}

	/** By the consumer, like everything below. */
	bool Dequeue(T& OutItem)
	{
		FNode* const Popped = Tail->Next.load(std::memory_order_acquire);
		if (Popped == nullptr)
		{
			return false;
		}
		OutItem = MoveTempIfPossible(*Popped->Item.GetTypedPtr());
		DropTail(Popped);
		return true;
	}
	bool Pop()
	{
		FNode* const Popped = Tail->Next.load(std::memory_order_acquire);
		if (Popped == nullptr)
		{
			return false;
		}
		DropTail(Popped);
		return true;
	}
	void Empty()
	{
		while (Pop())
		{
		}
	}
	bool IsEmpty() const { return Tail->Next.load(std::memory_order_acquire) == nullptr; }
	bool Peek(T& OutItem) const
	{
		const T* const Item = const_cast<TQueue*>(this)->Peek();
		if (Item == nullptr)
		{
			return false;
		}
		OutItem = *Item;
		return true;
	}
	/** The oldest item, or null. It is valid until it is popped. */
	T* Peek()
	{
		FNode* const Oldest = Tail->Next.load(std::memory_order_acquire);
		return Oldest != nullptr ? Oldest->Item.GetTypedPtr() : nullptr;
	}

private:
	// The tail node's item has been taken, or never was: the oldest item stands in the node after it.
	struct FNode
	{
		FNode() = default;
		template <typename ArgType>
		explicit FNode(ArgType&& Arg)
		{
			::new (static_cast<void*>(Item.Pad)) T(Forward<ArgType>(Arg));
		}

		std::atomic<FNode*> Next{nullptr};
		TTypeCompatibleBytes<T> Item;
	};

	bool Append(FNode* Node)
	{
		FNode* Previous;
		if constexpr (Mode == EQueueMode::Mpsc)
		{
			Previous = Head.exchange(Node, std::memory_order_acq_rel);
		}
		else
		{
			Previous = Head.load(std::memory_order_relaxed);
			Head.store(Node, std::memory_order_relaxed);
		}
		Previous->Next.store(Node, std::memory_order_release);
		return true;
	}

	void DropTail(FNode* Popped)
	{
		Popped->Item.GetTypedPtr()->~T();
		delete Tail;
		Tail = Popped;
	}

	alignas(PLATFORM_CACHE_LINE_SIZE) std::atomic<FNode*> Head;
	alignas(PLATFORM_CACHE_LINE_SIZE) FNode* Tail;
};

#pragma once

#include "CoreTypes.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>

namespace UE::Core::Private
{
/** Calls the predicate with what the elements point at, for elements that are pointers. */
template <typename T, typename PredicateType>
struct TDereferencingPredicate
{
	const PredicateType& Predicate;

	bool operator()(const T& A, const T& B) const
	{
		if constexpr (std::is_pointer_v<T>)
		{
			return Predicate(*A, *B);
		}
		else
		{
			return Predicate(A, B);
		}
	}
};

template <typename T, typename SizeType, typename PredicateType>
SizeType SiftUp(T* Heap, SizeType Root, SizeType Node, const PredicateType& Predicate)
{
	const TDereferencingPredicate<T, PredicateType> IsLess{Predicate};
	while (Node > Root)
	{
		const SizeType Parent = (Node - 1) / 2;
		if (!IsLess(Heap[Node], Heap[Parent]))
		{
			break;
		}
		Swap(Heap[Node], Heap[Parent]);
		Node = Parent;
	}
	return Node;
}

template <typename T, typename SizeType, typename PredicateType>
void SiftDown(T* Heap, SizeType Node, SizeType Count, const PredicateType& Predicate)
{
	const TDereferencingPredicate<T, PredicateType> IsLess{Predicate};
	while (2 * Node + 1 < Count)
	{
		SizeType Child = 2 * Node + 1;
		if (Child + 1 < Count && IsLess(Heap[Child + 1], Heap[Child]))
		{
			++Child;
		}
		if (!IsLess(Heap[Child], Heap[Node]))
		{
			break;
		}
		Swap(Heap[Node], Heap[Child]);
		Node = Child;
	}
}

template <typename T, typename SizeType, typename PredicateType>
void MakeHeap(T* Heap, SizeType Count, const PredicateType& Predicate)
{
	for (SizeType Node = Count / 2 - 1; Node >= 0; --Node)
	{
		SiftDown(Heap, Node, Count, Predicate);
	}
}

template <typename T, typename SizeType, typename PredicateType>
bool IsHeap(const T* Heap, SizeType Count, const PredicateType& Predicate)
{
	const TDereferencingPredicate<T, PredicateType> IsLess{Predicate};
	for (SizeType Node = 1; Node < Count; ++Node)
	{
		if (IsLess(Heap[Node], Heap[(Node - 1) / 2]))
		{
			return false;
		}
	}
	return true;
}
}

/** Sorts in no stable order. The predicate gets what pointers point at, and must be a strict weak ordering. */
template <typename T, typename PredicateType>
void Sort(T* First, const int64 Num, const PredicateType& Predicate)
{
	std::sort(First, First + Num, UE::Core::Private::TDereferencingPredicate<T, PredicateType>{Predicate});
}

template <typename T>
void Sort(T* First, const int64 Num)
{
	Sort(First, Num, TLess<>());
}

/** Sorts so that equal elements keep their order. */
template <typename T, typename PredicateType>
void StableSort(T* First, const int64 Num, const PredicateType& Predicate)
{
	std::stable_sort(First, First + Num, UE::Core::Private::TDereferencingPredicate<T, PredicateType>{Predicate});
}

template <typename T>
void StableSort(T* First, const int64 Num)
{
	StableSort(First, Num, TLess<>());
}

#pragma once

#include "Containers/AllowShrinking.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Less.h"
#include "Templates/Sorting.h"
#include "Templates/UnrealTemplate.h"

/** Sorting of TArray, which derives from it, and its use as a binary heap. */
template <typename ArrayType, typename ElementType, typename SizeType>
class TArrayOrdering
{
public:
	/** Sorts by operator<, or by the predicate; elements that are pointers are dereferenced for both. Not stable. */
	void Sort() { ::Sort(Self().GetData(), Self().Num()); }
	template <typename Predicate>
	void Sort(const Predicate& Pred)
	{
		::Sort(Self().GetData(), Self().Num(), Pred);
	}
	void StableSort() { ::StableSort(Self().GetData(), Self().Num()); }
	template <typename Predicate>
	void StableSort(const Predicate& Pred)
	{
		::StableSort(Self().GetData(), Self().Num(), Pred);
	}

	/** The heap functions keep the least element, by the predicate, at the top (index 0). */
	void Heapify() { Heapify(TLess<>()); }
	template <typename Predicate>
	void Heapify(const Predicate& Pred)
	{
		UE::Core::Private::MakeHeap(Self().GetData(), Self().Num(), Pred);
	}
	SizeType HeapPush(ElementType&& Item) { return HeapPush(MoveTempIfPossible(Item), TLess<>()); }
	SizeType HeapPush(const ElementType& Item) { return HeapPush(Item, TLess<>()); }
	template <typename Predicate>
	SizeType HeapPush(ElementType&& Item, const Predicate& Pred)
	{
		Self().Add(MoveTempIfPossible(Item));
		return UE::Core::Private::SiftUp(Self().GetData(), SizeType(0), Self().Num() - 1, Pred);
	}
	template <typename Predicate>
	SizeType HeapPush(const ElementType& Item, const Predicate& Pred)
	{
		Self().Add(Item);
		return UE::Core::Private::SiftUp(Self().GetData(), SizeType(0), Self().Num() - 1, Pred);
	}
	void HeapPop(ElementType& OutItem, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		HeapPop(OutItem, TLess<>(), AllowShrinking);
	}
	template <typename Predicate>
	void HeapPop(ElementType& OutItem, const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		OutItem = MoveTemp(HeapTop());
		HeapPopDiscard(Pred, AllowShrinking);
	}
	void HeapPopDiscard(EAllowShrinking AllowShrinking = EAllowShrinking::Default) { HeapPopDiscard(TLess<>(), AllowShrinking); }
	template <typename Predicate>
	void HeapPopDiscard(const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		Self().RemoveAtSwap(0, 1, AllowShrinking);
		UE::Core::Private::SiftDown(Self().GetData(), SizeType(0), Self().Num(), Pred);
	}
	void HeapRemoveAt(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		HeapRemoveAt(Index, TLess<>(), AllowShrinking);
	}
	template <typename Predicate>
	void HeapRemoveAt(SizeType Index, const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		Self().RemoveAtSwap(Index, 1, AllowShrinking);
		UE::Core::Private::SiftDown(Self().GetData(), Index, Self().Num(), Pred);
		if (Index < Self().Num())
		{
			UE::Core::Private::SiftUp(Self().GetData(), SizeType(0), Index, Pred);
		}
	}
	void HeapSort() { ::Sort(Self().GetData(), Self().Num()); }
	template <typename Predicate>
	void HeapSort(const Predicate& Pred)
	{
		::Sort(Self().GetData(), Self().Num(), Pred);
	}
	ElementType& HeapTop() { return Self()[0]; }
	const ElementType& HeapTop() const { return Self()[0]; }
	void VerifyHeap() const { checkSlow(UE::Core::Private::IsHeap(Self().GetData(), Self().Num(), TLess<>())); }

private:
	ArrayType& Self() { return static_cast<ArrayType&>(*this); }
	const ArrayType& Self() const { return static_cast<const ArrayType&>(*this); }
};

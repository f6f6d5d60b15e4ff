#pragma once

#include "CoreTypes.h"

/** An iterator by index that survives growth of its container and can remove its current element. */
template <typename ContainerType, typename ElementType, typename SizeType>
class TIndexedContainerIterator
{
public:
	explicit TIndexedContainerIterator(ContainerType& InContainer, SizeType StartIndex = 0)
		: Container(InContainer)
		, Index(StartIndex)
	{
	}

	TIndexedContainerIterator& operator++()
	{
		++Index;
		return *this;
	}
	TIndexedContainerIterator operator++(int)
	{
		TIndexedContainerIterator Old(*this);
		++Index;
		return Old;
	}
	TIndexedContainerIterator& operator--()
	{
		--Index;
		return *this;
	}
	TIndexedContainerIterator& operator+=(SizeType Offset)
	{
		Index += Offset;
		return *this;
	}
	TIndexedContainerIterator operator+(SizeType Offset) const
	{
		TIndexedContainerIterator Result(*this);
		return Result += Offset;
	}
	ElementType& operator*() const { return Container[Index]; }
	ElementType* operator->() const { return &Container[Index]; }
	explicit operator bool() const { return Container.IsValidIndex(Index); }
	SizeType GetIndex() const { return Index; }
	void Reset() { Index = 0; }
	void SetToEnd() { Index = Container.Num(); }
	void Insert(const ElementType& Item) { Container.Insert(Item, Index); }

	/** Removes the current element; the next ++ stands on the one that followed it. */
	void RemoveCurrent()
	{
		Container.RemoveAt(Index);
		--Index;
	}
	/** As RemoveCurrent, but fills the hole with the last element. */
	void RemoveCurrentSwap()
	{
		Container.RemoveAtSwap(Index);
		--Index;
	}

	friend bool operator==(const TIndexedContainerIterator& A, const TIndexedContainerIterator& B)
	{
		return &A.Container == &B.Container && A.Index == B.Index;
	}

private:
	ContainerType& Container;
	SizeType Index;
};

#pragma once

#include "Containers/ContainersFwd.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/MemoryOps.h"
#include "Templates/TypeCompatibleBytes.h"
#include "Templates/UnrealTemplate.h"

#include <bit>
#include <initializer_list>

/**
 * A queue with two ends and an index: adding and removing at either end takes constant time. Elements move when it grows, by their
 * bytes. An index out of range ends the program.
 */
template <typename T>
class TRingBuffer
{
	template <typename BufferType, typename ElementType>
	class TIteratorBase
	{
	public:
		TIteratorBase(BufferType& InBuffer, int32 InIndex)
			: Buffer(&InBuffer)
			, Index(InIndex)
		{
		}
		ElementType& operator*() const { return (*Buffer)[Index]; }
		ElementType* operator->() const { return &(*Buffer)[Index]; }
		TIteratorBase& operator++()
		{
			++Index;
			return *this;
		}
		friend bool operator==(const TIteratorBase& A, const TIteratorBase& B) { return A.Buffer == B.Buffer && A.Index == B.Index; }

	private:
		BufferType* Buffer;
		int32 Index;
	};

public:
	using ElementType = T;
	using TIterator = TIteratorBase<TRingBuffer, T>;
	using TConstIterator = TIteratorBase<const TRingBuffer, const T>;

	TRingBuffer() = default;
	explicit TRingBuffer(int32 Capacity) { Reserve(Capacity); }
	TRingBuffer(std::initializer_list<T> InitList)
	{
		Reserve(static_cast<int32>(InitList.size()));
		for (const T& Item : InitList)
		{
			Add(Item);
		}
	}
	TRingBuffer(const TRingBuffer& Other)
	{
		Reserve(Other.Num());
		for (const T& Item : Other)
		{
			Add(Item);
		}
	}
	TRingBuffer(TRingBuffer&& Other) { SwapWith(Other); }
	TRingBuffer& operator=(TRingBuffer Other)
	{
		SwapWith(Other);
		return *this;
	}
	~TRingBuffer() { Empty(); }

	int32 Num() const { return Count; }
	int32 Max() const { return Capacity; }
	bool IsEmpty() const { return Count == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < Count; }
	T& operator[](int32 Index)
	{
		checkf(IsValidIndex(Index), TEXT("Ring buffer index out of bounds: %d of %d"), Index, Count);
		return *Slot(Index);
	}
	const T& operator[](int32 Index) const { return const_cast<TRingBuffer&>(*this)[Index]; }
	T& First() { return (*this)[0]; }
	const T& First() const { return (*this)[0]; }
	T& Last() { return (*this)[Count - 1]; }
	const T& Last() const { return (*this)[Count - 1]; }

	/** At the end; answers the index. */
	int32 Add(const T& Item) { return Emplace(Item); }
	int32 Add(T&& Item) { return Emplace(MoveTempIfPossible(Item)); }
	T& Add_GetRef(const T& Item) { return (*this)[Emplace(Item)]; }
	T& Add_GetRef(T&& Item) { return (*this)[Emplace(MoveTempIfPossible(Item))]; }
	template <typename... ArgTypes>
	int32 Emplace(ArgTypes&&... Args)
	{
		// Made beside the buffer, because the arguments may refer to an element that growth would move.
		TTypeCompatibleBytes<T> Item;
		::new (static_cast<void*>(Item.Pad)) T(Forward<ArgTypes>(Args)...);
		GrowIfFull();
		RelocateConstructItems(static_cast<void*>(Slot(Count)), Item.GetTypedPtr(), 1);
		return Count++;
	}
	/** At the front; the indices of all others go up by one. */
	void AddFront(const T& Item) { EmplaceFront(Item); }
	void AddFront(T&& Item) { EmplaceFront(MoveTempIfPossible(Item)); }
	template <typename... ArgTypes>
	void EmplaceFront(ArgTypes&&... Args)
	{
		TTypeCompatibleBytes<T> Item;
		::new (static_cast<void*>(Item.Pad)) T(Forward<ArgTypes>(Args)...);
		GrowIfFull();
		Front = (Front - 1) & (Capacity - 1);
		RelocateConstructItems(static_cast<void*>(Slot(0)), Item.GetTypedPtr(), 1);
		++Count;
	}

	/** Removes elements of the end or the front, as many as there must be. */
	void Pop(int32 NumToRemove = 1)
	{
		check(NumToRemove >= 0 && NumToRemove <= Count);
		for (; NumToRemove > 0; --NumToRemove)
		{
			DestructItem(Slot(--Count));
		}
	}
	void PopFront(int32 NumToRemove = 1)
	{
		check(NumToRemove >= 0 && NumToRemove <= Count);
		for (; NumToRemove > 0; --NumToRemove)
		{
			T* const Item = Slot(0);
			Front = (Front + 1) & (Capacity - 1);
			--Count;
			DestructItem(Item);
		}
	}
	T PopValue()
	{
		T Result = MoveTemp(Last());
		Pop();
		return Result;
	}
	T PopFrontValue()
	{
		T Result = MoveTemp(First());
		PopFront();
		return Result;
	}
	/** Keeps the order of the others. */
	void RemoveAt(int32 Index)
	{
		check(IsValidIndex(Index));
		DestructItem(Slot(Index));
		for (; Index + 1 < Count; ++Index)
		{
			RelocateConstructItems(static_cast<void*>(Slot(Index)), Slot(Index + 1), 1);
		}
		--Count;
	}
	/** Removes every equal element; answers how many. */
	int32 Remove(const T& Item)
	{
		const T Copy(Item);
		int32 NumRemoved = 0;
		for (int32 Index = Count - 1; Index >= 0; --Index)
		{
			if (*Slot(Index) == Copy)
			{
				RemoveAt(Index);
				++NumRemoved;
			}
		}
		return NumRemoved;
	}

	/** Removes all and keeps the memory. */
	void Reset()
	{
		Pop(Count);
		Front = 0;
	}
	/** Removes all and gives the memory back, except room for ExpectedNum elements. */
	void Empty(int32 ExpectedNum = 0)
	{
		Reset();
		FMemory::Free(Data);
		Data = nullptr;
		Capacity = 0;
		Reserve(ExpectedNum);
	}
	void Reserve(int32 Wanted)
	{
		check(Wanted >= 0 && Wanted <= (1 << 30));
		if (Wanted > Capacity)
		{
			GrowTo(static_cast<int32>(std::bit_ceil(static_cast<uint32>(Wanted))));
		}
	}

	bool operator==(const TRingBuffer& Other) const
	{
		bool bEqual = Count == Other.Count;
		for (int32 Index = 0; bEqual && Index < Count; ++Index)
		{
			bEqual = (*this)[Index] == Other[Index];
		}
		return bEqual;
	}
	TIterator begin() { return TIterator(*this, 0); }
	TConstIterator begin() const { return TConstIterator(*this, 0); }
	TIterator end() { return TIterator(*this, Count); }
	TConstIterator end() const { return TConstIterator(*this, Count); }

private:
	T* Slot(int32 Index) const { return Data + ((Front + Index) & (Capacity - 1)); }

	void GrowIfFull()
	{
		if (Count == Capacity)
		{
			check(Capacity < (1 << 30));
			GrowTo(Capacity == 0 ? 4 : Capacity * 2);
		}
	}

	/** NewCapacity is a power of two, so that places are found by a mask. */
	void GrowTo(int32 NewCapacity)
	{
		T* const NewData = static_cast<T*>(FMemory::Malloc(static_cast<SIZE_T>(NewCapacity) * sizeof(T), alignof(T)));
		const int32 NumBeforeWrap = Count < Capacity - Front ? Count : Capacity - Front;
		RelocateConstructItems(static_cast<void*>(NewData), Data + Front, NumBeforeWrap);
		RelocateConstructItems(static_cast<void*>(NewData + NumBeforeWrap), Data, Count - NumBeforeWrap);
		FMemory::Free(Data);
		Data = NewData;
		Capacity = NewCapacity;
		Front = 0;
	}

	void SwapWith(TRingBuffer& Other)
	{
		::Swap(Data, Other.Data);
		::Swap(Capacity, Other.Capacity);
		::Swap(Front, Other.Front);
		::Swap(Count, Other.Count);
	}

	T* Data = nullptr;
	int32 Capacity = 0;
	int32 Front = 0;
	int32 Count = 0;
};

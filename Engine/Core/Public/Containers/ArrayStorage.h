#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/MemoryOps.h"
#include "Templates/UnrealTemplate.h"

#include <iterator>
#include <limits>

/**
 * The block of memory below TArray: its elements, its growth, and what moves elements by their bytes without a look at their values.
 * What it calls uninitialized is the caller's to construct.
 */
template <typename InElementType, typename InAllocatorType>
class TArrayStorage
{
public:
	using ElementType = InElementType;
	using SizeType = typename InAllocatorType::SizeType;
	using ElementAllocatorType = typename InAllocatorType::template ForElementType<ElementType>;

	TArrayStorage()
		: ArrayNum(0)
		, ArrayMax(AllocatorInstance.GetInitialCapacity())
	{
	}
	TArrayStorage(const TArrayStorage&) = delete;
	TArrayStorage& operator=(const TArrayStorage&) = delete;
	~TArrayStorage() { DestructItems(GetData(), ArrayNum); }

	ElementType* GetData() { return AllocatorInstance.GetAllocation(); }
	const ElementType* GetData() const { return AllocatorInstance.GetAllocation(); }
	static constexpr uint32 GetTypeSize() { return sizeof(ElementType); }
	SIZE_T GetAllocatedSize() const { return AllocatorInstance.GetAllocatedSize(ArrayMax, sizeof(ElementType)); }
	SizeType GetSlack() const { return ArrayMax - ArrayNum; }
	SizeType Num() const { return ArrayNum; }
	SIZE_T NumBytes() const { return static_cast<SIZE_T>(ArrayNum) * sizeof(ElementType); }
	SizeType Max() const { return ArrayMax; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }

	void RangeCheck(SizeType Index) const
	{
		checkf(Index >= 0 && Index < ArrayNum, TEXT("Array index out of bounds: %lld into an array of size %lld"),
			static_cast<int64>(Index), static_cast<int64>(ArrayNum));
	}

	ElementType& operator[](SizeType Index)
	{
		RangeCheck(Index);
		return GetData()[Index];
	}
	const ElementType& operator[](SizeType Index) const
	{
		RangeCheck(Index);
		return GetData()[Index];
	}
	ElementType& Last(SizeType IndexFromTheEnd = 0)
	{
		RangeCheck(ArrayNum - IndexFromTheEnd - 1);
		return GetData()[ArrayNum - IndexFromTheEnd - 1];
	}
	const ElementType& Last(SizeType IndexFromTheEnd = 0) const { return const_cast<TArrayStorage*>(this)->Last(IndexFromTheEnd); }
	ElementType& Top() { return Last(); }
	const ElementType& Top() const { return Last(); }

	ElementType* begin() { return GetData(); }
	const ElementType* begin() const { return GetData(); }
	ElementType* end() { return GetData() + ArrayNum; }
	const ElementType* end() const { return GetData() + ArrayNum; }
	auto rbegin() { return std::make_reverse_iterator(end()); }
	auto rbegin() const { return std::make_reverse_iterator(end()); }
	auto rend() { return std::make_reverse_iterator(begin()); }
	auto rend() const { return std::make_reverse_iterator(begin()); }

	/** Makes room for Count elements at the end without constructing them; answers the index of the first. */
	SizeType AddUninitialized(SizeType Count = 1)
	{
		check(Count >= 0);
		const SizeType OldNum = ArrayNum;
		if (Count > ArrayMax - ArrayNum)
		{
			GrowBy(Count);
		}
		ArrayNum = OldNum + Count;
		return OldNum;
	}
	void InsertUninitialized(SizeType Index, SizeType Count = 1)
	{
		check(Count >= 0 && Index >= 0 && Index <= ArrayNum);
		const SizeType OldNum = ArrayNum;
		AddUninitialized(Count);
		ElementType* const Data = GetData() + Index;
		RelocateConstructItems(static_cast<void*>(Data + Count), Data, OldNum - Index);
	}

	void RemoveAt(SizeType Index, SizeType Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(Count >= 0 && Index >= 0 && Count <= ArrayNum && Index <= ArrayNum - Count);
		if (Count == 0)
		{
			return;
		}
		ElementType* const Data = GetData() + Index;
		DestructItems(Data, Count);
		RelocateConstructItems(static_cast<void*>(Data), Data + Count, ArrayNum - Index - Count);
		ArrayNum -= Count;
		ShrinkIfAllowed(AllowShrinking);
	}
	void RemoveAt(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { RemoveAt(Index, 1, AllowShrinking); }
	void RemoveAtSwap(SizeType Index, SizeType Count, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(Count >= 0 && Index >= 0 && Count <= ArrayNum && Index <= ArrayNum - Count);
		if (Count == 0)
		{
			return;
		}
		ElementType* const Data = GetData() + Index;
		DestructItems(Data, Count);
		const SizeType NumAfterHole = ArrayNum - Index - Count;
		const SizeType NumToMove = NumAfterHole < Count ? NumAfterHole : Count;
		RelocateConstructItems(static_cast<void*>(Data), GetData() + (ArrayNum - NumToMove), NumToMove);
		ArrayNum -= Count;
		ShrinkIfAllowed(AllowShrinking);
	}
	void RemoveAtSwap(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { RemoveAtSwap(Index, 1, AllowShrinking); }

	/** Empties the array and keeps its memory, or grows it to NewSize. */
	void Reset(SizeType NewSize = 0)
	{
		if (NewSize > ArrayMax)
		{
			Empty(NewSize);
			return;
		}
		DestructAll();
	}
	/** Empties the array and gives its memory back, except room for Slack elements. */
	void Empty(SizeType Slack = 0)
	{
		check(Slack >= 0);
		DestructAll();
		if (ArrayMax != Slack)
		{
			ResizeTo(Slack);
		}
	}
	void Reserve(SizeType Number)
	{
		check(Number >= 0);
		if (Number > ArrayMax)
		{
			ResizeTo(Number);
		}
	}
	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			ResizeTo(ArrayNum);
		}
	}
	void SetNumUninitialized(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddUninitialized(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}
	/** Sets the count alone; nothing is constructed or destructed, and no memory is had or given. */
	void SetNumUnsafeInternal(SizeType NewNum)
	{
		checkSlow(NewNum <= ArrayMax && NewNum >= 0);
		ArrayNum = NewNum;
	}

	void Swap(SizeType First, SizeType Second) { SwapMemory(First, Second); }
	void SwapMemory(SizeType First, SizeType Second)
	{
		RangeCheck(First);
		RangeCheck(Second);
		::Swap(GetData()[First], GetData()[Second]);
	}

	ElementAllocatorType& GetAllocatorInstance() { return AllocatorInstance; }
	const ElementAllocatorType& GetAllocatorInstance() const { return AllocatorInstance; }

protected:
	bool IsOwnAddress(const void* Address) const
	{
		const uint8* const First = reinterpret_cast<const uint8*>(GetData());
		const uint8* const Byte = static_cast<const uint8*>(Address);
		return Byte >= First && Byte < First + static_cast<SIZE_T>(ArrayMax) * sizeof(ElementType);
	}

	FORCENOINLINE void GrowBy(SizeType Count)
	{
		checkf(Count <= std::numeric_limits<SizeType>::max() - ArrayNum, TEXT("Array of %lld elements cannot grow by %lld"),
			static_cast<int64>(ArrayNum), static_cast<int64>(Count));
		const SizeType NewMax = AllocatorInstance.CalculateSlackGrow(ArrayNum + Count, ArrayMax, sizeof(ElementType));
		AllocatorInstance.ResizeAllocation(ArrayNum, NewMax, sizeof(ElementType));
		ArrayMax = NewMax;
	}

	void ResizeTo(SizeType NewMax)
	{
		if (NewMax != 0)
		{
			NewMax = AllocatorInstance.CalculateSlackReserve(NewMax, sizeof(ElementType));
		}
		const SizeType InlineMax = AllocatorInstance.GetInitialCapacity();
		NewMax = NewMax < InlineMax ? InlineMax : NewMax;
		if (NewMax != ArrayMax)
		{
			ArrayMax = NewMax;
			AllocatorInstance.ResizeAllocation(ArrayNum, ArrayMax, sizeof(ElementType));
		}
	}

	void ShrinkIfAllowed(EAllowShrinking AllowShrinking)
	{
		if (AllowShrinking != EAllowShrinking::Yes)
		{
			return;
		}
		const SizeType NewMax = AllocatorInstance.CalculateSlackShrink(ArrayNum, ArrayMax, sizeof(ElementType));
		if (NewMax != ArrayMax)
		{
			AllocatorInstance.ResizeAllocation(ArrayNum, NewMax, sizeof(ElementType));
			ArrayMax = NewMax;
		}
	}

	template <typename OtherElementType>
	void CopyToEmpty(const OtherElementType* Source, SizeType Count, SizeType ExtraSlack)
	{
		check(ArrayNum == 0 && Count >= 0 && ExtraSlack >= 0);
		if (Count > 0 || ExtraSlack > 0)
		{
			Reserve(Count + ExtraSlack);
			ConstructItems<ElementType>(static_cast<void*>(GetData()), Source, Count);
			ArrayNum = Count;
		}
	}

	void MoveToEmpty(TArrayStorage& Other)
	{
		AllocatorInstance.MoveToEmpty(Other.AllocatorInstance);
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.ArrayNum = 0;
		Other.ArrayMax = Other.AllocatorInstance.GetInitialCapacity();
	}

	void DestructAll()
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
	}

	ElementAllocatorType AllocatorInstance;
	SizeType ArrayNum;
	SizeType ArrayMax;
};

#pragma once

#include "Containers/Array.h"

/** A TArray whose element type is known only at run time. It lies over the memory of a TArray of the same allocator. */
template <typename AllocatorType>
class TScriptArray
{
public:
	TScriptArray() = default;
	TScriptArray(const TScriptArray&) = delete;
	TScriptArray& operator=(const TScriptArray&) = delete;

	void* GetData() { return Allocator.GetAllocation(); }
	const void* GetData() const { return Allocator.GetAllocation(); }
	int32 Num() const { return ArrayNum; }
	int32 NumUnchecked() const { return ArrayNum; }
	int32 GetSlack() const { return ArrayMax - ArrayNum; }
	bool IsEmpty() const { return ArrayNum == 0; }
	bool IsValidIndex(int32 Index) const { return Index >= 0 && Index < ArrayNum; }

	/** Makes room without constructing; answers the index of the first new element. */
	int32 Add(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Count >= 0 && Count <= std::numeric_limits<int32>::max() - ArrayNum);
		const int32 OldNum = ArrayNum;
		if (Count > ArrayMax - ArrayNum)
		{
			Resize(Allocator.CalculateSlackGrow(ArrayNum + Count, ArrayMax, NumBytesPerElement), NumBytesPerElement, AlignmentOfElement);
		}
		ArrayNum += Count;
		return OldNum;
	}
	int32 AddZeroed(int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		const int32 Index = Add(Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memzero(ElementAt(Index, NumBytesPerElement), static_cast<SIZE_T>(Count) * NumBytesPerElement);
		return Index;
	}
	void Insert(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Index >= 0 && Index <= ArrayNum);
		const int32 OldNum = Add(Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memmove(ElementAt(Index + Count, NumBytesPerElement), ElementAt(Index, NumBytesPerElement),
			static_cast<SIZE_T>(OldNum - Index) * NumBytesPerElement);
	}
	void InsertZeroed(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		Insert(Index, Count, NumBytesPerElement, AlignmentOfElement);
		FMemory::Memzero(ElementAt(Index, NumBytesPerElement), static_cast<SIZE_T>(Count) * NumBytesPerElement);
	}
	/** Closes the gap of elements that the caller has destructed. */
	void Remove(int32 Index, int32 Count, int32 NumBytesPerElement, uint32 AlignmentOfElement,
		EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		check(Index >= 0 && Count >= 0 && Count <= ArrayNum - Index);
		if (Count == 0)
		{
			return;
		}
		FMemory::Memmove(ElementAt(Index, NumBytesPerElement), ElementAt(Index + Count, NumBytesPerElement),
			static_cast<SIZE_T>(ArrayNum - Index - Count) * NumBytesPerElement);
		ArrayNum -= Count;
		if (AllowShrinking == EAllowShrinking::Yes)
		{
			const int32 NewMax = Allocator.CalculateSlackShrink(ArrayNum, ArrayMax, NumBytesPerElement);
			if (NewMax != ArrayMax)
			{
				Resize(NewMax, NumBytesPerElement, AlignmentOfElement);
			}
		}
	}
	void SetNumUninitialized(
		int32 NewNum, int32 NumBytesPerElement, uint32 AlignmentOfElement, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			Add(NewNum - ArrayNum, NumBytesPerElement, AlignmentOfElement);
		}
		else
		{
			Remove(NewNum, ArrayNum - NewNum, NumBytesPerElement, AlignmentOfElement, AllowShrinking);
		}
	}
	void Empty(int32 Slack, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		check(Slack >= 0);
		ArrayNum = 0;
		if (Slack != ArrayMax)
		{
			Resize(Slack, NumBytesPerElement, AlignmentOfElement);
		}
	}
	void Reset(int32 NewSize, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		if (NewSize <= ArrayMax)
		{
			ArrayNum = 0;
		}
		else
		{
			Empty(NewSize, NumBytesPerElement, AlignmentOfElement);
		}
	}
	void Shrink(int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		if (ArrayNum != ArrayMax)
		{
			Resize(ArrayNum, NumBytesPerElement, AlignmentOfElement);
		}
	}
	void SwapMemory(int32 A, int32 B, int32 NumBytesPerElement)
	{
		FMemory::Memswap(ElementAt(A, NumBytesPerElement), ElementAt(B, NumBytesPerElement), NumBytesPerElement);
	}
	void MoveAssign(TScriptArray& Other, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		if (this != &Other)
		{
			Allocator.MoveToEmpty(Other.Allocator);
			ArrayNum = Other.ArrayNum;
			ArrayMax = Other.ArrayMax;
			Other.ArrayNum = 0;
			Other.ArrayMax = 0;
		}
	}
	SIZE_T GetAllocatedSize(int32 NumBytesPerElement) const { return Allocator.GetAllocatedSize(ArrayMax, NumBytesPerElement); }

private:
	uint8* ElementAt(int32 Index, int32 NumBytesPerElement)
	{
		return static_cast<uint8*>(GetData()) + static_cast<SIZE_T>(Index) * NumBytesPerElement;
	}

	void Resize(int32 NewMax, int32 NumBytesPerElement, uint32 AlignmentOfElement)
	{
		Allocator.ResizeAllocation(ArrayNum, NewMax, NumBytesPerElement, AlignmentOfElement);
		ArrayMax = NewMax;
	}

	typename AllocatorType::ForAnyElementType Allocator;
	int32 ArrayNum = 0;
	int32 ArrayMax = 0;
};

class FScriptArray : public TScriptArray<FHeapAllocator>
{
};

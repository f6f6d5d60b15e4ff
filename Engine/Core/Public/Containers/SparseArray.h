#pragma once

#include "Containers/Array.h"
#include "Containers/BitArray.h"

/** Result of a sparse allocation: where to construct the element. */
struct FSparseArrayAllocationInfo
{
	int32 Index;
	void* Pointer;
};

inline void* operator new(size_t Size, const FSparseArrayAllocationInfo& Allocation)
{
	return Allocation.Pointer;
}

/** An element's bytes, or while its index is free, the neighbours in the list of free indices. */
template <typename ElementType>
union TSparseArrayElementOrFreeListLink
{
	TTypeCompatibleBytes<ElementType> ElementData;
	struct
	{
		int32 PrevFreeIndex;
		int32 NextFreeIndex;
	};
};

/**
 * An array whose indices stay valid when other elements are removed. Holes are filled by later additions, the youngest
 * hole first; while nothing is removed, the order is that of insertion.
 */
template <typename InElementType, typename Allocator>
class TSparseArray
{
	using FElementOrFreeListLink = TSparseArrayElementOrFreeListLink<InElementType>;
	using DataType = TArray<FElementOrFreeListLink, typename Allocator::ElementAllocator>;
	using AllocationBitArrayType = TBitArray<typename Allocator::BitArrayAllocator>;

	template <typename OtherType, typename OtherAllocator>
	friend class TSparseArray;

public:
	using ElementType = InElementType;

	TSparseArray() = default;
	TSparseArray(const TSparseArray& Other) { CopyFrom(Other); }
	TSparseArray(TSparseArray&& Other) { MoveFrom(Other); }
	TSparseArray(std::initializer_list<ElementType> InitList)
	{
		for (const ElementType& Element : InitList)
		{
			Add(Element);
		}
	}
	~TSparseArray() { DestructAll(); }
	TSparseArray& operator=(const TSparseArray& Other)
	{
		if (this != &Other)
		{
			Empty(Other.GetMaxIndex());
			CopyFrom(Other);
		}
		return *this;
	}
	TSparseArray& operator=(TSparseArray&& Other)
	{
		if (this != &Other)
		{
			DestructAll();
			MoveFrom(Other);
		}
		return *this;
	}

	int32 Num() const { return Data.Num() - NumFreeIndices; }
	int32 GetMaxIndex() const { return Data.Num(); }
	int32 Max() const { return Data.Max(); }
	bool IsEmpty() const { return Num() == 0; }
	bool IsCompact() const { return NumFreeIndices == 0; }
	bool IsAllocated(int32 Index) const { return AllocationFlags[Index]; }
	bool IsValidIndex(int32 Index) const { return AllocationFlags.IsValidIndex(Index) && AllocationFlags[Index]; }
	SIZE_T GetAllocatedSize() const { return Data.GetAllocatedSize() + AllocationFlags.GetAllocatedSize(); }

	ElementType& operator[](int32 Index)
	{
		checkf(IsValidIndex(Index), TEXT("Sparse array has no element at index %d"), Index);
		return ElementAt(Index);
	}
	const ElementType& operator[](int32 Index) const { return const_cast<TSparseArray&>(*this)[Index]; }
	/** As operator[], for a caller who knows that the index is allocated. */
	ElementType& GetUnsafe(int32 Index) { return ElementAt(Index); }
	const ElementType& GetUnsafe(int32 Index) const { return const_cast<TSparseArray*>(this)->ElementAt(Index); }
	int32 PointerToIndex(const ElementType* Ptr) const
	{
		return static_cast<int32>(reinterpret_cast<const FElementOrFreeListLink*>(Ptr) - Data.GetData());
	}

	FSparseArrayAllocationInfo AddUninitialized()
	{
		int32 Index = FirstFreeIndex;
		if (NumFreeIndices > 0)
		{
			FirstFreeIndex = Link(Index).NextFreeIndex;
			--NumFreeIndices;
			if (NumFreeIndices > 0)
			{
				Link(FirstFreeIndex).PrevFreeIndex = INDEX_NONE;
			}
			AllocationFlags[Index] = true;
		}
		else
		{
			Index = Data.AddUninitialized(1);
			AllocationFlags.Add(true);
		}
		return {Index, Data.GetData() + Index};
	}
	int32 Add(const ElementType& Element) { return Emplace(Element); }
	int32 Add(ElementType&& Element) { return Emplace(MoveTempIfPossible(Element)); }
	template <typename... ArgsType>
	int32 Emplace(ArgsType&&... Args)
	{
		TTypeCompatibleBytes<ElementType> Item;
		::new (static_cast<void*>(Item.Pad)) ElementType(Forward<ArgsType>(Args)...);
		return AddRelocated(Item.GetTypedPtr());
	}
	/** Takes over the bytes of an element that the caller will not destruct. */
	int32 AddRelocated(ElementType* Element)
	{
		const FSparseArrayAllocationInfo Allocation = AddUninitialized();
		RelocateConstructItems(Allocation.Pointer, Element, 1);
		return Allocation.Index;
	}
	/** Makes the element at a given index, which must be free. */
	FSparseArrayAllocationInfo InsertUninitialized(int32 Index)
	{
		if (Index >= Data.Num())
		{
			const int32 OldNum = Data.Num();
			Data.AddUninitialized(Index + 1 - OldNum);
			AllocationFlags.Add(false, Index + 1 - OldNum);
			for (int32 Free = Data.Num() - 1; Free >= OldNum; --Free)
			{
				PushFree(Free);
			}
		}
		check(!AllocationFlags[Index]);
		--NumFreeIndices;
		const int32 Prev = Link(Index).PrevFreeIndex;
		const int32 Next = Link(Index).NextFreeIndex;
		if (Next != INDEX_NONE)
		{
			Link(Next).PrevFreeIndex = Prev;
		}
		if (Prev != INDEX_NONE)
		{
			Link(Prev).NextFreeIndex = Next;
		}
		else
		{
			FirstFreeIndex = Next;
		}
		AllocationFlags[Index] = true;
		return {Index, Data.GetData() + Index};
	}
	void Insert(int32 Index, const ElementType& Element) { ::new (InsertUninitialized(Index).Pointer) ElementType(Element); }

	void RemoveAt(int32 Index, int32 Count = 1)
	{
		for (int32 Removed = 0; Removed < Count; ++Removed)
		{
			DestructItem(&(*this)[Index + Removed]);
			RemoveAtUninitialized(Index + Removed);
		}
	}
	/** Frees the indices without destructing what is there. */
	void RemoveAtUninitialized(int32 Index, int32 Count = 1)
	{
		for (int32 Removed = 0; Removed < Count; ++Removed)
		{
			check(IsValidIndex(Index + Removed));
			AllocationFlags[Index + Removed] = false;
			PushFree(Index + Removed);
		}
	}
	void Empty(int32 ExpectedNumElements = 0)
	{
		DestructAll();
		Data.Empty(ExpectedNumElements);
		AllocationFlags.Empty(ExpectedNumElements);
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
	}
	void Reset()
	{
		DestructAll();
		Data.Reset();
		AllocationFlags.Reset();
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
	}
	void Reserve(int32 ExpectedNumElements)
	{
		Data.Reserve(ExpectedNumElements);
		AllocationFlags.Reserve(ExpectedNumElements);
	}
	/** Gives back the memory past the last element. */
	void Shrink()
	{
		const int32 Last = AllocationFlags.FindLast(true);
		if (Last + 1 < Data.Num())
		{
			Data.SetNumUninitialized(Last + 1, EAllowShrinking::No);
			AllocationFlags.SetNum(Last + 1, false);
			RebuildFreeList();
		}
		Data.Shrink();
	}
	/** Fills the holes with the elements at the end; answers whether anything moved. */
	bool Compact()
	{
		if (NumFreeIndices == 0)
		{
			return false;
		}
		int32 Last = Data.Num() - 1;
		for (int32 Hole = AllocationFlags.Find(false); Hole != INDEX_NONE && Hole < Last; Hole = AllocationFlags.FindFrom(false, Hole + 1))
		{
			while (Last > Hole && !AllocationFlags[Last])
			{
				--Last;
			}
			if (Last <= Hole)
			{
				break;
			}
			MoveElement(Last, Hole);
		}
		DropTail();
		return true;
	}
	/** Closes the holes and keeps the order; answers whether anything moved. */
	bool CompactStable()
	{
		if (NumFreeIndices == 0)
		{
			return false;
		}
		int32 Target = 0;
		for (int32 Index = AllocationFlags.Find(true); Index != INDEX_NONE; Index = AllocationFlags.FindFrom(true, Index + 1), ++Target)
		{
			if (Index != Target)
			{
				MoveElement(Index, Target);
			}
		}
		DropTail();
		return true;
	}
	template <typename Predicate>
	void Sort(const Predicate& Pred)
	{
		Compact();
		::Sort(reinterpret_cast<FSortable*>(Data.GetData()), Data.Num(), FSortPredicate<Predicate>{Pred});
	}
	void Sort() { Sort(TLess<>()); }
	template <typename Predicate>
	void StableSort(const Predicate& Pred)
	{
		CompactStable();
		::StableSort(reinterpret_cast<FSortable*>(Data.GetData()), Data.Num(), FSortPredicate<Predicate>{Pred});
	}
	/** Makes the next additions take the lowest free indices first. */
	void SortFreeList() { RebuildFreeList(); }

	friend bool operator==(const TSparseArray& A, const TSparseArray& B)
	{
		if (A.GetMaxIndex() != B.GetMaxIndex() || !(A.AllocationFlags == B.AllocationFlags))
		{
			return false;
		}
		for (TConstSetBitIterator It(A.AllocationFlags); It; ++It)
		{
			if (!(A[*It] == B[*It]))
			{
				return false;
			}
		}
		return true;
	}

	template <bool bConst>
	class TBaseIterator
	{
		using ArrayType = std::conditional_t<bConst, const TSparseArray, TSparseArray>;
		using ItElementType = std::conditional_t<bConst, const ElementType, ElementType>;

	public:
		explicit TBaseIterator(ArrayType& InArray, int32 StartIndex = 0)
			: Array(InArray)
			, Index(InArray.AllocationFlags.FindFrom(true, StartIndex))
		{
		}
		static TBaseIterator End(ArrayType& InArray)
		{
			TBaseIterator Result(InArray, InArray.GetMaxIndex());
			return Result;
		}
		TBaseIterator& operator++()
		{
			Index = Array.AllocationFlags.FindFrom(true, Index + 1);
			return *this;
		}
		explicit operator bool() const { return Index != INDEX_NONE; }
		ItElementType& operator*() const { return Array.GetUnsafe(Index); }
		ItElementType* operator->() const { return &Array.GetUnsafe(Index); }
		int32 GetIndex() const { return Index; }
		void RemoveCurrent() { Array.RemoveAt(Index); }
		friend bool operator==(const TBaseIterator& A, const TBaseIterator& B) { return A.Index == B.Index && &A.Array == &B.Array; }

	private:
		ArrayType& Array;
		int32 Index;
	};
	using TIterator = TBaseIterator<false>;
	using TConstIterator = TBaseIterator<true>;
	TIterator CreateIterator() { return TIterator(*this); }
	TConstIterator CreateConstIterator() const { return TConstIterator(*this); }
	TIterator begin() { return TIterator(*this); }
	TConstIterator begin() const { return TConstIterator(*this); }
	TIterator end() { return TIterator::End(*this); }
	TConstIterator end() const { return TConstIterator::End(*this); }

	friend FArchive& operator<<(FArchive& Ar, TSparseArray& Array)
	{
		const int32 Num = SerializeContainerNum(Ar, Array.Num());
		if (Ar.IsLoading())
		{
			Array.Empty();
			for (int32 Index = 0; Index < Num && !Ar.IsError(); ++Index)
			{
				Ar << Array[Array.Emplace()];
			}
			return Ar;
		}
		for (ElementType& Element : Array)
		{
			Ar << Element;
		}
		return Ar;
	}

private:
	// Sorting moves whole slots, whose bytes are as relocatable as the elements in them.
	struct FSortable
	{
		alignas(FElementOrFreeListLink) uint8 Bytes[sizeof(FElementOrFreeListLink)];
	};
	template <typename Predicate>
	struct FSortPredicate
	{
		const Predicate& Pred;
		bool operator()(const FSortable& A, const FSortable& B) const
		{
			const UE::Core::Private::TDereferencingPredicate<ElementType, Predicate> IsLess{Pred};
			return IsLess(reinterpret_cast<const ElementType&>(A), reinterpret_cast<const ElementType&>(B));
		}
	};

	FElementOrFreeListLink& Link(int32 Index) { return Data.GetData()[Index]; }
	ElementType& ElementAt(int32 Index) { return *reinterpret_cast<ElementType*>(&Data.GetData()[Index]); }

	void PushFree(int32 Index)
	{
		if (NumFreeIndices > 0)
		{
			Link(FirstFreeIndex).PrevFreeIndex = Index;
		}
		Link(Index).PrevFreeIndex = INDEX_NONE;
		Link(Index).NextFreeIndex = NumFreeIndices > 0 ? FirstFreeIndex : INDEX_NONE;
		FirstFreeIndex = Index;
		++NumFreeIndices;
	}
	void RebuildFreeList()
	{
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
		for (int32 Index = Data.Num() - 1; Index >= 0; --Index)
		{
			if (!AllocationFlags[Index])
			{
				PushFree(Index);
			}
		}
	}
	void MoveElement(int32 From, int32 To)
	{
		RelocateConstructItems(static_cast<void*>(&Link(To)), &ElementAt(From), 1);
		AllocationFlags[From] = false;
		AllocationFlags[To] = true;
	}
	void DropTail()
	{
		const int32 Count = Num();
		Data.SetNumUninitialized(Count, EAllowShrinking::No);
		AllocationFlags.SetNum(Count, false);
		FirstFreeIndex = INDEX_NONE;
		NumFreeIndices = 0;
	}
	void DestructAll()
	{
		if constexpr (!std::is_trivially_destructible_v<ElementType>)
		{
			for (TConstSetBitIterator<typename Allocator::BitArrayAllocator> It(AllocationFlags); It; ++It)
			{
				DestructItem(&ElementAt(*It));
			}
		}
	}
	// Holes are copied too, so that indices mean the same in both.
	void CopyFrom(const TSparseArray& Other)
	{
		FirstFreeIndex = Other.FirstFreeIndex;
		NumFreeIndices = Other.NumFreeIndices;
		Data.SetNumUninitialized(Other.Data.Num(), EAllowShrinking::No);
		AllocationFlags = Other.AllocationFlags;
		for (int32 Index = 0; Index < Other.Data.Num(); ++Index)
		{
			if (Other.AllocationFlags[Index])
			{
				::new (static_cast<void*>(&Link(Index))) ElementType(Other.GetUnsafe(Index));
			}
			else
			{
				FMemory::Memcpy(
					static_cast<void*>(&Link(Index)), static_cast<const void*>(Other.Data.GetData() + Index), 2 * sizeof(int32));
			}
		}
	}
	void MoveFrom(TSparseArray& Other)
	{
		Data = MoveTemp(Other.Data);
		AllocationFlags = MoveTemp(Other.AllocationFlags);
		FirstFreeIndex = Other.FirstFreeIndex;
		NumFreeIndices = Other.NumFreeIndices;
		Other.FirstFreeIndex = INDEX_NONE;
		Other.NumFreeIndices = 0;
	}

	DataType Data;
	AllocationBitArrayType AllocationFlags;
	int32 FirstFreeIndex = INDEX_NONE;
	int32 NumFreeIndices = 0;
};

#pragma once

#include "Containers/AllowShrinking.h"
#include "Containers/ContainerAllocationPolicies.h"
#include "Containers/ContainersFwd.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/Less.h"
#include "Templates/MemoryOps.h"
#include "Templates/Sorting.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include "Traits/ElementType.h"

#include <initializer_list>
#include <iterator>

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

	friend bool operator==(const TIndexedContainerIterator& A, const TIndexedContainerIterator& B) { return &A.Container == &B.Container && A.Index == B.Index; }

private:
	ContainerType& Container;
	SizeType Index;
};

/** Specialised for types whose archive form is their bytes, so that an array of them is read and written at once. */
template <typename T>
struct TCanBulkSerialize : TIntegralConstant<bool, std::is_arithmetic_v<T> && !std::is_same_v<T, bool>>
{
};

/**
 * A dynamic array. Elements stand in one block and are moved by their bytes, so a type must not point into itself.
 * An index out of range ends the program. References and iterators die when the array grows; adding an element of the array
 * to itself is allowed.
 */
template <typename InElementType, typename InAllocatorType>
class TArray
{
	template <typename OtherElementType, typename OtherAllocator>
	friend class TArray;

public:
	using ElementType = InElementType;
	using AllocatorType = InAllocatorType;
	using Allocator = InAllocatorType;
	using SizeType = typename InAllocatorType::SizeType;
	using ElementAllocatorType = typename InAllocatorType::template ForElementType<ElementType>;
	using Iterator = TIndexedContainerIterator<TArray, ElementType, SizeType>;
	using TIterator = Iterator;
	using ConstIterator = TIndexedContainerIterator<const TArray, const ElementType, SizeType>;
	using TConstIterator = ConstIterator;
	using RangedForIteratorType = ElementType*;
	using RangedForConstIteratorType = const ElementType*;

	TArray()
		: ArrayNum(0)
		, ArrayMax(AllocatorInstance.GetInitialCapacity())
	{
	}

	TArray(const ElementType* Ptr, SizeType Count)
		: TArray()
	{
		CopyToEmpty(Ptr, Count, 0);
	}

	TArray(std::initializer_list<InElementType> InitList)
		: TArray()
	{
		CopyToEmpty(InitList.begin(), static_cast<SizeType>(InitList.size()), 0);
	}

	template <typename OtherElementType, typename OtherSizeType>
	requires std::is_convertible_v<const OtherElementType&, ElementType>
	explicit TArray(const TArrayView<OtherElementType, OtherSizeType>& Other);

	TArray(const TArray& Other)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), Other.Num(), 0);
	}

	template <typename OtherElementType, typename OtherAllocator>
	requires std::is_constructible_v<ElementType, const OtherElementType&>
	explicit TArray(const TArray<OtherElementType, OtherAllocator>& Other)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), static_cast<SizeType>(Other.Num()), 0);
	}

	TArray(const TArray& Other, SizeType ExtraSlack)
		: TArray()
	{
		CopyToEmpty(Other.GetData(), Other.Num(), ExtraSlack);
	}

	TArray(TArray&& Other)
		: TArray()
	{
		MoveToEmpty(Other);
	}

	template <typename OtherAllocator>
	requires(!std::is_same_v<OtherAllocator, InAllocatorType>) explicit TArray(TArray<ElementType, OtherAllocator>&& Other)
		: TArray()
	{
		RelocateFrom(Other);
	}

	~TArray() { DestructItems(GetData(), ArrayNum); }

	TArray& operator=(std::initializer_list<InElementType> InitList)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(InitList.begin(), static_cast<SizeType>(InitList.size()), 0);
		return *this;
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			CopyToEmpty(Other.GetData(), Other.Num(), 0);
		}
		return *this;
	}

	template <typename OtherAllocator>
	requires(!std::is_same_v<OtherAllocator, InAllocatorType>)
		TArray&
		operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
		CopyToEmpty(Other.GetData(), static_cast<SizeType>(Other.Num()), 0);
		return *this;
	}

	template <typename OtherElementType, typename OtherSizeType>
	requires std::is_convertible_v<const OtherElementType&, ElementType>
		TArray& operator=(const TArrayView<OtherElementType, OtherSizeType>& Other);

	TArray& operator=(TArray&& Other)
	{
		if (this != &Other)
		{
			DestructItems(GetData(), ArrayNum);
			ArrayNum = 0;
			MoveToEmpty(Other);
		}
		return *this;
	}

	template <typename OtherAllocator>
	requires(!std::is_same_v<OtherAllocator, InAllocatorType>)
		TArray&
		operator=(TArray<ElementType, OtherAllocator>&& Other)
	{
		Reset();
		RelocateFrom(Other);
		return *this;
	}

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
		checkf(Index >= 0 && Index < ArrayNum, TEXT("Array index out of bounds: %lld into an array of size %lld"), static_cast<int64>(Index), static_cast<int64>(ArrayNum));
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
	const ElementType& Last(SizeType IndexFromTheEnd = 0) const { return const_cast<TArray*>(this)->Last(IndexFromTheEnd); }
	ElementType& Top() { return Last(); }
	const ElementType& Top() const { return Last(); }

	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}
	void Push(ElementType&& Item) { Add(MoveTempIfPossible(Item)); }
	void Push(const ElementType& Item) { Add(Item); }

	void Shrink()
	{
		if (ArrayMax != ArrayNum)
		{
			ResizeTo(ArrayNum);
		}
	}

	bool FindLast(const ElementType& Item, SizeType& Index) const
	{
		Index = FindLast(Item);
		return Index != INDEX_NONE;
	}
	SizeType FindLast(const ElementType& Item) const
	{
		return FindLastByPredicate([&Item](const ElementType& Element)
			{ return Element == Item; });
	}
	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred, SizeType Count) const
	{
		check(Count >= 0 && Count <= ArrayNum);
		const ElementType* const Data = GetData();
		for (SizeType Index = Count - 1; Index >= 0; --Index)
		{
			if (Invoke(Pred, Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred) const
	{
		return FindLastByPredicate(MoveTemp(Pred), ArrayNum);
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		const ElementType* const Data = GetData();
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename Predicate>
	SizeType IndexOfByPredicate(Predicate Pred) const
	{
		const ElementType* const Data = GetData();
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Invoke(Pred, Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	SizeType Find(const ElementType& Item) const { return IndexOfByKey(Item); }
	bool Find(const ElementType& Item, SizeType& Index) const
	{
		Index = Find(Item);
		return Index != INDEX_NONE;
	}
	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index == INDEX_NONE ? nullptr : GetData() + Index;
	}
	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		return const_cast<TArray*>(this)->FindByKey(Key);
	}
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const SizeType Index = IndexOfByPredicate(MoveTemp(Pred));
		return Index == INDEX_NONE ? nullptr : GetData() + Index;
	}
	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		return const_cast<TArray*>(this)->FindByPredicate(MoveTemp(Pred));
	}
	template <typename Predicate>
	TArray FilterByPredicate(Predicate Pred) const
	{
		TArray Result;
		for (const ElementType& Element : *this)
		{
			if (Invoke(Pred, Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	template <typename KeyType>
	bool Contains(const KeyType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}
	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return IndexOfByPredicate(MoveTemp(Pred)) != INDEX_NONE;
	}

	bool operator==(const TArray& Other) const { return ArrayNum == Other.ArrayNum && CompareItems(GetData(), Other.GetData(), ArrayNum); }

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
	SizeType AddZeroed(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), static_cast<SIZE_T>(Count) * sizeof(ElementType));
		return Index;
	}
	ElementType& AddZeroed_GetRef()
	{
		const SizeType Index = AddZeroed();
		return GetData()[Index];
	}
	SizeType AddDefaulted(SizeType Count = 1)
	{
		const SizeType Index = AddUninitialized(Count);
		DefaultConstructItems<ElementType>(static_cast<void*>(GetData() + Index), Count);
		return Index;
	}
	ElementType& AddDefaulted_GetRef()
	{
		const SizeType Index = AddDefaulted();
		return GetData()[Index];
	}

	template <typename... ArgsType>
	SizeType Emplace(ArgsType&&... Args)
	{
		if (ArrayNum < ArrayMax)
		{
			::new (static_cast<void*>(GetData() + ArrayNum)) ElementType(Forward<ArgsType>(Args)...);
			return ArrayNum++;
		}
		return EmplaceWithGrowth(Forward<ArgsType>(Args)...);
	}
	template <typename... ArgsType>
	ElementType& Emplace_GetRef(ArgsType&&... Args)
	{
		const SizeType Index = Emplace(Forward<ArgsType>(Args)...);
		return GetData()[Index];
	}
	SizeType Add(ElementType&& Item) { return Emplace(MoveTempIfPossible(Item)); }
	SizeType Add(const ElementType& Item) { return Emplace(Item); }
	ElementType& Add_GetRef(ElementType&& Item) { return Emplace_GetRef(MoveTempIfPossible(Item)); }
	ElementType& Add_GetRef(const ElementType& Item) { return Emplace_GetRef(Item); }
	SizeType AddUnique(ElementType&& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(MoveTempIfPossible(Item));
	}
	SizeType AddUnique(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		return Index != INDEX_NONE ? Index : Add(Item);
	}

	template <typename OtherAllocator>
	void Append(const TArray<ElementType, OtherAllocator>& Source)
	{
		Append(Source.GetData(), static_cast<SizeType>(Source.Num()));
	}
	/** Moves the elements over; the source is left empty. */
	template <typename OtherAllocator>
	void Append(TArray<ElementType, OtherAllocator>&& Source)
	{
		if (static_cast<const void*>(this) == static_cast<const void*>(&Source))
		{
			return;
		}
		RelocateFrom(Source);
	}
	template <typename ContainerType>
	requires(TIsContiguousContainer<ContainerType>::Value && !std::is_array_v<std::remove_reference_t<ContainerType>>) void Append(const ContainerType& Source)
	{
		Append(GetDataOf(Source), static_cast<SizeType>(GetNum(Source)));
	}
	void Append(std::initializer_list<ElementType> InitList) { Append(InitList.begin(), static_cast<SizeType>(InitList.size())); }
	template <typename OtherType>
	requires std::is_constructible_v<ElementType, const OtherType&>
	void Append(const OtherType* Ptr, SizeType Count)
	{
		check(Ptr != nullptr || Count == 0);
		if (Count <= 0)
		{
			return;
		}
		const PTRINT SelfOffset = reinterpret_cast<const uint8*>(Ptr) - reinterpret_cast<const uint8*>(GetData());
		const bool bSelf = IsOwnAddress(Ptr);
		const SizeType Index = AddUninitialized(Count);
		const OtherType* const From = bSelf ? reinterpret_cast<const OtherType*>(reinterpret_cast<const uint8*>(GetData()) + SelfOffset) : Ptr;
		ConstructItems<ElementType>(static_cast<void*>(GetData() + Index), From, Count);
	}
	TArray& operator+=(TArray&& Other)
	{
		Append(MoveTemp(Other));
		return *this;
	}
	TArray& operator+=(const TArray& Other)
	{
		Append(Other);
		return *this;
	}
	TArray& operator+=(std::initializer_list<ElementType> InitList)
	{
		Append(InitList);
		return *this;
	}

	void InsertUninitialized(SizeType Index, SizeType Count = 1)
	{
		check(Count >= 0 && Index >= 0 && Index <= ArrayNum);
		const SizeType OldNum = ArrayNum;
		AddUninitialized(Count);
		ElementType* const Data = GetData() + Index;
		RelocateConstructItems(static_cast<void*>(Data + Count), Data, OldNum - Index);
	}
	void InsertZeroed(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		FMemory::Memzero(static_cast<void*>(GetData() + Index), static_cast<SIZE_T>(Count) * sizeof(ElementType));
	}
	ElementType& InsertZeroed_GetRef(SizeType Index)
	{
		InsertZeroed(Index);
		return GetData()[Index];
	}
	void InsertDefaulted(SizeType Index, SizeType Count = 1)
	{
		InsertUninitialized(Index, Count);
		DefaultConstructItems<ElementType>(static_cast<void*>(GetData() + Index), Count);
	}
	ElementType& InsertDefaulted_GetRef(SizeType Index)
	{
		InsertDefaulted(Index);
		return GetData()[Index];
	}
	SizeType Insert(ElementType&& Item, SizeType Index)
	{
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return Index;
	}
	SizeType Insert(const ElementType& Item, SizeType Index)
	{
		EmplaceAt(Index, Item);
		return Index;
	}
	ElementType& Insert_GetRef(ElementType&& Item, SizeType Index)
	{
		EmplaceAt(Index, MoveTempIfPossible(Item));
		return GetData()[Index];
	}
	ElementType& Insert_GetRef(const ElementType& Item, SizeType Index)
	{
		EmplaceAt(Index, Item);
		return GetData()[Index];
	}
	SizeType Insert(std::initializer_list<ElementType> InitList, SizeType Index) { return Insert(InitList.begin(), static_cast<SizeType>(InitList.size()), Index); }
	template <typename OtherAllocator>
	SizeType Insert(const TArray<ElementType, OtherAllocator>& Items, SizeType Index)
	{
		check(static_cast<const void*>(this) != static_cast<const void*>(&Items));
		return Insert(Items.GetData(), static_cast<SizeType>(Items.Num()), Index);
	}
	template <typename OtherAllocator>
	SizeType Insert(TArray<ElementType, OtherAllocator>&& Items, SizeType Index)
	{
		check(static_cast<const void*>(this) != static_cast<const void*>(&Items));
		const SizeType Count = static_cast<SizeType>(Items.Num());
		InsertUninitialized(Index, Count);
		RelocateConstructItems(static_cast<void*>(GetData() + Index), Items.GetData(), Count);
		Items.ArrayNum = 0;
		return Index;
	}
	SizeType Insert(const ElementType* Ptr, SizeType Count, SizeType Index)
	{
		check(!IsOwnAddress(Ptr));
		InsertUninitialized(Index, Count);
		ConstructItems<ElementType>(static_cast<void*>(GetData() + Index), Ptr, Count);
		return Index;
	}
	template <typename... ArgsType>
	void EmplaceAt(SizeType Index, ArgsType&&... Args)
	{
		TTypeCompatibleBytes<ElementType> Item;
		::new (static_cast<void*>(Item.Pad)) ElementType(Forward<ArgsType>(Args)...);
		InsertUninitialized(Index, 1);
		RelocateConstructItems(static_cast<void*>(GetData() + Index), Item.GetTypedPtr(), 1);
	}
	template <typename... ArgsType>
	ElementType& EmplaceAt_GetRef(SizeType Index, ArgsType&&... Args)
	{
		EmplaceAt(Index, Forward<ArgsType>(Args)...);
		return GetData()[Index];
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

	/** Removes every equal element, keeping the order; answers how many. */
	SizeType Remove(const ElementType& Item)
	{
		if (IsOwnAddress(&Item))
		{
			const ElementType Copy(Item);
			return RemoveAll([&Copy](const ElementType& Element)
				{ return Element == Copy; });
		}
		return RemoveAll([&Item](const ElementType& Element)
			{ return Element == Item; });
	}
	template <typename Predicate>
	SizeType RemoveAll(const Predicate& Pred)
	{
		ElementType* const Data = GetData();
		SizeType Kept = 0;
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Invoke(Pred, Data[Index]))
			{
				DestructItem(Data + Index);
				continue;
			}
			if (Kept != Index)
			{
				RelocateConstructItems(static_cast<void*>(Data + Kept), Data + Index, 1);
			}
			++Kept;
		}
		const SizeType NumRemoved = ArrayNum - Kept;
		ArrayNum = Kept;
		return NumRemoved;
	}
	template <typename Predicate>
	SizeType RemoveAllSwap(const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		SizeType NumRemoved = 0;
		for (SizeType Index = 0; Index < ArrayNum;)
		{
			if (Invoke(Pred, GetData()[Index]))
			{
				RemoveAtSwap(Index, 1, EAllowShrinking::No);
				++NumRemoved;
			}
			else
			{
				++Index;
			}
		}
		ShrinkIfAllowed(AllowShrinking);
		return NumRemoved;
	}
	SizeType RemoveSingle(const ElementType& Item)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAt(Index, 1, EAllowShrinking::No);
		return 1;
	}
	SizeType RemoveSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const ElementType Copy(Item);
		return RemoveAllSwap([&Copy](const ElementType& Element)
			{ return Element == Copy; },
			AllowShrinking);
	}
	SizeType RemoveSingleSwap(const ElementType& Item, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		const SizeType Index = Find(Item);
		if (Index == INDEX_NONE)
		{
			return 0;
		}
		RemoveAtSwap(Index, 1, AllowShrinking);
		return 1;
	}

	/** Empties the array and keeps its memory, or grows it to NewSize. */
	void Reset(SizeType NewSize = 0)
	{
		if (NewSize > ArrayMax)
		{
			Empty(NewSize);
			return;
		}
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
	}
	/** Empties the array and gives its memory back, except room for Slack elements. */
	void Empty(SizeType Slack = 0)
	{
		check(Slack >= 0);
		DestructItems(GetData(), ArrayNum);
		ArrayNum = 0;
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
	void SetNum(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddDefaulted(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
		}
	}
	void SetNumZeroed(SizeType NewNum, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		if (NewNum > ArrayNum)
		{
			AddZeroed(NewNum - ArrayNum);
		}
		else
		{
			RemoveAt(NewNum, ArrayNum - NewNum, AllowShrinking);
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
	/** Fills the array with Count copies of Element. */
	void Init(const ElementType& Element, SizeType Count)
	{
		const ElementType Copy(Element);
		Empty(Count);
		for (SizeType Index = 0; Index < Count; ++Index)
		{
			Add(Copy);
		}
	}

	void Swap(SizeType First, SizeType Second) { SwapMemory(First, Second); }
	void SwapMemory(SizeType First, SizeType Second)
	{
		RangeCheck(First);
		RangeCheck(Second);
		::Swap(GetData()[First], GetData()[Second]);
	}

	/** Sorts by operator<, or by the predicate; elements that are pointers are dereferenced for both. Not stable. */
	void Sort() { ::Sort(GetData(), ArrayNum); }
	template <typename Predicate>
	void Sort(const Predicate& Pred)
	{
		::Sort(GetData(), ArrayNum, Pred);
	}
	void StableSort() { ::StableSort(GetData(), ArrayNum); }
	template <typename Predicate>
	void StableSort(const Predicate& Pred)
	{
		::StableSort(GetData(), ArrayNum, Pred);
	}

	/** The heap functions keep the least element, by the predicate, at the top (index 0). */
	void Heapify() { Heapify(TLess<>()); }
	template <typename Predicate>
	void Heapify(const Predicate& Pred)
	{
		UE::Core::Private::MakeHeap(GetData(), ArrayNum, Pred);
	}
	SizeType HeapPush(ElementType&& Item) { return HeapPush(MoveTempIfPossible(Item), TLess<>()); }
	SizeType HeapPush(const ElementType& Item) { return HeapPush(Item, TLess<>()); }
	template <typename Predicate>
	SizeType HeapPush(ElementType&& Item, const Predicate& Pred)
	{
		Add(MoveTempIfPossible(Item));
		return UE::Core::Private::SiftUp(GetData(), SizeType(0), ArrayNum - 1, Pred);
	}
	template <typename Predicate>
	SizeType HeapPush(const ElementType& Item, const Predicate& Pred)
	{
		Add(Item);
		return UE::Core::Private::SiftUp(GetData(), SizeType(0), ArrayNum - 1, Pred);
	}
	void HeapPop(ElementType& OutItem, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { HeapPop(OutItem, TLess<>(), AllowShrinking); }
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
		RemoveAtSwap(0, 1, AllowShrinking);
		UE::Core::Private::SiftDown(GetData(), SizeType(0), ArrayNum, Pred);
	}
	void HeapRemoveAt(SizeType Index, EAllowShrinking AllowShrinking = EAllowShrinking::Default) { HeapRemoveAt(Index, TLess<>(), AllowShrinking); }
	template <typename Predicate>
	void HeapRemoveAt(SizeType Index, const Predicate& Pred, EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RemoveAtSwap(Index, 1, AllowShrinking);
		UE::Core::Private::SiftDown(GetData(), Index, ArrayNum, Pred);
		if (Index < ArrayNum)
		{
			UE::Core::Private::SiftUp(GetData(), SizeType(0), Index, Pred);
		}
	}
	void HeapSort() { ::Sort(GetData(), ArrayNum); }
	template <typename Predicate>
	void HeapSort(const Predicate& Pred)
	{
		::Sort(GetData(), ArrayNum, Pred);
	}
	ElementType& HeapTop() { return (*this)[0]; }
	const ElementType& HeapTop() const { return (*this)[0]; }
	void VerifyHeap() const { checkSlow(UE::Core::Private::IsHeap(GetData(), ArrayNum, TLess<>())); }

	Iterator CreateIterator() { return Iterator(*this); }
	ConstIterator CreateConstIterator() const { return ConstIterator(*this); }

	ElementType* begin() { return GetData(); }
	const ElementType* begin() const { return GetData(); }
	ElementType* end() { return GetData() + ArrayNum; }
	const ElementType* end() const { return GetData() + ArrayNum; }
	auto rbegin() { return std::make_reverse_iterator(end()); }
	auto rbegin() const { return std::make_reverse_iterator(end()); }
	auto rend() { return std::make_reverse_iterator(begin()); }
	auto rend() const { return std::make_reverse_iterator(begin()); }

	ElementAllocatorType& GetAllocatorInstance() { return AllocatorInstance; }
	const ElementAllocatorType& GetAllocatorInstance() const { return AllocatorInstance; }

private:
	template <typename ContainerType>
	static auto GetDataOf(const ContainerType& Container)
	{
		return ::GetData(Container);
	}

	bool IsOwnAddress(const void* Address) const
	{
		const uint8* const First = reinterpret_cast<const uint8*>(GetData());
		const uint8* const Byte = static_cast<const uint8*>(Address);
		return Byte >= First && Byte < First + static_cast<SIZE_T>(ArrayMax) * sizeof(ElementType);
	}

	// The arguments may refer to an element of this array, so the new one is made before the memory moves.
	template <typename... ArgsType>
	FORCENOINLINE SizeType EmplaceWithGrowth(ArgsType&&... Args)
	{
		TTypeCompatibleBytes<ElementType> Item;
		::new (static_cast<void*>(Item.Pad)) ElementType(Forward<ArgsType>(Args)...);
		const SizeType Index = AddUninitialized();
		RelocateConstructItems(static_cast<void*>(GetData() + Index), Item.GetTypedPtr(), 1);
		return Index;
	}

	FORCENOINLINE void GrowBy(SizeType Count)
	{
		checkf(Count <= std::numeric_limits<SizeType>::max() - ArrayNum, TEXT("Array of %lld elements cannot grow by %lld"), static_cast<int64>(ArrayNum), static_cast<int64>(Count));
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

	void MoveToEmpty(TArray& Other)
	{
		AllocatorInstance.MoveToEmpty(Other.AllocatorInstance);
		ArrayNum = Other.ArrayNum;
		ArrayMax = Other.ArrayMax;
		Other.ArrayNum = 0;
		Other.ArrayMax = Other.AllocatorInstance.GetInitialCapacity();
	}

	template <typename OtherAllocator>
	void RelocateFrom(TArray<ElementType, OtherAllocator>& Source)
	{
		const SizeType Count = static_cast<SizeType>(Source.Num());
		const SizeType Index = AddUninitialized(Count);
		RelocateConstructItems(static_cast<void*>(GetData() + Index), Source.GetData(), Count);
		Source.ArrayNum = 0;
	}

	ElementAllocatorType AllocatorInstance;
	SizeType ArrayNum;
	SizeType ArrayMax;
};

template <typename ElementType, typename Allocator>
struct TIsContiguousContainer<TArray<ElementType, Allocator>>
{
	static constexpr bool Value = true;
	static constexpr bool value = Value;
};

template <typename T>
struct TIsTArray : TIntegralConstant<bool, false>
{
};

template <typename ElementType, typename Allocator>
struct TIsTArray<TArray<ElementType, Allocator>> : TIntegralConstant<bool, true>
{
};

template <typename ElementType, typename Allocator>
uint32 GetTypeHash(const TArray<ElementType, Allocator>& Array)
{
	uint32 Hash = 0;
	for (const ElementType& Element : Array)
	{
		Hash = HashCombineFast(Hash, GetTypeHash(Element));
	}
	return Hash;
}

#include "Serialization/ArraySerialization.h"

#pragma once

#include "Containers/ArrayOrdering.h"
#include "Containers/ArrayQueries.h"
#include "Containers/ArrayStorage.h"
#include "Containers/ContainersFwd.h"
#include "Containers/IndexedContainerIterator.h"
#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/MemoryOps.h"
#include "Templates/TypeHash.h"
#include "Templates/UnrealTemplate.h"
#include "Traits/ElementType.h"

#include <initializer_list>

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
class TArray : public TArrayStorage<InElementType, InAllocatorType>,
			   public TArrayQueries<TArray<InElementType, InAllocatorType>, InElementType, typename InAllocatorType::SizeType>,
			   public TArrayOrdering<TArray<InElementType, InAllocatorType>, InElementType, typename InAllocatorType::SizeType>
{
	template <typename OtherElementType, typename OtherAllocator>
	friend class TArray;

	using Storage = TArrayStorage<InElementType, InAllocatorType>;
	using Queries = TArrayQueries<TArray, InElementType, typename InAllocatorType::SizeType>;

public:
	using ElementType = InElementType;
	using AllocatorType = InAllocatorType;
	using Allocator = InAllocatorType;
	using SizeType = typename InAllocatorType::SizeType;
	using typename Storage::ElementAllocatorType;
	using Iterator = TIndexedContainerIterator<TArray, ElementType, SizeType>;
	using TIterator = Iterator;
	using ConstIterator = TIndexedContainerIterator<const TArray, const ElementType, SizeType>;
	using TConstIterator = ConstIterator;
	using RangedForIteratorType = ElementType*;
	using RangedForConstIteratorType = const ElementType*;

	using Queries::Find;
	using Storage::AddUninitialized;
	using Storage::Empty;
	using Storage::GetData;
	using Storage::InsertUninitialized;
	using Storage::Num;
	using Storage::RangeCheck;
	using Storage::RemoveAt;
	using Storage::RemoveAtSwap;
	using Storage::Reserve;
	using Storage::Reset;

	TArray() = default;

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

	~TArray() = default;

	TArray& operator=(std::initializer_list<InElementType> InitList)
	{
		DestructAll();
		CopyToEmpty(InitList.begin(), static_cast<SizeType>(InitList.size()), 0);
		return *this;
	}

	TArray& operator=(const TArray& Other)
	{
		if (this != &Other)
		{
			DestructAll();
			CopyToEmpty(Other.GetData(), Other.Num(), 0);
		}
		return *this;
	}

	template <typename OtherAllocator>
	requires(!std::is_same_v<OtherAllocator, InAllocatorType>)
		TArray&
		operator=(const TArray<ElementType, OtherAllocator>& Other)
	{
		DestructAll();
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
			DestructAll();
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

	ElementType Pop(EAllowShrinking AllowShrinking = EAllowShrinking::Default)
	{
		RangeCheck(0);
		ElementType Result = MoveTempIfPossible(GetData()[ArrayNum - 1]);
		RemoveAt(ArrayNum - 1, 1, AllowShrinking);
		return Result;
	}
	void Push(ElementType&& Item) { Add(MoveTempIfPossible(Item)); }
	void Push(const ElementType& Item) { Add(Item); }

	bool operator==(const TArray& Other) const { return ArrayNum == Other.ArrayNum && CompareItems(GetData(), Other.GetData(), ArrayNum); }

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
	requires(TIsContiguousContainer<ContainerType>::Value && !std::is_array_v<std::remove_reference_t<ContainerType>>) void Append(
		const ContainerType& Source)
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
		const OtherType* const From =
			bSelf ? reinterpret_cast<const OtherType*>(reinterpret_cast<const uint8*>(GetData()) + SelfOffset) : Ptr;
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
	SizeType Insert(std::initializer_list<ElementType> InitList, SizeType Index)
	{
		return Insert(InitList.begin(), static_cast<SizeType>(InitList.size()), Index);
	}
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
		Items.SetNumUnsafeInternal(0);
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

	Iterator CreateIterator() { return Iterator(*this); }
	ConstIterator CreateConstIterator() const { return ConstIterator(*this); }

private:
	using Storage::ArrayMax;
	using Storage::ArrayNum;
	using Storage::CopyToEmpty;
	using Storage::DestructAll;
	using Storage::IsOwnAddress;
	using Storage::MoveToEmpty;
	using Storage::ShrinkIfAllowed;

	template <typename ContainerType>
	static auto GetDataOf(const ContainerType& Container)
	{
		return ::GetData(Container);
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

	template <typename OtherAllocator>
	void RelocateFrom(TArray<ElementType, OtherAllocator>& Source)
	{
		const SizeType Count = static_cast<SizeType>(Source.Num());
		const SizeType Index = AddUninitialized(Count);
		RelocateConstructItems(static_cast<void*>(GetData() + Index), Source.GetData(), Count);
		Source.SetNumUnsafeInternal(0);
	}
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

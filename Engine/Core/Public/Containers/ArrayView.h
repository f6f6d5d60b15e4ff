#pragma once

#include "Containers/Array.h"

/** Sees elements that stand in one block and belong to someone else, who must outlive the view and not grow. */
template <typename InElementType, typename InSizeType>
class TArrayView
{
	template <typename OtherElementType>
	static constexpr bool IsCompatible = std::is_convertible_v<OtherElementType (*)[], InElementType (*)[]>;

public:
	using ElementType = InElementType;
	using SizeType = InSizeType;

	constexpr TArrayView() = default;
	template <typename OtherElementType>
	requires(IsCompatible<OtherElementType>) constexpr TArrayView(OtherElementType* InData, SizeType InCount)
		: DataPtr(InData)
		, ArrayNum(InCount)
	{
		check(ArrayNum >= 0);
	}
	template <typename ContainerType>
	requires(TIsContiguousContainer<ContainerType>::Value&&
			IsCompatible<std::remove_pointer_t<decltype(GetData(std::declval<ContainerType&>()))>>) constexpr TArrayView(ContainerType&&
			Other UE_LIFETIMEBOUND)
		: DataPtr(::GetData(Other))
		, ArrayNum(static_cast<SizeType>(::GetNum(Other)))
	{
	}
	constexpr TArrayView(
		std::initializer_list<std::remove_const_t<InElementType>> List UE_LIFETIMEBOUND) requires std::is_const_v<InElementType>
		: DataPtr(::GetData(List)), ArrayNum(static_cast<SizeType>(List.size()))
	{
	}

	constexpr ElementType* GetData() const { return DataPtr; }
	static constexpr SIZE_T GetTypeSize() { return sizeof(ElementType); }
	constexpr SizeType Num() const { return ArrayNum; }
	constexpr SIZE_T NumBytes() const { return static_cast<SIZE_T>(ArrayNum) * sizeof(ElementType); }
	constexpr bool IsEmpty() const { return ArrayNum == 0; }
	constexpr bool IsValidIndex(SizeType Index) const { return Index >= 0 && Index < ArrayNum; }
	ElementType& operator[](SizeType Index) const
	{
		checkf(IsValidIndex(Index), TEXT("Array index out of bounds: %lld into a view of size %lld"), static_cast<int64>(Index),
			static_cast<int64>(ArrayNum));
		return DataPtr[Index];
	}
	ElementType& Last(SizeType IndexFromTheEnd = 0) const { return (*this)[ArrayNum - IndexFromTheEnd - 1]; }

	/** Parts of the view; bounds are cut to what is there. */
	TArrayView Left(SizeType Count) const { return TArrayView(DataPtr, Clamp(Count)); }
	TArrayView LeftChop(SizeType Count) const { return TArrayView(DataPtr, Clamp(ArrayNum - Count)); }
	TArrayView Right(SizeType Count) const { return RightChop(ArrayNum - Clamp(Count)); }
	TArrayView RightChop(SizeType Count) const { return TArrayView(DataPtr + Clamp(Count), ArrayNum - Clamp(Count)); }
	TArrayView Mid(SizeType Index, SizeType Count = std::numeric_limits<SizeType>::max()) const { return RightChop(Index).Left(Count); }
	/** A part whose bounds must be within the view. */
	TArrayView Slice(SizeType Index, SizeType Count) const
	{
		check(Index >= 0 && Count >= 0 && Count <= ArrayNum - Index);
		return TArrayView(DataPtr + Index, Count);
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		return IndexOfByPredicate([&Key](const ElementType& Element)
			{ return Element == Key; });
	}
	template <typename Predicate>
	SizeType IndexOfByPredicate(Predicate Pred) const
	{
		for (SizeType Index = 0; Index < ArrayNum; ++Index)
		{
			if (Invoke(Pred, DataPtr[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	SizeType Find(const ElementType& Item) const { return IndexOfByKey(Item); }
	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key) const
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index == INDEX_NONE ? nullptr : DataPtr + Index;
	}
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred) const
	{
		const SizeType Index = IndexOfByPredicate(MoveTemp(Pred));
		return Index == INDEX_NONE ? nullptr : DataPtr + Index;
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

	void Sort() const { ::Sort(DataPtr, ArrayNum); }
	template <typename Predicate>
	void Sort(const Predicate& Pred) const
	{
		::Sort(DataPtr, ArrayNum, Pred);
	}
	template <typename Predicate>
	void StableSort(const Predicate& Pred) const
	{
		::StableSort(DataPtr, ArrayNum, Pred);
	}

	constexpr ElementType* begin() const { return DataPtr; }
	constexpr ElementType* end() const { return DataPtr + ArrayNum; }

private:
	constexpr SizeType Clamp(SizeType Count) const
	{
		const SizeType AtMost = Count < ArrayNum ? Count : ArrayNum;
		return AtMost > 0 ? AtMost : 0;
	}

	ElementType* DataPtr = nullptr;
	SizeType ArrayNum = 0;
};

template <typename T, typename SizeType>
struct TIsContiguousContainer<TArrayView<T, SizeType>>
{
	static constexpr bool Value = true;
	static constexpr bool value = Value;
};

template <typename ContainerType>
requires(TIsContiguousContainer<ContainerType>::Value) auto MakeArrayView(ContainerType&& Container)
{
	return TArrayView<std::remove_pointer_t<decltype(GetData(Container))>>(GetData(Container), static_cast<int32>(GetNum(Container)));
}

template <typename ElementType>
TArrayView<ElementType> MakeArrayView(ElementType* Pointer, int32 Size)
{
	return TArrayView<ElementType>(Pointer, Size);
}

template <typename ContainerType>
requires(TIsContiguousContainer<ContainerType>::Value) auto MakeConstArrayView(const ContainerType& Container)
{
	return TConstArrayView<std::remove_const_t<std::remove_pointer_t<decltype(GetData(Container))>>>(
		GetData(Container), static_cast<int32>(GetNum(Container)));
}

template <typename ElementType>
TConstArrayView<ElementType> MakeConstArrayView(const ElementType* Pointer, int32 Size)
{
	return TConstArrayView<ElementType>(Pointer, Size);
}

template <typename InElementType, typename InAllocatorType>
template <typename OtherElementType, typename OtherSizeType>
requires std::is_convertible_v<const OtherElementType&, InElementType>
TArray<InElementType, InAllocatorType>::TArray(const TArrayView<OtherElementType, OtherSizeType>& Other)
	: TArray()
{
	CopyToEmpty(Other.GetData(), static_cast<SizeType>(Other.Num()), 0);
}

template <typename InElementType, typename InAllocatorType>
template <typename OtherElementType, typename OtherSizeType>
requires std::is_convertible_v<const OtherElementType&, InElementType>
	TArray<InElementType, InAllocatorType>
&TArray<InElementType, InAllocatorType>::operator=(const TArrayView<OtherElementType, OtherSizeType>& Other)
{
	// The view may be of this array's own elements.
	TArray Copy(Other);
	return *this = MoveTemp(Copy);
}

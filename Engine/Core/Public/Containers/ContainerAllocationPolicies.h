#pragma once

#include "Containers/ContainersFwd.h"
#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Misc/AssertionMacros.h"
#include "Templates/TypeCompatibleBytes.h"

#include <limits>
#include <type_traits>

/** Elements to make room for when an array of AllocatedElements must hold NumElements. */
template <typename SizeType>
SizeType DefaultCalculateSlackGrow(SizeType NumElements, SizeType NumAllocatedElements, SIZE_T BytesPerElement, bool bAllowQuantize = true)
{
	constexpr SIZE_T FirstGrow = 4;
	SIZE_T Grow = FirstGrow;
	if (NumAllocatedElements != 0 || static_cast<SIZE_T>(NumElements) > FirstGrow)
	{
		Grow = static_cast<SIZE_T>(NumElements) + static_cast<SIZE_T>(NumElements) / 2 + 16;
	}
	if (bAllowQuantize)
	{
		Grow = FMemory::QuantizeSize(Grow * BytesPerElement) / BytesPerElement;
	}
	constexpr SIZE_T Largest = static_cast<SIZE_T>(std::numeric_limits<SizeType>::max());
	return static_cast<SizeType>(Grow < Largest ? Grow : Largest);
}

/** Elements to keep room for when an array has shrunk to NumElements. */
template <typename SizeType>
SizeType DefaultCalculateSlackShrink(
	SizeType NumElements, SizeType NumAllocatedElements, SIZE_T BytesPerElement, bool bAllowQuantize = true)
{
	const SIZE_T SlackElements = static_cast<SIZE_T>(NumAllocatedElements - NumElements);
	const SIZE_T SlackBytes = SlackElements * BytesPerElement;
	const bool bTooManyBytes = SlackBytes >= 16384;
	const bool bMostlyEmpty = 3 * static_cast<SIZE_T>(NumElements) < 2 * static_cast<SIZE_T>(NumAllocatedElements);
	if ((bTooManyBytes || bMostlyEmpty) && (SlackElements > 64 || NumElements == 0))
	{
		return NumElements;
	}
	return NumAllocatedElements;
}

template <int IndexSize>
struct TBitsToSizeType;

template <>
struct TBitsToSizeType<32>
{
	using Type = int32;
};

template <>
struct TBitsToSizeType<64>
{
	using Type = int64;
};

/** Memory from the heap. An array's elements are moved by their bytes when it grows. */
template <int IndexSize>
class TSizedHeapAllocator
{
public:
	using SizeType = typename TBitsToSizeType<IndexSize>::Type;

	enum
	{
		NeedsElementType = false
	};

	class ForAnyElementType
	{
	public:
		ForAnyElementType() = default;
		ForAnyElementType(const ForAnyElementType&) = delete;
		ForAnyElementType& operator=(const ForAnyElementType&) = delete;
		~ForAnyElementType()
		{
			if (Data != nullptr)
			{
				FMemory::Free(Data);
			}
		}

		void MoveToEmpty(ForAnyElementType& Other)
		{
			if (Data != nullptr)
			{
				FMemory::Free(Data);
			}
			Data = Other.Data;
			Other.Data = nullptr;
		}

		void* GetAllocation() const { return Data; }
		bool HasAllocation() const { return Data != nullptr; }
		SizeType GetInitialCapacity() const { return 0; }
		SIZE_T GetAllocatedSize(SizeType NumAllocatedElements, SIZE_T BytesPerElement) const
		{
			return static_cast<SIZE_T>(NumAllocatedElements) * BytesPerElement;
		}

		void ResizeAllocation(SizeType CurrentNum, SizeType NewMax, SIZE_T BytesPerElement, uint32 Alignment = DEFAULT_ALIGNMENT)
		{
			if (Data != nullptr || NewMax > 0)
			{
				checkf(
					NewMax >= 0 && static_cast<uint64>(NewMax) <= static_cast<uint64>(std::numeric_limits<int64>::max()) / BytesPerElement,
					TEXT("Invalid container size: %lld elements of %llu bytes"), static_cast<int64>(NewMax),
					static_cast<uint64>(BytesPerElement));
				Data = FMemory::Realloc(Data, static_cast<SIZE_T>(NewMax) * BytesPerElement, Alignment > 16 ? Alignment : 0u);
			}
		}

		SizeType CalculateSlackGrow(SizeType NumElements, SizeType NumAllocated, SIZE_T BytesPerElement) const
		{
			return DefaultCalculateSlackGrow(NumElements, NumAllocated, BytesPerElement);
		}
		SizeType CalculateSlackShrink(SizeType NumElements, SizeType NumAllocated, SIZE_T BytesPerElement) const
		{
			return DefaultCalculateSlackShrink(NumElements, NumAllocated, BytesPerElement);
		}
		SizeType CalculateSlackReserve(SizeType NumElements, SIZE_T BytesPerElement) const { return NumElements; }

	private:
		void* Data = nullptr;
	};

	template <typename ElementType>
	class ForElementType : public ForAnyElementType
	{
	public:
		ElementType* GetAllocation() const { return static_cast<ElementType*>(ForAnyElementType::GetAllocation()); }

		void ResizeAllocation(SizeType CurrentNum, SizeType NewMax, SIZE_T BytesPerElement)
		{
			ForAnyElementType::ResizeAllocation(CurrentNum, NewMax, BytesPerElement, alignof(ElementType));
		}
	};
};

template <int IndexSize>
class TSizedDefaultAllocator : public TSizedHeapAllocator<IndexSize>
{
};

/** The first NumInlineElements stand in the container itself; more of them go to the secondary allocator. */
template <uint32 NumInlineElements, typename SecondaryAllocator = FDefaultAllocator>
class TInlineAllocator
{
public:
	using SizeType = typename SecondaryAllocator::SizeType;

	enum
	{
		NeedsElementType = true
	};

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		void MoveToEmpty(ForElementType& Other)
		{
			if (!Other.Secondary.HasAllocation())
			{
				FMemory::Memcpy(static_cast<void*>(InlineData), static_cast<const void*>(Other.InlineData), sizeof(InlineData));
			}
			Secondary.MoveToEmpty(Other.Secondary);
		}

		ElementType* GetAllocation() const
		{
			ElementType* const Heap = Secondary.GetAllocation();
			return Heap != nullptr ? Heap : const_cast<ElementType*>(InlineData[0].GetTypedPtr());
		}
		bool HasAllocation() const { return Secondary.HasAllocation(); }
		SizeType GetInitialCapacity() const { return NumInlineElements; }
		SIZE_T GetAllocatedSize(SizeType NumAllocatedElements, SIZE_T BytesPerElement) const
		{
			return NumAllocatedElements > static_cast<SizeType>(NumInlineElements)
				? Secondary.GetAllocatedSize(NumAllocatedElements, BytesPerElement)
				: 0;
		}

		void ResizeAllocation(SizeType CurrentNum, SizeType NewMax, SIZE_T BytesPerElement)
		{
			if (NewMax <= static_cast<SizeType>(NumInlineElements))
			{
				if (Secondary.HasAllocation())
				{
					FMemory::Memcpy(static_cast<void*>(InlineData), static_cast<const void*>(Secondary.GetAllocation()),
						static_cast<SIZE_T>(CurrentNum) * BytesPerElement);
					Secondary.ResizeAllocation(0, 0, BytesPerElement);
				}
				return;
			}
			const bool bWasInline = !Secondary.HasAllocation();
			Secondary.ResizeAllocation(bWasInline ? 0 : CurrentNum, NewMax, BytesPerElement);
			if (bWasInline)
			{
				FMemory::Memcpy(static_cast<void*>(Secondary.GetAllocation()), static_cast<const void*>(InlineData),
					static_cast<SIZE_T>(CurrentNum) * BytesPerElement);
			}
		}

		SizeType CalculateSlackGrow(SizeType NumElements, SizeType NumAllocated, SIZE_T BytesPerElement) const
		{
			return NumElements <= static_cast<SizeType>(NumInlineElements)
				? NumInlineElements
				: Secondary.CalculateSlackGrow(NumElements, NumAllocated, BytesPerElement);
		}
		SizeType CalculateSlackShrink(SizeType NumElements, SizeType NumAllocated, SIZE_T BytesPerElement) const
		{
			return NumElements <= static_cast<SizeType>(NumInlineElements)
				? NumInlineElements
				: Secondary.CalculateSlackShrink(NumElements, NumAllocated, BytesPerElement);
		}
		SizeType CalculateSlackReserve(SizeType NumElements, SIZE_T BytesPerElement) const
		{
			return NumElements <= static_cast<SizeType>(NumInlineElements)
				? NumInlineElements
				: Secondary.CalculateSlackReserve(NumElements, BytesPerElement);
		}

	private:
		TTypeCompatibleBytes<ElementType> InlineData[NumInlineElements];
		typename SecondaryAllocator::template ForElementType<ElementType> Secondary;
	};
};

/** Room for NumInlineElements in the container itself and never more: one more ends the program. */
template <uint32 NumInlineElements>
class TFixedAllocator
{
public:
	using SizeType = int32;

	enum
	{
		NeedsElementType = true
	};

	template <typename ElementType>
	class ForElementType
	{
	public:
		ForElementType() = default;
		ForElementType(const ForElementType&) = delete;
		ForElementType& operator=(const ForElementType&) = delete;

		void MoveToEmpty(ForElementType& Other)
		{
			FMemory::Memcpy(static_cast<void*>(InlineData), static_cast<const void*>(Other.InlineData), sizeof(InlineData));
		}
		ElementType* GetAllocation() const { return const_cast<ElementType*>(InlineData[0].GetTypedPtr()); }
		bool HasAllocation() const { return false; }
		SizeType GetInitialCapacity() const { return NumInlineElements; }
		SIZE_T GetAllocatedSize(SizeType, SIZE_T) const { return 0; }
		void ResizeAllocation(SizeType, SizeType NewMax, SIZE_T)
		{
			checkf(
				NewMax <= static_cast<SizeType>(NumInlineElements), TEXT("A fixed container of %u elements is full"), NumInlineElements);
		}
		SizeType CalculateSlackGrow(SizeType NumElements, SizeType, SIZE_T) const
		{
			checkf(NumElements <= static_cast<SizeType>(NumInlineElements), TEXT("A fixed container of %u elements is full"),
				NumInlineElements);
			return NumInlineElements;
		}
		SizeType CalculateSlackShrink(SizeType, SizeType, SIZE_T) const { return NumInlineElements; }
		SizeType CalculateSlackReserve(SizeType NumElements, SIZE_T BytesPerElement) const
		{
			return CalculateSlackGrow(NumElements, 0, BytesPerElement);
		}

	private:
		TTypeCompatibleBytes<ElementType> InlineData[NumInlineElements];
	};
};

template <typename InElementAllocator = FDefaultAllocator, typename InBitArrayAllocator = FDefaultBitArrayAllocator>
class TSparseArrayAllocator
{
public:
	using ElementAllocator = InElementAllocator;
	using BitArrayAllocator = InBitArrayAllocator;
};

template <typename InSparseArrayAllocator = TSparseArrayAllocator<>, typename InHashAllocator = TInlineAllocator<1, FDefaultAllocator>>
class TSetAllocator
{
public:
	using SparseArrayAllocator = InSparseArrayAllocator;
	using HashAllocator = InHashAllocator;
};

class FDefaultBitArrayAllocator : public TInlineAllocator<4>
{
};

class FDefaultSparseArrayAllocator : public TSparseArrayAllocator<>
{
};

class FDefaultSetAllocator : public TSetAllocator<>
{
};

template <uint32 NumInlineElements>
class TInlineSparseArrayAllocator
	: public TSparseArrayAllocator<TInlineAllocator<NumInlineElements>, TInlineAllocator<(NumInlineElements + 31) / 32>>
{
};

/** Room for NumInlineElements and their buckets in the set itself. */
template <uint32 NumInlineElements>
	class TInlineSetAllocator : public TSetAllocator < TInlineSparseArrayAllocator<NumInlineElements>,
	TInlineAllocator<NumInlineElements<8 ? 8 : NumInlineElements>>
{
};

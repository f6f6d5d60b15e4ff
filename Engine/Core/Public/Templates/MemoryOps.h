#pragma once

#include "CoreTypes.h"
#include "HAL/UnrealMemory.h"
#include "Templates/UnrealTypeTraits.h"

#include <new>

template <typename T, typename SizeType>
void DefaultConstructItems(void* Address, SizeType Count)
{
	if constexpr (TIsZeroConstructType<T>::Value)
	{
		FMemory::Memset(Address, 0, sizeof(T) * static_cast<SIZE_T>(Count));
	}
	else
	{
		T* Element = static_cast<T*>(Address);
		for (; Count > 0; --Count, ++Element)
		{
			::new (static_cast<void*>(Element)) T;
		}
	}
}

template <typename T, typename SizeType>
void DestructItems(T* Element, SizeType Count)
{
	if constexpr (!std::is_trivially_destructible_v<T>)
	{
		for (; Count > 0; --Count, ++Element)
		{
			Element->~T();
		}
	}
}

template <typename T>
void DestructItem(T* Element)
{
	if constexpr (!std::is_trivially_destructible_v<T>)
	{
		Element->~T();
	}
}

template <typename Destination, typename Source, typename SizeType>
void ConstructItems(void* Dest, const Source* From, SizeType Count)
{
	if constexpr (std::is_same_v<Destination, Source> && std::is_trivially_copyable_v<Source>)
	{
		if (Count > 0)
		{
			FMemory::Memcpy(Dest, static_cast<const void*>(From), sizeof(Source) * static_cast<SIZE_T>(Count));
		}
	}
	else
	{
		Destination* Element = static_cast<Destination*>(Dest);
		for (; Count > 0; --Count, ++Element, ++From)
		{
			::new (static_cast<void*>(Element)) Destination(*From);
		}
	}
}

/** Moves bytes to uninitialized memory that may overlap; the source counts as destructed. */
template <typename T, typename SizeType>
void RelocateConstructItems(void* Dest, T* Source, SizeType Count)
{
	if (Count > 0)
	{
		FMemory::Memmove(Dest, static_cast<void*>(Source), sizeof(T) * static_cast<SIZE_T>(Count));
	}
}

template <typename T, typename SizeType>
bool CompareItems(const T* A, const T* B, SizeType Count)
{
	if constexpr (std::is_integral_v<T> || std::is_enum_v<T> || std::is_pointer_v<T>)
	{
		return Count == 0 || FMemory::Memcmp(A, B, sizeof(T) * static_cast<SIZE_T>(Count)) == 0;
	}
	else
	{
		for (; Count > 0; --Count, ++A, ++B)
		{
			if (!(*A == *B))
			{
				return false;
			}
		}
		return true;
	}
}

#pragma once

#include "CoreTypes.h"

#include <new>

/** Bytes that can hold one T, without constructing it. */
template <typename T>
struct TTypeCompatibleBytes
{
	using ElementTypeAlias_NatVisHelper = T;

	T* GetTypedPtr() { return reinterpret_cast<T*>(Pad); }
	const T* GetTypedPtr() const { return reinterpret_cast<const T*>(Pad); }

	alignas(T) uint8 Pad[sizeof(T)];
};

template <int32 Size, uint32 Alignment>
struct TAlignedBytes
{
	alignas(Alignment) uint8 Pad[Size];
};

#pragma once

#include "CoreTypes.h"
#include "Traits/IsContiguousContainer.h"

template <int IndexSize>
class TSizedDefaultAllocator;
using FDefaultAllocator = TSizedDefaultAllocator<32>;
using FDefaultAllocator64 = TSizedDefaultAllocator<64>;
using FHeapAllocator = FDefaultAllocator;
class FDefaultSetAllocator;
class FDefaultBitArrayAllocator;
class FDefaultSparseArrayAllocator;

template <typename T, typename Allocator = FDefaultAllocator>
class TArray;
template <typename T>
using TArray64 = TArray<T, FDefaultAllocator64>;
template <typename T, typename SizeType = int32>
class TArrayView;
template <typename T, typename SizeType = int32>
using TConstArrayView = TArrayView<const T, SizeType>;
template <typename T>
using TArrayView64 = TArrayView<T, int64>;
template <typename T>
using TConstArrayView64 = TConstArrayView<T, int64>;

template <typename Allocator = FDefaultBitArrayAllocator>
class TBitArray;
template <typename ElementType, typename Allocator = FDefaultSparseArrayAllocator>
class TSparseArray;

template <typename ElementType, bool bAllowDuplicateKeys = false>
struct DefaultKeyFuncs;
template <typename ElementType, typename KeyFuncs = DefaultKeyFuncs<ElementType>, typename Allocator = FDefaultSetAllocator>
class TSet;

template <typename KeyType, typename ValueType, bool bAllowDuplicateKeys>
struct TDefaultMapHashableKeyFuncs;
template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, false>>
class TMap;
template <typename KeyType, typename ValueType, typename SetAllocator = FDefaultSetAllocator,
	typename KeyFuncs = TDefaultMapHashableKeyFuncs<KeyType, ValueType, true>>
class TMultiMap;

class FString;

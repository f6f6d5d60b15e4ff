#pragma once

#include "Containers/SparseArray.h"

#include <bit>

/** Names an element of a set or map until it is removed or the set is compacted. */
class FSetElementId
{
public:
	FSetElementId() = default;

	bool IsValidId() const { return Index != INDEX_NONE; }
	int32 AsInteger() const { return Index; }
	static FSetElementId FromInteger(int32 Integer)
	{
		FSetElementId Result;
		Result.Index = Integer;
		return Result;
	}
	friend bool operator==(const FSetElementId& A, const FSetElementId& B) = default;
	explicit operator bool() const { return IsValidId(); }

private:
	int32 Index = INDEX_NONE;
};

/** An element, the next one in its bucket, and its whole hash, so that growing need not hash the keys again. */
template <typename InElementType>
class TSetElement
{
public:
	using ElementType = InElementType;

	InElementType Value;
	mutable int32 HashNextId = INDEX_NONE;
	mutable uint32 KeyHash = 0;

	friend bool operator==(const TSetElement& A, const TSetElement& B) { return A.Value == B.Value; }
};

namespace UE::Core::Private
{
/** Buckets for a set of that many elements; a power of two. Up to four elements share one, which stands in the set itself. */
inline int32 NumHashBuckets(int32 NumElements)
{
	return NumElements <= 4 ? 1 : static_cast<int32>(std::bit_ceil(static_cast<uint32>(NumElements)));
}

/**
 * The bucket of a hash. The bits that the number of buckets leaves out are spread over the others; keys in a row, whose hashes
 * are often their own values, still get buckets in a row.
 */
inline int32 HashBucket(uint32 KeyHash, int32 NumBuckets)
{
	const uint32 LeftOut = KeyHash >> std::countr_zero(static_cast<uint32>(NumBuckets));
	const uint64 Spread = static_cast<uint64>(LeftOut * 0x9e3779b1u) * static_cast<uint32>(NumBuckets) >> 32;
	return static_cast<int32>((KeyHash ^ static_cast<uint32>(Spread)) & static_cast<uint32>(NumBuckets - 1));
}
}

#pragma once

#include "Algo/Find.h"

/** Searches of contiguous ranges that answer the index of the first match, or INDEX_NONE. */
namespace Algo
{
template <typename RangeType, typename PredicateType>
[[nodiscard]] auto IndexOfByPredicate(const RangeType& Range, PredicateType Predicate) -> decltype(GetNum(Range))
{
	using SizeType = decltype(GetNum(Range));
	const auto* const Found = FindByPredicate(Range, MoveTemp(Predicate));
	return Found != nullptr ? static_cast<SizeType>(Found - GetData(Range)) : static_cast<SizeType>(INDEX_NONE);
}

template <typename RangeType, typename ValueType, typename ProjectionType>
[[nodiscard]] auto IndexOfBy(const RangeType& Range, const ValueType& Value, ProjectionType Projection)
{
	return IndexOfByPredicate(Range,
		[&](const auto& Element)
		{ return Invoke(Projection, Element) == Value; });
}

template <typename RangeType, typename ValueType>
[[nodiscard]] auto IndexOf(const RangeType& Range, const ValueType& Value)
{
	return IndexOfBy(Range, Value, FIdentityFunctor());
}
}

#pragma once

#include "Algo/MinElement.h"

namespace Algo
{
/** The first of the elements that are before no other, or null for an empty range. */
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] auto MaxElementBy(RangeType&& Range, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	return MinElementBy(Range, MoveTemp(Projection),
		[&IsBefore](const auto& A, const auto& B)
		{ return Invoke(IsBefore, B, A); });
}

template <typename RangeType, typename PredicateType = TLess<>>
[[nodiscard]] auto MaxElement(RangeType&& Range, PredicateType IsBefore = PredicateType())
{
	return MaxElementBy(Range, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

#pragma once

#include "Algo/ProjectedPredicate.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>

/** Sorting of contiguous ranges. Unlike TArray's own, it does not look through pointers. */
namespace Algo
{
/** In the order of the projections; equal elements come in any order. */
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
void SortBy(RangeType&& Range, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	auto* const First = GetData(Range);
	std::sort(First, First + GetNum(Range), UE::Core::Private::TProjectedPredicate<ProjectionType, PredicateType>{Projection, IsBefore});
}

template <typename RangeType, typename PredicateType = TLess<>>
void Sort(RangeType&& Range, PredicateType IsBefore = PredicateType())
{
	SortBy(Range, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

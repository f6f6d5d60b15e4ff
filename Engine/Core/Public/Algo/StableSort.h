#pragma once

#include "Algo/ProjectedPredicate.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

#include <algorithm>

/** Sorting of contiguous ranges that keeps the order of equal elements. Unlike TArray's own, it does not look through pointers. */
namespace Algo
{
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
void StableSortBy(RangeType&& Range, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	auto* const First = GetData(Range);
	std::stable_sort(
		First, First + GetNum(Range), UE::Core::Private::TProjectedPredicate<ProjectionType, PredicateType>{Projection, IsBefore});
}

template <typename RangeType, typename PredicateType = TLess<>>
void StableSort(RangeType&& Range, PredicateType IsBefore = PredicateType())
{
	StableSortBy(Range, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

#pragma once

#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
/** True when no element of the contiguous range is before the one in front of it. */
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] bool IsSortedBy(const RangeType& Range, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	const auto* const Data = GetData(Range);
	for (auto Index = GetNum(Range) - GetNum(Range) + 1; Index < GetNum(Range); ++Index)
	{
		if (Invoke(IsBefore, Invoke(Projection, Data[Index]), Invoke(Projection, Data[Index - 1])))
		{
			return false;
		}
	}
	return true;
}

template <typename RangeType, typename PredicateType = TLess<>>
[[nodiscard]] bool IsSorted(const RangeType& Range, PredicateType IsBefore = PredicateType())
{
	return IsSortedBy(Range, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

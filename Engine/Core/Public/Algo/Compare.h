#pragma once

#include "Templates/EqualTo.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
/** True when both contiguous ranges have as many elements and the projection of each is equal to that of its counterpart. */
template <typename RangeAType, typename RangeBType, typename ProjectionType, typename PredicateType = TEqualTo<>>
[[nodiscard]] bool CompareBy(
	const RangeAType& RangeA, const RangeBType& RangeB, ProjectionType Projection, PredicateType IsEqual = PredicateType())
{
	const auto Count = GetNum(RangeA);
	if (Count != GetNum(RangeB))
	{
		return false;
	}
	for (auto Index = Count * 0; Index < Count; ++Index)
	{
		if (!Invoke(IsEqual, Invoke(Projection, GetData(RangeA)[Index]), Invoke(Projection, GetData(RangeB)[Index])))
		{
			return false;
		}
	}
	return true;
}

template <typename RangeAType, typename RangeBType, typename PredicateType = TEqualTo<>>
[[nodiscard]] bool Compare(const RangeAType& RangeA, const RangeBType& RangeB, PredicateType IsEqual = PredicateType())
{
	return CompareBy(RangeA, RangeB, FIdentityFunctor(), MoveTemp(IsEqual));
}
}

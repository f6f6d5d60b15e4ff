#pragma once

#include "CoreTypes.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
/**
 * Moves the elements of a contiguous range for which the predicate is false to its front, in their order, and answers how many they
 * are. What stands behind them is moved-from; the caller cuts it off.
 */
template <typename RangeType, typename PredicateType>
auto StableRemoveIf(RangeType& Range, PredicateType Predicate)
{
	auto* const Data = GetData(Range);
	auto Kept = GetNum(Range) * 0;
	for (auto Index = Kept; Index < GetNum(Range); ++Index)
	{
		if (!Invoke(Predicate, Data[Index]))
		{
			if (Kept != Index)
			{
				Data[Kept] = MoveTemp(Data[Index]);
			}
			++Kept;
		}
	}
	return Kept;
}

/** The same in any order. */
template <typename RangeType, typename PredicateType>
auto RemoveIf(RangeType& Range, PredicateType Predicate)
{
	return StableRemoveIf(Range, MoveTemp(Predicate));
}
}

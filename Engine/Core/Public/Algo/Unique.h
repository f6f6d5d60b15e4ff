#pragma once

#include "CoreTypes.h"
#include "Templates/EqualTo.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
/**
 * Of equal elements that stand together in a contiguous range, keeps the first; answers how many are kept. The caller cuts off the
 * rest.
 */
template <typename RangeType, typename ProjectionType, typename PredicateType = TEqualTo<>>
[[nodiscard]] auto UniqueBy(RangeType& Range, ProjectionType Projection, PredicateType IsEqual = PredicateType())
{
	auto* const Data = GetData(Range);
	auto Kept = GetNum(Range) * 0;
	for (auto Index = Kept; Index < GetNum(Range); ++Index)
	{
		if (Kept == 0 || !Invoke(IsEqual, Invoke(Projection, Data[Kept - 1]), Invoke(Projection, Data[Index])))
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

template <typename RangeType, typename PredicateType = TEqualTo<>>
[[nodiscard]] auto Unique(RangeType& Range, PredicateType IsEqual = PredicateType())
{
	return UniqueBy(Range, FIdentityFunctor(), MoveTemp(IsEqual));
}
}

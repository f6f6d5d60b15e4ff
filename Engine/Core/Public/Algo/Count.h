#pragma once

#include "CoreTypes.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"

namespace Algo
{
template <typename RangeType, typename PredicateType>
[[nodiscard]] SIZE_T CountIf(const RangeType& Range, PredicateType Predicate)
{
	SIZE_T Result = 0;
	for (const auto& Element : Range)
	{
		Result += Invoke(Predicate, Element) ? 1 : 0;
	}
	return Result;
}

template <typename RangeType, typename ValueType, typename ProjectionType>
[[nodiscard]] SIZE_T CountBy(const RangeType& Range, const ValueType& Value, ProjectionType Projection)
{
	return CountIf(Range,
		[&](const auto& Element)
		{ return Invoke(Projection, Element) == Value; });
}

template <typename RangeType, typename ValueType>
[[nodiscard]] SIZE_T Count(const RangeType& Range, const ValueType& Value)
{
	return CountBy(Range, Value, FIdentityFunctor());
}
}

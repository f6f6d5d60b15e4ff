#pragma once

#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
template <typename RangeType, typename CallableType>
void ForEach(RangeType&& Range, CallableType Callable)
{
	for (auto&& Element : Range)
	{
		Invoke(Callable, Element);
	}
}

template <typename RangeType, typename PredicateType, typename CallableType>
void ForEachIf(RangeType&& Range, PredicateType Predicate, CallableType Callable)
{
	for (auto&& Element : Range)
	{
		if (Invoke(Predicate, Element))
		{
			Invoke(Callable, Element);
		}
	}
}
}

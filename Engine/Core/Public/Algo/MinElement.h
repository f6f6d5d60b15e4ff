#pragma once

#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

#include <memory>

namespace Algo
{
/** The first of the elements that no other is before, or null for an empty range. */
template <typename RangeType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] auto MinElementBy(RangeType&& Range, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	decltype(std::addressof(*std::begin(Range))) Least = nullptr;
	for (auto&& Element : Range)
	{
		if (Least == nullptr || Invoke(IsBefore, Invoke(Projection, Element), Invoke(Projection, *Least)))
		{
			Least = std::addressof(Element);
		}
	}
	return Least;
}

template <typename RangeType, typename PredicateType = TLess<>>
[[nodiscard]] auto MinElement(RangeType&& Range, PredicateType IsBefore = PredicateType())
{
	return MinElementBy(Range, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

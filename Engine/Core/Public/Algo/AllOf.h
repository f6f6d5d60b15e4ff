#pragma once

#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"

namespace Algo
{
/** True when the projection of every element is; true for an empty range. */
template <typename RangeType, typename ProjectionType>
[[nodiscard]] bool AllOf(const RangeType& Range, ProjectionType Projection)
{
	for (const auto& Element : Range)
	{
		if (!Invoke(Projection, Element))
		{
			return false;
		}
	}
	return true;
}

template <typename RangeType>
[[nodiscard]] bool AllOf(const RangeType& Range)
{
	return AllOf(Range, FIdentityFunctor());
}
}

#pragma once

#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"

namespace Algo
{
/** True when the projection of some element is; false for an empty range. */
template <typename RangeType, typename ProjectionType>
[[nodiscard]] bool AnyOf(const RangeType& Range, ProjectionType Projection)
{
	for (const auto& Element : Range)
	{
		if (Invoke(Projection, Element))
		{
			return true;
		}
	}
	return false;
}

template <typename RangeType>
[[nodiscard]] bool AnyOf(const RangeType& Range)
{
	return AnyOf(Range, FIdentityFunctor());
}
}

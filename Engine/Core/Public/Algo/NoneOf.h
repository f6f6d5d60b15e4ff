#pragma once

#include "Algo/AnyOf.h"

namespace Algo
{
/** True when the projection of no element is. */
template <typename RangeType, typename... ProjectionType>
[[nodiscard]] bool NoneOf(const RangeType& Range, ProjectionType... Projection)
{
	return !AnyOf(Range, Projection...);
}
}

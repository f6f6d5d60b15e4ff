#pragma once

#include "Algo/Find.h"

namespace Algo
{
template <typename RangeType, typename ValueType>
[[nodiscard]] bool Contains(const RangeType& Range, const ValueType& Value)
{
	return Find(Range, Value) != nullptr;
}

template <typename RangeType, typename ValueType, typename ProjectionType>
[[nodiscard]] bool ContainsBy(const RangeType& Range, const ValueType& Value, ProjectionType Projection)
{
	return FindBy(Range, Value, MoveTemp(Projection)) != nullptr;
}
}

#pragma once

#include "Math/NumericLimits.h"

/** The numbers from Min to Max, both included. */
template <typename ElementType>
struct TInterval
{
	ElementType Min = TNumericLimits<ElementType>::Max();
	ElementType Max = TNumericLimits<ElementType>::Lowest();

	TInterval() = default;
	TInterval(ElementType InMin, ElementType InMax)
		: Min(InMin)
		, Max(InMax)
	{
	}
	ElementType Size() const { return Max - Min; }
	bool IsValid() const { return Min <= Max; }
	bool Contains(ElementType Element) const { return Element >= Min && Element <= Max; }
	bool operator==(const TInterval&) const = default;
};

using FFloatInterval = TInterval<float>;
using FDoubleInterval = TInterval<double>;
using FInt32Interval = TInterval<int32>;

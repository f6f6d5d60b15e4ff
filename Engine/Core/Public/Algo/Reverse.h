#pragma once

#include "CoreTypes.h"
#include "Templates/UnrealTemplate.h"

namespace Algo
{
template <typename T, typename SizeType>
void Reverse(T* Data, SizeType Num)
{
	for (SizeType Low = 0; Low + 1 < Num; ++Low)
	{
		::Swap(Data[Low], Data[--Num]);
	}
}

/** Of a contiguous range. */
template <typename RangeType>
void Reverse(RangeType&& Range)
{
	Reverse(GetData(Range), GetNum(Range));
}
}

#pragma once

#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

#include <functional>

namespace Algo
{
/** Starts with Init and puts every projected element to it by the operation, in order. */
template <typename ResultType, typename RangeType, typename ProjectionType, typename OperationType = std::plus<>>
[[nodiscard]] ResultType TransformAccumulate(
	const RangeType& Range, ProjectionType Projection, ResultType Init, OperationType Operation = OperationType())
{
	ResultType Result = MoveTemp(Init);
	for (const auto& Element : Range)
	{
		Result = Invoke(Operation, MoveTemp(Result), Invoke(Projection, Element));
	}
	return Result;
}

/** Starts with Init and puts every element to it, by + or by the operation, in order. */
template <typename ResultType, typename RangeType, typename OperationType = std::plus<>>
[[nodiscard]] ResultType Accumulate(const RangeType& Range, ResultType Init, OperationType Operation = OperationType())
{
	ResultType Result = MoveTemp(Init);
	for (const auto& Element : Range)
	{
		Result = Invoke(Operation, MoveTemp(Result), Element);
	}
	return Result;
}
}

#pragma once

#include "CoreTypes.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/Less.h"
#include "Templates/UnrealTemplate.h"

/** Searches of contiguous ranges whose elements (or their projections) are in the order of the predicate. */
namespace Algo
{
/** The index of the first element that is not before the value; the number of elements when all are. */
template <typename RangeType, typename ValueType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] auto LowerBoundBy(
	const RangeType& Range, const ValueType& Value, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	auto Start = GetNum(Range) * 0;
	auto Count = GetNum(Range);
	while (Count > 0)
	{
		const auto Half = Count / 2;
		const bool bBefore = Invoke(IsBefore, Invoke(Projection, GetData(Range)[Start + Half]), Value);
		Start = bBefore ? Start + Half + 1 : Start;
		Count = bBefore ? Count - Half - 1 : Half;
	}
	return Start;
}

/** The index of the first element that is behind the value; the number of elements when none is. */
template <typename RangeType, typename ValueType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] auto UpperBoundBy(
	const RangeType& Range, const ValueType& Value, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	const auto IsNotBehind = [&IsBefore](const auto& Element, const ValueType& Wanted)
	{ return !Invoke(IsBefore, Wanted, Element); };
	return LowerBoundBy(Range, Value, MoveTemp(Projection), IsNotBehind);
}

/** The index of the first element that is equivalent to the value, or INDEX_NONE. */
template <typename RangeType, typename ValueType, typename ProjectionType, typename PredicateType = TLess<>>
[[nodiscard]] auto BinarySearchBy(
	const RangeType& Range, const ValueType& Value, ProjectionType Projection, PredicateType IsBefore = PredicateType())
{
	const auto Index = LowerBoundBy(Range, Value, Projection, IsBefore);
	const bool bFound = Index < GetNum(Range) && !Invoke(IsBefore, Value, Invoke(Projection, GetData(Range)[Index]));
	return bFound ? Index : static_cast<decltype(Index)>(INDEX_NONE);
}

template <typename RangeType, typename ValueType, typename PredicateType = TLess<>>
[[nodiscard]] auto LowerBound(const RangeType& Range, const ValueType& Value, PredicateType IsBefore = PredicateType())
{
	return LowerBoundBy(Range, Value, FIdentityFunctor(), MoveTemp(IsBefore));
}

template <typename RangeType, typename ValueType, typename PredicateType = TLess<>>
[[nodiscard]] auto UpperBound(const RangeType& Range, const ValueType& Value, PredicateType IsBefore = PredicateType())
{
	return UpperBoundBy(Range, Value, FIdentityFunctor(), MoveTemp(IsBefore));
}

template <typename RangeType, typename ValueType, typename PredicateType = TLess<>>
[[nodiscard]] auto BinarySearch(const RangeType& Range, const ValueType& Value, PredicateType IsBefore = PredicateType())
{
	return BinarySearchBy(Range, Value, FIdentityFunctor(), MoveTemp(IsBefore));
}
}

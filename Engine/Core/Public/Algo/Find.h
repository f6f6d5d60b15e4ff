#pragma once

#include "CoreTypes.h"
#include "Templates/IdentityFunctor.h"
#include "Templates/Invoke.h"
#include "Templates/UnrealTemplate.h"

#include <memory>

/** Searches that answer a pointer to the element, or null. Those from the end need a contiguous range. */
namespace Algo
{
template <typename RangeType, typename PredicateType>
[[nodiscard]] auto FindByPredicate(RangeType&& Range, PredicateType Predicate) -> decltype(std::addressof(*std::begin(Range)))
{
	for (auto&& Element : Range)
	{
		if (Invoke(Predicate, Element))
		{
			return std::addressof(Element);
		}
	}
	return nullptr;
}

template <typename RangeType, typename ValueType, typename ProjectionType>
[[nodiscard]] auto FindBy(RangeType&& Range, const ValueType& Value, ProjectionType Projection)
{
	return FindByPredicate(Forward<RangeType>(Range),
		[&](const auto& Element)
		{ return Invoke(Projection, Element) == Value; });
}

template <typename RangeType, typename ValueType>
[[nodiscard]] auto Find(RangeType&& Range, const ValueType& Value)
{
	return FindBy(Forward<RangeType>(Range), Value, FIdentityFunctor());
}

template <typename RangeType, typename PredicateType>
[[nodiscard]] auto FindLastByPredicate(RangeType&& Range, PredicateType Predicate) -> decltype(GetData(Range))
{
	for (auto Index = GetNum(Range); Index > 0; --Index)
	{
		if (Invoke(Predicate, GetData(Range)[Index - 1]))
		{
			return GetData(Range) + (Index - 1);
		}
	}
	return nullptr;
}

template <typename RangeType, typename ValueType, typename ProjectionType>
[[nodiscard]] auto FindLastBy(RangeType&& Range, const ValueType& Value, ProjectionType Projection)
{
	return FindLastByPredicate(Forward<RangeType>(Range),
		[&](const auto& Element)
		{ return Invoke(Projection, Element) == Value; });
}

template <typename RangeType, typename ValueType>
[[nodiscard]] auto FindLast(RangeType&& Range, const ValueType& Value)
{
	return FindLastBy(Forward<RangeType>(Range), Value, FIdentityFunctor());
}
}

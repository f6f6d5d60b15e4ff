#pragma once

#include "Templates/Invoke.h"

namespace UE::Core::Private
{
/** The order of elements by what the projection takes from them. Refers to both functions. */
template <typename ProjectionType, typename PredicateType>
struct TProjectedPredicate
{
	template <typename ElementType>
	bool operator()(const ElementType& A, const ElementType& B) const
	{
		return Invoke(IsBefore, Invoke(Projection, A), Invoke(Projection, B));
	}

	ProjectionType& Projection;
	PredicateType& IsBefore;
};
}

#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
/** Adds the transformed elements for which the predicate is true to the output, which must not be the input. */
template <typename InputType, typename OutputType, typename PredicateType, typename TransformType>
void TransformIf(const InputType& Input, OutputType& Output, PredicateType Predicate, TransformType Transformation)
{
	for (const auto& Element : Input)
	{
		if (Invoke(Predicate, Element))
		{
			Output.Add(Invoke(Transformation, Element));
		}
	}
}

/** Adds the transformed elements to the output, which must not be the input. */
template <typename InputType, typename OutputType, typename TransformType>
void Transform(const InputType& Input, OutputType& Output, TransformType Transformation)
{
	for (const auto& Element : Input)
	{
		Output.Add(Invoke(Transformation, Element));
	}
}
}

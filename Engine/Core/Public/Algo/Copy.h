#pragma once

#include "Templates/Invoke.h"

namespace Algo
{
/** Adds the elements to the output, which must not be the input. */
template <typename InputType, typename OutputType>
void Copy(const InputType& Input, OutputType& Output)
{
	for (const auto& Element : Input)
	{
		Output.Add(Element);
	}
}

/** Adds those elements for which the predicate is true. */
template <typename InputType, typename OutputType, typename PredicateType>
void CopyIf(const InputType& Input, OutputType& Output, PredicateType Predicate)
{
	for (const auto& Element : Input)
	{
		if (Invoke(Predicate, Element))
		{
			Output.Add(Element);
		}
	}
}
}

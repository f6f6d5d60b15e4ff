#pragma once

#include "CoreTypes.h"

/** What TSet, which derives from it, answers about itself and another set. */
template <typename SetType, typename ElementType, typename KeyFuncs>
class TSetOperations
{
public:
	SetType Intersect(const SetType& Other) const
	{
		SetType Result;
		const bool bOtherIsSmaller = Other.Num() < Self().Num();
		const SetType& Small = bOtherIsSmaller ? Other : Self();
		const SetType& Large = bOtherIsSmaller ? Self() : Other;
		for (const ElementType& Element : Small)
		{
			if (Large.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	SetType Union(const SetType& Other) const
	{
		SetType Result(Self());
		Result.Append(Other);
		return Result;
	}
	/** The elements of this set that the other has not. */
	SetType Difference(const SetType& Other) const
	{
		SetType Result;
		for (const ElementType& Element : Self())
		{
			if (!Other.Contains(KeyFuncs::GetSetKey(Element)))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	/** True if this set has every element of the other. */
	bool Includes(const SetType& Other) const
	{
		for (const ElementType& Element : Other)
		{
			if (!Self().Contains(KeyFuncs::GetSetKey(Element)))
			{
				return false;
			}
		}
		return true;
	}

private:
	const SetType& Self() const { return static_cast<const SetType&>(*this); }
};

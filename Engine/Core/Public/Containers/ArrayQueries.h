#pragma once

#include "CoreTypes.h"
#include "Misc/AssertionMacros.h"
#include "Templates/Invoke.h"

/**
 * Searches of TArray, which derives from it: in the order of the elements, by value (==), by a key that compares with them, or by
 * a predicate.
 */
template <typename ArrayType, typename ElementType, typename SizeType>
class TArrayQueries
{
public:
	bool FindLast(const ElementType& Item, SizeType& Index) const
	{
		Index = FindLast(Item);
		return Index != INDEX_NONE;
	}
	SizeType FindLast(const ElementType& Item) const
	{
		return FindLastByPredicate([&Item](const ElementType& Element)
			{ return Element == Item; });
	}
	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred, SizeType Count) const
	{
		check(Count >= 0 && Count <= Self().Num());
		const ElementType* const Data = Self().GetData();
		for (SizeType Index = Count - 1; Index >= 0; --Index)
		{
			if (Invoke(Pred, Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename Predicate>
	SizeType FindLastByPredicate(Predicate Pred) const
	{
		return FindLastByPredicate(MoveTemp(Pred), Self().Num());
	}

	template <typename KeyType>
	SizeType IndexOfByKey(const KeyType& Key) const
	{
		const ElementType* const Data = Self().GetData();
		for (SizeType Index = 0; Index < Self().Num(); ++Index)
		{
			if (Data[Index] == Key)
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	template <typename Predicate>
	SizeType IndexOfByPredicate(Predicate Pred) const
	{
		const ElementType* const Data = Self().GetData();
		for (SizeType Index = 0; Index < Self().Num(); ++Index)
		{
			if (Invoke(Pred, Data[Index]))
			{
				return Index;
			}
		}
		return INDEX_NONE;
	}
	SizeType Find(const ElementType& Item) const { return IndexOfByKey(Item); }
	bool Find(const ElementType& Item, SizeType& Index) const
	{
		Index = Find(Item);
		return Index != INDEX_NONE;
	}
	template <typename KeyType>
	ElementType* FindByKey(const KeyType& Key)
	{
		const SizeType Index = IndexOfByKey(Key);
		return Index == INDEX_NONE ? nullptr : Self().GetData() + Index;
	}
	template <typename KeyType>
	const ElementType* FindByKey(const KeyType& Key) const
	{
		return const_cast<TArrayQueries*>(this)->FindByKey(Key);
	}
	template <typename Predicate>
	ElementType* FindByPredicate(Predicate Pred)
	{
		const SizeType Index = IndexOfByPredicate(MoveTemp(Pred));
		return Index == INDEX_NONE ? nullptr : Self().GetData() + Index;
	}
	template <typename Predicate>
	const ElementType* FindByPredicate(Predicate Pred) const
	{
		return const_cast<TArrayQueries*>(this)->FindByPredicate(MoveTemp(Pred));
	}
	template <typename Predicate>
	ArrayType FilterByPredicate(Predicate Pred) const
	{
		ArrayType Result;
		for (const ElementType& Element : Self())
		{
			if (Invoke(Pred, Element))
			{
				Result.Add(Element);
			}
		}
		return Result;
	}
	template <typename KeyType>
	bool Contains(const KeyType& Item) const
	{
		return IndexOfByKey(Item) != INDEX_NONE;
	}
	template <typename Predicate>
	bool ContainsByPredicate(Predicate Pred) const
	{
		return IndexOfByPredicate(MoveTemp(Pred)) != INDEX_NONE;
	}

private:
	ArrayType& Self() { return static_cast<ArrayType&>(*this); }
	const ArrayType& Self() const { return static_cast<const ArrayType&>(*this); }
};

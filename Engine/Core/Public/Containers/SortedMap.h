#pragma once

#include "Containers/Array.h"
#include "Templates/Tuple.h"

/** A map in one sorted array: small, in the order of its keys, and slow to add to when large. */
template <typename InKeyType, typename InValueType, typename ArrayAllocator = FDefaultAllocator, typename SortPredicate = TLess<InKeyType>>
class TSortedMap
{
public:
	using KeyType = InKeyType;
	using ValueType = InValueType;
	using ElementType = TPair<KeyType, ValueType>;

	TSortedMap() = default;
	TSortedMap(std::initializer_list<ElementType> InitList)
	{
		for (const ElementType& Pair : InitList)
		{
			Add(Pair.Key, Pair.Value);
		}
	}

	int32 Num() const { return Pairs.Num(); }
	bool IsEmpty() const { return Pairs.IsEmpty(); }
	void Empty(int32 Slack = 0) { Pairs.Empty(Slack); }
	void Reset() { Pairs.Reset(); }
	void Reserve(int32 Number) { Pairs.Reserve(Number); }
	bool operator==(const TSortedMap& Other) const { return Pairs == Other.Pairs; }

	ValueType& Add(const KeyType& Key, const ValueType& Value)
	{
		ValueType Copy(Value);
		return FindOrAdd(Key) = MoveTempIfPossible(Copy);
	}
	ValueType& Add(const KeyType& Key, ValueType&& Value)
	{
		ValueType Moved(MoveTempIfPossible(Value));
		return FindOrAdd(Key) = MoveTempIfPossible(Moved);
	}
	ValueType& FindOrAdd(const KeyType& Key)
	{
		const int32 Index = LowerBound(Key);
		if (!IsAt(Index, Key))
		{
			Pairs.EmplaceAt(Index, Key, ValueType());
		}
		return Pairs[Index].Value;
	}
	ValueType* Find(const KeyType& Key)
	{
		const int32 Index = LowerBound(Key);
		return IsAt(Index, Key) ? &Pairs[Index].Value : nullptr;
	}
	const ValueType* Find(const KeyType& Key) const { return const_cast<TSortedMap*>(this)->Find(Key); }
	ValueType& FindChecked(const KeyType& Key)
	{
		ValueType* const Value = Find(Key);
		checkf(Value != nullptr, TEXT("FindChecked: the map has no such key"));
		return *Value;
	}
	const ValueType& FindChecked(const KeyType& Key) const { return const_cast<TSortedMap*>(this)->FindChecked(Key); }
	ValueType& operator[](const KeyType& Key) { return FindChecked(Key); }
	const ValueType& operator[](const KeyType& Key) const { return FindChecked(Key); }
	ValueType FindRef(const KeyType& Key) const
	{
		const ValueType* const Value = Find(Key);
		return Value != nullptr ? *Value : ValueType();
	}
	bool Contains(const KeyType& Key) const { return Find(Key) != nullptr; }
	int32 Remove(const KeyType& Key)
	{
		const int32 Index = LowerBound(Key);
		if (!IsAt(Index, Key))
		{
			return 0;
		}
		Pairs.RemoveAt(Index);
		return 1;
	}
	template <typename Allocator>
	int32 GetKeys(TArray<KeyType, Allocator>& OutKeys) const
	{
		OutKeys.Reset();
		for (const ElementType& Pair : Pairs)
		{
			OutKeys.Add(Pair.Key);
		}
		return OutKeys.Num();
	}

	ElementType* begin() { return Pairs.begin(); }
	const ElementType* begin() const { return Pairs.begin(); }
	ElementType* end() { return Pairs.end(); }
	const ElementType* end() const { return Pairs.end(); }

	friend FArchive& operator<<(FArchive& Ar, TSortedMap& Map)
	{
		Ar << Map.Pairs;
		if (Ar.IsLoading())
		{
			// What was read need not be sorted nor free of duplicates.
			TArray<ElementType, ArrayAllocator> Read = MoveTemp(Map.Pairs);
			Map.Pairs.Reset();
			for (ElementType& Pair : Read)
			{
				Map.Add(Pair.Key, MoveTempIfPossible(Pair.Value));
			}
		}
		return Ar;
	}

private:
	int32 LowerBound(const KeyType& Key) const
	{
		int32 First = 0;
		for (int32 Count = Pairs.Num(); Count > 0;)
		{
			const int32 Half = Count / 2;
			const bool bIsBefore = SortPredicate()(Pairs[First + Half].Key, Key);
			First = bIsBefore ? First + Half + 1 : First;
			Count = bIsBefore ? Count - Half - 1 : Half;
		}
		return First;
	}
	bool IsAt(int32 Index, const KeyType& Key) const { return Index < Pairs.Num() && !SortPredicate()(Key, Pairs[Index].Key); }

	TArray<ElementType, ArrayAllocator> Pairs;
};

#pragma once

#include "Containers/Array.h"
#include "Templates/UniquePtr.h"

/** An array that owns its elements one by one: they never move, whatever is added or removed. */
template <typename T>
class TIndirectArray
{
public:
	/** Takes the element over. */
	int32 Add(T* Item) { return Elements.Add(TUniquePtr<T>(Item)); }
	void RemoveAt(int32 Index) { Elements.RemoveAt(Index); }
	void Empty() { Elements.Empty(); }

	int32 Num() const { return Elements.Num(); }
	bool IsValidIndex(int32 Index) const { return Elements.IsValidIndex(Index); }
	T& operator[](int32 Index) { return *Elements[Index]; }
	const T& operator[](int32 Index) const { return *Elements[Index]; }

	template <typename ItemType>
	class TIterator
	{
	public:
		explicit TIterator(const TUniquePtr<T>* InPosition)
			: Position(InPosition)
		{
		}
		ItemType& operator*() const { return **Position; }
		TIterator& operator++()
		{
			++Position;
			return *this;
		}
		bool operator==(const TIterator& Other) const = default;

	private:
		const TUniquePtr<T>* Position;
	};

	TIterator<T> begin() { return TIterator<T>(Elements.GetData()); }
	TIterator<T> end() { return TIterator<T>(Elements.GetData() + Elements.Num()); }
	TIterator<const T> begin() const { return TIterator<const T>(Elements.GetData()); }
	TIterator<const T> end() const { return TIterator<const T>(Elements.GetData() + Elements.Num()); }

private:
	TArray<TUniquePtr<T>> Elements;
};

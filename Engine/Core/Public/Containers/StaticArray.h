#pragma once

#include "Containers/ContainersFwd.h"
#include "Misc/AssertionMacros.h"
#include "Serialization/Archive.h"
#include "Templates/TypeHash.h"

/** An array of NumElements, with checked indices. */
template <typename InElementType, uint32 NumElements>
class TStaticArray
{
public:
	using ElementType = InElementType;

	constexpr TStaticArray()
		: Elements()
	{
	}
	template <typename... ArgTypes>
	requires(sizeof...(ArgTypes) == NumElements && (std::is_convertible_v<ArgTypes&&, InElementType> && ...)) constexpr TStaticArray(
		ArgTypes&&... Args)
		: Elements{InElementType(Forward<ArgTypes>(Args))...}
	{
	}

	constexpr InElementType& operator[](uint32 Index)
	{
		checkf(Index < NumElements, TEXT("Array index out of bounds: %u into an array of size %u"), Index, NumElements);
		return Elements[Index];
	}
	constexpr const InElementType& operator[](uint32 Index) const { return const_cast<TStaticArray*>(this)->operator[](Index); }
	constexpr int32 Num() const { return NumElements; }
	constexpr bool IsEmpty() const { return NumElements == 0; }
	constexpr InElementType* GetData() { return Elements; }
	constexpr const InElementType* GetData() const { return Elements; }
	constexpr InElementType* begin() { return Elements; }
	constexpr const InElementType* begin() const { return Elements; }
	constexpr InElementType* end() { return Elements + NumElements; }
	constexpr const InElementType* end() const { return Elements + NumElements; }
	bool operator==(const TStaticArray&) const = default;
	friend FArchive& operator<<(FArchive& Ar, TStaticArray& Array)
	{
		for (InElementType& Element : Array)
		{
			Ar << Element;
		}
		return Ar;
	}
	friend uint32 GetTypeHash(const TStaticArray& Array)
	{
		uint32 Hash = 0;
		for (const InElementType& Element : Array)
		{
			Hash = HashCombineFast(Hash, ::GetTypeHash(Element));
		}
		return Hash;
	}

private:
	InElementType Elements[NumElements];
};

template <typename T, uint32 N>
struct TIsContiguousContainer<TStaticArray<T, N>>
{
	static constexpr bool Value = true;
	static constexpr bool value = Value;
};

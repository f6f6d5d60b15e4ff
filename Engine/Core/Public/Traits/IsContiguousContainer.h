#pragma once

#include <cstddef>
#include <initializer_list>
#include <type_traits>

/** True for types whose elements stand in one block that GetData and GetNum give. Containers specialise it. */
template <typename T>
struct TIsContiguousContainer
{
	static constexpr bool Value = false;
	static constexpr bool value = Value;
};

template <typename T>
requires(std::is_const_v<T> || std::is_volatile_v<T> || std::is_reference_v<T>) struct TIsContiguousContainer<T>
	: TIsContiguousContainer<std::remove_cv_t<std::remove_reference_t<T>>>
{
};

template <typename T, std::size_t N>
struct TIsContiguousContainer<T[N]>
{
	static constexpr bool Value = true;
	static constexpr bool value = Value;
};

template <typename T>
struct TIsContiguousContainer<std::initializer_list<T>>
{
	static constexpr bool Value = true;
	static constexpr bool value = Value;
};

#pragma once

#include "CoreTypes.h"

#include <type_traits>

/** Rounds a number or a pointer up to a multiple of Alignment, a power of two. */
template <typename T>
constexpr T Align(T Value, uint64 Alignment)
{
	static_assert(std::is_integral_v<T> || std::is_pointer_v<T>, "Align expects an integer or a pointer");
	return (T)(((uint64)Value + Alignment - 1) & ~(Alignment - 1));
}

template <typename T>
constexpr T AlignDown(T Value, uint64 Alignment)
{
	static_assert(std::is_integral_v<T> || std::is_pointer_v<T>, "AlignDown expects an integer or a pointer");
	return (T)((uint64)Value & ~(Alignment - 1));
}

template <typename T>
constexpr bool IsAligned(T Value, uint64 Alignment)
{
	static_assert(std::is_integral_v<T> || std::is_pointer_v<T>, "IsAligned expects an integer or a pointer");
	return !((uint64)Value & (Alignment - 1));
}

/** Rounds up to a multiple of any Alignment. */
template <typename T>
constexpr T AlignArbitrary(T Value, uint64 Alignment)
{
	static_assert(std::is_integral_v<T> || std::is_pointer_v<T>, "AlignArbitrary expects an integer or a pointer");
	return (T)((((uint64)Value + Alignment - 1) / Alignment) * Alignment);
}

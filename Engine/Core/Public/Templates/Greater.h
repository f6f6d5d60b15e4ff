#pragma once

template <typename T = void>
struct TGreater
{
	constexpr bool operator()(const T& A, const T& B) const { return B < A; }
};

template <>
struct TGreater<void>
{
	template <typename T, typename U>
	constexpr bool operator()(T&& A, U&& B) const
	{
		return static_cast<U&&>(B) < static_cast<T&&>(A);
	}
};

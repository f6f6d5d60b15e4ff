#pragma once

template <typename T = void>
struct TLess
{
	constexpr bool operator()(const T& A, const T& B) const { return A < B; }
};

template <>
struct TLess<void>
{
	template <typename T, typename U>
	constexpr bool operator()(T&& A, U&& B) const
	{
		return static_cast<T&&>(A) < static_cast<U&&>(B);
	}
};
